#pragma once

#include <QByteArray>
#include <QString>

struct Derived;
struct ScaleTable;

// What the opening blocks of a PQA2 file tell of the instrument. Main thread.

/// What the instrument is called, and the processor's version text.
struct InstrumentLabels
{
    QString model, serialNumber, dspVersion;
};

QString getInstrumentInfo(const InstrumentLabels &labels); // lines of text
QString getSystemSetting(const Derived &setUp); // lines of text
/// 48 bytes: floats that turn 16-bit samples into V, A and W, four channels each.
QByteArray getChannelFactor(const ScaleTable &scales);

/// Firmware out of the processor's version text; "None" when there is none.
QString firmwareOf(const QString &dspVersion);
