#include "pages/page.h"

#include "board/screenshot.h"
#include "record/pqafile.h"
#include "settings/config_data.h"
#include "settings/phasecolor.h"
#include "widgets/dialogs/savedialog.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLabel>

namespace {

/// Function keys that ask for another page, the same on every page.
const struct
{
    int key;
    _quvera_ui_type target;
} kExits[] = {
    { Qt::Key_F6, UI_SCOPE }, { Qt::Key_F7, UI_MENU },    { Qt::Key_F8, UI_MONITOR },
    { Qt::Key_F9, UI_SETUP }, { Qt::Key_F10, UI_MEMORY },
};

} // namespace

Page::Page(_quvera_ui_type type, QWidget *parent)
    : QDialog(parent), m_type(type), m_phaseColors(PhaseColor::digits()), m_keys(this)
{
    setFocusPolicy(Qt::StrongFocus);
}

void Page::finishKeys(std::vector<FrontKeys::Row> rows)
{
    for (FrontKeys::Row &row : commonKeys())
        rows.push_back(std::move(row));
    m_keys.setRows(std::move(rows));
    retranslateUi();
}

void Page::retranslateUi()
{
    for (const FrontKeys::Row &row : m_keys.rows()) {
        if (row.caption)
            setKeyCaption(row.key - Qt::Key_F1 + 1,
                          QCoreApplication::translate(metaObject()->className(), row.caption));
    }
}

void Page::setKeyCaption(int number, const QString &text)
{
    setText(findChild<QLabel *>(QStringLiteral("btn_f%1").arg(number)), text);
}

void Page::setText(QLabel *label, const QString &text)
{
    if (label && label->text() != text)
        label->setText(text);
}

void Page::keyPressEvent(QKeyEvent *event)
{
    event->setAccepted(FrontKeys::press(*event, [this](int key) { return pressKey(key); }));
}

void Page::keyReleaseEvent(QKeyEvent *event)
{
    m_keys.release(*event);
    event->ignore();
}

void Page::focusInEvent(QFocusEvent *)
{
    if (auto *button = findChild<QWidget *>(QStringLiteral("nouse"), Qt::FindDirectChildrenOnly))
        button->setFocus();
}

void Page::showEvent(QShowEvent *event)
{
    const QString colors = PhaseColor::digits();
    if (m_phaseColors != colors) {
        m_phaseColors = colors;
        retranslateUi(); // every caption anew, with its colour
    }
    QDialog::showEvent(event);
}

bool Page::pressKey(int key)
{
    if (m_keys.act(key))
        return true;
    for (const auto &exit : kExits) {
        if (exit.key == key) {
            emit leave(exit.target);
            return true;
        }
    }
    if (key == Qt::Key_F11 && saveIdentity().windowId != 0) {
        saveToFile();
        return true;
    }
    switch (key) {
    case Qt::Key_F1:
    case Qt::Key_F2:
    case Qt::Key_F3:
    case Qt::Key_F4:
    case Qt::Key_F5:
    case Qt::Key_Left:
    case Qt::Key_Up:
    case Qt::Key_Right:
    case Qt::Key_Down:
    case Qt::Key_Enter:
    case Qt::Key_Return:
        return true;
    default:
        return false; // F11 rises to the container, F12 and Power to the main window
    }
}

void Page::saveToFile()
{
    enum { Picture = 1, Data = 2 };

    const SaveIdentity identity = saveIdentity();
    const QByteArray record = pqaData();
    PqaFile file(identity.windowId, m_settingConfig_g.derived(), ScreenShot::getScreenPng());
    if (!record.isEmpty())
        file.writeFileData(record.constData(), quint32(record.size()));
    QString name = QString::fromLatin1(identity.defaultName);
    // Filter 1 offers the picture only; the data branch stands ready.
    switch (SaveDialog::save(1, name)) {
    case Picture:
        file.saveSnapshot(name);
        break;
    case Data:
        if (!record.isEmpty())
            file.saveDataFile(name);
        break;
    default:
        break;
    }
}
