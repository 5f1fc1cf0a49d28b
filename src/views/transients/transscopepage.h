#pragma once

#include "pages/scopereadout.h"
#include "pages/livepage.h"

#include <memory>

class Btn2;
class Btn3;
class QLabel;
class ScopeControls;
class ScopeWidget;

/// A page that shows the voltages of one transient record as a scope picture, with cursor, zoom and values.
class TransScopePage : public LivePage
{
    Q_OBJECT

public slots:
    void init_parameter() override;
    void retranslateUi() override;

protected:
    explicit TransScopePage(QWidget *parent);
    ~TransScopePage() override;

    /// Labels of the form are found by their names. To be called once, before setKeys().
    void setUp(ScopeWidget *scope, Btn2 *cursorButton, Btn3 *zoomButton, QLabel *scale);
    /// Copies what is to be shown; null shows no signal. The record need not live on.
    void showRecord(const __trans_data *record);
    ScopeControls &controls() { return *m_controls; }
    const __scope_data_ui &shown() const { return *m_data; }

    void showCurVal();
    void defaultZoom();
    void toggleCursor();
    void toggleZoom();
    void pressLeft();
    void pressRight();
    void pressUp();
    void pressDown();
    void releaseKey(int key) override;

private:
    void initScopeWidget();

    ScopeWidget *m_scope = nullptr;
    ScopeControls *m_controls = nullptr;
    std::unique_ptr<ScopeReadout> m_readout;
    std::unique_ptr<__scope_data_ui> m_data; // the currents stay 0
};
