#include <QTest>
#include <QThread>

#include "storage/filework.h"

#include <atomic>
#include <memory>

/// Work off the main thread, in turn.
class TstFileWork : public QObject
{
    Q_OBJECT

private slots:
    void theMainThreadGoesOnMeanwhile()
    {
        FileWork work;
        std::atomic<bool> go { false };
        bool ended = false;
        QThread *worker = nullptr;
        QThread *behind = nullptr;
        work.run(
            [&] {
                worker = QThread::currentThread();
                while (!go)
                    QThread::yieldCurrentThread();
            },
            [&] {
                behind = QThread::currentThread();
                ended = true;
            });
        QVERIFY(work.isBusy());
        QTest::qWait(20);
        QVERIFY(!ended); // and this thread was not held up
        go = true;
        QTRY_VERIFY_WITH_TIMEOUT(ended, 30000);
        QVERIFY(!work.isBusy());
        QVERIFY(worker && worker != thread());
        QCOMPARE(behind, thread());
    }

    void onePieceFollowsTheOther()
    {
        FileWork work;
        QList<int> order;
        for (int i = 0; i < 50; ++i)
            work.run([&order, i] { order << i; }, [&order, i] { QVERIFY(order.contains(i)); });
        QTRY_VERIFY_WITH_TIMEOUT(!work.isBusy(), 30000);
        QCOMPARE(order.size(), 50);
        for (int i = 0; i < 50; ++i)
            QCOMPARE(order[i], i);
    }

    void whatFollowsMayBeginMore()
    {
        FileWork work;
        int pieces = 0;
        work.run([&] { ++pieces; }, [&] { work.run([&] { ++pieces; }); });
        QTRY_COMPARE_WITH_TIMEOUT(pieces, 2, 30000);
        QTRY_VERIFY_WITH_TIMEOUT(!work.isBusy(), 30000);
    }

    void itsEndWaitsForTheRunningPieceAndForgetsTheOthers()
    {
        std::atomic<bool> begun { false };
        std::atomic<bool> through { false };
        std::atomic<bool> next { false };
        bool told = false;
        {
            FileWork work;
            work.run(
                [&] {
                    begun = true;
                    QThread::msleep(50);
                    through = true;
                },
                [&] { told = true; });
            work.run([&] { next = true; });
            while (!begun)
                QThread::yieldCurrentThread();
        }
        QVERIFY(through);
        QTest::qWait(20);
        QVERIFY(!next);
        QVERIFY(!told); // who would have been told is gone
    }
};

QTEST_GUILESS_MAIN(TstFileWork)
#include "tst_filework.moc"
