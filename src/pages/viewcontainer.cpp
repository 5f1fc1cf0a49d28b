#include "pages/viewcontainer.h"

#include "widgets/controls/labellook.h"

#include <QStackedWidget>

ViewContainer::ViewContainer(_quvera_ui_type type, SaveIdentity identity, QWidget *parent)
    : FunctionPage(type, identity, parent), m_stack(new QStackedWidget(this))
{
    resize(640, 448);
    LabelLook::setBackground(this, QStringLiteral("black"));
    m_stack->setObjectName(QStringLiteral("stackedWidget"));
    m_stack->setGeometry(0, 0, 640, 448);
}

void ViewContainer::addPage(ViewPage *page)
{
    m_stack->addWidget(page);
    m_pages.append(page);
    connect(page, &ViewPage::goScope, this, &ViewPage::goScope);
    connect(page, &ViewPage::goMenu, this, &ViewPage::goMenu);
    connect(page, &ViewPage::goMonitor, this, &ViewPage::goMonitor);
    connect(page, &ViewPage::goSetup, this, &ViewPage::goSetup);
    connect(page, &ViewPage::goMemory, this, &ViewPage::goMemory);
    connect(page, &ViewPage::run, this, &ViewPage::run);
    connect(page, &ViewPage::pause, this, &ViewPage::pause);
    connect(this, &FunctionPage::taskContinued, page, &ViewPage::setContinue);
    connect(this, &FunctionPage::taskPaused, page, &ViewPage::setPause);
}

ViewPage *ViewContainer::currentPage() const
{
    return qobject_cast<ViewPage *>(m_stack->currentWidget());
}

void ViewContainer::showPage(ViewPage *page)
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
    for (ViewPage *page : qAsConst(m_pages))
        page->init_parameter();
}

void ViewContainer::retranslateUi()
{
    for (ViewPage *page : qAsConst(m_pages))
        page->retranslateUi();
}

void ViewContainer::updateDisplay(void *data)
{
    for (ViewPage *page : qAsConst(m_pages))
        page->updateDisplay(data);
}

void ViewContainer::stopWatchChanged(const QString &text)
{
    for (ViewPage *page : qAsConst(m_pages))
        page->stopWatchChanged(text);
}

bool ViewContainer::pressKey(int key)
{
    return key == Qt::Key_F11 && FunctionPage::pressKey(key);
}

void ViewContainer::focusInEvent(QFocusEvent *event)
{
    if (ViewPage *page = currentPage())
        page->setFocus();
    else
        FunctionPage::focusInEvent(event);
}
