#pragma once

#include "task/functions/taskfunction.h"

#include <QByteArray>

class EventList;

/// Events and transients as blocks of recorded files (docs/formats/pqa2.md). Pure functions of records.
namespace EventBlocks {

/// The event without its curves: 32 bytes.
QByteArray head(const PQAEventItem &event);
/// Time, frequency, position and the 600 samples of the channel that has the transient; empty for a channel that is
/// none.
QByteArray transient(const __trans_data &record);

/// Calls \a store with each event of \a choice, in the order of the list.
template <typename Events, typename Store> void forEach(const Events &events, EventChoice choice, const Store &store)
{
    for (const auto &event : events) {
        if (choice == EventChoice::All || (event.finished != 0) == (choice == EventChoice::Finished))
            store(event);
    }
}

} // namespace EventBlocks
