#pragma once

#include <QFile>

#include <cstdio>
#include <unistd.h>

// What a whole process takes, for the benchmarks that watch the instrument from outside.

struct Usage
{
    double seconds = 0; // of processor time, user and system
    double mebibytes = 0; // resident
};

inline Usage usageOf(qint64 pid)
{
    Usage usage;
    QFile stat(QStringLiteral("/proc/%1/stat").arg(pid));
    if (!stat.open(QIODevice::ReadOnly))
        return usage;
    // The name in parentheses may hold blanks; what follows it does not.
    const QByteArray line = stat.readAll();
    const QList<QByteArray> fields = line.mid(line.lastIndexOf(')') + 2).split(' ');
    if (fields.size() < 22)
        return usage;
    usage.seconds = (fields[11].toDouble() + fields[12].toDouble()) / double(sysconf(_SC_CLK_TCK));
    usage.mebibytes = fields[21].toDouble() * double(sysconf(_SC_PAGESIZE)) / 1048576.0;
    return usage;
}

/// Seconds that a figure is watched for: QUVERA_BENCH_SECONDS, where it is set.
inline int benchSeconds(int usual)
{
    return qMax(1,
                qEnvironmentVariableIsSet("QUVERA_BENCH_SECONDS") ? qEnvironmentVariableIntValue("QUVERA_BENCH_SECONDS")
                                                                  : usual);
}

inline void printBeside(const char *what, double figure, double goal, const char *unit)
{
    std::printf("%s: %.2f %s (goal: at most %.2f)%s\n", what, figure, unit, goal, figure <= goal ? "" : " MISSED");
}
