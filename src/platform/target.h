#pragma once

#include <QString>
#include <QtGlobal>

/// The way to everything outside the process: files, shell commands, the processor's node, ports.
/// On the board all of it is the identity. On a desk `QUVERA_ROOT` names a folder that stands for "/", and nothing
/// outside it is touched. The root is read and prepared at the first use, which may come before main. Any thread.
class Target
{
public:
    /// The desk root without a slash at its end; empty on the board.
    static QString root();
    /// Where the file of the board's path really stands. Relative paths, resources and paths that already lie under
    /// the root come back as they are.
    static QString path(const QString &boardPath);
    /// The board's name of a file that stands under the root; other texts come back as they are.
    static QString boardPath(const QString &realPath);

    /// Runs a command of the board through the shell and answers what system() answers.
    static int shell(const QString &command);
    /// Runs a command and answers what it wrote, cut at 1 MiB. `*started` tells whether the shell could be started.
    static QString shellOutput(const QString &command, bool *started = nullptr);
    /// The text that shell() really runs: every instrument path under the root, the root's bin folder first in PATH.
    static QString deskCommand(const QString &command);

    /// Opens the processor's node for non-blocking reads and writes; the caller closes it. -1 with errno on failure.
    static int openProcessor();

    static quint16 modbusPort(); // 502, on a desk QUVERA_MODBUS_PORT where set
    static quint16 remotePort(); // 3527, on a desk QUVERA_REMOTE_PORT where set

    /// One line that says why the desk root cannot be used; empty when it can. See DeskRoot::prepare.
    static QString rootError();
};
