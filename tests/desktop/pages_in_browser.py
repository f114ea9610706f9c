#!/usr/bin/env python3
"""Works pages in a headless browser for a test: one command a line, one answer a line.

open NAME URL WIDTH HEIGHT    a window of that size with touch, whose storage is its own
pin NAME DIGITS               types the PIN and sends the form
seat NAME N                   taps the seat
press NAME                    touches the middle of the button
key NAME KEY                  strikes a key, SPACE or what a clicker sends, as PAGE_DOWN
resize NAME WIDTH HEIGHT      turns the phone, or puts the page on a larger one
look NAME                     what the page shows, as JSON
picture NAME FILE             saves what it shows as PNG
"""
import json
import sys

from selenium import webdriver
from selenium.webdriver.chrome.options import Options
from selenium.webdriver.chrome.service import Service
from selenium.webdriver.common.action_chains import ActionChains
from selenium.webdriver.common.by import By
from selenium.webdriver.common.keys import Keys

# Windows of one browser share its storage; each is to be a phone of its own.
OWN_STORAGE = "Object.defineProperty(window, 'localStorage', { get: () => window.sessionStorage });"
# What makes a phone buzz is counted.
BUZZES = "window.buzzes = 0; Object.defineProperty(navigator, 'vibrate', { value: () => ++window.buzzes > 0 });"
LOOK = """
const text = id => { const e = document.getElementById(id); return e ? e.textContent : ''; };
const shown = id => { const e = document.getElementById(id); return !!e && !e.hidden; };
// A part that is shown reaches beyond the screen, or its text beyond it.
const cut = id => { const e = document.getElementById(id); if (!e || !e.offsetParent) return false;
  const r = e.getBoundingClientRect();
  return r.bottom > window.innerHeight + 1 || r.right > window.innerWidth + 1 || e.scrollHeight > e.clientHeight + 8 &&
    e.clientHeight > 0 && id === 'buzzer'; };
// A number, a name that goes from right to left and a margin stand beside one another in that order.
const inTurn = () => Array.from(document.querySelectorAll('#order > span')).every(span => {
  const places = { number: [], name: [], margin: [] }, walk = document.createTreeWalker(span, NodeFilter.SHOW_TEXT);
  let behind = false;
  for (let node = walk.nextNode(); node; node = walk.nextNode()) {
    for (let i = 0; i < node.length; i += 1) {
      const letter = node.data[i], range = document.createRange();
      if (letter === ' ') continue;
      const isName = letter >= '\u0590' && letter <= '\u05ff';
      behind = behind || isName;
      range.setStart(node, i);
      range.setEnd(node, i + 1);
      places[isName ? 'name' : behind ? 'margin' : 'number'].push(range.getBoundingClientRect());
    }
  }
  const left = of => Math.min(...of.map(r => r.left)), right = of => Math.max(...of.map(r => r.right));
  return !behind || right(places.number) <= left(places.name) + 1 && right(places.name) <= left(places.margin) + 1;
});
return { title: document.title, images: document.images.length, cut: ['name', 'buzzer', 'word', 'line'].filter(cut).join(),
  state: document.body.className, join: shown('join'), note: text('joinNote'), seats: shown('seats'),
  name: text('name'), word: text('word'), line: text('line'), question: text('question'), answer: text('answer'),
  floor: text('floor'), order: text('order'), inTurn: inTurn(), next: text('next'), players: text('players'),
  winner: text('winner'), buzzes: window.buzzes,
  wide: document.documentElement.scrollWidth > window.innerWidth };
"""


class Browser:
    def __init__(self):
        options = Options()
        for argument in ("--headless=new", "--no-sandbox", "--disable-gpu", "--disable-dev-shm-usage",
                         "--disable-background-timer-throttling", "--disable-renderer-backgrounding",
                         "--disable-backgrounding-occluded-windows", "--mute-audio"):
            options.add_argument(argument)
        self.driver = webdriver.Chrome(service=Service("/usr/bin/chromedriver"), options=options)
        self.windows = {}

    def to(self, name):
        self.driver.switch_to.window(self.windows[name])

    def open(self, name, url, width, height):
        if self.windows:
            self.driver.switch_to.new_window("window")
        self.windows[name] = self.driver.current_window_handle
        command = self.driver.execute_cdp_cmd
        command("Page.addScriptToEvaluateOnNewDocument", {"source": OWN_STORAGE + BUZZES})
        self.resize(name, width, height)
        command("Emulation.setTouchEmulationEnabled", {"enabled": True})
        if url.endswith("/scores"):
            command("Emulation.setDefaultBackgroundColorOverride", {"color": {"r": 0, "g": 90, "b": 60, "a": 1}})
        self.driver.get(url)

    def resize(self, name, width, height):
        self.to(name)
        size = {"width": int(width), "height": int(height), "deviceScaleFactor": 2, "mobile": True}
        self.driver.execute_cdp_cmd("Emulation.setDeviceMetricsOverride", size)

    def pin(self, name, digits):
        self.to(name)
        box = self.driver.find_element(By.ID, "pin")
        box.clear()
        box.send_keys(digits)
        box.submit()

    def seat(self, name, number):
        self.to(name)
        self.driver.find_element(By.CSS_SELECTOR, "#seatList .p" + number).click()

    def press(self, name):
        self.to(name)
        place = self.driver.execute_script("const r = document.getElementById('buzzer').getBoundingClientRect();"
                                           "return [r.left + r.width / 2, r.top + r.height / 2];")
        point = {"x": place[0], "y": place[1]}
        self.driver.execute_cdp_cmd("Input.dispatchTouchEvent", {"type": "touchStart", "touchPoints": [point]})
        self.driver.execute_cdp_cmd("Input.dispatchTouchEvent", {"type": "touchEnd", "touchPoints": []})

    def key(self, name, key):
        self.to(name)
        ActionChains(self.driver).send_keys(getattr(Keys, key)).perform()

    def look(self, name):
        self.to(name)
        return json.dumps(self.driver.execute_script(LOOK))

    def picture(self, name, file):
        self.to(name)
        self.driver.save_screenshot(file)


def main():
    browser = Browser()
    print("ready", flush=True)
    for line in sys.stdin:
        words = line.split()
        try:
            answer = getattr(browser, words[0])(*words[1:])
            print(answer or "done", flush=True)
        except Exception as error:  # The test reads what went wrong.
            print("failed: " + str(error).replace("\n", " "), flush=True)
    browser.driver.quit()


if __name__ == "__main__":
    main()
