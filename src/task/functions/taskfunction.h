#pragma once

#include "model/datagramrecords.h"

struct ChannelSet;
struct EventWave;
struct FlickerOutput;
struct PQAEventItem;
struct __trans_data;

/// What becomes of the data of a function that ends.
enum class Keep { Nothing, Data };

/// Which of the events so far.
enum class EventChoice { All, Finished, Unfinished };

/// One of the things that a measurement can do beside showing: recorder, monitor, logger, wave capture, inverter. It
/// hears what arrives and is asked nothing; it knows no other function, no page and no service. The universal task
/// calls it on the main thread, between start() and stop() only; a call must return well within a refresh (0.5 s).
/// Records are valid during the call.
class TaskFunction
{
public:
    TaskFunction() = default;
    TaskFunction(const TaskFunction &) = delete;
    TaskFunction &operator=(const TaskFunction &) = delete;
    virtual ~TaskFunction() = default;

    /// It is chosen for a run that is planned, or begins inside one: files are opened here.
    virtual void start() { }
    /// The run for which it was chosen measures from now on; not for what begins inside a run.
    virtual void measure() { }
    /// A new aggregation, given with the waveform that follows it: each once, and of two before one waveform the last.
    /// Its frequency is a magnitude, its energies are counted up to now.
    virtual void aggregation(const __datagram_aggregation &) { }
    /// Another second of the run is full; behind aggregation().
    virtual void second() { }
    /// Another second has passed while the run was not paused, whether data came or not.
    virtual void tick() { }
    virtual void halfCycles(const __datagram_rms &) { }
    virtual void wave(const __datagram_wave &) { }
    /// \a out: what this datagram brought to an end, its blocks without a head.
    virtual void flicker(const __datagram_flicker &, const FlickerOutput & /*out*/) { }
    virtual void transient(const __trans_data &) { }
    /// The curves of this event are complete.
    virtual void eventComplete(const PQAEventItem &) { }
    /// The two wave datagrams around an event's moment are there.
    virtual void eventWave(const EventWave &, const ChannelSet & /*wiring*/) { }
    /// The events so far go to its file, if one is open.
    virtual void storeEvents(EventChoice) { }
    /// Whether the storage refuses what it is to store.
    virtual bool refused() const { return false; }
    /// Its part of the run ends; once, and only after a start().
    virtual void stop(Keep) { }
};
