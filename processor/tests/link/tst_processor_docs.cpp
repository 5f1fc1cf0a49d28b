#include "scenario/commands.h"
#include "scenario/eventforms.h"
#include "scenario/options.h"
#include "scenario/scenariofile.h"
#include "testpaths.h"

#include <QFile>
#include <QRegularExpression>
#include <QTest>

using namespace scenario;

/// The page about the processor on a desk says what the code does.
class TstProcessorDocs : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void everyOptionIsInItsTable();
    void everyCommandIsInItsTable();
    void everyEventIsInItsTableWithItsValues();
    void everyScenarioIsNamed();
    void exampleIsAScenario();

private:
    /// First cells of the table whose head begins with \a head, without the back quotes; all cells of a row in \a rows.
    QStringList table(const QString &head, QList<QStringList> *rows = nullptr) const
    {
        QStringList cells;
        bool inside = false;
        for (const QString &line : m_page.split('\n')) {
            if (!line.startsWith('|')) {
                inside = false;
            } else if (line.startsWith("| " + head + " |")) {
                inside = true;
            } else if (inside && !line.startsWith("|---")) {
                QString plain = line;
                const QStringList row = plain.remove('`').replace("\\|", "/").split(" | ");
                cells << row[0].mid(2);
                if (rows)
                    *rows << row;
            }
        }
        return cells;
    }
    QString m_page;
};

void TstProcessorDocs::initTestCase()
{
    QFile file(QUVERA_SOURCE_DIR "/docs/simulator.md");
    QVERIFY(file.open(QIODevice::ReadOnly));
    m_page = QString::fromUtf8(file.readAll());
}

void TstProcessorDocs::everyOptionIsInItsTable()
{
    QString error;
    QString help;
    QVERIFY(!Options::read({ "quvera-processor", "--help" }, &error, &help));
    QStringList documented;
    for (const QString &cell : table("Option"))
        documented << cell.section(' ', 0, 0);
    QStringList known;
    QRegularExpressionMatchIterator found
        = QRegularExpression("^  (?:-h, )?(--[a-z-]+)", QRegularExpression::MultilineOption).globalMatch(help);
    while (found.hasNext())
        known << found.next().captured(1);
    documented.sort();
    known.sort();
    QVERIFY(known.size() > 10);
    QCOMPARE(documented, known);
}

void TstProcessorDocs::everyCommandIsInItsTable()
{
    QCOMPARE(table("Command").join(", "), Commands::names());
}

void TstProcessorDocs::everyEventIsInItsTableWithItsValues()
{
    QList<QStringList> rows;
    table("Event", &rows);
    QCOMPARE(rows.size(), int(eventForms().size()));
    for (int i = 0; i < rows.size(); ++i) {
        const EventForm &form = eventForms()[std::size_t(i)];
        QStringList required;
        QStringList further;
        for (const EventValue &value : form.values)
            (value.required ? required : further) << value.key;
        QString inOrder = rows[i][1];
        QString others = rows[i][2];
        QCOMPARE(rows[i][0], QString("| ") + form.name);
        QCOMPARE(inOrder.remove(QRegularExpression(" [%V]")), required.join(", "));
        QCOMPARE(others.remove(" %"), further.join(", "));
        QVERIFY(rows[i][3].startsWith(form.side == Side::Voltage ? "voltages" : "currents"));
    }
}

void TstProcessorDocs::everyScenarioIsNamed()
{
    const QString cells = table("Scenarios").join(", ");
    const QRegularExpression pst("^pst-(230|120)v-"); // named by their first and last
    for (const QString &name : ScenarioFile::names())
        QVERIFY2(cells.contains(name) || pst.match(name).hasMatch(), qPrintable(name));
    for (const QString &name : cells.split(QRegularExpression(",? to |, ")))
        QVERIFY2(ScenarioFile::names().contains(name), qPrintable(name));
}

void TstProcessorDocs::exampleIsAScenario()
{
    const int from = m_page.indexOf("    { \"name\": \"lesson\"");
    const int to = m_page.indexOf("\n\n", from);
    QVERIFY(from > 0 && to > from);
    QString error;
    const auto scenario = ScenarioFile::parse("example", m_page.mid(from, to - from).toUtf8(), &error);
    QVERIFY2(scenario, qPrintable(error));
    QCOMPARE(scenario->steps.size(), std::size_t(2));
}

QTEST_GUILESS_MAIN(TstProcessorDocs)
#include "tst_processor_docs.moc"
