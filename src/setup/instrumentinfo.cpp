#include "setup/instrumentinfo.h"

#include "settings/config_data.h"
#include "widgets/controls/labellook.h"
#include "widgets/controls/readingmarks.h"
#include "widgets/dialogs/virtualkeyboard.h"

#include <QLabel>

#include <algorithm>

namespace {

constexpr int kWidth = 640, kHeight = 180; // pixels
constexpr int kTop = 20, kPitch = 56, kLineHeight = 44;
constexpr int kLetters = 22; // pixels
constexpr int kLongestNumber = 32; // signs

QLabel *addLabel(QWidget *dialog, const char *name, const QRect &place, Qt::Alignment alignment)
{
    auto *label = new QLabel(dialog);
    label->setObjectName(QString::fromLatin1(name));
    label->setGeometry(place);
    label->setAlignment(alignment | Qt::AlignVCenter);
    return label;
}

} // namespace

void InstrumentInfo::editInstrumentInfo()
{
    InstrumentInfo dialog;
    dialog.exec();
}

InstrumentInfo::InstrumentInfo(QWidget *parent)
    : SoftKeyDialog(parent), m_bar(new QWidget(this)), m_serialNumber(m_userConfig_g.getInstrumentSN()),
      m_model(std::max(int(UserConfig::modelNames().indexOf(m_userConfig_g.getInstrumentModelName())), 0)),
      m_modelBefore(m_model)
{
    static const FrontKeys::KeyRow<InstrumentInfo> keys[] = {
        { Qt::Key_F4, QT_TRANSLATE_NOOP("InstrumentInfo", "Ok"), &InstrumentInfo::store },
        { Qt::Key_F5, QT_TRANSLATE_NOOP("InstrumentInfo", "Cancel"), &InstrumentInfo::reject },
        { Qt::Key_Up, nullptr, &InstrumentInfo::selectPrev },
        { Qt::Key_Down, nullptr, &InstrumentInfo::selectNext },
        { Qt::Key_Left, nullptr, &InstrumentInfo::modelPrev },
        { Qt::Key_Right, nullptr, &InstrumentInfo::modelNext },
        { Qt::Key_Enter, nullptr, &InstrumentInfo::editSerialNumber },
    };
    resize(kWidth, kHeight);
    LabelLook::setBackground(m_bar, QStringLiteral("#004882"));
    ReadingMarks::select(m_bar);
    const char *const names[Lines][2] = { { "sn_t", "sn" }, { "model_t", "model" } };
    const QString captions[Lines] = { tr("S/N"), tr("Model") };
    for (int line = 0; line < Lines; ++line) {
        const int top = kTop + line * kPitch;
        QLabel *caption = addLabel(this, names[line][0], QRect(40, top, 160, kLineHeight), Qt::AlignLeft);
        fitText(caption, captions[line], kLetters);
        m_values[line] = addLabel(this, names[line][1], QRect(210, top, 390, kLineHeight), Qt::AlignRight);
    }
    addLabel(this, "btn_f4", QRect(383, 144, 124, 34), Qt::AlignHCenter);
    addLabel(this, "btn_f5", QRect(510, 144, 124, 34), Qt::AlignHCenter);
    finishForm();
    setKeys(keys);
    select(SerialNumber);
    showValues();
}

void InstrumentInfo::select(Line line)
{
    m_line = line;
    m_bar->setGeometry(24, kTop + line * kPitch, 592, kLineHeight);
}

void InstrumentInfo::editSerialNumber()
{
    if (m_line != SerialNumber)
        return;
    m_serialNumber
        = VirtualKeyBoard::getKeyBoardInput(tr("S/N"), m_serialNumber, QStringLiteral("^.+$"), kLongestNumber);
    showValues();
}

void InstrumentInfo::stepModel(int step)
{
    if (m_line != Model)
        return;
    m_model = std::clamp(m_model + step, 0, int(UserConfig::modelNames().size()) - 1);
    showValues();
}

void InstrumentInfo::showValues()
{
    fitText(m_values[SerialNumber], m_serialNumber, kLetters);
    fitText(m_values[Model], UserConfig::modelNames().value(m_model), kLetters);
}

void InstrumentInfo::store()
{
    if (m_serialNumber != m_userConfig_g.getInstrumentSN())
        m_userConfig_g.setInstrumentSN(m_serialNumber);
    // Storing a model by its name writes the other label (UserConfig): not to be done where none was chosen.
    if (m_model != m_modelBefore)
        m_userConfig_g.setInstrumentModelByName(UserConfig::modelNames().value(m_model));
    accept();
}
