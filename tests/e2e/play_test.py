#!/usr/bin/python3
"""A player's time with the real program: first start, a plan by hand held against what the console
program makes of it, recovery, a skin from the web, an alarm that is heard, the end of the session.

    play_test.py FOLDER_OF_THE_PROGRAMS
"""
import datetime
import os
import shutil
import signal
import subprocess
import sys
import tempfile
import time

from driver import (STARTERPLAN, Atspi, Ohr, Programm, erstes_fenster, fensternummer, ist,
                       kopiere, warte, xdotool)
from opening import spiele
from skinserver import Skinserver, bild, farbe
from compare import erwartet, gesehen, rechne, texte

DATUM = ["Tag", "Monat", "Jahr", "Stunden", "Minuten"]
LABELS = ["LBL_Timegone", "LBL_Met", "LBL_Kris", "LBL_Deut", "LBL_ENergie", "LBL_Punkte"]


def plandatei(programm, codes, schlafzeiten):
    """The plan that the player entered, as a file."""
    datum = [programm.text(feld) for feld in DATUM]
    zeilen = ["[Einstellungen]", "KlickPuffer=15"]
    zeilen += [f"UniStartZeit{feld}={text}" for feld, text in zip(DATUM, datum)]
    zeilen += ["TempMax=24", "ShowDesc=1", "Speedfaktor_X2=0", "[Bauliste]",
               f"ItemCount={len(codes)}"]
    zeilen += [f"Item_{i:03}={code}" for i, code in enumerate(codes, 1)]
    zeilen += ["[Schlafzeiten]", f"ItemCount={len(schlafzeiten)}"]
    for i, (start, ende) in enumerate(schlafzeiten, 1):
        zeilen += [f"Item_{i:03}={start}", f"SubItem_{i:03}={ende}"]
    return "\r\n".join(zeilen) + "\r\n"


def zeigt(programm, ergebnis):
    warte(lambda: len(programm.zeilen("Optimale Bauzeiten", 3)) == len(ergebnis["LV_Bauzeiten"]),
          "build times")
    assert gesehen(programm) == erwartet(ergebnis), gesehen(programm)
    for label in LABELS:
        programm.finde("label", ergebnis[label])


def erster_start(programme, ordner):
    """The starter plan comes up unasked."""
    kopiere(programme, ordner)
    starterplan = os.path.join(ordner, "saves", "basic.tvf")
    shutil.copy(STARTERPLAN, starterplan)
    programm = Programm(programme, ordner)
    zeigt(programm, rechne(programme, STARTERPLAN))
    assert not programm.boxen() and programm.fenster.get_name().endswith("      ( basic.tvf )")
    warte(lambda: not os.path.exists(starterplan), "end of the starter plan")
    return programm


def pruefe_zweites_fenster(programme, programm, datei, autosave):
    """Two windows of a folder: the second asks, and keeps nothing."""
    def bauliste(plan):
        return rechne(programme, plan)["Bauliste"]

    def behalten():
        with open(os.path.join(programm.ordner, "config.cfg"), "rb") as config:
            return config.read(), bauliste(autosave)
    warte(lambda: bauliste(autosave) == bauliste(datei), "the plan on the disk")
    vorher = behalten()
    for antwort in ["Nein", "Ja"]:
        zweites = subprocess.Popen([os.path.join(programm.ordner, "tarvelin"), datei],
                                   env={**os.environ, "LC_ALL": "C.UTF-8"})
        fenster = warte(lambda: erstes_fenster(zweites.pid), "the question")
        box = Programm.lies_box(fenster)
        assert box.text.startswith("Tarvelin läuft schon."), box
        xdotool("sleep", 0.3, "mousemove", *programm.mitte(box.knoepfe[antwort]), "click", 1)
        if antwort == "Ja":
            titel = f"({os.path.basename(datei)})".replace("(", "( ").replace(")", " )")
            nummer = warte(lambda: fensternummer(titel.replace("(", "[(]").replace(")", "[)]")),
                           "the second window")
            xdotool("windowactivate", "--sync", nummer, "key", "Tab", "key", "ctrl+n", "sleep", 0.5,
                    "key", "alt+F4")
        assert zweites.wait(timeout=30) == 0
    assert behalten() == vorher
    xdotool("windowactivate", "--sync", programm.nummer)


def pruefe_plan(programme, programm, datei):
    """A new plan by hand, held against a file of the same. Its result."""
    xdotool("key", "ctrl+n")
    warte(lambda: programm.zeilen("Bauliste", 3) == [], "an empty list")
    codes = spiele(programm)
    schlafzeiten = texte(programm, "Schlafzeiten", 2)
    xdotool("key", "Return")
    warte(lambda: len(programm.zeilen("Optimale Bauzeiten", 3)) == len(codes), "build times")
    with open(datei, "w", encoding="cp1252", newline="") as strom:
        strom.write(plandatei(programm, codes, schlafzeiten))
    ergebnis = rechne(programme, datei)
    zeigt(programm, ergebnis)
    # The sleep window has held an order back until its end.
    ende = schlafzeiten[-1][1].split()[1]
    assert any(z["Uhrzeit"].startswith(ende) for z in ergebnis["LV_Bauzeiten"]), ergebnis
    return ergebnis


def stelle_wieder_her(programme, ordner, ergebnis):
    programm = Programm(programme, ordner)
    for frage, antwort in [("Möchtest du die letzte Bauliste wiederherstellen?", "Ja"),
                           ("Bei jedem Start so verfahren?", "Nein")]:
        titel = programm.antworte(frage, antwort)
        assert titel == "Wiederherstellen...", titel
    zeigt(programm, ergebnis)
    panel = programm.finde("panel", "Einstellungen:")
    warte(lambda: not ist(panel, Atspi.StateType.SHOWING), "end of the settings")
    return programm


def pruefe_webskin(programm):
    """A skin is fetched, lands and is shown."""
    server = Skinserver(lambda pfad: (200, bild(pfad), None))
    punkte = programm.farben()["Punkte"]
    programm.klicke("menu item", "Skin")
    programm.klicke("radio button", "Web")
    programm.tippe("Web-Verzeichnis", server.adresse + "/a")
    programm.klicke("push button", "OK")
    titel = programm.antworte(
        "Der folgende Vorgang kann einige Sekunden dauern, je nach Internet-Anbindung...", "OK")
    assert titel == "Fortsetzen...", titel
    dateien = warte(lambda: len(server.pfade) == 24 and list(server.pfade), "24 files")
    warte(lambda: sorted(programm.farben().values())
          == sorted([punkte] + [farbe(pfad) for pfad in dateien]), "pictures")
    for pfad in dateien:
        landeplatz = os.path.join(programm.ordner, "img", "skins", "temp_webskin")
        with open(landeplatz + pfad.removeprefix("/a"), "rb") as strom:
            assert strom.read() == bild(pfad), pfad


def pruefe_wecker(programm):
    """An order falls due, and the sound card plays in the second that was asked for."""
    programm.klicke("menu item", "Einstellungen")
    start = datetime.datetime.now() + datetime.timedelta(minutes=2)
    for feld, form in zip(DATUM, ["%d", "%m", "%Y", "%H", "%M"]):
        programm.tippe(feld, start.strftime(form))
    programm.klicke("push button", "Simulation starten")
    tag = warte(lambda: (zeilen := programm.zeilen("Optimale Bauzeiten", 3))
                and start.strftime("%d.%m.%Y %H:%M:") in zeilen[0][0].get_description()
                and zeilen[0][0].get_description(), "an order to come")
    bauzeit = datetime.datetime.strptime(" ".join(tag.split()[1:3]), "%d.%m.%Y %H:%M:%S")
    programm.klicke("check box", "Baustart-Alarm | X-sec vorher:", anteil=0.1)
    # On a busy machine a tick can miss its second, and then nothing rings.
    for _ in range(5):
        ohr = Ohr()
        vorher = int((bauzeit - datetime.datetime.now()).total_seconds()) - 4
        assert vorher >= 0, "no time is left"
        # The drop-down list's field has no name of its own.
        programm.tippe("", str(vorher))
        faellig = bauzeit.timestamp() - vorher
        time.sleep(max(0, faellig + 3 - time.time()))
        ohr.schliesse()
        if ohr.laut_um:
            break
        # What rings late must not be taken for the next.
        time.sleep(2)
    assert ohr.laut_um and ohr.laut_um[0] >= faellig, (ohr.laut_um[:1], faellig)


def pruefe_ende_durch_signal(programm, autosave):
    """The session ends while a dialog is open: the plan is there."""
    programm.klicke("push button", "Undo")
    xdotool("key", "ctrl+o")
    warte(lambda: any(k.get_role_name() == "dialog" for k in programm.oberste()), "the dialog")
    programm.prozess.send_signal(signal.SIGTERM)
    code = programm.prozess.wait(timeout=30)
    assert code == 0, code
    plan = rechne(programm.ordner, autosave)["Bauliste"]
    assert plan[-1]["Tag"] == "GW"
    with open(os.path.join(programm.ordner, "config.cfg"), encoding="cp1252") as datei:
        assert f"ItemCount={len(plan)}\n" in datei.read(), "only the end writes it"


def main(programme):
    with tempfile.TemporaryDirectory() as temporaer:
        ordner = os.path.join(temporaer, "Tarvelin")
        autosave = os.path.join(ordner, "saves", "autosave.tvf")
        programm = erster_start(programme, ordner)
        ergebnis = pruefe_plan(programme, programm, os.path.join(temporaer, "plan.tvf"))
        pruefe_zweites_fenster(programme, programm, os.path.join(temporaer, "plan.tvf"), autosave)
        assert programm.beende() == 0
        assert rechne(programme, autosave)["LV_Bauzeiten"] == ergebnis["LV_Bauzeiten"]
        programm = stelle_wieder_her(programme, ordner, ergebnis)
        pruefe_webskin(programm)
        pruefe_wecker(programm)
        pruefe_ende_durch_signal(programm, autosave)


if __name__ == "__main__":
    main(sys.argv[1])
