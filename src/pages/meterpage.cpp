#include "pages/meterpage.h"

#include "settings/config_data.h"
#include "widgets/controls/labellook.h"

#include <QCoreApplication>
#include <QLabel>

void MeterPage::addLine(const MeterGrid &grid, const MeterLine &line, const char *fourth)
{
    const LabelGrid::Row row = grid.rows.addChannels(this, QString::fromLatin1(line.name), line.top, fourth);
    m_lines.push_back(&line);
    m_captions.push_back(row.caption);
    m_rows.push_back(row.values);
}

void MeterPage::finishRows(const MeterGrid &grid)
{
    m_headers = grid.rows.addHeaders(this, grid.headerTop, grid.headerHeight, grid.headerSize);
    LabelLook::dress(this);
}

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
    if (auto *frequency = findChild<QLabel *>(QStringLiteral("freq_t")))
        setText(frequency, QCoreApplication::translate(metaObject()->className(), "Freq ="));
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
    for (std::size_t i = 0; i < m_lines.size(); ++i) {
        const MeterLine &line = *m_lines[i];
        const QString caption = QCoreApplication::translate(metaObject()->className(), line.caption);
        setText(m_captions[i], line.unit ? caption.arg(m_settingConfig_g.units().*line.unit) : caption);
    }
}
