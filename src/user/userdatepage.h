#pragma once

#include "pages/editorpage.h"
#include "pages/starttime.h"

#include <QByteArray>
#include <QTimer>
#include <QVector>

/// Date, time and time zone. Until a field of the time is changed, the page shows the clock as it goes, in the zone
/// that is chosen; from then on it shows what the user set. "Ok" stores the zone and sets the processor's clock, which
/// the system clock follows.
class UserDatePage : public EditorPage
{
    Q_OBJECT

public:
    explicit UserDatePage(QWidget *parent = nullptr);

    /// The clock payload of a time: seconds, minutes, hours, day of the week (1 Monday to 7 Sunday), day, month, low
    /// and high byte of the year; in UTC, as the processor's clock runs.
    static QByteArray adjustdate(const QDateTime &time);

signals:
    void timeSet();
    void goUserMain();

protected:
    void load() override { initDateTime(); }
    void store() override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    std::vector<Row> rows();
    void initDateTime();
    void followClock();
    void takeZone(const QByteArray &zone);
    void stepZone(int step);

    StartTime m_time;
    bool m_changed = false; // a field of the time
    QByteArray m_zone; // as chosen
    QVector<QByteArray> m_zones;
    QTimer m_clock;
};
