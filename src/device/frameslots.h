#pragma once

#include <QByteArray>

/// Static storage for the frames of one command. Only a frame's pointer crosses to the device thread, so its bytes must
/// stand still until they are written: each frame takes the next of several fixed places, which never move or go away.
/// Main thread.
class FrameSlots
{
public:
    FrameSlots()
    {
        for (QByteArray &frame : m_frames)
            frame.reserve(kFrameBytes);
    }
    FrameSlots(const FrameSlots &) = delete;
    FrameSlots &operator=(const FrameSlots &) = delete;

    /// The next place, empty. It may be filled with kFrameBytes.
    QByteArray &next()
    {
        QByteArray &frame = m_frames[m_next];
        m_next = (m_next + 1) % kFrames;
        frame.resize(0); // reserved storage stays
        return frame;
    }

    static constexpr int kFrameBytes = 192; // a set-up frame with every word escaped has 180

private:
    static constexpr int kFrames = 16;
    QByteArray m_frames[kFrames];
    int m_next = 0;
};
