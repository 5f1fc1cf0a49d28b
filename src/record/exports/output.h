#pragma once

#include <QString>

/// Where an export goes, and what it reads.
struct OutputPlace
{
    QString target; // as the user named it
    QString input; // the file or folder that is read: nothing is ever written into it
    bool force = false; // an earlier export of that name is replaced

    /// The name that the input has in its folder, also where the user named it "." or with a slash at its end.
    QString inputName() const;
};

/// A file or a folder that is there whole or not at all. It grows under a hidden name beside its target and takes the
/// target's name at the end; without finish() nothing of it stays, so it has to be destroyed on every way out, an
/// interruption by the user too. What the target's name stands for already is never lost to a failed export. What no
/// export can have made, and above all what an instrument recorded, is not replaced, whatever the user said.
class Output
{
public:
    enum Kind : quint8 { File, Folder };
    /// Whether an export of this kind writes files of that name into its folder ("rms.csv", "waveforms/0001.csv").
    using Writes = bool (*)(const QString &name);

    /// \a writes is asked for folders alone; without it no folder is replaced. \a mark: the file by which a folder is
    /// known whose recordings were written here.
    Output(Kind kind, OutputPlace place, Writes writes = nullptr, const QString &mark = {});
    ~Output();
    Output(const Output &) = delete;
    Output &operator=(const Output &) = delete;

    /// Checks the target and makes the empty file or folder that is to be filled.
    bool begin();
    /// The one to be filled; while there is none, empty.
    QString path() const { return m_path; }
    /// A folder in the folder that is to be filled.
    bool makeFolder(const QString &name);
    /// Everything is written and closed: puts it in place, once the disk has taken all of it.
    bool finish();

    /// Keeps what went wrong in the output; \a name is that of a file in the folder, or empty. Answers false.
    bool fail(const QString &name, const QString &reason);
    /// The first thing that went wrong, with the name that the user knows.
    QString error() const { return m_error; }
    /// Whether that is the user's choice of a target, and no trouble of the disk.
    bool isRefused() const { return m_isRefused; }

private:
    bool isFree();
    bool isReplaceable(quint32 mode);
    bool holdsNothingElse();
    bool isOurs(const QString &name, bool isFile);
    bool isApartFromInput();
    bool make();
    bool sync();
    bool putInPlace();
    bool exchangeFolders();
    bool refuse(const QString &reason);
    bool failBySystem();

    const Kind m_kind;
    const OutputPlace m_place;
    const QString m_target; // without a slash at its end
    const Writes m_writes;
    const QString m_mark;
    QString m_path;
    QString m_error;
    bool m_isRefused = false;
};
