#!/usr/bin/python3
"""The panel in a real browser: an instrument, its processor and quvera-panel are started, and a person's way through
the page is gone: keys, pictures, controls, a narrow window, two viewers, an instrument that ends and comes back."""
import json
import os
import pathlib
import re
import signal
import socket
import subprocess
import sys
import tempfile
import time
import unittest
import urllib.request

from selenium import webdriver
from selenium.webdriver.chrome.service import Service
from selenium.webdriver.common.action_chains import ActionChains
from selenium.webdriver.common.by import By
from selenium.webdriver.common.keys import Keys

BIN = sys.argv.pop(1)
PATIENCE = 120  # s, ends a hang only
# What can be read, each with the contrast between its letters and the least favourable colour behind them.
CONTRASTS = """
const parse = (text) => { const n = text.match(/[\\d.]+/g).map(Number); return [n[0], n[1], n[2], n.length > 3 ? n[3] : 1]; };
const over = (top, under) => [0, 1, 2].map((i) => top[i] * top[3] + under[i] * (1 - top[3])).concat(1);
const light = (c) => { const [r, g, b] = c.map((v) => { v /= 255; return v <= 0.04045 ? v / 12.92 : ((v + 0.055) / 1.055) ** 2.4; });
  return 0.2126 * r + 0.7152 * g + 0.0722 * b; };
const ratio = (a, b) => { const [x, y] = [light(a), light(b)]; return (Math.max(x, y) + 0.05) / (Math.min(x, y) + 0.05); };
function behind(element) {
  if (!element) return [[255, 255, 255, 1]];
  const style = getComputedStyle(element);
  const image = style.backgroundImage.includes('gradient') ? style.backgroundImage.match(/rgba?\\([^)]*\\)/g).map(parse) : null;
  const own = image || [parse(style.backgroundColor)];
  if (own.every((colour) => colour[3] === 1)) return own;
  return own.flatMap((colour) => behind(element.parentElement).map((under) => over(colour, under)));
}
const found = [];
for (const element of document.querySelectorAll('body *')) {
  const text = element.matches('select') ? element.selectedOptions[0]?.textContent
    : [...element.childNodes].filter((node) => node.nodeType === 3).map((node) => node.data.trim()).join('');
  if (!text || !element.checkVisibility() || element.closest('.unseen, option, script')) continue;
  const style = getComputedStyle(element);
  found.push([text, Math.min(...behind(element).map((colour) => ratio(over(parse(style.color), colour), colour)))]);
}
return found;
"""
KEYS = {"Scope": "F6", "Menu": "F7", "Monitor": "F8", "Setup": "F9", "Memory": "F10", "Save": "F11", "Light": "F12"}


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
        self.panel = self.begin("quvera-panel", "--port", "0", output=subprocess.PIPE)
        self.address = self.panel.stdout.readline().decode().strip()

    def start(self):
        self.processor = self.begin("quvera-processor", "--scenario", "nominal")
        eventually(lambda: os.path.exists(self.root + "/dev/mcasp"), "the processor does not start")
        self.instrument = self.begin("quvera")

    def begin(self, name, *arguments, output=None):
        log = open(os.path.join(self.root, name + ".log"), "ab")
        with log:
            return subprocess.Popen([os.path.join(BIN, name), *arguments], env=self.environment,
                                    stdin=subprocess.DEVNULL, stdout=output or log, stderr=log)

    def restart_instrument(self):
        self.stop(self.instrument)
        return lambda: setattr(self, "instrument", self.begin("quvera"))

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
                     "--window-size=1400,1000", "--user-data-dir=" + profile):
        options.add_argument(argument)
    options.set_capability("goog:loggingPrefs", {"browser": "ALL", "performance": "ALL"})
    return webdriver.Chrome(service=Service("/usr/bin/chromedriver"), options=options)


class PanelInABrowser(unittest.TestCase):
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

    def key(self, name):
        return self.page.find_element(By.CSS_SELECTOR, f'#front [data-key="{name}"]')

    def press(self, *names):
        for name in names:
            self.key(name).click()

    def type(self, *keys):
        for key in keys:
            ActionChains(self.page).send_keys(key).perform()

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

    def put(self, name, field, value):
        """Moves a slider, or chooses a word, as a person's hand does: with its events."""
        self.page.execute_script(
            "arguments[0].value = arguments[1];"
            "for (const kind of ['input', 'change']) arguments[0].dispatchEvent(new Event(kind, {bubbles: true}));",
            self.control(name).find_element(By.NAME, field), value)

    def stands(self, name, text):
        def found():
            shown = self.page.execute_script(
                "return [...document.querySelectorAll('#standing div')].map((row) => [...row.children].map("
                "(part) => part.textContent))")
            return any(row[0] == name and text in row[1] for row in shown)
        eventually(found, f"{name} does not become {text}")

    def test_keys_lead_to_the_pages_they_should(self):
        for key, title in (("Scope", "Scope"), ("Setup", "Setup"), ("Menu", "Menu"), ("Monitor", "Monitor"),
                           ("Memory", "Memory"), ("F5", "Monitor")):
            self.press(key)
            self.title_becomes(title)

    def test_touch_presses_a_key(self):
        place = self.page.execute_script(
            "const box = document.querySelector('[data-key=Setup]').getBoundingClientRect();"
            "return {x: box.x + box.width / 2, y: box.y + box.height / 2}")
        self.page.execute_cdp_cmd("Input.dispatchTouchEvent", {"type": "touchStart", "touchPoints": [place]})
        self.page.execute_cdp_cmd("Input.dispatchTouchEvent", {"type": "touchEnd", "touchPoints": []})
        self.title_becomes("Setup")

    def test_keys_of_a_keyboard_are_those_of_the_window(self):
        self.type(Keys.F9)
        self.title_becomes("Setup")
        self.type(Keys.ESCAPE)
        self.title_becomes("Menu")
        self.type(Keys.F6)
        self.title_becomes("Scope")
        self.type(Keys.F7)
        self.title_becomes("Menu")
        first = self.screen().get_attribute("src")
        self.type(Keys.ARROW_DOWN)
        eventually(lambda: self.screen().get_attribute("src") != first, "the arrow moves nothing")
        self.type(Keys.ENTER)
        eventually(lambda: "Menu" not in self.screen().get_attribute("alt"), "Enter opens nothing")

    def test_every_key_is_reached_by_the_keyboard_alone(self):
        wanted = {element.get_attribute("data-key") for element in
                  self.page.find_elements(By.CSS_SELECTOR, "#front [data-key]")}
        self.assertEqual(len(wanted), 17)
        reached = set()
        for _ in range(400):
            self.type(Keys.TAB)
            reached.add(self.page.execute_script("return document.activeElement.dataset.key || ''"))
            if wanted <= reached:
                break
        self.assertEqual(wanted - reached, set())
        self.page.execute_script("document.querySelector('[data-key=Setup]').focus()")
        self.type(Keys.SPACE)
        self.title_becomes("Setup")

    def test_held_arrow_comes_again_and_a_held_key_once(self):
        self.page.execute_script(
            "window.sent = []; const real = window.fetch;"
            "window.fetch = (path, wish) => { if (path === 'key') window.sent.push(JSON.parse(wish.body).key);"
            "  return real(path, wish); }")
        for name in ("Light", "Right"):
            ActionChains(self.page).click_and_hold(self.key(name)).perform()
            if name == "Right":
                eventually(lambda: self.page.execute_script("return window.sent.length") > 4, "the arrow does not come again")
            else:
                time.sleep(1.5)  # longer than an arrow waits before it comes again
            ActionChains(self.page).release().perform()
        sent = self.page.execute_script("return window.sent")
        self.assertEqual(sent.count("Light"), 1)
        self.assertEqual(set(sent[1:]), {"Right"})
        self.page.refresh()
        self.title_becomes("Menu")

    def test_picture_changes_by_itself(self):
        self.press("Scope")
        self.title_becomes("Scope")
        before = self.count(self.page)
        eventually(lambda: self.count(self.page) > before + 3, "the picture stands still")
        size = self.page.execute_script(
            "const image = document.getElementById('screen'); return [image.naturalWidth, image.naturalHeight]")
        self.assertEqual(size, [640, 480])

    def test_soft_keys_say_what_the_screen_says(self):
        self.press("Setup")
        eventually(lambda: self.key("F4").get_attribute("aria-label") == "F4: Clamp", "F4 is not Clamp")
        self.assertEqual(self.key("F1").accessible_name, "F1: Config")

    def test_button_makes_a_dip_that_the_event_list_shows(self):
        self.desk.restart_instrument()()  # its menu begins at Volts/Amps/Hertz, above Dips&Swells
        self.title_becomes("Menu")
        eventually(lambda: not self.page.find_element(By.ID, "gone").is_displayed(), "the start goes unnoticed")
        self.press("Down", "Enter")
        self.title_becomes("Dips&Swells")
        # The first ten seconds of a measurement measure nothing.
        eventually(lambda: re.search(r"(?<![-:\d])00:00:0[2-9]", self.texts()), "the measurement does not begin")
        self.press("F2")
        eventually(lambda: "EVENTS : 0/0" in self.texts(), "the list is not empty")
        self.put("dip", "on", "l2")
        self.put("dip", "level", 55)
        self.put("dip", "ms", 300)
        self.control("dip").find_element(By.TAG_NAME, "button").click()
        eventually(lambda: self.page.find_element(By.ID, "said").text == "Dip: done", "the dip is refused")
        row = r"\d{4}/\d\d/\d\d \d\d:\d\d:\d\d L2 DIP 126\.[3-7] 00:00:00:(2[89]|3[012])\d"  # V, of 230 V; a period more or less
        eventually(lambda: re.search(row, self.texts()), lambda: "no such dip in the list: " + self.texts())
        self.assertIn("EVENTS : 1/1", self.texts())

    def test_sliders_change_what_stands_at_the_inputs(self):
        self.put("volts", "volts", 221.5)
        self.stands("Voltages set", "221.5 / 221.5 / 221.5 V")
        self.put("volts", "phase", "2")
        self.put("volts", "volts", 210)
        self.stands("Voltages set", "221.5 / 210.0 / 221.5 V")
        self.put("frequency", "hertz", 50.5)
        self.stands("Frequency", "50.5")

    def test_scenarios_are_played_by_name(self):
        self.put("scenario", "scenario", "unbalance")
        self.control("scenario").find_element(By.TAG_NAME, "button").click()
        self.stands("Scenario", "unbalance")

    def test_board_is_at_hand(self):
        self.control("usbIn").find_element(By.TAG_NAME, "button").click()
        self.stands("USB disk", "STICK")
        self.assertTrue(os.path.isdir(self.desk.root + "/run/media/STICK"))
        self.control("usbOut").find_element(By.TAG_NAME, "button").click()
        self.stands("USB disk", "none")
        self.put("charger", "state", "on")
        gpio = self.desk.root + "/sys/class/gpio/gpio105/value"
        eventually(lambda: pathlib.Path(gpio).read_text(encoding="ascii").strip() == "1", "the charger stays off")
        self.put("charger", "state", "off")

    def test_light_dims_the_screen(self):
        self.press("Light")
        eventually(lambda: self.screen().get_attribute("data-light") not in (None, "7"), "the light stays")
        self.assertIn("brightness", self.screen().value_of_css_property("filter"))
        for _ in range(8):  # around to the brightest
            if self.screen().get_attribute("data-light") == "7":
                break
            before = self.screen().get_attribute("data-light")
            self.press("Light")
            eventually(lambda: self.screen().get_attribute("data-light") != before, "the light stays")
        self.assertEqual(self.screen().get_attribute("data-light"), "7")

    def test_every_control_stands_at_the_inputs_once(self):
        self.control("dip")
        with urllib.request.urlopen(self.desk.address + "controls") as table:
            names = [control["id"] for control in json.load(table)]
        self.assertGreater(len(names), 20)
        for name in names:
            self.assertEqual(len(self.page.find_elements(By.CSS_SELECTOR, f'[data-control="{name}"]')), 1, name)

    def test_controls_begin_as_things_stand(self):
        self.put("volts", "volts", 217.5)
        self.stands("Voltages set", "217.5 / 217.5 / 217.5 V")
        self.put("speed", "factor", "2")
        self.stands("Speed", "2")
        self.page.refresh()
        slider = self.control("volts").find_element(By.NAME, "volts")
        eventually(lambda: slider.get_property("value") == "217.5", "the slider stands elsewhere")
        speed = self.control("speed").find_element(By.NAME, "factor")
        eventually(lambda: speed.get_property("value") == "2", "the speed stands elsewhere")
        self.put("volts", "phase", "2")
        self.put("volts", "volts", 210)
        self.stands("Voltages set", "217.5 / 210.0 / 217.5 V")
        self.put("volts", "phase", "1")  # the slider is that phase's at once
        self.assertEqual(slider.get_property("value"), "217.5")
        self.put("speed", "factor", "1")
        self.stands("Speed", "1")

    def test_letters_stand_out_in_light_and_dark(self):
        self.control("dip")
        self.texts()
        self.addCleanup(self.page.execute_cdp_cmd, "Emulation.setEmulatedMedia", {"features": []})
        papers = set()
        for scheme in ("light", "dark"):
            self.page.execute_cdp_cmd("Emulation.setEmulatedMedia",
                                      {"features": [{"name": "prefers-color-scheme", "value": scheme}]})
            papers.add(self.page.find_element(By.TAG_NAME, "body").value_of_css_property("background-color"))
            measured = self.page.execute_script(CONTRASTS)
            self.assertGreater(len(measured), 60)
            self.assertEqual([row for row in measured if row[1] < 4.5], [], scheme)
        self.assertEqual(len(papers), 2)

    def test_programs_that_read_aloud_find_keys_screen_and_news(self):
        nodes = self.page.execute_cdp_cmd("Accessibility.getFullAXTree", {})["nodes"]
        seen = [(node.get("role", {}).get("value"), node.get("name", {}).get("value")) for node in nodes
                if not node.get("ignored")]
        for name in ("Scope", "Menu", "Monitor", "Setup", "Memory", "Save", "Light", "Power", "Up", "Left", "Enter", "Right",
                     "Down"):
            self.assertIn(("button", name), seen)
        self.assertEqual([role for role, name in seen if (name or "").startswith("Screen, where")], ["application"])
        for role, name in (("region", "Front of the instrument"), ("region", "At the inputs"), ("group", "Soft keys"),
                           ("slider", "Frequency"), ("navigation", "Panel")):
            self.assertIn((role, name), seen)
        spoken = self.page.find_element(By.ID, "spoken")
        self.assertEqual(spoken.get_attribute("aria-live"), "polite")
        self.press("Setup")
        eventually(lambda: spoken.get_property("textContent") == "Setup", "the new page is not spoken of")

    def test_focus_goes_as_one_reads(self):
        self.page.execute_script("document.getElementById('save').focus()")
        order = []
        for _ in range(19):
            self.type(Keys.TAB)
            order.append(self.page.execute_script(
                "const at = document.activeElement; return at.id || at.dataset.key || at.textContent"))
        self.assertEqual(order, ["glass", "F1", "F2", "F3", "F4", "F5", "Scope", "Menu", "Monitor", "Setup", "Memory", "Save",
                                 "Light", "Power", "Up", "Left", "Enter", "Right", "Down"])

    def test_controls_have_names(self):
        self.control("dip")
        nameless = [element.get_attribute("outerHTML")[:80] for element in
                    self.page.find_elements(By.CSS_SELECTOR, "button, input, select, img, a, summary")
                    if not element.accessible_name]
        self.assertEqual(nameless, [])

    def test_narrow_window_keeps_everything_in_reach(self):
        self.addCleanup(self.page.execute_cdp_cmd, "Emulation.clearDeviceMetricsOverride", {})
        self.page.execute_cdp_cmd("Emulation.setDeviceMetricsOverride",
                                  {"width": 360, "height": 740, "deviceScaleFactor": 2, "mobile": True})
        eventually(lambda: self.page.execute_script("return innerWidth") == 360, "the window stays wide")
        self.assertLessEqual(self.page.execute_script("return document.documentElement.scrollWidth"), 360)
        for element in self.page.find_elements(By.CSS_SELECTOR, "#front button, #screen, #supply button, #supply input"):
            box = element.rect
            self.assertGreaterEqual(box["x"], 0, element.get_attribute("outerHTML"))
            self.assertLessEqual(box["x"] + box["width"], 360, element.get_attribute("outerHTML"))
        for element in self.page.find_elements(By.CSS_SELECTOR, "#front button"):
            self.assertGreaterEqual(element.rect["height"], 44)
        self.press("Setup")
        self.title_becomes("Setup")

    def test_two_viewers_see_the_same(self):
        two = browser(os.path.join(self.folder.name, "two"))
        self.addCleanup(two.quit)
        two.get(self.desk.address)
        self.title_becomes("Menu", two)
        two.find_element(By.CSS_SELECTOR, '[data-key="Memory"]').click()
        self.title_becomes("Memory")
        self.title_becomes("Memory", two)

    def test_instrument_ends_and_starts_behind_it(self):
        start_again = self.desk.restart_instrument()
        try:
            self.verify_it_is_gone()
        finally:
            start_again()  # for the other tests, too
        gone = self.page.find_element(By.ID, "gone")
        eventually(lambda: not gone.is_displayed(), "the start goes unnoticed")
        self.press("Setup")
        self.title_becomes("Setup")

    def verify_it_is_gone(self):
        gone = self.page.find_element(By.ID, "gone")
        eventually(gone.is_displayed, "the end goes unnoticed")
        self.assertIn("does not answer", self.page.find_element(By.ID, "state").text)
        self.assertIn("last picture", gone.text)
        self.assertIn("grayscale", self.screen().value_of_css_property("filter"))  # no value looks as if it were of now
        self.page.refresh()  # one who comes now is shown the same
        eventually(lambda: "last picture" in self.page.find_element(By.ID, "gone").text,
                   "the old picture passes for a new one")

    def test_processor_ends_and_starts_behind_it(self):
        self.desk.stop(self.desk.processor)
        said = self.page.find_element(By.ID, "said")
        eventually(lambda: said.text == "The processor stand-in does not answer", "the end goes unnoticed")
        self.desk.processor = self.desk.begin("quvera-processor", "--scenario", "swell")
        self.stands("Scenario", "swell")
        eventually(lambda: said.text == "", "the start goes unnoticed")
        self.put("frequency", "hertz", 51)
        self.stands("Frequency", "51.0")

    def test_panel_started_first_waits_for_its_instrument(self):
        alone = os.path.join(self.folder.name, "alone")
        os.mkdir(alone)
        desk = Desk(alone, starts=False)
        self.addCleanup(desk.end)
        two = browser(os.path.join(self.folder.name, "waits"))
        self.addCleanup(two.quit)
        two.get(desk.address)
        gone = two.find_element(By.ID, "gone")
        eventually(lambda: "does not answer" in gone.text, "nothing is said")
        self.assertNotIn("last picture", gone.text)
        self.assertFalse(two.find_element(By.ID, "save").is_displayed())
        desk.start()
        self.title_becomes("Menu", two)
        eventually(lambda: not gone.is_displayed(), "the start goes unnoticed")
        eventually(lambda: two.find_elements(By.CSS_SELECTOR, '[data-control="dip"]'), "no controls come")

    def test_help_opens_the_guide(self):
        self.press("Setup")
        self.title_becomes("Setup")
        guide = self.desk.address + "guide/"
        link = self.page.find_element(By.ID, "help")
        eventually(lambda: link.get_attribute("href") == guide + "guide/pages.html#setup", "help is that of another page")
        link.click()
        eventually(lambda: len(self.page.window_handles) == 2, "help opens nothing")
        panel = self.page.current_window_handle
        self.page.switch_to.window(next(handle for handle in self.page.window_handles if handle != panel))
        try:
            self.assertEqual(self.page.current_url, guide + "guide/pages.html#setup")
            self.assertEqual(self.page.find_element(By.TAG_NAME, "h1").text, "The pages")
        finally:
            self.page.close()
            self.page.switch_to.window(panel)

    def test_zz_nothing_was_asked_elsewhere_and_no_script_failed(self):
        """Last by its name: reads what the browser noted during all the others."""
        asked = []
        for entry in self.page.get_log("performance"):
            message = json.loads(entry["message"])["message"]
            if message["method"] == "Network.requestWillBeSent":
                asked.append(message["params"]["request"]["url"])
        self.assertGreater(len(asked), 50)
        foreign = [url for url in asked if not url.startswith((self.desk.address, "data:", "blob:", "chrome:"))]
        self.assertEqual(foreign, [])
        noted = [entry["message"] for entry in self.page.get_log("browser") if entry["level"] == "SEVERE"]
        self.assertEqual(noted, [])


if __name__ == "__main__":
    unittest.main(verbosity=2)
