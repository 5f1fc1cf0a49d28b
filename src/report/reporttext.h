#pragma once

#include "report/judgement.h"

#include <QCoreApplication>
#include <QLocale>
#include <QString>
#include <QTimeZone>

/// The words and numbers of a report, in the language that is installed as the program's. Symbols of quantities and
/// units are the same in all of them.
class Report
{
    Q_DECLARE_TR_FUNCTIONS(Report)

public:
    /// \a fileWord: of the language, as in "lang_<word>.qm"; empty for English.
    explicit Report(const QString &fileWord, const QTimeZone &zone = QTimeZone::utc());

    const QLocale &locale() const { return m_locale; }
    /// "de", as an HTML page says its language.
    QString languageTag() const;
    /// Stands where there is nothing.
    static QString dash() { return QStringLiteral("–"); }
    /// Rounded to \a decimals; a dash for what is no number.
    QString number(double value, int decimals) const;
    QString percent(double value, int decimals = 1) const;
    /// A share that a limit asks for: "95 %", "99.5 %".
    QString share(double value) const;
    /// The share that keeps to it, rounded down: what fails by a little does not look as if it held.
    QString shareWithin(double value) const;
    /// "2026-11-22 12:00:00"; a dash for none.
    QString time(qint64 ms) const;
    /// " UTC" where times are that; nothing where they are those of the user.
    QString zoneMark() const;
    /// "7 d 00:02:48", "0:10:00", "0.08 s".
    QString duration(qint64 ms) const;
    /// A value in its unit, with the decimals that its quantity deserves.
    QString value(const QuantityKey &key, double value) const;
    static QString unitOf(Quantity quantity);

    /// "Voltage L1", "Harmonic 5, L2".
    QString nameOf(const QuantityKey &key, const Judgement &judgement) const;
    QString nameOf(Quantity quantity, const Judgement &judgement) const;
    static QString phaseName(int phase, const Judgement &judgement);
    /// "207.0 … 253.0 V", "≤ 8.00 %"; a dash without bounds.
    QString range(const QuantityKey &key, double low, double high) const;
    static QString eventName(qint32 type);
    /// The extreme value of an event in the unit of its kind.
    QString eventValue(const __event_item &item) const;
    static QString outcome(Outcome outcome);
    static QString reason(NotJudgedBecause why);
    static QString kindName(RecordKind kind);

private:
    QLocale m_locale;
    QTimeZone m_zone;
};
