#pragma once

#include <QRadioButton>

/// Radio button that leaves every key to its page: the page alone decides what a key does.
class MRadioButton : public QRadioButton
{
    Q_OBJECT

public:
    using QRadioButton::QRadioButton;

protected:
    void keyPressEvent(QKeyEvent *event) override;
};
