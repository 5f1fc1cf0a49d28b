#pragma once

#include <QByteArray>

#include <deque>
#include <functional>

/// Blocks on their way to a file, a piece at a time: thousands of events with their curves are hundreds of megabytes,
/// and the screen may not stand still meanwhile.
class WaitingBlocks
{
public:
    using Make = std::function<QByteArray()>;
    using Store = std::function<void(quint32 type, const QByteArray &payload)>;

    static constexpr int kSliceMs = 10; // longest piece, but for the last block of it
    static constexpr int kSliceBytes = 1 << 20; // what a card takes in the time between two pieces

    /// \a make is called once, when the block's turn has come; it holds copies of what it needs.
    void append(quint32 type, Make make) { m_waiting.push_back({ type, std::move(make) }); }
    bool isEmpty() const { return m_waiting.empty(); }
    void clear() { m_waiting.clear(); }
    /// Stores the next ones in the order in which they came.
    void storeSlice(const Store &store);
    void storeAll(const Store &store);

private:
    struct Block
    {
        quint32 type;
        Make make;
    };

    int storeNext(const Store &store);

    std::deque<Block> m_waiting;
};
