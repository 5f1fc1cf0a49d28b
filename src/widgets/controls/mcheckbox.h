#pragma once

#include <QCheckBox>

/// Check box that leaves every key to its page: the page alone decides what a key does.
class MCheckBox : public QCheckBox
{
    Q_OBJECT

public:
    using QCheckBox::QCheckBox;

protected:
    void keyPressEvent(QKeyEvent *event) override;
};
