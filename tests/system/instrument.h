#pragma once

#include "desk/deskinstrument.h"
#include "testpaths.h"

#include <QImage>
#include <QTest>

/// What the system tests share: an instrument with its stand-in under a fresh root, and how its pictures are compared.
namespace SystemTest {

/// An instrument on a desk with the executables of this build.
class Instrument : public DeskInstrument
{
public:
    Instrument() : DeskInstrument(QStringLiteral(QUVERA_BIN_DIR)) { }
};

constexpr char kSettingFile[] = "/mnt/userfs/sys/setting.conf";
constexpr char kUserFile[] = "/mnt/userfs/config/user.conf";

/// The title of the page in the title bar. The rest of the bar, status and clock, changes by itself.
inline QImage title(const QImage &screen)
{
    return screen.copy(0, 0, 200, 32);
}

/// The pages below the title bar.
inline QImage page(const QImage &screen)
{
    return screen.copy(0, 32, 640, 448);
}

/// How many pixels of a picture are brighter than a dark background: something is written or drawn there.
inline int brightPixels(const QImage &picture)
{
    int count = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            count += qGray(picture.pixel(x, y)) > 128;
    }
    return count;
}

} // namespace SystemTest

// Starting and looking tell in words why they failed.
#define VERIFY_DESK(condition, desk) QVERIFY2(condition, qPrintable((desk).error()))
