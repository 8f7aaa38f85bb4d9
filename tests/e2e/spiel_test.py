#!/usr/bin/python3
"""Plays the real program from an empty window to a simulated plan, and holds what stands on the
screen against what the console program makes of the same plan.

    spiel_test.py FOLDER_OF_THE_PROGRAMS
"""
import os
import sys
import tempfile

from bedienung import Programm, warte, xdotool
from eroeffnung import spiele
from vergleich import erwartet, gesehen, rechne, texte

DATUM = ["Tag", "Monat", "Jahr", "Stunden", "Minuten"]


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


def main(programme):
    with tempfile.TemporaryDirectory() as ordner:
        programm = Programm(programme, os.path.join(ordner, "Tarvelin"))
        assert programm.zeilen("Bauliste", 3) == []
        codes = spiele(programm)
        schlafzeiten = texte(programm, "Schlafzeiten", 2)
        assert len(schlafzeiten) == 1, schlafzeiten
        xdotool("key", "Return")
        warte(lambda: len(programm.zeilen("Optimale Bauzeiten", 3)) == len(codes), "build times")

        datei = os.path.join(ordner, "plan.tvf")
        with open(datei, "w", encoding="cp1252", newline="") as strom:
            strom.write(plandatei(programm, codes, schlafzeiten))
        ergebnis = rechne(programme, datei)
        soll, ist = erwartet(ergebnis), gesehen(programm)
        assert soll == ist, f"console: {soll}\nwindow:  {ist}"
        for label in ["LBL_Timegone", "LBL_Met", "LBL_Kris", "LBL_Deut", "LBL_ENergie",
                      "LBL_Punkte"]:
            programm.finde("label", ergebnis[label])
        # The sleep window has held an order back until its end.
        ende = schlafzeiten[0][1].split()[1]
        assert any(z["Uhrzeit"].startswith(ende) for z in ergebnis["LV_Bauzeiten"]), ergebnis
        assert programm.beende() == 0
        gespeichert = rechne(programme, os.path.join(programm.ordner, "saves", "autosave.tvf"))
        assert gespeichert["LV_Bauzeiten"] == ergebnis["LV_Bauzeiten"], gespeichert


if __name__ == "__main__":
    main(sys.argv[1])
