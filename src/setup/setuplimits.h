#pragma once

#include "pages/viewcontainer.h"
#include "setup/limitdraft.h"

/// The set-up of the limits: the list of sets, the items of one, and a page of values for each item. It begins anew
/// each time it comes on top.
class SetupLimits : public ViewContainer
{
    Q_OBJECT

public:
    enum Row { Menu, Items, FirstItem }; // from there on the pages of limitItems()

    explicit SetupLimits(const LiveData &data, QWidget *parent = nullptr);

public slots:
    void init_parameter() override;

signals:
    void closed(); // a set was chosen, or not

protected:
    void aboutToShow(int row) override;

private:
    static std::vector<SubPage> table(SetupLimits *page);
    void openSet();
    void openItem(int item) { showPage(FirstItem + item); }

    LimitDraft m_draft;
};
