#include "panel/supply.h"

#include "panel/controltable.h"
#include "panel/screenfeed.h"

#include <QFile>
#include <QJsonDocument>

#include <algorithm>

namespace panel {

namespace {

constexpr std::chrono::milliseconds kReport(1000);
constexpr int kBoardLine = 64; // bytes that are read of a file of the board

struct BoardFile
{
    const char *name; // in the report
    const char *path; // under the root
};

constexpr BoardFile kBoardFiles[] = {
    { "light", "/sys/class/backlight/backlight/brightness" },
    { "charging", "/sys/class/gpio/gpio105/value" },
    { "charged", "/sys/class/gpio/gpio117/value" },
    { "gauge", "/sys/bus/iio/devices/iio:device0/in_voltage0_raw" },
    { "cable", "/sys/class/net/eth0/carrier" },
};

/// What the page takes from the stand-in's status.
constexpr const char *kShown[] = { "scenario", "speed", "usb", "faults", "f", "volts", "amps", "hertz" };

/// The last line of an answer.
QString lastLine(const QString &answer)
{
    return answer.section(QLatin1Char('\n'), -1);
}

} // namespace

Supply::Supply(const QString &root, Bulletin &bulletin) : m_root(root), m_bulletin(bulletin), m_line(root) { }

Supply::~Supply()
{
    end();
}

void Supply::end()
{
    {
        const std::lock_guard<std::mutex> guard(m_lock);
        m_ends = true;
    }
    m_changed.notify_all();
    wait();
}

// Asked for once a processor is there; the list does not change while it runs.
QStringList Supply::scenarios()
{
    {
        const std::lock_guard<std::mutex> guard(m_lock);
        if (!m_scenarios.isEmpty() || m_root.isEmpty())
            return m_scenarios;
    }
    QString answer;
    QStringList names;
    if (m_line.tell(QStringLiteral("scenario list"), &answer) && lastLine(answer).startsWith(QLatin1String("ok")))
        names = lastLine(answer).mid(3).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    const std::lock_guard<std::mutex> guard(m_lock);
    m_scenarios = names;
    return m_scenarios;
}

QByteArray Supply::controls()
{
    const QStringList names = scenarios();
    return names.isEmpty() ? QByteArray("[]") : controlsAsJson(names);
}

QString Supply::obey(const QJsonObject &wish)
{
    if (m_root.isEmpty())
        return QStringLiteral("The instrument is on no desk.");
    QString why;
    const QString command = commandFor(wish, scenarios(), &why);
    if (command.isEmpty())
        return why;
    QString answer;
    if (!m_line.tell(command, &answer))
        return QStringLiteral("The processor stand-in does not answer.");
    {
        const std::lock_guard<std::mutex> guard(m_lock);
        m_reportsNow = true;
    }
    m_changed.notify_all();
    const QString result = lastLine(answer);
    return result.startsWith(QLatin1String("ok")) ? QString() : result.mid(int(qstrlen("error: ")));
}

void Supply::run()
{
    std::unique_lock<std::mutex> guard(m_lock);
    while (!m_ends && !m_root.isEmpty()) {
        guard.unlock();
        if (m_bulletin.readers() > 0)
            report();
        guard.lock();
        m_changed.wait_for(guard, kReport, [this] { return m_ends || m_reportsNow; });
        m_reportsNow = false;
    }
}

QString Supply::boardFile(const char *path) const
{
    QFile file(m_root + QLatin1String(path));
    return file.open(QIODevice::ReadOnly) ? QString::fromLatin1(file.read(kBoardLine).trimmed()) : QString();
}

void Supply::report()
{
    QString answer;
    QJsonObject state;
    const bool there = m_line.tell(QStringLiteral("status"), &answer);
    const QStringList words = lastLine(answer).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (const QString &word : words) {
        const QString key = word.section(QLatin1Char('='), 0, 0);
        if (std::find(std::begin(kShown), std::end(kShown), key) != std::end(kShown))
            state.insert(key, word.section(QLatin1Char('='), 1));
    }
    for (const BoardFile &file : kBoardFiles)
        state.insert(QLatin1String(file.name), boardFile(file.path));
    state.insert(QStringLiteral("there"), there);
    m_bulletin.publish(Bulletin::Supply, eventText("supply", QJsonDocument(state).toJson(QJsonDocument::Compact)));
}

} // namespace panel
