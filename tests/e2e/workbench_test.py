#!/usr/bin/python3
"""A player at the workbench: opens it, drags a row, reads both windows, takes it back, saves a
picture, searches, stops, takes over, compares with a file and takes the calendar along.

    workbench_test.py FOLDER_OF_THE_PROGRAMS
"""
import datetime
import os
import shutil
import subprocess
import sys
import tempfile

import icalendar

from driver import STARTERPLAN, Programm, kopiere, warte, xdotool
from compare import rechne, texte

# The research lane's bars, on a light desktop.
FORSCHUNG = bytes([0x9c, 0xc4, 0xf0])


def auftraege(werkbank):
    return texte(werkbank, "Aufträge", 6)


def erwarte_einig(programm, werkbank):
    """The same rows, starts and duration in both windows. The rows."""
    def sind_einig():
        dort = auftraege(werkbank)
        hier = texte(programm, "Bauliste", 3)
        bauzeiten = texte(programm, "Optimale Bauzeiten", 3)
        return ([[z[0], z[1], z[5]] for z in dort] == hier
                and sorted(z[2].split()[-1] for z in dort) == sorted(z[1] for z in bauzeiten)
                and programm.finde("label", werkbank.sagt("Dauer des Plans")) and dort)
    return [zeile[1] for zeile in warte(sind_einig, "two windows that agree")]


def ziehe_zeile(werkbank, von, vor):
    """By the mouse, in front of another row."""
    zellen = werkbank.zeilen("Aufträge", 6)
    x, y = werkbank.mitte(zellen[von][1], 0.2)
    zu_x, zu_y = werkbank.mitte(zellen[vor][1], 0.2)
    xdotool("mousemove", x, y, "mousedown", 1, "sleep", 0.1, "mousemove", x, y + 9, "sleep", 0.1,
            "mousemove", zu_x, zu_y, "mousemove", zu_x, zu_y - 5, "sleep", 0.1, "mouseup", 1)


def bearbeite(programm, werkbank):
    """A row goes up by the mouse and comes back by the keys."""
    vorher = erwarte_einig(programm, werkbank)
    dauer = werkbank.sagt("Dauer des Plans")
    ziehe_zeile(werkbank, 1, 0)
    warte(lambda: auftraege(werkbank)[0][1] == vorher[1], "a row that was moved")
    nachher = erwarte_einig(programm, werkbank)
    assert nachher == [vorher[1], vorher[0], *vorher[2:]], nachher
    assert werkbank.sagt("Änderung der Dauer")[0] in "+-±"
    xdotool("key", "ctrl+z")
    warte(lambda: auftraege(werkbank)[0][1] == vorher[0], "the undo")
    assert erwarte_einig(programm, werkbank) == vorher
    assert werkbank.sagt("Dauer des Plans") == dauer


def pruefe_bild(werkbank, verlauf, datei):
    """Where the longest research runs, the picture has its bar, and nowhere where none does."""
    werkbank.klicke("push button", "Bild speichern...")
    werkbank.waehle_datei(datei)
    assert warte(lambda: werkbank.sagt("Meldung"), "a message") == f"Gespeichert: {datei}"
    groesse = subprocess.check_output(["identify", "-format", "%w %h", datei], text=True)
    breite, hoehe = map(int, groesse.split())
    punkte = subprocess.check_output(["convert", datei, "-depth", "8", "rgb:-"])
    forschungen = [(a["Start"], a["Finish"]) for a in verlauf["Auftraege"]
                   if a["Schlange"] == "Forschungsschleife"]
    start, ende = max(forschungen, key=lambda f: f[1] - f[0])
    dauer = verlauf["Punkte"][-1]["Sekunde"]

    def hat_balken(sekunde):
        x = int(sekunde / dauer * (breite - 1))
        return any(punkte[3 * (y * breite + x):][:3] == FORSCHUNG for y in range(hoehe))

    assert hat_balken((start + ende) / 2)
    assert not hat_balken(forschungen[0][0] / 2)


def suche(programm, werkbank):
    """Searches until something is found, stops, takes it over, and compares with the file."""
    vorher = erwarte_einig(programm, werkbank)
    xdotool("key", "alt+c")
    werkbank.klicke("spin button", "Zahl der Versuche")
    xdotool("key", "ctrl+a", "type", "1000000000")
    werkbank.klicke("push button", "Suchen")

    def stand():
        return next((k.get_name() for k in werkbank.alle("label")
                     if k.get_name().startswith(("Bisher", "Vorher"))), "")
    warte(lambda: "(-" in stand(), "a faster plan", 120)
    # The window is usable meanwhile.
    assert erwarte_einig(programm, werkbank) == vorher
    werkbank.klicke("push button", "Anhalten")
    bericht = warte(lambda: stand().startswith("Vorher") and stand(), "the report")
    werkbank.klicke("push button", "Übernehmen")
    gefunden = warte(lambda: erwarte_einig(programm, werkbank) != vorher and
                     erwarte_einig(programm, werkbank), "the plan that was found")
    assert sorted(z.split()[0] for z in gefunden) == sorted(z.split()[0] for z in vorher)
    dauer = werkbank.sagt("Dauer des Plans").split()[-1]
    assert dauer in bericht.splitlines()[1], (dauer, bericht)


def vergleiche(werkbank, datei):
    xdotool("key", "alt+g")
    werkbank.klicke("push button", "Mit Datei...")
    werkbank.waehle_datei(datei)
    kennzahlen = warte(lambda: texte(werkbank, "Kennzahlen im Vergleich", 4), "a comparison")
    assert kennzahlen[0][0] == "Dauer" and kennzahlen[0][3].startswith("-"), kennzahlen
    unterschiede = texte(werkbank, "Aufträge zu anderer Zeit", 4)
    assert unterschiede and all(zeile[3][0] in "+-" for zeile in unterschiede), unterschiede


def pruefe_kalender(programm, werkbank, datei):
    werkbank.klicke("push button", "Kalender speichern...")
    werkbank.waehle_datei(datei)
    warte(lambda: os.path.exists(datei), "the calendar")
    with open(datei, "rb") as strom:
        eintraege = icalendar.Calendar.from_ical(strom.read()).walk("VEVENT")
    starts = [datetime.datetime.strptime(" ".join(z[0].get_description().split()[1:3]),
                                         "%d.%m.%Y %H:%M:%S")
              for z in programm.zeilen("Optimale Bauzeiten", 3)]
    momente = [eintrag["DTSTART"].dt for eintrag in eintraege]
    assert momente[0] == min(starts) and set(momente) <= set(starts), (momente, starts)
    assert all(any(0 <= (s - m).total_seconds() <= 60 for m in momente) for s in starts)


def main(programme):
    with tempfile.TemporaryDirectory() as temporaer:
        ordner = os.path.join(temporaer, "Tarvelin")
        kopiere(programme, ordner)
        shutil.copy(STARTERPLAN, os.path.join(ordner, "saves", "basic.tvf"))
        programm = Programm(programme, ordner)
        werkbank = programm.oeffne_werkbank()
        bearbeite(programm, werkbank)
        verlauf = rechne(programme, STARTERPLAN, "--verlauf")["Verlauf"]
        pruefe_bild(werkbank, verlauf, os.path.join(temporaer, "bild.png"))
        vorher = erwarte_einig(programm, werkbank)
        suche(programm, werkbank)
        vergleiche(werkbank, STARTERPLAN)
        pruefe_kalender(programm, werkbank, os.path.join(temporaer, "plan.ics"))
        xdotool("key", "ctrl+z")
        warte(lambda: erwarte_einig(programm, werkbank) == vorher, "the undo of the search")
        xdotool("key", "alt+F4")
        assert programm.beende() == 0
        with open(os.path.join(ordner, "config.cfg"), encoding="cp1252") as datei:
            assert "[Werkbank]" in datei.read()


if __name__ == "__main__":
    main(sys.argv[1])
