#include "views/recorder/loggerparampage.h"

#include "model/nominalfrequency.h"
#include "settings/config_data.h"

namespace {

constexpr quint32 kFlicker = 0x10000000;

} // namespace

LoggerParamPage::LoggerParamPage(QWidget *parent)
    : RecordingParam({ QT_TRANSLATE_NOOP("LoggerParamPage", "Params"), 20, 48, 36, 190, 3, 206, 17, 32 },
                     RecordingKind::logger(), parent)
{
    std::vector<Box> boxes;
    for (int bit = 0; bit < LoggerParams::kGroups; ++bit)
        boxes.push_back({ { LoggerParams::name(bit), nullptr }, 1u << bit });
    setBoxes(std::move(boxes));
    for (int bit = 0; bit < LoggerParams::kGroups; ++bit) // as they stand in the file, in every language
        setCaption(bit, QString::fromUtf8(LoggerParams::name(bit)));
}

void LoggerParamPage::load()
{
    m_params.initCurTitle(m_settingConfig_g.channels());
    RecordingParam::load();
}

bool LoggerParamPage::offers(const Box &box) const
{
    if (box.bits == kFlicker && isNominal(m_settingConfig_g.getNomFreq(), 400.0))
        return false;
    std::size_t bit = 0;
    while (box.bits >> bit > 1)
        ++bit;
    return m_params.titles().at(bit) != nullptr;
}
