#pragma once

#include "setup/settingdraft.h"

/// A set-up page of fields: it works on a copy of its settings, which Ok puts in force and Cancel drops. A page that is
/// left in any other way drops it too.
class SetupEditor : public EditorPage
{
    Q_OBJECT

public slots:
    void retranslateUi() override;

protected:
    enum Keys {
        OkCancel,
        DefaultOkCancel, // and the values of missing keys on F3
        DefaultBack, // Back puts the copy in force
    };

    SetupEditor(Keys keys, const Look &look, const std::vector<const char *> &settings, const KeyRepeat::Pace &pace,
                QWidget *parent);

    void load() override { m_draft.load(); }
    void store() override { m_draft.store(); }
    /// Into the working copy.
    virtual void initDefaultValues() { m_draft.setDefaults(); }
    SettingDraft &draft() { return m_draft; }

    std::vector<FrontKeys::Row> commonKeys() override;

private:
    void showDefaults();

    const Keys m_softKeys;
    SettingDraft m_draft;
};
