// Heads and tables of update packages, as they are read behind a good signature: what is taken stays below its folder,
// fits its bounds, and reads back to the same bytes.
#include "fuzz/fuzztarget.h"

#include "format.h"

#include <set>

using FuzzTarget::expect;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const std::string bytes(reinterpret_cast<const char *>(data), size);
    update::Head head;
    if (!update::readHead(bytes.substr(0, update::kHeadBytes), &head).empty())
        return 0;
    expect(head.packageBytes() <= update::kMostSoftwareBytes + update::kMostTableBytes + 104);
    std::vector<update::Entry> entries;
    const std::string table = bytes.substr(update::kHeadBytes, head.tableBytes);
    if (!update::readTable(head, table, &entries).empty())
        return 0;
    expect(entries.size() == head.files && head.files <= update::kMostFiles);
    std::uint64_t total = 0;
    std::set<std::string> names;
    for (const update::Entry &entry : entries) {
        expect(!entry.name.empty() && entry.name.size() <= update::kMostNameBytes && entry.name[0] != '/');
        expect(entry.name.find('\0') == std::string::npos);
        expect(('/' + entry.name + '/').find("/../") == std::string::npos);
        expect(('/' + entry.name + '/').find("//") == std::string::npos);
        expect(names.insert(entry.name).second);
        total += entry.size;
    }
    expect(total == head.payloadBytes);
    expect(update::compose(head, entries) == bytes.substr(0, update::kHeadBytes + head.tableBytes));
    return 0;
}
