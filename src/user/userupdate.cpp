#include "user/userupdate.h"
#include "ui_userupdate.h"

#include "device/firmwareexchange.h"
#include "device/idevice.h"
#include "platform/target.h"
#include "settings/softwareversion.h"
#include "storage/udiskstorage.h"
#include "storage/wholefile.h"
#include "widgets/controls/labellook.h"
#include "widgets/dialogs/filemanager.h"
#include "widgets/dialogs/message.h"

#include <QFileInfo>

#include <algorithm>

namespace {

const QString kImage = QStringLiteral("/tmp/.firmwareupd.tmp"); // as the unpacker leaves it
const QString kUnpacker = QStringLiteral("update-unpack ");
constexpr int kBeforeBlocking = 50; // ms
constexpr int kRefused = 256; // what a command's exit status 1 is to the shell's caller

/// Numbers in errors: hexadecimal, two digits or more.
QString hex(quint32 number)
{
    return QStringLiteral("%1").arg(number, 2, 16, QLatin1Char('0'));
}

void removeImage()
{
    QFile::remove(Target::path(kImage));
}

} // namespace

UserUpdate::UserUpdate(QWidget *parent) : LivePage(UI_USER, parent), m_ui(new Ui::UserUpdate)
{
    static const KeyRow<UserUpdate> keys[] = {
        { Qt::Key_Left, nullptr, &UserUpdate::changeToPre },
        { Qt::Key_Right, nullptr, &UserUpdate::changeToNext },
        { Qt::Key_F1, QT_TRANSLATE_NOOP("UserUpdate", "Execute"), &UserUpdate::execute },
        { Qt::Key_F5, QT_TRANSLATE_NOOP("UserUpdate", "Exit"), &UserUpdate::goUserMain },
    };
    m_ui->setupUi(this);
    setObjectName(QStringLiteral("UserUpdate"));
    LabelLook::dress(this);
    for (QTimer *timer : { &m_start, &m_unpacking, &m_swallowing }) {
        timer->setSingleShot(true);
        timer->setInterval(kBeforeBlocking);
    }
    connect(&m_start, &QTimer::timeout, this, &UserUpdate::sysUpdate);
    connect(&m_unpacking, &QTimer::timeout, this, &UserUpdate::unpackSoftware);
    setKeys(keys);
    initUpdate();
}

UserUpdate::~UserUpdate() = default;

void UserUpdate::init_parameter()
{
    LivePage::init_parameter();
    if (!m_busy)
        initUpdate();
}

void UserUpdate::initUpdate()
{
    setText(m_ui->software_version,
            QStringLiteral("Software:%1.%2.%3_%4")
                .arg(kSoftwareMajor)
                .arg(kSoftwareMinor)
                .arg(kSoftwareBuild)
                .arg(QLatin1String(kSoftwareStamp)));
    const QStringList fields = m_idevice ? m_idevice->dspVersion().split(QLatin1Char(';')) : QStringList();
    if (fields.size() > 2 && fields[2].startsWith(QLatin1String("Firmware:")))
        setText(m_ui->firmware_version, fields[2]);
    debugInfo(QString());
    m_busy = false;
    setType(Software);
}

void UserUpdate::retranslateUi()
{
    LivePage::retranslateUi();
    setText(m_ui->title, tr("Update"));
    setType(m_type);
}

void UserUpdate::debugInfo(const QString &text)
{
    setText(m_ui->message, text);
}

void UserUpdate::setType(Type type)
{
    m_type = type;
    setText(m_ui->type, type == Software ? tr("Software") : tr("Firmware"));
}

/// From F1 to the end, also while one of the short waits lies between.
bool UserUpdate::isSwallowing() const
{
    return m_busy || m_start.isActive() || m_unpacking.isActive() || m_swallowing.isActive();
}

bool UserUpdate::pressKey(int key)
{
    return isSwallowing() || LivePage::pressKey(key);
}

void UserUpdate::execute()
{
    debugInfo(tr("Update in progress. Do not operate!!!"));
    m_start.start();
}

void UserUpdate::sysUpdate()
{
    if (m_busy)
        return;
    debugInfo(tr("Update in progress. Do not operate!!!"));
    m_busy = true;
    if (m_type == Software) {
        const Result result = updateSoftware();
        m_busy = false;
        if (result == Good)
            m_unpacking.start();
        else
            showResult(result);
        return;
    }
    const Result result = updateFirmware();
    if (result != Good) {
        clearFirmwareTmp();
        showResult(result);
    }
}

void UserUpdate::showResult(Result result)
{
    debugInfo(result == NoDisk ? tr("Please insert USB Disk...") : tr("File not found..."));
}

bool UserUpdate::isQuotable(const QString &path)
{
    // Between double quotes a shell reads nothing but these, and a command line ends with a line.
    const auto isRead
        = [](QChar c) { return c < QLatin1Char(' ') || c == QChar(0x7F) || QStringLiteral("\"$`\\").contains(c); };
    return path.startsWith(QLatin1Char('/')) && std::none_of(path.begin(), path.end(), isRead);
}

QString UserUpdate::unpackCommand(const QString &package)
{
    return kUnpacker + QLatin1Char('"') + package + QLatin1Char('"');
}

UserUpdate::Result UserUpdate::pickPackage(QString *package)
{
    if (!uDiskStorage().hasMassStorage())
        return NoDisk;
    *package = FileManager::getExistFileName();
    return isQuotable(*package) && QFileInfo::exists(Target::path(*package)) ? Good : NoFile;
}

UserUpdate::Result UserUpdate::updateSoftware()
{
    QString package;
    const Result result = pickPackage(&package);
    if (result == Good)
        m_command = unpackCommand(package);
    return result;
}

/// Runs the unpacker, which is told by its environment what the user chose. The screen stands still meanwhile; keys
/// that were pressed then come right behind, and go nowhere.
int UserUpdate::unpack(const QString &command)
{
    qputenv("QUVERA_UPDATE_KIND", m_type == Software ? "software" : "firmware");
    const int result = Target::shell(command);
    m_swallowing.start();
    return result;
}

void UserUpdate::unpackSoftware()
{
    const int result = unpack(m_command);
    if (result == 0)
        debugInfo(tr("Software update complete..."));
    else
        debugInfo(result == kRefused ? tr("Software update error...") : tr("Unkown error..."));
}

UserUpdate::Result UserUpdate::updateFirmware()
{
    QString package;
    const Result result = pickPackage(&package);
    if (result != Good)
        return result;
    removeImage(); // what an earlier update left must not be taken for what is unpacked now
    unpack(unpackCommand(package));
    QByteArray image;
    if (QFileInfo(Target::path(kImage)).isSymLink()
        || WholeFile::read(kImage, FirmwareExchange::kMostBytes, &image) != WholeFile::Read)
        return NoFile;
    startExchange(image);
    return Good;
}

void UserUpdate::startExchange(const QByteArray &image)
{
    m_exchange = std::make_unique<FirmwareExchange>(m_idevice);
    const FirmwareExchange *exchange = m_exchange.get();
    connect(exchange, &FirmwareExchange::dataTaken, this, [this] { debugInfo(tr("Firmware data checksum ok.")); });
    connect(exchange, &FirmwareExchange::flashFault, this, [this] { debugInfo(tr("Firmware update fault.")); });
    connect(exchange, &FirmwareExchange::completed, this, &UserUpdate::firmwareUpdateComplete);
    connect(exchange, &FirmwareExchange::refused, this, &UserUpdate::firmwareException);
    connect(exchange, &FirmwareExchange::timedOut, this, &UserUpdate::firmwareTimeOut);
    m_exchange->start(image);
}

void UserUpdate::firmwareUpdateComplete()
{
    clearFirmwareTmp();
    debugInfo(tr("Firmware update complete..."));
}

void UserUpdate::clearFirmwareTmp()
{
    removeImage();
    if (m_exchange) {
        m_exchange->disconnect(this);
        m_exchange.release()->deleteLater(); // one of its signals may lead here
    }
    m_busy = false;
    debugInfo(QString());
}

void UserUpdate::showError(int messageType, const QString &text)
{
    clearFirmwareTmp();
    Message::showMessage(messageType, tr("ErrCode: ") + text);
}

void UserUpdate::firmwareFatalError(quint32 value)
{
    showError(Message::Error, QStringLiteral("0000[D%1]").arg(hex(value)));
}

void UserUpdate::firmwareSPIError(quint32 value)
{
    showError(Message::Error, QStringLiteral("0001[D%1]").arg(hex(value)));
}

void UserUpdate::firmwareCrc32Error()
{
    showError(Message::Warning, QStringLiteral("0003"));
}

void UserUpdate::firmwareException(int stage, quint32 code, quint32 result)
{
    showError(Message::Warning, QStringLiteral("0005[S%1 S%2 D%3]").arg(hex(quint32(stage)), hex(code), hex(result)));
}

void UserUpdate::firmwareTimeOut(int stage)
{
    const bool faulty = m_exchange && m_exchange->status() == 1;
    switch (stage) {
    case FirmwareExchange::Announced:
        return showError(Message::Warning, QStringLiteral("0010 [C401 ") + tr("Timeout") + QLatin1Char(']'));
    case FirmwareExchange::DataSent:
        return showError(Message::Warning, QStringLiteral("0011 [C402 ") + tr("Timeout") + QLatin1Char(']'));
    case FirmwareExchange::Flashing:
        if (faulty)
            return showError(Message::Warning, QStringLiteral("0012 [") + tr("C403 Timeout") + QLatin1Char(']'));
        return clearFirmwareTmp(); // as nothing failed, nothing is shown
    default:
        return showError(Message::Warning, QStringLiteral("0013 [") + tr("Timeout") + QLatin1Char(']'));
    }
}

void UserUpdate::firmwareFlash()
{
    m_idevice->firmwareUpdate(FirmwareExchange::flashFrame());
}
