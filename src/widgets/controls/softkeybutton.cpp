#include "widgets/controls/softkeybutton.h"

#include "widgets/charts/chartparts.h"

#include <QPainter>

#include <algorithm>

static const QColor kSelected(0, 0, 0);
static const QColor kOther(0x40, 0x40, 0x40);

constexpr int kMargin = 4; // pixels at either side
constexpr int kGap = 6; // pixels between two choices
constexpr int kSmallestPixels = 9;

SoftKeyButton::SoftKeyButton(const Choices &choices, QWidget *parent)
    : QLabel(parent), m_choices(choices), m_flag(choices.initialFlag), m_offered(choices.list.size())
{
    setFixedSize(124, 34); // the button picture, which would repeat on more
}

void SoftKeyButton::setBtnFlag(int flag)
{
    if (m_flag == flag)
        return;
    m_flag = flag;
    update();
}

void SoftKeyButton::offer(int count)
{
    m_offered = std::clamp(count, 0, m_choices.list.size());
    update();
}

QStringList SoftKeyButton::texts() const
{
    QStringList texts;
    for (int i = 0; i < m_offered; ++i)
        texts << tr(m_choices.list.at(i).text);
    return texts;
}

QString SoftKeyButton::selectedText() const
{
    for (const Choice &choice : m_choices.list) {
        if (choice.flag == m_flag)
            return tr(choice.text);
    }
    return {};
}

QString SoftKeyButton::spokenText() const
{
    const QString caption = m_choices.caption ? tr(m_choices.caption) + QLatin1Char(' ') : QString();
    const QString selected = selectedText();
    return caption + texts().join(QStringLiteral(" / ")) + (selected.isEmpty() ? QString() : ": " + selected);
}

int SoftKeyButton::fittingPixels(const QStringList &texts, int width, int largest) const
{
    QFont wide = font();
    for (int pixels = largest; pixels > kSmallestPixels; --pixels) {
        wide.setPixelSize(pixels);
        const QFontMetrics metrics(wide);
        int needed = kGap * (texts.size() - 1);
        for (const QString &text : texts)
            needed += metrics.horizontalAdvance(text);
        if (needed <= width)
            return pixels;
    }
    return kSmallestPixels;
}

void SoftKeyButton::paintEvent(QPaintEvent *event)
{
    QLabel::paintEvent(event); // the button's picture, from the page's style sheet
    QPainter painter(this);
    const int usable = width() - 2 * kMargin;
    QRect line(kMargin, 0, usable, height());
    if (m_choices.caption) {
        const QString caption = tr(m_choices.caption);
        ChartParts::setFontPixels(painter, fittingPixels({ caption }, usable, 16));
        painter.setPen(kSelected);
        painter.drawText(QRect(kMargin, 1, usable, height() / 2), Qt::AlignCenter, caption);
        line = QRect(kMargin, height() / 2 - 1, usable, height() - height() / 2);
    }

    // Choices in columns as wide as their texts, spread over the line: nothing moves when the selection does.
    const QStringList choices = texts();
    ChartParts::setFontPixels(painter, fittingPixels(choices, usable, m_choices.caption ? 15 : 18));
    const QFontMetrics metrics = painter.fontMetrics();
    int total = 0;
    for (const QString &text : choices)
        total += metrics.horizontalAdvance(text);
    const double gap = double(usable - total) / (choices.size() + 1);
    double x = kMargin + gap;
    for (int i = 0; i < choices.size(); ++i) {
        painter.setPen(m_choices.list.at(i).flag == m_flag ? kSelected : kOther);
        const int wide = metrics.horizontalAdvance(choices.at(i));
        painter.drawText(QRectF(x, line.top(), wide + 1, line.height()), Qt::AlignLeft | Qt::AlignVCenter,
                         choices.at(i));
        x += wide + gap;
    }
}
