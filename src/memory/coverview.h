#pragma once

#include <QWidget>

/// Something over the whole screen. Soft key 5 leaves it; other keys that it does not take rise to the window below,
/// which knows light and power.
class CoverView : public QWidget
{
    Q_OBJECT

public:
    /// Over the window of \a page, which gets the keyboard back afterwards.
    explicit CoverView(QWidget *page);
    /// Comes to the front and takes the keyboard.
    void cover();

protected:
    virtual bool pressKey(int key);
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;

private:
    void leave();

    QWidget *const m_page;
};
