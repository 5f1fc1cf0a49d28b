#pragma once

#include <QByteArray>
#include <QString>

// What the opening blocks of a PQA2 file tell of the instrument. Main thread.

QString getInstrumentInfo(); // lines of text
QString getSystemSetting(); // lines of text
/// 48 bytes: floats that turn 16-bit samples into V, A and W, four channels each.
QByteArray getChannelFactor();

/// Firmware out of the processor's version text; "None" when there is none.
QString firmwareOf(const QString &dspVersion);
