#include "painted.h"

#include "widgets/controls/softkeybuttons.h"

#include <QTest>

#include <memory>

class TstSoftKeyButtons : public QObject
{
    Q_OBJECT

private slots:
    void eachButtonOffersItsTexts_data();
    void eachButtonOffersItsTexts();
    void anUnknownFlagSelectsNothing();
    void selectedTextIsBlackAndTheOthersGrey();
    void captionStaysBlack();
    void filterOfTheEventTableChoosesAllOrSelected();
    void nothingMovesWhenTheSelectionDoes();
};

using Maker = SoftKeyButton *(*)();
Q_DECLARE_METATYPE(Maker)

template <typename Button> static SoftKeyButton *make()
{
    return new Button;
}

void TstSoftKeyButtons::eachButtonOffersItsTexts_data()
{
    QTest::addColumn<Maker>("maker");
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<QList<int>>("flags"); // that select the texts
    QTest::newRow("Btn1") << Maker(make<Btn1>) << QStringList { "U", "I", "N", "L1", "L2", "L3" }
                          << QList<int> { 0, 1, 2, 3, 4, 5 };
    QTest::newRow("Btn2") << Maker(make<Btn2>) << QStringList { "On", "Off" } << QList<int> { 1, 0 };
    QTest::newRow("Btn3") << Maker(make<Btn3>) << QStringList { "On", "Off" } << QList<int> { 1, 0 };
    QTest::newRow("HarmBtn1") << Maker(make<HarmBtn1>) << QStringList { "U", "I" } << QList<int> { 1, 2 };
    QTest::newRow("HarmBtn2") << Maker(make<HarmBtn2>) << QStringList { "L1", "L2", "L3", "N", "ALL" }
                              << QList<int> { 1, 2, 3, 4, 5 };
    QTest::newRow("HarmBtn3") << Maker(make<HarmBtn3>) << QStringList { "On", "Off" } << QList<int> { 1, 0 };
    QTest::newRow("HarmBtn4") << Maker(make<HarmBtn4>) << QStringList { "%r", "%f" } << QList<int> { 1, 2 };
    QTest::newRow("EnergyBtn") << Maker(make<EnergyBtn>) << QStringList { "Energy", "Close" } << QList<int> { 1, 0 };
    QTest::newRow("VifBtn1") << Maker(make<VifBtn1>) << QStringList { "Phase", "Wire" } << QList<int> { 1, 2 };
    QTest::newRow("UnbalBtn1") << Maker(make<UnbalBtn1>) << QStringList { "U", "I", "L1", "L2", "L3" }
                               << QList<int> { 1, 2, 3, 4, 5 };
    QTest::newRow("BtnSelAll") << Maker(make<BtnSelAll>) << QStringList { "All", "Selected" } << QList<int> { 0, 1 };
    QTest::newRow("MonitorHarmBtn1") << Maker(make<MonitorHarmBtn1>) << QStringList { "L1", "L2", "L3" }
                                     << QList<int> { 0, 1, 2 };
}

void TstSoftKeyButtons::eachButtonOffersItsTexts()
{
    QFETCH(Maker, maker);
    QFETCH(QStringList, texts);
    QFETCH(QList<int>, flags);
    const std::unique_ptr<SoftKeyButton> button(maker());
    QCOMPARE(button->texts(), texts);
    QVERIFY(!button->selectedText().isEmpty());
    for (int i = 0; i < flags.size(); ++i) {
        button->setBtnFlag(flags.at(i));
        QCOMPARE(button->btnFlag(), flags.at(i));
        QCOMPARE(button->selectedText(), texts.at(i));
        const QString choices = texts.join(QStringLiteral(" / ")) + QStringLiteral(": ") + texts.at(i);
        QVERIFY2(button->spokenText().endsWith(choices), qPrintable(button->spokenText()));
    }
}

void TstSoftKeyButtons::anUnknownFlagSelectsNothing()
{
    HarmBtn2 button;
    for (const int flag : { 0, 6, -1 }) {
        button.setBtnFlag(flag);
        QVERIFY(button.selectedText().isEmpty());
        QVERIFY(!button.spokenText().contains(QLatin1Char(':')));
    }
}

/// The button over white, so that black and grey can be distinguished.
static QImage overWhite(QWidget &button)
{
    QImage image(button.size(), QImage::Format_RGB32);
    image.fill(Qt::white);
    button.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

static int darkest(const QImage &image, const QRect &area)
{
    int value = 255;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x)
            value = qMin(value, image.pixelColor(x, y).value());
    }
    return value;
}

void TstSoftKeyButtons::selectedTextIsBlackAndTheOthersGrey()
{
    HarmBtn1 button; // two short texts: the left and the right half
    const QRect left(0, 0, 62, 34);
    const QRect right(62, 0, 62, 34);
    // A smoothed letter comes within a few steps of its colour.
    const auto isBlack = [](int value) { return value < 16; };
    const auto isGrey = [](int value) { return value >= 0x40 && value < 0x40 + 16; };
    button.setBtnFlag(1);
    QVERIFY(isBlack(darkest(overWhite(button), left)));
    QVERIFY(isGrey(darkest(overWhite(button), right)));
    button.setBtnFlag(2);
    QVERIFY(isGrey(darkest(overWhite(button), left)));
    QVERIFY(isBlack(darkest(overWhite(button), right)));
}

void TstSoftKeyButtons::captionStaysBlack()
{
    Btn2 button;
    const QRect caption(0, 0, 124, 16);
    for (const int flag : { 0, 1 }) {
        button.setBtnFlag(flag);
        QVERIFY(darkest(overWhite(button), caption) < 0x20);
    }
}

void TstSoftKeyButtons::filterOfTheEventTableChoosesAllOrSelected()
{
    BtnSelAll button;
    button.setBtn1Flag(4);
    QCOMPARE(button.selectedText(), QStringLiteral("Selected"));
    button.setBtn1Flag(0);
    QCOMPARE(button.selectedText(), QStringLiteral("All"));
}

void TstSoftKeyButtons::nothingMovesWhenTheSelectionDoes()
{
    Btn1 button;
    const auto inked = [&button](int flag) {
        button.setBtnFlag(flag);
        const QImage image = overWhite(button);
        QVector<bool> ink;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                ink.append(image.pixelColor(x, y) != QColor(Qt::white));
        }
        return ink;
    };
    QCOMPARE(inked(3), inked(0));
    QCOMPARE(inked(5), inked(0));
}

QTEST_MAIN(TstSoftKeyButtons)
#include "tst_softkeybuttons.moc"
