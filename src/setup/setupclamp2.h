#pragma once

#include "pages/editorpage.h"
#include "setup/clampdraft.h"

/// Chooses the clamps and the transformers' ratios, of the phases and of the neutral channel. Everything is a working
/// copy until Ok, the user's clamps too.
class SetupClamp2 : public EditorPage
{
    Q_OBJECT

public:
    explicit SetupClamp2(QWidget *parent = nullptr);

    const Clamp &currentClamp() { return *m_draft.clamp(m_channel); }
    /// Take what the clamp editor made. False: the name is taken, and everything is as before.
    bool addClamp(const Clamp &clamp);
    bool changeClamp(const Clamp &clamp);

signals:
    void goClampAdd();
    void goClampEdit();

protected:
    void load() override;
    void store() override { m_draft.saveConfig(); }

private:
    Row channelRow();
    Row clampRow();
    std::vector<Row> clampInfo();
    Row ratioRow(const char *name, const char *caption, RatioChoice ClampDraft::Side::*ratio);
    void editRatio(const char *caption, RatioChoice &ratio);
    void editClamp();
    void deleteClamp();
    bool refuseBuiltIn();

    ClampDraft m_draft;
    ClampDraft::Channel m_channel = ClampDraft::Phases;
};
