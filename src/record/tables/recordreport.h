#pragma once

#include <QString>
#include <QVector>

#include <functional>

/// How much of a file or of a recording is there. The worst of several is the largest.
enum class RecordState : quint8 {
    Whole,
    Cut, // everything up to a place was delivered, behind it nothing is known
    Broken, // damaged in the middle: what lies on both sides was delivered, as far as it was found
    Unreadable // nothing was: missing, foreign, empty
};

/// What is wrong, and where.
struct RecordFault
{
    QString path;
    qint64 offset = 0;
    QString reason; // for people
};

/// How often a kind of block occurs.
struct RecordBlockCount
{
    quint32 type = 0;
    qint64 count = 0;
    qint64 bytes = 0; // of the payloads
};

/// What is known of one file.
struct RecordFileReport
{
    QString path;
    qint64 size = 0;
    RecordState state = RecordState::Whole;
    QVector<RecordFault> faults; // the first ones
    QVector<RecordBlockCount> blocks; // by type
    qint64 start = 0; // ms since 1970, of the first thing with a time, 0: none
    qint64 end = 0; // of the last one
    qint64 events = 0;
    bool isOpen = true; // its bytes could be read
    bool isUnended = false; // a recording that began does not end in it
    bool lacksEnd = false; // nor goes it on in a further part

    void fault(RecordState worst, qint64 offset, const QString &reason)
    {
        constexpr int kMostFaults = 16;
        state = qMax(state, worst);
        if (faults.size() < kMostFaults)
            faults.append({ path, offset, reason });
    }
};

/// Is told from time to time how many bytes of how many were looked at; false ends the work.
using RecordProgress = std::function<bool(qint64 done, qint64 total)>;
