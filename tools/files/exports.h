#pragma once

#include "record/exports/output.h"
#include "record/tables/recordsink.h"

#include <QString>

#include <memory>
#include <vector>

/// A format that recordings are exported into.
struct ExportFormat
{
    QString option; // "--csv"
    QString value; // what follows it: "DIR", "FILE"
    QString help;
    std::unique_ptr<RecordSink> (*make)(const OutputPlace &place);
};

/// All formats, in the order in which the help lists them.
const std::vector<ExportFormat> &exportFormats();
