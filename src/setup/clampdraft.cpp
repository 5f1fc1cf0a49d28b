#include "setup/clampdraft.h"

#include "settings/config_data.h"

namespace {

/// Stores one number of a ratio, through the row of its key. What stands there already is not written again, nor held
/// to the bounds of editing: nobody edited it.
void store(const char *key, int value)
{
    const auto &row = *SettingConfig::row(key);
    if (m_settingConfig_g.value(row) != value)
        m_settingConfig_g.setValue(row, value);
}

} // namespace

void ClampDraft::changeClampPrev(Channel channel)
{
    if (Clamp *prev = clamp(channel)->prevNode)
        side(channel).clamps.setCurClamp(prev);
}

void ClampDraft::changeClampNext(Channel channel)
{
    if (Clamp *next = clamp(channel)->nextNode)
        side(channel).clamps.setCurClamp(next);
}

bool ClampDraft::addClamp(Channel channel, const Clamp &clamp)
{
    ClampIF &clamps = side(channel).clamps;
    if (clamps.findClamp(clamp.name()))
        return false;
    auto *added = new Clamp(clamp);
    added->setEditable(true);
    clamps.addClamp(added);
    clamps.setCurClamp(added);
    return true;
}

bool ClampDraft::editClamp(Channel channel, const Clamp &changed)
{
    const Clamp *same = side(channel).clamps.findClamp(changed.name());
    Clamp *chosen = clamp(channel);
    // Files may hold two of one name: the one that had it may keep it.
    if (same && same != chosen && changed.name() != chosen->name())
        return false;
    chosen->editClamp(changed);
    side(channel).clamps.setCurClamp(chosen);
    return true;
}

void ClampDraft::saveConfig()
{
    m_settingConfig_g.clamps()->copyFrom(m_phases.clamps);
    m_settingConfig_g.clampsN()->copyFrom(m_neutral.clamps);
    m_settingConfig_g.saveClampConfig();
    const struct
    {
        const char *numerator, *denominator, *selector;
        const RatioChoice &ratio;
    } rows[] = {
        { "RATIO_IFENZI", "RATIO_IFENMU", "RATIO_ICUSTOM", m_phases.ratioI },
        { "RATIO_VFENZI", "RATIO_VFENMU", "RATIO_VCUSTOM", m_phases.ratioV },
        { "RATIO_INFENZI", "RATIO_INFENMU", "RATIO_INCUSTOM", m_neutral.ratioI },
        { "RATIO_VNFENZI", "RATIO_VNFENMU", "RATIO_VNCUSTOM", m_neutral.ratioV },
    };
    for (const auto &row : rows) {
        store(row.numerator, row.ratio.numerator());
        store(row.denominator, row.ratio.denominator());
        store(row.selector, row.ratio.selector());
    }
}

void ClampDraft::exitConfig()
{
    const SettingValues &values = m_settingConfig_g.values();
    m_phases.clamps.copyFrom(*m_settingConfig_g.clamps());
    m_neutral.clamps.copyFrom(*m_settingConfig_g.clampsN());
    m_phases.ratioI = RatioChoice(values.ratioIFenzi, values.ratioIFenmu, values.ratioICustom);
    m_phases.ratioV = RatioChoice(values.ratioVFenzi, values.ratioVFenmu, values.ratioVCustom);
    m_neutral.ratioI = RatioChoice(values.ratioINFenzi, values.ratioINFenmu, values.ratioINCustom);
    m_neutral.ratioV = RatioChoice(values.ratioVNFenzi, values.ratioVNFenmu, values.ratioVNCustom);
}
