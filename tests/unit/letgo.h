#pragma once

#include "unit/storage/rootfiles.h"

#include <QTimer>

/// What a held command waits for: it goes on when the test makes this file.
const QString kLetGo = QStringLiteral("/var/log/let-go");

/// A timer that turns beside a held command, and lets it go at its fifth turn.
class TurnsBeside
{
public:
    static constexpr int kTurns = 5;

    TurnsBeside()
    {
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] {
            if (++m_turns == kTurns)
                RootFiles::write(kLetGo, "");
        });
        m_timer.start(10);
    }
    int turns() const { return m_turns; }

private:
    QTimer m_timer;
    int m_turns = 0;
};
