#!/usr/bin/python3
"""The panel in a real browser when something is amiss: an instrument, a processor or a panel that ends or stands still, too many
viewers and tabs, a link from elsewhere."""
import http.server
import os
import pathlib
import signal
import socket
import threading
import time
import unittest

from selenium.webdriver.common.by import By

from panelcase import Desk, PanelCase, browser, eventually


class PanelInTrouble(PanelCase):
    def test_instrument_ends_and_starts_behind_it(self):
        self.desk.end_instrument()
        try:
            self.verify_it_is_gone()
        finally:
            self.desk.start_instrument()  # for the other tests, too
        gone = self.page.find_element(By.ID, "gone")
        eventually(lambda: not gone.is_displayed(), "the start goes unnoticed")
        self.stands("Light now", " / 4")
        self.press("Setup")
        self.title_becomes("Setup")

    def verify_it_is_gone(self):
        gone = self.page.find_element(By.ID, "gone")
        eventually(gone.is_displayed, "the end goes unnoticed")
        self.assertIn("does not answer", self.page.find_element(By.ID, "state").text)
        self.assertIn("last picture", gone.text)
        self.assertIn("The panel goes on asking", gone.text)
        self.assertIn("grayscale", self.screen().value_of_css_property("filter"))  # no value looks as if it were of now
        self.assertEqual(self.standing()["Light now"], "unknown")
        self.assertIn("Hz", self.standing()["Frequency"])  # which the stand-in tells
        self.page.refresh()  # one who comes now is shown the same
        eventually(lambda: "last picture" in self.page.find_element(By.ID, "gone").text,
                   "the old picture passes for a new one")

    def test_processor_ends_and_starts_behind_it(self):
        self.push("usbIn")
        self.stands("USB disk", "STICK")
        self.desk.stop(self.desk.processor)
        said = self.page.find_element(By.ID, "said")
        eventually(lambda: said.text == "The processor stand-in does not answer", "the end goes unnoticed")
        stands = self.standing()
        self.assertRegex(stands.pop("Light now"), "[1-4] / 4")  # which the instrument tells
        self.assertEqual(set(stands.values()), {"unknown"}, stands)
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

    def another_panel(self, *arguments):
        """Before the same instrument, with a browser of its own: what fails there is noted there."""
        panel, address = self.desk.begin_panel(*arguments)
        self.addCleanup(panel.stdout.close)
        self.addCleanup(self.desk.stop, panel)
        page = browser(os.path.join(self.folder.name, self.id().rpartition(".")[2]))
        self.addCleanup(page.quit)
        return panel, address, page

    def test_panel_that_stands_still_does_not_pass_for_a_live_one(self):
        panel, address, page = self.another_panel()
        page.get(address)
        self.title_becomes("Menu", page)
        gone = page.find_element(By.ID, "gone")
        eventually(lambda: not gone.is_displayed(), "the instrument is not there")
        self.stands("Link faults", "none", page)
        eventually(lambda: page.find_elements(By.CSS_SELECTOR, '[data-control="dip"]'), "no controls come")
        panel.send_signal(signal.SIGSTOP)
        try:
            for name in ("Setup", "Memory", "Scope", "Monitor"):
                page.find_element(By.CSS_SELECTOR, f'#front [data-key="{name}"]').click()
            eventually(gone.is_displayed, "the old picture passes for a new one")
            self.assertIn("The panel does not answer", gone.text)
            self.assertIn("last picture", gone.text)
            self.assertIn("This page goes on asking", gone.text)
            self.assertEqual(page.find_element(By.ID, "state").text, "The panel does not answer")
            self.assertGreater(len(self.standing(page)), 6)
            self.assertEqual(set(self.standing(page).values()), {"unknown"}, self.standing(page))
            self.assertEqual(page.find_element(By.ID, "said").text, "What stands at the inputs is not known")
            self.assertEqual(self.followers(page), {"unknown", ""})
            self.assertIn("grayscale", self.screen(page).value_of_css_property("filter"))
        finally:
            panel.send_signal(signal.SIGCONT)
        eventually(lambda: not gone.is_displayed(), "the panel's return goes unnoticed")
        self.stands("Link faults", "none", page)
        self.assertEqual(page.find_element(By.ID, "said").text, "")
        self.assertTrue({"230.0 V", "up"} <= self.followers(page), self.followers(page))
        self.assertFalse({"unknown", ""} & self.followers(page), self.followers(page))
        time.sleep(2)  # as long as a key that waited would need
        self.title_becomes("Menu", page)
        self.assertEqual(self.screen().get_attribute("alt"), "Screen of the instrument: Menu")
        self.press("Setup", page=page)
        self.title_becomes("Setup")

    def test_panel_without_a_desk_says_nothing_of_inputs(self):
        panel, address, page = self.another_panel("--instrument", "127.0.0.1")
        page.get(address)
        self.title_becomes("Menu", page)
        self.desk.stop(panel)
        eventually(page.find_element(By.ID, "gone").is_displayed, "the end goes unnoticed")
        self.assertEqual(page.find_element(By.ID, "said").get_property("textContent"), "")
        self.assertFalse(page.find_element(By.ID, "supply").is_displayed())

    @staticmethod
    def followers(page):
        """What the controls say that follow how things stand."""
        return set(page.execute_script(
            "return Object.entries(standing).flatMap(([id, fields]) => Object.keys(fields).map((name) => {"
            "  const input = document.querySelector(`[data-control=${id}] [name=${name}]`);"
            "  return input.getAttribute('aria-valuetext') || input.value; }))"))

    def test_tabs_that_nobody_sees_keep_no_connection(self):
        _, address, page = self.another_panel()
        for number in range(8):  # a browser has six connections for all of them
            if number > 0:
                page.switch_to.new_window("tab")
            page.get(address)
            self.title_becomes("Menu", page)
        self.press("Setup", page=page)
        self.title_becomes("Setup", page)
        page.switch_to.window(page.window_handles[0])  # seen again, it goes on
        self.title_becomes("Setup", page)
        gone = page.find_element(By.ID, "gone")
        eventually(lambda: not gone.is_displayed(), "the tab does not come back")

    def test_one_viewer_too_many_is_told_so(self):
        _, address, page = self.another_panel()
        host = address.split("/")[2]
        viewers = [socket.create_connection(host.split(":")) for _ in range(40)]
        for viewer in viewers:
            self.addCleanup(viewer.close)
            viewer.sendall(f"GET /events HTTP/1.1\r\nHost: {host}\r\n\r\n".encode("ascii"))
            self.assertTrue(viewer.recv(1))  # it has its seat
        page.get(address)
        gone = page.find_element(By.ID, "gone")
        eventually(lambda: "Too many look on already" in gone.text, lambda: "not said, but " + gone.text)
        viewers[0].close()
        eventually(lambda: not gone.is_displayed(), "nobody takes the seat")

    def test_link_in_another_page_opens_the_panel_with_its_token(self):
        token = os.path.join(self.folder.name, "token")
        pathlib.Path(token).write_text("0123456789abcdefXYZ\n", encoding="ascii")
        _, address, page = self.another_panel("--token-file", token)
        self.assertIn("?token=", address)
        letter = f'<!DOCTYPE html><title>Mail</title><a href="{address}">the panel</a>'.encode("ascii")

        class Mail(http.server.BaseHTTPRequestHandler):
            def do_GET(self):
                self.send_response(200)
                self.send_header("Content-Type", "text/html")
                self.end_headers()
                self.wfile.write(letter)

            def log_message(self, *_):
                pass

        mail = http.server.ThreadingHTTPServer(("127.0.0.1", 0), Mail)
        self.addCleanup(mail.server_close)
        threading.Thread(target=mail.serve_forever, daemon=True).start()
        self.addCleanup(mail.shutdown)
        page.get(f"http://localhost:{mail.server_port}/")  # another site than the address
        page.find_element(By.TAG_NAME, "a").click()
        eventually(lambda: page.title == "Quvera", lambda: "not the panel, but " + page.find_element(By.TAG_NAME, "body").text)
        self.assertNotIn("token", page.current_url)
        self.title_becomes("Menu", page)
        self.press("Setup", page=page)
        self.title_becomes("Setup", page)


if __name__ == "__main__":
    unittest.main(verbosity=2)
