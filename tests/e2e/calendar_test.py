#!/usr/bin/python3
"""Calendars of plans, read by a library that isn't ours, against the history of their runs.

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


def call(program, *words):
    return subprocess.run([*shlex.split(program), *words], check=False, stdout=subprocess.PIPE,
                          stderr=subprocess.DEVNULL)


def starts(program, plan):
    """The orders of the run, sorted by their moments; None if the plan can't be run."""
    result = json.loads(call(program, "--json", "--verlauf", plan).stdout)
    if not result["Gelaufen"]:
        return None
    orders = result["Verlauf"]["Auftraege"]
    for order in orders:
        # JSON keeps a misspelt name, as programs know it; calendars are for people.
        order["Auftrag"] = order["Auftrag"].replace("Rakentenwerfer", "Raketenwerfer")
        order["at"] = datetime.datetime.strptime(order["Startzeit"], "%d.%m.%Y %H:%M:%S")
    return sorted(orders, key=lambda order: order["at"])


def expected_groups(orders):
    """Moments with their orders; orders within a minute of the first of a group belong to it."""
    groups = []
    for order in orders:
        if not groups or order["at"] - groups[-1][0] > MINUTE:
            groups.append((order["at"], []))
        groups[-1][1].append(order)
    return groups


def read_entries(program, plan, file):
    """The events of the calendar that the console program writes."""
    assert call(program, "--ical", file, plan).returncode == 0, plan
    with open(file, "rb") as stream:
        content = stream.read()
    assert content.endswith(b"\r\n") and b"\n" not in content.replace(b"\r\n", b"")
    assert max(map(len, content.split(b"\r\n"))) <= 75
    return icalendar.Calendar.from_ical(content).walk("VEVENT")


def check(entry, at, orders):
    assert entry["DTSTART"].dt == at, (entry["DTSTART"].dt, at)
    assert entry["SUMMARY"] == ", ".join(order["Auftrag"] for order in orders), entry["SUMMARY"]
    lines = iter(entry["DESCRIPTION"].split("\n"))
    for order in orders:
        assert next(lines) == f"{order['at']:%H:%M:%S} {order['Auftrag']}", entry
        if not order["Auftrag"].endswith("%"):
            assert next(lines).startswith("Kosten: "), entry
        assert not order["Grund"] or next(lines) == order["Grund"], entry
    assert next(lines, None) is None, entry
    alarm, = entry.walk("VALARM")
    assert alarm["TRIGGER"].dt == datetime.timedelta(seconds=-10)


def main(program, plans):
    with tempfile.TemporaryDirectory() as folder:
        for plan in plans:
            file = os.path.join(folder, "calendar.ics")
            orders = starts(program, plan)
            if orders is None:
                nothing = os.path.join(folder, "nothing.ics")
                assert call(program, "--ical", nothing, plan).returncode == 1
                assert not os.path.exists(nothing)
                continue
            entries = read_entries(program, plan, file)
            for entry, (at, orders) in zip(entries, expected_groups(orders), strict=True):
                check(entry, at, orders)
            uids = [entry["UID"] for entry in entries]
            assert len(set(uids)) == len(uids), plan
            # By the same ids a second import replaces the first.
            assert [entry["UID"] for entry in read_entries(program, plan, file)] == uids


if __name__ == "__main__":
    main(sys.argv[1], sys.argv[2:])
