#include "pages/functionpage.h"

#include "board/screenshot.h"
#include "record/pqafile.h"
#include "settings/config_data.h"
#include "widgets/dialogs/savedialog.h"

FunctionPage::FunctionPage(_quvera_ui_type type, SaveIdentity identity, QWidget *parent)
    : LivePage(type, parent), m_identity(identity)
{ }

bool FunctionPage::pressKey(int key)
{
    if (key != Qt::Key_F11)
        return LivePage::pressKey(key);
    saveToFile();
    return true;
}

void FunctionPage::saveToFile()
{
    enum { Picture = 1, Data = 2 };

    const QByteArray record = pqaData();
    PqaFile file(m_identity.windowId, m_settingConfig_g.derived(), ScreenShot::getScreenPng());
    if (!record.isEmpty())
        file.writeFileData(record.constData(), quint32(record.size()));
    QString name = QString::fromLatin1(m_identity.defaultName);
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
