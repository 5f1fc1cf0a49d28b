#pragma once

#include <QByteArray>

#include <initializer_list>

/// The arrows left and right that were pressed one behind the other: sequences of eight open what is for the service.
class ServiceKeys
{
public:
    /// An arrow joins the others; any other key ends the row.
    void press(int key);
    void clear() { m_pressed.clear(); }
    /// Whether the last ones were these, of 'L' and 'R'. They are given letter by letter, so that the program's text
    /// does not hold the sequence.
    bool were(std::initializer_list<char> letters) const;

private:
    QByteArray m_pressed; // at most eight
};
