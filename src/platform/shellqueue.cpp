#include "platform/shellqueue.h"

#include "platform/target.h"

ShellQueue::ShellQueue(QObject *parent) : QObject(parent)
{
    m_shell.setProcessChannelMode(QProcess::ForwardedChannels);
    m_shell.setStandardInputFile(QProcess::nullDevice());
    connect(&m_shell, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), this, &ShellQueue::startNext);
    // A shell that could not be started never ends. The next one begins from the event loop, not from within start().
    connect(&m_shell, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            QMetaObject::invokeMethod(this, &ShellQueue::startNext, Qt::QueuedConnection);
    });
}

ShellQueue::~ShellQueue()
{
    m_shell.disconnect(this); // its end would start the next one
}

void ShellQueue::run(const QString &command)
{
    m_waiting.removeAll(command);
    m_waiting.append(command);
    startNext();
}

void ShellQueue::startNext()
{
    if (m_shell.state() != QProcess::NotRunning || m_waiting.isEmpty())
        return;
    m_shell.start(QStringLiteral("/bin/sh"), { QStringLiteral("-c"), Target::deskCommand(m_waiting.takeFirst()) });
}
