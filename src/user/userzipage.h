#pragma once

#include "pages/editorpage.h"

#include <QTimer>

class PhaseColorPalette;

/// The main list of User: what the instrument is set to for the person who holds it, each change stored at once, and
/// the ways to date, networks and update. The states of the networks follow while the page is shown.
class UserZiPage : public EditorPage
{
    Q_OBJECT

public:
    explicit UserZiPage(QWidget *parent = nullptr);

signals:
    void goUserDate();
    void goUserLan();
    void goUserWLan();
    void goUpdate();

protected:
    void load() override { initUserMain(); }
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    std::vector<Row> rows();
    void initUserMain();
    void changeLanguage(int step);
    void changeSleep(int step);
    void changeLight(int step);
    void editUserName();
    void choosePhaseColors();
    void showPhaseColors();

    PhaseColorPalette *m_palette;
    QTimer m_refresh;
};
