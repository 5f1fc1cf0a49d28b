#include "shell/plainpicture.h"

#include <QImage>
#include <QTest>

/// Pictures that are copied instead of decoded.
class TstPlainPicture : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { Q_INIT_RESOURCE(skin); }
    void everyPictureLooksAsTheToolkitReadsIt_data();
    void everyPictureLooksAsTheToolkitReadsIt();
    void aMissingPictureIsNull();
};

void TstPlainPicture::everyPictureLooksAsTheToolkitReadsIt_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("transparent");
    QTest::newRow("splash") << QStringLiteral(":/splash") << false;
    QTest::newRow("splash_ru") << QStringLiteral(":/splash_ru") << false;
    QTest::newRow("vif") << QStringLiteral(":/vif") << true;
    QTest::newRow("vif_hl") << QStringLiteral(":/vif_hl") << true;
    QTest::newRow("base_title") << QStringLiteral(":/base_title") << false;
    QTest::newRow("a PNG") << QStringLiteral(":/file") << true;
}

void TstPlainPicture::everyPictureLooksAsTheToolkitReadsIt()
{
    QFETCH(QString, name);
    QFETCH(bool, transparent);
    const QPixmap toolkit(name);
    const QPixmap copied = plainPicture(name);
    QVERIFY(!toolkit.isNull());
    QCOMPARE(copied.size(), toolkit.size());
    QCOMPARE(copied.hasAlphaChannel(), transparent);
    QCOMPARE(copied.toImage().convertToFormat(QImage::Format_ARGB32),
             toolkit.toImage().convertToFormat(QImage::Format_ARGB32));
}

void TstPlainPicture::aMissingPictureIsNull()
{
    QVERIFY(plainPicture(QStringLiteral(":/no_such_picture")).isNull());
}

QTEST_MAIN(TstPlainPicture)
#include "tst_plainpicture.moc"
