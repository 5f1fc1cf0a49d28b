#pragma once

#include "model/eventselection.h"
#include "widgets/controls/scrollmodel.h"

#include <QCoreApplication>
#include <QPixmap>
#include <QStringList>
#include <QWidget>

#include <optional>

/// Which events the table shows.
enum __event_type {
    EventsAll = 0,
    EventsRms = 1,
    EventsHarmonics = 2, // distortion and harmonic orders
    EventsFlicker = 3,
    EventsDips = 4, // dips, swells, interruptions, rapid voltage changes
    EventsUnbalanceFrequency = 5,
    EventsMainsSignaling = 6,
};

/// Table of power-quality events, thirteen lines at a time, with a selection bar and a filter by kind. It only
/// displays: the lines stand in the events it was last given. Needs 30 + 13 x 22 pixels in height. GUI thread.
class EventsWidget : public QWidget
{
    Q_DECLARE_TR_FUNCTIONS(EventsWidget)

public:
    explicit EventsWidget(QWidget *parent = nullptr);

    static constexpr int kRows = 13;

    /// Shows the events of \a list, which must live until the next call, and filters them; a null list resets rows and
    /// counts. Without a filter the cost does not depend on their number.
    void refreshEventList(const EventSelection *list);

    /// Rebuilds the shown list by the filter in force.
    void eventTypeFilter();
    /// Sets the filter, 7 and above being 0, starts at the top of the list and filters again.
    void changeEventType(int type);
    void setEventType(int type) { m_filter = type; }
    int eventType() const { return m_filter; }

    void selectPrevItem();
    void selectNextItem();

    /// Back to an empty table at its first row.
    void initEventsCnt();
    void setEventCnt(int count) { m_scroll.setCount(count); }
    int eventsCnt() const { return m_scroll.count(); } // lines that pass the filter

    int firstShown() const { return m_scroll.first(); }
    int lastShown() const { return m_scroll.end(); } // one behind the last line shown
    int row() const { return m_scroll.row(); } // selection within the page
    /// Where the table stands; the widget wants an update() after it was moved.
    ScrollModel &scroll() { return m_scroll; }

    /// Texts of one line of the shown list as painted: time, type, level, duration; empty for a line that is not there.
    QStringList lineTexts(int index) const;

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    /// What passes the filter; null: nothing was given.
    const EventSelection *shown() const { return m_filtered ? &*m_filtered : m_all; }
    int shownSize() const { return shown() ? shown()->size() : 0; }
    void drawHeader(QPainter &painter) const;
    void drawRow(QPainter &painter, int row, const QStringList &texts) const;

    int m_filter = EventsAll;
    ScrollModel m_scroll { kRows };
    const EventSelection *m_all = nullptr;
    std::optional<EventSelection> m_filtered; // none while all are shown
    QPixmap m_background; // scaled to the widget
    QPixmap m_bar; // scaled to a row
};
