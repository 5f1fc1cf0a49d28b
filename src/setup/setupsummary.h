#pragma once

#include "pages/labelgrid.h"
#include "setup/setuppane.h"

class QLabel;

/// The set-up in use at a glance, with the diagram of the wiring: what both main pages of Setup show. They differ in
/// their soft keys.
class SetupSummary : public SetupPane
{
    Q_OBJECT

public slots:
    void retranslateUi() override;

protected:
    /// \a title is to be translated.
    SetupSummary(const char *title, QWidget *parent);

    void showSettings() override;

private:
    enum { Config, Vnom, Freq, Limits, Rows };
    enum { ClampName, RatioI, RatioV, RangeI, InputRows };

    LabelGrid::Row m_rows[Rows];
    LabelGrid::Row m_inputs[InputRows]; // values of the phases and of the neutral channel
    LabelGrid::Row m_heads;
    QLabel *m_icon;
};
