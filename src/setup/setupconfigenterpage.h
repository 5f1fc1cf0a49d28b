#pragma once

#include "setup/setuppane.h"

class QLabel;

/// One wiring at large: where its leads and clamps go. Ok puts it in force.
class SetupConfigEnterPage : public SetupPane
{
    Q_OBJECT

public:
    explicit SetupConfigEnterPage(QWidget *parent = nullptr);

    /// The wiring to show, 1 to 10.
    void setJoinMode(int joinMode);
    int joinMode() const { return m_joinMode; }

signals:
    void stored(); // after Ok
    void goBack();

protected:
    void showSettings() override;

private:
    void ok();

    QLabel *m_picture;
    QLabel *m_name;
    int m_joinMode = 1;
};
