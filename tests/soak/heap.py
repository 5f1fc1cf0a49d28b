#!/usr/bin/env python3
"""What the heap of a process holds, chunk by chunk: tests/soak/heap.py PID. For the allocator of glibc on 64 bits.

Tells memory that is in use from what was given back to the allocator but not to the system.
"""
import collections
import re
import struct
import sys


def chunks(heap):
    """Size of each chunk, and whether it is in use."""
    at = 0
    while at + 16 < len(heap):
        size = struct.unpack_from("<Q", heap, at + 8)[0] & ~7
        if size < 16 or at + size > len(heap):
            return
        behind = at + size + 8
        yield size, behind + 8 <= len(heap) and struct.unpack_from("<Q", heap, behind)[0] & 1
        at += size


def main():
    pid = sys.argv[1]
    with open("/proc/%s/maps" % pid) as maps:
        span = re.search(r"^([0-9a-f]+)-([0-9a-f]+) .*\[heap\]", maps.read(), re.M)
    first, end = (int(edge, 16) for edge in span.groups())
    with open("/proc/%s/mem" % pid, "rb") as memory:
        memory.seek(first)
        heap = memory.read(end - first)
    used, free = collections.Counter(), 0
    for size, is_used in chunks(heap):
        if is_used:
            used[size] += 1
        else:
            free += size
    curves = sum(size * count for size, count in used.items() if 3500 <= size <= 5000)
    print("in use %.1f MB, of it in pieces as long as a curve of an event (3500 to 5000 bytes) %.1f MB in %d pieces; free %.1f MB"
          % (sum(size * count for size, count in used.items()) / 1e6, curves / 1e6,
             sum(count for size, count in used.items() if 3500 <= size <= 5000), free / 1e6))
    for size, count in sorted(used.items(), key=lambda pair: -pair[0] * pair[1])[:10]:
        print("%10d bytes in %6d pieces of %d" % (size * count, count, size))


if __name__ == "__main__":
    main()
