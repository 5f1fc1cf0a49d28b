#pragma once

#include "pagetest.h"
#include "unit/storage/rootfiles.h"
#include "unit/widgets/dialogdriver.h"

#include "settings/loggerinfo.h"
#include "settings/recordinfo.h"
#include "views/recorder/loggerparampage.h"
#include "views/recorder/recordingsetup.h"
#include "views/recorder/recordingstart.h"
#include "views/recorder/recordpqa2page.h"

#include <QAbstractButton>

/// What the tests of the recorder's and the logger's pages share: an empty card, choices with no box on, and both
/// families by one name.
namespace RecorderCase {

using namespace PageTest;

constexpr char kRecordFile[] = "/mnt/userfs/config/record.conf";
constexpr char kLoggerFile[] = "/mnt/userfs/config/logger.conf";

inline void nothingChosen()
{
    RootFiles::clean();
    RootFiles::write(kRecordFile, "PARAMS=1\n");
    setUpMeasurement(1);
    RecordInfo::m_in_recording = LoggerInfo::m_in_logging = 0;
    RecordInfo::m_duration = LoggerInfo::m_duration = 2;
    RecordInfo::m_interval_index = 3;
    LoggerInfo::m_interval_index = 0;
    RecordInfo::m_record_file->clear();
    LoggerInfo::m_logger_file->clear();
}

/// Data rows "recorder" and "logger": column "logger".
inline void addFamilies()
{
    QTest::addColumn<bool>("logger");
    QTest::newRow("recorder") << false;
    QTest::newRow("logger") << true;
}

inline const RecordingKind &kindOf(bool logger)
{
    return logger ? RecordingKind::logger() : RecordingKind::recorder();
}

inline std::unique_ptr<RecordingPage> openFamily(bool logger)
{
    std::unique_ptr<RecordingPage> page;
    if (logger)
        page = std::make_unique<LoggerPage>(liveData());
    else
        page = std::make_unique<RecordPqa2Page>(liveData());
    openAll(*page);
    page->enter();
    return page;
}

inline RecordingSetup *setupOf(const RecordingPage &page)
{
    return page.findChild<RecordingSetup *>();
}

inline RecordingParam *paramOf(const RecordingPage &page)
{
    return page.findChild<RecordingParam *>();
}

inline RecordingStart *startOf(const RecordingPage &page)
{
    return page.findChild<RecordingStart *>();
}

} // namespace RecorderCase
