#include "widgets/dialogs/savedialog.h"

#include "storage/fileinfo.h"
#include "platform/target.h"
#include "ui_savedialog.h"
#include "widgets/dialogs/message.h"
#include "widgets/dialogs/virtualkeyboard.h"
#include "settings/localtime.h"

#include <QFile>

int SaveDialog::save(int filter, QString &name)
{
    SaveDialog dialog(filter, name);
    if (dialog.exec() != QDialog::Accepted)
        return NoFile;
    name = dialog.name();
    FileInfo().saveInfoBehind(name, LocalTime::currentDateTime());
    return dialog.fileType();
}

SaveDialog::SaveDialog(int filter, const QString &name, QWidget *parent)
    : SoftKeyDialog(parent), m_ui(new Ui::SaveDialog), m_prefix(name), m_dataOffered(filter & FilterData)
{
    static const FrontKeys::KeyRow<SaveDialog> keys[] = {
        { Qt::Key_F4, QT_TRANSLATE_NOOP("SaveDialog", "Ok"), &SaveDialog::takeName },
        { Qt::Key_F5, QT_TRANSLATE_NOOP("SaveDialog", "Cancel"), &SaveDialog::reject },
        { Qt::Key_Down, nullptr, &SaveDialog::changeFileType },
        { Qt::Key_Enter, nullptr, &SaveDialog::editName },
    };
    m_ui->setupUi(this);
    m_ui->file_name->setStyleSheet(QStringLiteral("QLabel { background-color: rgb(5, 8, 15); border: 1px solid "
                                                  "rgb(69, 200, 255); border-radius: 3px; padding-left: 6px; }"));
    m_ui->screen->setChecked(true);
    m_ui->data->setEnabled(m_dataOffered);
    m_ui->data->setVisible(m_dataOffered);
    for (QWidget *control : { static_cast<QWidget *>(m_ui->screen), static_cast<QWidget *>(m_ui->data) })
        control->setFocusPolicy(Qt::NoFocus); // all keys come to the dialog
    fitText(m_ui->hint, m_ui->hint->text(), 14);
    finishForm();
    setKeys(keys);
    getDefaultFileName();
}

SaveDialog::~SaveDialog() = default;

int SaveDialog::fileType() const
{
    return m_ui->data->isChecked() ? DataFile : ScreenFile;
}

QString SaveDialog::fileName() const
{
    return FileInfo::storagePath() + m_name;
}

QString SaveDialog::suffix(int type)
{
    return type == DataFile ? QStringLiteral(".pqa") : QStringLiteral(".png");
}

void SaveDialog::setName(const QString &name)
{
    m_name = name;
    m_ui->file_name->setText(name);
}

void SaveDialog::getDefaultFileName()
{
    setName(FileInfo().getDefaultFileName(m_prefix, suffix(fileType())));
}

void SaveDialog::changeFileType()
{
    if (!m_dataOffered)
        return;
    (fileType() == DataFile ? m_ui->screen : m_ui->data)->setChecked(true);
    getDefaultFileName();
}

void SaveDialog::editName()
{
    const QString base = FileInfo::baseName(m_name);
    const QString edited = VirtualKeyBoard::getFileName(tr("File name:"), base);
    if (!edited.isEmpty())
        setName(edited + suffix(fileType()));
}

void SaveDialog::takeName()
{
    // No name is left when all 999 defaults are taken: one has to be typed first.
    if (!m_name.isEmpty() && CoverorNot(m_name))
        accept();
}

/// Whether the file may be written: it does not exist, or the user gives it up.
bool SaveDialog::CoverorNot(const QString &name)
{
    if (!FileInfo().testFileexist(name) && !QFile::exists(Target::path(FileInfo::storagePath() + name)))
        return true;
    const QString question = tr("The file \"") + name + tr("\" is exist.\nDo you want to overwrite it?");
    if (Message::showMessage(Message::YesNo, question) != Message::Yes)
        return false;
    FileInfo().removeInfoBehind(name);
    return true;
}
