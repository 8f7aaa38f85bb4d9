"""What the window shows of a plan, held against what the console program makes of it."""
import json
import os
import subprocess


def rechne(programme, datei, *optionen):
    """The console program's whole result of a plan, with its messages."""
    programm = os.path.join(programme, "tarvelin-cli")
    return json.loads(subprocess.run([programm, "--json", *optionen, datei],
                                     stdout=subprocess.PIPE, check=False).stdout)


def texte(programm, liste, spalten):
    return [[zelle.get_name() for zelle in zeile] for zeile in programm.zeilen(liste, spalten)]


def gesehen(programm):
    """What the window shows of the plan and its run."""
    bauzeiten = programm.zeilen("Optimale Bauzeiten", 3)
    return {
        "Bauliste": texte(programm, "Bauliste", 3),
        "Bauzeiten": [[zelle.get_name() for zelle in zeile] for zeile in bauzeiten],
        "Tag": [zeile[0].get_description() for zeile in bauzeiten],
    }


def erwartet(ergebnis):
    return {
        "Bauliste": [[z["Text"], z["SubItems1"], z["SubItems2"]] for z in ergebnis["Bauliste"]],
        "Bauzeiten": [[z["Wochentag"], z["Uhrzeit"], z["theText"]]
                      for z in ergebnis["LV_Bauzeiten"]],
        "Tag": [z["Tag"] for z in ergebnis["LV_Bauzeiten"]],
    }
