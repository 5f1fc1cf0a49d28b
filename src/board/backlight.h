#pragma once

class QTimer;

/// The light behind the screen with its idle time-out. The state is static; the timer is made with the first time-out,
/// since there is no application object before. Main thread.
class BackLight
{
public:
    /// Brightness as the light key steps it.
    enum __light_level { Level0 = 0, Level1, Level2, Level3 };

    /// Keeps and writes a level, 0 to 3.
    static void setBackLight(int level);
    /// The light key: 0 to 3, 3 to 2, 2 to 1, 1 to 0.
    static void switchBackLight();
    /// Idle time until the light goes down, seconds; below 3: never.
    static void setBackLightDeley(int seconds);
    /// Starts the idle time anew; called at every key release.
    static void startBackLightDeley();
    /// Restores the light and stops the idle time; called at every key press.
    static void recoverBackLight();
    /// The idle time is over: lowest light, not dark.
    static void shutDownBL();
    /// Whether the idle time took the light down: the next key press only restores it.
    static bool isShut() { return m_is_shut; }

    static int level() { return m_bl; }

private:
    static void writeLevel(int level);

    static __light_level m_bl;
    static int m_delay; // ms; 0: no time-out
    static bool m_is_shut;
    static QTimer *m_timer;
};
