#pragma once

#include <QList>
#include <QWidget>

/// Percent values of L1, L2, L3, N for one bar.
struct __graphdata
{
    float value[4];
};

/// Which channel the harmonic graph shows.
enum __graphtype { GraphL1 = 1, GraphL2, GraphL3, GraphN, GraphAll };
/// How many phases stand side by side when it shows all.
enum __graphtypeex { GraphThreePhases = 1, GraphTwoPhases };

/// Bar graph of a spectrum: distortion (THD), DC and the orders of a window, of one channel or of all phases side by
/// side, with a cursor. Made for 601 by 320 pixels; 300 pixels are 100 percent. GUI thread.
class HarmonicGraph : public QWidget
{
public:
    explicit HarmonicGraph(QWidget *parent = nullptr);

    /// Shows the bars of the orders `first` to `last` (at most 100). The list holds THD, DC, then order by order; with
    /// interharmonics on, each order is followed by its interharmonic. Null or too short a list shows what it has.
    void showGraph(const QList<__graphdata> *list, int first, int last);

    /// Index of the bar under the cursor, held to 0 .. 51 (one channel) or 0 .. 83 (all).
    void setCursorPosition(int index);
    int cursorIndex() const { return m_cursorIndex; }
    int cursorX() const { return m_cursorX; } // pixels
    /// Whether the cursor has reached the last bar.
    bool isCursorMaxed() const;

    void setinharmEnabled(bool enabled);
    bool inharmEnabled() const { return m_inharm; }
    void setgraphType(int type);
    int graphType() const { return m_type; }
    void setgraphTypeEx(int type);
    int graphTypeEx() const { return m_typeEx; }

    int firstOrder() const { return m_first; }
    int lastOrder() const { return m_last; }
    int barCount() const { return m_count; } // orders shown

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    int barsPerGroup() const; // bars side by side
    int groupStep() const; // pixels from one group to the next
    int groups() const; // orders and interharmonics shown
    int orderCentre(int order) const; // pixels
    void drawFrame(QPainter &painter) const;
    void drawOrders(QPainter &painter) const;
    void drawBars(QPainter &painter) const;

    bool m_inharm = false;
    int m_cursorX = 20;
    int m_cursorIndex = 0;
    int m_first = 1;
    int m_last = 1;
    int m_count = 0;
    int m_type = GraphL1;
    int m_typeEx = GraphThreePhases;
    QList<__graphdata> m_list; // shares the page's entries
};
