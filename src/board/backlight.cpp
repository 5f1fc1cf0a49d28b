#include "board/backlight.h"

#include "device/trace.h"
#include "platform/ordinaryfile.h"
#include "platform/target.h"

#include <QTimer>
#include <algorithm>

BackLight::__light_level BackLight::m_bl = BackLight::Level3;
int BackLight::m_delay = 0;
bool BackLight::m_is_shut = false;
QTimer *BackLight::m_timer = nullptr;

namespace {

constexpr const char *bl_levels[] = { "1", "3", "5", "7" };
constexpr int kShortestDelay = 3; // s
constexpr int kLongestDelay = 24 * 3600; // s; keeps the milliseconds inside an int

} // namespace

void BackLight::writeLevel(int level)
{
    const QString path = Target::path(QStringLiteral("/sys/class/backlight/backlight/brightness"));
    if (!OrdinaryFile::write(path, bl_levels[level]))
        QV_TRACE("device/backlight") << "Failed to open backlight ctrl";
}

void BackLight::setBackLight(int level)
{
    m_bl = static_cast<__light_level>(std::clamp<int>(level, Level0, Level3));
    writeLevel(m_bl);
}

void BackLight::switchBackLight()
{
    setBackLight(m_bl == Level0 ? Level3 : m_bl - 1);
}

void BackLight::setBackLightDeley(int seconds)
{
    m_delay = seconds >= kShortestDelay ? std::min(seconds, kLongestDelay) * 1000 : 0;
    if (m_timer)
        m_timer->stop();
    startBackLightDeley();
}

void BackLight::startBackLightDeley()
{
    if (m_delay == 0)
        return;
    if (!m_timer) {
        m_timer = new QTimer;
        QObject::connect(m_timer, &QTimer::timeout, m_timer, &BackLight::shutDownBL);
    }
    m_timer->start(m_delay);
}

void BackLight::recoverBackLight()
{
    m_is_shut = false;
    if (m_timer)
        m_timer->stop();
    writeLevel(m_bl);
}

void BackLight::shutDownBL()
{
    m_is_shut = true;
    if (m_timer)
        m_timer->stop();
    writeLevel(Level0);
}
