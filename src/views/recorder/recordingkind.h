#pragma once

#include <QString>
#include <QtGlobal>

/// What differs between the two that write values at an interval, the recorder and the logger of text files: where the
/// user's choices stand and how they follow from each other. Their pages ask nothing else.
struct RecordingKind
{
    int *active; // 1: prepared or running
    QString *name;
    quint32 *begin; // s since 1970; 0: at once
    int *duration; // h
    int *maxDuration; // h that the room allows
    int *intervalIndex;
    const int *intervals; // s
    int intervalCount;
    /// Takes the room of the storage and holds the duration to what it allows.
    void (*checkMaxDuration)();
    /// Hours that \a room (MB) allows, by what is chosen now, for one that begins or for one that has \a begun.
    int (*hoursOf)(float room, bool begun);
    float roomToBegin; // MB
    QString (*defaultName)();
    void (*readChoices)();
    quint32 *choices; // bits of what is written
    void (*writeChoices)();

    static const RecordingKind &recorder();
    static const RecordingKind &logger();

    int interval() const; // s
};

/// Texts that the pages of both have.
namespace RecordingText {

QString hours(int hours); // in days and hours
QString interval(int seconds);
QString room(float megabytes);
/// Local time of a moment, ms since 1970, to the second.
QString moment(qint64 msecs);

} // namespace RecordingText
