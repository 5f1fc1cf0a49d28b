#pragma once

#include <QObject>
#include <QPointer>
#include <QQueue>
#include <QTimer>

#include <functional>

class QSocketNotifier;
struct wpa_ctrl;

/// Takes the answer to one request: 0 and the daemon's text, or a negative result and nothing (see WpaChannel).
using WpaAnswer = std::function<void(int result, const QByteArray &answer)>;

/// One connection to the wireless daemon that never waits. The daemon answers in the order of the requests and without
/// numbering its answers, so one request is on its way at a time and the others wait in a queue. A request that gets no
/// answer in time gives up the connection with it: the late answer then goes to an address that is no longer ours, and
/// can never be taken for the answer to the next request. Main thread.
class WpaChannel : public QObject
{
    Q_OBJECT

public:
    enum Result { Answered = 0, Failed = -1, TimedOut = -2 }; // the numbers of the client library

    static constexpr int kLongestMessage = 2047; // bytes of an answer or event; the rest of a longer one is cut off
    static constexpr int kMostWaiting = 64; // requests; one more fails at once
    static constexpr int kAnswerTimeMs = 10000; // the time that the client library grants an answer

    /// A character that no command carries.
    static bool isControl(char c) { return static_cast<uchar>(c) < 0x20 || c == 0x7f; }

    explicit WpaChannel(QObject *parent = nullptr);
    ~WpaChannel() override;

    /// Connects to `folder`/`interface`, a path of the board. false when nobody listens there. What is open is closed.
    bool open(const QString &folder, const QString &interface);
    /// Every request that waits gets the result Failed, from the event loop.
    void close();
    bool isOpen() const { return m_ctrl != nullptr; }

    /// Queues a command. `answer` is called once, always from the event loop and never from within this call, unless
    /// `context` or the channel goes first. A command with a control character in it fails without being sent: the
    /// daemon keeps what it is given in a file of lines.
    void request(const QByteArray &command, QObject *context, WpaAnswer answer);
    /// Whether this command waits for its turn or its answer.
    bool isWaiting(const QByteArray &command) const;
    /// How long the answers to requests that go out from now on may take, ms.
    void setAnswerTime(int ms) { m_answerTime = ms; }

signals:
    /// An unsolicited line, with its level mark; cut at its first zero byte.
    void message(const QByteArray &text);

private:
    struct Request
    {
        QByteArray command;
        QPointer<QObject> context;
        WpaAnswer answer;
    };

    bool connectDaemon();
    void disconnectDaemon();
    void sendNext();
    void receive();
    void giveUp();
    void failAll();
    void failLater(const Request &request);

    wpa_ctrl *m_ctrl = nullptr;
    QSocketNotifier *m_readable = nullptr;
    QSocketNotifier *m_writable = nullptr; // enabled while the daemon's socket is full
    QTimer m_timeout;
    int m_answerTime = kAnswerTimeMs;
    QQueue<Request> m_requests; // the first one is on its way when m_sent
    bool m_sent = false;
    QString m_folder;
    QString m_interface;
};
