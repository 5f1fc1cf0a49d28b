// What the arrows stand on, as those hear it who do not see the screen.
#include "shellcase.h"

#include "services/screennotes.h"
#include "settings/config_data.h"

#include <QStackedWidget>

class TstSelectedNotes : public ShellCase
{
    Q_OBJECT

private slots:
    void tileOfTheMenu();
    void wiring();
    void nominalVoltage();
    void linesOfTheFunctions();
    void limitSetAndTheColumnOfItsLine();
    void fieldOfAnEditorWithItsValue();
    void boxesSayWhetherTheyAreChecked();
    void softKeysWithChoicesAreNamed();

private:
    static QString note(const char *name)
    {
        m_basedialog->show();
        return ScreenNotes::take().value(QLatin1String(name));
    }
    static QString selected() { return note("Selected"); }
    /// Keys go where the focus of a person's keyboard would be: to the innermost sub page.
    static void press(const QList<Qt::Key> &letters)
    {
        for (const Qt::Key letter : letters) {
            QWidget *page = top();
            while (const auto *parts = page->findChild<QStackedWidget *>())
                page = parts->currentWidget();
            QTest::keyClick(page, letter);
        }
    }
    static void open(_quvera_ui_type page) { m_basedialog->navigator().go(UI_MENU, page); }
};

void TstSelectedNotes::tileOfTheMenu()
{
    moveToTile("power");
    QCOMPARE(selected(), QStringLiteral("Power&Energy"));
    press({ kRight });
    QCOMPARE(selected(), QStringLiteral("Volts/Amps/Hertz"));
    press({ kDown });
    QCOMPARE(selected(), QStringLiteral("Dips&Swells"));
    press({ kDown, kLeft });
    QCOMPARE(selected(), QStringLiteral("Mains Signaling"));
}

void TstSelectedNotes::wiring()
{
    m_settingConfig_g.setJoinMode(1);
    open(UI_SETUP);
    press({ kF1 });
    QCOMPARE(selected(), SettingConfig::getJoinModeFullName(1));
    press({ kRight });
    QCOMPARE(selected(), SettingConfig::getJoinModeFullName(2));
    press({ kRight });
    QCOMPARE(selected(), SettingConfig::getJoinModeFullName(3));
}

void TstSelectedNotes::nominalVoltage()
{
    m_settingConfig_g.setJoinMode(1); // a star: of the two tables the left one counts
    open(UI_SETUP);
    press({ Qt::Key_Y });
    QVERIFY2(selected().endsWith(QLatin1String(" V")), qPrintable(selected()));
    QVERIFY(!selected().contains(QLatin1Char('\n')));
    const QString before = selected();
    press({ kRight });
    QVERIFY(selected() != before);
    QVERIFY2(selected().endsWith(QLatin1String(" V")), qPrintable(selected()));
}

void TstSelectedNotes::linesOfTheFunctions()
{
    open(UI_SETUP);
    press({ kF5, Qt::Key_Y }); // Functions
    QStringList heard;
    for (int line = 0; line < 3; ++line, press({ kDown }))
        heard << selected();
    QCOMPARE(heard.removeDuplicates(), 0);
    const QString texts = note("Texts");
    for (const QString &line : qAsConst(heard)) {
        QVERIFY(!line.isEmpty());
        QVERIFY2(texts.contains(line.section(QLatin1Char('\n'), 0, 0)), qPrintable(line));
    }
}

void TstSelectedNotes::limitSetAndTheColumnOfItsLine()
{
    open(UI_SETUP);
    press({ kF5, kF1 }); // Limits
    QVERIFY2(selected().startsWith(QLatin1String("EN50160")), qPrintable(selected()));
    press({ kEnter }); // its items
    QVERIFY2(selected().startsWith(QLatin1String("Voltage ")), qPrintable(selected()));
    press({ kDown });
    QVERIFY2(selected().startsWith(QLatin1String("Harmonics ")), qPrintable(selected()));
    press({ kEnter, kDown, kDown }); // the third order: 5 % for 95 % of the time, the limit's column is marked
    QCOMPARE(selected(), QStringLiteral("H3 95.0 % 5.00 % N/A\n5.00 %"));
    press({ kF5, kF5, kF5 });
}

void TstSelectedNotes::fieldOfAnEditorWithItsValue()
{
    open(UI_LOGGER);
    QVERIFY2(selected().startsWith(QLatin1String("File name: ")), qPrintable(selected()));
    press({ kDown, kDown });
    const QString before = selected();
    QVERIFY2(before.startsWith(QLatin1String("Interval: ")), qPrintable(before));
    press({ kRight });
    QVERIFY2(selected().startsWith(QLatin1String("Interval: ")), qPrintable(selected()));
    QVERIFY(selected() != before);
}

void TstSelectedNotes::boxesSayWhetherTheyAreChecked()
{
    open(UI_LOGGER);
    press({ Qt::Key_Y, kF1 }); // Params, all of them
    QCOMPARE(selected(), QStringLiteral("Values Urms Irms CF THD [x]"));
    press({ kRight });
    QCOMPARE(selected(), QStringLiteral("Values Frequence [x]"));
    press({ kEnter });
    QCOMPARE(selected(), QStringLiteral("Values Frequence [ ]"));
    press({ kDown, kDown, kDown });
    QVERIFY2(selected().startsWith(QLatin1String("U Harmonics (rms angle) 51-100 [")), qPrintable(selected()));
    press({ kDown });
    QVERIFY2(selected().startsWith(QLatin1String("I Harmonics (rms angle) 51-100 [")), qPrintable(selected()));
    press({ kF5 });
}

void TstSelectedNotes::softKeysWithChoicesAreNamed()
{
    open(UI_SCOPE);
    const auto key = [](int number) {
        return note("Keys").split(QLatin1Char('\n')).filter(QStringLiteral("F%1 ").arg(number)).value(0);
    };
    const QString off = QStringLiteral("F3 Cursor On / Off: Off"), on = QStringLiteral("F3 Cursor On / Off: On");
    const bool wasOn = key(3) == on;
    QCOMPARE(key(3), wasOn ? on : off);
    press({ kF3 });
    QCOMPARE(key(3), wasOn ? off : on);
    press({ kF3 });
}

QTEST_MAIN(TstSelectedNotes)
#include "tst_selectednotes.moc"
