#pragma once

#include "fuzz/fuzztarget.h"
#include "record/tables/recordsource.h"
#include "unit/record/keptrecord.h"

/// Opens and reads a record: it ends, in good order, and what is not whole says where and why.
inline void readRecord(const QString &path)
{
    using FuzzTarget::expect;
    RecordSource source;
    KeptRecord kept;
    expect(source.open(path));
    const bool isReadable = source.state() != RecordState::Unreadable;
    expect(source.read(kept) == isReadable, "what can be read is read");
    expect(kept.hasEnded == isReadable && kept.complaints.isEmpty(), "everything is told in its order");
    expect(source.faults().isEmpty() == (source.state() == RecordState::Whole), "what is not whole says why");
    const auto faults = source.faults();
    for (const RecordFault &fault : faults)
        expect(fault.offset >= 0 && !fault.path.isEmpty() && !fault.reason.isEmpty(), "a fault has a place");
    expect(kept.events.size() == (isReadable ? source.events() : 0), "all events are told");
    for (const auto &waveform : qAsConst(kept.waveforms)) {
        expect(waveform.facts.sampleRate > 0 && !waveform.facts.channels.isEmpty(), "a waveform has a clock");
        expect(waveform.samples.size() <= waveform.facts.samples * waveform.facts.channels.size());
    }
}
