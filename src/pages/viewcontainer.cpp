#include "pages/viewcontainer.h"

#include "widgets/controls/labellook.h"

#include <QStackedWidget>

ViewContainer::ViewContainer(_quvera_ui_type type, SaveIdentity identity, const LiveData &data,
                             std::vector<SubPage> pages, QWidget *parent)
    : FunctionPage(type, identity, parent), m_data(data), m_table(std::move(pages)), m_pages(m_table.size(), nullptr),
      m_stack(new QStackedWidget(this))
{
    resize(640, 448);
    LabelLook::setBackground(this, QStringLiteral("black"));
    m_stack->setObjectName(QStringLiteral("stackedWidget"));
    m_stack->setGeometry(0, 0, 640, 448);
}

LivePage *ViewContainer::makePage(int index)
{
    const SubPage &row = m_table[std::size_t(index)];
    LivePage *page = row.make(m_data);
    m_pages[std::size_t(index)] = page;
    m_stack->addWidget(page);
    connect(page, &Page::leave, this, &Page::leave);
    connect(page, &LivePage::run, this, &LivePage::run);
    connect(page, &LivePage::pause, this, &LivePage::pause);
    for (const Way &tie : row.ways)
        tie(this, page);
    // It stands where it would, had it been there since the run began.
    page->init_parameter();
    if (m_refreshed)
        page->updateDisplay(nullptr);
    if (!m_stopWatch.isEmpty())
        page->stopWatchChanged(m_stopWatch);
    if (!isRunning())
        page->setPause();
    pageMade(index);
    return page;
}

LivePage *ViewContainer::page(int index)
{
    LivePage *page = m_pages[std::size_t(index)];
    return page ? page : makePage(index);
}

LivePage *ViewContainer::currentPage() const
{
    return m_current < 0 ? nullptr : m_pages[std::size_t(m_current)];
}

void ViewContainer::showPage(int index)
{
    LivePage *next = page(index);
    m_current = index;
    aboutToShow(index);
    m_stack->setCurrentWidget(next);
    if (isVisible())
        next->setFocus();
}

void ViewContainer::forMade(const std::function<void(LivePage &)> &call) const
{
    for (LivePage *page : m_pages) {
        if (page)
            call(*page);
    }
}

void ViewContainer::setPause()
{
    FunctionPage::setPause();
    forMade([](LivePage &page) { page.setPause(); });
}

void ViewContainer::setContinue()
{
    FunctionPage::setContinue();
    forMade([](LivePage &page) { page.setContinue(); });
}

void ViewContainer::init_parameter()
{
    FunctionPage::init_parameter();
    m_stopWatch.clear();
    m_refreshed = false;
    initDisplayParam();
    forMade([](LivePage &page) { page.init_parameter(); });
}

void ViewContainer::retranslateUi()
{
    forMade([](LivePage &page) { page.retranslateUi(); });
}

void ViewContainer::updateDisplay(void *data)
{
    m_refreshed = true;
    forMade([&](LivePage &page) { page.updateDisplay(data); });
}

void ViewContainer::stopWatchChanged(const QString &text)
{
    m_stopWatch = text;
    forMade([&](LivePage &page) { page.stopWatchChanged(text); });
}

bool ViewContainer::pressKey(int key)
{
    return key == Qt::Key_F11 && FunctionPage::pressKey(key);
}

void ViewContainer::focusInEvent(QFocusEvent *event)
{
    if (LivePage *page = currentPage())
        page->setFocus();
    else
        FunctionPage::focusInEvent(event);
}

void ViewContainer::showEvent(QShowEvent *event)
{
    if (m_current < 0)
        enter();
    FunctionPage::showEvent(event);
}
