#!/usr/bin/python3
"""A monkey at the real program: clicks, drags and types at random, closes and kills it. Nothing may
crash, hang, or say what the program never says.

    affe_test.py FOLDER_OF_THE_PROGRAMS SEED ACTIONS
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
import time

from bedienung import STARTERPLAN, Atspi, Haende, Programm, gi, ist, kopiere, warte
from skinserver import Skinserver, bild
from vergleich import rechne

LADEFEHLER = "Die Bauliste konnte nicht geladen werden..."

# Every text that a box can have, as patterns; but not what a run says of orders that it doesn't know,
# which no player can give.
TEXTE = [
    "Möchtest du die letzte Bauliste wiederherstellen\\?",
    "Bei jedem Start so verfahren\\?",
    "Die Bauliste ist leer\\.\\.\\.",
    "Die Bauliste ist voll: mehr als 254 Einträge sind nicht möglich\\.\\.\\.",
    re.escape(LADEFEHLER),
    "Keine gültige Temperatur eingegeben\\.\\.\\.",
    "Kein gültiges Datum eingegeben\\.\\.\\.",
    "Keine gültige Dauer eingegeben\\.\\.\\.",
    "Kein überschneidenden Zeiträumen eingegeben\\.\\.\\.",
    "Wirklich alle löschen \\?",
    # Ships before there is any deuterium, or a mine that eats it in the heat.
    "Negative Ressourcen: Metall: [-\\d,]+    Kristall:[-\\d,]+    Deuterium: [-\\d,]+",
    "Der folgende Vorgang kann einige Sekunden dauern, je nach Internet-Anbindung\\.\\.\\.",
    '"/(gebaeude/\\d+|images/[a-z]+)\\.gif" konnte nicht von der angegebenen URL geladen werden'
    "\\.\\.\\.\n\nVorgang abbrechen \\?",
    "Die Versions-Datei konnte nicht geladen werden\\.\\.\\.",
    "Deine Version \\(v[\\d.]+\\) scheint (die aktuelle|NICHT die aktuelle \\(v.{0,256}\\))\\s?zu sein!\n"
    "Möglicherweise habe ich aber auch nur vergessen die Versions-Datei auf dem Server zu ändern"
    "\\.\\.\\.\n\nHersteller-Homepage aufrufen \\?",
    "Die Bauliste konnte nicht gespeichert werden\\.\\.\\.",
]
KNOEPFE = {frozenset(["OK"]), frozenset(["Ja", "Nein"])}

TASTEN = ["Return", "Escape", "Tab", "Tab", "shift+Tab", "space", "space", "Up", "Down", "Left",
          "Right", "Home", "End", "Page_Up", "Page_Down", "BackSpace", "Delete", "F1", "Menu",
          "ctrl+a", "ctrl+c", "ctrl+v", "ctrl+x", "ctrl+z", "alt+e", "alt+s", "alt+d", "alt+i"]
KUERZEL = ["ctrl+n", "ctrl+o", "ctrl+s", "alt+d Down Down Return", "alt+d Up Up Return"]
ZEICHEN = list("0123456789" * 3 + "abcxyzGMT") + [
    "minus", "plus", "comma", "period", "colon", "percent", "numbersign", "dollar", "quotedbl",
    "backslash", "semicolon", "equal", "bracketleft", "less", "adiaeresis", "EuroSign"]
BEDIENELEMENTE = ["text", "push button", "check box", "radio button", "slider", "combo box",
                  "menu item", "tree", "table"]
BEIFENSTER = ["About Tarvelin", "Tarvelin unterstützen..."]
KNOPF = [1] * 12 + [2, 3, 3]
SPUREN = re.compile("Sanitizer|runtime error|ASSERT|terminate called")


class Affe:
    def __init__(self, programme, temporaer, seed):
        self.programme = programme
        self.ordner = os.path.join(temporaer, "Tarvelin")
        self.wuerfel = random.Random(seed)
        self.server = Skinserver(self.netz)
        self.netzwuerfel = random.Random(seed)
        self.fehlerdatei = os.path.join(temporaer, "fehlerstrom")
        self.adressen = lege_browser_an(os.path.join(temporaer, "bin"))
        # Every address goes to our server, and nothing leaves this machine.
        self.umgebung = {"http_proxy": self.server.adresse, "https_proxy": self.server.adresse,
                         "no_proxy": "", "PATH": f"{temporaer}/bin:{os.environ['PATH']}"}
        self.haende = Haende()
        self.boxen = collections.Counter()
        self.zaehler = collections.Counter()
        kopiere(programme, self.ordner)
        shutil.copy(STARTERPLAN, os.path.join(self.ordner, "saves", "basic.tvf"))
        Atspi.set_timeout(15000, 15000)
        self.starte()

    def starte(self):
        with open(self.fehlerdatei, "a", encoding="utf-8") as strom:
            self.programm = Programm(self.programme, self.ordner, self.umgebung, strom)
        self.merke_ziele()

    def netz(self, pfad):
        """Whole pictures mostly; else nothing, half of it, or what is no picture."""
        befehl = [os.path.join(self.programme, "tarvelin-cli"), "--version"]
        inhalt = (subprocess.check_output(befehl).split()[-1] if pfad.endswith(".txt")
                  else bild(pfad))
        unsinn = self.netzwuerfel.randbytes(99).replace(b"\0", b"?")
        return self.netzwuerfel.choice([(200, inhalt, None)] * 12 + [
            (404, inhalt, 20), (200, inhalt, 3), (200, b"", 0), (302, inhalt, 5), (200, unsinn, 99)])

    def schliesse_fenster(self, *welches):
        # By two processes: one that knows the window would send it the end of the keys, and when it
        # has gone by then, the screen takes them for held.
        subprocess.run(["xdotool", *welches, "windowactivate"], stderr=subprocess.DEVNULL,
                       check=False)
        self.haende.tu("sleep 0.1 key alt+F4")

    # What the monkey aims at.

    def merke_ziele(self):
        """Where the controls are that can be seen, and the frame of the window."""
        self.ziele, self.bilder, self.orte = [], [], {}
        for oberstes in self.programm.oberste():
            self.merke(oberstes)
        self.rahmen = self.programm.fenster.get_extents(Atspi.CoordType.SCREEN)

    def merke(self, knoten):
        if knoten is None or not ist(knoten, Atspi.StateType.SHOWING):
            return
        rolle, ort = knoten.get_role_name(), knoten.get_extents(Atspi.CoordType.SCREEN)
        if rolle == "image":
            self.bilder.append(ort)
        elif rolle in BEDIENELEMENTE:
            self.ziele.append(ort)
        self.orte[knoten.get_name()] = ort
        # Lists can have hundreds of cells.
        for i in range(0 if rolle in ("tree", "table") else knoten.get_child_count()):
            self.merke(knoten.get_child_at_index(i))

    def punkt(self, orte=None):
        ort = self.wuerfel.choice(orte or [self.rahmen])
        return (f"{max(0, ort.x + self.wuerfel.randrange(max(1, ort.width)))}"
                f" {max(0, ort.y + self.wuerfel.randrange(max(1, ort.height)))}")

    # What the monkey does; each returns words for the hands.

    def klicke(self):
        return f"mousemove {self.punkt(self.ziele)} click 1"

    def klicke_irgendwo(self):
        return f"mousemove {self.punkt()} click {self.wuerfel.choice(KNOPF)}"

    def klicke_doppelt(self):
        return f"mousemove {self.punkt(self.ziele)} click --repeat 2 --delay 10 1"

    def ziehe_bild(self):
        return self.zug(self.punkt(self.bilder),
                        self.punkt([self.orte.get("Bauliste", self.rahmen)]
                                   if self.wuerfel.random() < 0.8 else None))

    def ziehe(self):
        return self.zug(self.punkt(), self.punkt())

    def zug(self, von, bis):
        abbruch = " key Escape" if self.wuerfel.random() < 0.1 else ""
        return (f"mousemove {von} mousemove_relative 1 0 sleep 0.01 mousedown 1 sleep 0.01"
                f" mousemove {bis} mousemove_relative 1 1{abbruch} sleep 0.01 mouseup 1")

    def drehe_rad(self):
        return f"mousemove {self.punkt(self.ziele)} click --repeat 3 --delay 1 " \
               f"{self.wuerfel.choice([4, 5])}"

    def tippe(self):
        anzahl = self.wuerfel.randint(1, 5)
        return "key --delay 1 " + " ".join(self.wuerfel.choices(ZEICHEN, k=anzahl))

    def taste(self):
        return "key --delay 1 " + self.wuerfel.choice(TASTEN)

    def kuerzel(self):
        return "key --delay 5 " + self.wuerfel.choice(KUERZEL)

    def info(self):
        return f"key --delay 5 alt+d Left {' '.join(['Down'] * self.wuerfel.randint(1, 3))} Return"

    def webskin(self):
        """Goes to the skin panel with the mouse, and types an address."""
        for name in ["Skin", "Web", "Web-Verzeichnis"]:
            self.merke_ziele()
            # It may be the click that closes the panel, or a box lies over it.
            if name not in self.orte:
                return ""
            self.haende.tu(f"mousemove {self.punkt([self.orte[name]])} click 1 sleep 0.05")
        adresse = self.wuerfel.choice(["http://a", "http://a/", "http://b", "https://c", "x"])
        return ("key --delay 1 ctrl+a "
                + " ".join({":": "colon", "/": "slash"}.get(z, z) for z in adresse) + " Tab Return")

    def schliesse(self):
        self.zaehler["close"] += 1
        self.haende.tu(self.wuerfel.choice(["key alt+F4", "key --delay 5 alt+d b"]))
        # Whoever reads what is just going may crash. A box keeps the program open.
        with contextlib.suppress(subprocess.TimeoutExpired):
            self.programm.prozess.wait(2)
        return ""

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

    AKTIONEN = {klicke: 28, klicke_irgendwo: 12, klicke_doppelt: 4, ziehe_bild: 18, ziehe: 4,
                drehe_rad: 5, tippe: 12, taste: 14, kuerzel: 2, info: 0.6, webskin: 0.3,
                schliesse: 0.4, beende_durch_signal: 0.2, toete: 0.15}

    # What the monkey's keeper looks at before each action.

    def sieh_nach(self):
        """The program shows a window, or it has ended well and is started again."""
        warte(lambda: self.programm.prozess.poll() is not None or self.programm.oberste(),
              "an answer of the program", 20)
        if self.programm.prozess.poll() is not None:
            self.pruefe_ende()
            self.starte()
        self.behandle(self.programm.oberste())

    def behandle(self, oberste):
        for knoten in oberste:
            rolle = knoten.get_role_name()
            if rolle == "alert":
                self.antworte(knoten)
            elif rolle == "dialog":
                self.waehle_datei(knoten)
            # About box and donations keep the program alive when its window is closed.
            elif knoten.get_name() in BEIFENSTER and (
                    not ist(self.programm.fenster, Atspi.StateType.SHOWING)
                    or self.wuerfel.random() < 0.1):
                self.schliesse_fenster("search", "--name", f"^{knoten.get_name()}")

    def antworte(self, alert):
        box = self.programm.lies_box(alert)
        muster = [m for m in TEXTE if re.fullmatch(m, box.text, re.DOTALL)]
        if len(muster) != 1 or frozenset(box.knoepfe) not in KNOEPFE:
            # One that closes has lost its words already.
            assert not ist(alert, Atspi.StateType.SHOWING), box
            return
        self.boxen[muster[0]] += 1
        Atspi.Action.do_action(box.knoepfe[self.wuerfel.choice(sorted(box.knoepfe))], 0)
        warte(lambda: alert not in self.programm.oberste(), f"end of {box.text!r}")

    def waehle_datei(self, dialog):
        self.zaehler[dialog.get_name()] += 1
        name = self.wuerfel.choice(["affe1.tvf", "affe2.tvf", "affe3.tvf", "autosave.tvf"]
                                   + ["fehlt.tvf", "../config.cfg"] * (dialog.get_name() == "Öffnen"))
        if self.wuerfel.random() < 0.3:
            self.haende.tu("key Escape")
        else:
            self.haende.tu(f'key ctrl+a type --delay 1 "{self.ordner}/saves/{name}"')
            self.haende.tu("key Return")

    def pruefe_ende(self):
        code = self.programm.prozess.returncode
        with open(self.fehlerdatei, encoding="utf-8", errors="replace") as strom:
            meldungen = strom.read()
        assert not SPUREN.search(meldungen), meldungen[-20000:]
        assert code in (0, -9), code
        self.zaehler["restart"] += 1
        for datei in glob.glob(os.path.join(self.ordner, "saves", "*.tvf")):
            meldungen = rechne(self.programme, datei)["Meldungen"]
            assert LADEFEHLER not in [m["Text"] for m in meldungen], datei
        reste = glob.glob(os.path.join(self.ordner, "**", ".tarvelin-*"), recursive=True)
        assert code == -9 or not reste, reste

    def spiele(self, aktionen):
        for i in range(aktionen):
            try:
                self.sieh_nach()
                if i % 40 == 0:
                    self.merke_ziele()
                aktion = self.wuerfel.choices(list(self.AKTIONEN), self.AKTIONEN.values())[0]
                self.haende.tu(aktion(self))
            except gi.repository.GLib.Error:
                # A box or a window went while we looked at it.
                continue

    def beende(self):
        """Answers what is open and closes everything."""
        def ende():
            if self.programm.prozess.poll() is None:
                self.haende.tu("key Escape")
                self.behandle(self.programm.oberste())
                self.schliesse_fenster("search", "--name", "Kelva Aufbau")
            return self.programm.prozess.poll() is not None
        warte(ende, "end of the program")
        self.pruefe_ende()


def lege_browser_an(ordner):
    """A browser that writes down where it was sent. The file of its addresses."""
    os.makedirs(ordner)
    adressen = os.path.join(ordner, "adressen")
    browser = os.path.join(ordner, "xdg-open")
    with open(browser, "w", encoding="ascii") as strom:
        strom.write(f"#!/bin/sh\necho \"$1\" >> {adressen}\n")
    os.chmod(browser, 0o755)
    return adressen


def erlaubte_seiten(programme):
    """The maker's site and the payment service, as the build was told."""
    with open(os.path.join(programme, "..", "CMakeCache.txt"), encoding="utf-8") as strom:
        return tuple(re.findall("^TARVELIN_(?:HERSTELLERSEITE|ZAHLUNGSDIENST):STRING=(.*)$",
                                strom.read(), re.MULTILINE))


def main(programme, seed, aktionen):
    print(f"seed {seed}, {aktionen} actions", flush=True)
    beginn = time.monotonic()
    with tempfile.TemporaryDirectory() as temporaer:
        affe = Affe(programme, temporaer, seed)
        try:
            affe.spiele(aktionen)
            affe.beende()
        except BaseException:
            affe.programm.prozess.kill()
            affe.programm.prozess.wait()
            with open(affe.fehlerdatei, encoding="utf-8", errors="replace") as strom:
                print(strom.read()[-20000:])
            raise
        if os.path.exists(affe.adressen):
            with open(affe.adressen, encoding="utf-8") as strom:
                for adresse in strom:
                    affe.zaehler["page"] += 1
                    assert adresse.startswith(erlaubte_seiten(programme)), adresse
    print(dict(affe.zaehler), f"{len(affe.server.pfade)} fetches,",
          f"{time.monotonic() - beginn:.0f} s")
    for text, mal in affe.boxen.most_common():
        print(f"{mal:5} {text!r}")


if __name__ == "__main__":
    if sys.argv[-1] != "--selbst":
        # The library that reads the screen can crash when a program goes while it reads: then, and
        # only then, once more.
        befehl = [sys.executable, *sys.argv, "--selbst"]
        ende = subprocess.call(befehl)
        sys.exit(subprocess.call(befehl) if ende == -signal.SIGSEGV else ende)
    main(sys.argv[1], int(sys.argv[2]), int(sys.argv[3]))
