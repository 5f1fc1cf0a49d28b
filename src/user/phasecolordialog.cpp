#include "user/phasecolordialog.h"
#include "ui_phasecolordialog.h"

#include "settings/config_data.h"
#include "settings/phasecolor.h"
#include "user/phasecolorpalette.h"

#include <algorithm>

namespace {

constexpr int kColors = 6;
constexpr int kTop = 46, kPitch = 40; // of the rows, pixels
const QString kDefaultDigits = QStringLiteral("01231");

QVector<QColor> lineColors()
{
    QVector<QColor> colors;
    for (int i = 0; i < kColors; ++i)
        colors.append(PhaseColor::colorLine(PhaseColor::LINE_COLOR(i)));
    return colors;
}

} // namespace

bool PhaseColorDialog::choose()
{
    PhaseColorDialog dialog;
    return dialog.exec() == QDialog::Accepted;
}

PhaseColorDialog::PhaseColorDialog(QWidget *parent) : SoftKeyDialog(parent), m_ui(new Ui::PhaseColorDialog)
{
    static const FrontKeys::KeyRow<PhaseColorDialog> keys[] = {
        { Qt::Key_Up, nullptr, &PhaseColorDialog::prevItem },
        { Qt::Key_Down, nullptr, &PhaseColorDialog::nextItem },
        { Qt::Key_Left, nullptr, &PhaseColorDialog::change2prev },
        { Qt::Key_Right, nullptr, &PhaseColorDialog::change2next },
        { Qt::Key_F1, QT_TRANSLATE_NOOP("PhaseColorDialog", "Default"), &PhaseColorDialog::setDefault },
        { Qt::Key_F4, QT_TRANSLATE_NOOP("PhaseColorDialog", "Ok"), &PhaseColorDialog::accept },
        { Qt::Key_F5, QT_TRANSLATE_NOOP("PhaseColorDialog", "Cancel"), &PhaseColorDialog::reject },
    };
    m_ui->setupUi(this);
    for (int row = 0; row < kRows; ++row) {
        auto *palette = new PhaseColorPalette(this);
        palette->setObjectName(QStringLiteral("palette_%1").arg(row));
        palette->setGeometry(230, kTop + row * kPitch + 2, 360, kPitch - 6);
        palette->setColors(lineColors());
        m_palettes[std::size_t(row)] = palette;
    }
    fitText(m_ui->title, tr("Phase Colors"), 22);
    fitText(m_ui->row_4, tr("Earth"), 20);
    m_ui->row_bar->setStyleSheet(QStringLiteral("QLabel { background-color: #004882; }"));
    finishForm();
    setKeys(keys);
    take(PhaseColor::digits());
}

PhaseColorDialog::~PhaseColorDialog() = default;

void PhaseColorDialog::take(const QString &digits)
{
    for (int row = 0; row < kRows; ++row) {
        // A stored digit may lie behind the palette, which shows as the phase's own colour.
        const int color = digits.size() == kRows ? digits.at(row).unicode() - '0' : -1;
        m_colors[std::size_t(row)] = color >= 0 && color < kColors ? color : kDefaultDigits.at(row).unicode() - '0';
    }
    showRows();
}

QString PhaseColorDialog::digits() const
{
    return QStringLiteral("%1%2%3%4%5")
        .arg(m_colors[0])
        .arg(m_colors[1])
        .arg(m_colors[2])
        .arg(m_colors[3])
        .arg(m_colors[4]);
}

void PhaseColorDialog::selectRow(int direction)
{
    m_row = std::clamp(m_row + direction, 0, kRows - 1);
    showRows();
}

void PhaseColorDialog::stepColor(int direction)
{
    int &color = m_colors[std::size_t(m_row)];
    color = std::clamp(color + direction, 0, kColors - 1);
    showRows();
}

void PhaseColorDialog::setDefault()
{
    take(kDefaultDigits);
}

void PhaseColorDialog::showRows()
{
    for (std::size_t row = 0; row < kRows; ++row)
        m_palettes[row]->setChosen(m_colors[row]);
    m_ui->row_bar->move(m_ui->row_bar->x(), kTop + m_row * kPitch);
}

void PhaseColorDialog::accept()
{
    m_userConfig_g.setPhaseColors(digits()); // PhaseColor follows
    SoftKeyDialog::accept();
}
