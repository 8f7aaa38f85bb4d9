#!/usr/bin/python3
"""A player at the workbench: opens it, drags a row, reads both windows, undoes that, saves a
picture, searches, stops the search, accepts its plan, compares it with a file, saves the calendar.

    workbench_test.py FOLDER_OF_THE_PROGRAMS
"""
import datetime
import os
import shutil
import subprocess
import sys
import tempfile

import icalendar

from compare import run_plan, texts
from driver import STARTER_PLAN, Program, copy_program, wait_for, xdotool

# Of the bars in the research lane, on a light desktop.
RESEARCH_COLOR = bytes([0x9c, 0xc4, 0xf0])


def orders(workbench):
    return texts(workbench, "Aufträge", 6)


def expect_agreement(program, workbench):
    """Waits until both windows show the same rows, starts and duration. Returns the rows' texts."""
    def agreed_rows():
        workbench_rows = orders(workbench)
        window_rows = texts(program, "Bauliste", 3)
        schedule = texts(program, "Optimale Bauzeiten", 3)
        return ([[row[0], row[1], row[5]] for row in workbench_rows] == window_rows
                and sorted(row[2].split()[-1] for row in workbench_rows)
                == sorted(row[1] for row in schedule)
                and program.find("label", workbench.label_text("Dauer des Plans"))
                and workbench_rows)
    return [row[1] for row in wait_for(agreed_rows, "two windows that agree")]


def drag_row(workbench, row, target):
    """Drags a row in front of another."""
    cells = workbench.rows("Aufträge", 6)
    x, y = workbench.center(cells[row][1], 0.2)
    to_x, to_y = workbench.center(cells[target][1], 0.2)
    xdotool("mousemove", x, y, "mousedown", 1, "sleep", 0.1, "mousemove", x, y + 9, "sleep", 0.1,
            "mousemove", to_x, to_y, "mousemove", to_x, to_y - 5, "sleep", 0.1, "mouseup", 1)


def edit(program, workbench):
    """A row is moved up by the mouse and back by undo."""
    before = expect_agreement(program, workbench)
    duration = workbench.label_text("Dauer des Plans")
    drag_row(workbench, 1, 0)
    wait_for(lambda: orders(workbench)[0][1] == before[1], "a row that was moved")
    after = expect_agreement(program, workbench)
    assert after == [before[1], before[0], *before[2:]], after
    assert workbench.label_text("Änderung der Dauer")[0] in "+-±"
    xdotool("key", "ctrl+z")
    wait_for(lambda: orders(workbench)[0][1] == before[0], "the undo")
    assert expect_agreement(program, workbench) == before
    assert workbench.label_text("Dauer des Plans") == duration


def check_picture(workbench, history, file):
    """The saved picture has a bar where the longest research runs, and none before the first."""
    workbench.click("push button", "Bild speichern...")
    workbench.choose_file(file)
    assert wait_for(lambda: workbench.label_text("Meldung"), "a message") == f"Gespeichert: {file}"
    size = subprocess.check_output(["identify", "-format", "%w %h", file], text=True)
    width, height = map(int, size.split())
    pixels = subprocess.check_output(["convert", file, "-depth", "8", "rgb:-"])
    research = [(order["Start"], order["Finish"]) for order in history["Auftraege"]
                if order["Schlange"] == "Forschungsschleife"]
    start, end = max(research, key=lambda span: span[1] - span[0])
    duration = history["Punkte"][-1]["Sekunde"]

    def has_bar(second):
        x = int(second / duration * (width - 1))
        return any(pixels[3 * (y * width + x):][:3] == RESEARCH_COLOR for y in range(height))

    assert has_bar((start + end) / 2)
    assert not has_bar(research[0][0] / 2)


def search(program, workbench):
    """Searches until a faster plan is found, stops the search and accepts the plan."""
    before = expect_agreement(program, workbench)
    xdotool("key", "alt+c")
    workbench.click("spin button", "Zahl der Versuche")
    xdotool("key", "ctrl+a", "type", "1000000000")
    workbench.click("push button", "Suchen")

    def status():
        return next((node.get_name() for node in workbench.with_role("label")
                     if node.get_name().startswith(("Bisher", "Vorher"))), "")
    wait_for(lambda: "(-" in status(), "a faster plan", 120)
    # The window can be used meanwhile.
    assert expect_agreement(program, workbench) == before
    workbench.click("push button", "Anhalten")
    report = wait_for(lambda: status().startswith("Vorher") and status(), "the report")
    workbench.click("push button", "Übernehmen")
    found = wait_for(lambda: expect_agreement(program, workbench) != before and
                     expect_agreement(program, workbench), "the plan that was found")
    assert sorted(row.split()[0] for row in found) == sorted(row.split()[0] for row in before)
    duration = workbench.label_text("Dauer des Plans").split()[-1]
    assert duration in report.splitlines()[1], (duration, report)


def compare_with_file(workbench, file):
    xdotool("key", "alt+g")
    workbench.click("push button", "Mit Datei...")
    workbench.choose_file(file)
    summary = wait_for(lambda: texts(workbench, "Kennzahlen im Vergleich", 4), "a comparison")
    assert summary[0][0] == "Dauer" and summary[0][3].startswith("-"), summary
    differences = texts(workbench, "Aufträge zu anderer Zeit", 4)
    assert differences and all(row[3][0] in "+-" for row in differences), differences


def check_calendar(program, workbench, file):
    workbench.click("push button", "Kalender speichern...")
    workbench.choose_file(file)
    wait_for(lambda: os.path.exists(file), "the calendar")
    with open(file, "rb") as stream:
        entries = icalendar.Calendar.from_ical(stream.read()).walk("VEVENT")
    starts = [datetime.datetime.strptime(" ".join(row[0].get_description().split()[1:3]),
                                         "%d.%m.%Y %H:%M:%S")
              for row in program.rows("Optimale Bauzeiten", 3)]
    moments = [entry["DTSTART"].dt for entry in entries]
    assert moments[0] == min(starts) and set(moments) <= set(starts), (moments, starts)
    assert all(any(0 <= (start - moment).total_seconds() <= 60 for moment in moments)
               for start in starts)


def main(programs):
    with tempfile.TemporaryDirectory() as temp:
        folder = os.path.join(temp, "Tarvelin")
        copy_program(programs, folder)
        shutil.copy(STARTER_PLAN, os.path.join(folder, "saves", "basic.tvf"))
        program = Program(programs, folder)
        workbench = program.open_workbench()
        edit(program, workbench)
        history = run_plan(programs, STARTER_PLAN, "--verlauf")["Verlauf"]
        check_picture(workbench, history, os.path.join(temp, "picture.png"))
        before = expect_agreement(program, workbench)
        search(program, workbench)
        compare_with_file(workbench, STARTER_PLAN)
        check_calendar(program, workbench, os.path.join(temp, "plan.ics"))
        xdotool("key", "ctrl+z")
        wait_for(lambda: expect_agreement(program, workbench) == before, "the undo of the search")
        xdotool("key", "alt+F4")
        assert program.quit() == 0
        with open(os.path.join(folder, "config.cfg"), encoding="cp1252") as file:
            assert "[Werkbank]" in file.read()


if __name__ == "__main__":
    main(sys.argv[1])
