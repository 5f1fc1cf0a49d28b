#pragma once

#include <QByteArray>
#include <QObject>
#include <atomic>
#include <memory>
#include <pthread.h>

class Panel;

/// The UDP remote control: a PC tool identifies the instrument, presses its keys and fetches its screen
/// (docs/remote-control.md).
///
/// A plain thread waits for requests, answers identification and keep-alive itself and passes keys and requests for a
/// picture to the panel, in the order of their arrival. The panel's thread sends the pictures.
class IRemote : public QObject
{
    Q_OBJECT
public:
    /// Made once, in the GUI thread, after ScreenShot::initScreenShot(). Starts the thread.
    explicit IRemote(QObject *parent = nullptr);
    ~IRemote() override;

    /// Starts threadUdpRecv. A socket that cannot be made or bound ends the process with -1, on purpose: an instrument
    /// that a plant cannot reach must not seem to work.
    void initThreadUdpRecv();

    /// The port in use; 0 until the socket is bound.
    static quint16 port();
    /// Asks for a picture of the screen for the last peer. Any thread.
    static void requestScreen();
    /// Sends the 32-byte message answer for the command to the last peer. Any thread.
    void respondMesg(int command);
    /// Sends a picture as the word 4, the length and the bytes, in datagrams of 1024 bytes with a pause after each:
    /// some 20 ms for a page. Any thread, one at a time.
    void respondImage(const QByteArray &png);
    /// The message answer that stands for a screen without a picture.
    void respondScreen();

private:
    /// A request as it lies in the buffer; shorter ones keep what the buffer held before.
    struct Request;

    static void *threadUdpRecv(void *self);
    void serve();
    bool receive(char *buffer, size_t size);
    void act(const char *buffer);
    bool sendToPeer(const char *bytes, size_t size) const;

    static IRemote *m_iremote;
    static std::atomic<quint16> m_port;

    pthread_t m_thread {};
    bool m_threadRuns = false;
    int m_wake[2] = { -1, -1 }; // a byte into [1] ends the thread
    std::atomic<int> m_socket { -1 };
    std::atomic<quint64> m_clientAddr { 0 }; // of the last datagram: address in the upper, port in the lower half
    std::shared_ptr<Panel> m_panel;
    int m_taker = -1; // its number for the panel's pictures
};
