#include "usercase.h"

#include "settings/phasecolor.h"
#include "user/phasecolordialog.h"
#include "user/phasecolorpalette.h"

#include <memory>

using namespace UserCase;

/// The dialog of the phase colours, and the boxes that show them.
class TstPhaseColorDialog : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void rowsOpenWithTheColorsInUse();
    void arrowsStepAColorThroughTheSixAndStopAtTheEnds();
    void upAndDownMoveBetweenTheRowsAndStop();
    void earthHasARowOfItsOwn();
    void defaultGivesTheFirstColors();
    void okStoresAndEverythingShownFromNowOnFollows();
    void cancelLeavesFileAndColorsAsTheyAre();
    void digitsBehindThePaletteOpenWithThePhasesOwnColor();
    void chosenBoxIsFramed();

private:
    /// The dialog's five digits after these keys.
    QString after(std::initializer_list<FrontKey> keys)
    {
        m_dialog = std::make_unique<PhaseColorDialog>();
        m_dialog->show();
        for (const FrontKey key : keys)
            QTest::keyClick(m_dialog.get(), Qt::Key(key));
        return m_dialog->digits();
    }

    std::unique_ptr<PhaseColorDialog> m_dialog;
};

void TstPhaseColorDialog::init()
{
    removeFile(kUserFile);
    m_userConfig_g = UserConfig();
}

void TstPhaseColorDialog::rowsOpenWithTheColorsInUse()
{
    PhaseColor::setPhaseColors(QStringLiteral("50213"));
    QCOMPARE(after({}), QStringLiteral("50213"));
    QCOMPARE(m_dialog->findChild<PhaseColorPalette *>(QStringLiteral("palette_0"))->chosen(), 5);
    QCOMPARE(m_dialog->findChild<PhaseColorPalette *>(QStringLiteral("palette_4"))->chosen(), 3);
}

void TstPhaseColorDialog::arrowsStepAColorThroughTheSixAndStopAtTheEnds()
{
    QCOMPARE(after({ Left }), QStringLiteral("01231"));
    QCOMPARE(after({ Right }), QStringLiteral("11231"));
    QCOMPARE(after({ Right, Right, Right, Right, Right, Right, Right }), QStringLiteral("51231"));
}

void TstPhaseColorDialog::upAndDownMoveBetweenTheRowsAndStop()
{
    QCOMPARE(after({ Up, Right }), QStringLiteral("11231"));
    QCOMPARE(after({ Down, Right }), QStringLiteral("02231"));
    QCOMPARE(after({ Down, Down, Right }), QStringLiteral("01331"));
    QCOMPARE(after({ Down, Down, Down, Up, Right }), QStringLiteral("01331"));
    QCOMPARE(after({ Down, Down, Down, Down, Down, Down, Right }), QStringLiteral("01232"));
}

void TstPhaseColorDialog::earthHasARowOfItsOwn()
{
    QCOMPARE(after({ Down, Down, Down, Down, Left }), QStringLiteral("01230"));
    QCOMPARE(text(m_dialog.get(), QStringLiteral("row_4")), QStringLiteral("Earth"));
    QCOMPARE(heard(m_dialog.get()), QStringLiteral("Earth"));
    QTest::keyClick(m_dialog.get(), Qt::Key(Up));
    QCOMPARE(heard(m_dialog.get()), text(m_dialog.get(), QStringLiteral("row_3")));
}

void TstPhaseColorDialog::defaultGivesTheFirstColors()
{
    PhaseColor::setPhaseColors(QStringLiteral("55555"));
    QCOMPARE(after({ F1 }), QStringLiteral("01231"));
    QCOMPARE(PhaseColor::digits(), QStringLiteral("55555")); // until Ok
}

void TstPhaseColorDialog::okStoresAndEverythingShownFromNowOnFollows()
{
    after({ Right, Right, Down, Left, F4 });
    QCOMPARE(m_dialog->result(), int(QDialog::Accepted));
    QCOMPARE(UserConfig().getPhaseColors(), QStringLiteral("20231"));
    QCOMPARE(m_userConfig_g.getPhaseColors(), QStringLiteral("20231"));
    QCOMPARE(PhaseColor::colorA(), QColor(Qt::red));
    QCOMPARE(PhaseColor::colorB(), QColor(Qt::yellow));
}

void TstPhaseColorDialog::cancelLeavesFileAndColorsAsTheyAre()
{
    const QByteArray before = "PHASECOLOR=01231\n";
    writeFile(kUserFile, before);
    after({ Right, F5 });
    QCOMPARE(m_dialog->result(), int(QDialog::Rejected));
    QCOMPARE(content(kUserFile), before);
    QCOMPARE(PhaseColor::colorA(), QColor(Qt::yellow));
}

void TstPhaseColorDialog::digitsBehindThePaletteOpenWithThePhasesOwnColor()
{
    for (const char *digits : { "91231", "01631", "9x231" }) {
        PhaseColor::setPhaseColors(QString::fromLatin1(digits));
        QCOMPARE(after({}), QStringLiteral("01231"));
    }
    PhaseColor::setPhaseColors(QStringLiteral("012"));
    QCOMPARE(after({}), QStringLiteral("01231"));
    // Something else than a digit concerns its own phase alone, and Ok mends it.
    for (const ushort sign : { ushort('a'), ushort('!'), ushort('-'), ushort(0x0663), ushort(0xffff) }) {
        m_userConfig_g.setPhaseColors(QLatin1Char('4') + QString(QChar(sign)) + QLatin1String("405"));
        QCOMPARE(PhaseColor::colorB(), QColor(Qt::green));
        QCOMPARE(after({ F4 }), QStringLiteral("41405"));
        QCOMPARE(UserConfig().getPhaseColors(), QStringLiteral("41405"));
    }
}

void TstPhaseColorDialog::chosenBoxIsFramed()
{
    PhaseColorPalette palette;
    palette.resize(60, 20);
    palette.setColors({ Qt::red, Qt::green, Qt::blue });
    palette.setChosen(1);
    const QImage image = palette.grab().toImage();
    QCOMPARE(image.pixelColor(10, 10), QColor(Qt::red));
    QCOMPARE(image.pixelColor(30, 10), QColor(Qt::green));
    QCOMPARE(image.pixelColor(50, 10), QColor(Qt::blue));
    QCOMPARE(image.pixelColor(20, 10), QColor(Qt::white)); // left edge of the middle box
    QVERIFY(image.pixelColor(0, 10) != QColor(Qt::white));
}

PAGE_TEST_MAIN(TstPhaseColorDialog)
#include "tst_phasecolordialog.moc"
