#include "widgets/dialogs/filemanager.h"

#include "platform/target.h"
#include "ui_filemanager.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

constexpr int kPathRole = Qt::UserRole;
constexpr int kFolderRole = Qt::UserRole + 1;

static const char *const kUsableStyle
    = "background-color: transparent;background-image: url(:/button);color: rgb(0, 0, 0);";
static const char *const kUselessStyle
    = "background-color: transparent;background-image: url(:/button);color: rgb(144, 144, 144);";
static const char *const kListStyle
    = "QListWidget { background-color: rgb(5, 8, 15); color: rgb(255, 255, 255);"
      " border: 1px solid rgb(60, 90, 134); outline: none; }"
      "QListWidget::item { height: 30px; padding-left: 6px; border: 0px; background: transparent; }"
      "QListWidget::item:selected { background-color: rgb(31, 111, 208);"
      " color: rgb(255, 255, 255); }";

QString FileManager::getExistFileName()
{
    FileManager manager;
    return manager.exec() == QDialog::Accepted ? manager.chosenFile() : QString();
}

FileManager::FileManager(QWidget *parent) : SoftKeyDialog(parent), m_ui(new Ui::FileManager)
{
    static const FrontKeys::KeyRow<FileManager> keys[] = {
        { Qt::Key_F1, nullptr, &FileManager::openSelected }, // its text follows the selection
        { Qt::Key_F2, QT_TRANSLATE_NOOP("FileManager", "Fold Dir"), &FileManager::cdParentDir },
        { Qt::Key_F4, QT_TRANSLATE_NOOP("FileManager", "Select"), &FileManager::chooseFile },
        { Qt::Key_F5, QT_TRANSLATE_NOOP("FileManager", "Cancel"), &FileManager::reject },
        { Qt::Key_Up, nullptr, &FileManager::selectPrevious },
        { Qt::Key_Down, nullptr, &FileManager::selectNext },
        { Qt::Key_Enter, nullptr, &FileManager::cdSubDir },
    };
    m_ui->setupUi(this);
    m_ui->list->setStyleSheet(QString::fromLatin1(kListStyle));
    m_ui->list->setFocusPolicy(Qt::NoFocus);
    finishForm();
    setKeys(keys);
    connect(m_ui->list, &QListWidget::currentRowChanged, this, &FileManager::showKeys);
    connect(&m_disks, &uDiskStorage::uDiskStorageChanged, this, &FileManager::disksChanged);
    refresh();
}

FileManager::~FileManager() = default;

bool FileManager::isFolder(const QListWidgetItem *item) const
{
    return item && item->data(kFolderRole).toBool();
}

void FileManager::addItem(const char *icon, const QString &text, const QString &path, bool isFolder)
{
    const QPixmap picture(QString::fromLatin1(icon));
    QIcon plain(picture);
    plain.addPixmap(picture, QIcon::Selected); // not tinted by the selection
    auto *item = new QListWidgetItem(plain, text, m_ui->list);
    item->setData(kPathRole, path);
    item->setData(kFolderRole, isFolder);
}

void FileManager::listDisks()
{
    for (const QString &disk : m_disks.Storages())
        addItem(":/driver", QStringLiteral("UDisk"), disk, true);
}

void FileManager::listFolder()
{
    const QFileInfoList entries = QDir(Target::path(m_folder))
                                      .entryInfoList(QDir::Dirs | QDir::Files | QDir::NoDotAndDotDot,
                                                     QDir::DirsFirst | QDir::Name | QDir::IgnoreCase);
    for (const QFileInfo &entry : entries) {
        addItem(entry.isDir() ? ":/folder" : ":/file", entry.fileName(), m_folder + QLatin1Char('/') + entry.fileName(),
                entry.isDir());
    }
}

void FileManager::refresh()
{
    m_ui->list->clear();
    if (m_folder.isEmpty())
        listDisks();
    else
        listFolder();
    m_ui->list->setCurrentRow(0);
    const QString place = m_folder.mid(uDiskStorage::mediaPath().size());
    m_ui->path->setText(m_ui->path->fontMetrics().elidedText(place, Qt::ElideLeft, m_ui->path->width()));
    showKeys();
}

void FileManager::disksChanged(const QStringList &disks)
{
    const auto onDisk
        = [this](const QString &disk) { return (m_folder + QLatin1Char('/')).startsWith(disk + QLatin1Char('/')); };
    if (!m_folder.isEmpty() && std::none_of(disks.begin(), disks.end(), onDisk))
        m_folder.clear(); // the disk was pulled out
    if (m_folder.isEmpty())
        refresh();
}

void FileManager::showKeys()
{
    const QListWidgetItem *item = m_ui->list->currentItem();
    const bool onFile = item && !isFolder(item);
    setKeyText(1, onFile ? tr("Select") : tr("Open Dir"));
    setKeyUsable(1, item);
    setKeyUsable(2, !m_folder.isEmpty());
    setKeyUsable(4, onFile);
    setKeyUsable(5, true);
}

void FileManager::setKeyUsable(int number, bool usable)
{
    const int bit = 1 << number;
    if (m_usable >= 0 && bool(m_usable & bit) == usable && !softKey(number)->styleSheet().isEmpty())
        return; // a sheet is parsed only when it changes
    m_usable = usable ? std::max(m_usable, 0) | bit : std::max(m_usable, 0) & ~bit;
    softKey(number)->setStyleSheet(QString::fromLatin1(usable ? kUsableStyle : kUselessStyle));
}

void FileManager::moveSelection(int step)
{
    const int row = m_ui->list->currentRow() + step;
    if (row >= 0 && row < m_ui->list->count())
        m_ui->list->setCurrentRow(row);
}

void FileManager::selectPrevious()
{
    moveSelection(-1);
}

void FileManager::selectNext()
{
    moveSelection(1);
}

void FileManager::openSelected()
{
    if (isFolder(m_ui->list->currentItem()))
        cdSubDir();
    else
        chooseFile();
}

void FileManager::cdSubDir()
{
    const QListWidgetItem *item = m_ui->list->currentItem();
    if (!isFolder(item))
        return;
    m_folder = item->data(kPathRole).toString();
    refresh();
}

void FileManager::cdParentDir()
{
    if (m_folder.isEmpty())
        return;
    const QString left = m_folder;
    m_folder = left.left(left.lastIndexOf(QLatin1Char('/')));
    if (m_folder.size() < uDiskStorage::mediaPath().size())
        m_folder.clear(); // above the top of a disk is the list of disks
    refresh();
    for (int row = 0; row < m_ui->list->count(); ++row) {
        if (m_ui->list->item(row)->data(kPathRole).toString() == left)
            m_ui->list->setCurrentRow(row);
    }
}

void FileManager::chooseFile()
{
    const QListWidgetItem *item = m_ui->list->currentItem();
    if (!item || isFolder(item))
        return;
    m_chosen = item->data(kPathRole).toString();
    accept();
}
