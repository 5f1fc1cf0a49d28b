#include "report/judgement.h"

#include <algorithm>

Outcome Judgement::outcome() const
{
    Outcome outcome = Outcome::NotApplied;
    for (const QuantityVerdict &verdict : verdicts)
        outcome = worseOf(outcome, verdict.outcome());
    // That nothing happened says nothing about a supply of which nothing else is known.
    for (const EventCount &count : eventCounts) {
        if (outcome == Outcome::Pass || count.outcome() == Outcome::Fail)
            outcome = worseOf(outcome, count.outcome());
    }
    return outcome;
}

const QuantityVerdict *Judgement::find(const QuantityKey &key) const
{
    const auto at = std::find_if(verdicts.begin(), verdicts.end(),
                                 [&key](const QuantityVerdict &verdict) { return verdict.key == key; });
    return at == verdicts.end() ? nullptr : &*at;
}

const InstrumentResult *Judgement::instrumentOf(const QuantityKey &key) const
{
    const auto at = std::find_if(instrument.begin(), instrument.end(),
                                 [&key](const InstrumentResult &result) { return result.key == key; });
    return at == instrument.end() ? nullptr : &*at;
}
