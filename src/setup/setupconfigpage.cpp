#include "setup/setupconfigpage.h"

#include "settings/config_data.h"
#include "setup/joinitem.h"

namespace {

constexpr int kLeft = 20, kTop = 44; // of the first item, pixels
constexpr int kPitchX = 308, kPitchY = 178;
const KeyRepeat::Pace kSingle { 0, { 1 } };

} // namespace

SetupConfigPage::SetupConfigPage(QWidget *parent)
    : SetupPane(QT_TRANSLATE_NOOP("SetupConfigPage", "JOIN CONFIG"), parent), m_page(new QLabel(this))
{
    static const KeyRow<SetupConfigPage> keys[] = {
        { Qt::Key_F1, QT_TRANSLATE_NOOP("SetupConfigPage", "Page 1"), &SetupConfigPage::showPage1 },
        { Qt::Key_F2, QT_TRANSLATE_NOOP("SetupConfigPage", "Page 2"), &SetupConfigPage::showPage2 },
        { Qt::Key_F3, QT_TRANSLATE_NOOP("SetupConfigPage", "Page 3"), &SetupConfigPage::showPage3 },
        { Qt::Key_F5, QT_TRANSLATE_NOOP("SetupConfigPage", "Back"), &SetupConfigPage::goSetupMain },
        { Qt::Key_Enter, nullptr, &SetupConfigPage::showDetail },
        { Qt::Key_Left, nullptr, &SetupConfigPage::moveColumn, -1, kSingle },
        { Qt::Key_Right, nullptr, &SetupConfigPage::moveColumn, 1, kSingle },
        { Qt::Key_Up, nullptr, &SetupConfigPage::moveRow, -1, kSingle },
        { Qt::Key_Down, nullptr, &SetupConfigPage::moveRow, 1, kSingle },
    };
    for (int i = 0; i < kPerPage; ++i) {
        JoinItem *item = m_items[std::size_t(i)] = new JoinItem(QStringLiteral("join%1").arg(i + 1), this);
        item->move(kLeft + i % kColumns * kPitchX, kTop + i / kColumns * kPitchY);
    }
    m_page->setObjectName(QStringLiteral("page"));
    m_page->setGeometry(560, 4, 64, 30);
    m_page->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    dressPane();
    setKeys(keys);
}

void SetupConfigPage::init_parameter()
{
    m_selected = m_settingConfig_g.getJoinMode();
    SetupPane::init_parameter();
}

void SetupConfigPage::select(int joinMode)
{
    if (!channelSet(joinMode))
        return; // behind an end
    m_selected = joinMode;
    showSettings();
}

void SetupConfigPage::showSettings()
{
    const int page = (m_selected - 1) / kPerPage;
    for (int i = 0; i < kPerPage; ++i) {
        const int mode = page * kPerPage + i + 1;
        m_items[std::size_t(i)]->showJoinMode(mode, mode == m_settingConfig_g.values().joinMode);
        m_items[std::size_t(i)]->setSelected(mode == m_selected);
    }
    setText(m_page, QStringLiteral("%1/%2").arg(page + 1).arg(kPages));
}
