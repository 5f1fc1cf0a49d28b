#pragma once

#include <QString>

/// One current sensor, a node of the catalogue's list.
class Clamp
{
public:
    Clamp() = default;
    Clamp(const QString &name, int range, int ratio, bool flexible, bool editable, const QString &description);

    QString name() const { return m_name; }
    int range() const { return m_range; } // A, full scale
    int ratio() const { return m_ratio; } // uV/A: 10000 is 10 mV/A
    bool flexible() const { return m_flexible; } // a Rogowski coil
    bool editable() const { return m_editable; } // a user's clamp; only these are stored
    QString description() const { return m_description; }

    void setName(const QString &name) { m_name = name; }
    void setRange(int amps) { m_range = amps; }
    void setRatio(int microvoltsPerAmp) { m_ratio = microvoltsPerAmp; }
    void setFlexible(bool flexible) { m_flexible = flexible; }
    void setEditable(bool editable) { m_editable = editable; }
    void setDescription(const QString &text) { m_description = text; }

    /// Takes name, range, ratio, flexible and description of `other`; the place in the list stays.
    void editClamp(const Clamp &other);
    void editClamp(const Clamp *other);

    Clamp *prevNode = nullptr;
    Clamp *nextNode = nullptr;

private:
    QString m_name;
    int m_range = 10;
    int m_ratio = 1000;
    bool m_flexible = false;
    bool m_editable = false;
    QString m_description = QStringLiteral("default");
};
