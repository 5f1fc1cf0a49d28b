#pragma once

#include "pages/editorpage.h"
#include "setup/limitdraft.h"
#include "setup/limitfields.h"

/// The values of one item of a limit set, each with its unit. Ok takes them over into the draft.
class LimitValuePage : public EditorPage
{
    Q_OBJECT

public:
    /// Both outlive the page.
    LimitValuePage(LimitDraft &draft, const LimitItem &item, QWidget *parent = nullptr);

public slots:
    void retranslateUi() override;

protected:
    void load() override;
    void store() override { m_draft.limit = m_limit; }

private:
    Row fieldRow(const LimitField &field);
    void changeLimitValue(const LimitField &field, int steps);
    void finish();
    void showKeys();

    LimitDraft &m_draft;
    monitor_limit m_limit; // working copy
};
