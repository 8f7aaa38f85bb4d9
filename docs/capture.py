#!/usr/bin/python3
"""Plays the opening and takes the pictures of the documents.

    capture.py FOLDER_OF_THE_PROGRAMS FOLDER_OF_THE_PICTURES
"""
import os
import shutil
import sys
import tempfile

sys.path.insert(0, os.path.join(os.path.dirname(__file__), "..", "tests", "e2e"))
from driver import STARTERPLAN, Programm, kopiere, warte, xdotool  # noqa: E402
from opening import spiele  # noqa: E402


def nimm_auf(programm, bilder):
    def bild(name, titel=None):
        xdotool("mousemove", 2, 2, "sleep", 0.5)
        programm.aufnahme(os.path.join(bilder, name + ".png"), titel)

    bild("settings")
    codes = spiele(programm)
    for panel, name, hide in [("Special-Events", "special-events", 1),
                              ("Schlafzeiten", "sleep-windows", 3), ("Skin", "skin", 2)]:
        programm.klicke("menu item", panel)
        bild(name)
        programm.klicke("push button", "Hide", hide)
    programm.klicke("tree", "Optimale Bauzeiten")
    xdotool("key", "Return")
    warte(lambda: len(programm.zeilen("Optimale Bauzeiten", 3)) == len(codes), "build times")
    bild("window")
    for buchstabe, name, titel in [("s", "donate", "unterst"), ("a", "about", "About Tarvelin")]:
        programm.klicke("menu item", "Info")
        xdotool("sleep", 0.3, "key", buchstabe)
        bild(name, titel)
        xdotool("key", "alt+F4", "sleep", 0.3)


def nimm_werkbank_auf(programm, bilder):
    """The starter plan, before and after a search."""
    werkbank = programm.oeffne_werkbank()

    def bild(name):
        werkbank.aufnahme(os.path.join(bilder, name + ".png"), "Tarvelin  |  Werkbank")

    zeile = werkbank.zeilen("Aufträge", 6)[23]
    xdotool("mousemove", *werkbank.mitte(zeile[1], 0.2), "click", 1, "sleep", 0.5)
    leiste = werkbank.finde("filler", "Zeitleiste")
    xdotool("mousemove", *werkbank.mitte(leiste, 0.45), "sleep", 0.5)
    bild("workbench")
    xdotool("key", "alt+g")
    werkbank.klicke("push button", "Merken")
    xdotool("key", "alt+c")
    werkbank.klicke("push button", "Suchen")
    warte(lambda: any("Nachher" in k.get_name() for k in werkbank.alle("label")), "a plan", 120)
    bild("workbench-search")
    vorher = werkbank.sagt("Dauer des Plans")
    werkbank.klicke("push button", "Übernehmen")
    warte(lambda: werkbank.sagt("Dauer des Plans") != vorher, "the plan that was found")
    xdotool("key", "alt+g", "sleep", 0.5)
    bild("workbench-comparison")


with tempfile.TemporaryDirectory() as ordner:
    programmordner = os.path.join(ordner, "Werkbank")
    kopiere(sys.argv[1], programmordner)
    shutil.copy(STARTERPLAN, os.path.join(programmordner, "saves", "basic.tvf"))
    player = Programm(sys.argv[1], programmordner)
    nimm_werkbank_auf(player, sys.argv[2])
    player.beende()
    player = Programm(sys.argv[1], os.path.join(ordner, "Tarvelin"))
    nimm_auf(player, sys.argv[2])
    player.beende()
