// What a start says of recordings that the end of the program before has cut.
#include "wholegraph.h"

#include "record/interruptedruns.h"
#include "settings/config_data.h"
#include "shell/interruptednote.h"
#include "storage/fileinfo.h"
#include "storage/runjournal.h"
#include "unit/storage/rootfiles.h"

namespace {

constexpr auto kF5Letter = Qt::Key_L;
const QByteArray kPlan(".planned 1700000000 Week 7\n");

QByteArray journal()
{
    RootFiles::waitForDisks();
    return RootFiles::read(RunJournal::path());
}

} // namespace

class TstInterruptedNote : public QObject
{
    Q_OBJECT

private slots:
    void eachIsToldOnceBehindTheMenu()
    {
        RootFiles::clean();
        m_userConfig_g.setTimeZone(QStringLiteral("UTC"));
        RootFiles::write("/mnt/storage/Logger_1_00.csv", "TIME,\n2023/11/14  22:13:20,\n");
        RootFiles::write("/mnt/storage/Logger_2_00.csv", "TIME,\n2023/11/14  22:13:21,\n");
        RootFiles::write(RunJournal::path(),
                         ".planned 1700000000 Week 7\nLogger_1_00.csv\ngone.wav\nLogger_2_00.csv\n");
        buildWholeGraph();
        QVERIFY(!QApplication::activeModalWidget()); // the start waits for no answer
        QStringList texts;
        QByteArrayList journals;
        QTimer answers;
        connect(&answers, &QTimer::timeout, [&texts, &journals] {
            QWidget *dialog = QApplication::activeModalWidget();
            if (!dialog)
                return;
            for (const QLabel *label : dialog->findChildren<QLabel *>("message"))
                texts << label->text();
            journals << journal();
            QTest::keyClick(dialog, kF5Letter);
        });
        answers.start(20);
        QTRY_COMPARE(texts.size(), 3);
        QCOMPARE(texts,
                 QStringList({ "Recording Logger_1_00.csv was interrupted at 2023-11-14 22:13:20",
                               "Recording Logger_2_00.csv was interrupted at 2023-11-14 22:13:21",
                               "Recording Week 7, planned for 2023-11-14 22:13:20,\nwas lost with the supply." }));
        // What was not answered stays.
        QCOMPARE(journals,
                 QByteArrayList({ kPlan + "Logger_1_00.csv\nLogger_2_00.csv\n", kPlan + "Logger_2_00.csv\n", kPlan }));
        QTRY_VERIFY(!QApplication::activeModalWidget());
        QCOMPARE(journal(), QByteArray("(missing)"));
        QCOMPARE(FileInfo().getInfoFiles().size(), 2); // and the index was mended
    }
};

QTEST_MAIN(TstInterruptedNote)
#include "tst_interruptednote.moc"
