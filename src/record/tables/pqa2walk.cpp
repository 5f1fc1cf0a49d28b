#include "record/tables/pqa2walk.h"

#include "record/tables/inputfile.h"

Pqa2Walk::Pqa2Walk(const QString &path, bool skipsDamage) : m_skipsDamage(skipsDamage)
{
    m_openError = openInput(&m_file, path, QIODevice::Unbuffered); // the reader has its window
    m_reader = std::make_unique<Pqa2Reader>(&m_file);
}

bool Pqa2Walk::next(Pqa2Block *block)
{
    do {
        if (m_reader->next(block))
            return true;
    } while (m_skipsDamage && m_reader->skipDamage());
    return false;
}

RecordState Pqa2Walk::state() const
{
    static_assert(int(Pqa2Reader::Unreadable) == int(RecordState::Unreadable), "the same states");
    return RecordState(m_reader->state());
}

QString Pqa2Walk::reason() const
{
    return m_openError.isEmpty() ? QString::fromLatin1(m_reader->reason()) : m_openError;
}
