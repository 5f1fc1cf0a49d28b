#include "usercase.h"

#include "settings/netconfig.h"

#include <QRegularExpression>
#include <QSet>
#include <QTimer>

using namespace UserCase;

namespace {

constexpr int kKeys = 20000;
constexpr int kBatch = 40; // keys between two looks at the event loop

const FrontKey kPanel[] = { F1, F2, F3, F4, F5, Left, Right, Up, Down, Down, Right, Enter };

} // namespace

/// Whatever is pressed on the user pages, what they leave on the card can be read.
class TstUserRandomKeys : public QObject
{
    Q_OBJECT

private slots:
    void anyKeysLeaveValidFiles();

private:
    void pressSome(UserPage &user);
    void checkUserFile() const;
    void checkNetFile() const;

    quint32 m_random = 20240118;
    int m_left = kKeys;
    QSet<QString> m_seen; // pages and dialogs that had a key
};

void TstUserRandomKeys::pressSome(UserPage &user)
{
    QWidget *left = m_left <= 0 ? QApplication::activeModalWidget() : nullptr;
    if (m_left <= 0 && !left)
        return;
    // Before the keys: one of them may open a dialog, which runs a loop of its own.
    QTimer::singleShot(0, &user, [this, &user] { pressSome(user); });
    if (left) {
        // The last key may have fallen into a dialog: its loop runs until the dialog is closed.
        left->close();
        return;
    }
    const QWidget *begun = QApplication::activeModalWidget();
    for (int i = 0; i < kBatch && m_left > 0 && QApplication::activeModalWidget() == begun; ++i, --m_left) {
        m_random = m_random * 1664525 + 1013904223;
        FrontKey key = kPanel[(m_random >> 16) % std::size(kPanel)];
        QWidget *target = QApplication::activeModalWidget();
        if (!target)
            target = user.currentPage();
        // An update that has begun takes no keys for a while, so it is mostly left before.
        const bool updating = !begun && user.currentIndex() == UserPage::Update;
        if (updating && m_random % 16384 > 1000)
            key = F5;
        m_seen.insert(QString::fromLatin1(target->metaObject()->className()));
        for (const auto type : { QEvent::KeyPress, QEvent::KeyRelease }) {
            QKeyEvent event(type, key, Qt::NoModifier);
            QCoreApplication::sendEvent(target, &event);
        }
        if (updating)
            break;
    }
}

void TstUserRandomKeys::checkUserFile() const
{
    const QList<QByteArray> lines = content(kUserFile).split('\n');
    QSet<QByteArray> keys;
    for (const QByteArray &line : lines) {
        const QByteArray key = line.left(line.indexOf('='));
        if (line.isEmpty())
            continue;
        QVERIFY2(!keys.contains(key), key.constData());
        keys.insert(key);
        QVERIFY2(QList<QByteArray>({ "USER_NAME", "LANG", "SLEEP", "PHASECOLOR", "TZ" }).contains(key),
                 line.constData());
    }
    const UserConfig config;
    QVERIFY(QRegularExpression(QStringLiteral("^[0-5]{5}$")).match(config.getPhaseColors()).hasMatch());
    QVERIFY(!config.getUserName().trimmed().isEmpty());
    QVERIFY(config.getUserName().size() <= 32);
    // What was set last is what is stored, and in force.
    QCOMPARE(config.getLang(), m_userConfig_g.getLang());
    QCOMPARE(config.getSleepNumber(), m_userConfig_g.getSleepNumber());
    QCOMPARE(config.getPhaseColors(), m_userConfig_g.getPhaseColors());
    QCOMPARE(config.getTimeZone(), m_userConfig_g.getTimeZone());
}

void TstUserRandomKeys::checkNetFile() const
{
    const NetConfig config;
    for (const QString &address : { config.getIPAddr(), config.getNetMask(), config.getGateWay(), config.getNetWork() })
        QVERIFY2(NetConfig::ipIsValid(address), qPrintable(address));
    const QByteArray file = content(kNetFile);
    for (const char *key : { "USE_DHCP=", "IPADDR=", "NETMASK=", "GATEWAY=", "NETWORK=" })
        QCOMPARE(file.count(key), 1);
}

void TstUserRandomKeys::anyKeysLeaveValidFiles()
{
    removeFile(kUserFile);
    removeFile(kNetFile);
    m_userConfig_g = UserConfig();
    UserPage user(liveData());
    user.enter();
    user.show();
    pressSome(user);
    QTRY_VERIFY_WITH_TIMEOUT(m_left <= 0, 240000);
    QTRY_VERIFY(!QApplication::activeModalWidget());
    for (const char *name :
         { "UserZiPage", "UserDatePage", "UserLanPage", "UserWifiPage", "PhaseColorDialog", "VirtualKeyBoard" })
        QVERIFY2(m_seen.contains(QString::fromLatin1(name)), name);
    checkUserFile();
    checkNetFile();
}

PAGE_TEST_MAIN(TstUserRandomKeys)
#include "tst_userrandomkeys.moc"
