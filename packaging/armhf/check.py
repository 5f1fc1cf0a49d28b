#!/usr/bin/env python3
"""Compares the instrument that was built for the board with the one that was built for this machine.

Each runs with a processor stand-in of its own: pictures, Modbus registers, a recording have to be the same; the board's
tools are tried, too. One line for each result; exit status 1 when anything differs.

    check.py --sysroot DIR --arm DIR --desk DIR     the folders of the executables
"""
import argparse
import json
import os
import shutil
import signal
import socket
import struct
import subprocess
import sys
import tempfile
import time
import urllib.request

from PIL import Image, ImageChops

PATIENCE = 120.0  # s; ends what hangs, decides nothing
CLOCK = "2024-01-18T16:15:00"


class Failure(Exception):
    pass


class Instrument:
    """One instrument with its processor under a root of its own."""

    def __init__(self, folder, programs, prefix, fake_time, remote):
        self.root = os.path.join(folder, "root")
        os.mkdir(self.root)
        self.programs = programs
        self.prefix = prefix  # of a command: the emulator, or nothing
        self.fake_time = fake_time  # environment, as the program itself is to see it
        self.remote = remote
        self.log = open(os.path.join(folder, "log"), "w")
        self.remote_port, self.modbus_port = free_ports()
        self.processes = []

    def command(self, program, *arguments, environment=None):
        settings = {
            "QUVERA_ROOT": self.root,
            "QUVERA_MODBUS_PORT": str(self.modbus_port),
            "QUVERA_REMOTE_PORT": str(self.remote_port),
            "QT_QPA_PLATFORM": "offscreen",
            **(environment or {}),
        }
        if self.prefix:
            words = [word for name, value in settings.items() for word in ("-E", f"{name}={value}")]
            return self.prefix + words + [os.path.join(self.programs, program), *arguments], dict(os.environ)
        return [os.path.join(self.programs, program), *arguments], {**os.environ, **settings}

    def run(self, program, *arguments):
        command, environment = self.command(program, *arguments)
        return subprocess.run(command, env=environment, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)

    def begin(self, program, *arguments, environment=None):
        command, environment = self.command(program, *arguments, environment=environment)
        process = subprocess.Popen(command, env=environment, stdout=self.log, stderr=self.log)
        self.processes.append(process)

    def start(self):
        # Without noise the last digits stand still.
        scenario = os.path.join(self.root, "still.json")
        with open(scenario, "w") as file:
            json.dump({"name": "still", "followSetup": True, "frontEnd": {"noise": 0},
                       "signal": {"u": 230.0, "f": 50.0, "i": 1.0, "pf": 0.95}}, file)
        self.begin("quvera-processor", "--scenario", scenario, "--clock", CLOCK)
        wait_for("the processor's node", lambda: os.path.exists(os.path.join(self.root, "dev/mcasp")))
        self.begin("quvera", environment=self.fake_time)
        wait_for("the instrument", lambda: self.tell("identify") == 0)

    def tell(self, *arguments):
        words = [self.remote, "--port", str(self.remote_port), *arguments]
        return subprocess.run(words, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL).returncode

    def supply(self, *words):
        """What the stand-in lays on the inputs."""
        result = self.run("quvera-processor", "--tell", " ".join(words))
        if result.returncode != 0:
            raise Failure(f"{' '.join(words)}: {result.stdout}")

    def press(self, *keys):
        if self.tell("key", *keys) != 0:
            raise Failure(f"the keys {' '.join(keys)} were not answered")

    def picture(self):
        path = os.path.join(self.root, "screen.png")
        if self.tell("screen", path) != 0:
            raise Failure("no picture came")
        with Image.open(path) as picture:
            return picture.convert("RGB")

    def registers(self, first, count):
        with socket.create_connection(("127.0.0.1", self.modbus_port), timeout=PATIENCE) as master:
            master.sendall(struct.pack(">HHHBBHH", 1, 0, 6, 1, 4, first, count))
            answer = b""
            while len(answer) < 9 + 2 * count:
                piece = master.recv(4096)
                if not piece:
                    raise Failure("the Modbus server hung up")
                answer += piece
        return answer[9:]

    def stop(self):
        for process in reversed(self.processes):
            process.send_signal(signal.SIGTERM)
            try:
                process.wait(PATIENCE)
            except subprocess.TimeoutExpired:
                process.kill()
                process.wait()
        self.log.close()


def free_ports():
    with socket.socket() as one, socket.socket() as other:
        one.bind(("127.0.0.1", 0))
        other.bind(("127.0.0.1", 0))
        return one.getsockname()[1], other.getsockname()[1]


def wait_for(what, condition):
    end = time.monotonic() + PATIENCE
    while not condition():
        if time.monotonic() > end:
            raise Failure(f"{what} did not come")
        time.sleep(0.1)


def common_picture(one, other, what, counts=lambda picture: True):
    """The picture that both show at some moment, since their seconds do not fall together. `counts` says of a common one
    whether it is what was waited for."""
    seen = ([], [])
    found = []

    def meet():
        shown = (one.picture(), other.picture())
        for picture, pictures, others in zip(shown, seen, reversed(seen)):
            pictures.append(picture)
            if counts(picture) and any(is_same(picture, it) for it in others):
                found.append(picture)
        return found

    wait_for(f"the same picture of {what}", meet)
    print(f"same picture: {what}")
    return found[0]


def is_same(one, other):
    """Pixel by pixel, but for a step of 255: the font library itself, asked for the same digit of the Chinese face, gives
    a pixel of its edge that is one step darker on the board."""
    return one.size == other.size and all(most <= 1 for _, most in ImageChops.difference(one, other).getextrema())


def values_in(picture):
    """What a page shows below its own clock."""
    return picture.crop((0, 70, *picture.size))


def same_values(one, other):
    """Volts/Amps/Hertz at three voltages, with other values each time: for its first ten seconds the page has none, so
    that one of the three may be empty, and no more."""
    shown = []
    for voltage in (230, 207, 184):
        for instrument in (one, other):
            instrument.supply("set", "u", f"{voltage}V")
        same_registers(one, other, voltage)
        picture = common_picture(one, other, f"Volts/Amps/Hertz at {voltage} V",
                                 lambda it: not any(is_same(values_in(it), old) for old in shown))
        shown.append(values_in(picture))


def same_registers(one, other, voltage):
    def floats(instrument):
        swapped = struct.unpack(">18H", instrument.registers(0, 18))
        return [struct.unpack("<f", struct.pack("<HH", *swapped[2 * i : 2 * i + 2]))[0] for i in range(9)]

    def agrees(instrument):
        return all(abs(value - expected) <= expected * 1e-3
                   for value, expected in zip(floats(instrument), (50.0, voltage, voltage, voltage)))

    wait_for(f"50 Hz and {voltage} V by Modbus", lambda: agrees(one) and agrees(other))
    print(f"same registers: frequency and voltages at {voltage} V")


def recording_of(instrument):
    storage = os.path.join(instrument.root, "mnt/storage")

    def folders():
        return [name for name in os.listdir(storage) if os.path.isdir(os.path.join(storage, name))]

    instrument.press("Menu", "Down", "Down", "Right", "Enter")  # from "Volts/Amps/Hertz" to "Logger"
    instrument.press("F2", "F1", "F4")  # all parameters
    instrument.press("Down", "Down", "Left", "Left", "Left")  # every second
    instrument.press("F5")
    wait_for("a recording", folders)
    common = os.path.join(storage, folders()[0], "Common.pqa2")
    wait_for("some intervals", lambda: os.path.exists(common) and os.path.getsize(common) > 12000)
    instrument.press("F5", "F4")  # Stop: Save
    folder = os.path.join(storage, folders()[0])
    reader = os.path.join(instrument.programs, "quvera-files")
    if not os.path.exists(reader):
        raise Failure(f"{reader} is missing")
    wait_for("a whole recording", lambda: instrument.run("quvera-files", "verify", folder).returncode == 0)
    return folder


def same_reading(one, other, folder):
    """What one instrument recorded is read alike by both builds."""
    tables = []
    for instrument in (one, other):
        target = os.path.join(instrument.root, "tables")
        result = instrument.run("quvera-files", "export", folder, "--csv", target)
        if result.returncode != 0:
            raise Failure(result.stdout)
        names = sorted(os.listdir(target))
        tables.append({name: open(os.path.join(target, name), "rb").read() for name in names
                       if os.path.isfile(os.path.join(target, name))})
        shutil.rmtree(target)
    if tables[0] != tables[1] or "rms.csv" not in tables[0]:
        raise Failure("the two builds read one recording differently")
    print(f"same reading of a recording: {len(tables[0])} tables")


def tools_work(arm):
    """The tools that were built for the board do what they are for."""
    if arm.run("quvera-remote", "--port", str(arm.remote_port), "identify").returncode != 0:
        raise Failure("the remote control reaches no instrument")
    port = free_ports()[1]
    arm.begin("quvera-panel", "--instrument-port", str(arm.remote_port), "--port", str(port))

    def page():
        try:
            with urllib.request.urlopen(f"http://127.0.0.1:{port}/", timeout=PATIENCE) as answer:
                return b"<html" in answer.read()
        except OSError:
            return False

    wait_for("the panel's page", page)
    # The board's unpacker takes what its peer made, as a new version below the root.
    office = os.path.join(arm.root, "office")
    key, package = os.path.join(office, "key"), os.path.join(office, "Software.upd")
    os.makedirs(os.path.join(office, "version", "bin"))
    os.makedirs(os.path.join(arm.root, "etc/quvera"), exist_ok=True)
    shutil.copy(os.path.join(arm.programs, "quvera-remote"), os.path.join(office, "version", "bin", "quvera"))
    for command in (
        ("make-update", "keys", key, os.path.join(arm.root, "etc/quvera/update.pub")),
        ("make-update", "software", key, "1", "0", os.path.join(office, "version"), package),
        ("update-unpack", package),
    ):
        result = arm.run(*command)
        if result.returncode != 0:
            raise Failure(f"{' '.join(command[:2])}: {result.stdout}")
    if not os.path.exists(os.path.join(arm.root, "opt/quvera/current/bin/quvera")):
        raise Failure("the update is not in its place")
    print("the board's tools work: remote control, panel, updates")


def emulated_faketime(sysroot):
    return {
        "LD_PRELOAD": "/usr/lib/arm-linux-gnueabihf/faketime/libfaketimeMT.so.1",
        "QT_PLUGIN_PATH": os.path.join(sysroot, "usr/lib/arm-linux-gnueabihf/qt5/plugins"),
    }


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    for name in ("sysroot", "arm", "desk"):
        parser.add_argument(f"--{name}", required=True)
    options = parser.parse_args()
    remote = os.path.join(options.desk, "quvera-remote")
    # Only the clock in the title stands still; timers go on.
    still = {"FAKETIME": "2024-01-18 16:15:00", "FAKETIME_DONT_FAKE_MONOTONIC": "1"}
    host = {"LD_PRELOAD": "/usr/lib/x86_64-linux-gnu/faketime/libfaketimeMT.so.1", **still}
    board = {**emulated_faketime(options.sysroot), **still}

    folder = tempfile.mkdtemp(prefix="quvera-armhf-")
    instruments = []
    try:
        for name, programs, prefix, fake_time in (
            ("arm", options.arm, ["qemu-arm-static", "-L", options.sysroot], board),
            ("desk", options.desk, [], host),
        ):
            os.mkdir(os.path.join(folder, name))
            instruments.append(Instrument(os.path.join(folder, name), programs, prefix, fake_time, remote))
        arm, desk = instruments
        for instrument in instruments:
            instrument.start()
        common_picture(arm, desk, "the menu")
        for instrument in instruments:
            instrument.press("Enter")
        same_values(arm, desk)
        same_reading(arm, desk, recording_of(arm))
        tools_work(arm)
    except Failure as failure:
        print(f"different: {failure}", file=sys.stderr)
        for instrument in instruments:
            instrument.log.flush()
            with open(instrument.log.name) as log:
                print(log.read()[-2000:], file=sys.stderr)
        return 1
    finally:
        for instrument in instruments:
            instrument.stop()
        shutil.rmtree(folder, ignore_errors=True)
    return 0


if __name__ == "__main__":
    sys.exit(main())
