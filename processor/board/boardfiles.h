#pragma once

#include <QString>
#include <QStringList>
#include <QtGlobal>

#include <optional>

namespace board {

/// Two-bit range selectors of the analog front end, as they stand on its lines.
struct RangeSelectors
{
    int phaseVoltage = 0; // 0 to 3
    int neutralVoltage = 0;
    int phaseCurrent = 0;
    int neutralCurrent = 0;

    bool operator==(const RangeSelectors &other) const
    {
        return phaseVoltage == other.phaseVoltage && neutralVoltage == other.neutralVoltage
            && phaseCurrent == other.phaseCurrent && neutralCurrent == other.neutralCurrent;
    }
    bool operator!=(const RangeSelectors &other) const { return !(*this == other); }
};

enum class Charger { Off, Charging, Full };

/// The board around the processor, as files under the root: lines, battery gauge, network cable.
///
/// Files that are missing are made; what stands there already is used as it is, and only what a command changes is
/// written. Writing goes aside and is renamed, so that a reader never sees half a value.
class BoardFiles
{
public:
    explicit BoardFiles(const QString &root);

    /// Makes the folders and files that are missing; false and one line in \a error when the root cannot be written.
    bool prepare(QString *error);

    QString path(const QString &boardPath) const { return m_root + boardPath; }

    /// The selectors as they stand; one with a line that cannot be read keeps its value of \a last. Writers empty a
    /// file before they fill it, so a look may find nothing.
    RangeSelectors ranges(const RangeSelectors &last) const;
    /// Value of a line: 0 or 1, nothing when its file is missing or holds neither.
    std::optional<int> line(int gpio) const;

    /// The wiring that the instrument is set to, 1 to 10, from its settings; 0 when they hold none. Whoever connects
    /// the instrument looks there too.
    int wiring() const;

    bool setBattery(double volts);
    bool setCharger(Charger charger);
    bool setNetwork(bool up);

    /// Reading of the 12-bit gauge for \a volts, held within 0 to 4095.
    static int gaugeReading(double volts);

private:
    bool makeFile(const QString &boardPath, const QString &text, QString *error);
    bool write(const QString &boardPath, const QString &text) const;

    QString m_root; // without a slash at the end
};

} // namespace board
