#pragma once

#include <QString>
#include <QStringList>

#include <memory>

#include "settings/clamp.h"

class QDomDocument;

/// A catalogue of clamps: the nine built-in ones, the user's, and which one is in use. The phases and the neutral
/// channel have one each. Format: docs/formats/clamps.md. GUI thread.
class ClampIF
{
public:
    ClampIF();
    explicit ClampIF(const QString &path);
    ~ClampIF();
    ClampIF(const ClampIF &) = delete;
    ClampIF &operator=(const ClampIF &) = delete;

    /// Starts anew: the built-in clamps, "TARN-41A" in use, then what the file (a board's path) holds.
    void load(const QString &path);
    /// Writes the user's clamps and the name in use. A failure keeps the state in memory. Refused as long as the last
    /// load could not read the file: the clamps in it would be lost.
    bool save(const QString &path) const;

    /// Becomes a copy of another catalogue: what an editor works on until its changes are taken over. What the last
    /// load could not read stays unwritten by both.
    void copyFrom(const ClampIF &other);

    /// Appends a clamp and owns it.
    void addClamp(Clamp *clamp);
    /// Takes a clamp out of the list and deletes it; one that is not in the list is left alone.
    void removeClamp(Clamp *clamp);
    /// The first clamp of that exact name, or null.
    Clamp *findClamp(const QString &name) const;
    /// Makes the clamp of that name current; an unknown name makes the first one current.
    void setCurClamp(const QString &name);
    /// Makes this clamp of the list current: of two of one name the one that is meant.
    void setCurClamp(Clamp *clamp);
    /// The clamp in use; the first one when none was. Null only for an empty list.
    Clamp *getCurClamp() const;

    Clamp *first() const;
    Clamp *last() const;
    int count() const;
    QStringList names() const;
    QString inUsed() const;

private:
    struct Record;
    void clear();
    void loadClamp(const QString &path);
    void takeDocument(const QDomDocument &document);
    std::unique_ptr<Record> m_record;
};
