#!/usr/bin/python3
"""The panel in a real browser: a person's way through the page is gone: keys, pictures, controls, a narrow window, two
viewers."""
import json
import os
import pathlib
import re
import time
import unittest
import urllib.request

from selenium.webdriver.common.action_chains import ActionChains
from selenium.webdriver.common.by import By
from selenium.webdriver.common.keys import Keys

from panelcase import PanelCase, browser, eventually

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


class PanelInABrowser(PanelCase):
    def test_keys_lead_to_the_pages_they_should(self):
        for key, title in (("Scope", "Scope"), ("Setup", "Setup"), ("Menu", "Menu"), ("Monitor", "Monitor"),
                           ("Memory", "Memory"), ("F5", "Monitor")):
            self.press(key)
            self.title_becomes(title)

    def touch(self, *places):
        """Fingers where there was none, or none where there were some."""
        self.page.execute_cdp_cmd("Input.dispatchTouchEvent",
                                  {"type": "touchStart" if places else "touchEnd", "touchPoints": list(places)})

    def place_of(self, key):
        return self.page.execute_script(
            "const box = arguments[0].getBoundingClientRect();"
            "return {x: box.x + box.width / 2, y: box.y + box.height / 2}", self.key(key))

    def note_sent_keys(self):
        """Returns what gives the keys that the page has sent since; the page is loaded anew behind the test."""
        self.page.execute_script(
            "window.sent = []; const real = window.fetch;"
            "window.fetch = (path, wish) => { if (path === 'key') window.sent.push(JSON.parse(wish.body).key);"
            "  return real(path, wish); }")
        self.addCleanup(self.page.refresh)
        return lambda: self.page.execute_script("return window.sent")

    def test_touch_presses_a_key(self):
        def touch_setup():
            self.touch(self.place_of("Setup"))
            self.touch()
        self.taken(touch_setup)
        self.title_becomes("Setup")

    def test_two_fingers_on_an_arrow_leave_nothing_behind(self):
        sent = self.note_sent_keys()
        place = self.place_of("Up")
        self.touch(dict(place, id=0), dict(place, x=place["x"] + 4, id=1))
        eventually(lambda: len(sent()) > 6, "the arrow does not come again")
        self.touch()
        time.sleep(0.5)
        # What was on its way.
        eventually(lambda: self.page.execute_script("return waiting") == 0, "a key waits for ever")
        before = len(sent())
        time.sleep(1.5)  # longer than an arrow waits before it comes again
        self.assertEqual(len(sent()), before)
        self.assertEqual(set(sent()), {"Up"})

    def test_held_enter_presses_a_button_once(self):
        sent = self.note_sent_keys()
        self.page.execute_script("arguments[0].focus()", self.key("Light"))
        enter = {"key": "Enter", "code": "Enter", "windowsVirtualKeyCode": 13, "text": "\r"}
        for repeats in (False, True, True, True):
            self.page.execute_cdp_cmd("Input.dispatchKeyEvent", dict(enter, type="keyDown", autoRepeat=repeats))
            time.sleep(0.2)
        self.page.execute_cdp_cmd("Input.dispatchKeyEvent", dict(enter, type="keyUp"))
        eventually(sent, "the button is not pressed")
        time.sleep(0.5)
        self.assertEqual(sent(), ["Light"])

    def test_held_key_of_the_keyboard_counts_once_and_a_held_arrow_comes_again(self):
        sent = self.note_sent_keys()
        self.page.execute_script("document.getElementById('glass').focus()")
        for key, code in (("F12", 123), ("ArrowUp", 38)):
            stroke = {"key": key, "code": key, "windowsVirtualKeyCode": code}
            for repeats in (False, True, True, True):
                self.page.execute_cdp_cmd("Input.dispatchKeyEvent", dict(stroke, type="keyDown", autoRepeat=repeats))
                eventually(lambda: self.page.execute_script("return waiting") == 0, "no key is taken")
            self.page.execute_cdp_cmd("Input.dispatchKeyEvent", dict(stroke, type="keyUp"))
        self.assertEqual(sent(), ["Light", "Up", "Up", "Up", "Up"])

    def test_escape_leaves_no_button_pressed_behind_a_question_that_it_ended(self):
        pressed = self.page.execute_script(
            "const stroke = (kind) => document.body.dispatchEvent(new KeyboardEvent(kind, {key: 'Escape', code: 'Escape', bubbles: true}));"
            "const pressed = () => [...document.querySelectorAll('#front .pressed')].map((button) => button.dataset.key);"
            "notes = {...notes, Dialog: 'Quit?'}; stroke('keydown'); const before = pressed();"
            "notes = {...notes, Dialog: ''}; stroke('keyup'); return [before, pressed()]")
        self.assertEqual(pressed, [["F5"], []])

    def test_keys_count_in_a_page_that_was_open_while_two_clocks_drifted_apart(self):
        self.addCleanup(self.page.refresh)
        eventually(lambda: self.page.execute_script("return Number.isFinite(clockAhead)"), "no beat comes")
        # The beats of a day, and the 70 millionths by which the page's clock may be faster.
        self.page.execute_script(
            "const now = clockAhead, beats = 43200, drift = 6000;"
            "clockAhead += drift;"
            "for (let beat = 1; beat <= beats; ++beat) {"
            "  const at = performance.now() + now + drift * (1 - beat / beats);"
            "  source.dispatchEvent(new MessageEvent('beat', {data: JSON.stringify({at})}));"
            "}")
        self.press("Setup")
        self.title_becomes("Setup")

    def test_keys_of_a_keyboard_are_those_of_the_window(self):
        self.strike(Keys.F9)
        self.title_becomes("Setup")
        self.strike(Keys.ESCAPE)
        self.title_becomes("Menu")
        self.strike(Keys.F6)
        self.title_becomes("Scope")
        self.strike(Keys.F7)
        self.title_becomes("Menu")
        first = self.screen().get_attribute("src")
        self.strike(Keys.ARROW_DOWN)
        eventually(lambda: self.screen().get_attribute("src") != first, "the arrow moves nothing")
        self.strike(Keys.ENTER)
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
        self.strike(Keys.SPACE)
        self.title_becomes("Setup")

    def test_held_arrow_comes_again_and_a_held_key_once(self):
        sent = self.note_sent_keys()
        for name in ("Light", "Right"):
            ActionChains(self.page).click_and_hold(self.key(name)).perform()
            if name == "Right":
                eventually(lambda: len(sent()) > 4, "the arrow does not come again")
            else:
                time.sleep(1.5)  # longer than an arrow waits before it comes again
            ActionChains(self.page).release().perform()
        self.assertEqual(sent().count("Light"), 1)
        self.assertEqual(set(sent()[1:]), {"Right"})

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

    def start_anew(self):
        """The instrument's menu begins at Volts/Amps/Hertz, above Dips&Swells."""
        self.desk.end_instrument()
        gone = self.page.find_element(By.ID, "gone")
        eventually(gone.is_displayed, "the end goes unnoticed")
        self.desk.start_instrument()
        self.title_becomes("Menu")
        eventually(lambda: not gone.is_displayed(), "the start goes unnoticed")

    def test_button_makes_a_dip_that_the_event_list_shows(self):
        self.start_anew()
        self.walk("Down", "Enter")
        self.title_becomes("Dips&Swells")
        # The first ten seconds of a measurement measure nothing.
        eventually(lambda: re.search(r"(?<![-:\d])00:00:0[2-9]", self.texts()), "the measurement does not begin")
        self.press("F2")
        eventually(lambda: "EVENTS : 0/0" in self.texts(), "the list is not empty")
        self.put("dip", "on", "l2")
        self.put("dip", "level", 55)
        self.put("dip", "ms", 300)
        self.push("dip")
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
        self.push("scenario")
        self.stands("Scenario", "unbalance")

    def test_board_is_at_hand(self):
        self.push("usbIn")
        self.stands("USB disk", "STICK")
        self.assertTrue(os.path.isdir(self.desk.root + "/run/media/STICK"))
        self.push("usbOut")
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

    def test_light_is_told_as_the_instrument_tells_it(self):
        self.start_anew()
        self.walk("Down", "Down", "Right", "Right", "Enter")
        self.title_becomes("User")
        told = set()
        for _ in range(4):
            before = self.texts()
            self.press("Light")
            eventually(lambda: self.texts() != before, "the light stays")
            step = re.search(r"\d / 4", self.texts()).group()
            self.stands("Light now", step)
            told.add(step)
        self.assertEqual(told, {"1 / 4", "2 / 4", "3 / 4", "4 / 4"})

    def show(self, width, height, mobile):
        self.page.execute_cdp_cmd("Emulation.setDeviceMetricsOverride",
                                  {"width": width, "height": height, "deviceScaleFactor": 1, "mobile": mobile})
        eventually(lambda: self.page.execute_script("return innerWidth") == width, "the window stays as it was")

    def is_seen(self, element):
        """Whole in the window, nothing before it."""
        return self.page.execute_script(
            "const box = arguments[0].getBoundingClientRect();"
            "return box.height > 0 && box.top >= 0 && box.bottom <= innerHeight && box.left >= 0 && box.right <= innerWidth"
            "  && document.elementFromPoint(box.x + box.width / 2, box.y + box.height / 2) === arguments[0]", element)

    def answer_is_seen(self, name, answer):
        self.push(name)
        said = self.page.find_element(By.ID, "said")
        eventually(lambda: answer in said.text, lambda: f"not {answer}, but {said.text}")
        self.assertTrue(self.is_seen(said), answer)
        return said

    def test_answer_of_a_control_is_seen_where_it_was_pressed(self):
        self.control("dip")
        self.addCleanup(self.page.execute_cdp_cmd, "Emulation.clearDeviceMetricsOverride", {})
        for size in ((1280, 857, False), (360, 740, True)):
            self.show(*size)
            for name in ("dip", "usbIn", "faultOff"):
                self.answer_is_seen(name, "done")
            self.assertNotIn("failed", self.answer_is_seen("clear", "done").get_attribute("class"))
            self.assertIn("failed", self.answer_is_seen("usbIn", "STICK is in already").get_attribute("class"))
            self.answer_is_seen("usbOut", "done")

    def show_anew(self, *size):
        """The window back to its size, and the page as it is for one who comes."""
        if not size:
            self.page.execute_cdp_cmd("Emulation.clearDeviceMetricsOverride", {})
            self.page.refresh()
            return
        self.show(*size)
        self.page.execute_script("document.getElementById('page').scrollTop = 0; say('')")

    def test_line_of_answers_hides_nothing_that_somebody_is_at(self):
        self.control("dip")
        self.addCleanup(self.show_anew)
        overlap = ("const line = document.getElementById('said').getBoundingClientRect();"
                   "const box = document.activeElement.getBoundingClientRect(); return box.bottom - line.top;")
        for size in ((1280, 857, False), (360, 740, True)):
            self.show_anew(*size)
            self.page.execute_script("document.querySelector('#controls select').focus()")
            inputs = self.page.find_elements(By.CSS_SELECTOR, "#controls :is(button, input, select)")
            self.assertGreater(len(inputs), 40)
            for _ in inputs[1:]:
                self.assertLess(self.page.execute_script(overlap), 0)
                self.type(Keys.TAB)
            # As low as it may be, and then the line comes.
            for element in inputs[10:20]:
                self.page.execute_script(
                    "say(''); arguments[0].focus({preventScroll: true});"
                    "const box = arguments[0].getBoundingClientRect();"
                    "document.getElementById('page').scrollBy(0, box.bottom - innerHeight);", element)
                self.page.execute_script("answer({label: 'Dip'}, 'it may not be that '.repeat(12), true)")
                self.assertLess(self.page.execute_script(overlap), 1)

    def test_line_of_answers_lies_over_no_control(self):
        self.control("dip")
        self.addCleanup(self.show_anew)
        lowest = ("const [element, text] = arguments, page = document.getElementById('page'); say(text);"
                  "const bottom = page.getBoundingClientRect().bottom;"
                  "page.scrollBy(0, element.getBoundingClientRect().bottom - bottom);"
                  "const box = element.getBoundingClientRect();"
                  "const hit = document.elementFromPoint(box.x + box.width / 2, box.y + box.height / 2);"
                  "return element.contains(hit);")
        for size in ((1280, 900, False), (800, 600, False), (480, 900, False), (360, 740, True)):
            self.show_anew(*size)
            self.assertEqual(self.page.find_element(By.ID, "said").rect["height"], 0)
            for text in ("", "Dip: done", "it may not be that " * 12):
                for element in self.page.find_elements(By.CSS_SELECTOR, "#controls :is(button, input, select), summary"):
                    self.assertTrue(self.page.execute_script(lowest, element, text),
                                    f"{element.accessible_name} at {size} below \"{text}\"")
            # What a person sees is what the page leaves to be seen.
            self.assertEqual(self.page.execute_script(
                "return [document.getElementById('page'), document.getElementById('said')].map((part) =>"
                " part.getBoundingClientRect()).reduce((upper, lower) => upper.bottom - lower.top)"), 0)

    def test_keys_that_scroll_find_the_page(self):
        self.addCleanup(self.show_anew)
        self.show(360, 740, True)
        self.page.refresh()
        place = "return document.getElementById('page').scrollTop"
        self.control("dip")
        for key, there in ((Keys.PAGE_DOWN, lambda at: at > 300), (Keys.HOME, lambda at: at == 0),
                           (Keys.END, lambda at: at > 1000), (Keys.PAGE_UP, lambda at: at > 300)):
            eventually(lambda: self.type(key) or there(self.page.execute_script(place)), "the page stands still")

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

    def test_what_the_arrows_stand_on_is_said(self):
        selected = self.page.find_element(By.ID, "selected")
        self.assertEqual(selected.get_attribute("aria-live"), "polite")

        def said():
            return selected.get_property("textContent")
        self.go_to("Menu", "Menu")
        eventually(lambda: said().startswith("Selected: "), "no tile is said")
        first = said()
        self.press("Right")
        eventually(lambda: said().startswith("Selected: ") and said() != first, "the next tile is not said")
        self.press("Left")
        eventually(lambda: said() == first, "the tile before is not said")

    def test_slider_says_its_value_itself_and_once(self):
        self.put("frequency", "hertz", 50.5)
        self.stands("Frequency", "50.5")
        nodes = [node for node in self.page.execute_cdp_cmd("Accessibility.getFullAXTree", {})["nodes"] if not node["ignored"]]
        def named(role):
            return [node for node in nodes if node["role"]["value"] == role]
        self.assertIn("Frequency", [node["name"]["value"] for node in named("slider")])
        self.assertEqual(self.control("frequency").find_element(By.NAME, "hertz").get_attribute("aria-valuetext"), "50.50 Hz")
        self.assertEqual([node for node in nodes if node["role"]["value"] != "slider"
                          and "50.50 Hz" in str(node.get("name", {}).get("value"))], [])
        # What is spoken by itself is meant to be.
        self.assertEqual(len(named("status")), len(self.page.find_elements(By.CSS_SELECTOR, '[role="status"]')))
        self.assertEqual(self.page.find_elements(By.CSS_SELECTOR, "#controls [role=status], #controls [aria-live]"), [])

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

    def test_screen_and_all_keys_are_seen_together(self):
        self.addCleanup(self.show_anew)
        for size in ((1280, 900), (1280, 720), (1024, 768), (800, 600)):
            self.show_anew(*size, False)
            self.page.execute_script("arguments[0].scrollIntoView({block: 'end'})", self.key("Down"))
            self.assertGreaterEqual(self.screen().rect["width"], 350, size)
            for element in (self.screen(), self.key("F3"), self.key("Menu"), self.key("Down")):
                self.assertTrue(self.is_seen(element), (size, element.accessible_name))

    def test_two_viewers_see_the_same(self):
        two = browser(os.path.join(self.folder.name, "two"))
        self.addCleanup(two.quit)
        two.get(self.desk.address)
        self.title_becomes("Menu", two)
        self.press("Memory", page=two)
        self.title_becomes("Memory")
        self.title_becomes("Memory", two)

    def test_help_opens_the_guide(self):
        self.press("Setup")
        self.title_becomes("Setup")
        guide = self.desk.address + "guide/"
        link = self.page.find_element(By.ID, "help")
        eventually(lambda: link.get_attribute("href") == guide + "guide/pages.html#setup", "help is that of another page")
        for key, section in (("F1", "wiring"), ("F5", "setup"), ("F4", "clamps-and-transformers"), ("F5", "setup")):
            self.press(key)
            eventually(lambda: link.get_attribute("href") == guide + "guide/pages.html#" + section,
                       lambda: f"{section} is not opened, but {link.get_attribute('href')}")
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
        said = " - Failed to load resource: the server responded with a status of "
        refused = tuple(self.desk.address + what for what in ("control" + said + "400", "key" + said + "409"))
        noted = [entry["message"] for entry in self.page.get_log("browser")
                 if entry["level"] == "SEVERE" and not entry["message"].startswith(refused)]  # a wish that cannot be, a late key
        self.assertEqual(noted, [])


if __name__ == "__main__":
    unittest.main(verbosity=2)
