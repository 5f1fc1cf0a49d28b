#pragma once

#include "record/tables/recordtable.h"

#include <vector>

/// What the names in the header of a logger's file are as columns of tables, with names as those of recordings.
class LogColumns
{
public:
    /// A cell of a line behind the time.
    struct Place
    {
        int table = -1; // of tables(), -1: no column
        int cell = 0;
        double factor = 1; // value = number of the file x factor
    };

    LogColumns() = default;
    /// \a names: the cells of the header behind the time, UTF-8.
    explicit LogColumns(const std::vector<QByteArray> &names);

    const QVector<RecordTable> &tables() const { return m_tables; }
    const std::vector<Place> &places() const { return m_places; }
    /// Cells that are no column: their names are not the logger's, or stand twice.
    int unknown() const { return m_unknown; }

private:
    QVector<RecordTable> m_tables;
    std::vector<Place> m_places;
    int m_unknown = 0;
};

/// The tables of logger files.
const QVector<QByteArray> &logTableNames();
