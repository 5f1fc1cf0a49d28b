#pragma once

#include "pages/editorpage.h"
#include "settings/settingrow.h"
#include "settings/settingvalues.h"

#include <vector>

/// Working copy of some settings: what a page of Setup shows and steps until Ok. Nothing of it counts before store().
class SettingDraft
{
public:
    /// The settings of these keys (settings/settingrow.h).
    explicit SettingDraft(const std::vector<const char *> &keys);

    /// Takes what is in force.
    void load();
    /// Puts in force what was changed; all else stays as it is, also what stands outside the editing bounds.
    void store();
    /// The values of missing keys, within the editing bounds.
    void setDefaults();

    /// 0 for a key that is not one of these; setting it does nothing.
    double value(const char *key) const;
    int whole(const char *key) const { return qRound(value(key)); }
    /// Held to the editing bounds.
    void setValue(const char *key, double value);
    /// By so many steps, up to the editing bounds.
    void move(const char *key, int steps);

    /// A row that steps the copy of \a key and shows what \a text makes of it.
    EditorPage::Row row(const QString &name, const char *caption, const char *key,
                        const std::function<QString(double)> &text);

private:
    struct Copy
    {
        const SettingRow<SettingValues> *setting; // never null
        double value;
        double inForce; // when it was taken
    };
    Copy *find(const char *key);

    std::vector<Copy> m_copies;
};
