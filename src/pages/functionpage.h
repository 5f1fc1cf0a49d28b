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

public slots:
    virtual void free_parameter() { }

signals:
    void taskPaused();
    void taskContinued();

protected:
    bool pressKey(int key) override;

private:
    void saveToFile();

    const SaveIdentity m_identity;
};
