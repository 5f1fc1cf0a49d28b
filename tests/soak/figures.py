#!/usr/bin/env python3
"""Tables and slopes of what the soak sampled; alone: figures.py SAMPLES.jsonl..."""
import itertools
import json
import sys

# Scenarios in which no event begins.
QUIET = ["nominal", "harmonics", "harmonics-high", "interharmonics", "mains-signalling", "frequency-drift",
         "pst-230v-0110", "pinst-rectangular-230v", "test-state-1"]
SETTLED = 2  # samples of a spell until the events of the one before are complete


def least_squares(points):
    """Slope and its standard error."""
    n = len(points)
    if n < 3:
        return float("nan"), float("nan")
    mean_x, mean_y = sum(x for x, _ in points) / n, sum(y for _, y in points) / n
    square = sum((x - mean_x) ** 2 for x, _ in points)
    if square == 0:
        return float("nan"), float("nan")
    slope = sum((x - mean_x) * (y - mean_y) for x, y in points) / square
    rest = sum((y - mean_y - slope * (x - mean_x)) ** 2 for x, y in points)
    return slope, (rest / (n - 2) / square) ** 0.5


def quiet_slope(rows, kind, what):
    """The slope inside the spells without events, of all of them together; 0 when nothing but events adds."""
    product = square = 0
    for name, spell in itertools.groupby(rows, lambda row: row["spell"]):
        points = [(row["t"] / 3600, row[kind][what]) for row in spell if row[kind] and row["t"] > 3600][SETTLED:]
        if name not in QUIET or len(points) < 3:
            continue
        mean_x, mean_y = (sum(values) / len(points) for values in zip(*points))
        product += sum((x - mean_x) * (y - mean_y) for x, y in points)
        square += sum((x - mean_x) ** 2 for x, _ in points)
    return product / square if square else float("nan")


def table(rows):
    print("   h  at        spell                   rss kB  anon kB  fds  thr  cpu s   files      MB  dropped  late"
          "  asked  keys  frames")
    hour = -1
    for row in rows:
        if int(row["t"] / 3600) == hour and row is not rows[-1]:
            continue
        hour = int(row["t"] / 3600)
        process = row["instrument"] or dict.fromkeys(("rss", "anon", "fds", "fdsMost", "threads", "cpu"), -1)
        print("%5.2f %s %-22s %8d %8d %2d-%2d %4d %6.0f %7d %7.1f %8d %5.1f %6d %5d  %s"
              % (row["t"] / 3600, row["at"], row["spell"], process["rss"], process["anon"], process["fds"],
                 process["fdsMost"], process["threads"], process["cpu"], row["files"], row["bytes"] / 1e6,
                 row["dropped"], row["late"], row["asked"], row["pressed"], row["frames"]))


def slopes(rows):
    for since in (1, 2, 5):
        line = []
        for kind in ("instrument", "processor", "panel"):
            for what in ("anon", "rss", "fds", "threads"):
                points = [(row["t"] / 3600, row[kind][what]) for row in rows
                          if row["t"] > since * 3600 and row.get(kind)]
                if len(points) > 2:
                    line.append("%s %s %+.2f (%.2f)" % (kind, what, *least_squares(points)))
        print("slope an hour after hour %d: %s" % (since, "; ".join(line)))
    print("inside spells without events, kB an hour: anon %+.1f" % quiet_slope(rows, "instrument", "anon"))


if __name__ == "__main__":
    for name in sys.argv[1:]:
        with open(name) as samples:
            read = [json.loads(line) for line in samples]
        print("== " + name)
        table(read)
        slopes(read)
