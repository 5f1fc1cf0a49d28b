#pragma once

#include <QString>

/// A transformer's ratio under the hands of its editor: one of the presets 1:1, 10:1, 100:1, 1000:1 and 10000:1, or a
/// custom one of two typed numbers.
class RatioChoice
{
public:
    /// Values of the custom-ratio selectors of the settings.
    enum Selector { Custom = 0, Preset = 1 };

    RatioChoice() = default;
    /// As the settings hold it. What is no preset is custom, whatever the selector says.
    RatioChoice(int numerator, int denominator, int selector);

    int numerator() const { return m_numerator; }
    int denominator() const { return m_denominator; }
    bool isCustom() const { return m_custom; }
    int selector() const { return m_custom ? Custom : Preset; }

    /// The next preset; behind the last one custom, which begins with 1000:1. It ends there.
    void next();
    /// The preset before; from custom the last one. It ends at 1:1.
    void prev();
    /// Takes a custom ratio. Each number is held to 1 to 99999: nothing over something is no ratio.
    void setCustom(int numerator, int denominator);

    QString numbers() const; // "1000:1"
    /// What the field shows: the numbers of a preset, or "CUSTOM".
    QString text() const;

private:
    int m_numerator = 1;
    int m_denominator = 1;
    bool m_custom = false;
};
