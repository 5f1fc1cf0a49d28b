#include "setup/setuppane.h"
#include "ui_setuppane.h"

#include "widgets/controls/labellook.h"

#include <QCoreApplication>

SetupPane::SetupPane(const char *title, QWidget *parent)
    : LivePage(UI_SETUP, parent), m_title(title), m_ui(new Ui::SetupPane)
{
    m_ui->setupUi(this);
}

SetupPane::~SetupPane() = default;

void SetupPane::dressPane()
{
    LabelLook::dress(this);
}

void SetupPane::init_parameter()
{
    LivePage::init_parameter();
    stopRepeat();
    showSettings();
}

void SetupPane::retranslateUi()
{
    setObjectName(QString::fromLatin1(metaObject()->className())); // by now the page is whole
    LivePage::retranslateUi();
    setText(m_ui->title, QCoreApplication::translate(metaObject()->className(), m_title));
    showSettings();
}

std::vector<FrontKeys::Row> SetupPane::commonKeys()
{
    return { { Qt::Key_F5, nullptr, {}, {}, 0, {} } }; // nothing is held here
}
