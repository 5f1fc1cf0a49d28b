#pragma once

#include <QMap>
#include <QString>

/// What can be read on the screen besides its dots, for those who cannot see a picture of it and for help beside it:
/// "Page", the class of the page in front; "Part", that of its sub page, if it has such; "Title", what the title bar
/// calls it; "Dialog", the texts of an open dialog; "Texts", the texts of what is in front, a row of the screen a line;
/// "Selected", those of them that the arrows stand on, with " [x]" or " [ ]" behind what has a check mark; "Keys", the
/// captions of the soft keys. Empty without a window. GUI thread.
namespace ScreenNotes {

constexpr int kLongest = 4000; // signs of one note

QMap<QString, QString> take();

} // namespace ScreenNotes
