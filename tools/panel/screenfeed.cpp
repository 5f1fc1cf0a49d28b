#include "panel/screenfeed.h"

#include "panel/picturenotes.h"
#include "remote/remoteclient.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace panel {

namespace {

using std::chrono::milliseconds;

constexpr milliseconds kLook(500); // the pages' own pace
constexpr milliseconds kLookBehindKey(220); // what a key began may take one more picture to show
constexpr int kLooksBehindKey = 3;
constexpr milliseconds kLookForNewcomers(100);
constexpr int kAnswerMs = 500;
constexpr int kAttempts = 2;

} // namespace

std::string eventText(const char *name, const QByteArray &json)
{
    return std::string("event: ") + name + "\ndata: " + json.toStdString() + "\n\n";
}

ScreenFeed::ScreenFeed(const QHostAddress &instrument, quint16 port, Bulletin &bulletin)
    : m_instrument(instrument), m_port(port), m_bulletin(bulletin)
{ }

ScreenFeed::~ScreenFeed()
{
    end();
}

void ScreenFeed::end()
{
    {
        const std::lock_guard<std::mutex> guard(m_lock);
        m_ends = true;
    }
    m_changed.notify_all();
    wait();
}

bool ScreenFeed::pressKey(int code)
{
    {
        const std::lock_guard<std::mutex> guard(m_lock);
        if (m_keys.size() >= kMostKeys)
            return false;
        m_keys.push_back(code);
    }
    m_changed.notify_all();
    return true;
}

QByteArray ScreenFeed::picture() const
{
    const std::lock_guard<std::mutex> guard(m_lock);
    return m_png;
}

// Until a key is to be pressed, or the moment of the next look has come. False at the end.
bool ScreenFeed::waitForWork(Clock::time_point nextLook, std::deque<int> *keys)
{
    std::unique_lock<std::mutex> guard(m_lock);
    while (!m_ends && m_keys.empty()) {
        const bool watched = m_bulletin.readers() > 0;
        if (watched && Clock::now() >= nextLook)
            break;
        m_changed.wait_until(guard, watched ? nextLook : Clock::now() + kLookForNewcomers);
    }
    keys->swap(m_keys);
    return !m_ends;
}

void ScreenFeed::run()
{
    RemoteClient client(m_instrument, m_port);
    client.setPatience(kAnswerMs, kAttempts);
    Clock::time_point nextLook = Clock::now();
    int looksBehindKey = 0;
    std::deque<int> keys;
    while (waitForWork(nextLook, &keys)) {
        if (!keys.empty())
            looksBehindKey = kLooksBehindKey;
        for (int key : keys) {
            if (!client.pressKey(key))
                break; // nobody there: what was pressed meanwhile is not made up for
        }
        keys.clear();
        const bool there = look(client);
        nextLook = Clock::now() + (looksBehindKey > 0 && there ? kLookBehindKey : kLook);
        looksBehindKey -= looksBehindKey > 0;
    }
}

// True when the instrument answered.
bool ScreenFeed::look(RemoteClient &client)
{
    const QByteArray png = client.screen();
    const QJsonObject state { { QStringLiteral("there"), !png.isEmpty() }, { QStringLiteral("why"), client.error() } };
    if (png.isEmpty()) {
        m_bulletin.publish(Bulletin::Instrument,
                           eventText("instrument", QJsonDocument(state).toJson(QJsonDocument::Compact)));
        return false;
    }
    m_bulletin.publish(Bulletin::Instrument, eventText("instrument", "{\"there\":true}"));
    {
        const std::lock_guard<std::mutex> guard(m_lock);
        if (png == m_png)
            return true;
        m_png = png;
    }
    QJsonObject screen = notesOf(png);
    screen.insert(QStringLiteral("png"), QString::fromLatin1(png.toBase64()));
    m_bulletin.publish(Bulletin::Screen, eventText("screen", QJsonDocument(screen).toJson(QJsonDocument::Compact)));
    return true;
}

} // namespace panel
