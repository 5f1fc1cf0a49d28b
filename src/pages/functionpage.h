#pragma once

#include "pages/livepage.h"

/// The page of one measuring function as the shell and the task see it. F11 saves it.
class FunctionPage : public LivePage
{
    Q_OBJECT

public:
    FunctionPage(_quvera_ui_type type, SaveIdentity identity, QWidget *parent = nullptr)
        : LivePage(type, parent), m_identity(identity)
    { }

    /// The page is opened: a function with sub pages begins at its first.
    virtual void enter() { }
    /// The user has left for another page; Memory and the like only stand over this one.
    virtual void left() { }
    SaveIdentity saveIdentity() const override { return m_identity; }

private:
    const SaveIdentity m_identity;
};
