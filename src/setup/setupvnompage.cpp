#include "setup/setupvnompage.h"

#include "settings/config_data.h"
#include "widgets/controls/labellook.h"
#include "widgets/controls/readingmarks.h"

#include <QLabel>

namespace {

constexpr int kStarTop = 48, kDeltaTop = 220; // pixels
constexpr int kColumns = 3;
const char *const kColors[] = { "#606060", "#ffffff" }; // of a table that is not active, of the one that is
const KeyRepeat::Pace kSingle { 0, { 1 } };

QLabel *addLabel(QWidget *page, const QString &name, const QRect &place, int textSize)
{
    auto *label = new QLabel(page);
    label->setObjectName(name);
    label->setGeometry(place);
    label->setProperty("textSize", textSize);
    return label;
}

} // namespace

SetupVnomPage::SetupVnomPage(QWidget *parent)
    : SetupPane(QT_TRANSLATE_NOOP("SetupVnomPage", "Nominal Voltage"), parent),
      m_draft({ "NOM_VOLT_SELECT", "NOM_VOLT_CUSTOM", "NOM_VOLT_LINE_SELECT", "NOM_VOLT_LINE_CUSTOM" }),
      m_star { "NOM_VOLT_SELECT", "NOM_VOLT_CUSTOM", &SettingConfig::getNomVoltStar },
      m_delta { "NOM_VOLT_LINE_SELECT", "NOM_VOLT_LINE_CUSTOM", &SettingConfig::getNomVoltDelta },
      m_hint(addLabel(this, QStringLiteral("hint"), QRect(20, 376, 600, 28), 16))
{
    static const KeyRow<SetupVnomPage> keys[] = {
        { Qt::Key_F4, QT_TRANSLATE_NOOP("SetupVnomPage", "Ok"), &SetupVnomPage::changeVnom },
        { Qt::Key_F5, QT_TRANSLATE_NOOP("SetupVnomPage", "Cancel"), &SetupVnomPage::goBack },
        { Qt::Key_Left, nullptr, &SetupVnomPage::changeVolt, -1, kSingle },
        { Qt::Key_Right, nullptr, &SetupVnomPage::changeVolt, 1, kSingle },
        { Qt::Key_Down, nullptr, &SetupVnomPage::changeCustom, -1, {} },
        { Qt::Key_Up, nullptr, &SetupVnomPage::changeCustom, 1, {} },
    };
    addTable(m_star, "star", kStarTop);
    addTable(m_delta, "delta", kDeltaTop);
    m_hint->setProperty("textColor", QStringLiteral("#c0c0c0"));
    dressPane();
    setKeys(keys);
}

void SetupVnomPage::addTable(Table &table, const char *name, int top)
{
    constexpr int kLeft = 20, kPitchX = 204, kWidth = 192, kPitchY = 42, kHeight = 38, kHeadHeight = 32;
    const QString prefix = QString::fromLatin1(name);
    table.head = addLabel(this, prefix + QLatin1String("_t"), QRect(kLeft, top, 600, kHeadHeight), 20);
    for (int i = 0; i < kFields; ++i) {
        const QRect place(kLeft + i % kColumns * kPitchX, top + kHeadHeight + i / kColumns * kPitchY, kWidth, kHeight);
        QLabel *field = addLabel(this, prefix + QString::number(i + 1), place, 20);
        field->setAlignment(Qt::AlignCenter);
        table.fields[std::size_t(i)] = field;
    }
}

SetupVnomPage::Table &SetupVnomPage::active()
{
    return m_settingConfig_g.isStarJoinMode() ? m_star : m_delta;
}

void SetupVnomPage::init_parameter()
{
    m_draft.load();
    SetupPane::init_parameter();
}

void SetupVnomPage::retranslateUi()
{
    setText(m_star.head, tr("Phase voltage"));
    setText(m_delta.head, tr("Line voltage"));
    setText(m_hint, tr("Custom: Up and Down change the value"));
    SetupPane::retranslateUi();
}

void SetupVnomPage::showSettings()
{
    const bool star = &active() == &m_star;
    showTable(m_star, star);
    showTable(m_delta, !star);
    m_hint->setVisible(m_draft.whole(active().select) == kFields);
}

void SetupVnomPage::showTable(Table &table, bool isActive)
{
    const QColor color(QLatin1String(kColors[isActive ? 1 : 0]));
    const int selected = m_draft.whole(table.select);
    QPalette text = table.head->palette();
    text.setColor(QPalette::WindowText, color);
    table.head->setPalette(text);
    for (int row = 1; row <= kFields; ++row) {
        QLabel *field = table.fields[std::size_t(row - 1)];
        field->setEnabled(isActive);
        const QString bar = !isActive ? QStringLiteral("#202830") : QStringLiteral("#004882");
        LabelLook::setBackground(field, row == selected ? bar : QStringLiteral("black"));
        ReadingMarks::select(field, isActive && row == selected);
        QPalette palette = field->palette();
        palette.setColor(QPalette::WindowText, color);
        field->setPalette(palette);
        const QString volts = QStringLiteral("%1 V").arg(row == kFields ? m_draft.whole(table.custom)
                                                                        : (m_settingConfig_g.*table.volts)(row));
        setText(field, row == kFields ? tr("Custom: %1").arg(volts) : volts);
    }
}

void SetupVnomPage::changeVolt(int step)
{
    m_draft.move(active().select, step);
    showSettings();
}

void SetupVnomPage::changeCustom(int step)
{
    if (m_draft.whole(active().select) != kFields)
        return;
    m_draft.move(active().custom, step);
    showSettings();
}

void SetupVnomPage::changeVnom()
{
    m_draft.store();
    emit stored();
}
