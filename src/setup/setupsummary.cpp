#include "setup/setupsummary.h"

#include "settings/config_data.h"
#include "setup/joinpicture.h"

#include <QLabel>
#include <QPixmap>

namespace {

constexpr int kTop = 44, kPitch = 36; // pixels
constexpr int kHeadTop = 196, kInputTop = 228;
constexpr LabelGrid kWide = { 178, 0, 192, 22, 32, 20, 154, 20, 1 };
constexpr LabelGrid kPair = { 178, 240, 192, 22, 32, 20, 154, 20, 2 };
constexpr QRect kIcon = { 464, 48, 160, 110 };

QString ratioText(const TransformerRatio &ratio)
{
    return QStringLiteral("%1:%2").arg(ratio.numerator).arg(ratio.denominator);
}

/// A name that a user gave may be longer than its place: the end is left out.
void showName(QLabel *label, const QString &name)
{
    const QString fitted = label->fontMetrics().elidedText(name, Qt::ElideRight, label->width());
    if (label->text() != fitted)
        label->setText(fitted);
}

QString rangeText(const ClampInUse &clamp)
{
    return QStringLiteral("%1 A").arg(clamp.range);
}

} // namespace

SetupSummary::SetupSummary(const char *title, QWidget *parent) : SetupPane(title, parent), m_icon(new QLabel(this))
{
    const char *const rows[] = { "config", "vnom", "freq", "limits" };
    for (int i = 0; i < Rows; ++i) {
        const QString name = QString::fromLatin1(rows[i]);
        m_rows[i] = kWide.addRow(this, name + QLatin1String("_t"), { name }, kTop + i * kPitch);
    }
    m_heads = kPair.addRow(this, QStringLiteral("inputs_t"),
                           { QStringLiteral("phases_t"), QStringLiteral("neutral_t") }, kHeadTop);
    const char *const inputs[] = { "clamp", "i_ratio", "v_ratio", "i_range" };
    for (int i = 0; i < InputRows; ++i) {
        const QString name = QString::fromLatin1(inputs[i]);
        m_inputs[i] = kPair.addRow(this, name + QLatin1String("_t"), { name, name + QLatin1String("_n") },
                                   kInputTop + i * kPitch);
    }
    m_icon->setObjectName(QStringLiteral("join_icon"));
    m_icon->setGeometry(kIcon);
    dressPane();
}

void SetupSummary::retranslateUi()
{
    setText(m_rows[Config].caption, tr("Config:"));
    setText(m_rows[Vnom].caption, tr("Vnom:"));
    setText(m_rows[Freq].caption, tr("Freq:"));
    setText(m_rows[Limits].caption, tr("Limits:"));
    setText(m_heads.values[0], tr("Phases"));
    setText(m_heads.values[1], tr("Neutral"));
    setText(m_inputs[ClampName].caption, tr("Clamp"));
    setText(m_inputs[RatioI].caption, tr("I Ratio"));
    setText(m_inputs[RatioV].caption, tr("V Ratio"));
    setText(m_inputs[RangeI].caption, tr("Irange"));
    SetupPane::retranslateUi();
}

void SetupSummary::showSettings()
{
    const Derived &used = m_settingConfig_g.derived();
    setText(m_rows[Config].values[0], m_settingConfig_g.getJoinModeName());
    setText(m_rows[Vnom].values[0], QStringLiteral("%1 V").arg(used.nominalVolt));
    setText(m_rows[Freq].values[0], QStringLiteral("%1 Hz").arg(used.nominalFrequency, 0, 'f', 0));
    showName(m_rows[Limits].values[0], m_limits_g.activeLimitsName());
    const ClampInUse *const clamps[] = { &used.clamp, &used.clampN };
    const TransformerRatio *const currents[] = { &used.ratioI, &used.ratioIN };
    const TransformerRatio *const volts[] = { &used.ratioV, &used.ratioVN };
    for (std::size_t i = 0; i < 2; ++i) {
        showName(m_inputs[ClampName].values[i], clamps[i]->name);
        setText(m_inputs[RatioI].values[i], ratioText(*currents[i]));
        setText(m_inputs[RatioV].values[i], ratioText(*volts[i]));
        setText(m_inputs[RangeI].values[i], rangeText(*clamps[i]));
    }
    m_icon->setPixmap(QPixmap(JoinPicture::icon(m_settingConfig_g.getJoinMode())));
}
