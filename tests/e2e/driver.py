"""A player at the window: finds controls as a screen reader does, moves the real mouse, presses
real keys, and hears what is played."""
import array
import collections
import copy
import os
import select
import shutil
import subprocess
import threading
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi  # noqa: E402


class PlayError(Exception):
    """What the player waited for did not come."""


def wait_for(condition, what, seconds=30):
    """Returns the first true value of `condition`."""
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        try:
            value = condition()
        except gi.repository.GLib.Error:  # the tree changes while it is read
            value = None
        if value:
            return value
        time.sleep(0.05)
    raise PlayError(f"{what}: nothing within {seconds} s")


def xdotool(*words):
    subprocess.run(["xdotool", *map(str, words)], check=True)


def find_window(title):
    """None if no window has this title, or if one closes during the search."""
    search = ["xdotool", "search", "--onlyvisible", "--name", title]
    found = subprocess.run(search, capture_output=True, text=True, check=False).stdout.split()
    return found[-1] if found else None


def walk(node):
    """A node and all below it."""
    yield node
    for i in range(node.get_child_count()):
        child = node.get_child_at_index(i)
        if child is not None:
            yield from walk(child)


STARTER_PLAN = os.path.join(os.path.dirname(__file__), "..", "..", "data", "saves", "basic.tvf")

Box = collections.namedtuple("Box", "title text buttons")


def copy_program(programs, folder):
    """Copies the program's folder as nobody has used it yet, without the starter plan."""
    shutil.copytree(programs, folder,
                    ignore=shutil.ignore_patterns("config.cfg", "saves", "*bench"))
    os.mkdir(os.path.join(folder, "saves"))


def has_state(node, state):
    return node.get_state_set().contains(state)


def first_window(pid):
    """The first window of a process, or None."""
    desktop = Atspi.get_desktop(0)
    for i in range(desktop.get_child_count()):
        program = desktop.get_child_at_index(i)
        if program and program.get_process_id() == pid:
            return program.get_child_at_index(0)
    return None


class Program:
    """The program in a copy of its folder, from its start to its end."""

    def __init__(self, programs, folder, environment=None, error_stream=None):
        """Copies `programs` to `folder`, unless that exists already."""
        if not os.path.exists(folder):
            copy_program(programs, folder)
        self.folder = folder
        self._start(folder, environment or {}, error_stream)

    def _start(self, programs, environment, error_stream=None):
        self.process = subprocess.Popen(
            [os.path.join(programs, "tarvelin")], stderr=error_stream,
            env={**os.environ, "LC_ALL": "C.UTF-8", **environment})
        self.window = wait_for(self._own_window, "the window")
        self.window_id = wait_for(lambda: self._own_window() and find_window("Kelva Aufbau"),
                                  "its id")
        # If a box asks something at the start, it is active instead of the window.
        xdotool("windowactivate", self.window_id)
        wait_for(lambda: any(has_state(node, Atspi.StateType.ACTIVE) for node in self.top_levels()),
                 "activation")

    def _own_window(self):
        if self.process.poll() is not None:
            raise PlayError(f"the program ended at its start with {self.process.returncode}")
        return first_window(self.process.pid)

    def top_levels(self):
        """The open windows, boxes and dialogs of the program."""
        program = self.window.get_application()
        children = [program.get_child_at_index(i) for i in range(program.get_child_count())]
        return [node for node in children if node and has_state(node, Atspi.StateType.SHOWING)]

    def open_workbench(self):
        xdotool("key", "alt+w", "sleep", 0.3, "key", "Return")
        return self.other_window("Tarvelin Werkbank")

    def other_window(self, title):
        """The same program, driven by another of its windows."""
        other = copy.copy(self)
        other.window_id = wait_for(lambda: find_window(title), title)
        other.window = wait_for(lambda: next((node for node in self.top_levels()
                                              if title in node.get_name()), None), title)
        xdotool("windowactivate", "--sync", other.window_id)
        return other

    @staticmethod
    def read_box(alert):
        nodes = list(walk(alert))
        texts = [node.get_name() for node in nodes if node.get_role_name() == "label"]
        # A box without an icon has an empty label instead.
        buttons = {node.get_name(): node for node in nodes
                   if node.get_role_name() == "push button"}
        return Box(alert.get_name(), "\n".join(filter(None, texts)), buttons)

    def boxes(self):
        """The open message boxes."""
        return [self.read_box(node) for node in self.top_levels()
                if node.get_role_name() == "alert"]

    def answer(self, question, button):
        """Presses a button of the box that asks this question and waits until it has closed.
        Returns its title."""
        box = wait_for(lambda: [box for box in self.boxes() if box.text == question], question)[0]
        xdotool("mousemove", *self.center(box.buttons[button]), "click", 1)
        wait_for(lambda: not any(box.text == question for box in self.boxes()),
                 f"end of {question!r}")
        return box.title

    def with_role(self, role):
        return [node for node in walk(self.window) if node.get_role_name() == role]

    def find(self, role, name, index=0):
        """The control of this role and name; of several, the one at `index`."""
        def search():
            hits = [node for node in self.with_role(role) if node.get_name() == name]
            return hits[index] if len(hits) > index else None
        return wait_for(search, f"{role} {name!r}")

    @staticmethod
    def center(node, share=0.5):
        """The pixel in the middle of a control, or at this share of its width."""
        extents = node.get_extents(Atspi.CoordType.SCREEN)
        scale = float(os.environ.get("QT_SCALE_FACTOR", 1))
        x, y = extents.x + extents.width * share, extents.y + extents.height / 2
        return int(x * scale), int(y * scale)

    def click(self, role, name, index=0, share=0.5):
        xdotool("mousemove", *self.center(self.find(role, name, index), share), "click", 1)

    def label_text(self, description):
        """The text of the label with this description."""
        return next((node.get_name() for node in self.with_role("label")
                     if node.get_description() == description), None)

    def choose_file(self, file):
        """Waits for a file dialog and types a name into it."""
        def is_open():
            return any(node.get_role_name() == "dialog" for node in self.top_levels())
        wait_for(is_open, "the dialog")
        xdotool("sleep", 0.3, "key", "ctrl+a", "type", file)
        xdotool("key", "Return")
        wait_for(lambda: not is_open(), "its end")

    def type_text(self, name, text):
        self.click("text", name)
        xdotool("key", "ctrl+a", "type", text)
        wait_for(lambda: self.text(name) == text, f"{text!r} in {name}")

    def text(self, name):
        node = self.find("text", name)
        return Atspi.Text.get_text(node, 0, -1)

    def drag(self, picture, row_count):
        """Drags a picture into the build list and waits until that has `row_count` rows."""
        x, y = self.center(self.find("image", picture))
        to_x, to_y = self.center(self.find("tree", "Bauliste"))
        # Only a movement over the picture makes it draggable.
        xdotool("mousemove", x - 3, y, "mousemove", x, y, "sleep", 0.05, "mousedown", 1,
                "sleep", 0.05, "mousemove", to_x, to_y, "mousemove", to_x + 3, to_y,
                "sleep", 0.05, "mouseup", 1)
        wait_for(lambda: len(self.rows("Bauliste", 3)) == row_count, f"row of {picture}")

    def rows(self, list_name, columns):
        """The cells of a list, row by row."""
        tree_node = self.find("tree", list_name)
        cells = [tree_node.get_child_at_index(i)
                  for i in range(columns, tree_node.get_child_count())]
        return [cells[i:i + columns] for i in range(0, len(cells), columns)]

    def colors(self):
        """The colour in the middle of each picture on the screen, by the picture's name."""
        pixels = subprocess.check_output(["import", "-window", "root", "-depth", "8", "rgb:-"])
        width = int(subprocess.check_output(["xdotool", "getdisplaygeometry"]).split()[0])
        centers = {node.get_name(): self.center(node) for node in walk(self.window)
                   if node.get_role_name() == "image"}
        return {name: pixels[3 * (y * width + x):][:3] for name, (x, y) in centers.items()}

    def screenshot(self, file, title=None):
        """Saves a picture of this window, or of the one with this title."""
        window_id = self.window_id if title is None else wait_for(lambda: find_window(title), title)
        subprocess.run(["import", "-window", window_id, "+dither", "-colors", "256", "-strip",
                        f"PNG8:{file}"], check=True)

    def quit(self):
        """Closes the program by its menu and returns its exit code."""
        xdotool("windowactivate", "--sync", self.window_id, "key", "alt+d", "sleep", 0.3,
                "key", "b")
        return self.process.wait(timeout=30)


class InstalledProgram(Program):
    """An installed program with a user's home folder."""

    def __init__(self, programs, home):
        self.folder = os.path.join(home, ".local", "share", "Tarvelin")
        self._start(programs, {"HOME": home})


class Ear:
    """Listens to what the sound card without loudspeakers plays."""

    LOUD = 1000

    def __init__(self):
        self.loud_at = []
        self.process = subprocess.Popen(
            ["parec", "-d", "quiet.monitor", "--latency-msec=20", "--format=s16le", "--rate=8000",
             "--channels=1"], stdout=subprocess.PIPE)
        threading.Thread(target=self._listen, daemon=True).start()

    def _listen(self):
        while chunk := self.process.stdout.read(400):
            values = array.array("h", chunk)
            if (sum(value * value for value in values) / len(values)) ** 0.5 > self.LOUD:
                self.loud_at.append(time.time())

    def close(self):
        self.process.terminate()
        self.process.wait()


class Hands:
    """Mouse and keyboard by one lasting process, for many actions."""

    def __init__(self):
        self.process = subprocess.Popen(["xdotool", "-"], stdin=subprocess.PIPE,
                                        stdout=subprocess.PIPE, text=True)

    def do(self, words):
        """Returns when it is done, which the answer to a query sent after it shows."""
        self.process.stdin.write(f"{words}\ngetdisplaygeometry\n")
        self.process.stdin.flush()
        if not select.select([self.process.stdout], [], [], 30)[0]:
            raise PlayError(f"{words}: not done within 30 s")
        self.process.stdout.readline()
