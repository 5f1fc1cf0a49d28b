#pragma once

#include <QMap>
#include <QString>
#include <QtGlobal>

namespace board {

/// USB disks as folders under run/media of the root.
///
/// A disk that is pulled keeps its content in a drawer (run/usb) and brings it back when it is put in again. It comes
/// and goes by one rename, so it vanishes at once, also while it is being listed. A size, when given, stands in the
/// file
/// ".capacity" of the disk as bytes; a plain folder cannot stop a writer there, so the status line tells what is over.
class UsbDisks
{
public:
    explicit UsbDisks(const QString &root);

    /// \a capacity in bytes, 0: no limit given. Empty on success, otherwise why not.
    QString insert(const QString &name, qint64 capacity);
    QString pull(const QString &name);

    QStringList inserted() const;
    /// Names of the disks that hold more than their size.
    QStringList overfull() const;

    /// Reads "64k", "16M", "2G" or plain bytes; -1 for anything else.
    static qint64 sizeFromText(const QString &text);

private:
    static bool isName(const QString &name);

    QString m_media;
    QString m_drawer;
};

} // namespace board
