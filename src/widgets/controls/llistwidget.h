#pragma once

#include <QListWidget>

/// List that leaves its arrows, and every other key, to its page: the keys of the front panel arrive as letters, which
/// a plain list would take for a search.
class LListWidget : public QListWidget
{
    Q_OBJECT

public:
    using QListWidget::QListWidget;

protected:
    void keyPressEvent(QKeyEvent *event) override;
};
