#include "platform/target.h"
#include "report/htmlreport.h"
#include "report/judgerecord.h"
#include "report/pdfreport.h"
#include "report/reportlanguage.h"
#include "testpaths.h"
#include "unit/report/writtenweek.h"

#include <QBuffer>
#include <QDir>
#include <QFontMetricsF>
#include <QRegularExpression>
#include <QTest>
#include <QXmlStreamReader>

#include <map>

/// Reports on files that the instrument's writer wrote.
class TstWrittenReport : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void aCleanWeekKeepsToTheStandard();
    void aBadWeekDoesNot();
    void tenMinutesAreAnIndication();
    void withoutAVoltageNothingIsJudged();
    void aCutRecordingIsJudgedUpToTheCut();
    void theOtherLimitSetJudgesOtherwise();
    void thePageIsSelfContained();
    void thePagesOfThePdfAreCounted();
    void textsOfPicturesStandApart_data();
    void textsOfPicturesStandApart();
    void factsStayOnOnePage();

private:
    struct Case
    {
        std::unique_ptr<Judgement> judgement;
        ReportSource source;
        ReportContent content;
    };
    const Case &report(const QString &name, bool gost = false);
    std::map<QString, Case> m_cases;
    /// The board's path, and where the file really is.
    static QString boardPath(const char *name) { return QStringLiteral("/mnt/storage/") + QLatin1String(name); }
    static QString path(const QString &name) { return Target::path(QStringLiteral("/mnt/storage/") + name); }
};

void TstWrittenReport::initTestCase()
{
    QVERIFY(QDir().mkpath(path(QString())));
    QVERIFY(WrittenWeek::write(boardPath("clean.pqa2"), WrittenWeek::Clean, WrittenWeek::kWeek));
    QVERIFY(WrittenWeek::write(boardPath("bad.pqa2"), WrittenWeek::Bad, WrittenWeek::kWeek));
    QVERIFY(WrittenWeek::write(boardPath("short.pqa2"), WrittenWeek::Clean, 600));
    QVERIFY(WrittenWeek::write(boardPath("dead.pqa2"), WrittenWeek::Dead, 7200));
    QVERIFY(WrittenWeek::writeCut(boardPath("cut.pqa2"), WrittenWeek::kWeek / 7));
}

const TstWrittenReport::Case &TstWrittenReport::report(const QString &name, bool gost)
{
    Case &made = m_cases[name + (gost ? "GOST" : "")];
    if (made.judgement)
        return made;
    RecordSource source;
    source.open(path(name));
    MonitorLimits2 limits;
    if (gost)
        limits.initGOST32144();
    else
        limits.initEN50160();
    made.judgement = judgeRecord(source, limits);
    made.source = reportSourceOf(source);
    const Report text((QString()));
    made.content = ReportWriter(*made.judgement, made.source, text).content();
    return made;
}

namespace {

ReportBlock headlineOf(const ReportContent &content)
{
    for (const ReportBlock &block : content.blocks) {
        if (block.kind == ReportBlock::Verdict)
            return block;
    }
    return {};
}

QString verdictOf(const ReportContent &content)
{
    return headlineOf(content).text;
}

bool says(const ReportContent &content, const QString &text)
{
    for (const ReportBlock &block : content.blocks) {
        if (block.text.contains(text))
            return true;
    }
    return false;
}

} // namespace

void TstWrittenReport::aCleanWeekKeepsToTheStandard()
{
    const Case &made = report("clean.pqa2");
    QCOMPARE(verdictOf(made.content), QStringLiteral("The supply complies with EN50160."));
    QCOMPARE(made.source.state, RecordState::Whole);
    const QuantityVerdict *voltage = made.judgement->find({ Quantity::Voltage, 2, 0 });
    QVERIFY(voltage);
    QCOMPARE(voltage->judged, 1008);
    // The formula's largest value on L3: 232 V and the top of its sine, to which the nearest ten minutes come within
    // 0.01 V.
    QVERIFY(voltage->highest > 234.99 && voltage->highest <= 235.0);
    QVERIFY(!says(made.content, "indication"));
    QCOMPARE(headlineOf(made.content).tone, Tone::Good);
}

void TstWrittenReport::aBadWeekDoesNot()
{
    const Case &made = report("bad.pqa2");
    QCOMPARE(verdictOf(made.content), QStringLiteral("The supply does not comply with EN50160."));
    // Twelve of 144 values of a day, 8.3 percent, are low on L2 alone: 84 of the week. The interruption of a quarter of
    // an hour, from second 300000 to 300900, takes the two ten minutes that end at 300600 and 301200.
    const QuantityVerdict *l2 = made.judgement->find({ Quantity::Voltage, 1, 0 });
    QCOMPARE(l2->partial, Outcome::Fail);
    QCOMPARE(l2->leftOut, 2);
    QCOMPARE(l2->judged, 1006);
    QVERIFY(std::abs(l2->shareWithin - 922 * 100.0 / 1006) < 1e-9);
    QCOMPARE(made.judgement->find({ Quantity::Voltage, 0, 0 })->outcome(), Outcome::Pass);
    // Order 5 swings from 6 to 7 percent: 6 are allowed.
    QCOMPARE(made.judgement->find({ Quantity::Harmonic, 0, 5 })->partial, Outcome::Fail);
    QCOMPARE(made.judgement->find({ Quantity::Harmonic, 0, 7 })->partial, Outcome::Pass);
    QCOMPARE(made.judgement->eventCounts.first().all, 24);
    QVERIFY(!made.judgement->eventCounts.first().holds());
    QVERIFY(says(made.content, "with an interruption, not judged: 2."));
}

void TstWrittenReport::tenMinutesAreAnIndication()
{
    const Case &made = report("short.pqa2");
    // Nobody takes ten minutes for all of the standard: two hours make the first long-term flicker.
    QCOMPARE(verdictOf(made.content),
             QStringLiteral("Indication from less than a week (00:10:00): as far as it was judged, the supply kept to "
                            "the limits of EN50160."));
    QVERIFY(says(made.content, "Flicker Plt could not be judged: it was not recorded."));
    QVERIFY(says(made.content, "shorter than a week"));
    QCOMPARE(made.judgement->find({ Quantity::Voltage, 0, 0 })->judged, 1);
    QVERIFY(!made.judgement->find({ Quantity::Plt, 0, 0 }));
}

void TstWrittenReport::withoutAVoltageNothingIsJudged()
{
    const Case &made = report("dead.pqa2");
    QCOMPARE(verdictOf(made.content), QStringLiteral("There was no voltage: nothing can be judged."));
    QVERIFY(!says(made.content, "the result is an indication")); // there is none
    QCOMPARE(made.judgement->find({ Quantity::Voltage, 0, 0 })->leftOut, 12);
}

void TstWrittenReport::aCutRecordingIsJudgedUpToTheCut()
{
    const Case &made = report("cut.pqa2");
    QCOMPARE(made.source.state, RecordState::Cut);
    QVERIFY(says(made.content, "The recording is not whole."));
    const qint64 judged = made.judgement->find({ Quantity::Voltage, 0, 0 })->judged;
    QString verdict = verdictOf(made.content);
    static const QRegularExpression length(QStringLiteral("1[4-6]:[0-5]\\d:[0-5]\\d"));
    QCOMPARE(verdict.replace(length, QStringLiteral("TIME")),
             QStringLiteral("Indication from less than a week (TIME): the supply kept to the limits of EN50160."));
    QCOMPARE(headlineOf(made.content).tone, Tone::Plain);
    QVERIFY2(judged > 85 && judged < 100, qPrintable(QString::number(judged))); // two thirds of 144
}

void TstWrittenReport::theOtherLimitSetJudgesOtherwise()
{
    // Its band of the frequency is 0.4 percent, 0.2 Hz, of which the formula takes 0.02 Hz; all voltages have to lie
    // within ten percent. A clean week keeps to both.
    const Case &made = report("clean.pqa2", true);
    QCOMPARE(verdictOf(made.content), QStringLiteral("The supply complies with GOST32144."));
    const QuantityVerdict *frequency = made.judgement->find({ Quantity::Frequency, -1, 0 });
    QCOMPARE(frequency->bounds.high, 50.2);
    QCOMPARE(report("bad.pqa2", true).judgement->find({ Quantity::Voltage, 1, 0 })->bounds.share, 100.0);
}

void TstWrittenReport::thePageIsSelfContained()
{
    for (const char *name : { "clean", "bad", "short", "dead", "cut" }) {
        const QByteArray html = htmlReport(report(QString::fromLatin1(name) + ".pqa2").content);
        const QString wanted = qEnvironmentVariable("QUVERA_REPORTS");
        if (!wanted.isEmpty())
            QFile::copy(path(QString::fromLatin1(name) + ".pqa2"), wanted + '/' + name + ".pqa2");
        QVERIFY(!html.contains("<script") && !html.contains("http:") && !html.contains("https:")
                && !html.contains("url("));
        // Well-formed but for its first line and the elements of its head that have no end.
        QByteArray xml = html.mid(html.indexOf("<main>"));
        xml = xml.left(xml.indexOf("</main>") + 7).replace("<br>", "<br/>");
        QXmlStreamReader reader(xml);
        while (!reader.atEnd())
            reader.readNext();
        QVERIFY2(!reader.hasError(), qPrintable(reader.errorString()));
    }
}

void TstWrittenReport::thePagesOfThePdfAreCounted()
{
    QBuffer buffer;
    QVERIFY(buffer.open(QIODevice::WriteOnly));
    QVERIFY(pdfReport(report("bad.pqa2").content, &buffer));
    QVERIFY(buffer.data().startsWith("%PDF-"));
    QVERIFY(buffer.data().count("/Type /Page\n") >= 4);
    QVERIFY(buffer.data().count("/Type /Page\n") <= 10);
}

void TstWrittenReport::textsOfPicturesStandApart_data()
{
    QTest::addColumn<QString>("key");
    for (const QString &key : ReportLanguage::keys().split(QLatin1Char(' ')))
        QTest::newRow(qPrintable(key)) << key;
}

void TstWrittenReport::textsOfPicturesStandApart()
{
    QFETCH(QString, key);
    ReportLanguage language;
    QVERIFY(language.choose(key, QStringLiteral(QUVERA_BIN_DIR "/language")) && language.isThere());
    const Case &made = report("bad.pqa2");
    QFont font(QStringLiteral("Liberation Sans"));
    font.setPixelSize(int(Drawing::kTextHeight));
    const QFontMetricsF metrics(font);
    int pictures = 0;
    const Report text(language.word());
    const ReportContent content = ReportWriter(*made.judgement, made.source, text).content();
    for (const ReportBlock &block : content.blocks) {
        QVector<QPair<QRectF, QString>> texts;
        for (const Shape &shape : block.picture.shapes) {
            if (shape.kind != Shape::Text)
                continue;
            const double width = metrics.horizontalAdvance(shape.text);
            const double before = shape.anchor == Shape::Left ? 0 : shape.anchor == Shape::Middle ? width / 2 : width;
            const QRectF place(shape.points.first() - QPointF(before, metrics.ascent() - 3),
                               QSizeF(width, metrics.ascent() - 3)); // the room above capitals is none of theirs
            for (const auto &other : qAsConst(texts))
                QVERIFY2(!other.first.intersects(place), qPrintable(other.second + " / " + shape.text));
            QVERIFY2(place.left() >= 0 && place.right() <= Drawing::kWidth, qPrintable(shape.text));
            texts.append({ place, shape.text });
        }
        pictures += texts.isEmpty() ? 0 : 1;
    }
    QVERIFY(pictures > 5);
}

void TstWrittenReport::factsStayOnOnePage()
{
    const QByteArray html = htmlReport(report("bad.pqa2").content);
    QCOMPARE(html.count("<div class=\"wide facts\"><table>\n<tbody>"), 2); // of the recording and of the instrument
    const QByteArray print = html.mid(html.indexOf("@media print"));
    QVERIFY(print.contains(".facts { break-inside: avoid; }"));
}

QTEST_MAIN(TstWrittenReport)
#include "tst_writtenreport.moc"
