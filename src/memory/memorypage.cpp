#include "memory/memorypage.h"

#include "memory/imageviewer.h"
#include "memory/recordview.h"
#include "platform/target.h"
#include "settings/config_data.h"
#include "settings/localtime.h"
#include "storage/fileinfo.h"
#include "storage/filesinuse.h"
#include "storage/massstorage.h"
#include "ui_memorypage.h"
#include "widgets/controls/labellook.h"
#include "widgets/dialogs/filecopingprogressbar.h"
#include "widgets/dialogs/message.h"

#include <QFile>
#include <QFileInfo>
#include <QHideEvent>
#include <QScopedValueRollback>

namespace {

constexpr float kGigabyte = 1024.0f; // MB

QString storedPath(const QByteArray &file)
{
    return FileInfo::storagePath() + QFile::decodeName(file);
}

QString targetPath(const QString &disk, const QByteArray &file)
{
    return disk + QLatin1Char('/') + QFile::decodeName(file);
}

/// A name as a question tells it.
QString shortName(const QByteArray &file)
{
    constexpr int kMost = 40; // signs
    const QString name = QFile::decodeName(file).simplified();
    return name.size() <= kMost ? name : name.left(kMost / 2) + QStringLiteral("...") + name.right(kMost / 2);
}

bool isOn(const QString &disk)
{
    return QFileInfo(Target::path(disk)).isDir();
}

} // namespace

MemoryPage::MemoryPage(QWidget *parent) : FunctionPage(UI_MEMORY, {}, parent), m_ui(new Ui::MemoryPage), m_list(nullptr)
{
    m_ui->setupUi(this);
    m_list = m_ui->files;
    LabelLook::dress(this);
    m_ui->verticalScrollBar->setFocusPolicy(Qt::NoFocus);
    m_ui->verticalScrollBar->setPageStep(FilesList::kRows);
    setModeKeys();
    showPlace();
}

MemoryPage::~MemoryPage() = default;

QString MemoryPage::roomText(float megabytes)
{
    return megabytes < kGigabyte ? QString::number(double(megabytes), 'f', 1) + QLatin1String(" M")
                                 : QString::number(double(megabytes / kGigabyte), 'f', 2) + QLatin1String(" G");
}

void MemoryPage::setModeKeys()
{
    static const KeyRow<MemoryPage> browsing[] = {
        { Qt::Key_F1, QT_TRANSLATE_NOOP("MemoryPage", "Format"), &MemoryPage::deleteAllFile },
        { Qt::Key_F2, QT_TRANSLATE_NOOP("MemoryPage", "To USB"), &MemoryPage::toUsb },
        { Qt::Key_F3, QT_TRANSLATE_NOOP("MemoryPage", "Delete"), &MemoryPage::toDelete },
        { Qt::Key_F4, QT_TRANSLATE_NOOP("MemoryPage", "View"), &MemoryPage::view },
        { Qt::Key_F5, QT_TRANSLATE_NOOP("MemoryPage", "Back"), &MemoryPage::goBack },
        { Qt::Key_Enter, nullptr, &MemoryPage::checkPW },
    };
    static const KeyRow<MemoryPage> choosing[] = {
        { Qt::Key_F1, QT_TRANSLATE_NOOP("MemoryPage", "SelectAll"), &MemoryPage::selectAll },
        { Qt::Key_F2, QT_TRANSLATE_NOOP("MemoryPage", "SelectNone"), &MemoryPage::selectNone },
        { Qt::Key_F4, nullptr, &MemoryPage::actOnChosen }, // its caption says what for they are chosen
        { Qt::Key_F5, QT_TRANSLATE_NOOP("MemoryPage", "Cancel"), &MemoryPage::cancel },
        { Qt::Key_Enter, nullptr, &MemoryPage::toggle },
    };
    if (m_mode == Browsing)
        setKeys(browsing);
    else
        setKeys(choosing);
}

std::vector<FrontKeys::Row> MemoryPage::commonKeys()
{
    const auto step = [this](int rows) { move(rows); };
    return { { Qt::Key_Up, nullptr, {}, step, -1, {} }, { Qt::Key_Down, nullptr, {}, step, 1, {} } };
}

void MemoryPage::retranslateUi()
{
    FunctionPage::retranslateUi();
    if (m_mode != Browsing) {
        setKeyCaption(3, QString());
        setKeyCaption(4, m_mode == ChoosingForUsb ? tr("To USB") : tr("Delete"));
    }
    showCapacity();
    m_list->refresh(); // its column titles
}

bool MemoryPage::pressKey(int key)
{
    if (key != Qt::Key_Enter && key != Qt::Key_Return)
        m_pressed.press(key);
    // The functions wait until one is back where one came from.
    if (key >= Qt::Key_F6 && key <= Qt::Key_F11)
        return true;
    const bool begins = (key >= Qt::Key_F1 && key <= Qt::Key_F4) || key == Qt::Key_Enter || key == Qt::Key_Return;
    if (!begins)
        return FunctionPage::pressKey(key);
    if (m_busy || m_acting)
        return true;
    // A dialog that was answered has not returned yet when the next key arrives behind it.
    const QScopedValueRollback<bool> acting(m_acting, true);
    return FunctionPage::pressKey(key);
}

void MemoryPage::enter()
{
    setMode(Browsing);
    m_pressed.clear();
    m_atTop = false; // what was selected last time may stand further down now
    reflashFilesList();
}

void MemoryPage::hideEvent(QHideEvent *event)
{
    if (m_viewer && !event->spontaneous())
        m_viewer->close();
    FunctionPage::hideEvent(event);
}

void MemoryPage::focusInEvent(QFocusEvent *event)
{
    // The window hands the keyboard to its page; while a picture covers it, the keys are the picture's.
    if (m_viewer && m_viewer->isVisible())
        m_viewer->setFocus();
    else
        FunctionPage::focusInEvent(event);
}

void MemoryPage::setMode(Mode mode)
{
    m_mode = mode;
    m_list->setEditing(mode != Browsing);
    m_list->setInUse(FilesInUse::names());
    setModeKeys();
    highLightF4();
}

void MemoryPage::work(const QString &text, std::function<void()> work, std::function<void()> then)
{
    m_busy = true;
    setText(m_ui->state, text);
    m_work.run(std::move(work), [this, then = std::move(then)] {
        setText(m_ui->state, QString());
        then(); // may ask or copy: until that is through nothing else begins
        m_busy = false;
    });
}

void MemoryPage::reflashFilesList()
{
    struct Found
    {
        QVector<StoredItem> items;
        QSet<QByteArray> inUse;
        float used = 0, free = 0;
    };
    const auto found = std::make_shared<Found>();
    const QTimeZone zone = LocalTime::localTimeZone();
    const auto look = [found, zone] {
        found->items = StoredItems::read(zone);
        found->inUse = FilesInUse::names();
        found->used = MassStorage::storageUsedSize(FileInfo::storagePath());
        found->free = MassStorage::storageFreeSize(FileInfo::storagePath());
    };
    m_work.run(look, [this, found] {
        m_used = found->used;
        m_free = found->free;
        m_list->setItems(found->items, found->inUse);
        if (!m_atTop)
            m_list->toTop();
        m_atTop = true;
        showCapacity();
        showPlace();
    });
}

void MemoryPage::showCapacity()
{
    setText(m_ui->disk_used, tr("Used:") + QLatin1Char(' ') + roomText(m_used));
    setText(m_ui->disk_free, tr("Free:") + QLatin1Char(' ') + roomText(m_free));
}

void MemoryPage::showPlace()
{
    const ScrollModel &scroll = m_list->scroll();
    setText(m_ui->files_count, QStringLiteral("%1/%2").arg(scroll.selected() + 1).arg(scroll.count()));
    m_ui->verticalScrollBar->setRange(0, std::max(scroll.count() - FilesList::kRows, 0));
    m_ui->verticalScrollBar->setValue(scroll.first());
    m_ui->verticalScrollBar->setVisible(scroll.count() > FilesList::kRows);
    highLightF4();
}

void MemoryPage::highLightF4()
{
    const FileListItem *item = m_list->current();
    const bool acts = m_mode != Browsing || (item && (item->isPicture() || RecordView::canShow(item->item)));
    LabelLook::setColor(m_ui->btn_f4, acts ? QColor(Qt::black) : QColor(144, 144, 144));
}

void MemoryPage::move(int rows)
{
    m_list->move(rows);
    showPlace();
}

void MemoryPage::selectAll()
{
    m_list->setInUse(FilesInUse::names());
    m_list->checkAll(true);
}

void MemoryPage::toggle()
{
    m_list->setInUse(FilesInUse::names()); // a recording may have begun or ended since the list was read
    if (!m_list->toggleCurrent())
        Message::showMessage(Message::Info, tr("The file is in use by the running measurement."));
}

void MemoryPage::checkPW()
{
    const ServiceKeys pressed = m_pressed;
    m_pressed.clear();
    if (pressed.were({ 'R', 'L', 'R', 'R', 'L', 'L', 'R', 'L' }))
        deleteAllFile();
}

void MemoryPage::deleteAllFile()
{
    const auto refuse
        = [] { Message::showMessage(Message::Info, tr("A recording is running.\nIt has to end first.")); };
    if (!FilesInUse::names().isEmpty())
        return refuse();
    if (Message::showMessage(Message::Warning, tr("It will format the mass storage, \nDo you continue?"))
        != Message::Ok)
        return;
    const auto good = std::make_shared<bool>();
    work(
        tr("Deleting..."), [good] { *good = StoredItems::removeAll(); },
        [this, good, refuse] {
            reflashFilesList();
            if (!*good)
                refuse();
        });
}

void MemoryPage::view()
{
    const FileListItem *item = m_list->current();
    if (item && item->isPicture())
        viewPicture(storedPath(item->item.file));
    else if (item && RecordView::canShow(item->item))
        viewRecord(storedPath(item->item.file));
}

void MemoryPage::viewPicture(const QString &path)
{
    const auto image = std::make_shared<QImage>();
    work(
        QString(), [image, path] { *image = ImageViewer::read(path); },
        [this, image] {
            if (!isVisible())
                return;
            if (image->isNull())
                Message::showMessage(Message::Error, tr("Error!!!"));
            else
                m_viewer = ImageViewer::viewImage(*image, this);
        });
}

void MemoryPage::viewRecord(const QString &path)
{
    const auto reading = std::make_shared<RecordView::Reading>();
    const QPointer<RecordView> view = new RecordView(reading, this);
    m_viewer = view;
    view->cover();
    const MonitorLimits2 limits(m_limits_g.activeLimitsName(), *m_limits_g.getLimitsInUsed());
    work(
        QString(), [reading, path = Target::path(path), limits] { RecordView::read(reading.get(), path, limits); },
        [this, reading, view] {
            if (!view)
                return; // left before it was through
            const bool good = reading->judgement && reading->source.state != RecordState::Unreadable;
            if (good)
                return view->showReading();
            view->close();
            setFocus();
            if (isVisible())
                Message::showMessage(Message::Error, tr("Error!!!"));
        });
}

void MemoryPage::actOnChosen()
{
    if (m_mode == ChoosingForUsb)
        copyMultiFiles();
    else
        delMultiFiles();
    m_list->refresh();
}

void MemoryPage::delMultiFiles()
{
    const QList<QByteArray> files = m_list->checkedFiles();
    if (files.isEmpty() || Message::showMessage(Message::Warning, tr("Delete the file?")) != Message::Ok)
        return;
    const auto left = std::make_shared<QList<QByteArray>>();
    work(
        tr("Deleting..."), [files, left] { *left = StoredItems::remove(files); },
        [this, left] {
            reflashFilesList();
            if (!left->isEmpty() && isVisible())
                Message::showMessage(Message::Error, tr("Error! Try egain."));
        });
}

void MemoryPage::copyMultiFiles()
{
    const QList<QByteArray> files = m_list->checkedFiles();
    if (files.isEmpty())
        return;
    if (m_medias.isEmpty()) {
        Message::showMessage(Message::Error, tr("Error!!!") + QLatin1Char('\n') + tr("Please insert USB Disk..."));
        return;
    }
    if (Message::showMessage(Message::Warning, tr("Copy the files?")) != Message::Ok)
        return;
    const QString disk = m_medias.value(0); // it may have been pulled out meanwhile: then the copy fails
    const auto standing = std::make_shared<QSet<QByteArray>>();
    const auto look = [files, disk, standing] {
        for (const QByteArray &file : files) {
            const QFileInfo target(Target::path(targetPath(disk, file)));
            if (target.exists() || target.isSymLink())
                standing->insert(file);
        }
    };
    work(QString(), look, [this, files, disk, standing] {
        if (isVisible() && m_mode == ChoosingForUsb)
            askAndCopy(files, disk, *standing);
    });
}

void MemoryPage::askAndCopy(const QList<QByteArray> &files, const QString &disk, const QSet<QByteArray> &standing)
{
    QList<QByteArray> chosen;
    QVector<CopyBatch::Job> jobs;
    const Message::_TYPE type = standing.size() > 1 ? Message::EachOrAll : Message::YesNo;
    int answer = Message::None;
    for (const QByteArray &file : files) {
        const QString question = shortName(file) + QLatin1Char('\n') + tr("File already exists,\nReplace the file?");
        if (standing.contains(file)) {
            if (answer != Message::YesToAll && answer != Message::NoToAll)
                answer = Message::showMessage(type, question);
            if (answer != Message::Yes && answer != Message::YesToAll)
                continue;
        }
        chosen << file;
        jobs << CopyBatch::Job { storedPath(file), targetPath(disk, file) };
    }
    if (jobs.isEmpty())
        return;
    int copied = 0;
    const CopyBatch::Result result = FileCopingProgressBar::copyFiles(jobs, &copied);
    m_list->uncheck(chosen.mid(0, copied)); // the others are left for another attempt
    if (result == CopyBatch::NoRoom)
        Message::showMessage(Message::Error, tr("Insufficient storage space in Removable Storage Device."));
    else if (result == CopyBatch::Failed)
        Message::showMessage(Message::Error, isOn(disk) ? tr("Error! Try egain.") : tr("Error!!!"));
}
