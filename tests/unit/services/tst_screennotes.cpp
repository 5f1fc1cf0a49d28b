#include "board/screenshot.h"
#include "services/panel.h"
#include "services/screennotes.h"
#include "widgets/controls/readingmarks.h"

#include <QApplication>
#include <QBuffer>
#include <QDialog>
#include <QImageReader>
#include <QLabel>
#include <QListWidget>
#include <QPainter>
#include <QRadioButton>
#include <QStackedWidget>
#include <QTest>

/// The texts that go with a picture of the screen.
class TstScreenNotes : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_window.reset(); }

    void nothingIsNotedWithoutAWindow();
    void pageAndItsTitleAreNamed();
    void subPageIsNamed();
    void textsStandInRowsAsTheyAreRead();
    void rowsAreNoNarrowerThanTheirLetters();
    void hiddenTextsAreNotNoted();
    void rowsOfAListAreNoted();
    void paintedTextsAreNoted();
    void blanksAndListsWithoutRowsAreNotNoted();
    void windowWithoutAPageOrATitleIsPassedOver();
    void captionsOfTheSoftKeysNameTheirKeys();
    void openDialogIsInFront();
    void selectedRowOfAListIsNoted();
    void barMarksTheTextsOnIt();
    void checkedRadioButtonIsSelected();
    void coverHidesThePage();
    void longTextsAreCut();
    void pictureCarriesItsNotes();

private:
    static QString note(const char *name) { return ScreenNotes::take().value(QLatin1String(name)); }
    QLabel *addLabel(const QString &text, int x, int y, const QString &name = QString())
    {
        auto *label = new QLabel(text, m_page);
        label->setObjectName(name);
        label->setGeometry(x, y, 80, 20);
        label->show();
        return label;
    }

    std::unique_ptr<QWidget> m_window;
    QWidget *m_page = nullptr;
};

// As the main window arranges it: a title bar, and the stack of pages.
void TstScreenNotes::init()
{
    m_window = std::make_unique<QWidget>();
    m_window->resize(640, 480);
    auto *title = new QLabel(QStringLiteral("Volts/Amps/\n Hertz"), m_window.get());
    title->setObjectName(QStringLiteral("name"));
    auto *stack = new QStackedWidget(m_window.get());
    stack->setObjectName(QStringLiteral("base_stackedWidget"));
    stack->setGeometry(0, 32, 640, 448);
    m_page = new QWidget;
    stack->addWidget(m_page);
    stack->addWidget(new QLabel(QStringLiteral("another page")));
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

void TstScreenNotes::nothingIsNotedWithoutAWindow()
{
    m_window->hide();
    QVERIFY(ScreenNotes::take().isEmpty());
}

void TstScreenNotes::pageAndItsTitleAreNamed()
{
    QCOMPARE(note("Page"), QStringLiteral("QWidget"));
    QCOMPARE(note("Title"), QStringLiteral("Volts/Amps/ Hertz"));
    QVERIFY(!ScreenNotes::take().contains(QStringLiteral("Dialog")));
}

void TstScreenNotes::subPageIsNamed()
{
    QVERIFY(!ScreenNotes::take().contains(QStringLiteral("Part")));
    auto *parts = new QStackedWidget(m_page);
    QVERIFY(!ScreenNotes::take().contains(QStringLiteral("Part"))); // none was opened yet
    parts->addWidget(new QListWidget);
    parts->addWidget(new QDialog);
    QCOMPARE(note("Part"), QStringLiteral("QListWidget"));
    parts->setCurrentIndex(1);
    QCOMPARE(note("Part"), QStringLiteral("QDialog"));
    QCOMPARE(note("Page"), QStringLiteral("QWidget"));
}

void TstScreenNotes::textsStandInRowsAsTheyAreRead()
{
    addLabel(QStringLiteral("229.4"), 200, 103);
    addLabel(QStringLiteral("L1"), 100, 20);
    addLabel(QStringLiteral("Urms(V)"), 10, 100);
    addLabel(QStringLiteral("two\n lines"), 10, 60);
    QCOMPARE(note("Texts"), QStringLiteral("L1\ntwo lines\nUrms(V) 229.4"));
}

void TstScreenNotes::rowsAreNoNarrowerThanTheirLetters()
{
    addLabel(QStringLiteral("Urms"), 10, 100);
    addLabel(QStringLiteral("229.4"), 100, 108); // of another size
    addLabel(QStringLiteral("Irms"), 10, 124);
    QCOMPARE(note("Texts"), QStringLiteral("Urms 229.4\nIrms"));
}

void TstScreenNotes::hiddenTextsAreNotNoted()
{
    addLabel(QStringLiteral("shown"), 10, 100);
    addLabel(QStringLiteral("hidden"), 100, 100)->hide();
    QCOMPARE(note("Texts"), QStringLiteral("shown"));
}

void TstScreenNotes::rowsOfAListAreNoted()
{
    auto *list = new QListWidget(m_page);
    list->setGeometry(0, 0, 300, 100);
    for (int i = 0; i < 2000; ++i)
        list->addItem(QStringLiteral("file %1").arg(i));
    list->show();
    QCoreApplication::processEvents();
    const QStringList rows = note("Texts").split(QLatin1Char('\n'));
    QCOMPARE(rows.first(), QStringLiteral("file 0"));
    QVERIFY(rows.size() > 2 && rows.size() < 20); // those in sight
    list->item(0)->setText(QStringLiteral("two\n lines"));
    QVERIFY(note("Texts").startsWith(QStringLiteral("two lines\n")));
    list->scrollToBottom();
    QVERIFY(note("Texts").endsWith(QStringLiteral("\nfile 1999")));
}

// As charts and the table of events are.
class PaintedTable : public QWidget
{
public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.drawText(QRect(150, 40, 100, 20), Qt::AlignCenter, QStringLiteral("55.0"));
        painter.drawText(QRect(0, 40, 100, 20), Qt::AlignCenter, QStringLiteral("L2 DIP"));
        painter.drawText(QRect(0, 0, 100, 20), Qt::AlignCenter, QStringLiteral("TYPE"));
        painter.drawText(QRect(150, 0, 100, 20), Qt::AlignCenter, QStringLiteral("LEVEL"));
        painter.drawText(QRect(150, 20, 100, 20), Qt::AlignCenter, QStringLiteral("  "));
    }
};

void TstScreenNotes::paintedTextsAreNoted()
{
    auto *table = new PaintedTable(m_page);
    table->setGeometry(100, 100, 300, 100);
    table->show();
    addLabel(QStringLiteral("EVENTS : 1/1"), 10, 60);
    addLabel(QString(), 10, 80);
    QCOMPARE(note("Texts"), QStringLiteral("EVENTS : 1/1\nTYPE LEVEL\nL2 DIP 55.0"));
    table->hide();
    QCOMPARE(note("Texts"), QStringLiteral("EVENTS : 1/1"));
}

void TstScreenNotes::blanksAndListsWithoutRowsAreNotNoted()
{
    auto *list = new QListWidget(m_page);
    list->setGeometry(0, 0, 300, 100);
    list->addItems({ QStringLiteral("one"), QString(), QStringLiteral(" \n"), QStringLiteral("two") });
    list->show();
    auto *bare = new QListView(m_page); // without a model
    bare->setGeometry(0, 200, 300, 100);
    bare->show();
    QCoreApplication::processEvents();
    QCOMPARE(note("Texts"), QStringLiteral("one\ntwo"));
}

void TstScreenNotes::windowWithoutAPageOrATitleIsPassedOver()
{
    delete m_window->findChild<QLabel *>(QStringLiteral("name"));
    QCOMPARE(note("Page"), QStringLiteral("QWidget"));
    QVERIFY(!ScreenNotes::take().contains(QStringLiteral("Title")));
    auto *stack = m_window->findChild<QStackedWidget *>(QStringLiteral("base_stackedWidget"));
    while (stack->count() > 0)
        stack->removeWidget(stack->widget(0));
    QVERIFY(ScreenNotes::take().isEmpty());
}

void TstScreenNotes::captionsOfTheSoftKeysNameTheirKeys()
{
    addLabel(QStringLiteral("Hold"), 520, 420, QStringLiteral("btn_f5"));
    addLabel(QStringLiteral("Trend"), 400, 420, QStringLiteral("btn_f4"));
    addLabel(QStringLiteral("Scope\n(all)"), 300, 420, QStringLiteral("btn_f3"));
    addLabel(QStringLiteral("of another mode"), 200, 420, QStringLiteral("btn_f2"))->hide();
    addLabel(QString(), 10, 420, QStringLiteral("btn_f1"));
    QCOMPARE(note("Keys"), QStringLiteral("F3 Scope (all)\nF4 Trend\nF5 Hold"));
}

void TstScreenNotes::openDialogIsInFront()
{
    addLabel(QStringLiteral("behind"), 10, 100);
    QDialog dialog(m_window.get());
    QLabel question(QStringLiteral("Quit the\nmeasurement?"), &dialog);
    QLabel answers(QStringLiteral("Yes / No"), &dialog);
    question.setGeometry(10, 10, 80, 40);
    answers.setGeometry(10, 60, 80, 20);
    answers.setObjectName(QStringLiteral("btn_f5"));
    dialog.open();
    QCOMPARE(note("Dialog"), QStringLiteral("Quit the measurement? Yes / No"));
    QCOMPARE(note("Texts"), QStringLiteral("Quit the measurement?\nYes / No"));
    QCOMPARE(note("Keys"), QStringLiteral("F5 Yes / No"));
    QCOMPARE(note("Title"), QStringLiteral("Volts/Amps/ Hertz"));
}

void TstScreenNotes::selectedRowOfAListIsNoted()
{
    auto *list = new QListWidget(m_page);
    list->setGeometry(0, 0, 300, 200);
    list->addItems({ QStringLiteral("one"), QStringLiteral("two") });
    list->show();
    QCoreApplication::processEvents();
    QCOMPARE(note("Selected"), QString());
    list->setCurrentRow(1);
    QCOMPARE(note("Selected"), QStringLiteral("two"));
    // Out of sight it is not noted, nor what stands where it would be.
    for (int row = 0; row < 30; ++row)
        list->addItem(QString::number(row));
    list->resize(300, 40);
    list->setCurrentRow(20);
    list->scrollToTop();
    const QPoint place = list->visualItemRect(list->currentItem()).center();
    addLabel(QStringLiteral("of another"), place.x() - 20, place.y() - 5);
    QCOMPARE(note("Selected"), QString());
    list->scrollToItem(list->currentItem());
    QCOMPARE(note("Selected"), QStringLiteral("18"));
    list->hide();
    QCOMPARE(note("Selected"), QString());
}

void TstScreenNotes::barMarksTheTextsOnIt()
{
    QLabel *bar = addLabel(QString(), 0, 100);
    bar->resize(400, 20);
    ReadingMarks::select(bar);
    QCOMPARE(note("Selected"), QString());
    addLabel(QStringLiteral("50 Hz"), 200, 100);
    addLabel(QStringLiteral("Frequency"), 10, 100);
    addLabel(QStringLiteral("Voltage"), 10, 120);
    QCOMPARE(note("Selected"), QStringLiteral("Frequency 50 Hz"));
    QLabel *column = addLabel(QString(), 190, 100); // within the line
    ReadingMarks::select(column);
    QCOMPARE(note("Selected"), QStringLiteral("Frequency 50 Hz\n50 Hz"));
    column->setGeometry(bar->geometry()); // the same once more says nothing more
    QCOMPARE(note("Selected"), QStringLiteral("Frequency 50 Hz"));
    ReadingMarks::select(column, false);
    bar->move(0, 120);
    QCOMPARE(note("Selected"), QStringLiteral("Voltage"));
    ReadingMarks::selectPart(bar, QRect(0, 0, 400, 20), ReadingMarks::Check::Off);
    QCOMPARE(note("Selected"), QStringLiteral("Voltage [ ]"));
    ReadingMarks::selectPart(bar, QRect(0, -20, 400, 20), ReadingMarks::Check::On);
    QCOMPARE(note("Selected"), QStringLiteral("Frequency 50 Hz [x]"));
    ReadingMarks::selectPart(bar, QRect());
    QCOMPARE(note("Selected"), QString());
}

void TstScreenNotes::checkedRadioButtonIsSelected()
{
    auto *screen = new QRadioButton(QStringLiteral("Screen"), m_page);
    auto *data = new QRadioButton(QStringLiteral("Data"), m_page);
    data->move(0, 50);
    screen->show();
    data->show();
    data->setChecked(true);
    QCOMPARE(note("Selected"), QStringLiteral("Data"));
    screen->setChecked(true);
    QCOMPARE(note("Selected"), QStringLiteral("Screen"));
}

void TstScreenNotes::coverHidesThePage()
{
    addLabel(QStringLiteral("Format"), 10, 420, QStringLiteral("btn_f1"));
    addLabel(QStringLiteral("below"), 10, 100);
    auto *cover = new QWidget(m_window.get());
    ReadingMarks::setCover(cover, QStringLiteral("F5 Back"));
    QLabel text(QStringLiteral("above"), cover);
    QCOMPARE(note("Texts"), QStringLiteral("below\nFormat"));
    cover->show();
    QCOMPARE(note("Texts"), QStringLiteral("above"));
    QCOMPARE(note("Keys"), QStringLiteral("F5 Back"));
    QCOMPARE(note("Title"), QStringLiteral("Volts/Amps/ Hertz"));

    auto *second = new QWidget(m_window.get());
    ReadingMarks::setCover(second, {});
    QLabel picture(QStringLiteral("picture"), second);
    second->show();
    QCOMPARE(note("Texts"), QStringLiteral("picture"));
    QCOMPARE(note("Keys"), QString());
    cover->raise();
    QCOMPARE(note("Texts"), QStringLiteral("above"));
}

void TstScreenNotes::longTextsAreCut()
{
    ReadingMarks::select(addLabel(QString(3 * ScreenNotes::kLongest, QLatin1Char('x')), 10, 100));
    QCOMPARE(note("Selected").size(), ScreenNotes::kLongest);
    QCOMPARE(note("Texts").size(), int(ScreenNotes::kLongest));
}

void TstScreenNotes::pictureCarriesItsNotes()
{
    ScreenShot::initScreenShot();
    const auto panel = Panel::shared();
    std::mutex lock;
    QByteArray last;
    const int number = panel->addTaker([&](const QByteArray &png) {
        const std::lock_guard<std::mutex> guard(lock);
        last = png;
    });
    const auto text = [&](const char *name) {
        panel->requestPicture(number);
        QTest::qWait(Panel::kPictureSpacing);
        const std::lock_guard<std::mutex> guard(lock);
        QBuffer buffer(&last);
        return QImageReader(&buffer, "png").text(QLatin1String(name));
    };
    QLabel *label = addLabel(QStringLiteral("229.4"), 10, 100);
    QTRY_COMPARE_WITH_TIMEOUT(text("Texts"), QStringLiteral("229.4"), 30000);
    label->setText(QStringLiteral("\u00b0C"));
    QTRY_COMPARE_WITH_TIMEOUT(text("Texts"), QStringLiteral("\u00b0C"), 30000);
    QCOMPARE(text("Title"), QStringLiteral("Volts/Amps/ Hertz"));
    const auto setCut = [label](char end) { label->setText(QString(100, QLatin1Char('x')) + QLatin1Char(end)); };
    setCut('1');
    QTRY_VERIFY_WITH_TIMEOUT(text("Texts").endsWith(QLatin1Char('1')), 30000);
    setCut('2'); // no dot of the screen changes
    QTRY_VERIFY_WITH_TIMEOUT(text("Texts").endsWith(QLatin1Char('2')), 30000);
    panel->removeTaker(number);
}

QTEST_MAIN(TstScreenNotes)

#include "tst_screennotes.moc"
