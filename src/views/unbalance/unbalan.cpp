#include "views/unbalance/unbalan.h"

#include "views/unbalance/unbalanmain.h"
#include "views/unbalance/unbalvectorpage.h"

unbalan::unbalan(const LiveData &data, QWidget *parent)
    : ViewContainer(UI_UNBALANCE, { 8, "Unbalance" }, data,
                    {
                        { make<UnbalanMain>, { way(&UnbalanMain::goUnbalanVector, Vector) } },
                        { make<UnbalVectorPage>, { way(&UnbalVectorPage::goUnbalanMain, Main) } },
                    },
                    parent)
{ }

void unbalan::aboutToShow(int row)
{
    if (row == Vector)
        page(Vector)->updateDisplay(nullptr);
}

QByteArray unbalan::pqaData() const
{
    return QByteArray(reinterpret_cast<const char *>(&shown().unbalance), int(sizeof(__unbalance_data)));
}
