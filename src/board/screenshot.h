#pragma once

#include <QByteArray>
#include <QObject>
#include <QPixmap>

/// Takes pictures of the screen for saved pages and for the remote control. Main thread; others ask by a queued signal.
class ScreenShot : public QObject
{
    Q_OBJECT
public:
    /// Makes the singleton, once.
    static void initScreenShot();
    static ScreenShot *iScreenShot() { return m_instance; }

    /// The whole primary screen where the instrument fills it. On a larger one, and where the platform cannot read its
    /// screen back, the picture is composed of the instrument's visible windows: dialogs over pages, menus over
    /// dialogs. A null picture when there is nothing to show.
    static QPixmap getScreenPixmap();
    /// The same as a PNG file; empty when there is nothing to show.
    static QByteArray getScreenPng();
    /// A picture as a PNG file of the toolkit's usual quality; empty for a null one. Any thread.
    static QByteArray png(const QImage &picture);

signals:
    void screenPixmap(QPixmap picture);

public slots:
    /// Takes a picture and emits it.
    void grabScreenPixmap();

private:
    ScreenShot() = default;
    static ScreenShot *m_instance;
};
