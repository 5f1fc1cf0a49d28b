#!/usr/bin/env python3
"""Prints the worst values of each week of a recording, from the tables that quvera-files wrote:

    quvera-files export "240118_161500 Week" --csv week
    python3 worst_of_week.py week

Nothing but Python's standard library is needed. A week is seven days from the first value on. Times are UTC.
"""
import csv
import datetime
import itertools
import os
import re
import sys

# What is looked at: a text, its unit, the columns that may hold it, the best ones first, and which end is the bad one.
# A table is taken when it is there and has such columns; the tables behind it are then left alone.
QUANTITIES = [
    ("voltage, lowest", "V", [("monitor_voltage", r"U_rms_mean_(.+)_V"), ("rms", r"U_rms_min_(L.+)_V"),
                              ("rms", r"U_rms_mean_(L.+)_V"), ("log", r"U_rms_min_(L.+)_V")], min),
    ("voltage, highest", "V", [("monitor_voltage", r"U_rms_mean_(.+)_V"), ("rms", r"U_rms_max_(L.+)_V"),
                               ("rms", r"U_rms_mean_(L.+)_V"), ("log", r"U_rms_max_(L.+)_V")], max),
    ("frequency, lowest", "Hz", [("monitor_frequency", r"f_mean()_Hz"), ("frequency_10s", r"f_mean()_Hz"),
                                 ("frequency", r"f_min()_Hz"), ("log", r"f_min()_Hz")], min),
    ("frequency, highest", "Hz", [("monitor_frequency", r"f_mean()_Hz"), ("frequency_10s", r"f_mean()_Hz"),
                                  ("frequency", r"f_max()_Hz"), ("log", r"f_max()_Hz")], max),
    ("distortion of the voltage", "%", [("monitor_harmonics", r"U_distortion_(.+)_percent"),
                                        ("log", r"U_THD_max_(.+)_percent")], max),
    ("distortion of the voltage", "V", [("harmonics_u", r"U_distortion_max_(.+)_V")], max),
    ("unbalance", "%", [("monitor_unbalance", r"U_negative_ratio()_percent"),
                        ("unbalance", r"U_negative_ratio_max()_percent"),
                        ("log", r"U_negative_ratio_max()_percent")], max),
    ("flicker, short-term", "", [("monitor_flicker_pst", r"Pst_(.+)"), ("flicker_pst", r"Pst_(.+)"),
                                ("log", r"Pst_(.+)")], max),
    ("flicker, long-term", "", [("monitor_flicker_plt", r"Plt_(.+)"), ("flicker_plt", r"Plt_(.+)")], max),
    ("current, highest", "A", [("rms", r"I_rms_max_(.+)_A"), ("rms", r"I_rms_mean_(.+)_A"),
                               ("log", r"I_rms_max_(.+)_A")], max),
    ("active power, highest", "W", [("power", r"P_max_total()_W"), ("log", r"P_max_total()_W")], max),
]

WEEK = datetime.timedelta(days=7)


def time_of(row):
    return datetime.datetime.strptime(row["time_utc"], "%Y-%m-%dT%H:%M:%S.%fZ")


class Weeks:
    """The worst values by week; weeks count from the first value of all tables."""

    def __init__(self, start):
        self.start = start
        self.found = {}  # (week, place among the quantities, channel): (value, time)

    def take(self, place, channel, worse, value, time):
        key = ((time - self.start) // WEEK, place, channel)
        if key not in self.found or worse(value, self.found[key][0]) != self.found[key][0]:
            self.found[key] = (value, time)


def table(folder, name):
    """The rows of a table, one at a time, however large it is; none where there is no such table."""
    path = os.path.join(folder, name + ".csv")
    if not os.path.exists(path):
        return
    with open(path, newline="", encoding="utf-8") as file:
        yield from csv.DictReader(file)


def columns_of(folder, name, pattern):
    """Names of the columns that match, with the channel of each."""
    first = next(table(folder, name), {})
    matches = [(column, re.fullmatch(pattern, column)) for column in first]
    return [(column, match.group(1)) for column, match in matches if match]


def chosen_tables(folder):
    """By table, what to look at in it: place among the quantities, column, channel."""
    chosen = {}
    for place, (_, _, sources, _) in enumerate(QUANTITIES):
        for name, pattern in sources:
            columns = columns_of(folder, name, pattern)
            if columns:
                chosen.setdefault(name, []).extend((place, column, channel) for column, channel in columns)
                break
    return chosen


def first_times(folder, chosen):
    """When each table has its first value; no times for one without values."""
    for name, columns in chosen.items():
        with_values = (row for row in table(folder, name) if any(row[column] for _, column, _ in columns))
        yield from (time_of(row) for row in itertools.islice(with_values, 1))


def events_of_week(folder, start):
    """Number, lowest and highest value of the events of each kind, by week."""
    found = {}
    for row in table(folder, "events"):
        values = found.setdefault(((time_of(row) - start) // WEEK, row["name"], row["unit"]), [])
        if row["value"]:
            values.append(float(row["value"]))
        else:
            values.append(None)
    return found


def main():
    if len(sys.argv) != 2 or not os.path.isdir(sys.argv[1]):
        sys.exit("usage: worst_of_week.py FOLDER   (a folder that quvera-files export --csv made)")
    folder = sys.argv[1]
    chosen = chosen_tables(folder)
    # Events may be older than the first value. They begin the weeks where there are no values at all.
    firsts = list(first_times(folder, chosen)) or [time_of(row) for row in table(folder, "events")]
    if not firsts:
        sys.exit("there is no table with values in " + folder)
    start = min(firsts)
    weeks = Weeks(start)
    for name, columns in chosen.items():
        for row in table(folder, name):
            time = time_of(row)
            for place, column, channel in columns:
                if row[column]:
                    weeks.take(place, channel, QUANTITIES[place][3], float(row[column]), time)
    events = events_of_week(folder, start)
    for week in sorted({key[0] for key in weeks.found} | {key[0] for key in events}):
        print(f"Week from {start + week * WEEK:%Y-%m-%d %H:%M}")
        for (_, place, channel), (value, time) in sorted(item for item in weeks.found.items() if item[0][0] == week):
            text, unit, _, _ = QUANTITIES[place]
            print(f"  {text:26} {channel:5} {value:12.6g} {unit:2}  {time:%Y-%m-%d %H:%M:%S}")
        for (_, name, unit), values in sorted(item for item in events.items() if item[0][0] == week):
            known = [value for value in values if value is not None]
            extremes = f", {min(known):.6g} to {max(known):.6g} {unit}" if known else ""
            print(f"  {len(values)} x {name}{extremes}".rstrip())


if __name__ == "__main__":
    main()
