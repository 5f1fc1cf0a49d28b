#pragma once

#include <QByteArray>
#include <QList>
#include <QMap>

#include <cerrno>
#include <climits>

/// Stands between a test and the C library for all that lies on the card, "/mnt/" of the test's root: notes
/// what changes it, in the order in which it happens and on whatever thread, and lets calls fail. cardcalls.cpp has to
/// be one of the test's own sources.
namespace CardCalls {

struct Call
{
    enum Kind {
        Create, // a name and its empty file
        Write,
        Resize,
        Sync, // of one file
        SyncAll, // of the card
        Rename,
        Remove,
    };
    Kind kind;
    int file = -1; // number of the file, not of its name
    QByteArray name; // below the card
    QByteArray to; // Rename
    qint64 at = 0; // Write; size of Resize
    QByteArray bytes;
    bool onMainThread = false;
};

/// Which calls fail: those from `first` on, `count` of them, counted from 0 over all that can fail.
struct Fault
{
    int first = INT_MAX;
    int count = 1;
    int error = EIO;
    int taken = -1; // bytes that a failing write takes; -1: none, and the call fails as such
};

/// Notes from now on. The card is empty then.
void begin(const Fault &fault = {});
/// Free room that the system tells, in MB, call by call; the last value stays. Empty: the truth.
void setRoom(const QList<float> &megabytes);
int calls(); // that could have failed, so far
QList<Call> taken(); // so far
void end();

/// Files of the card after a cut of the supply behind `count` calls. What was neither synced itself nor with the card
/// is there, missing or torn as `seed` has it; names come in their order, as far as `seed` lets them.
QMap<QByteArray, QByteArray> afterCut(const QList<Call> &calls, int count, unsigned seed);

} // namespace CardCalls
