#include "pages/channellabels.h"

#include "model/channelset.h"
#include "settings/config_data.h"
#include "settings/phasecolor.h"
#include "widgets/text/f_to_str.h"
#include "widgets/controls/labellook.h"

#include <QLabel>

#include <cmath>

namespace ChannelLabels {

namespace {

const char *const kSuffixes[kChannels] = { "L1", "L2", "L3", "N" };

void setText(QLabel *label, const QString &text)
{
    if (label && label->text() != text)
        label->setText(text);
}

} // namespace

const ChannelSet &channels()
{
    // A wiring outside the table leaves all fields as they are: no channel is had.
    static constexpr ChannelSet none = {};
    const ChannelSet *set = m_settingConfig_g.channels();
    return set ? *set : none;
}

LabelRow numberedRow(const QWidget *form, const char *pattern)
{
    LabelRow row;
    for (int c = 0; c < kChannels; ++c)
        row[c] = form->findChild<QLabel *>(QString::fromLatin1(pattern).arg(c + 1));
    return row;
}

void showHeaders(const LabelRow &row, const QString &suffix)
{
    if (!m_settingConfig_g.channels())
        return;
    const ChannelSet &set = channels();
    for (int c = 0; c < kChannels; ++c) {
        if (!set.has(c)) {
            setText(row[c], QString());
            continue;
        }
        setText(row[c], set.caption(c) + suffix);
        LabelLook::setColor(row[c], PhaseColor::color(c));
    }
}

void showPairHeaders(const LabelRow &row)
{
    if (!m_settingConfig_g.channels())
        return;
    const ChannelSet &set = channels();
    for (int c = 0; c < kChannels; ++c)
        setText(row[c],
                set.has(c) && !set.star() ? set.caption(c) + QLatin1Char('/') + QLatin1String(kSuffixes[c])
                    : set.has(c)          ? set.caption(c)
                                          : QString());
    showColors(row);
}

void showColors(const LabelRow &row)
{
    for (int c = 0; c < kChannels; ++c)
        LabelLook::setColor(row[c], PhaseColor::color(c));
}

void showValues(const LabelRow &row, const float *values, Format format)
{
    const ChannelSet &set = channels();
    for (int c = 0; c < kChannels; ++c) {
        if (set.has(c))
            setText(row[c], format(values[c]));
    }
}

void clearUnused(const LabelRow &row)
{
    if (!m_settingConfig_g.channels())
        return;
    const ChannelSet &set = channels();
    for (int c = 0; c < kChannels; ++c) {
        if (!set.has(c))
            setText(row[c], QString());
    }
}

void clear(const LabelRow &row)
{
    for (QLabel *label : row)
        setText(label, QString());
}

void showFrequency(QLabel *label, float frequency, const QString &unit)
{
    setText(label, F_to_Str::number_F(std::fabs(frequency)) + unit);
    LabelLook::setColor(label, frequency < 0 ? QColor(0x80, 0x80, 0x80) : QColor(Qt::white));
}

} // namespace ChannelLabels
