#pragma once

#include "modbusclient.h"
#include "services/modbusregisters.h"
#include "services/modbusserver.h"

#include <QFile>
#include <QRegularExpression>
#include <QTemporaryFile>

#include <cstdio>
#include <memory>

/// Standard output goes to a file for as long as this lives; then what is not a line of the server is printed after
/// all.
class CaughtOutput
{
public:
    CaughtOutput()
    {
        m_file.open();
        std::fflush(stdout);
        m_stdout = ::dup(1);
        ::dup2(m_file.handle(), 1);
    }
    ~CaughtOutput()
    {
        const QStringList others = all().filter(QRegularExpression(QStringLiteral("^(?!%1)").arg(kServerLine)));
        ::dup2(m_stdout, 1);
        ::close(m_stdout);
        for (const QString &line : others)
            std::puts(qPrintable(line));
    }
    QStringList lines() const { return all().filter(QRegularExpression(QStringLiteral("^") + kServerLine)); }

private:
    QStringList all() const
    {
        std::fflush(stdout);
        QFile file(m_file.fileName());
        file.open(QIODevice::ReadOnly);
        return QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    }

    const QString kServerLine = QStringLiteral("(---|###|Modbus Server)");
    QTemporaryFile m_file;
    int m_stdout = -1;
};

/// A server of its own with two small blocks and the big ones.
struct OwnServer
{
    OwnServer() : registers(std::make_shared<ModbusRegisters>())
    {
        registers->mb_mapping_add_map(0, 50);
        registers->mb_mapping_add_map(100, 172);
        registers->mb_mapping_add_map(kScopeStart, kScopeRegisters);
        registers->mb_mapping_add_map(kTransientStart, kTransientRegisters);
        server = std::make_unique<ModbusServer>(0, registers);
        for (int i = 0; i < 172; ++i) {
            const quint16 value = quint16(0x1000 + i);
            registers->mb_mapping_setdata(quint32(100 + i), 1, &value);
        }
    }
    quint16 port() const { return server->port(); }
    std::shared_ptr<ModbusRegisters> registers;
    std::unique_ptr<ModbusServer> server;
};

/// What register 100 + i of an OwnServer answers.
inline QByteArray modelRead(int address, int count)
{
    QByteArray pdu = QByteArray(1, 4) + char(2 * count);
    for (int i = 0; i < count; ++i) {
        const int value = 0x1000 + address - 100 + i;
        pdu.append(char(value >> 8));
        pdu.append(char(value));
    }
    return pdu;
}
