#include "report/judgement.h"

#include <algorithm>

Outcome Judgement::outcome() const
{
    Outcome outcome = Outcome::NotApplied;
    for (const QuantityVerdict &verdict : verdicts)
        outcome = worseOf(outcome, verdict.outcome());
    for (const EventCount &count : eventCounts)
        outcome = worseOf(outcome, outcomeOf(count));
    return outcome;
}

Outcome Judgement::outcomeOf(const EventCount &count) const
{
    if (!count.holds())
        return Outcome::Fail;
    const bool anyJudged = std::any_of(verdicts.begin(), verdicts.end(), [](const QuantityVerdict &v) {
        return v.outcome() == Outcome::Pass || v.outcome() == Outcome::Fail;
    });
    return anyJudged ? Outcome::Pass : Outcome::NotJudged;
}

bool Judgement::leavesOut() const
{
    const auto counts = [](const auto &rest) { return !isSignal(rest.quantity); };
    return std::any_of(notJudged.begin(), notJudged.end(), counts) || std::any_of(gaps.begin(), gaps.end(), counts);
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
