#pragma once

#include "pages/editorpage.h"
#include "pages/starttime.h"

/// Set-up of a monitor's run: when it begins, how long it lasts, which limit set judges, what its record is called.
/// Start puts the choices in force; until then nothing is written.
class MonitorMain : public EditorPage
{
    Q_OBJECT

public:
    explicit MonitorMain(QWidget *parent = nullptr);

    /// Bounds of a run's length, hours.
    static constexpr int kShortest = 1;
    static constexpr int kLongest = 31 * 24;

    /// The page is opened anew: at once, with the limit set in use and the next free name.
    void reset();

public slots:
    /// The time of a run that has ended is no business of the next one.
    void stopWatchChanged(const QString &) override { }

signals:
    void goMonitorStart();
    /// Another limit set is in use.
    void limitsChanged();

private:
    void start();
    void initBegainTime();
    void initLimits();
    void stepDays(int step);
    void stepHours(int step);
    void stepLimits(int step);
    void editName();

    StartTime m_start;
    QString m_limits; // name of the set chosen
};
