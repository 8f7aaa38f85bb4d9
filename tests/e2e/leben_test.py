#!/usr/bin/python3
"""A player's time with the real program: first start, planning, recovery, a skin from the web, an
alarm that is heard.

    leben_test.py FOLDER_OF_THE_PROGRAMS
"""
import datetime
import os
import shutil
import signal
import sys
import tempfile
import time

from bedienung import STARTERPLAN, Atspi, Ohr, Programm, ist, kopiere, warte, xdotool
from skinserver import Skinserver, bild, farbe
from vergleich import erwartet, gesehen, rechne

LETZTE = "Möchtest du die letzte Bauliste wiederherstellen?"
IMMER = "Bei jedem Start so verfahren?"

# Answers to both questions of a start; without answers, what a start does that asks nothing.
WIEDERHERSTELLUNG = [
    {"antworten": ("Nein", "Nein"), "plan": False},
    {"antworten": ("Ja", "Nein"), "plan": True},
    {"antworten": ("Nein", "Ja"), "plan": False},
    {"antworten": None, "plan": False},
    {"vergiss": True, "antworten": ("Ja", "Ja"), "plan": True},
    {"antworten": None, "plan": True},
]


def beende(programm):
    code = programm.beende()
    assert code == 0, code


def zeigt(programm, ergebnis):
    warte(lambda: len(programm.zeilen("Optimale Bauzeiten", 3)) == len(ergebnis["LV_Bauzeiten"]),
          "build times")
    assert gesehen(programm) == erwartet(ergebnis), gesehen(programm)


def erster_start(programme, ordner):
    """The starter plan comes up unasked; the player changes it and leaves. What the exit stored."""
    kopiere(programme, ordner)
    starterplan = os.path.join(ordner, "saves", "basic.tvf")
    shutil.copy(STARTERPLAN, starterplan)
    programm = Programm(programme, ordner)
    zeigt(programm, rechne(programme, STARTERPLAN))
    assert not programm.boxen() and programm.fenster.get_name().endswith("      ( basic.tvf )")
    warte(lambda: not os.path.exists(starterplan), "end of the starter plan")
    programm.tippe("Maximaltemperatur", "31")
    programm.klicke("push button", "Hide")
    programm.klicke("push button", "Undo")
    warte(lambda: len(programm.zeilen("Bauliste", 3)) == 48, "undo")
    programm.klicke("push button", "Clear")
    for zeilen, bild in enumerate(["Solarkraftwerk", "Metallmine", "Metallmine", "Kristallmine"], 1):
        programm.ziehe(bild, zeilen)
    programm.klicke("push button", "Simulation starten")
    warte(lambda: len(programm.zeilen("Optimale Bauzeiten", 3)) == 4, "build times")
    vorher = gesehen(programm)
    beende(programm)
    autosave = os.path.join(ordner, "saves", "autosave.tvf")
    assert erwartet(rechne(programme, autosave)) == vorher, vorher
    # Later starts leave such a file alone.
    shutil.copy(STARTERPLAN, starterplan)
    return autosave


def starte(programme, ordner, autosave, fall):
    """One start with its questions, and what it makes of the last plan."""
    if fall.get("vergiss"):
        with open(os.path.join(ordner, "config.cfg"), "w", encoding="ascii") as strom:
            strom.write("[Settings]\r\nFirststart=0\r\n")
    programm = Programm(programme, ordner)
    for frage, antwort in zip([LETZTE, IMMER], fall["antworten"] or []):
        titel = programm.antworte(frage, antwort)
        assert titel == "Wiederherstellen...", titel
    panel = programm.finde("panel", "Einstellungen:")
    if fall["plan"]:
        zeigt(programm, rechne(programme, autosave))
    warte(lambda: ist(panel, Atspi.StateType.SHOWING) != fall["plan"], "panel of the settings")
    # A box would keep this from the window.
    programm.klicke("push button", "Simulation starten")
    if not fall["plan"]:
        programm.antworte("Die Bauliste ist leer...", "OK")
        assert programm.zeilen("Bauliste", 3) == []
    return programm


def pruefe_wiederherstellung(programme, ordner, autosave):
    with open(autosave, "rb") as strom:
        plan = strom.read()
    for fall in WIEDERHERSTELLUNG:
        beende(starte(programme, ordner, autosave, fall))
        # The exit has stored an empty list where nothing was restored.
        with open(autosave, "wb") as strom:
            strom.write(plan)
    assert os.path.exists(os.path.join(ordner, "saves", "basic.tvf"))


def antworte(pfad):
    """Skins below /a, /b and /c; one file of /b is missing, one of /c is cut off."""
    inhalt = bild(pfad)
    return (404 if pfad == "/b/gebaeude/14.gif" else 200, inhalt,
            20 if pfad == "/c/gebaeude/402.gif" else None)


def hole_skin(programm, adresse, fehler=None):
    """Fetches a web skin; `fehler` is the file that fails and whether the player gives up."""
    programm.klicke("menu item", "Skin")
    programm.klicke("radio button", "Web")
    programm.tippe("Web-Verzeichnis", adresse)
    programm.klicke("push button", "OK")
    titel = programm.antworte(
        "Der folgende Vorgang kann einige Sekunden dauern, je nach Internet-Anbindung...", "OK")
    assert titel == "Fortsetzen...", titel
    if fehler:
        titel = programm.antworte(f'"{fehler[0]}" konnte nicht von der angegebenen URL geladen '
                                  "werden...\n\nVorgang abbrechen ?", fehler[1])
        assert titel == "Download-Fehler...", titel


def pruefe_webskin(programm, server):
    """A skin that comes whole, one with a file missing, one that is given up. What a restart shows."""
    landeplatz = os.path.join(programm.ordner, "img", "skins", "temp_webskin")

    def gelandet():
        return {f"/{art}/{name}": open(os.path.join(landeplatz, art, name), "rb").read()
                for art in ["gebaeude", "images"]
                for name in os.listdir(os.path.join(landeplatz, art)) if name.endswith(".gif")}

    def pruefe(skins, auf_dem_schirm):
        warte(lambda: sorted(programm.farben().values()) == sorted(auf_dem_schirm), "pictures")
        assert gelandet() == {pfad: bild(f"/{skin}{pfad}") for pfad, skin in skins.items()}, skins

    standard = programm.farben()
    punkte = [standard["Punkte"]]
    hole_skin(programm, server.adresse + "/a")
    dateien = [pfad.removeprefix("/a") for pfad in warte(
        lambda: len(server.pfade) == 24 and list(server.pfade), "24 files")]
    pruefe(dict.fromkeys(dateien, "a"), punkte + [farbe("/a" + pfad) for pfad in dateien])

    hole_skin(programm, server.adresse + "/b", ("/gebaeude/14.gif", "Nein"))
    ohne = [pfad for pfad in dateien if pfad != "/gebaeude/14.gif"]
    pruefe(dict.fromkeys(ohne, "b"),
           punkte + [farbe("/a/gebaeude/14.gif")] + [farbe("/b" + pfad) for pfad in ohne])

    hole_skin(programm, server.adresse + "/c", ("/gebaeude/402.gif", "Ja"))
    stelle = dateien.index("/gebaeude/402.gif")
    skins = dict.fromkeys(dateien[:stelle], "c") | dict.fromkeys(dateien[stelle + 1:], "b")
    pruefe(skins, standard.values())
    assert server.pfade[-1] == "/c/gebaeude/402.gif", "nothing is fetched after it"
    return [farbe(f"/{skin}{pfad}") for pfad, skin in skins.items()]


def pruefe_wecker(programm):
    """An order falls due, and the sound card plays in the second that was asked for."""
    programm.klicke("menu item", "Einstellungen")
    start = datetime.datetime.now() + datetime.timedelta(minutes=2)
    for feld, form in [("Tag", "%d"), ("Monat", "%m"), ("Jahr", "%Y"), ("Stunden", "%H"),
                       ("Minuten", "%M")]:
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
    assert plan[-1]["Tag"] == "GM"
    with open(os.path.join(programm.ordner, "config.cfg"), encoding="cp1252") as datei:
        assert f"ItemCount={len(plan)}\n" in datei.read(), "only the end writes it"


def main(programme):
    server = Skinserver(antworte)
    with tempfile.TemporaryDirectory() as temporaer:
        ordner = os.path.join(temporaer, "Tarvelin")
        autosave = erster_start(programme, ordner)
        pruefe_wiederherstellung(programme, ordner, autosave)
        wie_zuletzt = WIEDERHERSTELLUNG[-1]
        programm = starte(programme, ordner, autosave, wie_zuletzt)
        gelandet = pruefe_webskin(programm, server)
        beende(programm)
        geholt = len(server.pfade)
        programm = starte(programme, ordner, autosave, wie_zuletzt)
        assert set(gelandet) < set(programm.farben().values()), "a start shows what landed"
        assert len(server.pfade) == geholt, "and fetches nothing"
        pruefe_wecker(programm)
        pruefe_ende_durch_signal(programm, autosave)


if __name__ == "__main__":
    main(sys.argv[1])
