#include "platform/clock.h"
#include "platform/target.h"
#include "settings/userconfig.h"
#include "setup/calibrationdialog.h"
#include "setup/instrumentinfo.h"
#include "shell/menupage.h"
#include "shell/pagetable.h"
#include "shell/tasklinks.h"
#include "unit/markedlanguage.h"
#include "unit/views/pagetest.h"
#include "widgets/charts/monitorharmhisto.h"
#include "widgets/charts/monitorhistogram.h"
#include "widgets/dialogs/filecopingprogressbar.h"
#include "widgets/dialogs/filemanager.h"
#include "widgets/dialogs/message.h"
#include "widgets/dialogs/runinfo.h"
#include "widgets/dialogs/savedialog.h"
#include "widgets/dialogs/virtualkeyboard.h"
#include "paintedtexts.h"
#include "shellcase.h"
#include "testpaths.h"

#include <QScopeGuard>
#include <QXmlStreamReader>

#include <functional>
#include <memory>
#include <set>

namespace {

using Asked = std::set<std::pair<QString, QString>>; // class and source text

/// Translates nothing and takes down what it is asked for; the language itself is asked next.
class AskedTexts : public QTranslator
{
public:
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        asked.emplace(QString::fromUtf8(context), QString::fromUtf8(source));
        return {};
    }
    bool isEmpty() const override { return false; }
    mutable Asked asked;
};

/// The texts that a language file of the repository knows.
Asked knownTexts(const QString &word)
{
    QFile file(QStringLiteral(QUVERA_SOURCE_DIR "/translations/lang_%1.ts").arg(word));
    Asked known;
    if (!file.open(QIODevice::ReadOnly))
        return known;
    QString context;
    QXmlStreamReader xml(&file);
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isStartElement() && xml.name() == QLatin1String("name"))
            context = xml.readElementText();
        else if (xml.isStartElement() && xml.name() == QLatin1String("source"))
            known.emplace(context, xml.readElementText());
    }
    return known;
}

QByteArray plain(const QRectF &rect)
{
    return QByteArray::number(rect.left()) + ' ' + QByteArray::number(rect.top()) + ' '
        + QByteArray::number(rect.right()) + ' ' + QByteArray::number(rect.bottom());
}

/// What does not fit of the texts that \a widget shows, a line each.
QStringList misfits(QWidget &widget, const QString &where)
{
    constexpr double kEdge = 1.5; // pixels of a sign that may be lost, or touch another
    QStringList found;
    const QVector<PaintedText> texts = paintedTexts(widget);
    for (int i = 0; i < texts.size(); ++i) {
        const PaintedText &text = texts.at(i);
        if (!text.room.adjusted(-kEdge, -kEdge, kEdge, kEdge).contains(text.ink))
            found << QStringLiteral("%1: \"%2\" is cut (%3 in %4)")
                         .arg(where, text.text, plain(text.ink), plain(text.room));
        for (int k = 0; k < i; ++k) {
            const QRectF common = text.ink & texts.at(k).ink;
            if (common.width() > kEdge && common.height() > kEdge)
                found << QStringLiteral("%1: \"%2\" lies on \"%3\"").arg(where, text.text, texts.at(k).text);
        }
    }
    return found;
}

} // namespace

/// Every page in every language: all texts are known to the language files, and none is cut or lies on another.
class TstLanguages : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void aChangeOfTheLanguageReachesEveryText_data();
    void aChangeOfTheLanguageReachesEveryText();
    void everyTextFits_data();
    void everyTextFits();
    void everyTextThatIsAskedForIsInTheFiles();
    void noTextIsReadAsMarkup();

private:
    void speak(int language);
    void look(QWidget *widget, const QString &where);
    void lookAtCharts();
    void lookAtDialogs();
    void walk(LivePage *page, FunctionPage *whole, const std::function<void()> &show);
    void closeDialog();
    /// Adds the labels of a form that would show "<b>x</b>" as a thick x.
    void takeMarkupReaders(const QWidget *form);

    AskedTexts m_texts;
    int m_language = UserConfig::EN; // the one that is looked at
    QTimer m_closer;
    TaskLinks m_links;
    QStringList m_misfits;
    QSet<QString> m_seen; // what is already among them, wherever
    QStringList m_readsMarkup;
    QString m_where; // the page on which keys are pressed
    std::vector<std::unique_ptr<FunctionPage>> m_pages;
};

void TstLanguages::initTestCase()
{
    for (const auto &language : UserConfig::languages()) {
        const QString name = QStringLiteral("lang_%1.qm").arg(QLatin1String(language.fileWord));
        const QString built = QStringLiteral(QUVERA_BIN_DIR "/language/") + name;
        if (*language.fileWord)
            QVERIFY2(QFile::copy(built, Target::path("/mnt/userfs/language/" + name)), qPrintable(built));
    }
    buildWholeGraph();
    connect(&m_closer, &QTimer::timeout, this, &TstLanguages::closeDialog);
    m_closer.start(0);
    for (const PageRow &row : PageTable::rows()) {
        if (row.make)
            m_pages.emplace_back(row.make(m_links, PageTest::liveData()));
    }
}

void TstLanguages::aChangeOfTheLanguageReachesEveryText_data()
{
    QTest::addColumn<int>("row");
    const auto &rows = PageTable::rows();
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (rows[i].make)
            QTest::newRow(rows[i].title) << int(i);
    }
}

void TstLanguages::aChangeOfTheLanguageReachesEveryText()
{
    QFETCH(int, row);
    const auto make = [this, row] {
        std::unique_ptr<FunctionPage> page(PageTable::rows()[std::size_t(row)].make(m_links, PageTest::liveData()));
        PageTest::openAll(*page);
        page->init_parameter();
        page->updateDisplay(nullptr);
        return page;
    };
    Clock::setForTest(1700000000000); // both pages show the same moment
    const auto running = qScopeGuard([] { Clock::useSystem(); });
    const auto page = make();
    const auto english = texts(page.get());
    MarkedLanguage language;
    QVERIFY(QCoreApplication::installTranslator(&language));
    page->retranslateUi();
    const auto shown = texts(page.get());
    const auto expected = texts(make().get()); // of a page that never knew another language
    QVERIFY(expected != english);
    for (const QString &name : expected.keys()) {
        if (!name.endsWith(QStringLiteral("/memory"))) // no words; others on this machine use its disk meanwhile
            QCOMPARE(name + shown[name], name + expected[name]);
    }
}

void TstLanguages::look(QWidget *widget, const QString &where)
{
    for (const QString &misfit : misfits(*widget, where)) {
        const QString text = misfit.section(QLatin1String(": "), 1);
        if (!m_seen.contains(text))
            m_misfits << misfit;
        m_seen.insert(text);
    }
}

void TstLanguages::closeDialog()
{
    QWidget *dialog = QApplication::activeModalWidget();
    if (!dialog)
        return;
    look(dialog, m_where + QLatin1Char('/') + QString::fromLatin1(dialog->metaObject()->className()));
    takeMarkupReaders(dialog);
    dialog->close();
}

void TstLanguages::takeMarkupReaders(const QWidget *form)
{
    for (const QLabel *label : form->findChildren<QLabel *>()) {
        if (label->textFormat() != Qt::PlainText)
            m_readsMarkup << QString::fromLatin1(label->parentWidget()->metaObject()->className()) + QLatin1Char('/')
                    + label->objectName();
    }
}

/// Presses the keys of a page that \a show brings to the front of \a whole, or of all pages in it.
void TstLanguages::walk(LivePage *page, FunctionPage *whole, const std::function<void()> &show)
{
    if (auto *container = qobject_cast<ViewContainer *>(page)) {
        for (int row = 0; row < container->pageCount(); ++row) {
            walk(container->page(row), whole, [&show, container, row] {
                show();
                container->showPage(row);
            });
        }
        return;
    }
    m_where = QString::fromLatin1(page->metaObject()->className());
    const int chosen = m_userConfig_g.getLang();
    for (const PageTest::FrontKey key :
         { PageTest::Up, PageTest::F1, PageTest::F2, PageTest::F3, PageTest::F4, PageTest::F5, PageTest::Enter,
           PageTest::Left, PageTest::Right, PageTest::Down }) {
        show();
        PageTest::press(page, key);
        whole->updateDisplay(nullptr);
        look(whole, m_where);
    }
    if (m_userConfig_g.getLang() != chosen) { // by the keys of the user's page
        speak(m_language);
        whole->retranslateUi();
    }
}

/// Charts with words of their own, also where no page shows them yet.
void TstLanguages::lookAtCharts()
{
    MonitorHistogram quantities;
    MonitorHarmHisto orders;
    for (QWidget *chart : { static_cast<QWidget *>(&quantities), static_cast<QWidget *>(&orders) }) {
        chart->resize(620, 340);
        look(chart, QString::fromLatin1(chart->metaObject()->className()));
    }
}

void TstLanguages::lookAtDialogs()
{
    m_where = QStringLiteral("dialogs");
    for (int type = 0; type < 8; ++type)
        Message::showMessage(type, QStringLiteral("?"));
    // What is asked or called out stands in a message, or is a line of one.
    for (const auto &text : knownTexts(QStringLiteral("ge"))) {
        if (!text.second.contains(QLatin1Char('?')) && !text.second.contains(QLatin1Char('!')))
            continue;
        Message message(Message::Warning, QCoreApplication::translate(text.first.toUtf8(), text.second.toUtf8()));
        look(&message, m_where);
    }
    RunInfo::showSystemStatus(PageTest::liveData());
    QString name = QStringLiteral("Screen");
    SaveDialog::save(3, name);
    VirtualKeyBoard::getKeyBoardInput(QString(), QString());
    FileManager::getExistFileName();
    FileCopingProgressBar({ { QString(), QString() } }).exec();
    CalibrationDialog::calibration();
    InstrumentInfo::editInstrumentInfo();
}

void TstLanguages::everyTextFits_data()
{
    QTest::addColumn<int>("language");
    const auto &languages = UserConfig::languages();
    for (int i = 0; i < languages.size(); ++i)
        QTest::newRow(languages.at(i).key) << i + 1;
}

void TstLanguages::speak(int language)
{
    languageTranslator.reloadLangTranslation(language);
    QCoreApplication::removeTranslator(&m_texts);
    QCoreApplication::installTranslator(&m_texts);
}

void TstLanguages::everyTextFits()
{
    QFETCH(int, language);
    m_misfits.clear();
    m_seen.clear();
    m_language = language;
    speak(language);
    m_basedialog->navigator().go(UI_VIF, UI_MENU);
    look(m_basedialog, QStringLiteral("window"));
    lookAtDialogs();
    lookAtCharts();
    for (const auto &page : m_pages) {
        page->retranslateUi();
        page->resize(640, 448);
        page->enter();
        page->init_parameter();
        walk(page.get(), page.get(), [] {});
    }
    for (const QString &misfit : m_misfits)
        qWarning("%s", qPrintable(misfit));
    QVERIFY(m_misfits.isEmpty());
}

void TstLanguages::everyTextThatIsAskedForIsInTheFiles()
{
    const Asked known = knownTexts(QStringLiteral("ge"));
    QVERIFY(known.size() > 200);
    QVERIFY(m_texts.asked.size() > 200);
    QStringList unknown;
    for (const auto &text : m_texts.asked) {
        const bool isToolkits = text.first.startsWith(QLatin1Char('Q'));
        const bool isSign = text.second.size() <= 2; // names of channels and the like, the same in every language
        if (!isToolkits && !isSign && known.count(text) == 0)
            unknown << text.first + QStringLiteral(": ") + text.second;
    }
    QVERIFY2(unknown.isEmpty(), qPrintable(unknown.join(QLatin1Char('\n'))));
}

/// Names of persons, networks and clamps, and what stands in files, may look like markup; a picture in it would be read
/// from the instrument's disks.
void TstLanguages::noTextIsReadAsMarkup()
{
    m_readsMarkup.clear();
    takeMarkupReaders(m_basedialog);
    for (const auto &page : m_pages) {
        PageTest::openAll(*page);
        takeMarkupReaders(page.get());
    }
    lookAtDialogs();
    QVERIFY2(m_readsMarkup.isEmpty(), qPrintable(m_readsMarkup.join(QLatin1Char('\n'))));
}

PAGE_TEST_MAIN(TstLanguages)
#include "tst_languages.moc"
