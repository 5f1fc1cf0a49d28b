"""What the tests of the panel in a browser share: an instrument, its processor and quvera-panel, browsers, and what a person does
and sees there."""
import os
import signal
import socket
import subprocess
import sys
import tempfile
import time
import unittest

from selenium import webdriver
from selenium.webdriver.chrome.service import Service
from selenium.webdriver.common.action_chains import ActionChains
from selenium.webdriver.common.by import By

BIN = sys.argv.pop(1)
PATIENCE = 120  # s, ends a hang only


def eventually(condition, what):
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        value = condition()
        if value:
            return value
        time.sleep(0.05)
    raise AssertionError(what() if callable(what) else what)


def free_port(kind):
    with socket.socket(socket.AF_INET, kind) as one:
        one.bind(("127.0.0.1", 0))
        return one.getsockname()[1]


class Desk:
    """The three programs under a root of their own."""

    def __init__(self, root, starts=True):
        self.root = root
        self.processor = self.instrument = None
        self.environment = dict(
            os.environ, QUVERA_ROOT=root, QUVERA_REMOTE_PORT=str(free_port(socket.SOCK_DGRAM)),
            QUVERA_MODBUS_PORT=str(free_port(socket.SOCK_STREAM)), QT_QPA_PLATFORM="offscreen")
        if starts:
            self.start()
        self.panel, self.address = self.begin_panel()

    def start(self):
        self.processor = self.begin("quvera-processor", "--scenario", "nominal")
        eventually(lambda: os.path.exists(self.root + "/dev/mcasp"), "the processor does not start")
        self.start_instrument()

    def start_instrument(self):
        self.instrument = self.begin("quvera")

    def end_instrument(self):
        self.stop(self.instrument)

    def begin(self, name, *arguments, output=None):
        log = open(os.path.join(self.root, name + ".log"), "ab")
        with log:
            return subprocess.Popen([os.path.join(BIN, name), *arguments], env=self.environment,
                                    stdin=subprocess.DEVNULL, stdout=output or log, stderr=log)

    def begin_panel(self, *arguments):
        """The program and the address that it prints."""
        panel = self.begin("quvera-panel", "--port", "0", *arguments, output=subprocess.PIPE)
        return panel, panel.stdout.readline().decode().strip()

    @staticmethod
    def stop(process):
        process.send_signal(signal.SIGTERM)
        try:
            process.wait(PATIENCE)
        except subprocess.TimeoutExpired:
            process.kill()
            process.wait()

    def end(self):
        for process in (self.panel, self.instrument, self.processor):
            if process:
                self.stop(process)
        self.panel.stdout.close()


def browser(profile):
    options = webdriver.ChromeOptions()
    options.binary_location = "/usr/bin/chromium"
    for argument in ("--headless=new", "--no-sandbox", "--disable-gpu", "--disable-dev-shm-usage",
                     "--disable-renderer-backgrounding", "--window-size=1400,1000", "--user-data-dir=" + profile):
        options.add_argument(argument)
    options.set_capability("goog:loggingPrefs", {"browser": "ALL", "performance": "ALL"})
    return webdriver.Chrome(service=Service("/usr/bin/chromedriver"), options=options)


class PanelCase(unittest.TestCase):
    """The three programs, and a browser that shows the panel."""

    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.TemporaryDirectory(prefix="quvera-browser.")
        cls.addClassCleanup(cls.folder.cleanup)
        root = os.path.join(cls.folder.name, "root")
        os.mkdir(root)
        cls.desk = Desk(root)
        cls.addClassCleanup(cls.desk.end)
        cls.one = browser(os.path.join(cls.folder.name, "one"))
        cls.addClassCleanup(cls.one.quit)
        cls.one.get(cls.desk.address)
        eventually(lambda: cls.count(cls.one) > 0, "no picture comes")

    def setUp(self):
        self.page = self.one
        self.go_to("Setup", "Setup")  # which ends a measurement that runs
        self.go_to("Menu", "Menu")

    def go_to(self, title, key):
        """By the key. A question on the way is answered with Quit; another dialog, and Memory, know no such key and are
        left by F5."""
        def step():
            seen = self.screen().get_attribute("alt").partition(": ")[2]
            if seen == title:
                return True
            before = self.count(self.page)
            self.press("F4" if "Quit" in seen else "F5" if ". " in seen or seen.startswith("Memory") else key)
            end = time.monotonic() + 3
            while self.count(self.page) == before and time.monotonic() < end:
                time.sleep(0.05)
            return False
        eventually(step, f"there is no way to {title}")

    @staticmethod
    def count(page):
        return int(page.find_element(By.ID, "screen").get_attribute("data-count"))

    def screen(self, page=None):
        return (page or self.page).find_element(By.ID, "screen")

    def key(self, name, page=None):
        return (page or self.page).find_element(By.CSS_SELECTOR, f'#front [data-key="{name}"]')

    def taken(self, act, page=None):
        """Does what presses a key, and does it again where a busy machine took too long and the page says so."""
        page = page or self.page

        def is_taken():
            before = page.execute_script("return complaint")
            act()
            eventually(lambda: page.execute_script("return waiting") == 0, "the key waits for ever")
            return page.execute_script("return complaint") == before
        eventually(is_taken, "no key is taken")

    def press(self, *names, page=None):
        for name in names:
            self.taken(self.key(name, page).click, page)

    def walk(self, *names):
        """Presses keys that change the picture, each behind the picture of the one before: what the instrument was given
        while it answered nothing is left out."""
        for name in names:
            before = self.count(self.page)
            self.press(name)
            eventually(lambda: self.count(self.page) > before, f"{name} changes nothing")

    def type(self, *keys):
        for key in keys:
            ActionChains(self.page).send_keys(key).perform()

    def strike(self, key):
        """A key of the keyboard that is one of the instrument."""
        self.taken(lambda: self.type(key))

    def title_becomes(self, title, page=None):
        text = "Screen of the instrument: " + title
        eventually(lambda: (self.screen(page).get_attribute("alt") or "").startswith(text),
                   lambda: f"{title} is not shown, but {self.screen(page).get_attribute('alt')}")

    def texts(self):
        details = self.page.find_element(By.ID, "reading")
        if not details.get_attribute("open"):
            details.find_element(By.TAG_NAME, "summary").click()
        return details.find_element(By.ID, "texts").get_property("textContent")

    def control(self, name):
        return eventually(lambda: self.page.find_elements(By.CSS_SELECTOR, f'[data-control="{name}"]'),
                          f"no control {name}")[0]

    def push(self, name):
        """The control's button, wherever it is."""
        self.control(name).find_element(By.TAG_NAME, "button").click()

    def put(self, name, field, value):
        """Moves a slider, or chooses a word, as a person's hand does: with its events."""
        self.page.execute_script(
            "arguments[0].value = arguments[1];"
            "for (const kind of ['input', 'change']) arguments[0].dispatchEvent(new Event(kind, {bubbles: true}));",
            self.control(name).find_element(By.NAME, field), value)

    def standing(self, page=None):
        """What is said of each thing at the inputs."""
        return dict((page or self.page).execute_script(
            "return [...document.querySelectorAll('#standing div')].map((row) => [...row.children].map("
            "(part) => part.textContent))"))

    def stands(self, name, text, page=None):
        eventually(lambda: text in self.standing(page).get(name, ""),
                   lambda: f"{name} does not become {text}, but {self.standing(page)}")
