#include "record/tables/isotime.h"

#include <charconv>

namespace {

constexpr qint64 kDay = 86400000; // ms
constexpr qint64 kDaysOf400Years = 146097;

struct Date
{
    qint64 year;
    int month, day;
};

/// The Gregorian calendar repeats itself every 400 years. Counted from a first of March, the leap day is the last one
/// of its year, and the months' lengths follow one rule: 153 days in each five of them.
Date dateOf(qint64 daysSince1970)
{
    constexpr qint64 kFromMarchOfYear0 = 719468; // days to 1970-01-01
    const qint64 days = daysSince1970 + kFromMarchOfYear0;
    const qint64 era = (days >= 0 ? days : days - (kDaysOf400Years - 1)) / kDaysOf400Years;
    const qint64 day = days - era * kDaysOf400Years; // 0 to 146096
    const qint64 year = (day - day / 1460 + day / 36524 - day / 146096) / 365; // of the 400
    const int dayOfYear = int(day - (365 * year + year / 4 - year / 100));
    const int month = (5 * dayOfYear + 2) / 153; // 0 is March
    const int begin = (153 * month + 2) / 5;
    return { year + era * 400 + (month >= 10 ? 1 : 0), month < 10 ? month + 3 : month - 9, dayOfYear - begin + 1 };
}

char *digits(char *at, int value, int count)
{
    for (int i = count - 1; i >= 0; --i, value /= 10)
        at[i] = char('0' + value % 10);
    return at + count;
}

char *printYear(char *at, qint64 year)
{
    if (year >= 0 && year <= 9999)
        return digits(at, int(year), 4);
    *at++ = year < 0 ? '-' : '+';
    const qint64 size = year < 0 ? -year : year;
    if (size <= 9999)
        return digits(at, int(size), 4);
    return std::to_chars(at, at + 20, size).ptr;
}

} // namespace

namespace IsoTime {

char *print(char *at, qint64 msSince1970)
{
    const qint64 days = msSince1970 / kDay - (msSince1970 % kDay < 0 ? 1 : 0);
    int ms = int(msSince1970 % kDay);
    if (ms < 0)
        ms += int(kDay);
    const Date date = dateOf(days);
    at = printYear(at, date.year);
    *at++ = '-';
    at = digits(at, date.month, 2);
    *at++ = '-';
    at = digits(at, date.day, 2);
    *at++ = 'T';
    at = digits(at, ms / 3600000, 2);
    *at++ = ':';
    at = digits(at, ms / 60000 % 60, 2);
    *at++ = ':';
    at = digits(at, ms / 1000 % 60, 2);
    *at++ = '.';
    at = digits(at, ms % 1000, 3);
    *at++ = 'Z';
    return at;
}

QByteArray text(qint64 msSince1970)
{
    char bytes[kMost];
    return QByteArray(bytes, int(print(bytes, msSince1970) - bytes));
}

} // namespace IsoTime
