#include <QSignalSpy>
#include <QTest>

#include <QApplication>

#include "settings/config_data.h"
#include "settings/facefile.h"
#include "settings/translationfile.h"
#include "unit/storage/rootfiles.h"

namespace {

QByteArray languageFile()
{
    QFile file(QStringLiteral(TEST_LANGUAGE_FILE));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

/// The switch of the language.
class TstLanguage : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        RootFiles::clean();
        languageTranslator.initLangTranslation(1);
    }

    void theFileWordsOfTheLanguages()
    {
        const char *const words[]
            = { "", "zh", "po", "pt_zolcar", "ko", "tu", "fr", "sp", "pt", "ge", "sp_la", "ru", "jp", "it" };
        for (int i = 0; i < 14; ++i) {
            QCOMPARE(LangTranslation::langName(i + 1), QString(words[i]));
            QCOMPARE(LangTranslation::filePath(i + 1),
                     i == 0 ? QString() : QString("/mnt/userfs/language/lang_") + words[i] + ".qm");
        }
        for (int number : { 0, 15, -1 })
            QCOMPARE(LangTranslation::filePath(number), QString());
    }

    void aLanguageFileTranslatesAndEnglishTakesItAway()
    {
        QVERIFY(QFile::copy(QStringLiteral(TEST_LANGUAGE_FILE), Target::path("/mnt/userfs/language/lang_ru.qm")));
        QVERIFY(languageTranslator.initLangTranslation(UserConfig::RU));
        QCOMPARE(tr("Power off?"), QString::fromUtf8("Выключить?"));
        QVERIFY(languageTranslator.initLangTranslation(UserConfig::FR)); // no file: the source texts
        QCOMPARE(tr("Power off?"), QString("Power off?"));
        QVERIFY(languageTranslator.initLangTranslation(UserConfig::RU));
        QVERIFY(languageTranslator.initLangTranslation(UserConfig::EN));
        QCOMPARE(tr("Power off?"), QString("Power off?"));
    }

    void reloadingTellsThePages()
    {
        QSignalSpy changed(&languageTranslator, &LangTranslation::languageChanged);
        languageTranslator.initLangTranslation(UserConfig::RU);
        QCOMPARE(changed.count(), 0);
        languageTranslator.reloadLangTranslation(UserConfig::RU);
        QCOMPARE(changed.count(), 1);
    }

    void chineseAndJapaneseHaveAFontOfTheirOwn()
    {
        if (!RootFiles::exists("/usr/lib/fonts/WenQuanYiZenHei.ttf") || !RootFiles::exists("/usr/lib/fonts/arial.ttf"))
            QFAIL("the fonts of docs/desk-set-up.md are not installed");
        QVERIFY(QFile::copy(QStringLiteral(TEST_LANGUAGE_FILE), Target::path("/mnt/userfs/language/lang_zh.qm")));
        QVERIFY(QFile::copy(QStringLiteral(TEST_LANGUAGE_FILE), Target::path("/mnt/userfs/language/lang_ru.qm")));
        languageTranslator.initLangTranslation(UserConfig::ZH);
        QCOMPARE(QApplication::font("QWidget").family(), QString("WenQuanYi Zen Hei"));
        languageTranslator.initLangTranslation(UserConfig::RU);
        QCOMPARE(QApplication::font("QWidget").family(), QString("Liberation Sans"));
        QVERIFY(QFile::copy(QStringLiteral(TEST_LANGUAGE_FILE), Target::path("/mnt/userfs/language/lang_jp.qm")));
        languageTranslator.initLangTranslation(UserConfig::JP);
        QCOMPARE(QApplication::font("QWidget").family(), QString("WenQuanYi Zen Hei"));
    }

    void koreanSignsComeFromTheAsianFace()
    {
        for (const char *file : { "/mnt/userfs/language/lang_ru.qm", "/mnt/userfs/language/lang_ko.qm" })
            QVERIFY(QFile::copy(QStringLiteral(TEST_LANGUAGE_FILE), Target::path(file)));
        languageTranslator.initLangTranslation(UserConfig::RU);
        QCOMPARE(QFont::substitutes("Liberation Sans"), QStringList()); // no other language needs one
        for (int time = 0; time < 2; ++time) {
            languageTranslator.initLangTranslation(UserConfig::KO);
            QCOMPARE(QApplication::font("QWidget").family(), QString("Liberation Sans"));
            const QStringList substitutes = QFont::substitutes("Liberation Sans");
            QCOMPARE(substitutes.size(), 1);
            QCOMPARE(substitutes.first().toLower(), QString("wenquanyi zen hei"));
        }
    }

    void aNumberThatIsNoLanguageShowsTheSourceTexts()
    {
        QVERIFY(QFile::copy(QStringLiteral(TEST_LANGUAGE_FILE), Target::path("/mnt/userfs/language/lang_ru.qm")));
        for (const int number : { 0, 15, -1 }) {
            languageTranslator.initLangTranslation(UserConfig::RU);
            QVERIFY(languageTranslator.initLangTranslation(number));
            QCOMPARE(tr("Power off?"), QString("Power off?"));
        }
    }

    void theFamilyOfAFaceFileIsFoundListedOrNot()
    {
        const QString listed = Target::path("/usr/lib/fonts/arial.ttf");
        QCOMPARE(familyOfFaceFile(listed), QString("Liberation Sans"));
        const QString copy = Target::path("/mnt/userfs/face.ttf"); // which the system does not list
        QVERIFY(QFile::copy(listed, copy));
        QCOMPARE(familyOfFaceFile(copy), QString("Liberation Sans"));
        RootFiles::write("/mnt/userfs/text.ttf", "no face");
        QCOMPARE(familyOfFaceFile(Target::path("/mnt/userfs/text.ttf")), QString());
        QCOMPARE(familyOfFaceFile(Target::path("/mnt/userfs/missing.ttf")), QString());
    }

    void aTranslationIsTakenOnlyWithAllItsPartsWhole_data()
    {
        QTest::addColumn<QByteArray>("hashes");
        QTest::addColumn<QByteArray>("messages");
        QTest::addColumn<QByteArray>("behind");
        QTest::addColumn<bool>("sound");
        const QByteArray hash(8, 0); // its message begins at 0
        const QByteArray nothing;
        QTest::newRow("a message of nothing but its end") << hash << QByteArray::fromHex("01") << nothing << true;
        QTest::newRow("no end") << hash << QByteArray::fromHex("030000000161") << nothing << false;
        QTest::newRow("a part without its length") << hash << QByteArray::fromHex("03000000") << nothing << false;
        QTest::newRow("an end in place of the length") << hash << QByteArray::fromHex("0301") << nothing << false;
        QTest::newRow("a part longer than the rest") << hash << QByteArray::fromHex("030000000201") << nothing << false;
        QTest::newRow("a part of no known kind") << hash << QByteArray::fromHex("0901") << nothing << false;
        QTest::newRow("a hash of three bytes") << hash.left(3) << QByteArray::fromHex("01") << nothing << false;
        QTest::newRow("a hash without its place") << hash.left(4) << QByteArray::fromHex("01") << nothing << false;
        QTest::newRow("a place behind the messages") << hash << nothing << nothing << false;
        QTest::newRow("a section without its length")
            << hash << QByteArray::fromHex("01") << QByteArray::fromHex("880000") << false;
        QTest::newRow("a section of its mark alone")
            << hash << QByteArray::fromHex("01") << QByteArray::fromHex("88") << false;
        QTest::newRow("a section longer than the file")
            << hash << QByteArray::fromHex("01") << QByteArray::fromHex("880000000200") << false;
        QTest::newRow("a section of no known kind")
            << hash << QByteArray::fromHex("01") << QByteArray::fromHex("4300000000") << false;
    }
    void aTranslationIsTakenOnlyWithAllItsPartsWhole()
    {
        QFETCH(QByteArray, hashes);
        QFETCH(QByteArray, messages);
        QFETCH(QByteArray, behind);
        QByteArray content = languageFile().left(16); // what every such file begins with
        content += char(0x42) + QByteArray(3, 0) + char(hashes.size()) + hashes;
        content += char(0x69) + QByteArray(3, 0) + char(messages.size()) + messages;
        QTEST(TranslationFile::isSound(content + behind), "sound");
    }

    void filesThatAreNoTranslationDoNotHurt_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("binary") << QByteArray::fromHex("3cb86418caef9c95cd211cbf60a1bddd").repeated(100);
        QTest::newRow("text") << QByteArray("not a translation");
    }
    void filesThatAreNoTranslationDoNotHurt()
    {
        QFETCH(QByteArray, content);
        RootFiles::write("/mnt/userfs/language/lang_ru.qm", content);
        QVERIFY(languageTranslator.initLangTranslation(UserConfig::RU));
        QCOMPARE(tr("Power off?"), QString("Power off?"));
    }

    void aCutFileLeavesTheSourceTexts()
    {
        const QByteArray whole = languageFile();
        for (int size = 0; size < whole.size(); ++size) {
            RootFiles::write("/mnt/userfs/language/lang_ru.qm", whole.left(size));
            QVERIFY(languageTranslator.initLangTranslation(UserConfig::RU));
            const QString shown = tr("Power off?");
            // The last section holds the rules of plurals, which no text here needs.
            QVERIFY2(shown == "Power off?" || (size > whole.size() - 40 && shown == QString::fromUtf8("Выключить?")),
                     qPrintable(QString::number(size)));
        }
    }

    void noDamagedByteLeadsBeyondTheFile()
    {
        const QByteArray whole = languageFile();
        int refused = 0;
        for (int at = 0; at < whole.size(); ++at) {
            for (const char value : { '\0', '\x7f', '\xff' }) {
                QByteArray damaged = whole;
                damaged[at] = value;
                RootFiles::write("/mnt/userfs/language/lang_ru.qm", damaged);
                QVERIFY(languageTranslator.initLangTranslation(UserConfig::RU));
                QVERIFY(tr("Power off?").size() < whole.size());
                refused += TranslationFile::isSound(damaged) ? 0 : 1;
            }
        }
        QVERIFY(refused > whole.size() / 4);
    }

    void aTextLongerThanItsFileIsRefused()
    {
        QByteArray content = languageFile();
        QVERIFY(TranslationFile::isSound(content));
        // A translation of 20 bytes says that it has 64 KiB more.
        const QByteArray length("\x03\0\0\0\x14", 5);
        QVERIFY(content.contains(length));
        content.replace(length, QByteArray("\x03\0\x01\0\x14", 5));
        QVERIFY(!TranslationFile::isSound(content));
    }

    void aFileThatChangesWhileItIsInUseDoesNotHurt()
    {
        RootFiles::write("/mnt/userfs/language/lang_ru.qm", languageFile());
        languageTranslator.initLangTranslation(UserConfig::RU);
        RootFiles::write("/mnt/userfs/language/lang_ru.qm", "");
        QCOMPARE(tr("Power off?"), QString::fromUtf8("Выключить?"));
    }

    void aFolderInPlaceOfTheFileDoesNotHurt()
    {
        QVERIFY(QDir().mkpath(Target::path("/mnt/userfs/language/lang_ru.qm")));
        QVERIFY(languageTranslator.initLangTranslation(UserConfig::RU));
    }
};

QTEST_MAIN(TstLanguage)
#include "tst_language.moc"
