#pragma once

#include "desk/deskinstrument.h"
#include "gallery/contactsheet.h"
#include "gallery/pages.h"

/// What the gallery is to show.
struct GalleryOptions
{
    QString binDir;
    QString folder; // where the pictures go
    QString scenario; // file for the stand-in; empty: its nominal supply
    QStringList pages; // names; empty: all
    QVector<int> wirings; // JOINMODE 1 to 10
    QVector<int> frequencies; // Hz: 50, 60, 400
    QStringList languages; // key words of LANG; EN is built in
    int settleMs = 1200; // before each picture: two refreshes of the display
    int warmUpMs = 8000; // with live values before the first picture, so that trends have something to show
    int speed = 1; // times faster than the clock
    bool sheet = false;
    std::function<bool()> isStopped = [] { return false; }; // the user wants no more
};

/// Drives an instrument of its own through the pages by remote keys and collects their pictures.
class Gallery
{
public:
    explicit Gallery(const GalleryOptions &options);

    /// Runs every variant and writes pictures, index and sheet. False with error() when the instrument failed or the
    /// user stopped it.
    bool run();
    const QString &error() const { return m_error; }
    int pictureCount() const { return m_pictures.size(); }

private:
    bool runVariant(int wiring, int frequency, const QString &language, bool isFirst);
    bool warmUp(DeskInstrument &desk);
    bool showPage(DeskInstrument &desk, const Page &page, const QString &variant, bool at400Hz, QString *item);
    bool press(DeskInstrument &desk, const QStringList &keys) const;
    bool wait(int ms) const;
    bool take(DeskInstrument &desk, const Page &page, const QString &shot, const QString &variant);

    GalleryOptions m_options;
    QVector<Picture> m_pictures;
    QString m_error;
};
