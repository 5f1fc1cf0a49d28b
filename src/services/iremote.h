#pragma once

#include <QByteArray>
#include <QEvent>
#include <QObject>
#include <QPixmap>
#include <QTimer>
#include <atomic>
#include <deque>
#include <mutex>
#include <pthread.h>

/// The UDP remote control: a PC tool identifies the instrument, presses its keys and fetches its screen
/// (docs/remote-control.md).
///
/// A plain thread waits for requests and answers identification and keep-alive itself. Keys and the screen belong to
/// the GUI thread: they are handed over in the order of their arrival, so that a picture asked for behind a key shows
/// what the key did. However fast requests come, few keys and one picture wait at any time, and the event loop comes
/// round between them.
class IRemote : public QObject
{
    Q_OBJECT
public:
    /// Made once, in the GUI thread, after ScreenShot::initScreenShot(). Starts the thread.
    explicit IRemote(QObject *parent = nullptr);
    ~IRemote() override;

    /// Starts threadUdpRecv. A socket that cannot be made or bound ends the process with -1, on purpose: an instrument
    /// that a plant cannot reach must not look alive.
    void initThreadUdpRecv();

    /// The port in use; 0 until the socket is bound.
    static quint16 port();
    /// Asks for a picture of the screen for the last peer. Any thread.
    static void requestScreen();
    /// Posts a key to the object with the keyboard focus. GUI thread.
    /// @param code remote key number, 13 to 51; the gaps and all others post Qt::Key_unknown, which the pages ignore.
    static void postEvent(QEvent::Type type, int code);

    void requestScr();
    /// Sends the 32-byte message answer for the command to the last peer. Any thread.
    void respondMesg(int command);
    /// Sends a picture as the word 4, the length and the bytes, in datagrams of 1024 bytes with a pause after each.
    void respondImage(const QByteArray &png);

public slots:
    void respondScreen(const QPixmap &pixmap);
    void respondScreen();

signals:
    /// A picture is wanted. Emitted in the thread that asked.
    void saveScreen();
    /// From the GUI thread to the screen shot, when the keys that came before have been handled.
    void grabScreen();

private:
    /// A request as it lies in the buffer; shorter ones keep what the buffer held before.
    struct Request;

    static void *threadUdpRecv(void *self);
    void serve();
    bool receive(char *buffer, size_t size);
    void act(const char *buffer);
    void pressKey(int code);
    bool sendToPeer(const char *bytes, size_t size) const;

    Q_INVOKABLE void deliverKey();
    Q_INVOKABLE void takeScreen();
    void pictureDone();
    void loopCameRound();

    static IRemote *m_iremote;
    static std::atomic<quint16> m_port;

    pthread_t m_thread {};
    bool m_threadRuns = false;
    int m_wake[2] = { -1, -1 }; // a byte into [1] ends the thread
    std::atomic<int> m_socket { -1 };
    std::atomic<quint64> m_clientAddr { 0 }; // of the last datagram: address in the upper, port in the lower half

    std::mutex m_lock; // guards the six members below; held for a few instructions
    std::deque<int> m_keys;
    int m_keysThisRound = 0;
    bool m_keyPosted = false;
    bool m_picturePending = false;
    bool m_pictureSending = false;
    bool m_pictureAgain = false;
    QTimer m_round;
};
