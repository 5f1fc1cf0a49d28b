#pragma once

/// The charge state, from the converter behind the battery's divider and the two lines of the charger. Main thread.
class Battery
{
public:
    enum Status {
        Low = 1,
        Second = 2,
        Third = 3,
        Full = 4,
        Charging = 5,
        Charged = 6, // charge finished, on mains
        NoGauge = 7, // no converter file
    };

    /// Exports the charger's lines as inputs and takes a first reading, without hysteresis.
    static void batteryInit();
    /// Reads anew; answers a Status. While the charger is on, the step of the battery is left alone.
    static int batteryStatus();
    /// Raw value of the last reading, 0 to 4095.
    static int batteryLevel() { return battery_level; }

private:
    static int battery_level;
    static int status;
};
