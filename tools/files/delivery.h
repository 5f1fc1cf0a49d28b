#pragma once

#include "files/commandline.h"
#include "record/exports/output.h"
#include "record/tables/recordsource.h"

#include <functional>

// What the commands have in common that read a record and make something of it.

/// Looks through a path. False: the user ended it. What is wrong with it is left to Terminal::complainOf().
bool openSource(RecordSource *source, const QString &path);
/// The status that goes with what was found.
int statusOf(const RecordSource &source);
/// A line on standard error, and the status of the case.
int interrupted();
int misuse(const QString &reason);
int noOutput(const QString &reason, bool isRefused = false); // what is refused is a wrong use

/// Opens the path of the call and lets \a work make what the option names. Whoever asks for an unreadable one gets its
/// status. \a work says why when it ends with another status than that of the record, and only then.
using OutputWork = std::function<int(RecordSource &source, const OutputPlace &place, const RecordProgress &progress)>;
int makeOutput(const CommandLine &line, const QString &option, const OutputWork &work);

/// Hands all of a record to a taker.
int deliver(RecordSource &source, RecordSink &sink, const RecordProgress &progress);
