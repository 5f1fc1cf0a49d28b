#include "record/tables/logcolumns.h"

#include <QSet>

#include <algorithm>
#include <array>

namespace {

constexpr int kMostOrder = 100;

enum Table { Values, HarmonicsU, HarmonicsI, InterharmonicsU, InterharmonicsI, AnglesU, AnglesI, kTables };

/// A group of the logger.
struct Group
{
    const char *name; // in the file
    Table table;
    const char *quantity; // of a spectrum without its order
    const char *unit; // where the file tells none
    const char *suffix = ""; // behind the order
};

constexpr Group kGroups[] = {
    { "VRMS", Values, "U_rms", "V" },
    { "VCF", Values, "U_crest", "" },
    { "VTHD", Values, "U_THD", "percent" },
    { "VNEG", Values, "U_negative_ratio", "percent" },
    { "VZERO", Values, "U_zero_ratio", "percent" },
    { "VDC", Values, "U_offset", "V" },
    { "IRMS", Values, "I_rms", "A" },
    { "ICF", Values, "I_crest", "" },
    { "ITHD", Values, "I_THD", "percent" },
    { "INEG", Values, "I_negative_ratio", "percent" },
    { "IZERO", Values, "I_zero_ratio", "percent" },
    { "IDC", Values, "I_offset", "A" },
    { "P", Values, "P", "W" },
    { "S", Values, "S", "VA" },
    { "Q", Values, "Q", "var" },
    { "PF", Values, "PF", "" },
    { "cos\xCE\xA6", Values, "cos_phi", "" },
    { "tan\xCE\xA6", Values, "tan_phi", "" },
    { "EnergyP", Values, "EP", "Wh" },
    { "EnergyS", Values, "ES", "VAh" },
    { "EnergyQ", Values, "EQ", "varh" },
    { "FREQ", Values, "f", "Hz" },
    { "PST", Values, "Pst", "" },
    { "VHarmonic", HarmonicsU, "Uh", "V" },
    { "IHarmonic", HarmonicsI, "Ih", "A" },
    { "VInterHarmonic", InterharmonicsU, "Uih", "V" },
    { "IInterHarmonic", InterharmonicsI, "Iih", "A" },
    { "VHarm\xCE\xA6", AnglesU, "Uh", "deg", "_angle" },
    { "IHarm\xCE\xA6", AnglesI, "Ih", "deg", "_angle" },
};

/// Takes the word that a text ends with, where it is one of these; -1 without.
template <std::size_t count> int takeLast(QByteArray *text, const std::array<const char *, count> &words)
{
    for (std::size_t i = 0; i < count; ++i) {
        const QByteArray word = QByteArray(" ") + words[i];
        if (text->endsWith(word)) {
            text->chop(word.size());
            return int(i);
        }
    }
    return -1;
}

/// Takes " 5'th" from the end; -1 without.
int takeOrder(QByteArray *text)
{
    const int mark = text->lastIndexOf(' ');
    if (mark < 0 || !text->endsWith("'th"))
        return -1;
    bool isNumber = false;
    const int order = text->mid(mark + 1, text->size() - mark - 4).toInt(&isNumber);
    if (!isNumber || order < 0 || order > kMostOrder)
        return -1;
    text->truncate(mark);
    return order;
}

/// Takes "(kV)" from the end, and answers with what a value is multiplied to be one of the plain \a unit; 0: it is
/// another unit's, or nothing of the logger's.
double takeUnit(QByteArray *text, const QByteArray &unit)
{
    const int mark = text->indexOf('(');
    if (mark < 0)
        return 1;
    if (!text->endsWith(')'))
        return 0; // a channel or an order that no name of the logger has stands behind
    const QByteArray told = text->mid(mark + 1, text->size() - mark - 2);
    text->truncate(mark);
    if (unit.isEmpty() || told.compare(unit, Qt::CaseInsensitive) == 0)
        return 1;
    constexpr std::array<std::pair<char, double>, 5> kPrefixes
        = { { { 'u', 1e-6 }, { 'm', 1e-3 }, { 'k', 1e3 }, { 'M', 1e6 }, { 'G', 1e9 } } };
    for (const auto &prefix : kPrefixes) {
        if (told.size() == unit.size() + 1 && told.at(0) == prefix.first
            && told.mid(1).compare(unit, Qt::CaseInsensitive) == 0)
            return prefix.second;
    }
    return 0;
}

/// A name of the header, read.
struct Name
{
    const Group *group = nullptr; // null: not the logger's
    RecordColumn column;
    double factor = 1;
};

Name nameOf(QByteArray text)
{
    Name name;
    const int statistic = takeLast<3>(&text, { "AVG", "MAX", "MIN" });
    const int order = takeOrder(&text);
    const int channel = takeLast<5>(&text, { "L1", "L2", "L3", "N", "ALL" });
    const QByteArray stem = text.left(text.indexOf('(') < 0 ? text.size() : text.indexOf('('));
    const auto group
        = std::find_if(std::begin(kGroups), std::end(kGroups), [&stem](const Group &row) { return stem == row.name; });
    if (group == std::end(kGroups) || (order >= 0) != (group->table != Values))
        return name;
    name.factor = takeUnit(&text, group->unit);
    if (name.factor == 0)
        return name;
    static constexpr const char *kChannels[] = { "L1", "L2", "L3", "N", "total" };
    name.group = group;
    name.column.quantity = group->quantity;
    if (order >= 0)
        name.column.quantity += QByteArray::number(order).rightJustified(2, '0') + group->suffix;
    name.column.statistic = Statistic(statistic + 1);
    name.column.channel = channel < 0 ? "" : kChannels[channel];
    name.column.unit = group->unit;
    name.column.type = CellType::Double;
    name.column.order = qint16(order);
    return name;
}

} // namespace

const QVector<QByteArray> &logTableNames()
{
    static const QVector<QByteArray> names {
        "log",          "log_harmonics_u", "log_harmonics_i", "log_interharmonics_u", "log_interharmonics_i",
        "log_angles_u", "log_angles_i"
    };
    return names;
}

LogColumns::LogColumns(const std::vector<QByteArray> &names)
{
    std::array<int, kTables> numbers;
    numbers.fill(-1);
    QSet<QByteArray> taken;
    for (const QByteArray &text : names) {
        const Name name = nameOf(text);
        const QByteArray key
            = name.group ? QByteArray(1, char('0' + name.group->table)) + name.column.name() : QByteArray();
        if (!name.group || taken.contains(key)) {
            m_places.push_back({});
            ++m_unknown;
            continue;
        }
        taken.insert(key);
        int &number = numbers[name.group->table];
        if (number < 0) {
            number = m_tables.size();
            m_tables.append(RecordTable { logTableNames().at(name.group->table), {} });
        }
        m_places.push_back({ number, m_tables.at(number).columns.size(), name.factor });
        m_tables[number].columns.append(name.column);
    }
}
