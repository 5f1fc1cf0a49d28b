#include <QTest>

#include <QDomDocument>

#include "settings/limits.h"
#include "unit/storage/rootfiles.h"

#include <cstring>

namespace {

const QString kPath = QStringLiteral("/mnt/userfs/sys//limits/form.xml");

/// Where each word of the record stands in a set's file, written down once more by hand.
struct Place
{
    const char *group, *child, *attribute;
    int word;
};
constexpr Place kReals[] = {
    { "Voltage", "nep", "value", 0 },
    { "Voltage", "partial", "upper", 1 },
    { "Voltage", "whole", "upper", 2 },
    { "Voltage", "partial", "lower", 3 },
    { "Voltage", "whole", "lower", 4 },
    { "Flicker", "plt", "nep", 156 },
    { "Flicker", "plt", "partial", 157 },
    { "Flicker", "plt", "whole", 158 },
    { "Flicker", "pst", "nep", 160 },
    { "Flicker", "pst", "partial", 161 },
    { "Flicker", "pst", "whole", 162 },
    { "Dips", "tolerance", "threshold", 164 },
    { "Dips", "tolerance", "hysteresis", 165 },
    { "Swells", "tolerance", "threshold", 167 },
    { "Swells", "tolerance", "hysteresis", 168 },
    { "Interruptions", "tolerance", "threshold", 170 },
    { "Interruptions", "tolerance", "hysteresis", 171 },
    { "RVC", "tolerance", "threshold", 173 },
    { "RVC", "tolerance", "steadytime", 174 },
    { "RVC", "tolerance", "minstep", 175 },
    { "RVC", "tolerance", "minrate", 176 },
    { "Unbalance", "neg", "nep", 178 },
    { "Unbalance", "neg", "partial", 179 },
    { "Unbalance", "neg", "whole", 180 },
    { "Unbalance", "zero", "nep", 181 },
    { "Unbalance", "zero", "partial", 182 },
    { "Unbalance", "zero", "whole", 183 },
    { "Frequency", "nep", "value", 184 },
    { "Frequency", "partial", "upper", 185 },
    { "Frequency", "whole", "upper", 186 },
    { "Frequency", "partial", "lower", 187 },
    { "Frequency", "whole", "lower", 188 },
    { "MainsSignal", "frequency1", "value", 190 },
    { "MainsSignal", "frequency1", "nep", 191 },
    { "MainsSignal", "frequency1", "partial", 192 },
    { "MainsSignal", "frequency1", "whole", 193 },
    { "MainsSignal", "frequency2", "value", 194 },
    { "MainsSignal", "frequency2", "nep", 195 },
    { "MainsSignal", "frequency2", "partial", 196 },
    { "MainsSignal", "frequency2", "whole", 197 },
};
constexpr Place kIntegers[] = {
    { "Dips", "tolerance", "maxAllowed", 166 },
    { "Swells", "tolerance", "maxAllowed", 169 },
    { "Interruptions", "tolerance", "maxAllowed", 172 },
    { "RVC", "tolerance", "maxAllowed", 177 },
};
constexpr int kRows = 50, kNep = 6, kPartial = 56, kWhole = 106; // of harmonics: rows, first words

/// A value that no other word has.
float realOf(int word)
{
    return float(word) + 0.25f;
}

template <typename T> T wordOf(const monitor_limit &limit, int word)
{
    T value;
    std::memcpy(&value, reinterpret_cast<const char *>(&limit) + 4 * word, sizeof value);
    return value;
}

template <typename T> void setWord(monitor_limit &limit, int word, T value)
{
    std::memcpy(reinterpret_cast<char *>(&limit) + 4 * word, &value, sizeof value);
}

/// The element of a group's child; both are made where they are missing.
QDomElement childOf(QDomDocument &document, const Place &place)
{
    QDomElement parent = document.documentElement();
    for (const char *name : { place.group, place.child }) {
        QDomElement element = parent.firstChildElement(QLatin1String(name));
        if (element.isNull())
            element = parent.appendChild(document.createElement(QLatin1String(name))).toElement();
        parent = element;
    }
    return parent;
}

} // namespace

/// The form of a limit set's file, by a reader and a writer of the test's own: a file goes from one instrument to
/// another, whichever program wrote it.
class TstLimitsForm : public QObject
{
    Q_OBJECT

private slots:
    void init() { RootFiles::clean(); }
    void whatIsSavedIsReadByAnotherReader();
    void whatAnotherWriterWroteIsRead();
};

void TstLimitsForm::whatIsSavedIsReadByAnotherReader()
{
    MonitorLimits2 set;
    for (const Place &place : kReals)
        setWord(set.limit(), place.word, realOf(place.word));
    for (const Place &place : kIntegers)
        setWord(set.limit(), place.word, qint32(place.word));
    set.limit().harmonicCount = kRows;
    for (int row = 0; row < kRows; ++row) {
        for (const int first : { kNep, kPartial, kWhole })
            setWord(set.limit(), first + row, realOf(first + row));
    }
    QVERIFY(set.saveFile(kPath));

    QDomDocument document;
    QVERIFY(document.setContent(RootFiles::read(kPath)));
    for (const Place &place : kReals)
        QCOMPARE(childOf(document, place).attribute(QLatin1String(place.attribute)).toFloat(), realOf(place.word));
    for (const Place &place : kIntegers)
        QCOMPARE(childOf(document, place).attribute(QLatin1String(place.attribute)), QString::number(place.word));
    const QDomElement harmonics = document.documentElement().firstChildElement(QStringLiteral("Harmonic"));
    QCOMPARE(harmonics.attribute(QStringLiteral("count")), QString::number(kRows));
    int rows = 0;
    for (QDomElement row = harmonics.firstChildElement(); !row.isNull(); row = row.nextSiblingElement(), ++rows) {
        QCOMPARE(row.tagName(), QStringLiteral("tolerance"));
        QCOMPARE(row.attribute(QStringLiteral("index")), QString::number(rows + 1));
        QCOMPARE(row.attribute(QStringLiteral("nep")).toFloat(), realOf(kNep + rows));
        QCOMPARE(row.attribute(QStringLiteral("partial")).toFloat(), realOf(kPartial + rows));
        QCOMPARE(row.attribute(QStringLiteral("whole")).toFloat(), realOf(kWhole + rows));
    }
    QCOMPARE(rows, kRows);
}

void TstLimitsForm::whatAnotherWriterWroteIsRead()
{
    QDomDocument document;
    QDomElement root = document.appendChild(document.createElement(QStringLiteral("limits"))).toElement();
    root.setAttribute(QStringLiteral("name"), QStringLiteral("elsewhere"));
    for (const Place &place : kReals)
        childOf(document, place).setAttribute(QLatin1String(place.attribute), realOf(place.word));
    for (const Place &place : kIntegers)
        childOf(document, place).setAttribute(QLatin1String(place.attribute), place.word);
    QDomElement harmonics = root.appendChild(document.createElement(QStringLiteral("Harmonic"))).toElement();
    harmonics.setAttribute(QStringLiteral("count"), kRows);
    for (int row = kRows; row-- > 0;) { // in no order: the index says which
        QDomElement element = harmonics.appendChild(document.createElement(QStringLiteral("tolerance"))).toElement();
        element.setAttribute(QStringLiteral("index"), row + 1);
        element.setAttribute(QStringLiteral("nep"), realOf(kNep + row));
        element.setAttribute(QStringLiteral("partial"), realOf(kPartial + row));
        element.setAttribute(QStringLiteral("whole"), realOf(kWhole + row));
    }
    RootFiles::write(kPath, document.toByteArray());

    MonitorLimits2 set;
    QVERIFY(set.loadFile(kPath));
    QCOMPARE(set.name(), QStringLiteral("elsewhere"));
    for (const Place &place : kReals)
        QCOMPARE(wordOf<float>(set.limit(), place.word), realOf(place.word));
    for (const Place &place : kIntegers)
        QCOMPARE(wordOf<qint32>(set.limit(), place.word), qint32(place.word));
    QCOMPARE(wordOf<qint32>(set.limit(), 5), qint32(kRows));
    for (int word = kNep; word < kWhole + kRows; ++word)
        QCOMPARE(wordOf<float>(set.limit(), word), realOf(word));
}

QTEST_GUILESS_MAIN(TstLimitsForm)
#include "tst_limitsform.moc"
