#pragma once

#include "board/boardfiles.h"
#include "board/usbdisks.h"
#include "link/processorlink.h"
#include "scenario/simulator.h"

#include <QString>
#include <QStringList>

#include <functional>

namespace scenario {

/// What commands act upon. The simulator is null while a recorded stream is played.
struct CommandTargets
{
    Simulator *simulator = nullptr;
    wire::ProcessorLink *link = nullptr;
    board::BoardFiles *files = nullptr;
    board::UsbDisks *disks = nullptr;
    std::function<QString()> status; // "key=value key=value"
    std::function<void(double)> setSpeed;
    std::function<void()> quit;
};

/// Obeys the text commands of the control socket and of a scenario's steps.
class Commands
{
public:
    explicit Commands(const CommandTargets &targets) : m_on(targets) { }

    /// Obeys one line. The answer is "ok", "ok TEXT" or "error: REASON", behind lines of help where help is asked.
    QString obey(const QString &line);

    /// Whether \a line begins with a command there is.
    static bool knows(const QString &line);
    static QString names();

    using Words = QStringList;

private:
    struct Row;
    static const std::vector<Row> &table();
    static const Row *row(const QString &name);

    QString set(const Words &words);
    QString event(const Words &words);
    QString fault(const Words &words);
    QString faultUpdate(const Words &words);
    QString clock(const Words &words);
    QString scenario(const Words &words);
    QString bds(const Words &words);
    QString battery(const Words &words);
    QString charger(const Words &words);
    QString mains(const Words &words);
    QString usb(const Words &words);
    QString net(const Words &words);
    QString speed(const Words &words);
    QString status(const Words &words);
    QString help(const Words &words);
    QString quit(const Words &words);

    CommandTargets m_on;
};

} // namespace scenario
