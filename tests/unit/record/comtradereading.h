#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

/// A reader of COMTRADE pairs for tests, made from the tables of the standard apart from the writer and strict where
/// known readers are: the first thing that it stumbles over is the fault of the pair.
namespace ComtradeReading {

struct Channel
{
    QByteArray id, phase, circuit, unit;
    double a = 0, b = 0, skew = 0, minimum = 0, maximum = 0, primary = 0, secondary = 0;
    char side = 0; // P, S
};

struct Pair
{
    QString fault; // empty: nothing to object to
    QByteArray station, device;
    QVector<Channel> channels;
    double frequency = 0;
    double rate = 0;
    qint64 last = 0; // number of the last sample
    qint64 start = 0, trigger = 0; // us since 1970, as the lines have them
    double timeFactor = 0;
    QByteArray timeCode, localCode, quality, leapSecond;
    QVector<quint32> stamps;
    QVector<QVector<qint16>> raw; // by channel

    double value(int channel, int sample) const
    {
        return channels[channel].a * raw[channel][sample] + channels[channel].b;
    }
};

Pair read(const QByteArray &cfg, const QByteArray &dat);
/// NAME.cfg and NAME.dat of a folder.
Pair readFiles(const QString &name);

} // namespace ComtradeReading
