#include "settings/xmltext.h"

XmlText::XmlText(const QString &instruction) : m_head("<?xml " + instruction.toLatin1() + "?>\n"), m_writer(&m_body)
{
    m_writer.setAutoFormatting(true);
    m_writer.setAutoFormattingIndent(4);
}

QByteArray XmlText::take()
{
    m_writer.writeEndDocument();
    return m_head + m_body.trimmed() + '\n';
}

QString XmlText::plain(const QString &text)
{
    QString plain;
    plain.reserve(text.size());
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        const bool pair = c.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate();
        if (pair) {
            plain += c;
            plain += text.at(++i);
        } else if (c.unicode() < 0x20 || c.unicode() >= 0xfffe || c.isSurrogate()) {
            plain += QLatin1Char(' ');
        } else {
            plain += c;
        }
    }
    return plain;
}
