#include "settings/userconfig.h"
#include "testpaths.h"

#include <QDir>
#include <QFile>
#include <QMap>
#include <QProcess>
#include <QRawFont>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QXmlStreamReader>

#include "platform/target.h"

namespace {

/// A text of the sources: its class, and what stands there.
using Source = QPair<QString, QString>;

struct Text
{
    QString translation;
    bool isFinished;
};

/// A language file of the repository.
struct Texts
{
    QString language; // such as "pt_BR"
    QMap<Source, Text> texts;
};

Texts readTexts(const QString &path)
{
    Texts found;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return found;
    QXmlStreamReader xml(&file);
    Source source;
    while (!xml.atEnd()) {
        xml.readNext();
        if (!xml.isStartElement())
            continue;
        if (xml.name() == QLatin1String("TS"))
            found.language = xml.attributes().value(QStringLiteral("language")).toString();
        else if (xml.name() == QLatin1String("name"))
            source.first = xml.readElementText();
        else if (xml.name() == QLatin1String("source"))
            source.second = xml.readElementText();
        else if (xml.name() == QLatin1String("translation")) {
            const bool isFinished = !xml.attributes().hasAttribute(QStringLiteral("type"));
            found.texts.insert(source, { xml.readElementText(), isFinished });
        }
    }
    return found;
}

QString pathOf(const QString &word)
{
    return QStringLiteral(QUVERA_SOURCE_DIR "/translations/lang_%1.ts").arg(word);
}

/// What a text has of a pattern, in a fixed order: two languages may say it in another one.
QStringList parts(const QString &text, const char *pattern)
{
    QStringList found;
    auto matches = QRegularExpression(QString::fromLatin1(pattern)).globalMatch(text);
    while (matches.hasNext())
        found << matches.next().captured();
    found.sort();
    return found;
}

/// What a translation must keep of its source and does not.
QString lost(const QString &source, const QString &translation)
{
    static const struct
    {
        const char *pattern;
        const char *name;
    } kKept[] = {
        { "%\\d", "a place for a value" },         { "\n", "a line feed" },
        { "\\A\\s+", "blanks in front" },          { "\\s+\\z", "blanks at the end" },
        { "\\((%1?|A|V|Hz|mV/A|°)\\)", "a unit" },
    };
    for (const auto &kept : kKept) {
        if (parts(source, kept.pattern) != parts(translation, kept.pattern))
            return QString::fromLatin1(kept.name);
    }
    return {};
}

} // namespace

/// The language files beside the sources: complete, and true to what they translate.
class TstTranslations : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void theSourcesAreReadWithoutComplaint();
    void everyLanguageHasItsFile();
    void theFilesSayTheirLanguage();
    void whatATranslationLosesIsFound();
    void everyTextIsTranslated_data() { addLanguages(); }
    void everyTextIsTranslated();
    void valuesLineFeedsAndUnitsAreKept_data() { addLanguages(); }
    void valuesLineFeedsAndUnitsAreKept();
    void theFontsHaveEverySign_data() { addLanguages(); }
    void theFontsHaveEverySign();

private:
    static void addLanguages();

    Texts m_found; // what the sources ask for
    QByteArray m_complaints;
};

void TstTranslations::initTestCase()
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("lang_found.ts"));
    QProcess search;
    search.start(QStringLiteral(QUVERA_LUPDATE),
                 { "-silent", "-no-obsolete", "-extensions", "cpp,h,ui", QStringLiteral(QUVERA_SOURCE_DIR "/src"),
                   "-ts", path });
    QVERIFY(search.waitForFinished());
    m_complaints = search.readAllStandardError();
    m_found = readTexts(path);
    QVERIFY(m_found.texts.size() > 250);
}

void TstTranslations::addLanguages()
{
    QTest::addColumn<QString>("word");
    for (const auto &language : UserConfig::languages()) {
        if (*language.fileWord)
            QTest::newRow(language.fileWord) << QString::fromLatin1(language.fileWord);
    }
}

void TstTranslations::theSourcesAreReadWithoutComplaint()
{
    QVERIFY2(m_complaints.isEmpty(), m_complaints.constData());
}

void TstTranslations::everyLanguageHasItsFile()
{
    QStringList expected;
    for (const auto &language : UserConfig::languages()) {
        if (*language.fileWord)
            expected << QStringLiteral("lang_%1.ts").arg(QLatin1String(language.fileWord));
    }
    expected.sort();
    QCOMPARE(expected.size(), 13);
    QCOMPARE(QDir(QStringLiteral(QUVERA_SOURCE_DIR "/translations")).entryList({ "*.ts" }, QDir::Files, QDir::Name),
             expected);
}

void TstTranslations::theFilesSayTheirLanguage()
{
    // The words of the file names are no codes of languages.
    const QMap<QString, QString> languages
        = { { "zh", "zh_CN" }, { "po", "pl_PL" }, { "pt_zolcar", "pt_BR" }, { "ko", "ko_KR" }, { "tu", "tr_TR" },
            { "fr", "fr_FR" }, { "sp", "es_ES" }, { "pt", "pt_PT" },        { "ge", "de_DE" }, { "sp_la", "es_MX" },
            { "ru", "ru_RU" }, { "jp", "ja_JP" }, { "it", "it_IT" } };
    for (auto language = languages.begin(); language != languages.end(); ++language)
        QCOMPARE(readTexts(pathOf(language.key())).language, language.value());
}

void TstTranslations::whatATranslationLosesIsFound()
{
    QCOMPARE(lost("%1 of %2", "%2, %1"), QString());
    QCOMPARE(lost("%1 of %2", "%1, %1"), QString("a place for a value"));
    QCOMPARE(lost("Flicker\n", "Фликер"), QString("a line feed"));
    QCOMPARE(lost(" Flicker", "Фликер"), QString("blanks in front"));
    QCOMPARE(lost("Screen ", "Экран"), QString("blanks at the end"));
    QCOMPARE(lost("Sig 1(%1)", "Сиг 1(%1)"), QString());
    QCOMPARE(lost("Sig 1(%)", "Сиг 1(%1)"), QString("a place for a value"));
    QCOMPARE(lost("Sig 1(%)", "Сиг 1 %"), QString("a unit"));
    QCOMPARE(lost("Freq(Hz)", "Част(Гц)"), QString("a unit"));
}

void TstTranslations::everyTextIsTranslated()
{
    QFETCH(QString, word);
    const Texts language = readTexts(pathOf(word));
    QStringList faults;
    for (auto text = m_found.texts.begin(); text != m_found.texts.end(); ++text) {
        const Text translated = language.texts.value(text.key());
        if (translated.translation.isEmpty() || !translated.isFinished)
            faults << text.key().first + QStringLiteral(" lacks: ") + text.key().second;
    }
    for (auto text = language.texts.begin(); text != language.texts.end(); ++text) {
        if (!m_found.texts.contains(text.key()))
            faults << text.key().first + QStringLiteral(" no longer has: ") + text.key().second;
    }
    if (!faults.isEmpty())
        faults.prepend(QStringLiteral("translations/README.md says what to do:"));
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QLatin1Char('\n'))));
}

void TstTranslations::valuesLineFeedsAndUnitsAreKept()
{
    QFETCH(QString, word);
    const Texts language = readTexts(pathOf(word));
    QStringList faults;
    for (auto text = language.texts.begin(); text != language.texts.end(); ++text) {
        const QString fault = lost(text.key().second, text->translation);
        if (!fault.isEmpty())
            faults << QStringLiteral("%1 for %2 loses %3").arg(text->translation, text.key().second, fault);
    }
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QLatin1Char('\n'))));
}

void TstTranslations::theFontsHaveEverySign()
{
    QFETCH(QString, word);
    // The Latin face comes first where it has a sign; Chinese, Japanese and Korean stand in the other one.
    const QRawFont common(Target::path(QStringLiteral("/usr/lib/fonts/arial.ttf")), 18);
    const QRawFont eastAsian(Target::path(QStringLiteral("/usr/lib/fonts/WenQuanYiZenHei.ttf")), 18);
    QVERIFY(common.isValid() && eastAsian.isValid());
    const bool isEastAsian = word == "zh" || word == "jp" || word == "ko";
    QStringList missing;
    for (const Text &text : readTexts(pathOf(word)).texts) {
        for (const QChar sign : text.translation) {
            const bool isThere = isEastAsian ? eastAsian.supportsCharacter(sign) : common.supportsCharacter(sign);
            if (!isThere && sign != QLatin1Char('\n'))
                missing << QStringLiteral("%1 (%2) in %3").arg(sign).arg(sign.unicode(), 4, 16).arg(text.translation);
        }
    }
    QVERIFY2(missing.isEmpty(), qPrintable(missing.join(QLatin1Char('\n'))));
}

QTEST_MAIN(TstTranslations)
#include "tst_translations.moc"
