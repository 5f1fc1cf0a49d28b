#pragma once

#include <QByteArray>
#include <QHostAddress>
#include <QString>
#include <QStringList>
#include <QUdpSocket>

/// The tool's end of the instrument's UDP remote control (docs/remote-control.md): identifies it, presses its keys and
/// fetches its screen. Every call waits for its answer, repeats a lost request, and tells in error() why it gave up.
class RemoteClient
{
public:
    RemoteClient(const QHostAddress &host, quint16 port);

    /// How long one answer is waited for, in ms, and how often a request is sent before it counts as failed.
    void setPatience(int answerMs, int attempts);

    /// Asks for the instrument's name. False without an answer.
    bool identify(QString *name);
    bool keepAlive();
    /// Presses and releases one key, by its remote number. True when the instrument has taken the datagram: a key has
    /// no answer of its own, so the keep-alive sent behind it is waited for.
    bool pressKey(int code);
    /// The screen as the bytes of a PNG file, checked to its last chunk; empty when no whole picture came.
    QByteArray screen();

    const QString &error() const { return m_error; }

    /// The remote number of a key name ("F4", "Down", "Menu", any case) or of a number; -1 for anything else.
    static int keyCode(const QString &text);
    /// Whether the instrument has a key of that remote number.
    static bool isKey(int code);
    /// Names in the order of the table, for a help text.
    static QStringList keyNames();
    /// True when the bytes are a PNG file whose chunks are all whole, by their check sums.
    static bool isWholePng(const QByteArray &bytes);

private:
    bool send(quint32 command, quint32 key = 0);
    bool askMessage(quint32 command, QByteArray *answer);
    QByteArray receive(int waitMs);
    QByteArray receivePicture();
    void drain();

    QUdpSocket m_socket;
    QHostAddress m_host;
    quint16 m_port;
    int m_answerMs = 1500;
    int m_attempts = 3;
    QString m_error;
};
