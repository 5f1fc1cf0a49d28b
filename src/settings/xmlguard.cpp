#include "settings/xmlguard.h"

#include <QDomDocument>
#include <QTextCodec>
#include <QXmlStreamReader>

#include "platform/debuglog.h"
#include "storage/wholefile.h"

namespace {

constexpr int kUtf8 = 106; // number of the encoding in the list of character sets

/// Looks at the tags alone, in one pass, before any reader does: a reader compares each attribute with all others of
/// its element, so one element of a quarter megabyte would hold the start up for seconds.
class TagCounter
{
public:
    explicit TagCounter(const QString &text) : m_text(text) { }

    /// Why the text is not taken; empty when it is.
    QString fault()
    {
        int elements = 0;
        while ((m_at = m_text.indexOf(QLatin1Char('<'), m_at)) >= 0) {
            if (skipped("<!--", "-->") || skipped("<![CDATA[", "]]>") || skipped("<?", "?>"))
                continue;
            // A document type could let a small file grow without end.
            if (m_text.midRef(m_at, 2) == QLatin1String("<!"))
                return QStringLiteral("document type not allowed");
            if (m_text.midRef(m_at, 2) != QLatin1String("</") && ++elements > XmlGuard::kMaxElements)
                return QStringLiteral("too many elements");
            if (attributesOfTag() > XmlGuard::kMaxAttributes)
                return QStringLiteral("too many attributes");
        }
        return {};
    }

private:
    /// Goes behind a part that begins and ends so, if one stands here; to the end of the text when it does not end.
    bool skipped(const char *begin, const char *end)
    {
        const QLatin1String first(begin);
        if (m_text.midRef(m_at, first.size()) != first)
            return false;
        const int found = m_text.indexOf(QLatin1String(end), m_at + first.size());
        m_at = found < 0 ? m_text.size() : found + QLatin1String(end).size();
        return true;
    }

    /// Goes behind the tag and answers how many values it gives.
    int attributesOfTag()
    {
        int count = 0;
        QChar quote;
        for (; m_at < m_text.size(); ++m_at) {
            const QChar c = m_text.at(m_at);
            if (!quote.isNull())
                quote = c == quote ? QChar() : quote;
            else if (c == QLatin1Char('"') || c == QLatin1Char('\''))
                quote = c;
            else if (c == QLatin1Char('>'))
                break;
            else if (c == QLatin1Char('='))
                ++count;
        }
        return count;
    }

    const QString &m_text;
    int m_at = 0;
};

/// Why the text is not taken; empty when it is. The document tree recurses over the depth, so it must not see a deep
/// one.
QString fault(const QString &text)
{
    const QString counted = TagCounter(text).fault();
    if (!counted.isEmpty())
        return counted;
    QXmlStreamReader reader(text);
    reader.setNamespaceProcessing(false);
    int depth = 0;
    while (!reader.atEnd()) {
        switch (reader.readNext()) {
        case QXmlStreamReader::StartElement:
            if (++depth > XmlGuard::kMaxDepth)
                return QStringLiteral("nested too deeply, line %1").arg(reader.lineNumber());
            break;
        case QXmlStreamReader::EndElement:
            --depth;
            break;
        default:
            break;
        }
    }
    if (!reader.hasError())
        return {};
    return QStringLiteral("%1, line %2, column %3")
        .arg(reader.errorString())
        .arg(reader.lineNumber())
        .arg(reader.columnNumber());
}

/// The text of UTF-8 bytes. What an encoding declaration says does not count, or the look at the tags above would see
/// other ones than the reader. False when they are none.
bool decoded(const QByteArray &bytes, QString *text)
{
    QTextCodec::ConverterState state;
    *text = QTextCodec::codecForMib(kUtf8)->toUnicode(bytes.constData(), bytes.size(), &state);
    return state.invalidChars == 0 && state.remainingChars == 0;
}

} // namespace

XmlGuard::Result XmlGuard::load(const QString &path, QDomDocument *document)
{
    QByteArray bytes;
    const WholeFile::Reading reading = WholeFile::read(path, kMaxSize, &bytes);
    if (reading == WholeFile::Missing || reading == WholeFile::Refused)
        return Missing;
    QString text;
    QString refusal;
    if (reading == WholeFile::Failed)
        refusal = QStringLiteral("read fail");
    else if (reading == WholeFile::TooLarge)
        refusal = QStringLiteral("too large");
    else
        refusal = decoded(bytes, &text) ? fault(text) : QStringLiteral("no UTF-8 text");
    QString message;
    int line = 0;
    int column = 0;
    if (refusal.isEmpty() && !document->setContent(text, false, &message, &line, &column))
        refusal = QStringLiteral("%1, line %2, column %3").arg(message).arg(line).arg(column);
    if (refusal.isEmpty())
        return Ok;
    QUVERA_DEBUG(path + ": " + refusal);
    return reading == WholeFile::Failed ? Failed : Refused;
}
