#pragma once

#include <QObject>
#include <QProcess>
#include <QStringList>

/// Runs commands of the board through the shell one after the other, without waiting for any of them: writing all disks
/// or ending a DHCP client takes longer than the screen may stand still. Main thread.
class ShellQueue : public QObject
{
    Q_OBJECT

public:
    explicit ShellQueue(QObject *parent = nullptr);
    /// Ends the command that runs and forgets those that wait.
    ~ShellQueue() override;

    /// Queues a command of the board. One that waits already moves to the end instead of standing there twice, so that
    /// a link that flaps leaves few commands, and the last of them are those of its last state.
    void run(const QString &command);

private:
    void startNext();

    QProcess m_shell;
    QStringList m_waiting;
};
