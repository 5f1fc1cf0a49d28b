#include "cardcalls.h"

#include <QHash>

#include <random>

namespace {

using CardCalls::Call;

constexpr int kSector = 512; // bytes that a card writes whole

bool isOfNames(const Call &call)
{
    return call.kind == Call::Create || call.kind == Call::Rename || call.kind == Call::Remove;
}

/// How many calls reached the card for certain, by their file; -1: the card as a whole.
QHash<int, int> syncedUpTo(const QList<Call> &calls, int count)
{
    QHash<int, int> synced;
    int all = 0;
    for (int i = 0; i < count; ++i) {
        if (calls[i].kind == Call::Sync)
            synced[calls[i].file] = i;
        else if (calls[i].kind == Call::SyncAll)
            all = i;
    }
    for (int &up : synced)
        up = qMax(up, all);
    synced[-1] = all;
    return synced;
}

void put(QByteArray *content, qint64 at, const QByteArray &bytes)
{
    if (content->size() < at)
        content->append(QByteArray(int(at) - content->size(), '\0')); // a hole
    content->replace(int(at), bytes.size(), bytes);
}

/// What a card that stops in the middle of a write keeps: the sectors up to there.
QByteArray torn(const Call &call, unsigned random)
{
    const int first = kSector - int(call.at % kSector);
    const int sectors = call.bytes.size() > first ? 1 + (call.bytes.size() - first) / kSector : 0;
    const int kept = sectors > 0 ? int(random % unsigned(sectors + 1)) : 0;
    return kept > 0 ? call.bytes.left(first + (kept - 1) * kSector) : QByteArray();
}

void applyToContent(const Call &call, QHash<int, QByteArray> *contents)
{
    QByteArray &content = (*contents)[call.file];
    if (call.kind == Call::Write)
        put(&content, call.at, call.bytes);
    else if (call.kind == Call::Resize)
        content.resize(int(call.at));
}

void applyToNames(const Call &call, QMap<QByteArray, int> *names)
{
    if (call.kind == Call::Create)
        names->insert(call.name, call.file);
    else if (call.kind == Call::Rename && names->contains(call.name))
        names->insert(call.to, names->take(call.name));
    else if (call.kind == Call::Remove)
        names->remove(call.name);
}

} // namespace

QMap<QByteArray, QByteArray> CardCalls::afterCut(const QList<Call> &calls, int count, unsigned seed)
{
    const QHash<int, int> synced = syncedUpTo(calls, count);
    const int all = synced.value(-1);
    std::minstd_rand random(seed + 1);
    // Seed 0 keeps nothing that was not synced, 1 everything, the others some of it.
    const auto chance = [seed, &random] { return seed < 2 ? seed : unsigned(random() >> 4) % 3; };
    const int names = seed == 0 ? all : seed == 1 ? count : all + int(random() % unsigned(count - all + 1));
    QHash<int, QByteArray> contents;
    QMap<QByteArray, int> files;
    for (int i = 0; i < count; ++i) {
        if (isOfNames(calls[i])) {
            if (i < names || i < all)
                applyToNames(calls[i], &files);
            continue;
        }
        if (i < synced.value(calls[i].file, all)) {
            applyToContent(calls[i], &contents);
            continue;
        }
        const unsigned fate = chance();
        Call part = calls[i];
        if (fate == 2 && part.kind == Call::Write)
            part.bytes = torn(part, unsigned(random()));
        if (fate > 0 && (part.kind != Call::Write || !part.bytes.isEmpty()))
            applyToContent(part, &contents);
    }
    QMap<QByteArray, QByteArray> left;
    for (auto file = files.cbegin(); file != files.cend(); ++file)
        left.insert(file.key(), contents.value(file.value()));
    return left;
}
