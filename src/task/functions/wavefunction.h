#pragma once

#include "record/wavefile.h"
#include "task/functions/taskfunction.h"

#include <QByteArray>

#include <functional>
#include <memory>

struct waveProgress;

/// The waveform capture: the samples of all eight inputs, thinned to the chosen rate, go to one file until the chosen
/// length is there (docs/formats/waveform-capture.md).
class WaveFunction : public TaskFunction
{
public:
    /// \a progress, which follows each chunk, outlives it. \a setUp is asked at the start of each capture. \a done is
    /// called when the capture is complete, or the storage takes no more: it ends the run.
    WaveFunction(waveProgress &progress, std::function<const Derived &()> setUp, std::function<void()> done)
        : m_progress(progress), m_setUp(std::move(setUp)), m_done(std::move(done))
    { }

    void start() override { initWaveData(); }
    /// The file is begun: a run that is ended while it waits leaves none.
    void measure() override;
    void wave(const __datagram_wave &record) override;
    void stop(Keep keep) override;

private:
    /// Takes the user's choices (WaveInfo). Without a name there is no file, and the run stores nothing.
    void initWaveData();
    void showProgress();

    waveProgress &m_progress;
    const std::function<const Derived &()> m_setUp;
    const std::function<void()> m_done;
    std::unique_ptr<WaveFile> m_file;
    QByteArray m_chunk; // serves all chunks
    int m_step = 1; // of so many frames of the datagram one is taken
    int m_rate = 1; // frames per second
    qint64 m_frames = 0; // written
    qint64 m_limit = 0; // frames of the whole capture
};
