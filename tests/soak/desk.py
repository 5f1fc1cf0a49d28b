"""A desk of the soak: stand-in, instrument in faster time, and how they are asked."""
import atexit
import os
import socket
import struct
import subprocess
import time
import zlib
from pathlib import Path

FAKETIME = "/usr/lib/x86_64-linux-gnu/faketime/libfaketimeMT.so.1"
KEYS = {"Enter": 13, "Left": 16, "Up": 17, "Right": 18, "Down": 19, "F1": 40, "F2": 41, "F3": 42, "F4": 43, "F5": 44,
        "Scope": 45, "Menu": 46, "Monitor": 47, "Save": 48, "Setup": 49, "Memory": 50, "Light": 51}


def notes(png):
    """What the picture says can be read on it (docs/remote-control.md)."""
    found, at = {}, 8
    while at + 8 <= len(png):
        length = struct.unpack_from(">I", png, at)[0]
        kind, chunk = png[at + 4:at + 8], png[at + 8:at + 8 + length]
        key, _, text = chunk.partition(b"\0")
        if kind == b"tEXt":
            found[key.decode()] = text.decode("latin1")
        elif kind == b"zTXt":
            found[key.decode()] = zlib.decompress(text[1:]).decode("latin1")
        elif kind == b"iTXt":
            body = text[2:].split(b"\0", 2)[2]
            found[key.decode()] = (zlib.decompress(body) if text[0] else body).decode()
        at += length + 12
    return found


class Remote:
    """Keys and pictures over UDP."""

    def __init__(self, port):
        self.port, self.pictures, self.unanswered = port, 0, 0
        self.socket = socket.socket(socket.AF_INET, socket.SOCK_DGRAM)
        self.socket.connect(("127.0.0.1", port))
        self.socket.settimeout(2)

    def press(self, key):
        self.socket.send(struct.pack("<III", 1, 0, KEYS[key]))

    def look(self):
        """The notes of the screen; None when nobody answered or a piece was lost."""
        while True:  # what is left of a picture before
            try:
                self.socket.recv(2048, socket.MSG_DONTWAIT)
            except OSError:
                break
        try:
            self.socket.send(struct.pack("<III", 2, 0, 0))
            stream = self.socket.recv(2048)
            while len(stream) < 8 + struct.unpack_from("<I", stream, 4)[0]:
                stream += self.socket.recv(2048)
        except OSError:
            self.unanswered += 1
            return None
        self.pictures += 1
        return notes(stream[8:])


class Process:
    """A process that was started here, and what the kernel says of it."""

    def __init__(self, name, arguments, log, environment):
        self.name = name
        self.log = open(log, "wb")
        self.popen = subprocess.Popen(arguments, stdin=subprocess.DEVNULL, stdout=self.log, stderr=subprocess.STDOUT,
                                      env={**os.environ, **environment})
        atexit.register(self.end)  # none stays behind, wherever the soak fails

    def runs(self):
        return self.popen.poll() is None

    def figures(self):
        folder = Path("/proc/%d" % self.popen.pid)
        status = dict(line.split(":", 1) for line in (folder / "status").read_text().splitlines())
        times = (folder / "stat").read_text().rsplit(")", 1)[1].split()
        counts = []
        for _ in range(5):  # a flush holds one of its own for a moment
            counts.append(len(os.listdir(folder / "fd")))
            time.sleep(0.02)
        ticks = os.sysconf("SC_CLK_TCK")
        return {"rss": int(status["VmRSS"].split()[0]), "anon": int(status["RssAnon"].split()[0]),
                "threads": int(status["Threads"]), "fds": min(counts), "fdsMost": max(counts),
                "cpu": (int(times[11]) + int(times[12])) / ticks}

    def end(self):
        if self.runs():
            self.popen.terminate()
        try:
            self.popen.wait(30)
        except subprocess.TimeoutExpired:
            self.popen.kill()
            self.popen.wait()
        self.log.close()


class Desk:
    """An instrument with its stand-in under a root of its own."""

    def __init__(self, name, bin_folder, out, number, speed):
        self.name, self.bin, self.root = name, Path(bin_folder), Path(out) / name
        if not os.path.exists(FAKETIME):  # the loader would only complain, and the clock keep its pace
            raise RuntimeError(FAKETIME + " is missing (package libfaketime)")
        self.root.mkdir(parents=True)
        self.remote_port, self.modbus_port = 43540 + number, 41540 + number
        self.processes, self.spell, self.logs = {}, "nominal", Path(out)
        environment = {"QUVERA_ROOT": str(self.root), "QT_QPA_PLATFORM": "offscreen", "TZ": "UTC",
                       "QUVERA_REMOTE_PORT": str(self.remote_port), "QUVERA_MODBUS_PORT": str(self.modbus_port)}
        self.start("processor", [self.bin / "quvera-processor", "--root", self.root, "--speed", str(speed)], environment)
        self.wait_for((self.root / "dev/mcasp").exists)
        # Each shell command of the instrument inherits the faster time, which costs it nothing.
        self.start("instrument", [self.bin / "quvera"],
                   {**environment, "LD_PRELOAD": FAKETIME, "FAKETIME": "+0 x%g" % speed})
        self.remote = Remote(self.remote_port)
        self.wait_for(self.remote.look)

    def start(self, kind, arguments, environment):
        log = self.logs / ("%s-%s.log" % (self.name, kind))
        self.processes[kind] = Process(kind, [str(a) for a in arguments], log, environment)
        return log

    @staticmethod
    def wait_for(condition):
        limit = time.monotonic() + 30
        while not condition():
            if time.monotonic() > limit:
                raise RuntimeError("nothing came in 30 s")
            time.sleep(0.1)

    def tell(self, command):
        answer = subprocess.run([self.bin / "quvera-processor", "--root", self.root, "--tell", command],
                                capture_output=True, text=True, timeout=30).stdout.strip()
        if not answer.startswith("ok"):
            raise RuntimeError("%s: %s: %s" % (self.name, command, answer))
        return answer

    def status(self):
        return dict(pair.split("=", 1) for pair in self.tell("status").split()[1:])

    def stored(self):
        """Number and bytes of the files on card and settings."""
        files = [Path(folder) / name for folder, _, names in os.walk(self.root / "mnt") for name in names]
        sizes = []
        for path in files:
            try:
                sizes.append(path.stat().st_size)
            except FileNotFoundError:
                pass  # a staging copy was renamed meanwhile
        return len(sizes), sum(sizes)

    def end(self):
        for process in reversed(list(self.processes.values())):
            process.end()
