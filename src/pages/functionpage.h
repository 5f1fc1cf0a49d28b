#pragma once

#include "pages/livepage.h"

#include <QByteArray>

/// The page of one measuring function as the shell and the task see it. F11 saves it.
class FunctionPage : public LivePage
{
    Q_OBJECT

public:
    /// What a saved file is called and which layout its data has.
    struct SaveIdentity
    {
        int windowId;
        const char *defaultName;
    };

    FunctionPage(_quvera_ui_type type, SaveIdentity identity, QWidget *parent = nullptr);

    /// The record that a data file of this page holds; empty: a picture is all there is.
    virtual QByteArray pqaData() const { return {}; }

    /// The page is opened: a function with sub pages begins at its first.
    virtual void enter() { }
    /// The user has left for another page; Memory and the like only stand over this one.
    virtual void left() { }

signals:
    void taskPaused();
    void taskContinued();

protected:
    bool pressKey(int key) override;

private:
    void saveToFile();

    const SaveIdentity m_identity;
};
