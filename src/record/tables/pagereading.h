#pragma once

#include "record/tables/recordreading.h"

/// A saved page: facts alone, its record is the page's own.
class PageReading : public RecordReading
{
public:
    explicit PageReading(const QString &path) : RecordReading(RecordKind::Page, path) { }

    bool scan(const RecordProgress &progress) override;
    bool read(RecordSink &sink, const RecordProgress &progress) override;
    QVector<std::pair<QString, QString>> details() const override;

private:
    qint32 m_page = 0; // identifier of the page that saved it
    qint64 m_image = 0, m_data = 0; // bytes
};
