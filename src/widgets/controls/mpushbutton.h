#pragma once

#include <QPushButton>

/// Push button that leaves every key to its page. Each sub page keeps one of no size, to hold the focus.
class MPushButton : public QPushButton
{
    Q_OBJECT

public:
    using QPushButton::QPushButton;

protected:
    void keyPressEvent(QKeyEvent *event) override;
};
