#pragma once

#include "pages/editorpage.h"
#include "pages/starttime.h"

/// Set-up of a waveform capture: its name, its length, the samples per second, when it begins; below, the room that
/// there is. Every change counts at once.
class WaveSetup : public EditorPage
{
    Q_OBJECT

public:
    explicit WaveSetup(QWidget *parent = nullptr);

    /// A new capture is to be planned: it begins at once unless the user says otherwise, under a name that is free.
    void beginSetup();

public slots:
    /// The time of a capture that has ended is no business of the next one.
    void stopWatchChanged(const QString &) override { }

signals:
    /// The choices stand; the capture is to begin as they say.
    void goWaveMain();

private:
    void changeToNext() { selectNext(); }
    void editItem();
    void stepRate(int step);
    void start();
    void initBegainTime();
    /// Whether the name may be used: nothing is stored under it, or the user gives that up.
    static bool nameIsFree();

    StartTime m_start;
    bool m_named = false; // by the user, not by default
};
