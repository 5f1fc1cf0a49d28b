#pragma once

#include "widgets/controls/frontkeys.h"

#include <QDialog>

#include <memory>

class MenuPage;
class Navigator;
class QTimer;
class TaskManage;

namespace Ui {
class BaseDialog;
}

/// The main window: title bar and the one stack of pages, between which the navigator decides; clock, light and power
/// key.
class BaseDialog : public QDialog
{
    Q_OBJECT

public:
    explicit BaseDialog(TaskManage *tasks, QWidget *parent = nullptr);
    ~BaseDialog() override;

    Navigator &navigator() { return *m_navigator; }
    MenuPage *menu() const { return m_menu; }

public slots:
    void refleshtime();
    void powerBtnPushed();
    void retranslateUi();
    void showSysInfo(const QString &text);
    /// Names of two pictures; an empty one clears its place.
    void showSysIcon(const QString &first, const QString &second);
    /// The processor's time, s since 1970, becomes that of the system; 0 is ignored.
    void showDSPTimeStamp(quint32 seconds);
    void displayTaskName(const QString &text);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;

private:
    void armPowerTimer();

    std::unique_ptr<Ui::BaseDialog> m_ui;
    MenuPage *m_menu;
    Navigator *m_navigator;
    QTimer *m_clockTimer;
    QTimer *m_powerTimer;
    FrontKeys m_keys;
    QString m_icons[2]; // names of the pictures shown
    bool m_powerArmed = false;
    int m_powerTicks = 0;
};
