#pragma once

#include "pages/editorpage.h"

/// The functions that have a set-up of their own: Enter opens the selected one.
class SetupFunctions : public EditorPage
{
    Q_OBJECT

public:
    explicit SetupFunctions(QWidget *parent = nullptr);

signals:
    void goSetupKFactor();
    void goSetupFlicker();
    void goSetupTransients();
    void goSetupInrush();
    void goSetupMainsSig();
    void goBack();

private:
    Row entry(const QString &name, const char *caption, void (SetupFunctions::*open)());
};
