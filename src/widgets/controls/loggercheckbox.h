#pragma once

#include <QCheckBox>

/// Check box of the recorder's parameter pages; it leaves every key to its page.
class LoggerCheckBox : public QCheckBox
{
    Q_OBJECT

public:
    using QCheckBox::QCheckBox;

protected:
    void keyPressEvent(QKeyEvent *event) override;
};
