#pragma once

#include "widgets/dialogs/softkeydialog.h"

class QLabel;

/// For the service: the instrument's serial number and model, which are labels only. Up and down choose the line, Enter
/// edits the serial number, left and right step the model; Ok stores what was changed.
class InstrumentInfo : public SoftKeyDialog
{
    Q_OBJECT

public:
    /// Shows the dialog until it is closed.
    static void editInstrumentInfo();

    explicit InstrumentInfo(QWidget *parent = nullptr);

private:
    enum Line { SerialNumber, Model, Lines };

    void select(Line line);
    void selectPrev() { select(SerialNumber); }
    void selectNext() { select(Model); }
    void editSerialNumber();
    void stepModel(int step);
    void modelPrev() { stepModel(-1); }
    void modelNext() { stepModel(1); }
    void showValues();
    void store();

    QLabel *m_values[Lines];
    QWidget *m_bar; // behind the chosen line
    Line m_line = SerialNumber;
    QString m_serialNumber;
    int m_model; // place in the list of models
    int m_modelBefore;
};
