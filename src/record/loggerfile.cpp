#include "record/loggerfile.h"

#include "record/pqa2device.h"

LoggerFile::LoggerFile(const QString *stem) : LoggerFile(stem, std::make_unique<Pqa2Device>()) { }

LoggerFile::LoggerFile(const QString *stem, std::unique_ptr<Pqa2Device> device)
    : m_stem(stem ? *stem : QString()), m_file(std::move(device))
{ }

QString LoggerFile::fileName() const
{
    return QStringLiteral("%1_%2.csv").arg(m_stem).arg(m_index, 2, 10, QLatin1Char('0'));
}

bool LoggerFile::open(const QDateTime &localTime)
{
    const bool isThere = isOpen() && m_file.name() == fileName();
    return isThere || (!m_stem.isEmpty() && m_file.open(fileName(), localTime));
}

void LoggerFile::save(bool keep)
{
    if (!isOpen())
        return;
    if (keep)
        close();
    else
        m_file.remove();
}
