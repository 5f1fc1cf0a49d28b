"""Compares exported tables with the bytes of the recording: reads the blocks by docs/formats alone, apart from the program.

tablecheck.py FOLDER_OF_CSV DATABASE FILE.pqa2...

Prints a line for each table: rows, and values that stand in the CSV and in the database bit for bit.
"""
import csv
import datetime
import os
import sqlite3
import struct
import sys

PHASES = ["L1", "L2", "L3"]
INPUTS = PHASES + ["N"]
POWERS = PHASES + ["total"]
RMS = ["U_rms {} V", "U_peak {} V", "U_offset {} V", "U_crest {}", "I_rms {} A", "I_peak {} A", "I_offset {} A",
       "I_crest {}", "U_fundamental {} V", "I_fundamental {} A"]
POWER = ["P {} W", "S {} VA", "Q {} var", "PF {}", "cos_phi {}", "tan_phi {}"]
SEQUENCES = [q + "_" + n for q in "UI" for n in ("positive", "negative", "negative_ratio", "zero", "zero_ratio")]
SEQUENCES = [n + (" percent" if "ratio" in n else " V" if n[0] == "U" else " A") for n in SEQUENCES]
HARMONICS = ["U_distortion {} V", "U_fundamental {} V"] + [f"Uh{order:02} {{}} V" for order in range(1, 51)]
MONITOR = ["{}_distortion {} percent"] + [f"{{}}h{order:02} {{}} percent" for order in range(2, 51)]

# By type of block: table, statistic, names of one channel's values, channels, floats that a channel takes in the block.
GROUPS = {}


def group(types, table, names, channels, floats):
    for kind, statistic in zip(types, ("mean", "max", "min")):
        GROUPS[kind] = (table, statistic, names, channels, floats)


group((0xA1000029, 0xA1000064, 0xA10000A4), "frequency", ["f Hz"], [""], 1)
group((0xA1000020, 0xA1000060, 0xA10000A0), "rms", RMS, INPUTS, 13)
group((0xA1000021, 0xA1000061, 0xA10000A1), "power", POWER, POWERS, 6)
group((0xA1000023, 0xA1000062, 0xA10000A2), "unbalance", SEQUENCES, [""], 10)
group((0xA1000030, 0xA1000065, 0xA10000A5), "harmonics_u", HARMONICS, INPUTS, 52)
group((0xA1010000,), "monitor_frequency", ["f Hz"], [""], 1)
group((0xA1010001,), "monitor_voltage", ["U_rms {} V"], PHASES, 1)
GROUPS[0xA1010005] = ("monitor_harmonics", "", [n.replace("{}", "U", 1) for n in MONITOR], PHASES, 50)
GROUPS[0xA1010006] = ("monitor_harmonics", "", [n.replace("{}", "I", 1) for n in MONITOR], PHASES, 50)


def blocks(path):
    """Types and payloads, by following the links."""
    data = open(path, "rb").read()
    at = 24
    while at != 0xFFFFFFFF:
        link, kind, size = struct.unpack_from("<III", data, at)
        yield kind, data[at + 12:at + 12 + size]
        at = link


def column(name, statistic, channel):
    quantity, *rest = name.split(" ")
    unit = [part for part in rest if part != "{}"]
    return "_".join(part for part in [quantity, statistic, channel] + unit if part)


def expected(paths):
    """By table and time in ms, the four bytes of each column's value."""
    found = {}
    for path in paths:
        for kind, payload in blocks(path):
            if kind not in GROUPS:
                continue
            table, statistic, names, channels, floats = GROUPS[kind]
            is_monitor = table.startswith("monitor")
            time = struct.unpack_from("<I", payload)[0] * 1000 if is_monitor else struct.unpack_from("<q", payload)[0]
            row = found.setdefault(table, {}).setdefault(time, {})
            for c, channel in enumerate(channels):
                for n, name in enumerate(names):
                    at = (4 if is_monitor else 8) + 4 * (c * floats + n)
                    row[column(name, statistic, channel)] = payload[at:at + 4]
    return found


def milliseconds(text):
    moment = datetime.datetime.strptime(text, "%Y-%m-%dT%H:%M:%S.%fZ").replace(tzinfo=datetime.timezone.utc)
    return round(moment.timestamp() * 1000)


def compare(rows, want, table):
    """How many values of these rows are the wanted ones."""
    same = 0
    for time, cells in rows:
        row = want.pop(time)
        for name, value in cells.items():
            if name not in row:
                sys.exit(f"{table}: nobody stored {name}")
            stored = row.pop(name)
            if value is None or value == "":
                continue
            if struct.pack("<f", float(value)) != stored:
                sys.exit(f"{table} {name}: {value} is not {stored.hex()}")
            same += 1
        if row:
            sys.exit(f"{table}: {list(row)} are missing")
    if want:
        sys.exit(f"{table}: rows of {list(want)} are missing")
    return same


def copy(rows):
    return {time: dict(row) for time, row in rows.items()}


def main():
    folder, base, paths = sys.argv[1], sqlite3.connect(sys.argv[2]), sys.argv[3:]
    base.row_factory = sqlite3.Row
    for table, rows in sorted(expected(paths).items()):
        with open(os.path.join(folder, table + ".csv"), newline="", encoding="utf-8") as file:
            read = [(milliseconds(row.pop("time_utc")), row) for row in csv.DictReader(file)]
        in_csv = compare(read, copy(rows), table)
        read = [dict(row) for row in base.execute(f"select * from {table} order by rowid")]
        read = [(row.pop("time_ms"), {k: v for k, v in row.items() if k != "time_utc"}) for row in read]
        print(table, len(rows), in_csv, compare(read, copy(rows), table))


if __name__ == "__main__":
    main()
