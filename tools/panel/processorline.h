#pragma once

#include <QString>

namespace panel {

/// Speaks to the processor stand-in through its control socket (docs/simulator.md): one command, one answer. Nobody is
/// waited for longer than a moment.
class ProcessorLine
{
public:
    /// @param root of the desk. The socket's path may be as long as a file's.
    explicit ProcessorLine(const QString &root) : m_root(root) { }

    /// Sends a command. False when no processor answers; else \a answer has its lines, the last one "ok" or "error".
    bool tell(const QString &command, QString *answer) const;

private:
    int connectToSocket() const;

    QString m_root;
};

} // namespace panel
