#include "services/panel.h"

#include "board/screenshot.h"
#include "services/screennotes.h"
#include "widgets/text/keymap.h"

#include <QApplication>
#include <QKeyEvent>
#include <QSplashScreen>
#include <QWidget>

#include <csignal>
#include <pthread.h>

namespace {

// The window that would have the keyboard: the dialog that is open, else the one with the pages. Not the splash behind
// it.
QWidget *keyboardWindow()
{
    QWidget *window = QApplication::activeModalWidget();
    const auto candidates = window ? QWidgetList() : QApplication::topLevelWidgets();
    for (QWidget *candidate : candidates) {
        if (candidate->isVisible() && candidate->focusWidget())
            window = candidate;
    }
    return window;
}

// Where a key goes: to the focus, as a key of the panel does. On a desk another program may have the keyboard, or a
// closed dialog may have left it to nobody; then the window is made active inside this program, so that pages pass the
// focus on as they do on the board.
QObject *keyReceiver()
{
    QObject *owner = QGuiApplication::focusObject();
    if (owner && !qobject_cast<QSplashScreen *>(owner)) // it has the focus until the loop runs for the first time
        return owner;
    QWidget *window = keyboardWindow();
    if (!window)
        return nullptr;
    if (QApplication::activeWindow() != window)
        QApplication::setActiveWindow(window);
    QWidget *focus = QApplication::focusWidget();
    return focus ? focus : window;
}

} // namespace

std::shared_ptr<Panel> Panel::shared()
{
    static std::weak_ptr<Panel> last;
    std::shared_ptr<Panel> panel = last.lock();
    if (!panel) {
        panel.reset(new Panel);
        last = panel;
    }
    return panel;
}

Panel::Panel()
{
    m_round.setSingleShot(true);
    connect(&m_round, &QTimer::timeout, this, &Panel::loopCameRound);
    m_spacing.setSingleShot(true);
    m_spacing.setTimerType(Qt::PreciseTimer);
    connect(&m_spacing, &QTimer::timeout, this, &Panel::takePicture);
    connect(&m_grab, &QTimer::timeout, this, &Panel::comeRound);
    // Signals are for the main thread. The mask is inherited, so it is set before the thread exists.
    sigset_t all;
    sigset_t before;
    sigfillset(&all);
    pthread_sigmask(SIG_SETMASK, &all, &before);
    m_thread = std::thread([this] { makePictures(); });
    pthread_sigmask(SIG_SETMASK, &before, nullptr);
}

Panel::~Panel()
{
    {
        const std::lock_guard<std::mutex> guard(m_lock);
        m_ends = true;
    }
    m_changed.notify_one();
    m_thread.join();
}

// The focus is the GUI thread's, so the key is carried there before it is posted.
void Panel::pressKey(int code)
{
    const std::lock_guard<std::mutex> guard(m_lock);
    if (m_keysThisRound >= kKeysPerRound)
        return;
    ++m_keysThisRound;
    m_keys.push_back(code);
    if (!m_keyPosted) {
        m_keyPosted = true;
        QMetaObject::invokeMethod(this, "deliverKey", Qt::QueuedConnection);
    }
}

void Panel::deliverKey()
{
    int code = 0;
    {
        const std::lock_guard<std::mutex> guard(m_lock);
        code = m_keys.front();
        m_keys.pop_front();
    }
    postKey(QEvent::KeyPress, code);
    postKey(QEvent::KeyRelease, code);
    m_keyHandled = true;
    {
        // The next key waits until this one has done its work: it may have brought another page to the front.
        const std::lock_guard<std::mutex> guard(m_lock);
        m_keyPosted = !m_keys.empty();
        if (m_keyPosted)
            QMetaObject::invokeMethod(this, "deliverKey", Qt::QueuedConnection);
    }
    if (!m_round.isActive())
        m_round.start(0);
}

// A timer runs out only when all posted events have been handled: until then no more keys are taken.
void Panel::loopCameRound()
{
    const std::lock_guard<std::mutex> guard(m_lock);
    m_keysThisRound = int(m_keys.size());
}

void Panel::postKey(QEvent::Type type, int code)
{
    QObject *receiver = keyReceiver();
    if (!receiver)
        return;
    QCoreApplication::postEvent(
        receiver, new QKeyEvent(type, keyMap::keyboardBackMap(code), Qt::NoModifier, QString(), false, 1));
}

int Panel::addTaker(Taker taker)
{
    const std::lock_guard<std::mutex> guard(m_takersLock);
    for (int number = 0; number < kMostTakers; ++number) {
        if (!m_takers[size_t(number)]) {
            m_takers[size_t(number)] = std::move(taker);
            return number;
        }
    }
    return -1;
}

void Panel::removeTaker(int number)
{
    if (number < 0 || number >= kMostTakers)
        return;
    const std::lock_guard<std::mutex> guard(m_takersLock);
    m_takers[size_t(number)] = nullptr;
}

void Panel::requestPicture(int taker)
{
    if (taker < 0 || taker >= kMostTakers)
        return;
    {
        const std::lock_guard<std::mutex> guard(m_lock);
        const bool covered = m_wantedBy != 0;
        m_wantedBy |= 1u << taker;
        if (covered)
            return;
        if (!m_busy)
            QMetaObject::invokeMethod(this, "takePicture", Qt::QueuedConnection);
    }
    emit pictureWanted();
}

// Who pressed a key waits for what it did. The early picture is one more in the time of a spacing, whatever is pressed.
int Panel::spacingNow() const
{
    const bool early = m_keyHandled && (!m_lastEarly.isValid() || m_lastEarly.elapsed() >= kPictureSpacing);
    return early ? kSpacingBehindKey : kPictureSpacing;
}

void Panel::takePicture()
{
    {
        const std::lock_guard<std::mutex> guard(m_lock);
        if (m_busy || m_wantedBy == 0 || m_spacing.isActive())
            return;
        if (m_keyPosted) { // the keys first
            QMetaObject::invokeMethod(this, "takePicture", Qt::QueuedConnection);
            return;
        }
        const qint64 rest = m_lastPicture.isValid() ? spacingNow() - m_lastPicture.elapsed() : 0;
        if (rest > 0) {
            m_spacing.start(int(rest));
            return;
        }
        m_busy = true;
        m_pictureFor = m_wantedBy;
        m_wantedBy = 0;
    }
    m_rounds = 0;
    m_grab.start(0);
}

// A key that closed a dialog has done its work only when the dialog's own loop has ended, and that loop still handles
// what waits in its last round. The round behind it belongs to the loop outside.
void Panel::comeRound()
{
    if (++m_rounds < 2)
        return;
    m_grab.stop();
    grabScreen();
}

void Panel::grabScreen()
{
    if (m_keyHandled && m_lastPicture.isValid() && m_lastPicture.elapsed() < kPictureSpacing)
        m_lastEarly.start();
    m_keyHandled = false;
    m_lastPicture.start();
    QImage picture = ScreenShot::getScreenPixmap().toImage();
    const QMap<QString, QString> notes = picture.isNull() ? QMap<QString, QString>() : ScreenNotes::take();
    for (auto note = notes.cbegin(); note != notes.cend(); ++note)
        picture.setText(note.key(), note.value());
    {
        const std::lock_guard<std::mutex> guard(m_lock);
        m_picture = std::move(picture);
        m_pictureComes = true;
    }
    m_changed.notify_one();
    emit pictureTaken();
}

void Panel::makePictures()
{
    QImage last;
    QByteArray png;
    for (;;) {
        QImage picture;
        quint32 takers = 0;
        {
            std::unique_lock<std::mutex> guard(m_lock);
            m_changed.wait(guard, [this] { return m_pictureComes || m_ends; });
            if (m_ends)
                return;
            m_pictureComes = false;
            picture = std::move(m_picture);
            m_picture = QImage();
            takers = m_pictureFor;
        }
        if (png.isEmpty() || picture != last
            || picture.text() != last.text()) // a page on hold, or a menu, is made once
            png = ScreenShot::png(picture);
        last = std::move(picture);
        handOut(png, takers);
        // Through the event loop: however fast requests come, it handles its other events between two pictures.
        QMetaObject::invokeMethod(this, "pictureDone", Qt::QueuedConnection);
    }
}

void Panel::handOut(const QByteArray &png, quint32 takers)
{
    const std::lock_guard<std::mutex> guard(m_takersLock);
    for (int number = 0; number < kMostTakers; ++number) {
        if ((takers & 1u << number) && m_takers[size_t(number)])
            m_takers[size_t(number)](png);
    }
}

void Panel::pictureDone()
{
    {
        const std::lock_guard<std::mutex> guard(m_lock);
        m_busy = false;
    }
    takePicture();
}
