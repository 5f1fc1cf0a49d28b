#pragma once

#include <QPointF>

#include <QString>
#include <QVector>

/// What a shape is drawn with; each writer has its colours for them, by day and by night.
enum class Ink : quint8 { Frame, Grid, Text, Weak, L1, L2, L3, N, Limit, Good, Bad };

/// Of an input: 0 to 2 the phases, 3 N.
inline Ink inkOfInput(int input)
{
    constexpr Ink kInks[] = { Ink::L1, Ink::L2, Ink::L3, Ink::N };
    return kInks[qBound(0, input, 3)];
}

/// A part of a drawing.
struct Shape
{
    enum Kind : quint8 {
        Line, // through all points
        Area, // inside them
        Dot,
        Text
    };
    enum Anchor : quint8 { Left, Middle, Right };

    Kind kind = Line;
    Ink ink = Ink::Frame;
    QVector<QPointF> points;
    QString text; // or what a dot means
    QString link; // to an anchor of the report
    Anchor anchor = Left;
    bool dashed = false;
};

/// A picture of lines, made once and written as SVG or painted. Its unit is a hundredth of the width of a page's text,
/// divided by 7.2: 720 are that width.
struct Drawing
{
    static constexpr double kWidth = 720;
    static constexpr double kTextHeight = 11;

    double height = 0;
    QString title; // said to those who do not see it, and above it
    QVector<Shape> shapes;

    void line(Ink ink, const QVector<QPointF> &points, bool dashed = false)
    {
        shapes.append({ Shape::Line, ink, points, {}, {}, Shape::Left, dashed });
    }
    void area(Ink ink, const QVector<QPointF> &points)
    {
        shapes.append({ Shape::Area, ink, points, {}, {}, Shape::Left, false });
    }
    void dot(Ink ink, const QPointF &at, const QString &meaning, const QString &link)
    {
        shapes.append({ Shape::Dot, ink, QVector<QPointF> { at }, meaning, link, Shape::Left, false });
    }
    void text(Ink ink, const QPointF &at, const QString &text, Shape::Anchor anchor = Shape::Left)
    {
        shapes.append({ Shape::Text, ink, QVector<QPointF> { at }, text, {}, anchor, false });
    }
};
