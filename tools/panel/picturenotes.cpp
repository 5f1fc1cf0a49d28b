#include "panel/picturenotes.h"

#include <QBuffer>
#include <QImageReader>

namespace panel {

QJsonObject notesOf(const QByteArray &png)
{
    QJsonObject notes;
    QBuffer buffer(const_cast<QByteArray *>(&png));
    QImageReader reader(&buffer, "png");
    const QStringList keys = reader.textKeys();
    for (const QString &key : keys)
        notes.insert(key, reader.text(key));
    return notes;
}

} // namespace panel
