// Holds the sources to the measures of docs/architecture.md, "Gates": lengths, equal lines, one table of wirings.
#include "unit/architecture/sourcetext.h"

#include <QRect>
#include <QTest>

namespace {

constexpr int kFileLines = 600; // fewer than these
constexpr int kFunctionLines = 60; // fewer than these
constexpr int kEqualLines = 6; // so many in two places are too many

QByteArray list(const QStringList &lines)
{
    return lines.join(QLatin1Char('\n')).toUtf8();
}

/// Lines of code that decide on a join mode by comparing it.
QStringList wiringDecisions(const QString &path, const QString &text)
{
    // Zero and minus one say that there is no mode, which is no decision on a wiring.
    static const QRegularExpression decision(
        QStringLiteral("[jJ]oin_?[mM]ode\\w*(\\(\\))?\\s*(==|!=|<=?|>=?|%)(?!\\s*(0|-1)\\b)|"
                       "(==|!=|<=|>=|(?<!-)[<>])\\s*[\\w.>-]*[jJ]oin_?[mM]ode|"
                       "switch \\([^)]*[jJ]oin_?[mM]ode|case [\\w:]*[jJ]oin_?[mM]ode"));
    QStringList found;
    const QStringList lines = SourceText::withoutComments(text).split(QLatin1Char('\n'));
    for (const QString &line : lines) {
        if (decision.match(line).hasMatch())
            found << path + QStringLiteral(": ") + line.trimmed();
    }
    return found;
}

} // namespace

/// The measures of sources. Each is shown to find what it looks for before it looks at the sources.
class TstSourceShape : public QObject
{
    Q_OBJECT
private slots:
    void longFunctionsAreFound();
    void equalRunsAreFound();
    void wiringDecisionsAreFound();
    void filesStayShort();
    void functionsStayShort();
    void noRunOfLinesStandsTwice();
    void onlyTheTableDecidesOnTheWiring();
    void captionsOfFormsStandOverTheirKeys();
};

void TstSourceShape::longFunctionsAreFound()
{
    const auto found = SourceText::functions(QStringLiteral("namespace {\n"
                                                            "struct Pair\n"
                                                            "{\n"
                                                            "    int sum()\n"
                                                            "    {\n"
                                                            "        return 1;\n"
                                                            "    }\n"
                                                            "};\n"
                                                            "}\n"
                                                            "\n"
                                                            "int Pair::other(int a,\n"
                                                            "                int b)\n"
                                                            "{\n"
                                                            "    if (a) {\n"
                                                            "        b = 2;\n"
                                                            "    }\n"
                                                            "    return b;\n"
                                                            "}\n"));
    QCOMPARE(found.size(), 2);
    QCOMPARE(found.at(0).head, QStringLiteral("int sum()"));
    QCOMPARE(found.at(0).lines, 4);
    QCOMPARE(found.at(1).head, QStringLiteral("int Pair::other(int a,"));
    QCOMPARE(found.at(1).line, 11);
    QCOMPARE(found.at(1).lines, 8);
}

void TstSourceShape::equalRunsAreFound()
{
    const QString three = QStringLiteral("{\n    a = b;\n\n    // why\n    c = d;\n    e(f);\n}\n");
    SourceText::EqualRuns runs(3);
    QCOMPARE(runs.add(QStringLiteral("one.cpp"), three), QStringList());
    // A comment, a blank line or another indentation makes no difference; another line does.
    const auto found = runs.add(QStringLiteral("two.cpp"), QStringLiteral("x = 1;\na = b;\nc = d; // so\ne(f);\n"));
    QCOMPARE(found, QStringList { QStringLiteral("one.cpp:2 and two.cpp:2: a = b;") });
    QCOMPARE(runs.add(QStringLiteral("three.cpp"), QStringLiteral("a = b;\nc = 0;\ne(f);\n")), QStringList());
}

void TstSourceShape::wiringDecisionsAreFound()
{
    const QString path = QStringLiteral("x.cpp");
    for (const char *line :
         { "if (joinMode == 5)", "if (settings.getJoinMode() >= 7)", "switch (config.getJoinMode()) {",
           "case SettingConfig::__join_mode_delta:", "if (3 == m_joinMode)", "star = joinMode % 2 != 0;" })
        QCOMPARE(wiringDecisions(path, QLatin1String(line)).size(), 1);
    for (const char *line : { "if (m_fixedJoinMode < 0)", "block->joinMode = 3;", "// joinMode == 5",
                              "const ChannelSet *set = channelSet(getJoinMode());" })
        QCOMPARE(wiringDecisions(path, QLatin1String(line)), QStringList());
}

void TstSourceShape::filesStayShort()
{
    QStringList found;
    const auto paths = SourceText::allSources();
    QVERIFY(paths.size() > 500);
    for (const QString &path : paths) {
        const int lines = SourceText::read(SourceText::kTop + QLatin1Char('/') + path).count(QLatin1Char('\n'));
        if (lines >= kFileLines)
            found << QStringLiteral("%1: %2 lines").arg(path).arg(lines);
    }
    QVERIFY2(found.isEmpty(), list(found));
}

void TstSourceShape::functionsStayShort()
{
    QStringList found;
    int checked = 0;
    const auto paths = SourceText::allSources();
    for (const QString &path : paths) {
        const auto functions = SourceText::functions(SourceText::read(SourceText::kTop + QLatin1Char('/') + path));
        checked += functions.size();
        for (const auto &function : functions) {
            if (function.lines >= kFunctionLines)
                found << QStringLiteral("%1:%2: %3 lines: %4")
                             .arg(path)
                             .arg(function.line)
                             .arg(function.lines)
                             .arg(function.head);
        }
    }
    QVERIFY(checked > 3000);
    QVERIFY2(found.isEmpty(), list(found));
}

void TstSourceShape::noRunOfLinesStandsTwice()
{
    // The stand-in knows nothing of the instrument, so that what both need stands in each of them.
    SourceText::EqualRuns ofTheInstrument(kEqualLines);
    SourceText::EqualRuns ofTheProcessor(kEqualLines);
    QStringList found;
    const auto paths = SourceText::allSources();
    for (const QString &path : paths) {
        SourceText::EqualRuns &runs = path.startsWith(QStringLiteral("processor/")) ? ofTheProcessor : ofTheInstrument;
        found += runs.add(path, SourceText::read(SourceText::kTop + QLatin1Char('/') + path));
    }
    QVERIFY2(found.isEmpty(), list(found));
}

void TstSourceShape::onlyTheTableDecidesOnTheWiring()
{
    QStringList found;
    const auto paths = SourceText::sources(QStringLiteral("src"));
    QVERIFY(!paths.isEmpty());
    for (const QString &path : paths) {
        // The table itself, and the setting with its bounds.
        if (path.startsWith(QStringLiteral("src/model/channelset")) || path.startsWith(QStringLiteral("src/settings/")))
            continue;
        found += wiringDecisions(path, SourceText::read(SourceText::kTop + QLatin1Char('/') + path));
    }
    QVERIFY2(found.isEmpty(), list(found));
}

void TstSourceShape::captionsOfFormsStandOverTheirKeys()
{
    // The keys below the screen are 127 pixels apart. A dialog stands higher.
    static const QRegularExpression page(
        QStringLiteral("<width>640</width>\\s*<height>448</height>.*?<widget.*name=\"btn_f"),
        QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression caption(
        QStringLiteral("name=\"btn_f([1-5])\">.*?<x>(\\d+)</x>\\s*<y>(\\d+)</y>\\s*<width>(\\d+)</width>\\s*"
                       "<height>(\\d+)</height>"),
        QRegularExpression::DotMatchesEverythingOption);
    QStringList found;
    int captions = 0;
    QDirIterator forms(SourceText::kTop + QStringLiteral("/src"), { QStringLiteral("*.ui") }, QDir::Files,
                       QDirIterator::Subdirectories);
    while (forms.hasNext()) {
        const QString text = SourceText::read(forms.next());
        if (!page.match(text).hasMatch())
            continue;
        for (auto each = caption.globalMatch(text); each.hasNext(); ++captions) {
            const auto match = each.next();
            const QRect place(match.captured(2).toInt(), match.captured(3).toInt(), match.captured(4).toInt(),
                              match.captured(5).toInt());
            if (place != QRect(3 + 127 * (match.captured(1).toInt() - 1), 410, 124, 34))
                found << forms.fileName() + QStringLiteral(": btn_f") + match.captured(1);
        }
    }
    QVERIFY(captions > 80);
    QVERIFY2(found.isEmpty(), list(found));
}

QTEST_GUILESS_MAIN(TstSourceShape)

#include "tst_sourceshape.moc"
