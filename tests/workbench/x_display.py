"""A virtual X display with a window manager, and pictures of its screen."""

import os
import shutil
import struct
import subprocess
import tempfile
import time
import zlib

TOOLS = ("Xvfb", "openbox", "xdotool", "xprop", "xclip")


class Failed(Exception):
    """The session did not go as it must; the text says how."""


def wait_until(condition, what, seconds=40.0):
    """The first true value of condition(); raises Failed after the given time."""
    deadline = time.monotonic() + seconds
    while True:
        value = condition()
        if value:
            return value
        if time.monotonic() > deadline:
            raise Failed(f"in {seconds:g} s not {what}")
        time.sleep(0.01)


def missing_tools():
    return [tool for tool in TOOLS if not shutil.which(tool)]


def require_tools():
    missing = missing_tools()
    if missing:
        raise Failed("not installed: " + ", ".join(missing))


class Display:
    """Use as a context manager: at its end everything started on it is gone."""

    def __init__(self, width, height):
        self._size = (width, height)
        self._folder = tempfile.TemporaryDirectory(prefix="display")
        self._programs = []
        # Nothing of the desktop at hand is to show.
        self.environment = {
            name: value for name, value in os.environ.items()
            if not name.startswith(("QT_", "XDG_", "LC_", "LANG", "WAYLAND_"))}
        self.environment.update(
            HOME=self._folder.name, LC_ALL="C.UTF-8", XDG_RUNTIME_DIR=self._folder.name,
            ORVT_SETTINGS_FILE=os.path.join(self._folder.name, "settings.ini"))

    @property
    def size(self):
        return self._size

    def __enter__(self):
        try:
            self._start_server()
            self._start_window_manager()
        except BaseException:
            self.__exit__()
            raise
        return self

    def __exit__(self, *_):
        for program in reversed(self._programs):
            program.terminate()
        for program in self._programs:
            try:
                program.wait(5)
            except subprocess.TimeoutExpired:
                program.kill()
                program.wait()
        self._folder.cleanup()

    def start(self, *command, **options):
        """A program that runs on the display until it ends or the display does."""
        program = subprocess.Popen(command, env=self.environment, **options)
        self._programs.append(program)
        return program

    def ask(self, *command):
        """What the command writes to standard output, also when it fails."""
        return self._run(command).stdout

    def do(self, *command):
        """A command that must not fail."""
        result = self._run(command)
        if result.returncode != 0:
            raise Failed(f"{' '.join(command)}: {result.stderr.strip()}")

    def _run(self, command):
        return subprocess.run(
            command, env=self.environment, capture_output=True, text=True, timeout=20,
            check=False)

    def _start_server(self):
        read_end, write_end = os.pipe()
        width, height = self._size
        self.start(
            "Xvfb", "-displayfd", str(write_end), "-screen", "0", f"{width}x{height}x24",
            "-fbdir", self._folder.name, "-nolisten", "tcp", "-noreset",
            pass_fds=(write_end,), stderr=subprocess.DEVNULL)
        os.close(write_end)
        with os.fdopen(read_end) as numbers:
            number = numbers.readline().strip()
        if not number:
            raise Failed("Xvfb does not start")
        self.environment["DISPLAY"] = ":" + number

    def _start_window_manager(self):
        self.start("openbox", "--sm-disable",
                   stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        wait_until(
            lambda: "window id" in self.ask("xprop", "-root", "_NET_SUPPORTING_WM_CHECK"),
            "a window manager there")

    # The server keeps its screen in a file, in the form of an X window dump.
    def _pixels(self):
        with open(os.path.join(self._folder.name, "Xvfb_screen0"), "rb") as file:
            dump = file.read()
        fields = struct.unpack(">25I", dump[:100])
        header_size, width, height = fields[0], fields[4], fields[5]
        bits_per_pixel, bytes_per_line, colours = fields[11], fields[12], fields[19]
        if bits_per_pixel != 32 or bytes_per_line != 4 * width:
            raise Failed("the screen has an unexpected form")
        start = header_size + 12 * colours
        return width, height, dump[start : start + height * bytes_per_line]

    def colours_in(self, left, top, width, height):
        """The bytes of a rectangle of the screen: blue, green, red and none of each pixel."""
        across, _, pixels = self._pixels()
        return [pixels[4 * (row * across + left):4 * (row * across + left + width)]
                for row in range(top, top + height)]

    def colour_at(self, left, top):
        """Red, green and blue of a pixel."""
        blue, green, red, _ = self.colours_in(left, top, 1, 1)[0]
        return red, green, blue

    def settled_pixels(self, seconds=0.12):
        """The screen, once it has not changed for the given time."""
        pixels = self._pixels()
        since = time.monotonic()
        deadline = since + 3.0
        while time.monotonic() < min(since + seconds, deadline):
            time.sleep(0.02)
            latest = self._pixels()
            if latest != pixels:
                pixels, since = latest, time.monotonic()
        return pixels

    def pixels_after(self, act, seconds=0.4):
        """The screen, once what was done is to be seen and it has not changed for a while."""
        before = self.settled_pixels()
        act()
        wait_until(lambda: self._pixels() != before, "anything new to be seen")
        return self.settled_pixels(seconds)

    def write_picture(self, path, after=None):
        """Of what is there, or of what comes after an act."""
        width, height, pixels = self.pixels_after(after) if after else self.settled_pixels()
        rgb = bytearray(3 * width * height)
        rgb[0::3], rgb[1::3], rgb[2::3] = pixels[2::4], pixels[1::4], pixels[0::4]
        lines = b"".join(
            b"\0" + rgb[start : start + 3 * width] for start in range(0, len(rgb), 3 * width))
        with open(path, "wb") as file:
            file.write(b"\x89PNG\r\n\x1a\n")
            for kind, content in (
                (b"IHDR", struct.pack(">IIBBBBB", width, height, 8, 2, 0, 0, 0)),
                (b"IDAT", zlib.compress(lines, 6)),
                (b"IEND", b""),
            ):
                file.write(struct.pack(">I", len(content)) + kind + content)
                file.write(struct.pack(">I", zlib.crc32(kind + content)))

