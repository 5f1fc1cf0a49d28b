#pragma once

#include "storage/filecopy.h"

#include <QString>
#include <QVector>

#include <memory>

/// Copies what a recording or a saved file is: one file, or a folder with all files in it, a piece at a time
/// (FileCopy). A folder, and what replaces one, is written aside, as its name with ".part" added, and takes its name
/// when it is whole; what stood under that name goes only then. What ends early leaves nothing. Links and what else is
/// no file stay out. Paths are the board's. Lives on one thread, whichever it is.
class ItemCopy
{
public:
    ItemCopy(const QString &source, const QString &target);
    ~ItemCopy(); // a copy that is not Done is taken away
    ItemCopy(const ItemCopy &) = delete;
    ItemCopy &operator=(const ItemCopy &) = delete;

    FileCopy::State copyPiece();
    void cancel(const QString &reason);

    qint64 size() const { return m_size; } // bytes, as they were at the beginning
    qint64 copied() const;
    QString error() const { return m_error; } // empty unless Failed
    bool isOutOfRoom() const { return m_outOfRoom; }

private:
    struct Part
    {
        QString name; // within the folder; empty: the item itself is the file
        bool isFolder;
    };

    void survey();
    bool begin();
    bool beginPart(const Part &part);
    FileCopy::State finish();
    FileCopy::State fail(int error);

    const QString m_source, m_target; // real paths
    bool m_isFolder = false;
    bool m_begun = false;
    bool m_aside = false; // written beside the target, which it replaces at the end
    QVector<Part> m_parts; // folders before what is in them
    int m_next = 0;
    std::unique_ptr<FileCopy> m_file; // on its way
    qint64 m_size = 0;
    qint64 m_done = 0; // bytes of the files that are through
    FileCopy::State m_state = FileCopy::Running;
    QString m_error;
    bool m_outOfRoom = false;
};
