// Blocks of 216 bytes (the r.m.s. group with its time) into a recorded file, beside the same sequence of system calls
// by hand (room, head, payload, seek, link, seek) and beside one-row transactions of SQLite in WAL mode.
#include "bench/ratios.h"
#include "platform/target.h"
#include "record/pqa2ff.h"

#include <QDir>
#include <QFile>

#include <fcntl.h>
#include <sqlite3.h>
#include <sys/vfs.h>
#include <unistd.h>

namespace {

constexpr int kPayload = 216; // bytes
constexpr int kBlocks = 20'000; // of one measurement
const char payload[kPayload] = { 1, 2, 3 };

QByteArray storage(const char *name)
{
    return QFile::encodeName(Target::path(QStringLiteral("/mnt/storage/") + QLatin1String(name)));
}

void pqa2Block(benchmark::State &state)
{
    Pqa2FF file("/mnt/storage/bench.pqa2");
    if (!file.open())
        return state.SkipWithError("no file");
    for (auto _ : state)
        file.addDataBlock(Pqa2DBType(0xA1000020), payload, kPayload);
    file.close();
    QFile::remove(Target::path(QStringLiteral("/mnt/storage/bench.pqa2")));
}

void byHand(benchmark::State &state)
{
    const QByteArray name = storage("hand.bin");
    const QByteArray folder = storage("");
    const int fd = ::open(name.constData(), O_RDWR | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    off_t end = 0;
    off_t before = 0;
    bool whole = fd >= 0;
    for (auto _ : state) {
        struct statfs room;
        whole = whole && ::statfs(folder.constData(), &room) == 0;
        const Pqa2BlockHead head = { kPqa2LastBlock, 0xA1000020, kPayload };
        whole = whole && ::write(fd, &head, sizeof head) == ssize_t(sizeof head);
        whole = whole && ::write(fd, payload, kPayload) == kPayload;
        const quint32 link = quint32(end);
        whole = whole && ::lseek(fd, before, SEEK_SET) == before && ::write(fd, &link, 4) == 4;
        before = end;
        end += off_t(sizeof head) + kPayload;
        whole = whole && ::lseek(fd, end, SEEK_SET) == end;
    }
    if (!whole)
        state.SkipWithError("write failed");
    ::close(fd);
    ::unlink(name.constData());
}

void sqliteWal(benchmark::State &state)
{
    const QByteArray name = storage("bench.sqlite");
    for (const char *suffix : { "", "-wal", "-shm" })
        ::unlink((name + suffix).constData());
    sqlite3 *base = nullptr;
    sqlite3_stmt *insert = nullptr;
    bool ready = sqlite3_open(name.constData(), &base) == SQLITE_OK
        && sqlite3_exec(base, "pragma journal_mode=wal; pragma synchronous=normal; create table block(type, data)",
                        nullptr, nullptr, nullptr)
            == SQLITE_OK
        && sqlite3_prepare_v2(base, "insert into block values(?, ?)", -1, &insert, nullptr) == SQLITE_OK;
    if (!ready)
        state.SkipWithError("no database");
    for (auto _ : state) {
        if (!ready)
            continue;
        sqlite3_bind_int64(insert, 1, 0xA1000020);
        sqlite3_bind_blob(insert, 2, payload, kPayload, SQLITE_STATIC);
        ready = sqlite3_step(insert) == SQLITE_DONE;
        sqlite3_reset(insert);
    }
    sqlite3_finalize(insert);
    sqlite3_close(base);
    for (const char *suffix : { "", "-wal", "-shm" })
        ::unlink((name + suffix).constData());
}

BENCHMARK(pqa2Block)->Iterations(kBlocks);
BENCHMARK(byHand)->Iterations(kBlocks);
BENCHMARK(sqliteWal)->Iterations(kBlocks);

} // namespace

int main(int argc, char **argv)
{
    if (Target::root().isEmpty()) {
        std::fprintf(stderr, "writes to the storage: run it under tests/with-root\n");
        return 2;
    }
    QDir().mkpath(QFile::decodeName(storage("")));
    return Ratios::run(argc, argv, Ratios::RealTime,
                       { { "PQA2 block / same calls by hand", "pqa2Block", "byHand", 1.0 },
                         { "PQA2 block / SQLite WAL row", "pqa2Block", "sqliteWal", 0.4 } });
}
