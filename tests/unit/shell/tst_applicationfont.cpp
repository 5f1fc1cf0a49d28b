#include "shell/applicationfont.h"
#include "platform/target.h"

#include <QApplication>
#include <QFile>
#include <QTest>

/// The order matters: a face that is loaded stays with the application.
class TstApplicationFont : public QObject
{
    Q_OBJECT

private slots:
    void theLatinFaceAloneLeavesTheDefaultFont();
    void theAsianFaceBecomesTheFont();

private:
    const QString m_latin = Target::path(QStringLiteral("/usr/lib/fonts/arial.ttf"));
    const QString m_asian = Target::path(QStringLiteral("/usr/lib/fonts/WenQuanYiZenHei.ttf"));
};

void TstApplicationFont::theLatinFaceAloneLeavesTheDefaultFont()
{
    QVERIFY(QFile::exists(m_latin));
    QFile::remove(m_asian);
    QApplication::setFont(QFont(QStringLiteral("As it was")));
    loadApplicationFont();
    QCOMPARE(QApplication::font().family(), QStringLiteral("As it was"));

    QFile broken(m_asian);
    QVERIFY(broken.open(QIODevice::WriteOnly));
    broken.write("no face");
    broken.close();
    loadApplicationFont();
    QCOMPARE(QApplication::font().family(), QStringLiteral("As it was"));
}

void TstApplicationFont::theAsianFaceBecomesTheFont()
{
    QFile::remove(m_asian);
    QVERIFY(QFile::link(QStringLiteral("/usr/share/fonts/truetype/wqy/wqy-zenhei.ttc"), m_asian));
    loadApplicationFont();
    QCOMPARE(QApplication::font().family(), QStringLiteral("WenQuanYi Zen Hei"));
}

QTEST_MAIN(TstApplicationFont)
#include "tst_applicationfont.moc"
