#include "setup/setuplimits.h"

#include "settings/config_data.h"
#include "setup/limitfields.h"
#include "setup/limitharmpage.h"
#include "setup/limititemspage.h"
#include "setup/limitvaluepage.h"
#include "setup/setuplimitmenu.h"

SetupLimits::SetupLimits(const LiveData &data, QWidget *parent) : ViewContainer(UI_SETUP, {}, data, table(this), parent)
{ }

std::vector<ViewContainer::SubPage> SetupLimits::table(SetupLimits *page)
{
    std::vector<SubPage> pages {
        { make<SetupLimitMenu>,
          { pass(&SetupLimitMenu::closed, &SetupLimits::closed),
            pass(&SetupLimitMenu::showDetailItem, &SetupLimits::openSet) } },
        { [page](const LiveData &) { return new LimitItemsPage(page->m_draft); },
          { way(&LimitItemsPage::stored, Menu), way(&LimitItemsPage::cancelled, Menu),
            pass(&LimitItemsPage::editLimits, &SetupLimits::openItem) } },
    };
    for (const LimitItem &item : limitItems()) {
        if (item.fields.empty())
            pages.push_back({ [page](const LiveData &) { return new LimitHarmPage(page->m_draft); },
                              { way(&LimitHarmPage::stored, Items), way(&LimitHarmPage::cancelled, Items) } });
        else
            pages.push_back({ [page, &item](const LiveData &) { return new LimitValuePage(page->m_draft, item); },
                              { way(&LimitValuePage::stored, Items), way(&LimitValuePage::cancelled, Items) } });
    }
    return pages;
}

void SetupLimits::init_parameter()
{
    ViewContainer::init_parameter();
    if (currentIndex() != Menu)
        showPage(Menu);
}

void SetupLimits::openSet()
{
    const QString name = made<SetupLimitMenu>(Menu)->selectedName();
    if (!m_limits_g.getLimits(&m_draft.limit, name))
        return;
    m_draft.name = name;
    m_draft.editable = !SetupLimitMenu::isBuiltIn(name);
    page(Items)->init_parameter(); // from the first item on
    showPage(Items);
}

void SetupLimits::aboutToShow(int row)
{
    if (row >= FirstItem)
        page(row)->init_parameter(); // takes the draft
    else if (row == Items)
        page(Items)->retranslateUi(); // values changed
}
