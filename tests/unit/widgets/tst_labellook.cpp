#include "widgets/controls/labellook.h"

#include <QFrame>
#include <QLabel>
#include <QTest>

class TstLabelLook : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { Q_INIT_RESOURCE(skin); }
    void aLabelIsWhiteAndEighteenPixelsHigh();
    void propertiesChangeSizeAndColour();
    void aFormIsBlackAndItsLabelsLetItThrough();
    void aPictureFillsFromTheCornerOfItsLabel();
    void aFrameDrawsItsLineInTheTextColour();
    void otherWidgetsKeepTheirFont();
    void aColourThatChangesIsTakenOver();
};

void TstLabelLook::aLabelIsWhiteAndEighteenPixelsHigh()
{
    QWidget form;
    QLabel label(&form);
    LabelLook::dress(&form);
    QCOMPARE(label.font().pixelSize(), 18);
    QCOMPARE(label.palette().color(QPalette::WindowText), QColor(255, 255, 255));
}

void TstLabelLook::propertiesChangeSizeAndColour()
{
    QWidget form;
    QWidget inner(&form);
    QLabel label(&inner); // however deep
    label.setProperty("textSize", 26);
    label.setProperty("textColor", "#c0c0c0");
    LabelLook::dress(&form);
    QCOMPARE(label.font().pixelSize(), 26);
    QCOMPARE(label.palette().color(QPalette::WindowText), QColor(0xC0, 0xC0, 0xC0));
}

void TstLabelLook::aFormIsBlackAndItsLabelsLetItThrough()
{
    QWidget form;
    form.resize(40, 20);
    QLabel plain(&form);
    plain.setGeometry(0, 0, 20, 20);
    QLabel filled(&form);
    filled.setGeometry(20, 0, 20, 20);
    filled.setProperty("background", "#004882");
    LabelLook::dress(&form);
    const QImage image = form.grab().toImage();
    QCOMPARE(image.pixelColor(5, 5), QColor(0, 0, 0));
    QCOMPARE(image.pixelColor(25, 5), QColor(0x00, 0x48, 0x82));
}

void TstLabelLook::aPictureFillsFromTheCornerOfItsLabel()
{
    QWidget form;
    form.resize(200, 60);
    QLabel key(&form);
    key.setGeometry(30, 10, 124, 34);
    key.setProperty("background", ":/button");
    LabelLook::dress(&form);
    const QImage expected = QPixmap(QStringLiteral(":/button")).toImage();
    QCOMPARE(expected.size(), key.size());
    const QPoint middle(62, 17);
    QCOMPARE(expected.pixelColor(middle).alpha(), 255);
    QCOMPARE(form.grab().toImage().pixelColor(middle + key.pos()), expected.pixelColor(middle));
}

void TstLabelLook::aFrameDrawsItsLineInTheTextColour()
{
    QWidget form;
    form.resize(40, 40);
    QFrame frame(&form);
    frame.setGeometry(10, 10, 20, 20);
    frame.setFrameStyle(QFrame::Box | QFrame::Plain);
    frame.setProperty("textColor", "#3a6ea5");
    frame.setProperty("background", "#101c34");
    LabelLook::dress(&form);
    const QImage image = form.grab().toImage();
    QCOMPARE(image.pixelColor(10, 20), QColor(0x3A, 0x6E, 0xA5));
    QCOMPARE(image.pixelColor(15, 20), QColor(0x10, 0x1C, 0x34));
}

void TstLabelLook::otherWidgetsKeepTheirFont()
{
    QWidget form;
    QWidget chart(&form);
    const QFont before = chart.font();
    LabelLook::dress(&form);
    QCOMPARE(chart.font(), before);
}

void TstLabelLook::aColourThatChangesIsTakenOver()
{
    QWidget form;
    QLabel label(&form);
    LabelLook::dress(&form);
    for (const QColor &color : { QColor(0x12, 0x34, 0x56), QColor(Qt::white) }) {
        LabelLook::setColor(&label, color);
        label.ensurePolished();
        QCOMPARE(label.palette().color(label.foregroundRole()), color);
    }
    LabelLook::setColor(nullptr, Qt::red);
}

QTEST_MAIN(TstLabelLook)
#include "tst_labellook.moc"
