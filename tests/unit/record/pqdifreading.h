#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

#include <vector>

/// A reader of PQDIF files for tests, made from the layout tables of the standard apart from the writer and strict
/// where known readers are: the first thing that it stumbles over is the fault of the file.
namespace PqdifReading {

struct Element
{
    QByteArray tag; // "tagPhaseID"; its identifier where it has no name
    int kind = 0; // 1 collection, 2 scalar, 3 vector
    int type = 0; // physical type
    QVector<double> numbers; // of numeric types
    QByteArray text; // CHAR1, without the closing NUL
    QByteArray id; // GUID: its name, "ID_QT_VALUELOG"
    quint32 day = 0; // TIMESTAMP
    double second = 0;
    std::vector<Element> children;

    /// The first child of this tag; an empty element where there is none.
    const Element &operator[](const char *name) const;
    bool has(const char *name) const { return (*this)[name].kind != 0; }
    double number() const { return numbers.value(0, -1); }
    /// us since 1970 of a time stamp.
    qint64 time() const;
};

struct Record
{
    QByteArray type; // "tagContainer"
    qint64 offset = 0;
    qint64 stored = 0; // bytes of the body in the file
    Element root;
};

struct File
{
    QString fault; // empty: every byte is as it should be
    std::vector<Record> records;

    std::vector<const Element *> observations() const;
    const Element &dataSource() const;
    /// Definition of the channel with this name, and its index; an empty element and -1.
    const Element &definition(const QByteArray &channel) const;
    int definitionIndex(const QByteArray &channel) const;
};

File read(const QByteArray &bytes);

/// A channel's instance of an observation, as values: what is shared and scaled is resolved.
struct Channel
{
    int definition = -1;
    int group = -1; // order of a harmonic
    QVector<QVector<double>> series; // in the order of the definition
};
QVector<Channel> channels(const File &file, const Element &observation, QString *fault);

} // namespace PqdifReading
