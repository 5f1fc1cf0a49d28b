#pragma once

#include <QByteArray>
#include <QString>

/// Copies one file a piece at a time, for a caller that has other things to do in between. Each piece is on its way to
/// the disk before the next is read, so that no long wait stands at the end and a pulled disk is noticed where it
/// happens. The copy is written aside, as the target's name with ".part" added, and takes the target's name in one step
/// when it is whole: until then an old target is as it was, and what ends early leaves nothing. Paths are the board's.
/// Lives on one thread, whichever it is.
class FileCopy
{
public:
    static constexpr qint64 kPiece = 256 * 1024; // bytes

    enum State { Running, Done, Failed };

    FileCopy(const QString &source, const QString &target);
    virtual ~FileCopy(); // a copy that is not Done is taken away
    FileCopy(const FileCopy &) = delete;
    FileCopy &operator=(const FileCopy &) = delete;

    /// Copies the next piece; the last call of a good copy answers Done. After Done and Failed nothing more happens.
    State copyPiece();
    /// Ends the copy: Failed, with nothing left of it.
    void cancel(const QString &reason);

    double progress() const; // 0 to 1
    qint64 copied() const { return m_copied; } // bytes
    QString error() const { return m_error; } // empty unless Failed
    int errorNumber() const { return m_errorNumber; } // of errno; 0 unless the system refused

protected:
    /// Sends a range of the copy to the disk and waits for it. False with errno set.
    virtual bool flush(int fd, qint64 offset, qint64 length);

private:
    bool open();
    bool copyBytes();
    bool finish();
    State fail();

    QByteArray m_source, m_target, m_part; // real paths
    int m_in = -1;
    int m_out = -1;
    bool m_made = false; // the copy stands beside the target
    qint64 m_size = 0; // of the source when it was opened
    qint64 m_copied = 0;
    State m_state = Running;
    QString m_error;
    int m_errorNumber = 0;
};
