#include "report/reporttext.h"

#include "model/channelset.h"

#include <QDateTime>

#include <cmath>

namespace {

int decimalsOf(Quantity quantity)
{
    switch (quantity) {
    case Quantity::Frequency:
        return 3;
    case Quantity::Voltage:
        return 1;
    default:
        return 2;
    }
}

bool isFlicker(Quantity quantity)
{
    return quantity == Quantity::Pst || quantity == Quantity::Plt;
}

/// The toolkit's language behind the word of a language's file.
QLocale localeOf(const QString &fileWord)
{
    struct Row
    {
        const char *word;
        QLocale::Language language;
        QLocale::Country country;
    };
    static constexpr Row kRows[] = {
        { "zh", QLocale::Chinese, QLocale::China },
        { "po", QLocale::Polish, QLocale::Poland },
        { "pt_zolcar", QLocale::Portuguese, QLocale::Brazil },
        { "ko", QLocale::Korean, QLocale::SouthKorea },
        { "tu", QLocale::Turkish, QLocale::Turkey },
        { "fr", QLocale::French, QLocale::France },
        { "sp", QLocale::Spanish, QLocale::Spain },
        { "pt", QLocale::Portuguese, QLocale::Portugal },
        { "ge", QLocale::German, QLocale::Germany },
        { "sp_la", QLocale::Spanish, QLocale::Mexico },
        { "ru", QLocale::Russian, QLocale::Russia },
        { "jp", QLocale::Japanese, QLocale::Japan },
        { "it", QLocale::Italian, QLocale::Italy },
    };
    for (const Row &row : kRows) {
        if (fileWord == QLatin1String(row.word))
            return QLocale(row.language, row.country);
    }
    return QLocale(QLocale::English, QLocale::UnitedKingdom);
}

} // namespace

Report::Report(const QString &fileWord, const QTimeZone &zone) : m_locale(localeOf(fileWord)), m_zone(zone)
{
    m_locale.setNumberOptions(QLocale::OmitGroupSeparator);
}

QString Report::languageTag() const
{
    return m_locale.bcp47Name();
}

QString Report::number(double value, int decimals) const
{
    if (!std::isfinite(value))
        return dash();
    constexpr double kLargest = 1e12; // beyond, digits are no use
    return std::abs(value) < kLargest ? m_locale.toString(value, 'f', decimals) : m_locale.toString(value, 'e', 3);
}

QString Report::percent(double value, int decimals) const
{
    return std::isfinite(value) ? number(value, decimals) + QStringLiteral(" %") : dash();
}

QString Report::share(double value) const
{
    return percent(value, value == std::floor(value) ? 0 : 1);
}

QString Report::shareWithin(double value) const
{
    return percent(std::floor(value * 10) / 10); // a quotient that is whole tenths is one here, too
}

QString Report::time(qint64 ms) const
{
    if (!isPlausibleTime(ms))
        return dash();
    return QDateTime::fromMSecsSinceEpoch(ms, m_zone).toString(QStringLiteral("yyyy-MM-dd hh:mm:ss"));
}

QString Report::zoneMark() const
{
    return m_zone == QTimeZone::utc() ? QStringLiteral(" UTC") : QString();
}

QString Report::duration(qint64 ms) const
{
    constexpr qint64 kMinute = 60000, kHour = 60 * kMinute;
    if (ms < 0)
        return dash();
    if (ms < kMinute)
        return m_locale.toString(double(ms) / 1000, 'f', ms < 10000 ? 3 : 1) + QStringLiteral(" s");
    const qint64 days = ms / Weeks::kDay;
    const auto two = [](qint64 number) { return QStringLiteral("%1").arg(number, 2, 10, QLatin1Char('0')); };
    const QString clock
        = two(ms / kHour % 24) + QLatin1Char(':') + two(ms / kMinute % 60) + QLatin1Char(':') + two(ms / 1000 % 60);
    return days > 0 ? QStringLiteral("%1 d ").arg(days) + clock : clock;
}

QString Report::unitOf(Quantity quantity)
{
    switch (quantity) {
    case Quantity::Frequency:
        return QStringLiteral("Hz");
    case Quantity::Voltage:
        return QStringLiteral("V");
    default:
        return isFlicker(quantity) ? QString() : QStringLiteral("%");
    }
}

QString Report::value(const QuantityKey &key, double value) const
{
    const QString unit = unitOf(key.quantity);
    const QString text = number(value, decimalsOf(key.quantity));
    return unit.isEmpty() || text == dash() ? text : text + QLatin1Char(' ') + unit;
}

QString Report::phaseName(int phase, const Judgement &judgement)
{
    const ChannelSet *wiring = channelSet(judgement.overview.facts.joinMode);
    const QString caption = wiring ? wiring->caption(phase) : QString();
    return caption.isEmpty() ? QStringLiteral("L%1").arg(phase + 1) : caption;
}

QString Report::nameOf(Quantity quantity, const Judgement &judgement) const
{
    const auto signal = [this](float hertz) { return tr("Mains signal %1 Hz").arg(number(double(hertz), 0)); };
    switch (quantity) {
    case Quantity::Frequency:
        return tr("Frequency");
    case Quantity::Voltage:
        return tr("Voltage");
    case Quantity::Unbalance:
        return tr("Unbalance");
    case Quantity::ZeroUnbalance:
        return tr("Unbalance, zero sequence");
    case Quantity::Thd:
        return QStringLiteral("THD");
    case Quantity::Harmonic:
        return tr("Harmonics");
    case Quantity::Pst:
        return tr("Flicker") + QStringLiteral(" Pst");
    case Quantity::Plt:
        return tr("Flicker") + QStringLiteral(" Plt");
    case Quantity::Signal1:
        return signal(judgement.setup.limits.frequency1.value);
    case Quantity::Signal2:
        return signal(judgement.setup.limits.frequency2.value);
    }
    return {};
}

QString Report::nameOf(const QuantityKey &key, const Judgement &judgement) const
{
    QString name = nameOf(key.quantity, judgement);
    if (key.quantity == Quantity::Harmonic)
        name = tr("Harmonic %1").arg(key.order);
    return key.phase < 0 ? name : name + QLatin1Char(' ') + phaseName(key.phase, judgement);
}

QString Report::range(const QuantityKey &key, double low, double high) const
{
    // Limits are round numbers, as a rule; thousandths of a hertz are shown where they count.
    const auto isRound
        = [](double limit) { return !std::isfinite(limit) || std::abs(limit * 100 - std::round(limit * 100)) < 1e-3; };
    const bool coarse = key.quantity == Quantity::Frequency && isRound(low) && isRound(high);
    const int decimals = decimalsOf(key.quantity) - (coarse ? 1 : 0);
    const QString unit = unitOf(key.quantity);
    const QString behind = unit.isEmpty() ? QString() : QLatin1Char(' ') + unit;
    if (std::isfinite(low) && std::isfinite(high))
        return number(low, decimals) + QStringLiteral(" … ") + number(high, decimals) + behind;
    if (std::isfinite(high))
        return QStringLiteral("≤ ") + number(high, decimals) + behind;
    return std::isfinite(low) ? QStringLiteral("≥ ") + number(low, decimals) + behind : dash();
}

QString Report::eventName(qint32 type)
{
    if (type >= EventHarmonicFirst && type <= EventHarmonicLast)
        return tr("Harmonic %1").arg(type + 1);
    switch (type) {
    case EventThd:
        return QStringLiteral("THD");
    case EventRms:
        return tr("Voltage");
    case EventFlicker:
        return tr("Flicker");
    case EventDip:
        return tr("Dip");
    case EventSwell:
        return tr("Swell");
    case EventInterruption:
        return tr("Interruption");
    case EventRvc:
        return tr("Rapid voltage change");
    case EventUnbalance:
        return tr("Unbalance");
    case EventFrequency:
        return tr("Frequency");
    case EventInrush:
        return tr("Inrush");
    default:
        return QString::number(type);
    }
}

QString Report::eventValue(const __event_item &item) const
{
    const double value = double(item.value);
    switch (item.type) {
    case EventRms:
    case EventDip:
    case EventSwell:
    case EventInterruption:
    case EventRvc:
        return number(value, 1) + QStringLiteral(" V");
    case EventInrush:
        return number(value, 1) + QStringLiteral(" A");
    case EventFrequency:
        return number(value, 3) + QStringLiteral(" Hz");
    case EventFlicker:
        return number(value, 2);
    default:
        return percent(value, 2);
    }
}

QString Report::outcome(Outcome outcome)
{
    switch (outcome) {
    case Outcome::Pass:
        return tr("pass");
    case Outcome::Fail:
        return tr("fail");
    case Outcome::NotJudged:
        return tr("not judged");
    case Outcome::NotApplied:
        break;
    }
    return tr("no limit");
}

QString Report::reason(NotJudgedBecause why)
{
    switch (why) {
    case NotJudgedBecause::IntervalTooLong:
        return tr("its intervals are longer than ten minutes");
    case NotJudgedBecause::NotTheInterval:
        return tr("its intervals are longer than three seconds");
    case NotJudgedBecause::NoNominal:
        return tr("its nominal value is not known");
    case NotJudgedBecause::NoValue:
        return tr("each of its intervals is incomplete or has an interruption");
    case NotJudgedBecause::NotRecorded:
        break;
    }
    return tr("it was not recorded");
}

QString Report::kindName(RecordKind kind)
{
    switch (kind) {
    case RecordKind::Monitor:
        return tr("Monitor");
    case RecordKind::Waveform:
        return tr("Waveform capture");
    case RecordKind::Page:
        return tr("Saved page");
    case RecordKind::Log:
        return tr("Logger");
    case RecordKind::Recording:
        break;
    }
    return tr("Recording");
}
