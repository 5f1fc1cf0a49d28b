#pragma once

#include "remote/remoteclient.h"

#include <QImage>
#include <QProcess>
#include <QScopedPointer>
#include <QTemporaryDir>
#include <functional>

/// A whole instrument on a desk: the executables quvera-processor and quvera under a root of their own, on free ports,
/// without a window. It is driven as a user drives it: by keys, and by looking at the screen. The gallery and the
/// system tests use it; everything ends with the object.
class DeskInstrument
{
public:
    /// @param binDir folder of the executables. @param root the folder that stands for "/"; empty: a fresh one that is
    /// removed with the object.
    explicit DeskInstrument(const QString &binDir, const QString &root = QString());
    ~DeskInstrument();
    DeskInstrument(const DeskInstrument &) = delete;
    DeskInstrument &operator=(const DeskInstrument &) = delete;

    const QString &root() const { return m_root; }
    /// A path of the board, such as "/mnt/storage/", under the root.
    QString path(const QString &boardPath) const { return m_root + boardPath; }
    quint16 remotePort() const { return m_remotePort; }
    quint16 modbusPort() const { return m_modbusPort; }

    /// Puts "KEY=value" in place of the key's line of a settings file. The programs read it at their next start.
    bool setSetting(const QString &boardFile, const QString &key, const QString &value);
    /// The value of the key's last line; empty when there is none.
    QString setting(const QString &boardFile, const QString &key) const;

    /// Lets time run so many times faster in both, from the next start on. In the instrument by libfaketime: false
    /// without it.
    bool setSpeed(int times);

    /// That library, once a speed was set.
    const QString &clockLibrary() const { return m_clock; }

    /// Starts the stand-in and waits until its node stands. Arguments come behind "--root".
    bool startProcessor(const QStringList &arguments = {});
    /// Starts the instrument and waits until its remote control answers.
    bool startInstrument();
    /// Both, the stand-in first.
    bool start(const QStringList &processorArguments = {});
    void stopProcessor();
    /// SIGTERM, then a wait. False when the instrument had to be killed.
    bool stopInstrument();
    void stop();
    bool isInstrumentRunning() const;
    QProcess &instrument() { return m_instrument; }

    RemoteClient &remote() { return *m_remote; }
    /// Presses keys by their names, one after the other, and waits until the interface has handled each.
    bool press(const QStringList &keys);
    /// The screen; a null image when there was no answer.
    QImage screen();
    /// Looks again and again until the picture satisfies the condition. The last picture, or a null one at the end of
    /// the wait.
    QImage waitForScreen(const std::function<bool(const QImage &)> &condition, int waitMs = 20000);

    /// What the programs printed so far.
    QByteArray instrumentOutput() const;
    QByteArray processorOutput() const;
    const QString &error() const { return m_error; }

    /// A port of nobody, or 0 where none is to be had. Below those that the system usually deals out by itself, so that
    /// it deals none of these out before it is used.
    static quint16 freePort(const std::function<bool(quint16)> &isFree);
    static quint16 freeUdpPort();
    static quint16 freeTcpPort();

private:
    QProcessEnvironment environment() const;
    QByteArray readLog(const QString &name) const;
    bool end(QProcess &process);

    /// A program that the kernel ends with this one, should this one end without a farewell.
    class Child : public QProcess
    {
        void setupChildProcess() override;
    };

    QScopedPointer<QTemporaryDir> m_temporary;
    QString m_binDir;
    QString m_root;
    quint16 m_remotePort;
    quint16 m_modbusPort;
    QScopedPointer<RemoteClient> m_remote;
    Child m_processor;
    Child m_instrument;
    int m_speed = 1;
    QString m_clock; // the library that lets time run faster
    QString m_error;
};
