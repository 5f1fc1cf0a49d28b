#pragma once

#include "device/idevice.h"
#include "pages/viewcontainer.h"
#include "shell/basedialog.h"
#include "shell/navigator.h"
#include "shell/quveraglobal.h"
#include "views/vif/vifpage.h"

#include <QApplication>
#include <QLabel>
#include <QSplashScreen>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <cstring>
#include <vector>

/// The whole object graph of the instrument, built once as main builds it, for tests of the shell. The splash stands so
/// far beside its place, in pixels, when the main window comes.
inline void buildWholeGraph(QPoint splashOffset = {})
{
    Q_INIT_RESOURCE(skin);
    showSplash();
    splash->move(splash->pos() + splashOffset);
    appInit();
    appConnection();
    langConnection();
}

/// A page of the graph by its type, entered once; null if it is of another class.
template <typename P> P *pageOf(_quvera_ui_type type)
{
    FunctionPage *page = m_basedialog->navigator().page(type);
    const auto *container = qobject_cast<ViewContainer *>(page);
    if (container && container->currentIndex() < 0)
        page->enter();
    return qobject_cast<P *>(page);
}

inline VifPage *vifPage()
{
    return pageOf<VifPage>(UI_VIF);
}

/// Frames queued for the processor, by their words.
class FrameSpy : public QObject
{
public:
    FrameSpy()
    {
        connect(m_idevice, &IDevice::writeDSP, this, [this](const void *data, int length) {
            std::vector<quint32> words(std::size_t(length) / 4);
            std::memcpy(words.data(), data, words.size() * 4);
            frames.push_back(words);
        });
    }
    bool contains(const std::vector<quint32> &words) const
    {
        return std::find(frames.begin(), frames.end(), words) != frames.end();
    }
    std::vector<std::vector<quint32>> frames;
};

/// Answers the next modal dialog with a letter key and keeps what it asked.
class DialogAnswer : public QObject
{
public:
    explicit DialogAnswer(Qt::Key letter) : m_letter(letter)
    {
        connect(&m_timer, &QTimer::timeout, this, &DialogAnswer::look);
        m_timer.start(20);
    }
    QString text; // all label texts of the dialog
    bool asked = false;

private:
    void look()
    {
        QWidget *dialog = QApplication::activeModalWidget();
        if (!dialog)
            return;
        m_timer.stop();
        asked = true;
        for (const QLabel *label : dialog->findChildren<QLabel *>())
            text += label->text() + QLatin1Char('\n');
        QTest::keyClick(dialog, m_letter);
        if (QApplication::activeModalWidget() == dialog)
            dialog->close();
    }

    Qt::Key m_letter;
    QTimer m_timer;
};
