#include "platform/lineoutput.h"
#include "unit/storage/descriptorlimit.h"

#include <QElapsedTimer>
#include <QTest>
#include <QTemporaryFile>

#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>

/// Printing to outputs that are read, that stand still and that have gone.
class TstLineOutput : public QObject
{
    Q_OBJECT

private slots:
    void textsComeOutWholeAndInOrder();
    void fullPipeDropsAndCountsAndGoesOn();
    void processWithoutFreeDescriptorsNeitherWaitsNorIsSilent();
    void flagsOfTheDescriptorStayAsTheyAre();
    void stalledSocketDropsAndCounts();
    void terminalThatStandsStillDropsAndKeepsTextsWhole();
    void readerThatWentEndsNothing();
    void closedDescriptorDrops();
    void exchangedFileIsFound();
    void restOfATextStaysWithItsOutput();
    void longTextIsCut();
    void threadsDoNotMixTheirTexts();
    void toolkitMessagesTakeTheSameWay();
};

namespace {

/// Two ends of something; closed at the end of the test.
struct Ends
{
    int fds[2] = { -1, -1 };
    ~Ends()
    {
        for (const int fd : fds) {
            if (fd >= 0)
                ::close(fd);
        }
    }
    void closeReader()
    {
        ::close(fds[0]);
        fds[0] = -1;
    }
    /// What lies there now.
    QByteArray read() const
    {
        QByteArray all;
        char piece[4096];
        for (pollfd end { fds[0], POLLIN, 0 }; ::poll(&end, 1, 300) == 1;) {
            const ssize_t n = ::read(fds[0], piece, sizeof piece);
            if (n <= 0)
                break;
            all.append(piece, int(n));
        }
        return all;
    }
};

/// A terminal, which takes a part of a text when it has no room for all of it.
bool openTerminal(Ends &ends)
{
    ends.fds[0] = ::posix_openpt(O_RDWR | O_NOCTTY);
    if (ends.fds[0] < 0 || ::grantpt(ends.fds[0]) != 0 || ::unlockpt(ends.fds[0]) != 0)
        return false;
    ends.fds[1] = ::open(::ptsname(ends.fds[0]), O_RDWR | O_NOCTTY);
    return ends.fds[1] >= 0;
}

void write(LineOutput &output, const QByteArray &text)
{
    output.write(text.constData(), size_t(text.size()));
}

QByteArray line(int number)
{
    return "line " + QByteArray::number(number) + " of an output that nobody reads for a while\n";
}

/// Writes until nothing more goes, lets the reader go on, and holds every whole line against the count of the missing.
void checkStall(LineOutput &output, const Ends &ends)
{
    constexpr int kLines = 20000;
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < kLines; ++i)
        write(output, line(i));
    QVERIFY2(timer.elapsed() < 30000, "nobody waits for the reader");
    const auto dropped = int(output.dropped());
    QVERIFY(dropped > 0 && dropped < kLines);
    QByteArray seen = ends.read();
    write(output, "goes again\n");
    seen += ends.read();
    QByteArray expected;
    for (int i = 0; i < kLines - dropped; ++i)
        expected += line(i);
    expected += QByteArray::number(dropped) + " lines were dropped: the output stood still\ngoes again\n";
    QCOMPARE(seen, expected);
    QCOMPARE(int(output.dropped()), dropped);
    write(output, "and on\n"); // the count was printed once
    QCOMPARE(ends.read(), QByteArray("and on\n"));
}

} // namespace

void TstLineOutput::textsComeOutWholeAndInOrder()
{
    Ends ends;
    QCOMPARE(::pipe(ends.fds), 0);
    LineOutput output(ends.fds[1]);
    write(output, "one\n");
    write(output, "");
    write(output, "two");
    write(output, "three\n");
    QCOMPARE(ends.read(), QByteArray("one\ntwothree\n"));
    QCOMPARE(output.dropped(), 0ull);
}

void TstLineOutput::fullPipeDropsAndCountsAndGoesOn()
{
    Ends ends;
    QCOMPARE(::pipe(ends.fds), 0);
    LineOutput output(ends.fds[1]);
    checkStall(output, ends);
}

void TstLineOutput::processWithoutFreeDescriptorsNeitherWaitsNorIsSilent()
{
    Ends ends;
    QCOMPARE(::pipe(ends.fds), 0);
    const DescriptorLimit full(rlim_t(ends.fds[1]) + 1); // the pipe got the last one
    LineOutput output(ends.fds[1]);
    checkStall(output, ends);
}

void TstLineOutput::flagsOfTheDescriptorStayAsTheyAre()
{
    Ends ends;
    QCOMPARE(::pipe(ends.fds), 0);
    const int before = ::fcntl(ends.fds[1], F_GETFL);
    {
        LineOutput output(ends.fds[1]);
        write(output, "x\n");
        QCOMPARE(::fcntl(ends.fds[1], F_GETFL), before); // others have this pipe too
    }
    QCOMPARE(::write(ends.fds[1], "y", 1), ssize_t(1)); // and it stays open
}

void TstLineOutput::stalledSocketDropsAndCounts()
{
    Ends ends;
    QCOMPARE(::socketpair(AF_UNIX, SOCK_STREAM, 0, ends.fds), 0);
    LineOutput output(ends.fds[1]);
    checkStall(output, ends);
}

void TstLineOutput::terminalThatStandsStillDropsAndKeepsTextsWhole()
{
    Ends ends;
    QVERIFY(openTerminal(ends));
    LineOutput output(ends.fds[1]);
    constexpr int kLines = 5000;
    for (int i = 0; i < kLines; ++i)
        write(output, line(i));
    QVERIFY(output.dropped() > 0 && output.dropped() < kLines);
    QByteArray seen = ends.read();
    write(output, line(kLines));
    seen += ends.read();
    QVERIFY(seen.endsWith("\r\n"));
    // A terminal may take a line again at any time: each is whole, and each that is missing was counted where it stood.
    int next = 0;
    for (const QByteArray &text : seen.replace("\r\n", "\n").split('\n')) {
        if (text.isEmpty())
            continue;
        if (text + '\n' == line(next))
            ++next;
        else if (text.endsWith(" lines were dropped: the output stood still"))
            next += text.left(text.indexOf(' ')).toInt();
        else
            QFAIL(text.constData());
    }
    QCOMPARE(next, kLines + 1);
}

void TstLineOutput::readerThatWentEndsNothing()
{
    for (const bool firstText : { false, true }) {
        Ends ends;
        QCOMPARE(::pipe(ends.fds), 0);
        LineOutput output(ends.fds[1]);
        if (firstText)
            write(output, "while somebody reads\n");
        ends.closeReader();
        write(output, "to nobody\n");
        write(output, "to nobody\n");
        QCOMPARE(output.dropped(), 2ull);
    }
    sigset_t pending; // nor is a signal left for later
    sigpending(&pending);
    QCOMPARE(sigismember(&pending, SIGPIPE), 0);
}

void TstLineOutput::closedDescriptorDrops()
{
    Ends ends;
    QCOMPARE(::pipe(ends.fds), 0);
    const int closed = ::dup(ends.fds[1]);
    ::close(closed);
    LineOutput output(closed);
    write(output, "x\n");
    QCOMPARE(output.dropped(), 1ull);
    QVERIFY(ends.read().isEmpty());
}

void TstLineOutput::exchangedFileIsFound()
{
    Ends first, second;
    QCOMPARE(::pipe(first.fds), 0);
    QCOMPARE(::pipe(second.fds), 0);
    QTemporaryFile file;
    QVERIFY(file.open());
    LineOutput output(first.fds[1]);
    write(output, "to the first\n");
    ::dup2(file.handle(), first.fds[1]);
    write(output, "to the file\n");
    write(output, "to its end\n");
    ::dup2(second.fds[1], first.fds[1]);
    write(output, "to the second\n");
    QCOMPARE(first.read(), QByteArray("to the first\n"));
    QCOMPARE(second.read(), QByteArray("to the second\n"));
    QVERIFY(file.seek(0));
    QCOMPARE(file.readAll(), QByteArray("to the file\nto its end\n"));
}

void TstLineOutput::restOfATextStaysWithItsOutput()
{
    Ends ends;
    QVERIFY(openTerminal(ends));
    QTemporaryFile file;
    QVERIFY(file.open());
    LineOutput output(ends.fds[1]);
    int number = 0;
    while (output.dropped() == 0 && number < 5000)
        write(output, line(number++));
    QVERIFY(output.dropped() > 0);
    ::dup2(file.handle(), ends.fds[1]);
    write(output, "to the file\n");
    QVERIFY(file.seek(0));
    QCOMPARE(file.readAll(), QByteArray("1 lines were dropped: the output stood still\nto the file\n"));
}

void TstLineOutput::longTextIsCut()
{
    Ends ends;
    QCOMPARE(::pipe(ends.fds), 0);
    LineOutput output(ends.fds[1]);
    write(output, QByteArray(10000, 'x'));
    QCOMPARE(ends.read(), QByteArray(4000, 'x'));
}

void TstLineOutput::threadsDoNotMixTheirTexts()
{
    Ends ends;
    QCOMPARE(::pipe(ends.fds), 0);
    LineOutput output(ends.fds[1]);
    const auto print = [&output](char mark) {
        for (int i = 0; i < 200; ++i)
            write(output, QByteArray(60, mark) + '\n');
    };
    std::thread other(print, 'a');
    print('b');
    other.join();
    QCOMPARE(output.dropped(), 0ull);
    const QList<QByteArray> lines = ends.read().split('\n');
    QCOMPARE(lines.size(), 401);
    QCOMPARE(lines.count(QByteArray(60, 'a')), 200);
    QCOMPARE(lines.count(QByteArray(60, 'b')), 200);
}

void TstLineOutput::toolkitMessagesTakeTheSameWay()
{
    Ends ends;
    QCOMPARE(::pipe(ends.fds), 0);
    const int kept = ::dup(STDERR_FILENO);
    ::dup2(ends.fds[1], STDERR_FILENO);
    const QtMessageHandler before = qInstallMessageHandler(nullptr);
    LineOutput::takeToolkitMessages();
    qDebug("what a page noticed: %d", 7);
    const unsigned long long droppedBefore = LineOutput::standardError().dropped();
    for (int i = 0; i < 5000; ++i)
        qDebug("a line of the debug log that nobody reads %d", i);
    const bool counted = LineOutput::standardError().dropped() > droppedBefore;
    qInstallMessageHandler(before);
    ::dup2(kept, STDERR_FILENO);
    ::close(kept);
    QVERIFY(ends.read().startsWith("what a page noticed: 7\n"));
    QVERIFY(counted);
}

QTEST_APPLESS_MAIN(TstLineOutput)
#include "tst_lineoutput.moc"
