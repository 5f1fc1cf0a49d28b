#include "report/htmlreport.h"
#include "report/pdfreport.h"
#include "report/reportwriter.h"
#include "unit/report/fedrecording.h"

#include <QBuffer>
#include <QFile>
#include <QTest>

#include <cmath>

namespace {

constexpr qint64 kStart = FedRecording::kStart;

/// A recording of a dip with its curves and its waveform.
FedRecording withDip()
{
    FedRecording r;
    r.facts.kind = RecordKind::Recording;
    r.facts.end = kStart + 6 * FedRecording::kTenMinutes;
    r.fill(r.table("rms", FedRecording::voltages()), 1000, [](int i) {
        return std::vector<double> { 230.0 + i % 3, 231, i == 2000 ? 180.0 : 229.0 };
    });
    r.event(EventDip, kStart + 2000100, kStart + 2000900, 150, 2);
    RmsCurve &curve = r.events[0].item.startRms[2];
    RmsCurve &current = r.events[0].item.startRms[6];
    for (int i = 0; i < 300; ++i) {
        curve.append({ kStart + 1999000 + i * 10, i > 110 && i < 190 ? 150.0f : 230.0f });
        current.append({ kStart + 1999000 + i * 10, i > 110 && i < 190 ? 40.0f : 10.0f });
    }
    RecordedWaveform wave;
    wave.event = 1;
    wave.number = 1;
    wave.sampleRate = 20480;
    wave.start = double(kStart + 2000060);
    wave.channels = { { "U_L3", "L3", "V", 0.1f }, { "I_L3", "L3", "A", 0.01f } };
    QVector<qint16> samples;
    for (int i = 0; i < 2048; ++i) {
        const double angle = 6.283185307179586 * 50 * i / 20480;
        samples << qint16(3250 * std::sin(angle) * (i > 800 ? 0.65 : 1)) << qint16(1400 * std::sin(angle - 0.5));
    }
    r.wave(wave, samples);
    return r;
}

ReportContent contentOf(const FedRecording &recording, const ReportSource &source)
{
    const Judgement judgement = judged(recording);
    const Report text((QString()));
    return ReportWriter(judgement, source, text).content();
}

} // namespace

/// What stands in a report, and that nothing in it is taken for anything but text.
class TstReportWriter : public QObject
{
    Q_OBJECT

private slots:
    void theWorstMomentLeadsToItsEventAndItsWaveform();
    void whateverANameHoldsIsText();
    void faultsAreNamedWithTheirPlace();
    void numbersAreThoseOfTheLanguage();
    void durationsAreReadable();
    void everyAnchorThatIsLinkedIsThere();
    void longTablesGoOnOnTheNextPage();
};

void TstReportWriter::theWorstMomentLeadsToItsEventAndItsWaveform()
{
    const QByteArray html = htmlReport(contentOf(withDip(), {}));
    const QString wanted = qEnvironmentVariable("QUVERA_REPORTS");
    if (!wanted.isEmpty()) {
        QFile file(wanted + "/dip.html");
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(html) > 0);
        QFile pdf(wanted + "/dip.pdf");
        QVERIFY(pdf.open(QIODevice::WriteOnly) && pdfReport(contentOf(withDip(), {}), &pdf));
    }
    QVERIFY(!html.contains("by thresholds of its own"));
    QVERIFY(html.contains("<a href=\"#event-1\">"));
    QVERIFY(html.contains("<tr id=\"event-1\">"));
    QVERIFY(html.contains("<a href=\"#moment-1\">1</a>"));
    QVERIFY(html.contains("<h3 id=\"moment-1\">"));
    for (const char *picture : { "Half-cycle values of the voltages", "Half-cycle values of the currents",
                                 "Waveform of the voltages", "Waveform of the currents" })
        QVERIFY2(html.contains("aria-label=\"" + QByteArray(picture)), picture);
}

void TstReportWriter::whateverANameHoldsIsText()
{
    FedRecording r = withDip();
    const QString hostile = QStringLiteral("<script>\"'&\n\x01]]>");
    r.facts.model = r.facts.clamp = r.facts.serialNumber = hostile;
    ReportSource source;
    source.name = hostile;
    source.faults.append({ hostile, 12, hostile });
    ReportContent content = contentOf(r, source);
    content.language = hostile;
    const QByteArray html = htmlReport(content);
    QVERIFY(!html.contains("<script"));
    QVERIFY(!html.contains('\x01'));
    QVERIFY(html.contains("&lt;script&gt;&quot;"));
    QBuffer pdf;
    QVERIFY(pdf.open(QIODevice::WriteOnly));
    QVERIFY(pdfReport(content, &pdf));
}

void TstReportWriter::faultsAreNamedWithTheirPlace()
{
    ReportSource source;
    source.state = RecordState::Broken;
    source.faults.append({ "/somewhere/Common.pqa2", 4711, "no block" });
    const QByteArray html = htmlReport(contentOf(withDip(), source));
    QVERIFY(html.contains("<li>Common.pqa2, 4711: no block</li>"));
    QVERIFY(html.contains("damaged in the middle"));
}

void TstReportWriter::numbersAreThoseOfTheLanguage()
{
    const QuantityKey frequency { Quantity::Frequency, -1, 0 };
    const QuantityKey voltage { Quantity::Voltage, 0, 0 };
    QCOMPARE(Report(QString()).value(frequency, 49.9876), QStringLiteral("49.988 Hz"));
    QCOMPARE(Report("ge").value(frequency, 49.9876), QStringLiteral("49,988 Hz"));
    QCOMPARE(Report("ru").percent(12345.67), QStringLiteral("12345,7 %"));
    QCOMPARE(Report("ge").languageTag(), QStringLiteral("de"));
    QCOMPARE(Report("pt_zolcar").languageTag().left(2), QStringLiteral("pt"));
    QCOMPARE(Report(QString()).range(voltage, 207, 253), QStringLiteral("207.0 … 253.0 V"));
    QCOMPARE(Report(QString()).range(frequency, 49.5, 50.5), QStringLiteral("49.50 … 50.50 Hz"));
    QCOMPARE(Report(QString()).range(frequency, 49.935, 50.5), QStringLiteral("49.935 … 50.500 Hz"));
    QCOMPARE(Report(QString()).range(voltage, -Bounds::kNone, 253), QStringLiteral("≤ 253.0 V"));
    QCOMPARE(Report(QString()).value(voltage, std::numeric_limits<double>::quiet_NaN()), QStringLiteral("–"));
    QCOMPARE(Report(QString()).number(1e300, 1), QStringLiteral("1.000e+300"));
}

void TstReportWriter::durationsAreReadable()
{
    const Report text((QString()));
    QCOMPARE(text.duration(80), QStringLiteral("0.080 s"));
    QCOMPARE(text.duration(12340), QStringLiteral("12.3 s"));
    QCOMPARE(text.duration(600000), QStringLiteral("00:10:00"));
    QCOMPARE(text.duration(FedRecording::kWeek + 168000), QStringLiteral("7 d 00:02:48"));
    QCOMPARE(text.duration(-1), QStringLiteral("–"));
    QCOMPARE(text.time(0), QStringLiteral("–"));
    QCOMPARE(text.time(1700000000000), QStringLiteral("2023-11-14 22:13:20"));
}

void TstReportWriter::everyAnchorThatIsLinkedIsThere()
{
    FedRecording r = withDip();
    for (int i = 0; i < 300; ++i)
        r.event(EventDip, kStart + i * 10000, kStart + i * 10000 + 50, 100);
    const QByteArray html = htmlReport(contentOf(r, {}));
    int at = 0, links = 0;
    while ((at = html.indexOf("href=\"#", at)) >= 0) {
        at += 7;
        const QByteArray anchor = html.mid(at, html.indexOf('"', at) - at);
        QVERIFY2(html.contains("id=\"" + anchor + '"'), anchor.constData());
        ++links;
    }
    QVERIFY(links > 100);
    QVERIFY(html.contains("Further events, not listed: 101."));
    r.event(EventRms, kStart, kStart + 1000, 231);
    QVERIFY(htmlReport(contentOf(r, {})).contains("by thresholds of its own"));
}

void TstReportWriter::longTablesGoOnOnTheNextPage()
{
    FedRecording r = withDip();
    for (int i = 0; i < 150; ++i)
        r.event(EventDip, kStart + i * 10000, kStart + i * 10000 + 50, 100);
    const auto pages = [](const FedRecording &recording) {
        QBuffer pdf;
        pdf.open(QIODevice::WriteOnly);
        pdfReport(contentOf(recording, {}), &pdf);
        return pdf.data().count("/Type /Page\n");
    };
    QVERIFY(pages(r) >= pages(withDip()) + 2);
}

QTEST_MAIN(TstReportWriter)
#include "tst_reportwriter.moc"
