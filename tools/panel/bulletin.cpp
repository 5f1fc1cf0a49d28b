#include "panel/bulletin.h"

namespace panel {

Bulletin::Reader::Reader(Bulletin &bulletin) : m_bulletin(bulletin)
{
    const std::lock_guard<std::mutex> guard(m_bulletin.m_lock);
    if (m_bulletin.m_readers++ == 0) { // nobody was asked since the last one left
        m_bulletin.m_messages[Instrument] = nullptr;
        m_bulletin.m_messages[Supply] = nullptr;
    }
}

Bulletin::Reader::~Reader()
{
    const std::lock_guard<std::mutex> guard(m_bulletin.m_lock);
    --m_bulletin.m_readers;
}

void Bulletin::publish(Topic topic, std::string text)
{
    {
        const std::lock_guard<std::mutex> guard(m_lock);
        Message &message = m_messages[topic];
        if (message && *message == text)
            return;
        message = std::make_shared<const std::string>(std::move(text));
        ++m_numbers[topic];
    }
    m_changed.notify_all();
}

std::vector<Bulletin::Message> Bulletin::take(Reader &reader) const
{
    std::vector<Message> found;
    for (size_t topic = 0; topic < TopicCount; ++topic) {
        if (reader.m_seen[topic] == m_numbers[topic])
            continue;
        reader.m_seen[topic] = m_numbers[topic];
        if (m_messages[topic])
            found.push_back(m_messages[topic]);
    }
    return found;
}

std::vector<Bulletin::Message> Bulletin::news(Reader &reader, std::chrono::milliseconds wait)
{
    std::unique_lock<std::mutex> guard(m_lock);
    m_changed.wait_for(guard, wait, [&] { return m_closed || reader.m_seen != m_numbers; });
    return take(reader);
}

int Bulletin::readers() const
{
    const std::lock_guard<std::mutex> guard(m_lock);
    return m_readers;
}

void Bulletin::close()
{
    {
        const std::lock_guard<std::mutex> guard(m_lock);
        m_closed = true;
    }
    m_changed.notify_all();
}

bool Bulletin::isClosed() const
{
    const std::lock_guard<std::mutex> guard(m_lock);
    return m_closed;
}

} // namespace panel
