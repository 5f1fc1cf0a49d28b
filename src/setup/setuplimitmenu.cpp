#include "setup/setuplimitmenu.h"

#include "settings/config_data.h"
#include "setup/nametext.h"
#include "widgets/dialogs/message.h"
#include "widgets/dialogs/virtualkeyboard.h"

#include <algorithm>

SetupLimitMenu::SetupLimitMenu(QWidget *parent) : LineList(2, 130, KeyRepeat::Pace { 0, { 1 } }, parent)
{
    static const KeyRow<SetupLimitMenu> keys[] = {
        { Qt::Key_F1, QT_TRANSLATE_NOOP("SetupLimitMenu", "Add"), &SetupLimitMenu::addLimits },
        { Qt::Key_F2, nullptr, &SetupLimitMenu::deleteLimits },
        { Qt::Key_F3, nullptr, &SetupLimitMenu::nameLimits },
        { Qt::Key_F4, QT_TRANSLATE_NOOP("SetupLimitMenu", "Ok"), &SetupLimitMenu::selectOption },
        { Qt::Key_F5, QT_TRANSLATE_NOOP("SetupLimitMenu", "Cancel"), &SetupLimitMenu::closed },
        { Qt::Key_Enter, nullptr, &SetupLimitMenu::showDetailItem },
    };
    loadLimits();
    setKeys(keys);
}

bool SetupLimitMenu::isBuiltIn(const QString &name)
{
    return name == LimitsManager::builtin_en50160 || name == LimitsManager::builtin_gost32144;
}

void SetupLimitMenu::init_parameter()
{
    loadLimits();
    LineList::init_parameter();
    selectName(m_limits_g.activeLimitsName());
}

void SetupLimitMenu::loadLimits()
{
    m_names = m_limits_g.allLimitsList();
}

LineList::Line SetupLimitMenu::line(int index) const
{
    const QString &name = m_names.at(index);
    // Of several files of one name the first is the set.
    const bool used = name == m_limits_g.activeLimitsName() && m_names.indexOf(name) == index;
    return { fittedName(name), { isBuiltIn(name) ? tr("built-in") : QString(), used ? tr("in use") : QString() } };
}

QString SetupLimitMenu::selectedName() const
{
    return m_names.value(selected());
}

void SetupLimitMenu::lineChosen()
{
    // A built-in set keeps its name and stays.
    const bool own = !isBuiltIn(selectedName());
    setKeyCaption(2, own ? tr("Delete") : QString());
    setKeyCaption(3, own ? tr("Name") : QString());
}

void SetupLimitMenu::selectName(const QString &name)
{
    selectLine(std::max(int(m_names.indexOf(name)), 0));
}

QString SetupLimitMenu::askName(const QString &title, const QString &present)
{
    stopRepeat();
    bool accepted = false;
    const QString typed = VirtualKeyBoard::getKeyBoardInput(title, present, QString(), NameText::kLongest, &accepted);
    const QString name = NameText::trimmed(typed);
    if (!accepted || (name == present && !present.isEmpty()))
        return {};
    if (name.isEmpty())
        Message::showMessage(Message::Error, tr("Empty name!"));
    else if (!NameText::isFileName(name) || isBuiltIn(name))
        Message::showMessage(Message::Error, tr("Invalid name!"));
    else if (!m_names.contains(name) || Message::confirm(tr("It exists, Overwrite it?"), tr("Overwrite")))
        return name;
    return {};
}

void SetupLimitMenu::addLimits()
{
    const QString name = askName(tr("Name of the new limits"), QString());
    monitor_limit limit {};
    if (name.isEmpty() || !m_limits_g.getLimits(&limit, selectedName()))
        return;
    m_limits_g.add(name, limit);
    loadLimits();
    selectName(name);
}

void SetupLimitMenu::nameLimits()
{
    const QString present = selectedName();
    if (isBuiltIn(present))
        return;
    const QString name = askName(tr("Name of the limits"), present);
    if (name.isEmpty() || !m_limits_g.rename(present, name))
        return;
    loadLimits();
    selectName(name);
}

void SetupLimitMenu::deleteLimits()
{
    stopRepeat();
    if (isBuiltIn(selectedName()) || Message::showMessage(Message::YesNo, tr("Delete the Limits?")) != Message::Yes)
        return;
    m_limits_g.remove(selectedName());
    loadLimits();
    showLines();
}

void SetupLimitMenu::selectOption()
{
    stopRepeat();
    m_limits_g.changeActiveLimits(selectedName());
    emit closed();
}
