#include "settings/xmlguard.h"

#include <QDomDocument>
#include <QFile>
#include <QFileInfo>
#include <QXmlStreamReader>

#include "platform/debuglog.h"
#include "platform/target.h"

namespace {

/// Why the bytes are not taken; empty when they are. The document tree recurses over the depth, so it must not see a
/// deep one, and a document type could let a small file grow without end.
QString fault(const QByteArray &bytes)
{
    QXmlStreamReader reader(bytes);
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
        case QXmlStreamReader::DTD:
            return QStringLiteral("document type not allowed");
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

} // namespace

XmlGuard::Result XmlGuard::load(const QString &path, QDomDocument *document)
{
    const QString realPath = Target::path(path);
    const QFileInfo info(realPath);
    if (!info.exists())
        return Missing;
    QFile file(realPath);
    if (!info.isFile() || !file.open(QIODevice::ReadOnly))
        return Missing;
    const QByteArray bytes = file.read(kMaxSize + 1);
    if (bytes.size() > kMaxSize) {
        QUVERA_DEBUG(path + ": too large");
        return Refused;
    }
    const QString refusal = fault(bytes);
    if (!refusal.isEmpty()) {
        QUVERA_DEBUG(path + ": " + refusal);
        return Refused;
    }
    QString message;
    int line = 0;
    int column = 0;
    if (!document->setContent(bytes, false, &message, &line, &column)) {
        QUVERA_DEBUG(QStringLiteral("%1: %2, line %3, column %4").arg(path, message).arg(line).arg(column));
        return Refused;
    }
    return Ok;
}
