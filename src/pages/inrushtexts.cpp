#include "pages/inrushtexts.h"

#include "settings/config_data.h"
#include "settings/inrushinfo.h"

#include <algorithm>

QString InrushTexts::nomAmps(double ampsAtClamp)
{
    const InrushEditing &shown = m_settingConfig_g.derived().inrush;
    return QStringLiteral("%1 %2").arg(QString::number(ampsAtClamp * shown.shownPerAmp, 'f', shown.decimals),
                                       shown.unit);
}

QString InrushTexts::percent(int percent)
{
    return QStringLiteral("%1 %").arg(percent);
}

QString InrushTexts::duration(int index)
{
    const int seconds = InrushInfo::m_dura_time[std::clamp(index, 0, kLastDuration)].seconds;
    return seconds % 60 == 0 ? QString::number(seconds / 60) + QStringLiteral(" m")
                             : QString::number(seconds) + QStringLiteral(" s");
}
