#!/usr/bin/python3
"""A monkey at the real program: clicks, drags and types at random, saves and loads by the dialog,
ends and kills it. Nothing may crash, hang, or leave a plan that can't be read.

    monkey_test.py FOLDER_OF_THE_PROGRAMS SEED ACTIONS
"""
import collections
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

from driver import STARTERPLAN, Atspi, Haende, Programm, gi, ist, kopiere, warte
from compare import rechne

LADEFEHLER = "Die Bauliste konnte nicht geladen werden..."
TASTEN = ["Return", "Escape", "Tab", "shift+Tab", "space", "Up", "Down", "Left", "Right", "Home",
          "End", "Page_Up", "BackSpace", "Delete", "ctrl+a", "ctrl+c", "ctrl+v", "ctrl+z", "alt+e",
          "alt+s", "alt+d", "ctrl+n", "ctrl+o", "ctrl+s"] + list("0123456789xGM")
BEDIENELEMENTE = ["text", "push button", "check box", "radio button", "slider", "combo box",
                  "menu item", "tree", "table"]
SPUREN = re.compile("Sanitizer|runtime error|ASSERT|terminate called")


class Affe:
    def __init__(self, programme, temporaer, seed):
        self.programme = programme
        self.ordner = os.path.join(temporaer, "Tarvelin")
        self.wuerfel = random.Random(seed)
        self.fehlerdatei = os.path.join(temporaer, "fehlerstrom")
        # Nothing leaves this machine, neither by a fetch nor by a browser.
        self.umgebung = {"http_proxy": "http://127.0.0.1:9", "https_proxy": "http://127.0.0.1:9",
                         "no_proxy": "", "BROWSER": "true"}
        self.haende = Haende()
        self.zaehler = collections.Counter()
        kopiere(programme, self.ordner)
        shutil.copy(STARTERPLAN, os.path.join(self.ordner, "saves", "basic.tvf"))
        Atspi.set_timeout(15000, 15000)
        self.starte()

    def starte(self):
        with open(self.fehlerdatei, "a", encoding="utf-8") as strom:
            self.programm = Programm(self.programme, self.ordner, self.umgebung, strom)
        self.merke_ziele()

    def merke_ziele(self):
        """Where the controls are that can be seen."""
        self.ziele, self.bilder, self.liste = [], [], None
        for oberstes in self.programm.oberste():
            self.merke(oberstes)

    def merke(self, knoten):
        if knoten is None or not ist(knoten, Atspi.StateType.SHOWING):
            return
        rolle, ort = knoten.get_role_name(), knoten.get_extents(Atspi.CoordType.SCREEN)
        if rolle == "image":
            self.bilder.append(ort)
        elif rolle in BEDIENELEMENTE:
            self.ziele.append(ort)
        if knoten.get_name() == "Bauliste":
            self.liste = ort
        # Lists can have hundreds of cells.
        for i in range(0 if rolle in ("tree", "table") else knoten.get_child_count()):
            self.merke(knoten.get_child_at_index(i))

    def punkt(self, orte):
        ort = self.wuerfel.choice(orte)
        return (f"{max(0, ort.x + self.wuerfel.randrange(max(1, ort.width)))}"
                f" {max(0, ort.y + self.wuerfel.randrange(max(1, ort.height)))}")

    # What the monkey does; each returns words for the hands.

    def klicke(self):
        return f"mousemove {self.punkt(self.ziele)} click {self.wuerfel.choice([1, 1, 1, 3, 4])}"

    def ziehe(self):
        return (f"mousemove {self.punkt(self.bilder)} mousemove_relative 1 0 sleep 0.01 mousedown 1"
                f" sleep 0.01 mousemove {self.punkt([self.liste])} mousemove_relative 1 1"
                " sleep 0.01 mouseup 1")

    def taste(self):
        return "key --delay 1 " + self.wuerfel.choice(TASTEN)

    def beende_durch_signal(self):
        """Asks it to end, whatever is open."""
        zeichen = self.wuerfel.choice([signal.SIGTERM, signal.SIGHUP, signal.SIGINT])
        self.zaehler[zeichen.name] += 1
        self.programm.prozess.send_signal(zeichen)
        self.programm.prozess.wait(30)
        return ""

    def toete(self):
        """Kills it, now or while it saves."""
        if self.wuerfel.random() < 0.5:
            self.haende.tu(f"key alt+F4 sleep {self.wuerfel.uniform(0, 0.05):.3f}")
        self.zaehler["SIGKILL"] += 1
        self.programm.prozess.kill()
        self.programm.prozess.wait()
        return ""

    AKTIONEN = {klicke: 30, ziehe: 30, taste: 36, beende_durch_signal: 2, toete: 2}

    # What the monkey's keeper looks at before each action.

    def sieh_nach(self):
        """The program shows a window, or it has ended well and is started again."""
        warte(lambda: self.programm.prozess.poll() is not None or self.programm.oberste(),
              "an answer of the program", 20)
        if self.programm.prozess.poll() is not None:
            self.pruefe_ende()
            self.starte()
        for knoten in self.programm.oberste():
            if knoten.get_role_name() == "alert":
                knoepfe = self.programm.lies_box(knoten).knoepfe
                if knoepfe:
                    Atspi.Action.do_action(knoepfe[self.wuerfel.choice(sorted(knoepfe))], 0)
                    warte(lambda k=knoten: k not in self.programm.oberste(), "end of a box")
            elif knoten.get_role_name() == "dialog":
                self.zaehler[knoten.get_name()] += 1
                name = self.wuerfel.choice(["affe.tvf", "autosave.tvf", "fehlt.tvf"])
                self.haende.tu(f'key ctrl+a type --delay 1 "{self.ordner}/saves/{name}"')
                self.haende.tu("key Return")

    def pruefe_ende(self):
        code = self.programm.prozess.returncode
        with open(self.fehlerdatei, encoding="utf-8", errors="replace") as strom:
            meldungen = strom.read()
        assert not SPUREN.search(meldungen), meldungen[-20000:]
        assert code in (0, -9), code
        for datei in glob.glob(os.path.join(self.ordner, "saves", "*.tvf")):
            meldungen = rechne(self.programme, datei)["Meldungen"]
            assert LADEFEHLER not in [m["Text"] for m in meldungen], datei
        reste = glob.glob(os.path.join(self.ordner, "**", ".tarvelin-*"), recursive=True)
        assert code == -9 or not reste, reste

    def spiele(self, aktionen):
        for i in range(aktionen):
            # A box or a window can go while we look at it.
            with contextlib.suppress(gi.repository.GLib.Error):
                self.sieh_nach()
                if i % 20 == 0:
                    self.merke_ziele()
                self.haende.tu(self.wuerfel.choices(
                    list(self.AKTIONEN), self.AKTIONEN.values())[0](self))


def main(programme, seed, aktionen):
    with tempfile.TemporaryDirectory() as temporaer:
        affe = Affe(programme, temporaer, seed)
        try:
            affe.spiele(aktionen)
            if affe.programm.prozess.poll() is None:
                affe.beende_durch_signal()
            affe.pruefe_ende()
        finally:
            affe.programm.prozess.kill()
            affe.programm.prozess.wait()
    print(dict(affe.zaehler))


if __name__ == "__main__":
    if sys.argv[-1] != "--selbst":
        # The library that reads the screen can crash when a program goes while it reads: then, and
        # only then, once more.
        befehl = [sys.executable, *sys.argv, "--selbst"]
        ende = subprocess.call(befehl)
        sys.exit(subprocess.call(befehl) if ende == -signal.SIGSEGV else ende)
    main(sys.argv[1], int(sys.argv[2]), int(sys.argv[3]))
