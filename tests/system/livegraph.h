#pragma once

#include "instrument.h"
#include "unit/services/modbusclient.h"
#include "visibletexts.h"

#include "shell/basedialog.h"
#include "model/datagramrecords.h"
#include "model/livedata.h"
#include "shell/menupage.h"
#include "shell/navigator.h"
#include "pages/viewcontainer.h"
#include "platform/clock.h"
#include "shell/quveraglobal.h"
#include "shell/taskmanage.h"
#include "services/modbusslave.h"
#include "task/unitask.h"
#include "testpaths.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <algorithm>
#include <clocale>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <memory>
#include <unistd.h>

/// The pictures stand in a library of their own, which forgets them when nobody asks. Outside any namespace: the macro
/// wants it so.
inline void takePictures()
{
    Q_INIT_RESOURCE(skin);
}

namespace SystemTest {

constexpr int kPatienceMs = 300000; // for a condition that a quiet machine meets in seconds

/// Rated frequency of the instrument under test: the variant of this run, 50 where it is run by hand.
inline int ratedHertz()
{
    return qEnvironmentVariable("QUVERA_TEST_VARIANT", QStringLiteral("50")).toInt();
}

/// The instrument's own object graph in this process, with the real processor stand-in at its node: a test drives it by
/// keys, reads the texts on its pages, and asks its Modbus server over TCP.
class LiveGraph
{
public:
    /// Simulated time 0 of every run, so that a test knows when the signal does what.
    static qint64 startMs() { return QDateTime(QDate(2024, 1, 18), QTime(16, 15), Qt::UTC).toMSecsSinceEpoch(); }

    /// The slowest pace of the stand-in.
    static constexpr double kStandStill = 0.01;

    LiveGraph() : m_desk(QStringLiteral(QUVERA_BIN_DIR), qEnvironmentVariable("QUVERA_ROOT")) { }

    /// Starts the stand-in with simulated time all but standing still, then the instrument. Time goes on by setSpeed:
    /// nothing of a scenario is missed, however long the instrument takes to be ready.
    bool start(const QStringList &processorArguments)
    {
        const QStringList always { QStringLiteral("--clock"), QStringLiteral("2024-01-18T16:15:00"),
                                   QStringLiteral("--seed"),  QStringLiteral("7"),
                                   QStringLiteral("--speed"), QString::number(kStandStill) };
        if (!m_desk.startProcessor(always + processorArguments))
            return false;
        takePictures();
        appInit();
        appConnection();
        langConnection();
        return QTest::qWaitFor([] { return QGuiApplication::focusObject() != nullptr; }, kPatienceMs);
    }

    /// Goes from the menu to a tile and opens it, whatever is measured.
    static bool choose(const QString &tile)
    {
        for (int row = 0; row < 3; ++row, key(Qt::Key_T)) {
            for (int column = 0; column < 4; ++column, key(Qt::Key_D)) {
                if (m_basedialog->menu()->currentItem()->objectName() != tile)
                    continue;
                key(Qt::Key_K);
                return true;
            }
        }
        return false;
    }

    /// Opens a tile from the menu. The measurement that this starts begins at once: the ten seconds until then are
    /// passed by the clock.
    static bool open(const QString &tile)
    {
        if (!choose(tile))
            return false;
        Clock::advance(11000);
        const bool runs = QTest::qWaitFor([] { return g_unitask && g_unitask->isTaskRunning(); }, kPatienceMs);
        Clock::useSystem();
        return runs;
    }

    /// Presses a key of the front panel where the focus is.
    static void key(Qt::Key letter) { QTest::keyClick(QApplication::focusWidget(), letter); }

    /// Gives a command to the stand-in. Its answer behind "ok", or a null text.
    static QString tell(const QString &command)
    {
        QProcess process;
        process.start(QStringLiteral(QUVERA_BIN_DIR "/quvera-processor"), { QStringLiteral("--tell"), command });
        if (!process.waitForFinished(kPatienceMs) || process.exitCode() != 0)
            return {};
        return QString::fromUtf8(process.readAllStandardOutput()).trimmed() + QLatin1Char(' ');
    }
    /// The stand-in plays another scenario from now on. Seconds of the signal at which it began; 0 when it refuses.
    static double play(const QJsonObject &scenario)
    {
        QFile file(qEnvironmentVariable("QUVERA_ROOT") + QStringLiteral("/supply.json"));
        const QByteArray json = QJsonDocument(scenario).toJson();
        if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(json) != json.size())
            return 0;
        file.close();
        const bool plays = !tell(QStringLiteral("scenario ") + file.fileName()).isNull();
        return plays ? status(QStringLiteral("t")).toDouble() : 0;
    }
    static bool setSpeed(double factor) { return !tell(QStringLiteral("speed %1").arg(factor)).isNull(); }
    /// One value of the stand-in's status line.
    static QString status(const QString &name)
    {
        const QStringList words = tell(QStringLiteral("status")).split(QLatin1Char(' '));
        for (const QString &word : words) {
            if (word.startsWith(name + QLatin1Char('=')))
                return word.mid(name.size() + 1);
        }
        return {};
    }

    /// A sub page of a function, up to date whether it is shown or not.
    static QWidget *subPage(_quvera_ui_type type, int row)
    {
        auto *container = qobject_cast<ViewContainer *>(m_basedialog->navigator().page(type));
        if (!container)
            return nullptr;
        container->pqaData(); // as Save does: what the page only noted while it was hidden is looked up
        return container->page(row);
    }

    /// What a label on the page in front reads.
    static QString text(const char *name) { return visibleTexts(m_basedialog).value(QString::fromLatin1(name)); }
    /// The number at the beginning of a label's text; NaN without one.
    static double number(const char *name)
    {
        QString digits;
        const QString shown = text(name);
        for (const QChar c : shown) {
            if (!c.isDigit() && c != QLatin1Char('.') && c != QLatin1Char('-'))
                break;
            digits += c;
        }
        bool isNumber = false;
        const double value = digits.toDouble(&isNumber);
        return isNumber ? value : std::nan("");
    }
    /// Half of the last digit that a label shows: what the display itself may be off.
    static double halfDigit(const char *name)
    {
        const QString digits = text(name).section(QLatin1Char(' '), 0, 0);
        const int point = digits.indexOf(QLatin1Char('.'));
        return point < 0 ? 0.5 : 0.5 * std::pow(10.0, point + 1 - digits.size());
    }

    /// Time of the newest half cycle that the measurement has taken, ms since 1970; 0 before the first.
    static qint64 measuredUntil()
    {
        const RmsSeries &series = g_unitask->halfCycles().voltage[0];
        return series.count > 0 ? series.entry[series.count - 1].time : 0;
    }

    /// Lets the signal go on, so many times faster, until the condition holds, then all but stops it. Where this
    /// machine does not keep up, the stand-in waits for the measurement: nothing piles up on the way.
    static bool runUntil(const std::function<bool()> &condition, double speed)
    {
        constexpr qint64 kFarBehindMs = 20000;
        constexpr qint64 kCaughtUpMs = 1500;
        constexpr int kLookMs = 300;
        const auto behind = [] {
            const qint64 taken = std::max(measuredUntil(), startMs()); // the start before the first
            return startMs() + qint64(1000 * status(QStringLiteral("t")).toDouble()) - taken;
        };
        QElapsedTimer timer;
        timer.start();
        bool goesOn = setSpeed(speed);
        while (goesOn && !condition() && timer.elapsed() < kPatienceMs) {
            QTest::qWait(kLookMs);
            if (behind() <= kFarBehindMs)
                continue;
            goesOn = setSpeed(kStandStill) && QTest::qWaitFor([&] { return behind() < kCaughtUpMs; }, kPatienceMs)
                && setSpeed(speed);
        }
        return setSpeed(kStandStill) && goesOn && condition();
    }

    /// A float of the Modbus map.
    static float registerFloat(const QList<quint16> &block, int at)
    {
        const quint32 bits = block.value(at) | quint32(block.value(at + 1)) << 16;
        float value;
        std::memcpy(&value, &bits, sizeof value);
        return value;
    }

    DeskInstrument &desk() { return m_desk; }

private:
    DeskInstrument m_desk;
};

/// main of a test in the instrument's own process. Settings are read before main: when \a settings are to be others
/// than a new instrument's, they are written and the program begins anew.
template <typename Test> int runInInstrument(int argc, char **argv, const QList<QPair<QString, QString>> &settings = {})
{
    constexpr char kPrepared[] = "QUVERA_TEST_PREPARED";
    if (!settings.isEmpty() && !qEnvironmentVariableIsSet(kPrepared)) {
        DeskInstrument desk(QStringLiteral(QUVERA_BIN_DIR), qEnvironmentVariable("QUVERA_ROOT"));
        for (const auto &setting : settings) {
            if (!desk.setSetting(QLatin1String(kSettingFile), setting.first, setting.second))
                return 1;
        }
        qputenv(kPrepared, "1");
        ::execv("/proc/self/exe", argv);
        return 1;
    }
    QApplication application(argc, argv);
    std::setlocale(LC_NUMERIC, "C");
    int result = 0;
    {
        Test test;
        result = QTest::qExec(&test, argc, argv);
    }
    // As the instrument ends: nothing is torn down.
    std::fflush(stdout);
    std::_Exit(result);
}

} // namespace SystemTest
