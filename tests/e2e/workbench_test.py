#!/usr/bin/python3
"""A player at the workbench: opens it, drags a row, reads both windows, saves a picture, compares the
plan with a file, undoes the drag.

    workbench_test.py FOLDER_OF_THE_PROGRAMS
"""
import os
import shutil
import sys
import tempfile

from compare import texts
from driver import STARTER_PLAN, Program, copy_program, wait_for, xdotool


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


def check_picture(workbench, file):
    workbench.click("push button", "Bild speichern...")
    workbench.choose_file(file)
    assert wait_for(lambda: workbench.label_text("Meldung"), "a message") == f"Gespeichert: {file}"
    with open(file, "rb") as stream:
        assert stream.read().startswith(b"\x89PNG")


def compare_with_file(workbench, file):
    xdotool("key", "alt+g")
    workbench.click("push button", "Mit Datei...")
    workbench.choose_file(file)
    change = workbench.label_text("Änderung der Dauer")
    summary = wait_for(lambda: texts(workbench, "Kennzahlen im Vergleich", 4), "a comparison")
    assert summary[0][0] == "Dauer" and summary[0][3] == change, (summary, change)
    differences = texts(workbench, "Aufträge zu anderer Zeit", 4)
    assert differences and all(row[3][0] in "+-" for row in differences), differences


def main(programs):
    with tempfile.TemporaryDirectory() as temp:
        folder = os.path.join(temp, "Tarvelin")
        copy_program(programs, folder)
        shutil.copy(STARTER_PLAN, os.path.join(folder, "saves", "basic.tvf"))
        program = Program(programs, folder)
        workbench = program.open_workbench()
        before = expect_agreement(program, workbench)
        duration = workbench.label_text("Dauer des Plans")
        drag_row(workbench, 1, 0)
        wait_for(lambda: orders(workbench)[0][1] == before[1], "a row that was moved")
        after = expect_agreement(program, workbench)
        assert after == [before[1], before[0], *before[2:]], after
        check_picture(workbench, os.path.join(temp, "picture.png"))
        compare_with_file(workbench, STARTER_PLAN)
        xdotool("key", "ctrl+z")
        wait_for(lambda: orders(workbench)[0][1] == before[0], "the undo")
        assert expect_agreement(program, workbench) == before
        assert workbench.label_text("Dauer des Plans") == duration
        xdotool("key", "alt+F4")
        assert program.quit() == 0
        with open(os.path.join(folder, "config.cfg"), encoding="cp1252") as file:
            assert "[Werkbank]" in file.read()


if __name__ == "__main__":
    main(sys.argv[1])
