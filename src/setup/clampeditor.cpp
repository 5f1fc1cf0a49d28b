#include "setup/clampeditor.h"

#include "setup/clampvalues.h"
#include "setup/nametext.h"
#include "widgets/dialogs/message.h"
#include "widgets/dialogs/virtualkeyboard.h"

#include <algorithm>

namespace {

constexpr int kLongestNumber = 5;

} // namespace

ClampEditor::ClampEditor(QWidget *parent)
    : EditorPage(UI_SETUP, { QT_TRANSLATE_NOOP("ClampEditor", "Clamp Editor"), 80 }, paceOf(""), parent),
      m_rangeMax(ClampValues::kLargestTypedRange)
{
    static const KeyRow<ClampEditor> keys[] = {
        { Qt::Key_F4, QT_TRANSLATE_NOOP("ClampEditor", "Ok"), &ClampEditor::finish },
        { Qt::Key_F5, QT_TRANSLATE_NOOP("ClampEditor", "Cancel"), &ClampEditor::cancel },
    };
    setRows({
        { "name",
          QT_TRANSLATE_NOOP("ClampEditor", "Name :"),
          [this] { return fitted("name", m_clamp.name()); },
          {},
          [this] { editName(); },
          {} },
        { "ratio",
          QT_TRANSLATE_NOOP("ClampEditor", "Ratio :"),
          [this] { return ClampValues::sensitivityText(m_clamp.ratio()); },
          {},
          [this] { editRatio(); },
          {} },
        { "range",
          QT_TRANSLATE_NOOP("ClampEditor", "I range :"),
          [this] { return ClampValues::rangeText(m_clamp.range()); },
          {},
          [this] { editRange(); },
          {} },
        { "flexible",
          QT_TRANSLATE_NOOP("ClampEditor", "Flexible :"),
          [this] { return m_clamp.flexible() ? tr("Yes") : tr("No"); },
          [this](int step) { m_clamp.setFlexible(step > 0); },
          [this] { m_clamp.setFlexible(!m_clamp.flexible()); },
          {} },
    });
    setKeys(keys);
}

void ClampEditor::begin(const Clamp &clamp)
{
    m_begun = clamp;
    init_parameter();
    selectFirst();
}

void ClampEditor::load()
{
    m_clamp = m_begun;
    m_rangeMax = ClampValues::kLargestTypedRange;
    changeRangeMax();
}

void ClampEditor::editName()
{
    const QString typed
        = VirtualKeyBoard::getKeyBoardInput(tr("Clamp name"), m_clamp.name(), QString(), NameText::kLongest);
    m_clamp.setName(NameText::trimmed(typed));
}

void ClampEditor::editRatio()
{
    bool accepted = false;
    const QString typed
        = VirtualKeyBoard::getKeyBoardInput(tr("Ratio (mV/A)"), ClampValues::sensitivity(m_clamp.ratio()),
                                            QLatin1String(ClampValues::kSensitivityPattern), kLongestNumber, &accepted);
    const auto ratio = ClampValues::ratioOf(typed);
    if (!accepted || !ratio)
        return;
    m_clamp.setRatio(*ratio);
    changeRangeMax();
    m_clamp.setRange(std::min(m_clamp.range(), m_rangeMax));
}

void ClampEditor::editRange()
{
    bool accepted = false;
    const QString typed
        = VirtualKeyBoard::getKeyBoardInput(tr("I range (A)"), QString::number(m_clamp.range()),
                                            QLatin1String(ClampValues::kRangePattern), kLongestNumber, &accepted);
    if (accepted)
        m_clamp.setRange(std::clamp(typed.toInt(), 1, m_rangeMax));
}

void ClampEditor::changeRangeMax()
{
    m_rangeMax = std::min(ClampValues::changeRangeMax(m_clamp.ratio(), m_rangeMax), ClampValues::kLargestTypedRange);
}

void ClampEditor::finish()
{
    if (m_clamp.name().isEmpty()) {
        Message::showMessage(Message::Error, tr("Empty name!"));
    } else if (!NameText::isPlain(m_clamp.name())) {
        Message::showMessage(Message::Error, tr("Invalid name!"));
    } else {
        m_clamp.setDescription(ClampValues::description(m_clamp.name(), m_clamp.flexible()));
        emit finished();
    }
}
