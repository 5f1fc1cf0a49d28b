#pragma once

#include "pages/page.h"

#include <QLabel>

#include <memory>

class LiveData;
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
class MenuPage : public Page
{
    Q_OBJECT

public:
    /// \a data, whose events the status counts, outlives the page.
    explicit MenuPage(const LiveData &data, QWidget *parent = nullptr);
    ~MenuPage() override;

    /// Links the tiles for the nominal frequency in force: at 400 Hz there is no flicker.
    void initMenuMatrix();
    SaveIdentity saveIdentity() const override { return { 1, "Menu" }; }
    /// Keyboard focus to the current tile.
    void setCurrentItem();
    const MenuItem *currentItem() const { return m_places[0].current; }

public slots:
    void retranslateUi() override;

signals:
    void restartTask();

protected:
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
    void moveLeft() { moveTo(m_places[0].current->left); }
    void moveRight() { moveTo(m_places[0].current->right); }
    void moveUp() { moveTo(m_places[0].current->up); }
    void moveDown() { moveTo(m_places[0].current->down); }
    void showMenuHl();
    void showStatus();
    void changePage();

    const LiveData &m_data;
    std::unique_ptr<Ui::MenuPage> m_ui;
    Place m_places[2];
};
