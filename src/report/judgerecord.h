#pragma once

#include "record/tables/recordsource.h"
#include "report/reportwriter.h"

#include <memory>

/// Judges a recording that was opened, in two passes over it. Null: \a progress ended it. Any thread.
std::unique_ptr<Judgement> judgeRecord(RecordSource &source, const MonitorLimits2 &limits,
                                       const RecordProgress &progress = {});
/// What a report says of its files.
ReportSource reportSourceOf(const RecordSource &source);
/// The limit set of that name: a built-in one in large or small letters, without a name EN50160, or the file of any
/// other. False: there is none.
bool findReportLimits(const QString &name, MonitorLimits2 *limits);
