#include "views/mainssignaling/mainssignalingmain.h"
#include "ui_mainssignalingmain.h"

#include "settings/config_data.h"
#include "widgets/text/f_to_str.h"

namespace {

struct Row : MeterLine
{
    float (__mains_sig_data::*values)[kChannels];
    float scale;
    QString (*format)(float);
};

constexpr float kPercent = 100;

const Row kRows[] = {
    { "sig1", 84, QT_TRANSLATE_NOOP("MainsSignalingMain", "Sig 1(%)"), nullptr, &__mains_sig_data::signal1, kPercent,
      F_to_Str::number_2 },
    { "sig1mean", 132, QT_TRANSLATE_NOOP("MainsSignalingMain", "Sig 1(%1)"), &DisplayUnits::volt,
      &__mains_sig_data::signal1Mean, 1, F_to_Str::number_V },
    { "sig2", 188, QT_TRANSLATE_NOOP("MainsSignalingMain", "Sig 2(%)"), nullptr, &__mains_sig_data::signal2, kPercent,
      F_to_Str::number_2 },
    { "sig2mean", 236, QT_TRANSLATE_NOOP("MainsSignalingMain", "Sig 2(%1)"), &DisplayUnits::volt,
      &__mains_sig_data::signal2Mean, 1, F_to_Str::number_V },
    { "rms1", 292, QT_TRANSLATE_NOOP("MainsSignalingMain", "Urms\u00bd(%1)"), &DisplayUnits::volt,
      &__mains_sig_data::rms1, 1, F_to_Str::number_V },
    { "rms2", 340, QT_TRANSLATE_NOOP("MainsSignalingMain", "Irms\u00bd(%1)"), &DisplayUnits::ampere,
      &__mains_sig_data::rms2, 1, F_to_Str::number_A },
};

constexpr MeterGrid kGrid = { { 150, 120, 112, 24, 38, 16, 134, 20 }, 40, 30, 24 };

} // namespace

MainsSignalingMain::MainsSignalingMain(const LiveData &data, QWidget *parent)
    : MeterPage(UI_MAINS_SIG, data, parent), m_ui(new Ui::MainsSignalingMain)
{
    static const KeyRow<MainsSignalingMain> keys[] = {
        { Qt::Key_F2, QT_TRANSLATE_NOOP("MainsSignalingMain", "Events"), &MainsSignalingMain::goMainsSignalingEvent },
        { Qt::Key_F4, QT_TRANSLATE_NOOP("MainsSignalingMain", "Trend"), &MainsSignalingMain::goMainsSignalingTrend },
    };
    m_ui->setupUi(this);
    setRows(kGrid, kRows);
    setKeys(keys);
}

MainsSignalingMain::~MainsSignalingMain() = default;

void MainsSignalingMain::showTitle()
{
    MeterPage::showTitle();
    // The frequencies that the processor measures are those of the limit set in use.
    const monitor_limit *limits = m_limits_g.getLimitsInUsed();
    setText(m_ui->carriers,
            QStringLiteral("1: %1Hz  2: %2Hz")
                .arg(double(limits->frequency1.value), 0, 'f', 0)
                .arg(double(limits->frequency2.value), 0, 'f', 0));
}

void MainsSignalingMain::showCurParams()
{
    const __mains_sig_data &data = shown().mainsSignal;
    for (std::size_t i = 0; i < m_rows.size(); ++i) {
        float values[kChannels];
        for (int c = 0; c < kChannels; ++c)
            values[c] = (data.*kRows[i].values)[c] * kRows[i].scale;
        ChannelLabels::showValues(m_rows[i], values, kRows[i].format);
    }
    ChannelLabels::showFrequency(m_ui->freq, data.frequency);
}
