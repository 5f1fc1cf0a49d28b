#include "user/userdatepage.h"

#include "device/deviceinit.h"
#include "platform/clock.h"
#include "settings/config_data.h"
#include "user/timezones.h"
#include "widgets/dialogs/softkeydialog.h"
#include "settings/localtime.h"

#include <QLabel>

#include <algorithm>

namespace {

constexpr int kTop = 60, kPitch = 52; // of the rows, pixels
constexpr int kFollowMs = 1000;
constexpr int kZonePixels = 24;

} // namespace

UserDatePage::UserDatePage(QWidget *parent)
    : EditorPage(UI_USER, { QT_TRANSLATE_NOOP("UserDatePage", "Date & Time"), kTop, kPitch }, KeyRepeat::Pace(), parent)
{
    static const KeyRow<UserDatePage> keys[] = {
        { Qt::Key_F4, QT_TRANSLATE_NOOP("UserDatePage", "Ok"), &UserDatePage::ok },
        { Qt::Key_F5, QT_TRANSLATE_NOOP("UserDatePage", "Cancel"), &UserDatePage::cancel },
    };
    setRows(rows());
    setKeys(keys);
    connect(this, &EditorPage::stored, this, &UserDatePage::goUserMain);
    connect(this, &EditorPage::cancelled, this, &UserDatePage::goUserMain);
    m_clock.setInterval(kFollowMs);
    connect(&m_clock, &QTimer::timeout, this, [this] {
        followClock();
        showRows();
    });
}

std::vector<EditorPage::Row> UserDatePage::rows()
{
    std::vector<Row> fields = m_time.rows();
    fields.erase(fields.begin()); // when to start is no matter of the clock
    for (Row &field : fields) {
        field.enabled = {};
        field.step = [this, step = field.step](int steps) {
            m_changed = true;
            step(steps);
        };
    }
    fields.push_back({ "time_zone",
                       QT_TRANSLATE_NOOP("UserDatePage", "Time Zone:"),
                       [this] { return QString::fromLatin1(m_zone); },
                       [this](int steps) { stepZone(steps); },
                       {},
                       {} });
    return fields;
}

void UserDatePage::initDateTime()
{
    m_changed = false;
    takeZone(LocalTime::localTimeZone().id());
    m_zones = TimeZones::list(m_zone);
}

void UserDatePage::followClock()
{
    if (!m_changed)
        m_time.reset(Clock::now().toTimeZone(QTimeZone(m_zone)));
}

void UserDatePage::takeZone(const QByteArray &zone)
{
    m_zone = zone;
    // The longest name has 32 letters.
    SoftKeyDialog::fitText(findChild<QLabel *>(QStringLiteral("time_zone")), QString::fromLatin1(m_zone), kZonePixels);
    followClock();
}

void UserDatePage::showEvent(QShowEvent *event)
{
    EditorPage::showEvent(event);
    m_clock.start();
}

void UserDatePage::hideEvent(QHideEvent *event)
{
    m_clock.stop();
    EditorPage::hideEvent(event);
}

void UserDatePage::stepZone(int step)
{
    takeZone(m_zones.at(std::clamp(m_zones.indexOf(m_zone) + step, 0, m_zones.size() - 1)));
}

QByteArray UserDatePage::adjustdate(const QDateTime &time)
{
    const QDateTime utc = time.toUTC();
    const int year = utc.date().year();
    const int values[] = { utc.time().second(), utc.time().minute(), utc.time().hour(), utc.date().dayOfWeek(),
                           utc.date().day(),    utc.date().month(),  year & 0xff,       year >> 8 };
    QByteArray bytes;
    for (const int value : values)
        bytes.append(char(value));
    return bytes;
}

void UserDatePage::store()
{
    m_userConfig_g.setTimeZone(QString::fromLatin1(m_zone));
    // A zone alone must not take the seconds of the clock away.
    DeviceInit::setADSPHWClock(adjustdate(m_changed ? m_time.moment(QTimeZone(m_zone)) : Clock::now()));
    emit timeSet();
}
