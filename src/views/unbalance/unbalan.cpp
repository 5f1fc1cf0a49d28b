#include "views/unbalance/unbalan.h"

#include "views/unbalance/unbalanmain.h"
#include "views/unbalance/unbalvectorpage.h"

unbalan::unbalan(const LiveData &data, QWidget *parent)
    : ViewContainer(UI_UNBALANCE, { 8, "Unbalance" }, data, parent), m_main(new UnbalanMain(data)),
      m_vector(new UnbalVectorPage(data))
{
    addPage(m_main);
    addPage(m_vector);
    connect(m_main, &UnbalanMain::goUnbalanVector, this, &unbalan::showUnbalanVector);
    connect(m_vector, &UnbalVectorPage::goUnbalanMain, this, &unbalan::showUnbalanMain);
}

void unbalan::showUnbalanMain()
{
    showPage(m_main);
}

void unbalan::showUnbalanVector()
{
    m_vector->updateDisplay(nullptr);
    showPage(m_vector);
}

QByteArray unbalan::pqaData() const
{
    return QByteArray(reinterpret_cast<const char *>(&shown().unbalance), int(sizeof(__unbalance_data)));
}
