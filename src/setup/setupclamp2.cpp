#include "setup/setupclamp2.h"

#include "setup/clampvalues.h"
#include "widgets/dialogs/message.h"
#include "widgets/dialogs/virtualkeyboard.h"

SetupClamp2::SetupClamp2(QWidget *parent)
    : EditorPage(UI_SETUP, { QT_TRANSLATE_NOOP("SetupClamp2", "Clamp"), 46, 50 }, paceOf(""), parent)
{
    static const KeyRow<SetupClamp2> keys[] = {
        { Qt::Key_F1, QT_TRANSLATE_NOOP("SetupClamp2", "Add"), &SetupClamp2::goClampAdd },
        { Qt::Key_F2, QT_TRANSLATE_NOOP("SetupClamp2", "Edit"), &SetupClamp2::editClamp },
        { Qt::Key_F3, QT_TRANSLATE_NOOP("SetupClamp2", "Delete"), &SetupClamp2::deleteClamp },
        { Qt::Key_F4, QT_TRANSLATE_NOOP("SetupClamp2", "Ok"), &SetupClamp2::ok },
        { Qt::Key_F5, QT_TRANSLATE_NOOP("SetupClamp2", "Cancel"), &SetupClamp2::cancel },
    };
    std::vector<Row> rows { channelRow(), clampRow() };
    for (const Row &row : clampInfo())
        rows.push_back(row);
    rows.push_back(ratioRow("i_ratio", QT_TRANSLATE_NOOP("SetupClamp2", "I Ratio :"), &ClampDraft::Side::ratioI));
    rows.push_back(ratioRow("v_ratio", QT_TRANSLATE_NOOP("SetupClamp2", "V Ratio :"), &ClampDraft::Side::ratioV));
    setRows(std::move(rows));
    setKeys(keys);
}

void SetupClamp2::load()
{
    m_draft.exitConfig();
    m_channel = ClampDraft::Phases;
}

EditorPage::Row SetupClamp2::channelRow()
{
    Row row { "channel", QT_TRANSLATE_NOOP("SetupClamp2", "Channel :"), {}, {}, {}, {} };
    row.text = [this] { return m_channel == ClampDraft::Phases ? tr("Phases") : tr("Neutral"); };
    row.step = [this](int step) { m_channel = step > 0 ? ClampDraft::Neutral : ClampDraft::Phases; };
    return row;
}

EditorPage::Row SetupClamp2::clampRow()
{
    Row row { "clamp", QT_TRANSLATE_NOOP("SetupClamp2", "Clamp :"), {}, {}, {}, {} };
    row.text = [this] { return fitted("clamp", currentClamp().name()); };
    row.step = [this](int step) {
        if (step > 0)
            m_draft.changeClampNext(m_channel);
        else
            m_draft.changeClampPrev(m_channel);
    };
    return row;
}

std::vector<EditorPage::Row> SetupClamp2::clampInfo()
{
    std::vector<Row> rows(3);
    rows[0].name = QStringLiteral("ratio");
    rows[0].caption = QT_TRANSLATE_NOOP("SetupClamp2", "Sensitivity :");
    rows[0].text = [this] { return ClampValues::sensitivityText(currentClamp().ratio()); };
    rows[1].name = QStringLiteral("range");
    rows[1].caption = QT_TRANSLATE_NOOP("SetupClamp2", "I range :");
    rows[1].text = [this] { return ClampValues::rangeText(currentClamp().range()); };
    rows[2].name = QStringLiteral("flexible");
    rows[2].caption = QT_TRANSLATE_NOOP("SetupClamp2", "Flexible :");
    rows[2].text = [this] { return currentClamp().flexible() ? tr("Yes") : tr("No"); };
    for (Row &row : rows)
        row.shownOnly = true;
    return rows;
}

EditorPage::Row SetupClamp2::ratioRow(const char *name, const char *caption, RatioChoice ClampDraft::Side::*ratio)
{
    const auto chosen = [this, ratio]() -> RatioChoice & { return m_draft.side(m_channel).*ratio; };
    Row row { QLatin1String(name), caption, {}, {}, {}, {} };
    row.text = [chosen] { return chosen().text(); };
    row.note = [chosen] { return chosen().isCustom() ? chosen().numbers() : QString(); };
    row.step = [chosen](int step) {
        if (step > 0)
            chosen().next();
        else
            chosen().prev();
    };
    row.enter = [this, caption, chosen] { editRatio(caption, chosen()); };
    return row;
}

void SetupClamp2::editRatio(const char *caption, RatioChoice &ratio)
{
    if (!ratio.isCustom())
        return;
    constexpr int kDigits = 5;
    bool accepted = false;
    const auto typed = [&](const QString &part, int number) {
        const QString title = QStringLiteral("%1 %2").arg(tr(caption), part);
        return VirtualKeyBoard::getKeyBoardInput(title, QString::number(number),
                                                 QLatin1String(ClampValues::kRatioPattern), kDigits, &accepted)
            .toInt();
    };
    const int numerator = typed(tr("numerator"), ratio.numerator());
    if (!accepted)
        return;
    const int denominator = typed(tr("denominator"), ratio.denominator());
    if (accepted)
        ratio.setCustom(numerator, denominator);
}

bool SetupClamp2::addClamp(const Clamp &clamp)
{
    const bool added = m_draft.addClamp(m_channel, clamp);
    showRows();
    return added;
}

bool SetupClamp2::changeClamp(const Clamp &clamp)
{
    const bool changed = m_draft.editClamp(m_channel, clamp);
    showRows();
    return changed;
}

bool SetupClamp2::refuseBuiltIn()
{
    stopRepeat();
    if (currentClamp().editable())
        return false;
    Message::showMessage(Message::Error, tr("Uneditable Clamp!"));
    return true;
}

void SetupClamp2::editClamp()
{
    if (!refuseBuiltIn())
        emit goClampEdit();
}

void SetupClamp2::deleteClamp()
{
    if (refuseBuiltIn() || Message::showMessage(Message::YesNo, tr("Delete the Clamp?")) != Message::Yes)
        return;
    m_draft.removeClamp(m_channel);
    showRows();
}
