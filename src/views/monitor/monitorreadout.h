#pragma once

#include "views/monitor/monitorvalues.h"

#include <QCoreApplication>
#include <QString>
#include <QVector>

/// The numbers behind one bar of a histogram, as text: what a page writes below its cursor.
struct MonitorReadout
{
    Q_DECLARE_TR_FUNCTIONS(MonitorReadout)

public:
    static constexpr int kFields = 6;

    struct Field
    {
        QString caption;
        QString value;
    };

    QString quantity; // "L1 Vrms"
    int phase = -1; // whose colour it has; -1: white
    MonitorValues::Verdict verdict = MonitorValues::None;
    QVector<Field> fields; // at most kFields

    /// Of a bar of the overview. A value that is not there yet is a placeholder.
    static MonitorReadout ofBar(const MonitorView &view, int bar);
    /// Of a row of a phase's harmonics.
    static MonitorReadout ofHarmonic(const MonitorView &view, int phase, int row);
};
