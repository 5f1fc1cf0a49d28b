#pragma once

#include "views/transients/transscopepage.h"

class LiveData;
class TransientList;

/// One captured transient of the list, which grows, drops its oldest entry at its limit and may be cleared at any time.
/// The page keeps no pointer into it: it knows its transient by number and time.
class TransView : public TransScopePage
{
    Q_OBJECT

public:
    explicit TransView(const LiveData &data, QWidget *parent = nullptr);

    /// Shows the transient captured last.
    void selectNewest();
    /// The list changed: the transient shown stays, wherever it stands now, or the nearest one takes its place.
    void followList();
    int index() const { return m_index; } // into the list; 0 for an empty list

public slots:
    void updateDisplay(void *) override { followList(); }
    void init_parameter() override;

signals:
    void goTranStart();

protected:
    void setPageKeys() override;

private:
    void selectPrev();
    void selectNext();
    void select(int index);
    bool isShown(int index) const;
    void showHeader(const __trans_data *record);

    const TransientList &m_list;
    int m_index = 0;
    // Of the transient shown; number 0: none
    qint32 m_number = 0;
    double m_time = 0; // ms since 1970
};
