#include "views/unbalance/unbalan.h"

#include "model/displayrecords.h"
#include "views/unbalance/unbalanmain.h"
#include "views/unbalance/unbalvectorpage.h"

unbalan::unbalan(QWidget *parent)
    : ViewContainer(UI_UNBALANCE, { 8, "Unbalance" }, parent), m_main(new UnbalanMain), m_vector(new UnbalVectorPage)
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

void unbalan::initDisplayParam()
{
    // The address must stay: the task and the pages hold it for the life of the process.
    if (!g_unbalance_data)
        g_unbalance_data = new __unbalance_data;
    *g_unbalance_data = {};
}

QByteArray unbalan::pqaData() const
{
    return g_unbalance_data
        ? QByteArray(reinterpret_cast<const char *>(g_unbalance_data), int(sizeof(__unbalance_data)))
        : QByteArray();
}
