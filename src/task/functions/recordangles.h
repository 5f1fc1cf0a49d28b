#pragma once

#include "model/datagramrecords.h"

/// Sum of the unit vectors of angles.
struct __angle_vector
{
    double cosine;
    double sine;
};

/// The direction of the sum of so many unit vectors, in degrees, -180 to 180; 0 without any. A plain mean of the angles
/// fails where they wrap: 350 and 10 degrees lie around 0.
float averageAngles(const __angle_vector &sum, int count);

/// The angles of an interval's aggregations, averaged by their vector sums (docs/formats/recorder.md).
class RecordAngles
{
public:
    /// Each of the four channels has one of each group.
    enum Group {
        Voltage, // degrees, -360 to 0
        Current, // degrees, -360 to 0
        Difference, // degrees, voltage minus current, -180 to 180
        ThirdOrder, // the same of the third harmonic
        FifthOrder,
        SeventhOrder,
        kGroups
    };

    void clear();
    void take(const __datagram_aggregation &record);
    float mean(Group group, int channel) const;
    /// Puts the means of the fundamentals' angles in the place of those in \a record.
    void putInto(__datagram_aggregation &record) const;

private:
    __angle_vector m_sum[kGroups][kChannels] = {};
    int m_count = 0;
};
