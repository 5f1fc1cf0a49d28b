#include "record/tables/isotime.h"

#include <QDateTime>
#include <QTest>

#include <limits>

/// Times as exports write them, beside those of a calendar and those of the toolkit.
class TstIsoTime : public QObject
{
    Q_OBJECT

private slots:
    void knownMoments_data()
    {
        QTest::addColumn<qint64>("ms");
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("epoch") << qint64(0) << QByteArray("1970-01-01T00:00:00.000Z");
        QTest::newRow("just before") << qint64(-1) << QByteArray("1969-12-31T23:59:59.999Z");
        QTest::newRow("leap day") << qint64(1709164800000 + 86399999) << QByteArray("2024-02-29T23:59:59.999Z");
        QTest::newRow("10^12 ms") << qint64(1000000000000) << QByteArray("2001-09-09T01:46:40.000Z");
        QTest::newRow("no leap year") << qint64(4107542400000) << QByteArray("2100-03-01T00:00:00.000Z");
        QTest::newRow("last of four digits") << qint64(253402300799999) << QByteArray("9999-12-31T23:59:59.999Z");
        QTest::newRow("five digits") << qint64(253402300800000) << QByteArray("+10000-01-01T00:00:00.000Z");
        QTest::newRow("year 0") << qint64(-62167219200000) << QByteArray("0000-01-01T00:00:00.000Z");
        QTest::newRow("before year 0") << qint64(-62167219200001) << QByteArray("-0001-12-31T23:59:59.999Z");
        QTest::newRow("greatest") << std::numeric_limits<qint64>::max() << QByteArray("+292278994-08-17T07:12:55.807Z");
        QTest::newRow("smallest") << std::numeric_limits<qint64>::min() << QByteArray("-292275055-05-16T16:47:04.192Z");
    }

    void knownMoments()
    {
        QFETCH(qint64, ms);
        QFETCH(QByteArray, text);
        QCOMPARE(IsoTime::text(ms), text);
        QVERIFY(text.size() <= IsoTime::kMost);
    }

    void everyDayOfEightCenturiesIsTheToolkits()
    {
        for (QDate day(1700, 1, 1); day < QDate(2500, 1, 1); day = day.addDays(1)) {
            const QDateTime moment(day, QTime(13, 7, 9, 45), Qt::UTC);
            const QByteArray expected = moment.toString(QStringLiteral("yyyy-MM-ddThh:mm:ss.zzzZ")).toLatin1();
            QCOMPARE(IsoTime::text(moment.toMSecsSinceEpoch()), expected);
        }
    }
};

QTEST_APPLESS_MAIN(TstIsoTime)
#include "tst_isotime.moc"
