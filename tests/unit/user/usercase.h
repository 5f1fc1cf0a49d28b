#pragma once

#include "platform/target.h"
#include "unit/views/pagetest.h"
#include "unit/widgets/dialogdriver.h"
#include "user/userpage.h"
#include "widgets/controls/keygrid.h"

#include <QFile>

// What the tests of the user pages share.

namespace UserCase {

using namespace PageTest;

const QString kUserFile = QStringLiteral("/mnt/userfs/config/user.conf");
const QString kNetFile = QStringLiteral("/mnt/userfs/config/eth0.conf");

/// Presses keys on whichever page is on top, one after the other.
inline void press(UserPage &user, std::initializer_list<FrontKey> keys)
{
    for (const FrontKey key : keys)
        QTest::keyClick(user.currentPage(), Qt::Key(key));
}

/// Class of the page on top.
inline QString onTop(const UserPage &user)
{
    return QString::fromLatin1(user.currentPage()->metaObject()->className());
}

inline QByteArray content(const QString &path)
{
    QFile file(Target::path(path));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no such file");
}

inline void writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(Target::path(path));
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    QCOMPARE(file.write(bytes), qint64(bytes.size()));
}

inline void removeFile(const QString &path)
{
    QFile::remove(Target::path(path));
    QFile::remove(Target::path(path) + QLatin1String(".bak"));
}

/// What was asked of the board's commands since it was last asked, one line each.
inline QStringList commands()
{
    const QString path = QStringLiteral("/var/log/commands");
    if (!QFile::exists(Target::path(path)))
        return {};
    const QStringList lines = QString::fromUtf8(content(path)).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    QFile::remove(Target::path(path));
    return lines;
}

/// On the keyboard of the screen: clears the text, types another one, and ends with a soft key.
inline DialogDriver::Step type(const QString &text, char end = 'F')
{
    return [text, end](QDialog *keyboard) {
        auto *grid = PageTest::named<KeyGrid>(keyboard, "keys");
        QVERIFY(grid);
        QTest::keyClick(keyboard, 'Y');
        for (const QChar sign : text) {
            if (sign.isLetter() && sign.isUpper() != grid->isUpperCase())
                QTest::keyClick(keyboard, 'W');
            QVERIFY2(grid->setCurrentChar(sign), qPrintable(QString(sign)));
            QTest::keyClick(keyboard, 'K');
        }
        QTest::keyClick(keyboard, end);
        if (keyboard->isVisible())
            keyboard->close(); // it was refused
    };
}

} // namespace UserCase
