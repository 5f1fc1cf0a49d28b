#pragma once

/// Cuts the supply. Main thread.
class SoftPower
{
public:
    /// Latches the supply off through its GPIO. Nothing is checked; on the board it does not come back.
    static void powerOff();
};
