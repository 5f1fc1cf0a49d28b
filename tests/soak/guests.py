"""Who uses the instruments meanwhile: a Modbus master, viewers of the panel, somebody at the keys."""
import base64
import collections
import http.client
import json
import random
import socket
import struct
import threading
import time


class Guest(threading.Thread):
    """Goes on until the soak ends; what it raises is kept."""

    def __init__(self, name):
        super().__init__(name=name, daemon=True)
        self.ends, self.failure = threading.Event(), None

    def run(self):
        try:
            while not self.ends.is_set():
                self.turn()
        except Exception as error:
            if not self.ends.is_set():
                self.failure = repr(error)


class Master(Guest):
    """Reads every block; the big ones behind the register that holds them still."""
    SMALL = [(0, 50), (100, 72), (1000, 125), (1125, 125), (1312, 30), (2000, 125), (3000, 24), (3500, 48), (5000, 100),
             (11100, 125), (11300, 32)]

    def __init__(self, desk):
        super().__init__(desk.name + "-master")
        self.port, self.socket = desk.modbus_port, None
        self.asked, self.errors, self.last, self.number = 0, collections.Counter(), {}, 0

    def ask(self, pdu):
        self.number = (self.number + 1) % 65536
        self.socket.sendall(struct.pack(">HHHB", self.number, 0, len(pdu) + 1, 1) + pdu)
        head = self.piece(7)
        number, protocol, length, unit = struct.unpack(">HHHB", head)
        answer = self.piece(length - 1)
        self.asked += 1
        if number != self.number or protocol or unit != 1:
            self.errors["head"] += 1
        if answer[0] != pdu[0]:
            self.errors["exception %d" % answer[1]] += 1
        return answer

    def piece(self, length):
        found = b""
        while len(found) < length:
            more = self.socket.recv(length - len(found))
            if not more:
                raise ConnectionError("closed")
            found += more
        return found

    def read(self, address, count):
        answer = self.ask(struct.pack(">BHH", 4, address, count))
        if len(answer) != 2 + 2 * count or answer[1] != 2 * count:
            self.errors["length"] += 1
            return
        words = struct.unpack(">%dH" % count, answer[2:])
        if address == 0:
            self.last["hertz"] = struct.unpack("<f", struct.pack("<2H", *words[:2]))[0]

    def turn(self):
        try:
            if self.socket is None:
                self.socket = socket.create_connection(("127.0.0.1", self.port), 5)
                self.socket.setsockopt(socket.IPPROTO_TCP, socket.TCP_NODELAY, 1)
            for address, count in self.SMALL:
                self.read(address, count)
            self.ask(struct.pack(">BHH", 6, 65000, 1))
            for first, length in ((12000, 3288), (20000, 1658)):
                for address in range(first, first + length, 125):
                    self.read(address, min(125, first + length - address))
            self.ask(struct.pack(">BHH", 6, 65000, 0))
        except OSError as error:
            self.errors[type(error).__name__] += 1
            self.socket = None
        self.ends.wait(1.5)


class Viewer(Guest):
    """Reads the panel's stream as a browser does."""

    def __init__(self, name, port):
        super().__init__(name)
        self.port, self.frames, self.bytes, self.breaks, self.broken = port, 0, 0, 0, 0
        self.screen, self.absent = {}, 0

    def turn(self):
        connection = http.client.HTTPConnection("127.0.0.1", self.port, timeout=60)
        try:
            connection.request("GET", "/events")
            answer = connection.getresponse()
            name = ""
            while not self.ends.is_set():
                line = answer.readline()
                if not line:
                    break
                self.bytes += len(line)
                if line.startswith(b"event: "):
                    name = line[7:].strip().decode()
                elif line.startswith(b"data: "):
                    self.take(name, line[6:])
        except (OSError, http.client.HTTPException):
            pass
        self.breaks += not self.ends.is_set()
        self.ends.wait(0.5)

    def take(self, name, data):
        content = json.loads(data)
        if name == "instrument":
            self.absent += not content["there"]
        if name != "screen":
            return
        self.frames += 1
        png = base64.b64decode(content.pop("png"))
        self.broken += not (png.startswith(b"\x89PNG") and b"IEND" in png[-16:])
        self.screen = content


class Walker(Guest):
    """Presses keys at a user's pace and counts the pages that came."""

    def __init__(self, desk, seed):
        super().__init__(desk.name + "-walker")
        self.desk, self.random = desk, random.Random(seed)
        self.pressed, self.pages, self.dialogs = 0, collections.Counter(), 0
        self.looking = desk.remote.look
        self.pressing = desk.remote.press

    def use_panel(self, port, viewer):
        """Presses by the panel, and sees what its viewer sees: one asks the instrument at a time."""
        def press(key):
            connection = http.client.HTTPConnection("127.0.0.1", port, timeout=10)
            connection.request("POST", "/key", json.dumps({"key": key}), {"Content-Type": "application/json"})
            status = connection.getresponse().status
            connection.close()
            if status != 204:
                raise RuntimeError("key %s: %d" % (key, status))

        def look():
            time.sleep(0.45)  # a look behind a key, and its way
            return viewer.screen
        self.pressing, self.looking = press, look

    def press(self, keys, pause=0.2):
        for key in keys.split():
            if self.ends.is_set():
                return
            self.pressing(key)
            self.pressed += 1
            time.sleep(pause)

    def look(self):
        seen = self.looking() or {}
        self.pages[seen.get("Title", "?")] += 1
        return seen

    def close_dialogs(self, seen=None):
        for _ in range(4):
            if not (seen or self.look()).get("Dialog"):
                return
            seen = None
            self.dialogs += 1
            self.press("F5", 0.4)


class LiveWalker(Walker):
    """Walks through every page that a recording allows, and never out of it."""
    TILES = {"Power&Energy": (0, 0), "Volts/Amps/Hertz": (0, 1), "Harmonics": (0, 2), "Unbalance": (0, 3),
             "Flicker": (1, 0), "Dips&Swells": (1, 1), "Inrush": (1, 2), "Transients": (1, 3),
             "Mains Signaling": (2, 0), "Logger": (2, 2)}  # "Wave" and "User" would end the recording

    def __init__(self, desk, seed):
        super().__init__(desk, seed)
        self.at, self.saved, self.astray = self.TILES["Logger"], 0, 0

    def record_everything(self, hours):
        self.press("Menu Down Down Right Enter")  # from "Volts/Amps/Hertz"
        self.press("F2 F1 F4 Down " + "Right " * (hours - 1) + "Down Left Left Left F5")

    def go_to(self, title):
        """False when another page came, or a question."""
        tile = self.TILES[title]
        self.press("Menu")
        self.press(" ".join(["Down"] * ((tile[0] - self.at[0]) % 3) + ["Right"] * ((tile[1] - self.at[1]) % 4)) + " Enter")
        for _ in range(6):  # the panel's picture may be of a moment before
            seen = self.look()
            came = seen.get("Title")
            if came == title or seen.get("Dialog"):
                break
        self.at = self.TILES.get(came, tile)
        self.close_dialogs(seen)
        self.astray += came != title
        return came == title and not seen.get("Dialog")

    def turn(self):
        for title in self.TILES:
            if not self.go_to(title):
                continue
            if title == "Logger":
                continue  # its key asks whether to end the recording
            for key in ("F1", "F2", "F3", "F4"):
                self.press(key)
                self.press(" ".join(self.random.choices(["Up", "Down", "Left", "Right"], k=4)))
                self.close_dialogs()
                if self.look().get("Title") != title:
                    break
            self.press("F5")
            if "Run" in self.look().get("Keys", ""):
                self.press("F5")
        self.press("Scope")
        self.look()
        self.press("F1 F2 Up Down F3 Memory")
        self.look()
        self.press("Down Down Up F5 Light")
        if self.saved < 40:
            self.saved += 1
            self.press("Save", 0.5)
            self.press("F4", 0.5)
            self.close_dialogs()

    def save_recording(self):
        """Asks for the end until the question stands there, and answers it with "Save"."""
        self.ends.clear()
        for _ in range(5):
            self.close_dialogs()
            if self.look().get("Title") == "Memory":
                self.press("F5", 0.5)  # leads back to the page before
            if self.go_to("Logger"):
                self.press("F5", 1)
                if "F4 Save" in self.look().get("Keys", ""):
                    self.press("F4", 1)
                    return
        raise RuntimeError("the recording cannot be saved")


class MonitorWalker(Walker):
    """Walks through the pages of a monitor's run."""

    def begin(self):
        self.press("Monitor Down Right Right F5")  # two days more

    def turn(self):
        for key in ("F1", "F2", "F3", "F4", "F5"):
            self.press(key)
            self.look()
            if key == "F2":
                self.press("F1 Right Right F2 Left F3 F4")
            self.press("Down Down Up F3")  # a trend
            self.look()
            self.press("F4 F4 Up Down")
            self.press("F5 F5" if key != "F2" else "F5 F5 F5")
            while self.look().get("Keys", "").find("Vrms") < 0 and not self.ends.is_set():
                self.press("F5", 0.3)
        self.press("Right Right Left Memory")
        self.look()
        self.press("Down Up F5")

    def finish(self):
        """Quits the run, from whichever of its pages."""
        self.ends.clear()
        for _ in range(5):
            if self.look().get("Title") == "Memory":
                self.press("F5", 0.5)
            self.press("Menu", 1)
            if "F4 Quit" in self.look().get("Keys", ""):
                self.press("F4", 1)
                return
        raise RuntimeError("the monitor's run cannot be ended")


class Wanderer(Walker):
    """Anything at all: random keys, and between them another wiring, frequency or language by plan."""
    USUAL = ["Enter"] * 6 + ["Left", "Up", "Right", "Down"] * 4 + ["F1", "F2", "F3", "F4", "F5"] * 3 \
        + ["Scope", "Menu", "Menu", "Monitor", "Save", "Setup", "Memory", "Light"]

    def __init__(self, desk, seed):
        super().__init__(desk, seed)
        self.wirings = collections.Counter()

    def turn(self):
        for _ in range(40):
            self.press(self.random.choice(self.USUAL), 0.1)
        self.close_dialogs()
        self.leave_for("Menu")
        self.leave_for("Setup")
        self.press("F1", 0.3)
        self.press(" ".join(self.random.choices(["Down", "Right"], k=5)) + " Enter")
        self.press("F4", 0.3)
        self.leave_for("Setup")
        seen = self.look()
        if "Setup" in self.pages and len(seen.get("Texts", "").splitlines()) > 1:
            self.wirings[seen["Texts"].splitlines()[1].split(": ")[-1]] += 1
        self.leave_for("Menu")
        self.press("Enter", 0.3)

    def leave_for(self, key):
        """What runs is quit or saved, whatever it is."""
        self.press(key, 0.4)
        seen = self.look()
        if seen.get("Dialog"):
            self.dialogs += 1
            self.press("F4" if "F4" in seen.get("Keys", "") else "F5", 0.6)
            self.close_dialogs()
            self.press(key, 0.4)
