#!/usr/bin/python3
"""A player's time with the real window on Windows, by mouse and keys: the first start, a drag, a
run, a save under a name with umlauts, recovery, also of a killed program, an alarm that is heard, a
second window, a skin from the web, the workbench; then the setup: an older version, the present one
over it while the program runs, the removal.

    windows_test.py FOLDER_OF_THE_PROGRAMS SETUP PICTURES
"""
import datetime
import glob
import json
import os
import shutil
import subprocess
import sys
import time

from driver import STARTER_PLAN, Ear, PlayError, find_window, wait_for, xdotool
from skinserver import SkinServer, picture

WINE = "/usr/lib/wine/wine64"
# Positions in the window, whose size is fixed.
HIDE, METAL_MINE, BUILD_LIST, ALARM, SKIN = (76, 269), (268, 60), (110, 190), (635, 244), (302, 8)
# Those that lie on no picture, never change, and can be read by a program.
CAPTIONS = ["Datei", "Einstellungen", "Schlafzeiten", "Skin", "Info", "Werkbank", "Bauliste",
            "Gebäude", "Verteidigung", "Raumschiffe", "Optimale Bauzeiten", "Uhrzeit",
            "Baustart-Alarm", "Undo"]
# Size and position of the label of the points.
POINTS = "120x24+655+260"
WEB, WEB_PATH, SKIN_OK = (23, 73), (150, 57), (129, 73)


def wine(*words):
    return subprocess.run([WINE, *words], check=False, stdout=subprocess.PIPE,
                          stderr=subprocess.DEVNULL, timeout=120)


def run_plan(programs, plan):
    return json.loads(wine(os.path.join(programs, "tarvelin-cli.exe"), "--json", plan).stdout)


def active_window():
    return subprocess.run(["xdotool", "getactivewindow"], capture_output=True, text=True,
                          check=False).stdout.strip()


class Window:
    """The program's window."""

    def __init__(self, program, *words):
        self.process = subprocess.Popen([WINE, program, *words], stderr=subprocess.DEVNULL)
        self.window_id = wait_for(lambda: find_window("Kelva Aufbau"), "the window", 60)
        xdotool("windowactivate", "--sync", self.window_id, "sleep", 1)

    def click(self, position):
        xdotool("mousemove", "--window", self.window_id, *position, "sleep", 0.2, "click", 1,
                "sleep", 0.4)

    def drag(self, origin, target):
        xdotool("mousemove", "--window", self.window_id, origin[0] - 3, origin[1], "sleep", 0.2,
                "mousemove", "--window", self.window_id, *origin, "sleep", 0.2,
                "mousedown", 1, "sleep", 0.2,
                "mousemove", "--window", self.window_id, *target, "sleep", 0.2,
                "mousemove", "--window", self.window_id, target[0] + 3, target[1], "sleep", 0.3,
                "mouseup", 1, "sleep", 0.3)

    def press(self, *keys):
        xdotool("windowactivate", "--sync", self.window_id, "key", *keys, "sleep", 0.5)

    def title(self):
        return subprocess.run(["xdotool", "getwindowname", self.window_id], capture_output=True,
                              text=True, check=False).stdout

    @staticmethod
    def answer(title, key):
        """Answers the box with this title by a key."""
        wait_for(lambda: find_window(title), title)
        xdotool("sleep", 0.5, "key", key, "sleep", 0.8)

    def recover(self):
        self.answer("Wiederherstellen", "alt+j")
        self.answer("Wiederherstellen", "alt+n")

    def kill(self):
        self.process.kill()
        self.process.wait()
        wait_for(lambda: not find_window("Kelva Aufbau"), "the end")

    def crop(self, area):
        """The pixels of a part of the window."""
        return subprocess.check_output(["import", "-window", self.window_id, "-crop", area,
                                        "-depth", "8", "rgb:-"])

    def read_texts(self):
        """The texts in a picture of the window."""
        original = subprocess.run(["import", "-window", self.window_id, "png:-"], check=True,
                                  capture_output=True).stdout
        enlarged = subprocess.run(["convert", "-", "-colorspace", "Gray", "-resize", "400%",
                                   "-unsharp", "0x1", "png:-"], input=original, check=True,
                                  capture_output=True).stdout
        return subprocess.run(["tesseract", "-", "-", "-l", "deu", "--psm", "11"], input=enlarged,
                              check=True, capture_output=True).stdout.decode()

    def screenshot(self, file):
        """Saves a picture of the whole screen."""
        subprocess.run(["import", "-window", "root", file], check=True)

    def quit(self):
        self.press("alt+d")
        xdotool("key", "b")
        assert self.process.wait(timeout=60) == 0


def save(window, file):
    """Saves under a name in the folder that the dialog shows. xdotool remaps the keyboard for each
    umlaut, which can fail on a busy machine, hence the repetition."""
    for _ in range(3):
        window.press("ctrl+s")
        # The native dialog has no title here.
        wait_for(lambda: active_window() not in ("", window.window_id), "the dialog")
        xdotool("sleep", 1, "key", "ctrl+a", "type", "--delay", "80", os.path.basename(file))
        xdotool("sleep", 0.5, "key", "Return", "sleep", 3)
        if os.path.exists(file):
            return
        xdotool("key", "Escape", "sleep", 1)
    raise PlayError(file)


def check_texts(found, schedule):
    """No letter is missing in captions and lists."""
    words = CAPTIONS + [row[column] for row in schedule for column in ("Uhrzeit", "theText")]
    missing = [word for word in words if word not in found]
    assert not missing, (missing, found)


def check_first_start(programs, folder, pictures):
    """The starter plan is loaded, gets one more order, and is saved. Returns its new file."""
    shutil.copy(STARTER_PLAN, os.path.join(folder, "saves", "basic.tvf"))
    window = Window(os.path.join(folder, "tarvelin.exe"))
    wait_for(lambda: "basic.tvf" in window.title(), "the starter plan")
    window.click(HIDE)
    window.drag(METAL_MINE, BUILD_LIST)
    points_before = window.crop(POINTS)
    window.press("Return")
    wait_for(lambda: window.crop(POINTS) != points_before, "the run")
    check_texts(window.read_texts(), run_plan(programs, STARTER_PLAN)["LV_Bauzeiten"][:12])
    window.screenshot(os.path.join(pictures, "window.png"))
    file = os.path.join(folder, "saves", "Größe äöü.tvf")
    save(window, file)
    before = run_plan(programs, STARTER_PLAN)["Bauliste"]
    after = run_plan(programs, file)
    assert len(after["Bauliste"]) == len(before) + 1 and after["Bauliste"][-1]["Tag"] == "GM"
    window.quit()
    return file


def check_recovery(programs, folder):
    """The last plan comes back, even after a kill: a dead program holds no lock."""
    def row_counts():
        saves = os.path.join(folder, "saves")
        return [len(run_plan(programs, os.path.join(saves, name))["Bauliste"])
                for name in ("autosave.tvf", "autosave-vorige.tvf")
                if os.path.exists(os.path.join(saves, name))]
    for is_killed in (False, True):
        last = row_counts()[0]
        window = Window(os.path.join(folder, "tarvelin.exe"))
        window.recover()
        window.drag(METAL_MINE, BUILD_LIST)
        if is_killed:
            wait_for(lambda last=last: row_counts() == [last + 1, last], "the drag on the disk")
            window.kill()
        else:
            window.quit()
        assert row_counts() == [last + 1, last], (row_counts(), last)


def check_second_window(folder, plan):
    """It asks whether it should open beside the first, and writes nothing."""
    def kept():
        files = [os.path.join(folder, "config.cfg"),
                 *glob.glob(os.path.join(folder, "saves", "autosave*"))]
        return {file: open(file, "rb").read() for file in files}
    before = kept()
    for key in ["alt+n", "alt+j"]:
        second = subprocess.Popen([WINE, os.path.join(folder, "tarvelin.exe"), plan],
                                  stderr=subprocess.DEVNULL)
        Window.answer("^Tarvelin$", key)
        if key == "alt+j":
            window_id = wait_for(lambda: find_window(os.path.basename(plan)),
                                 "the second window", 60)
            xdotool("windowactivate", "--sync", window_id, "sleep", 1, "key", "ctrl+n",
                    "sleep", 0.5, "key", "alt+F4")
        assert second.wait(timeout=60) == 0
    assert kept() == before


def check_alarm(programs, folder, plan):
    """A plan that begins soon is opened by its file, and an alarm sounds before its first order.
    Returns the window."""
    start = datetime.datetime.now() + datetime.timedelta(seconds=150)
    with open(plan, encoding="cp1252") as file:
        lines = file.read().splitlines()
    values = {"UniStartZeitTag": f"{start:%d}", "UniStartZeitMonat": f"{start:%m}",
              "UniStartZeitJahr": f"{start:%Y}", "UniStartZeitStunden": f"{start:%H}",
              "UniStartZeitMinuten": f"{start:%M}", "KlickPuffer": "30"}
    soon = os.path.join(folder, "saves", "soon.tvf")
    with open(soon, "w", encoding="cp1252", newline="\r\n") as file:
        for line in lines:
            name = line.split("=")[0]
            file.write(f"{name}={values[name]}\n" if name in values else line + "\n")
    first = run_plan(programs, soon)["LV_Bauzeiten"][0]["Tag"].split()
    due = datetime.datetime.strptime(" ".join(first[1:3]), "%d.%m.%Y %H:%M:%S")
    window = Window(os.path.join(folder, "tarvelin.exe"), soon)
    wait_for(lambda: "soon.tvf" in window.title(), "the plan of the argument")
    window.click(ALARM)
    ear = Ear()
    assert due - datetime.timedelta(seconds=11) > datetime.datetime.now(), "no time is left"
    wait_for(lambda: ear.loud_at, "the alarm", 200)
    ear.close()
    lead = due.timestamp() - ear.loud_at[0]
    assert 0 <= lead <= 10, lead
    return window


def check_web_skin(window, folder):
    server = SkinServer()
    window.click(SKIN)
    for position in (WEB, WEB_PATH):
        window.click(position)
    xdotool("key", "ctrl+a", "type", server.address + "/a")
    window.click(SKIN_OK)
    wait_for(lambda: find_window("Fortsetzen"), "the notice")
    xdotool("sleep", 0.5, "key", "Return")
    files = wait_for(lambda: len(server.paths) == 24 and list(server.paths), "24 files")
    for path in files:
        target = os.path.join(folder, "img", "skins", "temp_webskin") + path.removeprefix("/a")
        wait_for(lambda target=target, path=path: os.path.exists(target)
                 and open(target, "rb").read() == picture(path), path)


def check_workbench(window, folder, pictures):
    window.press("alt+w")
    xdotool("key", "Return")
    wait_for(lambda: find_window("Tarvelin Werkbank"), "the workbench")
    time.sleep(1.5)
    window.screenshot(os.path.join(pictures, "workbench.png"))
    window.quit()
    with open(os.path.join(folder, "config.cfg"), encoding="cp1252") as file:
        assert "[Werkbank]" in file.read()


def user_folder():
    users = os.path.join(os.environ["WINEPREFIX"], "drive_c", "users", "*")
    return [folder for folder in glob.glob(users) if not folder.endswith("Public")][0]


def share_types():
    """Copies the file types of this user to all users: Wine's shell reads only those, where Windows
    merges both."""
    for type_name in (".tvf", "Tarvelin.Plan"):
        copied = wine("reg", "copy", f"HKCU\\Software\\Classes\\{type_name}",
                      f"HKLM\\Software\\Classes\\{type_name}", "/s", "/f")
        assert copied.returncode == 0, type_name


def old_setup(setup, folder):
    """Makes the setup of an older version, which has one more file. Returns its path."""
    parts = os.path.join(os.path.dirname(setup), "setup")
    with open(os.path.join(parts, "copy.nsh"), encoding="utf-8") as file:
        copying = file.read() + f'File "/oname=$INSTDIR\\bin\\old.dll" "{STARTER_PLAN}"\n'
    with open(os.path.join(parts, "delete.nsh"), encoding="utf-8") as file:
        deleting = 'Delete "$INSTDIR\\bin\\old.dll"\n' + file.read()
    for name, text in [("copy.nsh", copying), ("delete.nsh", deleting)]:
        with open(os.path.join(folder, name), "w", encoding="utf-8") as file:
            file.write(text)
    target = os.path.join(folder, "old.exe")
    subprocess.run(["makensis", "-V1", "-INPUTCHARSET", "UTF8", "-DVERSION=0.9.0",
                    "-DSOURCE=" + os.path.join(parts, "tree"), "-DTARGET=" + target,
                    "-DLISTS=" + folder,
                    os.path.join(os.path.dirname(__file__), "../../packaging/windows/setup.nsi")],
                   check=True)
    return target


def installed_version():
    key = "HKCU\\Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Tarvelin"
    return wine("reg", "query", key, "/v", "DisplayVersion").stdout.decode().split()[-1]


def check_setup(programs, setup):
    """An older version is installed and started by a double click on a plan. The present one is
    installed over it while it runs, and removed likewise."""
    home = user_folder()
    target = os.path.join(home, "AppData", "Local", "Programs", "Tarvelin")
    data = os.path.join(home, "AppData", "Roaming", "Tarvelin")
    plan = os.path.join(home, "Plan ä.tvf")
    shutil.copy(STARTER_PLAN, plan)
    assert wine(old_setup(setup, os.environ["HOME"]), "/S").returncode == 0
    old_file = os.path.join(target, "bin", "old.dll")
    assert os.path.exists(old_file) and installed_version() == "0.9.0"
    share_types()
    for again in (True, False):
        wine("start", "/unix", plan)
        wait_for(lambda: find_window("Plan ä.tvf"), "the installed program", 60)
        wait_for(lambda: os.path.exists(os.path.join(data, "tarvelin.lock")), "its lock")
        own_file = os.path.join(target, "bin", "own.txt")
        with open(own_file, "w", encoding="ascii") as file:
            file.write("mine")
        if again:
            assert wine(setup, "/S").returncode == 0
            assert not os.path.exists(old_file)
            assert os.path.basename(setup).startswith(f"Tarvelin-{installed_version()}-")
        else:
            wine(os.path.join(target, "Entfernen.exe"), "/S")
            # The removal is done by a copy of itself, which outlasts the call.
            wait_for(lambda: not os.path.exists(os.path.join(target, "Entfernen.exe")),
                     "the removal")
        wait_for(lambda: not find_window("Kelva Aufbau"), "the end of the program that ran")
        assert os.path.exists(os.path.join(target, "bin", "tarvelin.exe")) == again
        assert os.path.exists(own_file)
        autosave = run_plan(programs, os.path.join(data, "saves", "autosave.tvf"))
        assert len(autosave["Bauliste"]) == 49
        assert os.path.exists(os.path.join(data, "config.cfg"))
    assert os.listdir(target) == ["bin"] and os.listdir(os.path.join(target, "bin")) == ["own.txt"]
    assert os.path.exists(plan)
    for key in ["Microsoft\\Windows\\CurrentVersion\\Uninstall\\Tarvelin", "Classes\\.tvf",
                "Classes\\Tarvelin.Plan", "QtProject", "Tarvelin"]:
        assert wine("reg", "query", "HKCU\\Software\\" + key).returncode != 0, key


def main(programs, setup, pictures):
    os.makedirs(pictures, exist_ok=True)
    folder = os.path.join(os.environ["HOME"], "Tarvelin – 星")
    shutil.copytree(programs, folder,
                    ignore=shutil.ignore_patterns("config.cfg", "*.tvf", "*bench*"))
    plan = check_first_start(programs, folder, pictures)
    check_recovery(programs, folder)
    window = check_alarm(programs, folder, plan)
    check_second_window(folder, plan)
    check_web_skin(window, folder)
    check_workbench(window, folder, pictures)
    check_setup(programs, setup)


if __name__ == "__main__":
    main(*map(os.path.abspath, sys.argv[1:]))
