#!/usr/bin/python3
"""A new user's first two starts of an installed program: the starter plan is there, grows by some
orders, and comes back.

    package_play.py FOLDER_OF_THE_PROGRAMS STARTER_PLAN HOME
"""
import os
import sys

from driver import Installiertes, warte, xdotool
from compare import erwartet, gesehen, rechne

BILDER = ["Metallmine", "Solarkraftwerk", "Kleiner Transporter"]


def main(programme, starterplan, heim):
    def starte():
        return Installiertes(programme, heim)

    start = rechne(programme, starterplan)
    programm = starte()
    warte(lambda: gesehen(programm) == erwartet(start), "the starter plan")
    programm.klicke("push button", "Hide")
    for zeilen, bild in enumerate(BILDER, len(start["Bauliste"]) + 1):
        programm.ziehe(bild, zeilen)
    programm.klicke("tree", "Optimale Bauzeiten")
    xdotool("key", "Return")
    warte(lambda: len(programm.zeilen("Optimale Bauzeiten", 3)) == zeilen, "build times")
    ist = gesehen(programm)
    assert programm.beende() == 0
    ergebnis = rechne(programme, os.path.join(programm.ordner, "saves", "autosave.tvf"))
    # The build list's "Prod %" is that of the moment in which a row came, so it may differ.
    for was in ["Bauzeiten", "Tag"]:
        soll = erwartet(ergebnis)[was]
        assert ist[was] == soll, f"console: {soll}\nwindow:  {ist[was]}"
    programm = starte()
    programm.antworte("Möchtest du die letzte Bauliste wiederherstellen?", "Ja")
    programm.antworte("Bei jedem Start so verfahren?", "Nein")
    warte(lambda: gesehen(programm) == erwartet(ergebnis), "the plan of the last time")
    assert programm.beende() == 0


if __name__ == "__main__":
    main(*sys.argv[1:])
