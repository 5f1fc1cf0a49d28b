#pragma once

#include <QString>

/// The folder that stands for "/" on a desk: the folders of the board's image, files in place of the kernel's
/// attributes, and stand-ins for commands that must never act on the host. A root that someone prepared is used as it
/// stands: what exists is never touched, only what is missing is made.
class DeskRoot
{
public:
    /// Prepares the root of this process once (the first use of Target does it too) and answers whether it can be used.
    /// On a failure `*error` gets one line for the user. On the board there is nothing to do, and the answer is true.
    static bool prepare(QString *error = nullptr);

    /// Prepares `root` (absolute, no slash at its end). Answers an empty text, or one line that says what is wrong.
    /// The language files are those of the folder `languages`.
    static QString build(const QString &root, const QString &languages = builtLanguages());

private:
    static QString builtLanguages();
};
