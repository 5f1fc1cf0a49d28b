#pragma once

#include "record/tables/recordreading.h"

/// A saved page: facts alone, its record is the page's own.
class PageReading : public RecordReading
{
public:
    explicit PageReading(const QString &path);

    bool scan(const RecordProgress &progress) override;
    bool read(RecordSink &sink, const RecordProgress &progress) override;
};
