// Settings files of any content: read by every holder, rewritten, read again.
#include "settings/config.h"
#include "settings/netconfig.h"
#include "settings/settingconfig.h"
#include "settings/userconfig.h"
#include "fuzz/fuzztarget.h"
#include "unit/storage/rootfiles.h"

using FuzzTarget::expect;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray file = FuzzTarget::bytes(data, size);
    // The levels that the clamp gives stand there already, so that the start stores nothing and a campaign is quick.
    RootFiles::write(SettingConfig::filePath(),
                     file + "\nINRUSH_NOMAMPS=1.25\nINRUSH_THRESHOLD=200\nINRUSH_HYSTERESIS=2\n");
    RootFiles::write("/mnt/userfs/config/user.conf", file);
    RootFiles::write(NetConfig::filePath(), file);

    const SettingConfig setting;
    expect(setting.getJoinMode() >= 1 && setting.getJoinMode() <= 10);
    expect(setting.getNomFreqSelect() >= 1 && setting.getNomFreqSelect() <= 3);
    expect(setting.getVoltIndex() >= 0 && setting.getVoltIndex() <= 3);
    expect(setting.getCurrentIndex() >= 0 && setting.getCurrentIndex() <= 3);
    expect(setting.currentDigits() >= 0 && setting.currentDigits() <= 3);
    expect(!setting.systemInfo().isEmpty());
    const UserConfig user;
    expect(user.getLang() >= 1 && user.getLang() <= 14 && user.sleepDelay() >= 0);
    const NetConfig net;
    expect(!net.getIPAddr().isEmpty());

    // A stored key reads back, unless it stood only in lines that the rewrite drops.
    const QString text = Config::textWith(QString::fromUtf8(file), "JOINMODE", "7");
    const QByteArray rewritten = text.toLatin1();
    if (text.contains("JOINMODE=7") && !rewritten.contains('\0'))
        expect(Config::valueIn(rewritten, "JOINMODE") == "7");
    const QString again = Config::textWith(text, "JOINMODE", "8");
    expect(again.count("JOINMODE=7") == 0);
    return 0;
}
