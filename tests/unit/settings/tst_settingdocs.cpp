#include <QTest>

#include "settings/netconfig.h"
#include "settings/settingconfig.h"
#include "settings/userconfig.h"
#include "unit/documentpage.h"

namespace {

template <typename Values> QString line(const QString &file, const SettingRow<Values> &row)
{
    const QString bounds = row.lowest == row.highest ? QStringLiteral("none")
                                                     : QStringLiteral("%1..%2").arg(row.lowest).arg(row.highest);
    return QStringLiteral("| `%1` | `%2` | %3 | %4 | %5 | %6 |")
        .arg(row.key, file, row.type, row.defaultText, bounds, row.meaning);
}

QString editLine(const SettingRow<SettingValues> &row)
{
    static const char *const names[] = { "derived", "ranges", "processor", "modbus", "tables", "task" };
    QStringList follows;
    for (int bit = 0; bit < 6; ++bit) {
        if (row.follows >> bit & 1)
            follows << names[bit];
    }
    const EditRule &edit = row.edit;
    return QStringLiteral("| `%1` | %2 | %3 | %4 | %5 | %6 | %7 |")
        .arg(row.key, QString::number(edit.lowest, 'g', 9), QString::number(edit.highest, 'g', 9),
             QString::number(edit.step), *edit.unit ? QString(edit.unit) : QStringLiteral("none"),
             edit.ticksPerStep ? QStringLiteral("%1 ticks, %2").arg(edit.ticksPerStep).arg(edit.largestStep)
                               : QStringLiteral("no"),
             follows.isEmpty() ? QStringLiteral("none") : follows.join(", "));
}

} // namespace

/// The page docs/settings.md says what the tables of the code say.
class TstSettingDocs : public QObject
{
    Q_OBJECT

private slots:
    void theTableOfKeysIsThatOfTheCode()
    {
        QStringList expected;
        for (const auto &row : UserConfig::rows())
            expected << line(UserConfig::filePath(row.key).section('/', -1), row);
        for (const auto &row : SettingConfig::rows())
            expected << line("setting.conf", row);
        for (const auto &row : NetConfig::rows())
            expected << line("eth0.conf", row);
        const QStringList found = m_page.split('\n').filter(QRegularExpression("^\\| `[A-Z0-9_]+` \\| `"));
        for (int i = 0; i < qMin(found.size(), expected.size()); ++i)
            QCOMPARE(found.at(i), expected.at(i));
        QCOMPARE(found.size(), expected.size());
    }

    void theTableOfEditingIsThatOfTheCode()
    {
        QStringList expected;
        for (const auto &row : SettingConfig::rows()) {
            if (row.edit.highest > row.edit.lowest)
                expected << editLine(row);
        }
        QCOMPARE(m_page.split('\n').filter(QRegularExpression("^\\| `[A-Z0-9_]+` \\| [0-9.]+ \\|")), expected);
    }

    void theTableOfLanguagesIsThatOfTheCode()
    {
        int number = 0;
        for (const UserConfig::Language &language : UserConfig::languages()) {
            const QString word
                = *language.fileWord ? QStringLiteral("`lang_%1.qm`").arg(language.fileWord) : QStringLiteral("none");
            const QString row
                = QStringLiteral("| %1 | `%2` | %3 | %4 |").arg(++number).arg(language.key, language.name, word);
            QVERIFY2(m_page.contains(row + '\n'), qPrintable(row));
        }
    }

    void theTableOfWiringsIsThatOfTheCode()
    {
        for (const ChannelSet &set : kChannelSets) {
            const QString row = QStringLiteral("| %1 | %2 | %3 | %4 |")
                                    .arg(set.joinMode)
                                    .arg(set.name, set.fullName, set.star() ? "phase table" : "line table");
            QVERIFY2(m_page.contains(row + '\n'), qPrintable(row));
        }
    }

private:
    const QString m_page = DocumentPage(QStringLiteral("settings.md")).text();
};

QTEST_GUILESS_MAIN(TstSettingDocs)
#include "tst_settingdocs.moc"
