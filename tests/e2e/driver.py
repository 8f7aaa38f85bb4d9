"""A player at the window: finds controls as a screen reader does, moves mouse and keys for real, and
hears what is played."""
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


class Fehler(Exception):
    """What the player was looking for did not come."""


def warte(bedingung, was, sekunden=30):
    """The first true value of `bedingung`."""
    ende = time.monotonic() + sekunden
    while time.monotonic() < ende:
        try:
            wert = bedingung()
        except gi.repository.GLib.Error:  # the tree changes while we read it
            wert = None
        if wert:
            return wert
        time.sleep(0.05)
    raise Fehler(f"{was}: nothing within {sekunden} s")


def xdotool(*worte):
    subprocess.run(["xdotool", *map(str, worte)], check=True)


def fensternummer(titel):
    """None where no window has this title, or one goes in the middle of the search."""
    suche = ["xdotool", "search", "--onlyvisible", "--name", titel]
    gefunden = subprocess.run(suche, capture_output=True, text=True, check=False).stdout.split()
    return gefunden[-1] if gefunden else None


def baum(knoten):
    yield knoten
    for i in range(knoten.get_child_count()):
        kind = knoten.get_child_at_index(i)
        if kind is not None:
            yield from baum(kind)


STARTERPLAN = os.path.join(os.path.dirname(__file__), "..", "..", "data", "saves", "basic.tvf")

Box = collections.namedtuple("Box", "titel text knoepfe")


def kopiere(bin_ordner, ordner):
    """The program's folder as nobody has used it, without a starter plan."""
    shutil.copytree(bin_ordner, ordner,
                    ignore=shutil.ignore_patterns("config.cfg", "*.tvf", "*bench"))


def ist(knoten, zustand):
    return knoten.get_state_set().contains(zustand)


def erstes_fenster(pid):
    """The first window of a process, or None."""
    tisch = Atspi.get_desktop(0)
    for i in range(tisch.get_child_count()):
        programm = tisch.get_child_at_index(i)
        if programm and programm.get_process_id() == pid:
            return programm.get_child_at_index(0)
    return None


class Programm:
    """The program in a copy of its folder, from its start to its end."""

    def __init__(self, bin_ordner, ordner, umgebung=None, fehlerstrom=None):
        """`ordner` becomes the program's folder, unless it is one already."""
        if not os.path.exists(ordner):
            kopiere(bin_ordner, ordner)
        self.ordner = ordner
        self._starte(ordner, umgebung or {}, fehlerstrom)

    def _starte(self, bin_ordner, umgebung, fehlerstrom=None):
        self.prozess = subprocess.Popen(
            [os.path.join(bin_ordner, "tarvelin")], stderr=fehlerstrom,
            env={**os.environ, "LC_ALL": "C.UTF-8", **umgebung})
        self.fenster = warte(self._fenster, "the window")
        self.nummer = warte(lambda: self._fenster() and fensternummer("Kelva Aufbau"), "its number")
        # A box that asks at the start is active in the window's place.
        xdotool("windowactivate", self.nummer)
        warte(lambda: any(ist(k, Atspi.StateType.ACTIVE) for k in self.oberste()), "activation")

    def _fenster(self):
        if self.prozess.poll() is not None:
            raise Fehler(f"the program ended at its start with {self.prozess.returncode}")
        return erstes_fenster(self.prozess.pid)

    def oberste(self):
        """Windows, boxes and dialogs of the program that are open."""
        programm = self.fenster.get_application()
        kinder = [programm.get_child_at_index(i) for i in range(programm.get_child_count())]
        return [k for k in kinder if k and ist(k, Atspi.StateType.SHOWING)]

    def oeffne_werkbank(self):
        xdotool("key", "alt+w", "sleep", 0.3, "key", "Return")
        return self.weiteres("Tarvelin  |  Werkbank")

    def weiteres(self, titel):
        """The program with another one of its windows below the hands."""
        anderes = copy.copy(self)
        anderes.nummer = warte(lambda: fensternummer(titel), titel)
        anderes.fenster = warte(lambda: next((k for k in self.oberste()
                                              if titel in k.get_name()), None), titel)
        xdotool("windowactivate", "--sync", anderes.nummer)
        return anderes

    @staticmethod
    def lies_box(alert):
        knoten = list(baum(alert))
        texte = [k.get_name() for k in knoten if k.get_role_name() == "label"]
        # A box without an icon has an empty label in its place.
        return Box(alert.get_name(), "\n".join(filter(None, texte)),
                   {k.get_name(): k for k in knoten if k.get_role_name() == "push button"})

    def boxen(self):
        """The message boxes that are open."""
        return [self.lies_box(k) for k in self.oberste() if k.get_role_name() == "alert"]

    def antworte(self, frage, knopf):
        """Presses a button of the box that asks this question, which then goes. Its title."""
        box = warte(lambda: [b for b in self.boxen() if b.text == frage], frage)[0]
        xdotool("mousemove", *self.mitte(box.knoepfe[knopf]), "click", 1)
        warte(lambda: not any(b.text == frage for b in self.boxen()), f"end of {frage!r}")
        return box.titel

    def alle(self, rolle):
        return [k for k in baum(self.fenster) if k.get_role_name() == rolle]

    def finde(self, rolle, name, nummer=0):
        """The control of a role and name; among several the one of this number."""
        def suche():
            treffer = [k for k in self.alle(rolle) if k.get_name() == name]
            return treffer[nummer] if len(treffer) > nummer else None
        return warte(suche, f"{rolle} {name!r}")

    @staticmethod
    def mitte(knoten, anteil=0.5):
        ort = knoten.get_extents(Atspi.CoordType.SCREEN)
        pixel = float(os.environ.get("QT_SCALE_FACTOR", 1))
        return int((ort.x + ort.width * anteil) * pixel), int((ort.y + ort.height / 2) * pixel)

    def klicke(self, rolle, name, nummer=0, anteil=0.5):
        xdotool("mousemove", *self.mitte(self.finde(rolle, name, nummer), anteil), "click", 1)

    def sagt(self, bedeutung):
        """The text of the label that means this."""
        return next((k.get_name() for k in self.alle("label")
                     if k.get_description() == bedeutung), None)

    def waehle_datei(self, datei):
        """Gives a file dialog that comes up a name."""
        warte(lambda: any(k.get_role_name() == "dialog" for k in self.oberste()), "the dialog")
        xdotool("sleep", 0.3, "key", "ctrl+a", "type", datei)
        xdotool("key", "Return")
        warte(lambda: not any(k.get_role_name() == "dialog" for k in self.oberste()), "its end")

    def tippe(self, name, text):
        self.klicke("text", name)
        xdotool("key", "ctrl+a", "type", text)
        warte(lambda: self.text(name) == text, f"{text!r} in {name}")

    def text(self, name):
        knoten = self.finde("text", name)
        return Atspi.Text.get_text(knoten, 0, -1)

    def ziehe(self, bild, bis_zeilen):
        """Drags a picture into the build list, which then has that many rows."""
        x, y = self.mitte(self.finde("image", bild))
        zu_x, zu_y = self.mitte(self.finde("tree", "Bauliste"))
        # The pointer has to come over the picture, which opens it, before it can press there.
        xdotool("mousemove", x - 3, y, "mousemove", x, y, "sleep", 0.05, "mousedown", 1,
                "sleep", 0.05, "mousemove", zu_x, zu_y, "mousemove", zu_x + 3, zu_y,
                "sleep", 0.05, "mouseup", 1)
        warte(lambda: len(self.zeilen("Bauliste", 3)) == bis_zeilen, f"row of {bild}")

    def zeilen(self, liste, spalten):
        """The cells of a list, row by row."""
        baumknoten = self.finde("tree", liste)
        zellen = [baumknoten.get_child_at_index(i)
                  for i in range(spalten, baumknoten.get_child_count())]
        return [zellen[i:i + spalten] for i in range(0, len(zellen), spalten)]

    def farben(self):
        """The colour in the middle of each picture on the screen, by the picture's name."""
        punkte = subprocess.check_output(["import", "-window", "root", "-depth", "8", "rgb:-"])
        breite = int(subprocess.check_output(["xdotool", "getdisplaygeometry"]).split()[0])
        orte = {k.get_name(): self.mitte(k) for k in baum(self.fenster)
                if k.get_role_name() == "image"}
        return {name: punkte[3 * (y * breite + x):][:3] for name, (x, y) in orte.items()}

    def aufnahme(self, datei, titel=None):
        """A picture of the main window, or of the window with this title."""
        nummer = self.nummer if titel is None else warte(lambda: fensternummer(titel), titel)
        subprocess.run(["import", "-window", nummer, "+dither", "-colors", "256", "-strip",
                        f"PNG8:{datei}"], check=True)

    def beende(self):
        """Closes the program by its menu. Its exit code."""
        xdotool("windowactivate", "--sync", self.nummer, "key", "alt+d", "sleep", 0.3, "key", "b")
        return self.prozess.wait(timeout=30)


class Installiertes(Programm):
    """An installed program with a user's home folder."""

    def __init__(self, bin_ordner, heim):
        self.ordner = os.path.join(heim, ".local", "share", "Tarvelin")
        self._starte(bin_ordner, {"HOME": heim})


class Ohr:
    """Listens to the sound card without loudspeakers."""

    LAUT = 1000

    def __init__(self):
        self.laut_um = []
        self.prozess = subprocess.Popen(
            ["parec", "-d", "stumm.monitor", "--latency-msec=20", "--format=s16le", "--rate=8000",
             "--channels=1"], stdout=subprocess.PIPE)
        threading.Thread(target=self._hoere, daemon=True).start()

    def _hoere(self):
        while stueck := self.prozess.stdout.read(400):
            werte = array.array("h", stueck)
            if (sum(w * w for w in werte) / len(werte)) ** 0.5 > self.LAUT:
                self.laut_um.append(time.time())

    def schliesse(self):
        self.prozess.terminate()
        self.prozess.wait()


class Haende:
    """Mouse and keys by one process that lasts, for many actions."""

    def __init__(self):
        self.prozess = subprocess.Popen(["xdotool", "-"], stdin=subprocess.PIPE,
                                        stdout=subprocess.PIPE, text=True)

    def tu(self, worte):
        """Returns when it is done, which an answer behind it tells."""
        self.prozess.stdin.write(f"{worte}\ngetdisplaygeometry\n")
        self.prozess.stdin.flush()
        if not select.select([self.prozess.stdout], [], [], 30)[0]:
            raise Fehler(f"{worte}: not done within 30 s")
        self.prozess.stdout.readline()
