#include "setup/setupeditor.h"

SetupEditor::SetupEditor(Keys keys, const Look &look, const std::vector<const char *> &settings,
                         const KeyRepeat::Pace &pace, QWidget *parent)
    : EditorPage(UI_SETUP, look, pace, parent), m_softKeys(keys), m_draft(settings)
{ }

std::vector<FrontKeys::Row> SetupEditor::commonKeys()
{
    std::vector<FrontKeys::Row> rows;
    if (m_softKeys != OkCancel)
        rows.push_back({ Qt::Key_F3, nullptr, [this] { showDefaults(); }, {}, 0, {} });
    if (m_softKeys == DefaultBack) {
        rows.push_back({ Qt::Key_F5, nullptr, [this] { ok(); }, {}, 0, {} });
    } else {
        rows.push_back({ Qt::Key_F4, nullptr, [this] { ok(); }, {}, 0, {} });
        rows.push_back({ Qt::Key_F5, nullptr, [this] { cancel(); }, {}, 0, {} });
    }
    for (FrontKeys::Row &row : EditorPage::commonKeys())
        rows.push_back(std::move(row));
    return rows;
}

void SetupEditor::retranslateUi()
{
    EditorPage::retranslateUi();
    if (m_softKeys != OkCancel)
        setKeyCaption(3, tr("Default"));
    if (m_softKeys != DefaultBack)
        setKeyCaption(4, tr("Ok"));
    setKeyCaption(5, m_softKeys == DefaultBack ? tr("Back") : tr("Cancel"));
}

void SetupEditor::showDefaults()
{
    stopRepeat();
    initDefaultValues();
    showRows();
}
