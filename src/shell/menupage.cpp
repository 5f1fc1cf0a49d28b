#include "shell/menupage.h"
#include "ui_menupage.h"

#include "settings/config_data.h"
#include "model/nominalfrequency.h"
#include "shell/pagetable.h"
#include "shell/plainpicture.h"
#include "widgets/controls/labellook.h"
#include "widgets/controls/readingmarks.h"
#include "widgets/dialogs/runinfo.h"

#include <vector>

namespace {

constexpr int kRows = 3;
constexpr int kColumns = 4;

/// Rows of the pages that have a tile.
const std::vector<const PageRow *> &tiles()
{
    static const std::vector<const PageRow *> found = [] {
        std::vector<const PageRow *> rows;
        for (const PageRow &row : PageTable::rows()) {
            if (row.tile.place >= 1 && row.tile.place <= kRows * kColumns)
                rows.push_back(&row);
        }
        return rows;
    }();
    return found;
}

} // namespace

void MenuItem::showPicture(bool highlighted)
{
    setPixmap(plainPicture(QLatin1String(":/") + objectName() + QLatin1String(highlighted ? "_hl" : "")));
}

MenuPage::MenuPage(const LiveData &data, QWidget *parent) : Page(UI_MENU, parent), m_data(data), m_ui(new Ui::MenuPage)
{
    static const KeyRow<MenuPage> keys[] = {
        { Qt::Key_Enter, nullptr, &MenuPage::changePage }, { Qt::Key_Left, nullptr, &MenuPage::moveLeft },
        { Qt::Key_Right, nullptr, &MenuPage::moveRight },  { Qt::Key_Up, nullptr, &MenuPage::moveUp },
        { Qt::Key_Down, nullptr, &MenuPage::moveDown },    { Qt::Key_F1, nullptr, &MenuPage::showStatus },
        { Qt::Key_F2, nullptr, &MenuPage::showStatus },    { Qt::Key_F3, nullptr, &MenuPage::showStatus },
        { Qt::Key_F4, nullptr, &MenuPage::showStatus },    { Qt::Key_F5, nullptr, &MenuPage::showStatus },
    };
    m_ui->setupUi(this);
    LabelLook::dress(this);
    m_places[0].current = m_places[0].previous = m_ui->vif;
    m_places[1].current = m_places[1].previous = m_ui->logger;
    for (const PageRow *row : tiles())
        item(*row)->showPicture(false);
    menuMatrix50();
    setKeys(keys);
    showMenuHl();
}

MenuPage::~MenuPage() = default;

void MenuPage::retranslateUi()
{
    Page::retranslateUi();
    for (const PageRow *row : tiles())
        findChild<QLabel *>(QString::fromLatin1(row->tile.name) + QLatin1String("_t"))->setText(tr(row->tile.caption));
    m_ui->menu_tips->setText(tr("Press F1-F5 to show more infomation"));
}

void MenuPage::initMenuMatrix()
{
    if (isNominal(m_settingConfig_g.getNomFreq(), 400.0))
        menuMatrix400();
    else
        menuMatrix50();
    showMenuHl();
}

MenuItem *MenuPage::item(const PageRow &row) const
{
    return findChild<MenuItem *>(QString::fromLatin1(row.tile.name));
}

void MenuPage::menuMatrix50()
{
    MenuItem *items[kRows][kColumns] = {};
    for (const PageRow *row : tiles())
        items[(row->tile.place - 1) / kColumns][(row->tile.place - 1) % kColumns] = item(*row);
    for (int r = 0; r < kRows; ++r) {
        for (int c = 0; c < kColumns; ++c) {
            if (!items[r][c])
                continue;
            items[r][c]->left = items[r][(c + kColumns - 1) % kColumns];
            items[r][c]->right = items[r][(c + 1) % kColumns];
            items[r][c]->up = items[(r + kRows - 1) % kRows][c];
            items[r][c]->down = items[(r + 1) % kRows][c];
        }
    }
}

/// The neighbours of a tile without a function at 400 Hz lead past it; the tile stays on the screen.
void MenuPage::menuMatrix400()
{
    menuMatrix50();
    for (const PageRow *row : tiles()) {
        if (row->at400Hz)
            continue;
        MenuItem *tile = item(*row);
        tile->left->right = tile->right;
        tile->right->left = tile->left;
        tile->up->down = tile->down;
        tile->down->up = tile->up;
        if (m_places[0].current == tile)
            moveTo(m_ui->vif);
    }
}

void MenuPage::setCurrentItem()
{
    m_places[0].current->setFocus();
}

void MenuPage::focusInEvent(QFocusEvent *)
{
    setCurrentItem();
}

void MenuPage::moveTo(MenuItem *item)
{
    if (!item)
        return;
    m_places[0].previous = m_places[0].current;
    m_places[0].current = item;
    item->setFocus();
    showMenuHl();
}

void MenuPage::showMenuHl()
{
    for (const bool isCurrent : { false, true }) {
        MenuItem *tile = isCurrent ? m_places[0].current : m_places[0].previous;
        tile->showPicture(isCurrent);
        ReadingMarks::select(findChild<QLabel *>(tile->objectName() + QLatin1String("_t")), isCurrent);
    }
}

void MenuPage::changePage()
{
    for (const PageRow *row : tiles()) {
        if (m_places[0].current == item(*row)) {
            emit leave(row->type);
            return;
        }
    }
}

void MenuPage::showStatus()
{
    if (!RunInfo::showSystemStatus(m_data))
        emit restartTask();
}
