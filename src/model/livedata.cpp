#include "model/livedata.h"

namespace {

constexpr int kFundamental = 2;

} // namespace

void LiveData::empty(float nominalFrequency)
{
    run();
    m_live = DisplayRecords();
    m_live.vif.frequency = nominalFrequency;
    m_live.harmonics.reference = kFundamental;
    m_events.clear();
    m_transients.clear();
    m_storageRefuses = false;
}

void LiveData::finish()
{
    m_storageRefuses = false;
    m_events.finish();
    m_transients.clear();
}

void LiveData::hold()
{
    if (m_held)
        return;
    m_held.emplace(m_live);
    m_events.hold();
    m_transients.hold();
}

void LiveData::run()
{
    m_held.reset();
    m_events.run();
    m_transients.run();
}

void LiveData::setHarmonicReference(int reference)
{
    m_live.harmonics.reference = reference;
    if (m_held)
        m_held->harmonics.reference = reference;
}
