#pragma once

#include "pages/uitype.h"

#include <QDialog>
#include <QLabel>

#include <memory>

struct PageRow;

namespace Ui {
class MenuPage;
}

/// One tile of the menu with its neighbours. Its pictures are named after it.
class MenuItem : public QLabel
{
public:
    explicit MenuItem(QWidget *parent = nullptr) : QLabel(parent) { setFocusPolicy(Qt::StrongFocus); }
    void showPicture(bool highlighted);

    MenuItem *left = nullptr;
    MenuItem *right = nullptr;
    MenuItem *up = nullptr;
    MenuItem *down = nullptr;
};

/// The function menu: a torus of twelve tiles.
class MenuPage : public QDialog
{
    Q_OBJECT

public:
    explicit MenuPage(QWidget *parent = nullptr);
    ~MenuPage() override;

    /// Links the tiles for the nominal frequency in force: at 400 Hz there is no flicker.
    void initMenuMatrix();
    /// Keyboard focus to the current tile.
    void setCurrentItem();
    const MenuItem *currentItem() const { return m_places[0].current; }

public slots:
    void retranslateUi();
    void refreshSystemStatus() { }
    void eventsChanged() { }
    void transEventsChanged() { }
    /// A run ended: its events are forgotten.
    void clearSystemStatus();

signals:
    void restartTask();
    /// A tile or a function key asks for another page.
    void leave(_quvera_ui_type target);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;

private:
    /// Current and previous tile of one menu page. The second page is empty and never shown; its pair is kept.
    struct Place
    {
        MenuItem *current = nullptr;
        MenuItem *previous = nullptr;
    };

    MenuItem *item(const PageRow &row) const;
    void menuMatrix50();
    void menuMatrix400();
    void moveTo(MenuItem *item);
    void showMenuHl();
    void changePage();
    void saveSnapshot();

    std::unique_ptr<Ui::MenuPage> m_ui;
    Place m_places[2];
};
