#pragma once

#include "pages/scopeformpage.h"

/// A page that shows the voltages of one transient record as a scope picture.
class TransScopePage : public ScopeFormPage
{
    Q_OBJECT

public slots:
    void init_parameter() override;
    void retranslateUi() override;

protected:
    explicit TransScopePage(QWidget *parent);

    /// Copies what is to be shown; null shows no signal. The record need not live on.
    void showRecord(const __trans_data *record);
};
