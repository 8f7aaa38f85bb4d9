#!/usr/bin/python3
"""A monkey at the real program: it clicks, drags and types at random, saves and loads by the
dialog, ends the program and kills it. Nothing may crash, hang, or leave a plan that can't be read.

    monkey_test.py FOLDER_OF_THE_PROGRAMS SEED ACTIONS
"""
import contextlib
import glob
import os
import random
import re
import shutil
import signal
import subprocess
import sys
import tempfile

from compare import run_plan
from driver import STARTER_PLAN, Atspi, Hands, Program, copy_program, gi, has_state, wait_for

LOAD_ERROR = "Die Bauliste konnte nicht geladen werden..."
KEYS = ["Return", "Escape", "Tab", "shift+Tab", "space", "Up", "Down", "Left", "Right", "Home",
        "End", "Page_Up", "BackSpace", "Delete", "ctrl+a", "ctrl+c", "ctrl+v", "ctrl+z", "alt+e",
        "alt+s", "alt+d", "ctrl+n", "ctrl+o", "ctrl+s"] + list("0123456789xGM")
CONTROLS = ["text", "push button", "check box", "radio button", "slider", "combo box",
            "menu item", "tree", "table"]
CRASH_MARKS = re.compile("Sanitizer|runtime error|ASSERT|terminate called")


class Monkey:
    def __init__(self, programs, temp, seed):
        self.programs = programs
        self.folder = os.path.join(temp, "Tarvelin")
        self.dice = random.Random(seed)
        self.error_file = os.path.join(temp, "stderr")
        # No fetch and no browser reaches beyond this machine.
        self.environment = {"http_proxy": "http://127.0.0.1:9", "https_proxy": "http://127.0.0.1:9",
                            "no_proxy": "", "BROWSER": "true"}
        self.hands = Hands()
        copy_program(programs, self.folder)
        shutil.copy(STARTER_PLAN, os.path.join(self.folder, "saves", "basic.tvf"))
        Atspi.set_timeout(15000, 15000)
        self.start()

    def start(self):
        with open(self.error_file, "a", encoding="utf-8") as stream:
            self.program = Program(self.programs, self.folder, self.environment, stream)
        self.record_targets()

    def record_targets(self):
        """Finds out where the visible controls are."""
        self.targets, self.pictures, self.build_list = [], [], None
        nodes = self.program.top_levels()
        while nodes:
            node = nodes.pop()
            if node is None or not has_state(node, Atspi.StateType.SHOWING):
                continue
            role, extents = node.get_role_name(), node.get_extents(Atspi.CoordType.SCREEN)
            if role == "image":
                self.pictures.append(extents)
            elif role in CONTROLS:
                self.targets.append(extents)
            if node.get_name() == "Bauliste":
                self.build_list = extents
            # Not into the lists, which can have hundreds of cells.
            if role not in ("tree", "table"):
                nodes += [node.get_child_at_index(i) for i in range(node.get_child_count())]

    def point_in(self, areas):
        extents = self.dice.choice(areas)
        return (f"{max(0, extents.x + self.dice.randrange(max(1, extents.width)))}"
                f" {max(0, extents.y + self.dice.randrange(max(1, extents.height)))}")

    # What the monkey does. Each action returns the words for its hands.

    def click(self):
        return f"mousemove {self.point_in(self.targets)} click {self.dice.choice([1, 1, 1, 3, 4])}"

    def drag(self):
        return (f"mousemove {self.point_in(self.pictures)} mousemove_relative 1 0 sleep 0.01"
                f" mousedown 1 sleep 0.01 mousemove {self.point_in([self.build_list])}"
                " mousemove_relative 1 1 sleep 0.01 mouseup 1")

    def press_key(self):
        return "key --delay 1 " + self.dice.choice(KEYS)

    def end_by_signal(self):
        """Asks the program to end, whatever is open."""
        self.program.process.send_signal(
            self.dice.choice([signal.SIGTERM, signal.SIGHUP, signal.SIGINT]))
        self.program.process.wait(30)
        return ""

    def kill(self):
        """Kills the program, at once or while it saves."""
        if self.dice.random() < 0.5:
            self.hands.do(f"key alt+F4 sleep {self.dice.uniform(0, 0.05):.3f}")
        self.program.process.kill()
        self.program.process.wait()
        return ""

    ACTIONS = {click: 30, drag: 30, press_key: 36, end_by_signal: 2, kill: 2}

    # What its keeper checks before each action.

    def look_after(self):
        """The program shows a window, or has ended properly and is started again. Open boxes are
        answered."""
        wait_for(lambda: self.program.process.poll() is not None or self.program.top_levels(),
                 "an answer of the program", 20)
        if self.program.process.poll() is not None:
            self.check_end()
            self.start()
        for node in self.program.top_levels():
            if node.get_role_name() == "alert":
                buttons = self.program.read_box(node).buttons
                if buttons:
                    Atspi.Action.do_action(buttons[self.dice.choice(sorted(buttons))], 0)
                    wait_for(lambda node=node: node not in self.program.top_levels(),
                             "end of a box")
            elif node.get_role_name() == "dialog":
                name = self.dice.choice(["monkey.tvf", "autosave.tvf", "missing.tvf"])
                self.hands.do(f'key ctrl+a type --delay 1 "{self.folder}/saves/{name}"')
                self.hands.do("key Return")

    def check_end(self):
        code = self.program.process.returncode
        with open(self.error_file, encoding="utf-8", errors="replace") as stream:
            messages = stream.read()
        assert not CRASH_MARKS.search(messages), messages[-20000:]
        assert code in (0, -9), code
        for plan in glob.glob(os.path.join(self.folder, "saves", "*.tvf")):
            messages = run_plan(self.programs, plan)["Meldungen"]
            assert LOAD_ERROR not in [message["Text"] for message in messages], plan
        leftovers = glob.glob(os.path.join(self.folder, "**", ".tarvelin-*"), recursive=True)
        assert code == -9 or not leftovers, leftovers

    def play(self, actions):
        for i in range(actions):
            # A box or window can close while it is read.
            with contextlib.suppress(gi.repository.GLib.Error):
                self.look_after()
                if i % 20 == 0:
                    self.record_targets()
                self.hands.do(self.dice.choices(
                    list(self.ACTIONS), self.ACTIONS.values())[0](self))


def main(programs, seed, actions):
    with tempfile.TemporaryDirectory() as temp:
        monkey = Monkey(programs, temp, seed)
        try:
            monkey.play(actions)
            if monkey.program.process.poll() is None:
                monkey.end_by_signal()
            monkey.check_end()
        finally:
            monkey.program.process.kill()
            monkey.program.process.wait()


if __name__ == "__main__":
    if sys.argv[-1] != "--child":
        # The library that reads the screen can crash when the program ends meanwhile. Then, and
        # only then, the monkey plays once more.
        command = [sys.executable, *sys.argv, "--child"]
        code = subprocess.call(command)
        sys.exit(subprocess.call(command) if code == -signal.SIGSEGV else code)
    main(sys.argv[1], int(sys.argv[2]), int(sys.argv[3]))
