#include "setupcase.h"

#include "setup/joinpicture.h"

using namespace PageTest;
using SetupCase::Keys;

/// Choice of the wiring: ten of them over three pages, and one at large.
class TstSetupConfig : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { SetupCase::makeDevice(); }
    void init() { SetupCase::restoreSettings(); }
    void everyWiringHasBothPictures();
    void threePagesShowTenWirings();
    void pageOpensWithTheWiringInUse_data();
    void pageOpensWithTheWiringInUse();
    void arrowsWalkThroughAllWiringsAndStopAtTheEnds();
    void okPutsAWiringInForce_data();
    void okPutsAWiringInForce();
    void cancelLeavesTheWiringAndTheFile();
    void backFromAWiringAtLargeItIsStillSelected();
    void enterOnTheFirstPageShowsTheWiringInUse();

private:
    /// Names of the wirings on the page on top; a place that is empty gives nothing.
    static QStringList names(const SetupPage &setup)
    {
        QStringList found;
        for (int i = 1; i <= 4; ++i)
            found << PageTest::text(setup.currentPage(), QStringLiteral("join%1_t").arg(i));
        found.removeAll(QString());
        return found;
    }
    static QString inUse(const SetupPage &setup)
    {
        const QImage on = QPixmap(QStringLiteral(":/radio_checked")).toImage();
        QString found;
        for (int i = 1; i <= 4; ++i) {
            const auto *mark = setup.currentPage()->findChild<QLabel *>(QStringLiteral("join%1_mark").arg(i));
            if (mark->pixmap(Qt::ReturnByValue).toImage() == on)
                found += PageTest::text(setup.currentPage(), QStringLiteral("join%1_t").arg(i));
        }
        return found;
    }
    /// The wiring that Enter opens now; the page comes back.
    static QString selected(SetupPage &setup)
    {
        SetupCase::press(setup, { Enter });
        const QString name = SetupCase::text(setup, "join_name");
        SetupCase::press(setup, { F5 });
        return name;
    }
    static const QStringList &allNames()
    {
        static const QStringList names { "3P WYE",      "3P IT",          "1P +NEUTRAL",
                                         "3P DELTA",    "1P SPLIT PHASE", "1P IT NO NEUTRAL",
                                         "3P HIGH LEG", "3P OPEN LEG",    "2.5-ELEMENT",
                                         "2-ELEMENT" };
        return names;
    }
};

void TstSetupConfig::everyWiringHasBothPictures()
{
    QSet<QString> icons;
    for (int mode = 1; mode <= 10; ++mode) {
        icons << JoinPicture::icon(mode);
        QCOMPARE(QPixmap(JoinPicture::icon(mode)).size(), QSize(160, 110));
        QCOMPARE(QPixmap(JoinPicture::detail(mode)).size(), QSize(560, 330));
    }
    QCOMPARE(icons.size(), 10);
    QCOMPARE(JoinPicture::icon(1), QStringLiteral(":/3p_wye"));
    QCOMPARE(JoinPicture::detail(1), QStringLiteral(":/3p_wye_detail"));
    QCOMPARE(JoinPicture::icon(6), QStringLiteral(":/1p_it_noneutral"));
    QCOMPARE(JoinPicture::icon(9), QStringLiteral(":/2_5p-element"));
    for (int none : { 0, -1, 11 }) {
        QVERIFY(JoinPicture::icon(none).isEmpty());
        QVERIFY(JoinPicture::detail(none).isEmpty());
    }
}

void TstSetupConfig::threePagesShowTenWirings()
{
    SetupPage setup(liveData());
    setup.enter();
    SetupCase::press(setup, { F1 });
    QCOMPARE(SetupCase::text(setup, "title"), QStringLiteral("JOIN CONFIG"));
    QCOMPARE(SetupCase::text(setup, "btn_f5"), QStringLiteral("Back"));
    const FrontKey keys[] = { F1, F2, F3 };
    QStringList found;
    for (int page = 0; page < 3; ++page) {
        QCOMPARE(PageTest::text(setup.currentPage(), QStringLiteral("btn_f%1").arg(page + 1)),
                 QStringLiteral("Page %1").arg(page + 1));
        SetupCase::press(setup, { keys[page] });
        found << names(setup);
        QCOMPARE(inUse(setup), page == 0 ? QStringLiteral("3P WYE") : QString());
    }
    QCOMPARE(found, allNames());
}

void TstSetupConfig::pageOpensWithTheWiringInUse_data()
{
    QTest::addColumn<int>("mode");
    for (int mode = 1; mode <= 10; ++mode)
        QTest::addRow("%d", mode) << mode;
}

void TstSetupConfig::pageOpensWithTheWiringInUse()
{
    QFETCH(int, mode);
    m_settingConfig_g.setJoinMode(mode);
    SetupPage setup(liveData());
    setup.enter();
    SetupCase::press(setup, { F1 });
    QCOMPARE(inUse(setup), allNames().at(mode - 1));
    QCOMPARE(selected(setup), allNames().at(mode - 1));
}

void TstSetupConfig::arrowsWalkThroughAllWiringsAndStopAtTheEnds()
{
    SetupPage setup(liveData());
    setup.enter();
    SetupCase::press(setup, { F1, Left, Up });
    QCOMPARE(selected(setup), allNames().first());
    // From here on the wiring that a way of so many keys from the first leads to.
    const auto behind = [&](const Keys &keys) {
        SetupCase::press(setup, { F1 }); // the first page selects its first
        SetupCase::press(setup, keys);
        SetupCase::press(setup, { Enter });
        const QString name = SetupCase::text(setup, "join_name");
        SetupCase::press(setup, { F5, F5, F1 });
        return name;
    };
    for (int steps = 0; steps < 12; ++steps)
        QCOMPARE(behind(Keys(std::size_t(steps), Right)), allNames().at(std::min(steps, 9)));
    QCOMPARE(behind({ Down }), allNames().at(2));
    QCOMPARE(behind({ Right, Down, Down }), allNames().at(5)); // on to the next page
    QCOMPARE(behind({ F3, Right, Down }), allNames().at(9)); // no row below
    QCOMPARE(behind({ F2, Up }), allNames().at(2));
}

void TstSetupConfig::okPutsAWiringInForce_data()
{
    pageOpensWithTheWiringInUse_data();
}

void TstSetupConfig::okPutsAWiringInForce()
{
    QFETCH(int, mode);
    SetupPage setup(liveData());
    setup.enter();
    SetupCase::press(setup, { F1 });
    SetupCase::press(setup, Keys(std::size_t(mode - 1), Right));
    SetupCase::press(setup, { Enter });
    QCOMPARE(SetupCase::text(setup, "join_name"), allNames().at(mode - 1));
    const auto *detail = setup.currentPage()->findChild<QLabel *>("detail");
    QCOMPARE(detail->pixmap(Qt::ReturnByValue).toImage(), QPixmap(JoinPicture::detail(mode)).toImage());
    SetupCase::press(setup, { F4 });
    QCOMPARE(m_settingConfig_g.getJoinMode(), mode);
    QCOMPARE(SetupCase::text(setup, "config"), m_settingConfig_g.getJoinModeName(mode));
    QCOMPARE(SetupCase::text(setup, "vnom"), mode % 2 ? QStringLiteral("230 V") : QStringLiteral("398 V"));
    const SettingConfig reader;
    QCOMPARE(reader.getJoinMode(), mode);
}

void TstSetupConfig::cancelLeavesTheWiringAndTheFile()
{
    SetupPage setup(liveData());
    setup.enter();
    const QByteArray file = SetupCase::settingFile();
    SetupCase::press(setup, { F1, Right, Right, Enter, F5 });
    QCOMPARE(SetupCase::onTop(setup), QStringLiteral("SetupConfigPage"));
    SetupCase::press(setup, { F5 });
    QCOMPARE(m_settingConfig_g.getJoinMode(), 1);
    QCOMPARE(SetupCase::settingFile(), file);
    SetupCase::press(setup, { F1, Right, Enter });
    QTest::keyClick(setup.currentPage(), Qt::Key_E); // Scope
    QCOMPARE(m_settingConfig_g.getJoinMode(), 1);
    QCOMPARE(SetupCase::settingFile(), file);
}

void TstSetupConfig::backFromAWiringAtLargeItIsStillSelected()
{
    SetupPage setup(liveData());
    setup.enter();
    SetupCase::press(setup, { F1, F2, Right, Enter, F5 });
    QVERIFY(names(setup).contains(QStringLiteral("3P HIGH LEG"))); // the second page
    QCOMPARE(selected(setup), QStringLiteral("1P IT NO NEUTRAL"));
}

void TstSetupConfig::enterOnTheFirstPageShowsTheWiringInUse()
{
    m_settingConfig_g.setJoinMode(8);
    SetupPage setup(liveData());
    setup.enter();
    SetupCase::press(setup, { Enter });
    QCOMPARE(SetupCase::text(setup, "join_name"), QStringLiteral("3P OPEN LEG"));
}

PAGE_TEST_MAIN(TstSetupConfig)
#include "tst_setupconfig.moc"
