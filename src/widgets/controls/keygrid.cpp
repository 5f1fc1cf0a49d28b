#include "widgets/controls/keygrid.h"

#include "widgets/charts/chartparts.h"
#include "widgets/controls/readingmarks.h"

#include <QPainter>

#include <cstdlib>
#include <iterator>

namespace {
/// One key: its row, its first column of eleven, how many it covers, and its sign in lower case.
struct GridKey
{
    int row;
    int column;
    int span;
    char sign;
};
} // namespace

// clang-format off
static const GridKey kKeys[] = {
    { 0, 0, 1, '1' }, { 0, 1, 1, '2' }, { 0, 2, 1, '3' }, { 0, 3, 1, '4' }, { 0, 4, 1, '5' }, { 0, 5, 1, '6' },
    { 0, 6, 1, '7' }, { 0, 7, 1, '8' }, { 0, 8, 1, '9' }, { 0, 9, 1, '0' }, { 0, 10, 1, '-' },
    { 1, 0, 1, 'q' }, { 1, 1, 1, 'w' }, { 1, 2, 1, 'e' }, { 1, 3, 1, 'r' }, { 1, 4, 1, 't' }, { 1, 5, 1, 'y' },
    { 1, 6, 1, 'u' }, { 1, 7, 1, 'i' }, { 1, 8, 1, 'o' }, { 1, 9, 1, 'p' }, { 1, 10, 1, '_' },
    { 2, 0, 1, 'a' }, { 2, 1, 1, 's' }, { 2, 2, 1, 'd' }, { 2, 3, 1, 'f' }, { 2, 4, 1, 'g' }, { 2, 5, 1, 'h' },
    { 2, 6, 1, 'j' }, { 2, 7, 1, 'k' }, { 2, 8, 1, 'l' }, { 2, 9, 1, ',' }, { 2, 10, 1, '.' },
    { 3, 0, 1, 'z' }, { 3, 1, 1, 'x' }, { 3, 2, 1, 'c' }, { 3, 3, 1, 'v' }, { 3, 4, 1, 'b' }, { 3, 5, 1, 'n' },
    { 3, 6, 1, 'm' }, { 3, 7, 1, '?' }, { 3, 9, 2, '<' },
};
// clang-format on
constexpr int kKeyCount = int(std::size(kKeys));
constexpr int kRows = 4;
constexpr int kColumnStep = 56; // pixels; a key of two columns is 104 wide
constexpr int kRowStep = 46;

KeyGrid::KeyGrid(QWidget *parent)
    : QWidget(parent), m_plain(QStringLiteral(":/key1_nom")), m_selected(QStringLiteral(":/key1_sel")),
      m_widePlain(QStringLiteral(":/key2_nom")), m_wideSelected(QStringLiteral(":/key2_sel"))
{ }

QChar KeyGrid::charAt(int index) const
{
    const QChar sign = QLatin1Char(kKeys[index].sign);
    return m_upper ? sign.toUpper() : sign;
}

QChar KeyGrid::currentChar() const
{
    return charAt(m_current);
}

bool KeyGrid::setCurrentChar(QChar sign)
{
    for (int i = 0; i < kKeyCount; ++i) {
        if (QLatin1Char(kKeys[i].sign) == sign.toLower()) {
            m_current = i;
            update();
            return true;
        }
    }
    return false;
}

void KeyGrid::exchangeChar()
{
    m_upper = !m_upper;
    update();
}

void KeyGrid::moveHorizontally(int step)
{
    int first = m_current;
    while (first > 0 && kKeys[first - 1].row == kKeys[m_current].row)
        --first;
    int last = m_current;
    while (last < kKeyCount - 1 && kKeys[last + 1].row == kKeys[m_current].row)
        ++last;
    m_current += step;
    if (m_current < first)
        m_current = last;
    else if (m_current > last)
        m_current = first;
    update();
}

void KeyGrid::moveVertically(int step)
{
    const int row = (kKeys[m_current].row + step + kRows) % kRows;
    const int middle = 2 * kKeys[m_current].column + kKeys[m_current].span; // twice the key's middle
    int best = -1;
    int bestDistance = 0;
    for (int i = 0; i < kKeyCount; ++i) {
        const int distance = std::abs(2 * kKeys[i].column + kKeys[i].span - middle);
        if (kKeys[i].row == row && (best < 0 || distance < bestDistance)) {
            best = i;
            bestDistance = distance;
        }
    }
    m_current = best;
    update();
}

void KeyGrid::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    ChartParts::setFontPixels(painter, 22);
    painter.setPen(Qt::white);
    for (int i = 0; i < kKeyCount; ++i) {
        const GridKey &key = kKeys[i];
        const bool chosen = i == m_current;
        const QRect place(key.column * kColumnStep, key.row * kRowStep, key.span > 1 ? 104 : 48, 40);
        painter.drawPixmap(place.topLeft(),
                           key.span > 1 ? (chosen ? m_wideSelected : m_widePlain) : (chosen ? m_selected : m_plain));
        painter.drawText(place, Qt::AlignCenter, charAt(i));
        if (chosen)
            ReadingMarks::selectPart(this, place);
    }
}
