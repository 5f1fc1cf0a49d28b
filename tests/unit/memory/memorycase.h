#pragma once

#include "memory/memorypage.h"
#include "storage/fileinfo.h"
#include "unit/storage/rootfiles.h"
#include "unit/threadtime.h"
#include "unit/views/pagetest.h"
#include "unit/widgets/dialogdriver.h"
#include "widgets/dialogs/filecopingprogressbar.h"
#include "widgets/dialogs/message.h"

#include <QImage>

// What the tests of the memory page share: a card with things on it, and the page in a window as the instrument has it.

namespace MemoryCase {

using namespace PageTest;

const QString kStorage = QStringLiteral("/mnt/storage/");
const QString kDisk = QStringLiteral("/run/media/sda1");
constexpr int kPatienceMs = 60000; // for what a quiet machine does in a second
const QByteArray kRecording = "231114_221320 Logger_1";

inline void store(const QByteArray &name, const QByteArray &content = "data")
{
    RootFiles::write(kStorage + QFile::decodeName(name), content);
}

inline void storePicture(const QString &name, QSize size = { 64, 48 })
{
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(Qt::red);
    if (!picture.save(Target::path(kStorage + name)))
        qFatal("no picture");
}

/// A picture, a data file and a recording, in this order from the top.
inline void storeThree()
{
    storePicture("Vif1.png");
    store("Scope1.pqa");
    store(kRecording + "/Common.pqa2", QByteArray(300000, 'c'));
    RootFiles::write(kStorage + ".infomation",
                     "Vif1.png,2024-01-03 00:00:00\nScope1.pqa,2024-01-02 00:00:00\n" + kRecording
                         + ",2023-11-14 22:13:20\n");
}

inline bool onCard(const QByteArray &name)
{
    return RootFiles::exists(kStorage + QFile::decodeName(name));
}

/// The page in a window, entered, with its list read.
class Screen
{
public:
    Screen()
    {
        window.resize(640, 480);
        page = new MemoryPage;
        page->setParent(&window); // inside, as the stack of pages has it
        page->setGeometry(0, 32, 640, 448);
        window.show();
        page->show();
        page->enter();
        wait();
    }

    /// Until nothing is under way.
    void wait() const { QTRY_VERIFY_WITH_TIMEOUT(!page->isWorking(), kPatienceMs); }
    void press(std::initializer_list<FrontKey> keys) const
    {
        for (const FrontKey key : keys)
            QTest::keyClick(page, Qt::Key(key));
    }
    FilesList *list() const { return page->findChild<FilesList *>(); }
    QStringList names() const
    {
        QStringList found;
        for (int row = 0; row < list()->count(); ++row)
            found << list()->at(row).item.name;
        return found;
    }
    QList<bool> marks() const
    {
        QList<bool> found;
        for (int row = 0; row < list()->count(); ++row)
            found << list()->isChecked(row);
        return found;
    }
    QStringList captions() const
    {
        QStringList found;
        for (int key = 1; key <= 5; ++key)
            found << text(page, QStringLiteral("btn_f%1").arg(key));
        return found;
    }

    QWidget window;
    MemoryPage *page;
};

/// Answers messages one after the other with a key each ('L' is F5, 'F' is F4) and keeps what they said. One too many
/// is closed. Other dialogs, such as the progress of a copy, are left alone.
class Answers
{
public:
    explicit Answers(const QByteArray &keys) : m_keys(keys) { arm(); }
    bool isDone() const { return m_keys.isEmpty(); }

    QStringList said;

private:
    // A new shot for each look: a timer that is just being served would not fire inside the loop of a further dialog.
    void arm()
    {
        QTimer::singleShot(5, &m_context, [this] { look(); });
    }

    void look()
    {
        arm();
        auto *message = qobject_cast<Message *>(QApplication::activeModalWidget());
        if (!message)
            return;
        said << labelText(message, "message");
        const char key = m_keys.isEmpty() ? '\0' : m_keys[0];
        m_keys.remove(0, 1);
        if (key)
            QTest::keyClick(message, key);
        else
            message->close();
    }

    QByteArray m_keys;
    QObject m_context;
};

/// Does something once, when the progress of a copy stands on the screen and satisfies a condition.
class DuringCopy
{
public:
    DuringCopy(const std::function<bool(QDialog *)> &when, const std::function<void(QDialog *)> &what)
    {
        QObject::connect(&m_timer, &QTimer::timeout, [this, when, what] {
            auto *dialog = qobject_cast<FileCopingProgressBar *>(QApplication::activeModalWidget());
            if (isDone || !dialog || !when(dialog))
                return;
            isDone = true;
            m_timer.stop();
            what(dialog);
        });
        m_timer.start(1);
    }
    bool isDone = false;

private:
    QTimer m_timer;
};

/// How the main thread goes on while something is under way. Its own time counts: what others on the machine take does
/// not.
class Pulse
{
public:
    Pulse()
    {
        QObject::connect(&m_timer, &QTimer::timeout, [this] {
            longestMs = turns > 0 ? qMax(longestMs, m_last.ms()) : 0;
            m_last = ThreadTime();
            ++turns;
        });
        m_timer.start(1);
    }
    int turns = 0;
    double longestMs = 0; // between two turns

private:
    QTimer m_timer;
    ThreadTime m_last;
};

} // namespace MemoryCase
