#pragma once

#include "model/livedata.h"
#include "settings/config_data.h"

// The measured data behind the pages and tasks of a test process, as the program makes it: once.

namespace MeasuredData {

inline LiveData &liveData()
{
    static LiveData data;
    return data;
}

/// What a task would write.
inline DisplayRecords &live()
{
    return liveData().live();
}

/// Empties the records as the begin of a run does.
inline void renewLive()
{
    liveData().empty(float(m_settingConfig_g.getNomFreq()));
}

} // namespace MeasuredData
