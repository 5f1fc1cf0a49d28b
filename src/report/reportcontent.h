#pragma once

#include "report/drawing.h"

#include <QString>
#include <QStringList>
#include <QVector>

/// How something is meant, for its colour. No meaning hangs on the colour alone: the words say it, too.
enum class Tone : quint8 { Plain, Good, Bad, Weak };

struct ReportCell
{
    QString text;
    Tone tone = Tone::Plain;
    QString link; // to an anchor of the report
};

struct ReportTable
{
    QString caption;
    QStringList head;
    QVector<QVector<ReportCell>> rows;
    QVector<QString> anchors; // of the rows, where they have any
};

/// A piece of a report.
struct ReportBlock
{
    enum Kind : quint8 { Title, Verdict, Heading, SubHeading, Paragraph, Item, Table, Picture };

    Kind kind = Paragraph;
    QString text;
    Tone tone = Tone::Plain;
    QString anchor;
    ReportTable table;
    Drawing picture;
};

/// A report, whichever way it is written. All its texts are as they stand: whoever writes them quotes them.
struct ReportContent
{
    QString title;
    QString language; // tag of the language: "de"
    QVector<ReportBlock> blocks;

    void add(ReportBlock::Kind kind, const QString &text, Tone tone = Tone::Plain, const QString &anchor = {})
    {
        blocks.append({ kind, text, tone, anchor, {}, {} });
    }
    void add(const ReportTable &table) { blocks.append({ ReportBlock::Table, {}, Tone::Plain, {}, table, {} }); }
    void add(const Drawing &picture) { blocks.append({ ReportBlock::Picture, {}, Tone::Plain, {}, {}, picture }); }
};
