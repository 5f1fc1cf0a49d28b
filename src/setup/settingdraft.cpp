#include "setup/settingdraft.h"

#include "settings/config_data.h"

#include <algorithm>
#include <cstring>

SettingDraft::SettingDraft(const std::vector<const char *> &keys)
{
    for (const char *key : keys) {
        if (const auto *setting = SettingConfig::row(key))
            m_copies.push_back({ setting, 0.0, 0.0 });
    }
    load();
}

SettingDraft::Copy *SettingDraft::find(const char *key)
{
    const auto found = std::find_if(m_copies.begin(), m_copies.end(),
                                    [key](const Copy &copy) { return strcmp(copy.setting->key, key) == 0; });
    return found == m_copies.end() ? nullptr : &*found;
}

void SettingDraft::load()
{
    for (Copy &copy : m_copies)
        copy.value = copy.inForce = m_settingConfig_g.value(*copy.setting);
}

void SettingDraft::store()
{
    for (const Copy &copy : m_copies) {
        if (copy.value != copy.inForce)
            m_settingConfig_g.setValue(*copy.setting, copy.value);
    }
}

void SettingDraft::setDefaults()
{
    for (Copy &copy : m_copies)
        setValue(copy.setting->key, SettingText::toDouble(QLatin1String(copy.setting->defaultText)));
}

double SettingDraft::value(const char *key) const
{
    const Copy *copy = const_cast<SettingDraft *>(this)->find(key);
    return copy ? copy->value : 0.0;
}

void SettingDraft::setValue(const char *key, double value)
{
    if (Copy *copy = find(key))
        copy->value = m_settingConfig_g.editRange(*copy->setting).held(value);
}

void SettingDraft::move(const char *key, int steps)
{
    if (Copy *copy = find(key))
        copy->value = m_settingConfig_g.editRange(*copy->setting).moved(copy->value, steps);
}

EditorPage::Row SettingDraft::row(const QString &name, const char *caption, const char *key,
                                  const std::function<QString(double)> &text)
{
    return {
        name, caption, [this, key, text] { return text(value(key)); }, [this, key](int steps) { move(key, steps); },
        {},   {}
    };
}
