#include "pages/livepage.h"

#include <QLabel>

LivePage::LivePage(_quvera_ui_type type, QWidget *parent) : Page(type, parent) { }

void LivePage::retranslateUi()
{
    Page::retranslateUi();
    showHold();
}

void LivePage::showHold()
{
    if (!hasOwnKey(Qt::Key_F5))
        setKeyCaption(5, m_running ? tr("Hold") : tr("Run"));
}

void LivePage::setPause()
{
    m_running = false;
    showHold();
}

void LivePage::setContinue()
{
    m_running = true;
    showHold();
}

void LivePage::stopWatchChanged(const QString &text)
{
    setText(findChild<QLabel *>(QStringLiteral("stop_watch")), text);
}

void LivePage::init_parameter()
{
    m_running = true;
    showHold();
}

bool LivePage::pressKey(int key)
{
    if (key != Qt::Key_F5 || hasOwnKey(key))
        return Page::pressKey(key);
    m_running ? emit pause() : emit run();
    return true;
}
