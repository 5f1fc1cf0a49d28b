#pragma once

#include "pages/eventspage.h"
#include "widgets/controls/eventswidget.h"

class BtnSelAll;

/// List of one family of the run's events; F4 shows all of them in its place and back again, F3 leads to the trend
/// behind them.
class MonitorEventPage : public EventsPage
{
    Q_OBJECT

public:
    /// What the page lists, and what that is called.
    struct Family
    {
        __event_type filter;
        const char *name; // to be translated in the context of MonitorEventPage
    };

public slots:
    void init_parameter() override;
    void retranslateUi() override;

signals:
    void goTrend();

protected:
    MonitorEventPage(const Family &family, QWidget *parent);

private:
    void changeFilter();
    void setFilter(int filter);

    const Family m_family;
    QLabel *m_name;
    BtnSelAll *m_filterKey;
};

/// 10-minute voltages outside their limits.
class MonitStarVrmPage : public MonitorEventPage
{
    Q_OBJECT
public:
    explicit MonitStarVrmPage(QWidget *parent = nullptr);
};

/// Distortion and harmonics above their limits.
class MonitHarmEvenPage : public MonitorEventPage
{
    Q_OBJECT
public:
    explicit MonitHarmEvenPage(QWidget *parent = nullptr);
};

/// Long-term flicker above its limit.
class MonitFlickPage : public MonitorEventPage
{
    Q_OBJECT
public:
    explicit MonitFlickPage(QWidget *parent = nullptr);
};

/// Dips, interruptions, rapid voltage changes and swells.
class MonitDirsPage : public MonitorEventPage
{
    Q_OBJECT
public:
    explicit MonitDirsPage(QWidget *parent = nullptr);
};

/// Unbalance above its limit, and the frequency outside its limits.
class MonitUnbalPage : public MonitorEventPage
{
    Q_OBJECT
public:
    explicit MonitUnbalPage(QWidget *parent = nullptr);
};
