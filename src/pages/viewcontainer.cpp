#include "pages/viewcontainer.h"

#include "widgets/controls/labellook.h"

#include <QStackedWidget>

ViewContainer::ViewContainer(_quvera_ui_type type, SaveIdentity identity, const LiveData &data, QWidget *parent)
    : FunctionPage(type, identity, parent), m_data(data), m_stack(new QStackedWidget(this))
{
    resize(640, 448);
    LabelLook::setBackground(this, QStringLiteral("black"));
    m_stack->setObjectName(QStringLiteral("stackedWidget"));
    m_stack->setGeometry(0, 0, 640, 448);
}

void ViewContainer::addPage(LivePage *page)
{
    m_stack->addWidget(page);
    m_pages.append(page);
    connect(page, &Page::leave, this, &Page::leave);
    connect(page, &LivePage::run, this, &LivePage::run);
    connect(page, &LivePage::pause, this, &LivePage::pause);
    connect(this, &FunctionPage::taskContinued, page, &LivePage::setContinue);
    connect(this, &FunctionPage::taskPaused, page, &LivePage::setPause);
}

LivePage *ViewContainer::currentPage() const
{
    return qobject_cast<LivePage *>(m_stack->currentWidget());
}

void ViewContainer::showPage(LivePage *page)
{
    m_stack->setCurrentWidget(page);
    if (isVisible())
        page->setFocus();
}

void ViewContainer::enterFirstPage()
{
    if (!m_pages.isEmpty())
        showPage(m_pages.first());
}

void ViewContainer::init_parameter()
{
    initDisplayParam();
    for (LivePage *page : qAsConst(m_pages))
        page->init_parameter();
}

void ViewContainer::retranslateUi()
{
    for (LivePage *page : qAsConst(m_pages))
        page->retranslateUi();
}

void ViewContainer::updateDisplay(void *data)
{
    for (LivePage *page : qAsConst(m_pages))
        page->updateDisplay(data);
}

void ViewContainer::stopWatchChanged(const QString &text)
{
    for (LivePage *page : qAsConst(m_pages))
        page->stopWatchChanged(text);
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
