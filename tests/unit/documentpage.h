#pragma once

#include "testpaths.h"

#include <QByteArray>
#include <QFile>
#include <QRegularExpression>
#include <QString>
#include <QStringList>
#include <QVector>

/// A page of docs/, read by the tests that hold it to the code.
class DocumentPage
{
public:
    explicit DocumentPage(const QString &name)
    {
        QFile file(QStringLiteral(QUVERA_SOURCE_DIR "/docs/") + name);
        if (file.open(QIODevice::ReadOnly))
            m_text = QString::fromUtf8(file.readAll());
    }

    /// The whole page; empty when it is missing.
    const QString &text() const { return m_text; }

    /// Cells of the first table under a heading ("## Kinds"), without its head.
    QVector<QStringList> table(const QString &heading) const
    {
        QVector<QStringList> rows;
        const QStringList lines = section(heading).split(QLatin1Char('\n'));
        for (const QString &line : lines) {
            if (line.startsWith(QLatin1String("| "))) {
                QStringList cells = line.mid(1, line.lastIndexOf(QLatin1Char('|')) - 1).split(QLatin1Char('|'));
                for (QString &cell : cells)
                    cell = cell.trimmed().remove(QLatin1Char('`'));
                rows << cells;
            } else if (!line.startsWith(QLatin1Char('|')) && !rows.isEmpty()) {
                break;
            }
        }
        if (!rows.isEmpty())
            rows.removeFirst();
        return rows;
    }

    /// Hexadecimal blocks under a heading.
    QVector<QByteArray> hexBlocks(const QString &heading) const
    {
        QVector<QByteArray> blocks;
        const QStringList parts = section(heading).split(QStringLiteral("```"));
        for (int i = 1; i < parts.size(); i += 2)
            blocks << QByteArray::fromHex(parts[i].toLatin1());
        return blocks;
    }

    /// From a heading to the next one of its level or above.
    QString section(const QString &heading) const
    {
        const int start = m_text.indexOf(QLatin1Char('\n') + heading + QLatin1Char('\n'));
        if (start < 0)
            return {};
        const int level = heading.indexOf(QLatin1Char(' '));
        const QRegularExpression next(QStringLiteral("\n#{1,%1} ").arg(level));
        const int end = m_text.indexOf(next, start + heading.size() + 1);
        return m_text.mid(start, end < 0 ? -1 : end - start);
    }

private:
    QString m_text;
};
