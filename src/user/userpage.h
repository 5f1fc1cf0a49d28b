#pragma once

#include "pages/pagestack.h"

/// The pages about the instrument itself, by the table in userpage.cpp.
class UserPage : public PageStack
{
    Q_OBJECT

public:
    /// The pages, in the order of the table.
    enum Row { Main, Date, Lan, WLan, Update };

    explicit UserPage(const LiveData &data, QWidget *parent = nullptr);

signals:
    /// Time or zone were set: the clock line is not to wait for its next turn.
    void refreshDTime();
};
