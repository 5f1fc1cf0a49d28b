#include "views/unbalance/unbalvectorpage.h"
#include "ui_unbalvectorpage.h"

#include "settings/config_data.h"
#include "settings/phasecolor.h"
#include "views/unbalance/unbalancevalues.h"
#include "widgets/text/f_to_str.h"
#include "widgets/controls/labellook.h"

#include <algorithm>

namespace {

enum Selector { AllVoltages = 1, AllCurrents = 2, FirstPhase = 3 };

using SetAngle = void (VectorChart::*)(double, bool);

/// Of the three voltages, then of the three currents.
constexpr SetAngle kSetAngle[2][3] = {
    { &VectorChart::setAngleU1, &VectorChart::setAngleU2, &VectorChart::setAngleU3 },
    { &VectorChart::setAngleA1, &VectorChart::setAngleA2, &VectorChart::setAngleA3 },
};

const char *const kCaptions[2][3] = {
    { QT_TRANSLATE_NOOP("UnbalVectorPage", "U1fund(%1):"), QT_TRANSLATE_NOOP("UnbalVectorPage", "U2fund(%1):"),
      QT_TRANSLATE_NOOP("UnbalVectorPage", "U3fund(%1):") },
    { QT_TRANSLATE_NOOP("UnbalVectorPage", "I1fund(%1):"), QT_TRANSLATE_NOOP("UnbalVectorPage", "I2fund(%1):"),
      QT_TRANSLATE_NOOP("UnbalVectorPage", "I3fund(%1):") },
};

const char *const kAngleCaptions[3] = {
    QT_TRANSLATE_NOOP("UnbalVectorPage", "Ф1(°):"),
    QT_TRANSLATE_NOOP("UnbalVectorPage", "Ф2(°):"),
    QT_TRANSLATE_NOOP("UnbalVectorPage", "Ф3(°):"),
};

} // namespace

UnbalVectorPage::UnbalVectorPage(const LiveData &data, QWidget *parent)
    : LivePage(UI_UNBALANCE, parent), m_data(data), m_ui(new Ui::UnbalVectorPage)
{
    static const KeyRow<UnbalVectorPage> keys[] = {
        { Qt::Key_F1, nullptr, &UnbalVectorPage::nextSelector },
        { Qt::Key_F4, QT_TRANSLATE_NOOP("UnbalVectorPage", "Back"), &UnbalVectorPage::goUnbalanMain },
    };
    m_ui->setupUi(this);
    LabelLook::dress(this);
    m_captions = labels("v%1");
    m_values = labels("v%1_v");
    m_angleCaptions = labels("L%1");
    m_angles = labels("L%1_V");
    setKeys(keys);
}

UnbalVectorPage::~UnbalVectorPage() = default;

UnbalVectorPage::Places UnbalVectorPage::labels(const char *pattern) const
{
    Places row;
    for (int i = 0; i < kPlaces; ++i)
        row[i] = findChild<QLabel *>(QString::fromLatin1(pattern).arg(i + 1));
    return row;
}

void UnbalVectorPage::init_parameter()
{
    LivePage::init_parameter();
    set_vectorFlag();
    m_selector = AllVoltages;
    initvectorFlag();
    showTitle();
    showCurParams();
}

void UnbalVectorPage::retranslateUi()
{
    LivePage::retranslateUi();
    setText(m_ui->freq, tr("Freq ="));
    showTitle();
}

void UnbalVectorPage::nextSelector()
{
    m_selector = m_selector >= m_maximum ? int(AllVoltages) : m_selector + 1;
    initvectorFlag();
    showTitle();
    showCurParams();
}

void UnbalVectorPage::set_vectorFlag()
{
    // A wiring outside the table leaves the maximum as it is.
    if (const ChannelSet *set = m_settingConfig_g.channels())
        m_maximum = set->vectorSelectors();
}

void UnbalVectorPage::initvectorFlag()
{
    m_ui->btn_f1->setBtnFlag(m_selector);
}

/// What the selector shows, from top to bottom.
std::vector<UnbalVectorPage::Vector> UnbalVectorPage::vectors() const
{
    if (m_selector >= FirstPhase) {
        const int phase = std::min(m_selector - FirstPhase, kPlaces - 1);
        return { { false, phase }, { true, phase } };
    }
    std::vector<Vector> all;
    for (int phase = 0; phase < kPlaces; ++phase) {
        if (ChannelLabels::channels().has(phase))
            all.push_back({ m_selector == AllCurrents, phase });
    }
    return all;
}

bool UnbalVectorPage::showsSequences() const
{
    return m_selector < FirstPhase && UnbalanceValues::hasSequences();
}

void UnbalVectorPage::showTitle()
{
    const DisplayUnits &units = m_settingConfig_g.units();
    const std::vector<Vector> shown = vectors();
    for (std::size_t i = 0; i < kPlaces; ++i) {
        if (i >= shown.size()) {
            for (QLabel *label : { m_captions[i], m_values[i], m_angleCaptions[i], m_angles[i] })
                setText(label, QString());
            continue;
        }
        const Vector &vector = shown[i];
        setText(m_captions[i],
                tr(kCaptions[vector.current][vector.phase]).arg(vector.current ? units.ampere : units.volt));
        setText(m_angleCaptions[i], tr(kAngleCaptions[i]));
        for (QLabel *label : { m_captions[i], m_values[i], m_angleCaptions[i], m_angles[i] })
            LabelLook::setColor(label, PhaseColor::color(vector.phase));
    }
    setText(m_ui->neg, showsSequences() ? tr("Neg.") : QString());
    setText(m_ui->zero, showsSequences() ? tr("Zero") : QString());
    if (!showsSequences()) {
        setText(m_ui->neg_v, QString());
        setText(m_ui->zero_v, QString());
    }
}

void UnbalVectorPage::showCurParams()
{
    const __unbalance_data &data = m_data.shown().unbalance;
    const std::vector<Vector> shown = vectors();
    for (std::size_t i = 0; i < shown.size(); ++i) {
        const auto [current, phase] = shown[i];
        setText(m_values[i],
                current ? F_to_Str::number_A(data.currentFundamental[phase])
                        : F_to_Str::number_V(data.voltageFundamental[phase]));
        setText(m_angles[i], F_to_Str::number_Ang(current ? data.currentAngle[phase] : data.voltageAngle[phase]));
    }
    if (showsSequences()) {
        const bool current = m_selector == AllCurrents;
        const float negative = current ? data.currentNegativeRatio : data.voltageNegativeRatio;
        const float zero = current ? data.currentZeroRatio : data.voltageZeroRatio;
        setText(m_ui->neg_v, F_to_Str::number_2(negative) + QLatin1Char('%'));
        setText(m_ui->zero_v, F_to_Str::number_2(zero) + QLatin1Char('%'));
    }
    ChannelLabels::showFrequency(m_ui->freq_v, UnbalanceValues::signedFrequency(m_data.shown()));
    showChart();
}

void UnbalVectorPage::showChart()
{
    bool visible[2][kPlaces] = {};
    for (const Vector &vector : vectors())
        visible[vector.current][vector.phase] = true;
    const __unbalance_data &data = m_data.shown().unbalance;
    const float *angles[] = { data.voltageAngle, data.currentAngle };
    for (int kind = 0; kind < 2; ++kind) {
        for (int phase = 0; phase < kPlaces; ++phase)
            (m_ui->vector_chart->*kSetAngle[kind][phase])(double(angles[kind][phase]), visible[kind][phase]);
    }
    m_ui->vector_chart->update();
}
