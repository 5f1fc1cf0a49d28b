#pragma once

#include "pages/livepage.h"
#include "widgets/controls/scrollmodel.h"

class QScrollBar;

/// A page with a list that is longer than its window: event lists, the harmonics meter, files, networks. Up and down
/// move by lines or by pages and go on while the key is held; a page with check marks lets Enter set the selected
/// line's. Where the list stands and what is checked is in its ScrollModel; a page's own file draws the lines.
class ListPage : public LivePage
{
    Q_OBJECT

public slots:
    void init_parameter() override;

protected:
    enum Unit { Lines, Pages }; // what one step of up and down is

    /// \a pace: how the steps of a held key grow.
    ListPage(_quvera_ui_type type, Unit unit, const KeyRepeat::Pace &pace, QWidget *parent);

    virtual ScrollModel &list() = 0;
    /// The list moved or its marks changed.
    virtual void showList() = 0;

    /// A bar that follows the window, first line by first line. To be called once.
    void setScrollBar(QScrollBar *bar);
    /// Draws the list anew where it stands, with its bar. To be called after the list's length changed.
    void refreshList();

    /// While on, Enter switches the check mark of the selected line; off takes all marks away.
    void setChecking(bool on);
    void checkAll() { setAllChecked(true); }
    void uncheckAll() { setAllChecked(false); }

    std::vector<FrontKeys::Row> commonKeys() override;

private:
    void move(int step);
    void setAllChecked(bool on);
    void switchSelected();

    const Unit m_unit;
    const KeyRepeat::Pace m_pace;
    QScrollBar *m_bar = nullptr;
    bool m_checking = false;
};
