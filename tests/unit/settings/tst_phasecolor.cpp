#include <QTest>

#include "settings/phasecolor.h"

/// Colours of the phases from the five digits.
class TstPhaseColor : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { PhaseColor::setPhaseColors("01231"); }

    void theColoursOfEachIndex_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("plain");
        QTest::addColumn<QString>("volt");
        QTest::addColumn<QString>("ampere");
        const QString gray = QColor(Qt::gray).name();
        const QString darkRed = QColor(Qt::darkRed).name();
        QTest::newRow("yellow") << 0 << QColor(Qt::yellow).name() << "#fafa00"
                                << "#e6e650";
        QTest::newRow("green") << 1 << QColor(Qt::green).name() << "#00fa00"
                               << "#50e650";
        QTest::newRow("red") << 2 << QColor(Qt::red).name() << "#fa0000"
                             << "#e65050";
        QTest::newRow("blue") << 3 << QColor(Qt::blue).name() << "#0000fa"
                              << "#5050e6";
        QTest::newRow("gray") << 4 << gray << gray << gray;
        QTest::newRow("dark red") << 5 << darkRed << darkRed << darkRed;
    }
    void theColoursOfEachIndex()
    {
        QFETCH(int, index);
        QFETCH(QString, plain);
        QFETCH(QString, volt);
        QFETCH(QString, ampere);
        PhaseColor::setPhaseColors(QString::number(index).repeated(5));
        for (const QColor &c : { PhaseColor::colorA(), PhaseColor::colorB(), PhaseColor::colorC(), PhaseColor::colorN(),
                                 PhaseColor::colorGND() })
            QCOMPARE(c.name(), plain);
        for (const QColor &c :
             { PhaseColor::colorUA(), PhaseColor::colorUB(), PhaseColor::colorUC(), PhaseColor::colorUN() })
            QCOMPARE(c.name(), volt);
        for (const QColor &c :
             { PhaseColor::colorIA(), PhaseColor::colorIB(), PhaseColor::colorIC(), PhaseColor::colorIN() })
            QCOMPARE(c.name(), ampere);
    }

    void eachDigitBelongsToItsPhase()
    {
        PhaseColor::setPhaseColors("45032");
        QCOMPARE(PhaseColor::color_a, 4);
        QCOMPARE(PhaseColor::color_b, 5);
        QCOMPARE(PhaseColor::color_c, 0);
        QCOMPARE(PhaseColor::color_n, 3);
        QCOMPARE(PhaseColor::color_gnd, 2);
        QCOMPARE(PhaseColor::colorUC().name(), QString("#fafa00"));
        QCOMPARE(PhaseColor::color(0).name(), PhaseColor::colorA().name());
        QCOMPARE(PhaseColor::colorI(3).name(), PhaseColor::colorIN().name());
    }

    void anotherLengthThanFiveGivesTheUsualColours_data()
    {
        QTest::addColumn<QString>("digits");
        for (const char *digits : { "", "0123", "012312", "543210", "5" })
            QTest::newRow(digits) << QString::fromLatin1(digits);
    }
    void anotherLengthThanFiveGivesTheUsualColours()
    {
        QFETCH(QString, digits);
        PhaseColor::setPhaseColors("55555");
        PhaseColor::setPhaseColors(digits);
        QCOMPARE(PhaseColor::digits(), QString("01231"));
    }

    void anIndexBeyondTheTableFallsBackByPhase_data()
    {
        QTest::addColumn<QString>("digits");
        for (const char *digits : { "66666", "99999", "abcde", "-----", "     " })
            QTest::newRow(digits) << QString::fromLatin1(digits);
    }
    void anIndexBeyondTheTableFallsBackByPhase()
    {
        QFETCH(QString, digits);
        PhaseColor::setPhaseColors(digits);
        QCOMPARE(PhaseColor::colorA(), QColor(Qt::yellow));
        QCOMPARE(PhaseColor::colorB(), QColor(Qt::green));
        QCOMPARE(PhaseColor::colorC(), QColor(Qt::red));
        QCOMPARE(PhaseColor::colorN(), QColor(Qt::red));
        QCOMPARE(PhaseColor::colorUA().name(), QString("#fafa00"));
        QCOMPARE(PhaseColor::colorIC().name(), QString("#e65050"));
    }

    void aChannelBeyondTheFiveHasTheNeutralsColour()
    {
        PhaseColor::setPhaseColors("01241");
        for (const int channel : { -1, 5, 1000 }) {
            QCOMPARE(PhaseColor::color(channel), PhaseColor::colorN());
            QCOMPARE(PhaseColor::colorI(channel), PhaseColor::colorIN());
        }
    }

    void theColoursOfALine()
    {
        const char *const names[] = { "#ffff00", "#00ff00", "#ff0000", "#0a0afa", "#a0a0a4", "#800000" };
        for (int i = 0; i < 6; ++i)
            QCOMPARE(PhaseColor::colorLine(PhaseColor::LINE_COLOR(i)).name(), QString(names[i]));
        for (const int beyond : { -1, 6 })
            QCOMPARE(PhaseColor::colorLine(PhaseColor::LINE_COLOR(beyond)), QColor(Qt::red));
    }
};

QTEST_GUILESS_MAIN(TstPhaseColor)
#include "tst_phasecolor.moc"
