"""The workbench as its user has it: keys and mouse on a virtual display, and what is
seen of it."""

import signal
import subprocess

from x_display import Failed, wait_until


class Workbench:
    """The running program, before the user's eyes and under the fingers."""

    def __init__(self, display, program, *arguments, settle=lambda: None):
        """settle() returns when what was pressed before has come to the program."""
        self._display = display
        self._settle = settle
        self.process = display.start(program, *arguments, preexec_fn=_stay_without_room)
        display.do("xdotool", "mousemove", "0", "0")

    def _do(self, *command):
        self._display.do("xdotool", *map(str, command))
        self._settle()

    def keys(self, *names):
        # Nobody lets go of Alt before the menu is there.
        for name in names:
            *held, key = name.split("+")
            if held:
                self._do("keydown", *held)
            self._do("key", key)
            if held:
                self._do("keyup", *reversed(held))

    def type(self, text):
        first, *others = text.split("\n")
        self._type_line(first)
        for line in others:
            self.keys("Return")
            self._type_line(line)

    def _type_line(self, line):
        if line:
            self._do("type", "--delay", 2, "--", line)

    def point(self, place):
        self._do("mousemove", *place)

    def click(self, place, button=1, times=1):
        self.point(place)
        self._do("click", "--repeat", times, "--delay", 20, button)

    def wheel_down(self, place, notches):
        self.click(place, 5, notches)

    def drag(self, start, end):
        """By small steps, as a hand does: a drag begins on the way."""
        self.point(start)
        self._do("mousedown", 1)
        steps = 12
        for step in range(1, steps + 1):
            self.point(tuple(a + (b - a) * step // steps for a, b in zip(start, end)))
        self.point(end)

    def drop(self):
        self._do("mouseup", 1)

    def put_on_clipboard(self, text):
        # It stays to serve the clipboard, so it must not hold our pipes.
        subprocess.run(
            ["xclip", "-selection", "clipboard"], input=text, text=True, check=True,
            env=self._display.environment, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        wait_until(lambda: self.clipboard() == text, "the text on the clipboard")

    def clipboard(self, target="UTF8_STRING"):
        return self._display.ask(
            "xclip", "-selection", "clipboard", "-target", target, "-out")

    def active_title(self):
        return self._display.ask("xdotool", "getactivewindow", "getwindowname").strip()

    def wait_for_window(self, title):
        wait_until(lambda: self.lives() and self.active_title() == title,
                   f"a window \"{title}\" active")

    def wait_for_title_with(self, words):
        """In whatever language the rest of the title is."""
        wait_until(lambda: self.lives() and words in self.active_title(),
                   f"a window with \"{words}\" in its title active")

    def lives(self):
        if self.process.poll() is not None:
            raise Failed(f"the workbench ended with {self.process.returncode}")
        return True

    def visible_windows(self):
        return set(self._display.ask(
            "xdotool", "search", "--onlyvisible", "--class", "workbench").split())

    def quit(self):
        self.keys("ctrl+q")
        self.wait_for_end()

    def wait_for_end(self):
        code = wait_until(lambda: self.process.poll() is not None and [self.process.poll()],
                          "the workbench ended")[0]
        if code != 0:
            raise Failed(f"the workbench ended with {code}")

    def kill(self):
        self.process.send_signal(signal.SIGKILL)
        self.process.wait()


# Where a file may not grow, writing fails; the signal would end the program.
def _stay_without_room():
    signal.signal(signal.SIGXFSZ, signal.SIG_IGN)
