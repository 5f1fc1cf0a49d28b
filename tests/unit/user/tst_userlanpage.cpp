#include "usercase.h"

#include "board/network.h"
#include "settings/netconfig.h"
#include "unit/board/standins.h"
#include "unit/storage/filelimit.h"
#include "unit/storage/ordinaryuser.h"
#include "unit/storage/rootfiles.h"
#include "user/userlanpage.h"

#include <QSignalSpy>

#include <cerrno>
#include <memory>
#include <sys/prctl.h>
#include <sys/wait.h>

using namespace UserCase;

/// The wired network: what the page shows, what it stores, and the commands that apply it.
class TstUserLanPage : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void showsWhatIsStoredAndWhatIsInUse();
    void staticAddressesAreGreyWithDhcp();
    void okStoresAddressesAndNetwork();
    void dhcpStoresTheStaticFieldsUnchanged();
    void okRunsTheCommandsOfTheBoardOnceAndWaitsForNone();
    void scriptsAreGivenASecond();
    void addressesInUseFollow();
    void cancelLeavesFileAndNetworkAlone();
    void wrongAddressesAreRefusedAtTyping_data();
    void wrongAddressesAreRefusedAtTyping();
    void cancelledKeyboardKeepsTheAddress();
    void hostileFileShowsAndRunsNothing();
    void removedFileShowsTheDefaults();
    void readOnlyFileKeepsWhatItHolds();
    void fullCardKeepsTheOldFile();
    void networkIsTheFirstThreeFields();

private:
    enum Field { Dhcp, Static, Address = 3, Netmask, Gateway }; // a header stands between

    void open()
    {
        m_page->init_parameter();
        m_page->show();
    }
    QString shown(const char *name) const { return PageTest::text(m_page.get(), QString::fromLatin1(name)); }
    void press(FrontKey key, int times = 1) { PageTest::press(m_page.get(), key, times); }
    void select(Field field)
    {
        while (m_page->field() > field)
            press(Up);
        while (m_page->field() < field)
            press(Down);
    }
    void choose(Field field)
    {
        select(field);
        press(Enter);
    }
    void edit(Field field, const QString &address, char end = 'F')
    {
        select(field);
        DialogDriver typing({ type(address, end) });
        press(Enter);
        QVERIFY(typing.isDone());
    }

    std::unique_ptr<UserLanPage> m_page;
};

namespace {

const QByteArray kStored = "USE_DHCP=0\nIPADDR=10.1.2.3\nNETMASK=255.0.0.0\nGATEWAY=10.9.9.9\nNETWORK=10.1.2.0\n"
                           "MAC=6E:69:75:53:01:0A\n";

const QString kCommands = QStringLiteral("/var/log/commands");

/// The scripts of the network that ran so far.
QByteArrayList scripts()
{
    QByteArrayList found;
    for (const QByteArray &line : RootFiles::lines(kCommands)) {
        if (line.startsWith("network"))
            found << line;
    }
    return found;
}

bool isChosen(const QWidget *page, const char *name)
{
    const auto *mark = page->findChild<QLabel *>(QString::fromLatin1(name));
    return mark && mark->pixmap(Qt::ReturnByValue).toImage() == QPixmap(QStringLiteral(":/radio_checked")).toImage();
}

} // namespace

/// What a shell has begun stays a child of this process when the shell is gone.
void TstUserLanPage::initTestCase()
{
    QCOMPARE(::prctl(PR_SET_CHILD_SUBREAPER, 1), 0);
}

void TstUserLanPage::init()
{
    removeFile(kNetFile);
    commands();
    m_page = std::make_unique<UserLanPage>();
}

void TstUserLanPage::cleanup()
{
    m_page.reset(); // and its shell
    RootFiles::waitForDisks();
    while (::waitpid(-1, nullptr, 0) > 0 || errno == EINTR) { } // the next test sees none of its commands
}

void TstUserLanPage::showsWhatIsStoredAndWhatIsInUse()
{
    writeFile(kNetFile, kStored);
    open();
    QCOMPARE(shown("title"), QStringLiteral("LAN SETUP"));
    QCOMPARE(shown("dhcp_t"), QStringLiteral("Use DHCP"));
    QCOMPARE(shown("static_t"), QStringLiteral("Static"));
    QCOMPARE(shown("setup_t"), QStringLiteral("IP Setup"));
    QCOMPARE(shown("in_use_t"), QStringLiteral("IP In-use:"));
    for (const QString name : { "address", "netmask", "gateway" }) {
        const QString caption = name.left(1).toUpper() + name.mid(1) + QLatin1Char(':');
        QCOMPARE(text(m_page.get(), name + QStringLiteral("_t")), caption);
        QCOMPARE(text(m_page.get(), name + QStringLiteral("_in_use_t")), caption);
    }
    QVERIFY(isChosen(m_page.get(), "static") && !isChosen(m_page.get(), "dhcp"));
    QCOMPARE(shown("address"), QStringLiteral("10.1.2.3"));
    QCOMPARE(shown("netmask"), QStringLiteral("255.0.0.0"));
    QCOMPARE(shown("gateway"), QStringLiteral("10.9.9.9"));
    const auto orZero = [](const QString &address) { return address.isEmpty() ? QStringLiteral("0.0.0.0") : address; };
    QCOMPARE(shown("address_in_use"), orZero(NetWork::getIfIpaddr(QStringLiteral("eth0"))));
    QCOMPARE(shown("netmask_in_use"), orZero(NetWork::getIfNetmask(QStringLiteral("eth0"))));
    QCOMPARE(shown("gateway_in_use"), NetWork::getIfGateway());
}

void TstUserLanPage::staticAddressesAreGreyWithDhcp()
{
    open(); // no file: DHCP
    QVERIFY(isChosen(m_page.get(), "dhcp") && !isChosen(m_page.get(), "static"));
    press(Down, 9);
    QCOMPARE(m_page->field(), int(Static));
    press(Enter);
    QVERIFY(isChosen(m_page.get(), "static") && !isChosen(m_page.get(), "dhcp"));
    press(Down, 9);
    QCOMPARE(m_page->field(), int(Gateway));
}

void TstUserLanPage::okStoresAddressesAndNetwork()
{
    open();
    QSignalSpy left(m_page.get(), &UserLanPage::goUserMain);
    choose(Static);
    edit(Address, QStringLiteral("10.20.30.255"));
    edit(Netmask, QStringLiteral("255.255.0.0"));
    edit(Gateway, QStringLiteral("10.20.0.1"));
    QCOMPARE(content(kNetFile), QByteArray("no such file")); // until Ok
    press(F4);
    QCOMPARE(left.count(), 1);
    const NetConfig config;
    QVERIFY(!config.getIsDHCP());
    QCOMPARE(config.getIPAddr(), QStringLiteral("10.20.30.255"));
    QCOMPARE(config.getNetMask(), QStringLiteral("255.255.0.0"));
    QCOMPARE(config.getGateWay(), QStringLiteral("10.20.0.1"));
    QCOMPARE(config.getNetWork(), QStringLiteral("10.20.30.0"));
}

void TstUserLanPage::dhcpStoresTheStaticFieldsUnchanged()
{
    writeFile(kNetFile, kStored);
    open();
    press(Left); // Use DHCP
    QVERIFY(isChosen(m_page.get(), "dhcp"));
    press(F4);
    QCOMPARE(content(kNetFile), QByteArray(kStored).replace("USE_DHCP=0", "USE_DHCP=1"));
}

void TstUserLanPage::okRunsTheCommandsOfTheBoardOnceAndWaitsForNone()
{
    // The last command ends when the key is through; whoever waits for it waits a minute.
    setStandIn(QStringLiteral("sleep"), kUntilLetGo + "touch \"${0%/bin/*}/var/log/awake\"\n");
    const QString awake = Target::path(QStringLiteral("/var/log/awake"));
    open();
    press(F4);
    QVERIFY2(!QFile::exists(awake), "the page waited for the last command");
    writeFile(kLetGo, "");
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(awake), 30000);
    for (const QString &file : { awake, Target::path(kLetGo), Target::path(QStringLiteral("/bin/sleep")) })
        QVERIFY(QFile::remove(file));
    QCOMPARE(scripts(), QByteArrayList({ "networking.sh eth0", "networking restart" }));
}

void TstUserLanPage::cancelLeavesFileAndNetworkAlone()
{
    writeFile(kNetFile, kStored);
    open();
    choose(Dhcp);
    choose(Static);
    edit(Gateway, QStringLiteral("1.2.3.4"));
    press(F5);
    QCOMPARE(content(kNetFile), kStored);
    QCOMPARE(shown("gateway"), QStringLiteral("10.9.9.9"));
    QTest::qWait(100);
    QCOMPARE(commands().join(QLatin1Char(';')), QString());
}

void TstUserLanPage::wrongAddressesAreRefusedAtTyping_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("kept");
    QTest::newRow("256") << "256.1.1.1" // the 6 cannot follow 25
                         << "25.1.1.1";
    QTest::newRow("three fields") << "1.2.3" << QString();
    QTest::newRow("letters") << "a1b.c2.3.4"
                             << "1.2.3.4";
    QTest::newRow("five fields") << "1.2.3.4.5"
                                 << "1.2.3.45";
    QTest::newRow("nothing") << "" << QString();
    QTest::newRow("all zero") << "0.0.0.0" << QString();
    QTest::newRow("largest") << "255.255.255.255"
                             << "255.255.255.255";
}

void TstUserLanPage::wrongAddressesAreRefusedAtTyping()
{
    QFETCH(QString, typed);
    QFETCH(QString, kept);
    writeFile(kNetFile, kStored);
    open();
    edit(Address, typed);
    QCOMPARE(shown("address"), kept.isEmpty() ? QStringLiteral("10.1.2.3") : kept);
}

void TstUserLanPage::cancelledKeyboardKeepsTheAddress()
{
    writeFile(kNetFile, kStored);
    open();
    edit(Address, QStringLiteral("1.2.3.4"), 'L');
    QCOMPARE(shown("address"), QStringLiteral("10.1.2.3"));
}

void TstUserLanPage::hostileFileShowsAndRunsNothing()
{
    writeFile(kNetFile, "USE_DHCP=0\nIPADDR='; touch /tmp/hurt; '\nGATEWAY=$(touch /tmp/hurt)\nNETMASK=<b>x</b>\n");
    open();
    press(F4);
    QTRY_VERIFY_WITH_TIMEOUT(scripts().size() >= 2, 30000);
    QCOMPARE(scripts(), QByteArrayList({ "networking.sh eth0", "networking restart" }));
    QVERIFY(!QFile::exists(Target::path(QStringLiteral("/tmp/hurt"))));
    QVERIFY(!QFile::exists(QStringLiteral("/tmp/hurt")));
    QCOMPARE(NetConfig().getNetWork(), QStringLiteral("192.168.2.0")); // made of no address
}

void TstUserLanPage::removedFileShowsTheDefaults()
{
    writeFile(kNetFile, kStored);
    open();
    removeFile(kNetFile);
    m_page->init_parameter();
    QVERIFY(isChosen(m_page.get(), "dhcp"));
    QCOMPARE(shown("address"), QStringLiteral("192.168.2.100"));
    QCOMPARE(shown("netmask"), QStringLiteral("255.255.255.0"));
    QCOMPARE(shown("gateway"), QStringLiteral("192.168.2.1"));
    press(F4);
    QVERIFY(content(kNetFile).startsWith("\n") || content(kNetFile).startsWith("USE_DHCP=1"));
    QVERIFY(NetConfig().getIsDHCP());
}

void TstUserLanPage::readOnlyFileKeepsWhatItHolds()
{
    writeFile(kNetFile, kStored);
    open();
    OrdinaryUser rights;
    rights.setFolderMode(QFile::encodeName(Target::path(QStringLiteral("/mnt/userfs/config"))), 0555);
    press(Left);
    press(F4);
    QCOMPARE(content(kNetFile), kStored);
    m_page->init_parameter();
    QVERIFY(isChosen(m_page.get(), "static")); // the page shows what is stored
}

void TstUserLanPage::fullCardKeepsTheOldFile()
{
    writeFile(kNetFile, kStored);
    open();
    {
        FileLimit full(20);
        press(Left);
        press(F4);
    }
    QCOMPARE(content(kNetFile), kStored);
}

void TstUserLanPage::networkIsTheFirstThreeFields()
{
    QCOMPARE(UserLanPage::networkOf(QStringLiteral("192.168.2.100")), QStringLiteral("192.168.2.0"));
    QCOMPARE(UserLanPage::networkOf(QStringLiteral("10.1.22.255")), QStringLiteral("10.1.22.0"));
}

void TstUserLanPage::scriptsAreGivenASecond()
{
    const QString standIn = Target::path(QStringLiteral("/bin/sleep"));
    QVERIFY(QFile::copy(Target::path(QStringLiteral("/bin/networking.sh")), standIn));
    open();
    press(F4);
    QTRY_VERIFY_WITH_TIMEOUT(RootFiles::lines(kCommands).contains("sleep 1"), 30000);
    QByteArrayList seen = RootFiles::lines(kCommands);
    seen.removeAll("sync"); // of the file
    QCOMPARE(seen, QByteArrayList({ "networking.sh eth0", "networking restart", "sleep 1" }));
    QVERIFY(QFile::remove(standIn));
}

void TstUserLanPage::addressesInUseFollow()
{
    open();
    const QString address = shown("address_in_use");
    for (const char *name : { "address_in_use", "netmask_in_use", "gateway_in_use" })
        m_page->findChild<QLabel *>(QString::fromLatin1(name))->setText(QStringLiteral("as it was"));
    QTRY_COMPARE(shown("address_in_use"), address);
    QVERIFY(shown("netmask_in_use") != QStringLiteral("as it was"));
    QVERIFY(shown("gateway_in_use") != QStringLiteral("as it was"));
}

PAGE_TEST_MAIN(TstUserLanPage)
#include "tst_userlanpage.moc"
