#pragma once

#include <array>
#include <chrono>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

namespace panel {

/// What all viewers are shown, one message a topic: the newest counts, older ones are forgotten. A message is made once
/// and shared, however many read it; a slow reader misses those in between. While nobody reads nobody asks whether the
/// instrument is there, so the first reader hears of that anew. Any thread.
class Bulletin
{
public:
    enum Topic { Instrument, Screen, Supply, TopicCount };
    using Message = std::shared_ptr<const std::string>;

    /// What one reader has seen. While it lives it counts as a reader.
    class Reader
    {
    public:
        explicit Reader(Bulletin &bulletin);
        ~Reader();
        Reader(const Reader &) = delete;
        Reader &operator=(const Reader &) = delete;

    private:
        friend class Bulletin;
        Bulletin &m_bulletin;
        std::array<unsigned long, TopicCount> m_seen = {};
    };

    /// Puts up a message; the same text again is no news.
    void publish(Topic topic, std::string text);
    /// What is new to the reader, at most after so long a wait; empty when nothing is.
    std::vector<Message> news(Reader &reader, std::chrono::milliseconds wait);
    int readers() const;
    /// Everyone who waits goes on, now and from now on.
    void close();
    bool isClosed() const;

private:
    std::vector<Message> take(Reader &reader) const;

    mutable std::mutex m_lock;
    std::condition_variable m_changed;
    std::array<Message, TopicCount> m_messages;
    std::array<unsigned long, TopicCount> m_numbers = {};
    int m_readers = 0;
    bool m_closed = false;
};

} // namespace panel
