#include "shell/menupage.h"
#include "ui_menupage.h"

#include "settings/config_data.h"
#include "model/nominalfrequency.h"
#include "model/transparam.h"
#include "record/pqafile.h"
#include "widgets/text/keymap.h"
#include "widgets/controls/labellook.h"
#include "widgets/dialogs/runinfo.h"
#include "widgets/dialogs/savedialog.h"

#include <QKeyEvent>

namespace {

constexpr int kRows = 3;
constexpr int kColumns = 4;

/// The tiles row by row: object name, caption, and where Enter leads.
struct Tile
{
    const char *name;
    const char *caption;
    _quvera_ui_type target;
};
const Tile kTiles[kRows * kColumns] = {
    { "power", QT_TRANSLATE_NOOP("MenuPage", "Power&Energy\n"), UI_POWER },
    { "vif", QT_TRANSLATE_NOOP("MenuPage", "Volts/Amps/Hertz\n"), UI_VIF },
    { "harmonics", QT_TRANSLATE_NOOP("MenuPage", "Harmonics\n"), UI_HARMONICS },
    { "unbalance", QT_TRANSLATE_NOOP("MenuPage", "Unbalance\n"), UI_UNBALANCE },
    { "flicker", QT_TRANSLATE_NOOP("MenuPage", "Flicker\n"), UI_FLICKER },
    { "dips_swells", QT_TRANSLATE_NOOP("MenuPage", "Dips&Swells\n"), UI_DIPS_SWELLS },
    { "inrush", QT_TRANSLATE_NOOP("MenuPage", "Inrush\n"), UI_INRUSH },
    { "transients", QT_TRANSLATE_NOOP("MenuPage", "Transients\n"), UI_TRANSIENTS },
    { "mainssignaling", QT_TRANSLATE_NOOP("MenuPage", "Mains\nSignaling"), UI_MAINS_SIG },
    { "wave", QT_TRANSLATE_NOOP("MenuPage", "Wave\n"), UI_WAVE },
    { "logger", QT_TRANSLATE_NOOP("MenuPage", "Logger\n"), UI_LOGGER },
    { "user", QT_TRANSLATE_NOOP("MenuPage", "User\n"), UI_USER },
};

/// Function keys that lead away from the menu. F7 has no effect here.
const struct
{
    int key;
    _quvera_ui_type target;
} kFunctionKeys[] = {
    { Qt::Key_F6, UI_SCOPE },
    { Qt::Key_F8, UI_MONITOR },
    { Qt::Key_F9, UI_SETUP },
    { Qt::Key_F10, UI_MEMORY },
};

} // namespace

void MenuItem::showPicture(bool highlighted)
{
    setPixmap(QPixmap(QLatin1String(":/") + objectName() + QLatin1String(highlighted ? "_hl" : "")));
}

MenuPage::MenuPage(QWidget *parent) : QDialog(parent), m_ui(new Ui::MenuPage)
{
    m_ui->setupUi(this);
    LabelLook::dress(this);
    m_places[0].current = m_places[0].previous = m_ui->vif;
    m_places[1].current = m_places[1].previous = m_ui->logger;
    for (const Tile &tile : kTiles)
        findChild<MenuItem *>(QString::fromLatin1(tile.name))->showPicture(false);
    menuMatrix50();
    retranslateUi();
    showMenuHl();
}

MenuPage::~MenuPage() = default;

void MenuPage::retranslateUi()
{
    for (const Tile &tile : kTiles)
        findChild<QLabel *>(QString::fromLatin1(tile.name) + QLatin1String("_t"))->setText(tr(tile.caption));
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

void MenuPage::menuMatrix50()
{
    MenuItem *items[kRows][kColumns];
    for (int i = 0; i < kRows * kColumns; ++i)
        items[i / kColumns][i % kColumns] = findChild<MenuItem *>(QString::fromLatin1(kTiles[i].name));
    for (int r = 0; r < kRows; ++r) {
        for (int c = 0; c < kColumns; ++c) {
            items[r][c]->left = items[r][(c + kColumns - 1) % kColumns];
            items[r][c]->right = items[r][(c + 1) % kColumns];
            items[r][c]->up = items[(r + kRows - 1) % kRows][c];
            items[r][c]->down = items[(r + 1) % kRows][c];
        }
    }
}

void MenuPage::menuMatrix400()
{
    menuMatrix50();
    m_ui->dips_swells->left = m_ui->transients;
    m_ui->transients->right = m_ui->dips_swells;
    m_ui->power->up = m_ui->power->down = m_ui->mainssignaling;
    m_ui->mainssignaling->up = m_ui->mainssignaling->down = m_ui->power;
    if (m_places[0].current == m_ui->flicker)
        moveTo(m_ui->vif);
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
}

void MenuPage::showMenuHl()
{
    m_places[0].previous->showPicture(false);
    m_places[0].current->showPicture(true);
}

void MenuPage::changePage()
{
    for (const Tile &tile : kTiles) {
        if (m_places[0].current->objectName() == QLatin1String(tile.name)) {
            emit leave(tile.target);
            return;
        }
    }
}

void MenuPage::saveSnapshot()
{
    PqaFile file(1);
    QString name = QStringLiteral("Menu");
    if (SaveDialog::save(1, name) == 1)
        file.saveSnapshot(name);
}

void MenuPage::keyPressEvent(QKeyEvent *event)
{
    if (keyMap::recoverBackLight() || keyMap::isDroppedRepeat(*event)) {
        event->accept();
        return;
    }
    const int key = keyMap::keyPressMap(event->key());
    event->accept();
    for (const auto &row : kFunctionKeys) {
        if (row.key == key) {
            emit leave(row.target);
            showMenuHl();
            return;
        }
    }
    switch (key) {
    case Qt::Key_Enter:
    case Qt::Key_Return:
        changePage();
        break;
    case Qt::Key_Left:
        moveTo(m_places[0].current->left);
        break;
    case Qt::Key_Right:
        moveTo(m_places[0].current->right);
        break;
    case Qt::Key_Up:
        moveTo(m_places[0].current->up);
        break;
    case Qt::Key_Down:
        moveTo(m_places[0].current->down);
        break;
    case Qt::Key_F1:
    case Qt::Key_F2:
    case Qt::Key_F3:
    case Qt::Key_F4:
    case Qt::Key_F5:
        if (!RunInfo::showSystemStatus())
            emit restartTask();
        break;
    case Qt::Key_F7:
        break;
    case Qt::Key_F11:
        saveSnapshot();
        break;
    default:
        event->ignore();
    }
    showMenuHl();
}

void MenuPage::keyReleaseEvent(QKeyEvent *event)
{
    keyMap::keyReleaseMap(event->key());
    event->ignore();
}

void MenuPage::clearSystemStatus()
{
    g_events_list.clear();
    qDeleteAll(g_trans_events);
    g_trans_events.clear();
}
