#include "pages/meterpage.h"

#include "settings/config_data.h"

#include <QCoreApplication>
#include <QLabel>

void MeterPage::init_parameter()
{
    LivePage::init_parameter();
    showTitle();
    showCurParams();
}

void MeterPage::retranslateUi()
{
    LivePage::retranslateUi();
    // Where the form has this label, it also brings the text to be translated.
    setText(findChild<QLabel *>(QStringLiteral("freq_t")),
            QCoreApplication::translate(metaObject()->className(), "Freq ="));
    showTitle();
}

void MeterPage::showTitle()
{
    showHeaders();
    showCaptions();
    for (const ChannelLabels::LabelRow &row : m_rows)
        ChannelLabels::clearUnused(row);
}

void MeterPage::showCaptions()
{
    for (const MeterLine *line : m_lines) {
        const QString caption = QCoreApplication::translate(metaObject()->className(), line->caption);
        setText(findChild<QLabel *>(QString::fromLatin1(line->name) + QLatin1String("_t")),
                line->unit ? caption.arg(m_settingConfig_g.units().*line->unit) : caption);
    }
}
