#pragma once

#include <QByteArray>
#include <QList>

#include <arpa/inet.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

/// Bytes of a Modbus TCP request: head, unit 1, then function and data.
inline QByteArray modbusFrame(quint16 transaction, const QByteArray &pdu)
{
    QByteArray frame;
    const int length = pdu.size() + 1;
    for (const int byte : { transaction >> 8, transaction & 0xFF, 0, 0, length >> 8, length & 0xFF, 1 })
        frame.append(char(byte));
    return frame + pdu;
}

/// Function code and 16-bit words, high byte first.
inline QByteArray modbusPdu(int function, std::initializer_list<int> words)
{
    QByteArray pdu(1, char(function));
    for (const int word : words) {
        pdu.append(char(word >> 8));
        pdu.append(char(word));
    }
    return pdu;
}

inline QByteArray readInput(int address, int count)
{
    return modbusPdu(4, { address, count });
}

/// The exception answer to a function.
inline QByteArray exceptionPdu(int function, int code)
{
    return QByteArray(1, char(function | 0x80)) + char(code);
}

/// A Modbus TCP master made of a plain socket, so that it can send what a library would not.
class ModbusClient
{
public:
    explicit ModbusClient(quint16 port) : m_socket(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0))
    {
        sockaddr_in address = {};
        address.sin_family = AF_INET;
        address.sin_port = htons(port);
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        m_connected = ::connect(m_socket, reinterpret_cast<sockaddr *>(&address), sizeof address) == 0;
        const int on = 1;
        ::setsockopt(m_socket, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
    }
    ~ModbusClient() { close(); }
    ModbusClient(const ModbusClient &) = delete;
    ModbusClient &operator=(const ModbusClient &) = delete;

    bool isConnected() const { return m_connected; }
    int socket() const { return m_socket; }
    void close()
    {
        if (m_socket >= 0)
            ::close(m_socket);
        m_socket = -1;
    }
    /// Closes with a reset instead of an orderly end.
    void reset()
    {
        const linger hard = { 1, 0 };
        ::setsockopt(m_socket, SOL_SOCKET, SO_LINGER, &hard, sizeof hard);
        close();
    }

    bool send(const QByteArray &bytes)
    {
        return ::send(m_socket, bytes.constData(), size_t(bytes.size()), MSG_NOSIGNAL) == bytes.size();
    }
    /// Exactly that many bytes, fewer only when the server closed or nothing came for half a minute.
    QByteArray receive(int bytes)
    {
        QByteArray got;
        while (got.size() < bytes) {
            pollfd readable = { m_socket, POLLIN, 0 };
            if (::poll(&readable, 1, 30'000) <= 0)
                break;
            char buffer[4096];
            const ssize_t n = ::recv(m_socket, buffer, size_t(qMin(bytes - got.size(), int(sizeof buffer))), 0);
            if (n <= 0)
                break;
            got.append(buffer, int(n));
        }
        return got;
    }
    /// The next answer behind its head; empty when there is none. The transaction goes to *transaction.
    QByteArray answer(quint16 *transaction = nullptr)
    {
        const QByteArray head = receive(7);
        if (head.size() < 7)
            return QByteArray();
        if (transaction)
            *transaction = quint16(quint8(head[0]) << 8 | quint8(head[1]));
        return receive((quint8(head[4]) << 8 | quint8(head[5])) - 1);
    }
    /// One request, one answer.
    QByteArray ask(const QByteArray &pdu) { return send(modbusFrame(++m_transaction, pdu)) ? answer() : QByteArray(); }
    /// Registers of a read of input registers; empty when it was refused.
    QList<quint16> read(int address, int count)
    {
        const QByteArray pdu = ask(readInput(address, count));
        QList<quint16> list;
        if (pdu.size() == 2 + 2 * count && pdu[0] == 4) {
            for (int i = 0; i < count; ++i)
                list.append(quint16(quint8(pdu[2 + 2 * i]) << 8 | quint8(pdu[3 + 2 * i])));
        }
        return list;
    }
    bool writeLock(int value) { return ask(modbusPdu(6, { 65000, value })) == modbusPdu(6, { 65000, value }); }
    /// Waits for the server's end of the connection.
    bool isClosedByServer()
    {
        pollfd readable = { m_socket, POLLIN, 0 };
        char byte;
        while (::poll(&readable, 1, 30'000) > 0) {
            if (::recv(m_socket, &byte, 1, 0) <= 0)
                return true;
        }
        return false;
    }

private:
    int m_socket = -1;
    bool m_connected = false;
    quint16 m_transaction = 0;
};
