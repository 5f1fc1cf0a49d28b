#include "task/functions/waitingblocks.h"

#include <QElapsedTimer>

/// Bytes of the block.
int WaitingBlocks::storeNext(const Store &store)
{
    const Block block = std::move(m_waiting.front());
    m_waiting.pop_front();
    const QByteArray payload = block.make();
    store(block.type, payload);
    return payload.size();
}

void WaitingBlocks::storeSlice(const Store &store)
{
    QElapsedTimer timer;
    timer.start();
    for (int bytes = 0; !m_waiting.empty() && bytes < kSliceBytes && !timer.hasExpired(kSliceMs);)
        bytes += storeNext(store);
}

void WaitingBlocks::storeAll(const Store &store)
{
    while (!m_waiting.empty())
        storeNext(store);
}
