#pragma once

#include "unit/widgets/dialogdriver.h"
#include "widgets/controls/keygrid.h"
#include "widgets/dialogs/message.h"
#include "widgets/dialogs/virtualkeyboard.h"

// What a user does with the dialogs that the editors open.

namespace Typing {

/// Clears the keyboard on the screen and types a text of its signs.
inline void type(QDialog *dialog, const QString &text)
{
    auto *keys = dynamic_cast<KeyGrid *>(dialog->findChild<QWidget *>(QStringLiteral("keys")));
    QVERIFY2(keys && qobject_cast<VirtualKeyBoard *>(dialog), "no keyboard");
    QTest::keyClick(dialog, 'Y');
    for (const QChar sign : text) {
        if (sign == QLatin1Char(' ')) {
            QTest::keyClick(dialog, 'P');
            continue;
        }
        if (sign.isLetter() && sign.isUpper() != keys->isUpperCase())
            QTest::keyClick(dialog, 'W');
        QVERIFY2(keys->setCurrentChar(sign), "no such key");
        QTest::keyClick(dialog, 'K');
    }
}

/// Types a text and takes it.
inline DialogDriver::Step typed(const QString &text)
{
    return [text](QDialog *dialog) {
        type(dialog, text);
        QTest::keyClick(dialog, 'F');
    };
}

/// Types a text and goes away with Cancel.
inline DialogDriver::Step droppedAfter(const QString &text)
{
    return [text](QDialog *dialog) {
        type(dialog, text);
        QTest::keyClick(dialog, 'L');
    };
}

/// Expects a message of this text and answers it with the key of a letter: "L" is F5, "F" is F4.
inline DialogDriver::Step answered(const QString &text, char letter = 'L')
{
    return [text, letter](QDialog *dialog) {
        QVERIFY2(qobject_cast<Message *>(dialog), "no message");
        QCOMPARE(labelText(dialog, "message"), text);
        QTest::keyClick(dialog, letter);
    };
}

} // namespace Typing
