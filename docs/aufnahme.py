#!/usr/bin/python3
"""Plays the opening and takes the pictures of the documents.

    aufnahme.py FOLDER_OF_THE_PROGRAMS FOLDER_OF_THE_PICTURES
"""
import os
import sys
import tempfile

sys.path.insert(0, os.path.join(os.path.dirname(__file__), "..", "tests", "e2e"))
from bedienung import Programm, warte, xdotool  # noqa: E402
from eroeffnung import spiele  # noqa: E402


def nimm_auf(programm, bilder):
    def bild(name, titel=None):
        xdotool("mousemove", 2, 2, "sleep", 0.5)
        programm.aufnahme(os.path.join(bilder, name + ".png"), titel)

    bild("einstellungen")
    codes = spiele(programm)
    for panel, name, hide in [("Special-Events", "special-events", 1),
                              ("Schlafzeiten", "schlafzeiten", 3), ("Skin", "skin", 2)]:
        programm.klicke("menu item", panel)
        bild(name)
        programm.klicke("push button", "Hide", hide)
    programm.klicke("tree", "Optimale Bauzeiten")
    xdotool("key", "Return")
    warte(lambda: len(programm.zeilen("Optimale Bauzeiten", 3)) == len(codes), "build times")
    bild("fenster")
    for buchstabe, name, titel in [("s", "spenden", "unterst"), ("a", "about", "About Tarvelin")]:
        programm.klicke("menu item", "Info")
        xdotool("sleep", 0.3, "key", buchstabe)
        bild(name, titel)
        xdotool("key", "alt+F4", "sleep", 0.3)


with tempfile.TemporaryDirectory() as ordner:
    player = Programm(sys.argv[1], os.path.join(ordner, "Tarvelin"))
    nimm_auf(player, sys.argv[2])
    player.beende()
