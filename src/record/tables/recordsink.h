#pragma once

#include "model/pqaeventitem.h"
#include "record/tables/recordtable.h"

#include <QByteArray>
#include <QString>
#include <QVector>

#include <cmath>
#include <limits>

/// What kind of file or folder was opened.
enum class RecordKind : quint8 {
    Recording, // folder or file of the recorder
    Monitor,
    Waveform, // capture
    Page, // saved page
    Log // lines of the logger
};

/// What a recording says of itself and of the instrument; what it does not say is empty or 0.
struct RecordFacts
{
    RecordKind kind = RecordKind::Recording;
    QString model, serialNumber, softwareVersion, firmware; // Latin-1 texts of foreign bytes: quote them
    int joinMode = 0; // the wiring, 1 to 10; 0: not known, then the columns are those of three phases and N
    double nominalVolt = 0; // V
    double nominalFrequency = 0; // Hz
    QString clamp, clampN, ratio, ratioN; // as stored
    qint64 start = 0; // ms since 1970, of the first thing where none is stored; 0: not known
    // Of the last thing that was read, when no end is stored; of recordings and monitors known from the beginning on,
    // of all others to RecordSink::end() only.
    qint64 end = 0;
};

/// An event as it was stored. The value is in V, A, Hz, percent, or the flicker's plain number, by its kind.
struct RecordedEvent
{
    int number = 0; // from 1, in the order of the starts as far as they are known; the same in all exports
    PQAEventItem item; // with its curves, where it has any
};

/// Samples of one or several inputs with one clock.
struct RecordedWaveform
{
    enum Origin : quint8 { Event, Transient, Capture };

    Origin origin = Event;
    int number = 0; // from 1, over all waveforms of the recording
    int event = 0; // RecordedEvent::number of the event it belongs to, 0: none that is known
    double start = 0; // ms since 1970, of the first sample; parts of a ms count
    double sampleRate = 0; // samples per second, above 0
    qint64 samples = 0; // of each channel that follow, as far as is known beforehand
    qint64 trigger = 0; // sample at which what is shown happened, 0 without one
    struct Channel
    {
        QByteArray name; // "U_L1", "I_N"; as column of a table
        QByteArray channel; // "L1", "L12", "N"
        QByteArray unit; // "V", "A"
        float factor = 1; // value = sample x factor; no number where none is recorded
    };
    QVector<Channel> channels;

    /// A factor as a file holds it: zero is none, too.
    static float factorOf(float stored)
    {
        return std::isfinite(stored) && stored != 0 ? stored : std::numeric_limits<float>::quiet_NaN();
    }
};

/// Takes what a recording holds, in one pass. A member that returns false ends the reading: nothing more is called, and
/// the taker says why in error(). Whatever stands in the files, calls come in this order: begin(), then tables, rows,
/// events and waveforms mixed, then end(). A table is told before its first row; tables without rows are not.
class RecordSink
{
public:
    RecordSink() = default;
    virtual ~RecordSink() = default;
    RecordSink(const RecordSink &) = delete;
    RecordSink &operator=(const RecordSink &) = delete;

    virtual bool begin(const RecordFacts &facts) = 0;
    /// \a number counts from 0.
    virtual bool table(int number, const RecordTable &table) = 0;
    virtual bool row(const RecordRow &row) = 0;
    /// An event in full. Its row of the table "events" comes beside it, for takers that want nothing but tables.
    virtual bool event(const RecordedEvent &) { return true; }
    virtual bool waveformBegin(const RecordedWaveform &) { return true; }
    /// Some samples, interleaved by channel: \a count of each channel.
    virtual bool waveformSamples(const qint16 *, int) { return true; }
    virtual bool waveformEnd() { return true; }
    /// All was read, as far as it can be. The output is finished here; without this call it is thrown away.
    virtual bool end(const RecordFacts &facts) = 0;

    /// Why a member returned false, for people: "/mnt/usb/rms.csv: no room".
    virtual QString error() const = 0;
    /// Whether that is a wrong choice of the user's: an output that exists, or lies in what is read.
    virtual bool isRefused() const { return false; }
};
