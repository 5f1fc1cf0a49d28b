#include "link/framelog.h"

#include "link/deviceclock.h"

namespace wire {

bool FrameLog::open(const QString &path, QString *error)
{
    m_file.setFileName(path);
    if (m_file.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Text))
        return true;
    *error = QStringLiteral("cannot write %1: %2").arg(path, m_file.errorString());
    return false;
}

QString FrameLog::line(quint64 msSince1970, const QByteArray &bytes, const Frame &frame)
{
    QString text = DeviceClock::text(msSince1970);
    const std::vector<quint32> words = wordsOf(bytes.left(4 * kShownWords));
    for (quint32 word : words)
        text += QStringLiteral(" %1").arg(word, 8, 16, QLatin1Char('0'));
    if (bytes.size() > 4 * kShownWords)
        text += QStringLiteral(" ... (%1 words)").arg(bytes.size() / 4);
    else if (bytes.size() % 4 != 0)
        text += QLatin1String(" +") + QString::fromLatin1(bytes.right(bytes.size() % 4).toHex());
    return text + QLatin1String("  ") + frame.meaning();
}

void FrameLog::write(quint64 msSince1970, const QByteArray &bytes, const Frame &frame)
{
    if (!m_file.isOpen())
        return;
    m_file.write(line(msSince1970, bytes, frame).toUtf8() + '\n');
    m_file.flush();
}

} // namespace wire
