#!/usr/bin/python3
"""Plays the page in Chromium: page_test.py PAGE DESKTOP_PICTURES SCENARIO

Compares its pictures with those that the desktop's program wrote into a folder, and leaves both in
build/web-check/pictures.
"""
import base64
import functools
import http.server
import pathlib
import sys
import threading
import unittest

import pictures
from browser import Browser

ROOT = pathlib.Path(__file__).resolve().parents[2]
STEPPER = pathlib.Path(__file__).with_name("stepper.js").read_text()
PAGE, DESKTOP, SCENARIO = map(pathlib.Path, sys.argv[1:4])
PICTURES = ROOT / "build/web-check/pictures"
SUB_PATH = "/some/where/"  # the page works in any folder of a server
KEY_CODES = {"ArrowUp": 38, "ArrowLeft": 37, "Shift": 16, "Enter": 13, "Escape": 27, "F1": 112,
             "F3": 114, "F4": 115, "F5": 116}
MOST_DRAW_CALLS = 20  # a frame
MOST_MISSES = 0.0005  # of all pixels


class Handler(http.server.SimpleHTTPRequestHandler):
    """Shows the page below SUB_PATH."""

    def translate_path(self, path):
        inside = path.startswith(SUB_PATH)
        return super().translate_path(path[len(SUB_PATH) - 1:] if inside else "/none")

    def log_message(self, *_):
        pass


class PageStory(unittest.TestCase):
    """A visitor opens the page."""

    before_page = ""  # a script

    def setUp(self):
        self.browser = Browser()
        self.addCleanup(self.browser.quit)
        if self.before_page:
            self.browser.before_each_page(self.before_page)
        handler = functools.partial(Handler, directory=str(PAGE))
        self.server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), handler)
        threading.Thread(target=self.server.serve_forever, daemon=True).start()
        self.open_page()

    def open_page(self):
        self.browser.get(f"http://127.0.0.1:{self.server.server_port}{SUB_PATH}")

    def answer_box(self, text):
        shown = "document.querySelector('dialog[open]')?.textContent"
        self.browser.wait(shown)
        self.assertIn(text, self.browser.run(f"return {shown}"))
        self.browser.press("Enter")
        self.browser.wait(f"!{shown}?.includes('{text}')")

    def wait_for_notice(self, text):
        """Which the page shows instead of a picture."""
        shown = "document.querySelector('#notice:not([hidden])')?.textContent"
        self.browser.wait(f"{shown}?.includes('{text}')")

    def wait_for_picture(self):
        self.browser.wait("document.getElementById('notice').hidden")


class Stepped(PageStory):
    """Time stands still between the frames of the test."""

    before_page = STEPPER

    def setUp(self):
        super().setUp()
        self.browser.wait("window.glorbix?.keys")

    def pixels(self):
        """The picture of the last frame."""
        encoded = self.browser.run("""
            let text = '';
            for (let i = 0; i < lastPicture.length; i += 8192) {
                text += String.fromCharCode(...lastPicture.subarray(i, i + 8192));
            }
            return btoa(text);""")
        return pictures.without_opacity(base64.b64decode(encoded))

    def pass_frames(self, count):
        """Keeps the picture of the last one. A script must not take too long."""
        for done in range(0, count - 1, 20):
            self.browser.run("return passFrames(arguments[0])", min(20, count - 1 - done))
        self.browser.run("""
            glorbix.screen.onPicture = (screen) => { lastPicture = screen.pixels(); };
            return passFrames(1).then(() => { glorbix.screen.onPicture = null; });""")

    def send(self, kind, key):
        code = {"Shift": "ShiftLeft"}.get(key, key)
        self.browser.run("sendKey(...arguments)", kind, code, KEY_CODES[key])

    def press(self, key):
        """For so long that the key repeats, which counts for arrows only."""
        self.send("keydown", key)
        self.send("keydown", key)
        self.send("keyup", key)


class Picture(Stepped):
    def compare(self, name):
        """The picture of the last frame against that of the desktop."""
        expected = (DESKTOP / f"{name}.rgb").read_bytes()
        actual = self.pixels()
        tolerance, allowed = (1, 0) if name == "title" else (16, MOST_MISSES)
        share = pictures.misses(actual, expected, tolerance) / (pictures.WIDTH * pictures.HEIGHT)
        print(f"{name}: {100 * share:.3f} % differ by more than {tolerance}")
        PICTURES.mkdir(parents=True, exist_ok=True)
        pictures.save(actual, PICTURES / f"{name}-page.png")
        pictures.save(expected, PICTURES / f"{name}-desktop.png")
        self.assertLessEqual(share, allowed, f"{name}: see {PICTURES}")

    def test_is_that_of_the_desktop_all_through_a_game(self):
        steps = {"frames": lambda count: self.pass_frames(int(count)), "picture": self.compare,
                 "press": self.press, "hold": functools.partial(self.send, "keydown"),
                 "release": functools.partial(self.send, "keyup")}
        for line in SCENARIO.read_text().splitlines():
            if line and not line.startswith("#"):
                with self.subTest(line):
                    word, value = line.split()
                    steps[word](value)
        most = self.browser.run("return glorbix.screen.counts.most")
        print(f"at most {most} draw calls a frame")
        self.assertLessEqual(most, MOST_DRAW_CALLS)

    def test_comes_back_after_the_graphics_were_lost(self):
        self.press("Escape")
        self.pass_frames(3)
        self.browser.run("""
            losing = glorbix.screen.gl.getExtension('WEBGL_lose_context');
            losing.loseContext();""")
        self.wait_for_notice("graphics of this browser have stopped")
        self.pass_frames(3)
        self.browser.run("losing.restoreContext()")
        self.wait_for_picture()
        self.pass_frames(3)
        self.compare("menu")


class Focus(Stepped):
    def set_focus(self, here):
        self.browser.run("""
            document.hasFocus = () => arguments[0];
            dispatchEvent(new Event(arguments[0] ? 'focus' : 'blur'));""", here)

    def picture_after(self, frames):
        self.pass_frames(frames)
        return self.pixels()

    def test_pauses_the_game_and_releases_its_keys(self):
        for key in ("Escape", "Enter", "F1"):
            self.press(key)
            self.pass_frames(3)
        self.pass_frames(110)
        self.send("keydown", "ArrowUp")
        self.pass_frames(5)
        self.set_focus(False)
        stopped = self.picture_after(3)
        self.assertEqual(self.picture_after(20), stopped)
        self.set_focus(True)
        self.assertNotEqual(self.picture_after(20), stopped)
        self.assertEqual(self.browser.run("return glorbix.keys.isHeld(38)"), False)


class Visitor(PageStory):
    def wait_for_game(self):
        self.browser.wait("window.glorbix?.screen?.counts.frames > 2")

    def expect_effect(self, name, key):
        self.browser.run("""
            const {effects} = glorbix, play = effects.play.bind(effects);
            played = [];
            effects.play = (name, volume) => play(name, volume) && played.push(name) > 0;""")
        self.browser.press(key)
        self.browser.wait(f"played.includes('{name}')")
        self.browser.press(key)

    def press_each_in_its_frame(self, *keys):
        for key in keys:
            frames = self.browser.run("return glorbix.screen.counts.frames")
            self.browser.press(key)
            self.browser.wait(f"glorbix.screen.counts.frames > {frames} + 2")

    def kept_times(self):
        return self.browser.run("return localStorage.getItem('glorbix-best-times')")

    def open_page_with_times(self, text):
        self.browser.run("localStorage.setItem('glorbix-best-times', arguments[0])", text)
        self.open_page()

    def test_hears_music_that_goes_on_with_the_next_piece(self):
        self.wait_for_game()
        self.assertEqual(self.browser.run("return glorbix.music.time()"), 0)
        self.browser.press("Escape", "Enter")
        self.browser.wait("glorbix.music.time() > 1")
        self.expect_effect("sounds/menu.wav", "Escape")
        first = self.browser.run("return glorbix.music.piece()")
        self.assertTrue(first)
        self.browser.run("glorbix.music.skipTo(-0.5)")
        self.browser.wait(f"glorbix.music.piece() !== '{first}' && glorbix.music.time() > 0.5")
        self.wait_for_picture()

    def test_finds_the_best_times_again(self):
        self.wait_for_game()
        rivals = self.browser.run("return glorbix.files.readFile('highScore.dat', {encoding: 'utf8'})")
        self.assertEqual(rivals, (ROOT / "game/rivals.dat").read_text())
        self.open_page_with_times("500 zzz " * 10)
        self.wait_for_game()
        self.browser.press("Escape", "Enter")
        self.press_each_in_its_frame(*["F1"] * 10, "a", "b", "c")
        self.browser.press("Escape", "ArrowUp", "Enter")
        self.wait_for_notice("The game is over")
        self.assertEqual(self.kept_times(), "450 ABC " + "500 zzz " * 9)
        self.browser.press("Enter")
        self.wait_for_picture()
        self.wait_for_game()
        self.assertFalse(self.browser.run("return glorbix.boxes.isOpen()"))
        self.assertTrue(self.kept_times().startswith("450 ABC "))

    def test_plays_without_a_network_later(self):
        self.browser.wait("navigator.serviceWorker.controller")
        self.server.shutdown()
        self.server.server_close()
        self.open_page()
        self.wait_for_game()

    def test_answers_a_message_box_before_the_game_goes_on(self):
        self.open_page_with_times("rubbish")
        self.browser.wait("document.querySelector('dialog[open]')")
        self.browser.run("""
            const pass = (frames) => new Promise(requestAnimationFrame).then(
                () => frames > 1 ? pass(frames - 1) : 0);
            return pass(20);""")
        self.assertEqual(self.browser.run("return glorbix.screen.counts.frames"), 0)
        self.assertFalse(self.browser.run("""
            return document.querySelector('dialog button').dispatchEvent(new KeyboardEvent(
                'keydown', {key: 'Enter', repeat: true, bubbles: true, cancelable: true}));"""))
        self.answer_box("Creating new highScores file")
        self.wait_for_game()
        self.wait_for_picture()


class VisitorWithoutStorage(PageStory):
    before_page = """
        for (const name of ['getItem', 'setItem']) {
            Storage.prototype[name] = () => { throw new Error('it is forbidden'); };
        }"""

    def test_is_told_so_once(self):
        self.answer_box("does not keep the best times: it is forbidden")
        self.browser.press("Escape", "ArrowUp", "Enter")
        self.wait_for_notice("The game is over")
        self.assertFalse(self.browser.run("return glorbix.boxes.isOpen()"))


class VisitorWithoutWebGl(PageStory):
    before_page = "HTMLCanvasElement.prototype.getContext = () => null;"

    def test_is_told_so(self):
        self.wait_for_notice("WebGL 2")


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1] + sys.argv[4:], verbosity=2)
