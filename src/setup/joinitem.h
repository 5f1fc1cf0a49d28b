#pragma once

#include <QLabel>

/// One wiring to choose: its diagram with its name below, on a bar while it is selected. The wiring in use is marked.
class JoinItem : public QWidget
{
    Q_OBJECT

public:
    static constexpr int kWidth = 292, kHeight = 164; // pixels

    /// Its labels are called <name>_icon, <name>_mark and <name>_t.
    JoinItem(const QString &name, QWidget *parent);

    void setSelected(bool on);
    /// A wiring of 1 to 10; another number empties and hides it.
    void showJoinMode(int joinMode, bool inUse);

private:
    QLabel *m_icon;
    QLabel *m_mark;
    QLabel *m_name;
};
