#pragma once

#include <QString>
#include <QVector>

/// A picture of the gallery and where it came from.
struct Picture
{
    QString file; // name in the gallery's folder
    QString page;
    QString shot;
    QString variant; // wiring, frequency, language
};

/// Writes all pictures, reduced, onto one sheet with their names below. False when the file cannot be written.
bool writeContactSheet(const QString &folder, const QVector<Picture> &pictures, const QString &fileName);

/// Writes index.html, one row for each page, one column for each variant.
bool writeIndex(const QString &folder, const QVector<Picture> &pictures);
