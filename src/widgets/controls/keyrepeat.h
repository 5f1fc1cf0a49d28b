#pragma once

#include <QObject>
#include <QTimer>

#include <vector>

/// Repeats what a held key does, every 300 ms until it is let go, in steps that grow the longer it is held. The first
/// step is made at once. A page that is hidden or loses its window stops it, since it would not see the release.
class KeyRepeat : public QObject
{
    Q_OBJECT

public:
    static constexpr int kPeriod = 300; // ms
    using Steps = std::vector<int>;

    /// How the steps grow.
    struct Pace
    {
        int ticksPerStep = 3;
        Steps steps = { 1, 5, 10, 20 };
    };

    /// After more than \a ticksPerStep ticks at one step the next of \a steps follows; the last one stays. \a page owns
    /// this and is watched.
    KeyRepeat(QWidget *page, int ticksPerStep, Steps steps = { 1, 5, 10, 20 });

    /// Another pace from the next start on.
    void setPace(const Pace &pace);
    /// The key went down: repeated() with the first step at once, then with every tick. \a direction 1 or -1 is the
    /// sign of the steps. A key that repeats by itself changes nothing while it runs.
    void start(int direction);
    /// The key was let go: nothing more comes, and the step is the first again.
    void stop();

    bool isActive() const { return m_timer.isActive(); }
    /// Signed step of the next tick, as it stands before that tick lets it grow.
    int step() const { return m_direction * m_steps[m_index]; }

public slots:
    /// One period has passed.
    void tick();

signals:
    void repeated(int step);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    int m_ticksPerStep;
    Steps m_steps; // never empty
    QTimer m_timer;
    int m_direction = 1;
    std::size_t m_index = 0; // into m_steps
    int m_ticks = 0; // at this step
};
