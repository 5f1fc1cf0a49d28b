#include "shell/applicationfont.h"
#include "platform/target.h"
#include "settings/facefile.h"

#include <QApplication>
#include <QFile>
#include <QFileInfo>
#include <QFontDatabase>
#include <QImage>
#include <QPainter>
#include <QTest>

/// The order matters: a face that is loaded stays with the application.
class TstApplicationFont : public QObject
{
    Q_OBJECT

private slots:
    void theLatinFaceAloneLeavesTheDefaultFont();
    void theAsianFaceBecomesTheFont();
    void aFileThatTheSystemListsIsNotReadAgain();
    void aFileThatTheSystemDoesNotListIsAdded();
    void textIsDrawnAlikeOutOfEither();

private:
    /// Adds one more file; the toolkit numbers what it reads, so two answers tell how many files were read between.
    int addedCopy()
    {
        const QString copy = Target::path(QStringLiteral("/mnt/userfs/copy%1.ttf").arg(m_copies++));
        QFile::copy(QFileInfo(m_latin).canonicalFilePath(), copy);
        return QFontDatabase::addApplicationFont(copy);
    }

    int m_copies = 0;
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

void TstApplicationFont::aFileThatTheSystemListsIsNotReadAgain()
{
    const int before = addedCopy();
    QVERIFY(before >= 0);
    QCOMPARE(familyOfFaceFile(m_asian), QStringLiteral("WenQuanYi Zen Hei"));
    QCOMPARE(addedCopy(), before + 1);
}

void TstApplicationFont::aFileThatTheSystemDoesNotListIsAdded()
{
    const QString own = Target::path(QStringLiteral("/usr/lib/fonts/own.ttf"));
    QVERIFY(QFile::copy(QFileInfo(m_latin).canonicalFilePath(), own));
    const int before = addedCopy();
    QVERIFY(before >= 0);
    QCOMPARE(familyOfFaceFile(own), QStringLiteral("Liberation Sans"));
    QCOMPARE(addedCopy(), before + 2);
    QCOMPARE(familyOfFaceFile(Target::path(QStringLiteral("/usr/lib/fonts/none.ttf"))), QString());
}

void TstApplicationFont::textIsDrawnAlikeOutOfEither()
{
    const auto drawn = [] {
        QImage image(200, 40, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        painter.setFont(QFont(QStringLiteral("WenQuanYi Zen Hei"), 14));
        painter.drawText(image.rect(), Qt::AlignCenter, QString::fromUtf8("Power 230.0 V \u4e2d\u6587"));
        return image;
    };
    const QImage listed = drawn();
    QVERIFY(QFontDatabase::addApplicationFont(m_asian) >= 0);
    QCOMPARE(drawn(), listed);
}

QTEST_MAIN(TstApplicationFont)
#include "tst_applicationfont.moc"
