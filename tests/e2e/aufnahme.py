#!/usr/bin/python3
"""Plays the opening and takes a picture of the window.

    aufnahme.py FOLDER_OF_THE_PROGRAMS PICTURE.png
"""
import os
import sys
import tempfile

from bedienung import Programm, warte, xdotool
from eroeffnung import spiele

with tempfile.TemporaryDirectory() as ordner:
    programm = Programm(sys.argv[1], os.path.join(ordner, "Tarvelin"))
    codes = spiele(programm)
    xdotool("key", "Return")
    warte(lambda: len(programm.zeilen("Optimale Bauzeiten", 3)) == len(codes), "build times")
    programm.aufnahme(sys.argv[2])
    programm.beende()
