"""Tables and slopes of what the soak sampled."""
QUIET_FROM = 2  # samples of a spell behind which it counts: what the spell before left has settled


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
