#!/usr/bin/python3
"""Calendars of plans, read by a reader that isn't ours, held against the history of their runs.

    calendar_test.py COMMAND PLAN...
"""
import datetime
import json
import os
import shlex
import subprocess
import sys
import tempfile

import icalendar

MINUTE = datetime.timedelta(minutes=1)


def rufe(programm, *worte):
    return subprocess.run([*shlex.split(programm), *worte], check=False, stdout=subprocess.PIPE,
                          stderr=subprocess.DEVNULL)


def starts(programm, plan):
    """The orders of the run by their moments; None if the plan can't be run."""
    ergebnis = json.loads(rufe(programm, "--json", "--verlauf", plan).stdout)
    if not ergebnis["Gelaufen"]:
        return None
    auftraege = ergebnis["Verlauf"]["Auftraege"]
    for auftrag in auftraege:
        tag, uhrzeit = auftrag["Startzeit"].split()
        tag, monat, jahr = map(int, tag.split("."))
        auftrag["Um"] = datetime.datetime.combine(datetime.date(jahr, monat, tag),
                                                  datetime.time.fromisoformat(uhrzeit))
    return sorted(auftraege, key=lambda auftrag: auftrag["Um"])


def erwartet(auftraege):
    """Moments with their orders: those within a minute of the first share one."""
    gruppen = []
    for auftrag in auftraege:
        if not gruppen or auftrag["Um"] - gruppen[-1][0] > MINUTE:
            gruppen.append((auftrag["Um"], []))
        gruppen[-1][1].append(auftrag)
    return gruppen


def lies(programm, plan, datei):
    assert rufe(programm, "--ical", datei, plan).returncode == 0, plan
    with open(datei, "rb") as strom:
        bytes_ = strom.read()
    assert bytes_.endswith(b"\r\n") and b"\n" not in bytes_.replace(b"\r\n", b"")
    assert max(map(len, bytes_.split(b"\r\n"))) <= 75
    return icalendar.Calendar.from_ical(bytes_).walk("VEVENT")


def pruefe(eintrag, um, auftraege):
    assert eintrag["DTSTART"].dt == um, (eintrag["DTSTART"].dt, um)
    assert eintrag["SUMMARY"] == ", ".join(a["Auftrag"] for a in auftraege), eintrag["SUMMARY"]
    zeilen = iter(eintrag["DESCRIPTION"].split("\n"))
    for auftrag in auftraege:
        assert next(zeilen) == f"{auftrag['Um']:%H:%M:%S} {auftrag['Auftrag']}", eintrag
        if not auftrag["Auftrag"].endswith("%"):
            assert next(zeilen).startswith("Kosten: "), eintrag
        assert not auftrag["Grund"] or next(zeilen) == auftrag["Grund"], eintrag
    assert next(zeilen, None) is None, eintrag
    wecker, = eintrag.walk("VALARM")
    assert wecker["TRIGGER"].dt == datetime.timedelta(seconds=-10)


def main(programm, plaene):
    with tempfile.TemporaryDirectory() as ordner:
        for plan in plaene:
            datei = os.path.join(ordner, "kalender.ics")
            auftraege = starts(programm, plan)
            if auftraege is None:
                assert rufe(programm, "--ical", os.path.join(ordner, "ohne"), plan).returncode == 1
                assert not os.path.exists(os.path.join(ordner, "ohne"))
                continue
            gruppen = erwartet(auftraege)
            eintraege = lies(programm, plan, datei)
            assert len(eintraege) == len(gruppen), plan
            for eintrag, (um, auftraege) in zip(eintraege, gruppen):
                pruefe(eintrag, um, auftraege)
            kennungen = [eintrag["UID"] for eintrag in eintraege]
            assert len(set(kennungen)) == len(kennungen), plan
            # The second import replaces the first.
            nochmal = lies(programm, plan, os.path.join(ordner, "nochmal.ics"))
            assert [eintrag["UID"] for eintrag in nochmal] == kennungen


if __name__ == "__main__":
    main(sys.argv[1], sys.argv[2:])
