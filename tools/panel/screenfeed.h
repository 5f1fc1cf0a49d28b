#pragma once

#include "panel/bulletin.h"

#include <QByteArray>
#include <QHostAddress>
#include <QThread>

#include <deque>

class RemoteClient;

namespace panel {

/// The panel's one visitor of the instrument: carries the keys of all viewers there and brings its screen to the
/// bulletin. It looks while somebody watches: soon behind a key, else twice a second, as often as the instrument's
/// pages change.
class ScreenFeed : public QThread
{
    Q_OBJECT
public:
    static constexpr std::size_t kMostKeys = 32; // as many as the instrument lets wait

    ScreenFeed(const QHostAddress &instrument, quint16 port, Bulletin &bulletin);
    ~ScreenFeed() override;

    /// Has a key pressed, by its remote number. False when too many wait. Any thread.
    bool pressKey(int code);
    /// The last picture as a PNG file; empty when there was none. Any thread.
    QByteArray picture() const;
    /// Ends the thread; waits for it.
    void end();

protected:
    void run() override;

private:
    using Clock = std::chrono::steady_clock;
    bool waitForWork(Clock::time_point nextLook, std::deque<int> *keys);
    bool look(RemoteClient &client);

    const QHostAddress m_instrument;
    const quint16 m_port;
    Bulletin &m_bulletin;
    mutable std::mutex m_lock; // guards what follows
    std::condition_variable m_changed;
    std::deque<int> m_keys;
    QByteArray m_png;
    bool m_ends = false;
};

/// A message of the event stream, as browsers read it.
std::string eventText(const char *name, const QByteArray &json);

} // namespace panel
