#include "report/plot.h"

#include <QLocale>

#include <algorithm>
#include <cmath>

double roundStep(double range, int count)
{
    if (!(range > 0) || !std::isfinite(range))
        return 1;
    const double raw = range / count;
    const double power = std::pow(10.0, std::floor(std::log10(raw)));
    for (const double step : { 1.0, 2.0, 5.0 }) {
        if (raw <= step * power)
            return step * power;
    }
    return 10 * power;
}

int decimalsOf(double step)
{
    return std::max(0, int(-std::floor(std::log10(step) + 1e-9)));
}

namespace {

/// About as wide as a text is drawn: whoever reads the page has fonts of their own.
double widthOf(const QString &text)
{
    constexpr double kLetter = 6.5;
    constexpr ushort kWide = 0x1100; // from here on signs of East Asia, as wide as they are high
    double width = 0;
    for (const QChar sign : text)
        width += sign.unicode() < kWide ? kLetter : Drawing::kTextHeight;
    return width;
}

} // namespace

Plot::Plot(Drawing *drawing, double height, const QString &title)
    : m_drawing(drawing), m_height(height), m_legendRight(Drawing::kWidth - kRight)
{
    drawing->height = height;
    drawing->title = title;
    drawing->text(Ink::Text, { kLeft, kTop - 10 }, title);
}

void Plot::setRangeX(double from, double to)
{
    m_x0 = from;
    m_x1 = to > from ? to : from + 1;
}

void Plot::setRangeY(double from, double to, const QString &unit, const QLocale &locale)
{
    constexpr int kMarks = 5;
    constexpr double kLeast = 1e-6; // of the value itself: less is no range
    if (!(to - from > kLeast * std::max(std::abs(from), std::abs(to)))) {
        const double room = std::max(std::abs(from) * 0.01, 0.5);
        from -= room;
        to += room;
    }
    const double step = roundStep(to - from, kMarks);
    m_y0 = std::floor(from / step) * step;
    m_y1 = std::ceil(to / step) * step;
    const int decimals = decimalsOf(step);
    const int marks = int(std::lround((m_y1 - m_y0) / step));
    for (int i = 0; i <= marks; ++i) {
        const double y = m_y0 + i * step;
        const double height = at(m_x0, y).y();
        m_drawing->line(Ink::Grid, { { left(), height }, { right(), height } });
        m_drawing->text(Ink::Weak, { kLeft - 5, height + 4 }, locale.toString(y, 'f', decimals), Shape::Right);
    }
    m_drawing->text(Ink::Weak, { kLeft - 5, kTop - 10 }, unit, Shape::Right);
}

void Plot::markX(double x, const QString &text, bool line)
{
    const double place = at(x, m_y0).x();
    if (line)
        m_drawing->line(Ink::Grid, { { place, top() }, { place, bottom() } });
    m_drawing->text(Ink::Weak, { place, bottom() + 15 }, text, Shape::Middle);
}

void Plot::frame()
{
    m_drawing->line(Ink::Frame, { { left(), top() }, { left(), bottom() }, { right(), bottom() } });
}

void Plot::legend(Ink ink, const QString &text)
{
    constexpr double kGap = 14;
    m_drawing->text(ink, { m_legendRight, kTop - 10 }, text, Shape::Right);
    m_legendRight -= widthOf(text) + kGap;
}

QPointF Plot::at(double x, double y) const
{
    const double across = std::clamp((x - m_x0) / (m_x1 - m_x0), 0.0, 1.0);
    const double up = std::clamp((y - m_y0) / (m_y1 - m_y0), 0.0, 1.0);
    return { left() + across * (right() - left()), bottom() - up * (bottom() - top()) };
}

void Plot::limit(double y, const QString &text)
{
    if (!showsY(y))
        return;
    const double height = at(m_x0, y).y();
    m_drawing->line(Ink::Limit, { { left(), height }, { right(), height } }, true);
    m_drawing->text(Ink::Limit, { right() - 3, height - 3 }, text, Shape::Right);
}
