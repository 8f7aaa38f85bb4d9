#!/usr/bin/python3
"""A player's first evening at the workbench: he drags a row, reads both windows, walks through the
timeline, saves pictures, compares with a file, searches by pictures and names, looks at the find and
takes it over, sleeps by rule, begins anew with an opening, and asks for help.

    workbench_test.py FOLDER_OF_THE_PROGRAMS
"""
import os
import shutil
import sys
import tempfile

from compare import texts
from driver import STARTER_PLAN, Program, copy_program, wait_for, xdotool


COLUMNS = 10


def orders(workbench):
    return texts(workbench, "Aufträge", COLUMNS)


def expect_agreement(program, workbench):
    """Waits until both windows show the same rows, starts and duration. Returns the rows' texts."""
    def agreed_rows():
        workbench_rows = orders(workbench)
        window_rows = texts(program, "Bauliste", 3)
        schedule = texts(program, "Optimale Bauzeiten", 3)
        duration = workbench.label_text("Dauer des Plans")
        return ([[row[0], row[9]] for row in workbench_rows]
                == [[row[0], row[2]] for row in window_rows]
                and sorted(row[2].split()[-1] for row in workbench_rows)
                == sorted(row[1] for row in schedule)
                and program.find("label", f"Dauer: 0{duration}")
                and workbench_rows)
    return [row[1] for row in wait_for(agreed_rows, "two windows that agree")]


def drag_row(workbench, row, target):
    """Drags a row in front of another."""
    cells = workbench.rows("Aufträge", COLUMNS)
    x, y = workbench.center(cells[row][1], 0.2)
    to_x, to_y = workbench.center(cells[target][1], 0.2)
    xdotool("mousemove", x, y, "mousedown", 1, "sleep", 0.1, "mousemove", x, y + 9, "sleep", 0.1,
            "mousemove", to_x, to_y, "mousemove", to_x, to_y - 5, "sleep", 0.1, "mouseup", 1)


def png_width(file):
    with open(file, "rb") as stream:
        head = stream.read(24)
    assert head.startswith(b"\x89PNG"), head
    return int.from_bytes(head[16:20], "big")


def check_pictures(workbench, folder):
    """The poster has its own width, the section that of the timeline, doubled."""
    poster, section = (os.path.join(folder, name) for name in ("poster.png", "section.png"))
    workbench.click("push button", "Als Bild")
    workbench.choose_file(poster)
    message(workbench, f"Gespeichert: {poster}")
    assert png_width(poster) == 1200, png_width(poster)
    xdotool("key", "alt+d", "sleep", 0.3, "key", "a")
    workbench.choose_file(section)
    message(workbench, f"Gespeichert: {section}")
    assert png_width(section) == 2 * timeline(workbench).get_extents(0).width, png_width(section)


def timeline(workbench):
    return workbench.find("filler", "Zeitleiste")


def walk_timeline(workbench):
    """Zooms at the pointer, goes from order to order by keys, shows the whole plan again."""
    node = timeline(workbench)
    starts = [row[2] for row in orders(workbench)]

    def at(row):
        wait_for(lambda: node.get_description().startswith(starts[row]), f"the order {row + 1}")
    xdotool("mousemove", *workbench.center(node), *["click", 4] * 6, "click", 1)
    for key, row in (("Home", 0), ("Right", 1), ("Right", 2), ("Left", 1), ("End", -1)):
        xdotool("key", key)
        at(row)
    xdotool("key", "0", "mousemove", 5, 5)
    wait_for(lambda: not node.get_description(), "a timeline without a cursor")


def message(workbench, begin):
    """Waits for a message that begins like this."""
    return wait_for(lambda: (text := workbench.label_text("Meldung") or "").startswith(begin)
                    and text, f"the message {begin!r}")


def compare_with_file(workbench, file):
    xdotool("key", "ctrl+3")
    workbench.click("push button", "Mit Datei...")
    workbench.choose_file(file)
    slower = workbench.label_text("Änderung der Dauer")
    summary = wait_for(lambda: texts(workbench, "Kennzahlen im Vergleich", 4), "a comparison")
    assert summary[0][0] == "Dauer", summary
    assert slower.split()[0] == summary[0][3].lstrip("+"), (slower, summary[0])
    differences = texts(workbench, "Aufträge zu anderer Zeit", 4)
    assert differences and all(row[3][0] in "+-" for row in differences), differences


def search(workbench):
    """Clicks a goal together, types another, looks at the find, compares it, takes it over."""
    xdotool("key", "ctrl+2", "sleep", 0.3, "key", "Down")
    # The palette has pictures of the same names.
    workbench.click("push button", "Raumschiffwerft", 1)
    wait_for(lambda: workbench.text("Ziel der Suche") == "Raumschiffwerft 1", "the goal as text")
    workbench.click("text", "Ziel der Suche")
    xdotool("key", "ctrl+a", "type", "werft 2, kl. transporter 2")
    xdotool("key", "Escape")
    workbench.find("push button", "Kleiner Transporter, Ziel: 2")
    workbench.click("push button", "Suchen")
    message(workbench, "Der Fund ist noch nicht im Plan.")
    find = texts(workbench, "Was der Fund ändert", 3)
    assert len(find) == 10 and all(row[1] != row[2] for row in find), find
    workbench.click("push button", "Mit Fund vergleichen")
    wait_for(lambda: any(node.get_name() == "Verglichen mit dem Fund der Suche"
                         for node in workbench.with_role("label")), "the comparison")
    before = workbench.label_text("Dauer des Plans")
    faster = texts(workbench, "Kennzahlen im Vergleich", 4)[0][1].replace(" T ", " Tage ")
    xdotool("key", "ctrl+2", "sleep", 0.3)
    workbench.click("push button", "Übernehmen")
    wait_for(lambda: workbench.label_text("Dauer des Plans") == faster, "the plan that was found")
    message(workbench, "Fund übernommen: ")
    remembered = texts(workbench, "Kennzahlen im Vergleich", 4)[0][1]
    assert remembered.replace(" T ", " Tage ") == before, (remembered, before)


def sleep_by_rule(workbench):
    """Goes to bed an hour later than the plan's nights say."""
    xdotool("key", "ctrl+4", "sleep", 0.3)
    before = texts(workbench, "Schlafzeiten des Plans", 4)
    workbench.click("spin button", "Mo auf Di, von", share=0.2)
    xdotool("key", "Down")
    workbench.click("radio button", "ersetzen")
    wait_for(lambda: "+ neu" in {row[3] for row in texts(workbench, "Schlafzeiten des Plans", 4)},
             "the nights to come")
    workbench.click("push button", "Nächte eintragen")
    wait_for(lambda: {row[3] for row in texts(workbench, "Schlafzeiten des Plans", 4)} == {""},
             "nights that are there")
    nights = texts(workbench, "Schlafzeiten des Plans", 4)
    # One is beyond the plan's end.
    assert [row[0][-5:] for row in nights].count("22:00") == len(before) - 1, nights
    xdotool("key", "ctrl+z")
    wait_for(lambda: "+ neu" in {row[3] for row in texts(workbench, "Schlafzeiten des Plans", 4)},
             "nights that are still to come")


def opening_and_guide(program, workbench):
    """A new plan begins with an opening, and F1 helps."""
    xdotool("key", "ctrl+n")
    wait_for(lambda: not texts(program, "Bauliste", 3), "an empty plan")
    workbench.click("push button", "Schnelle Transporter öffnen")
    wait_for(lambda: len(orders(workbench)) > 30, "an opening")
    xdotool("key", "F1")
    guide = workbench.other_window("Anleitung")
    assert guide.find("text", "In der Anleitung suchen")
    xdotool("key", "Escape")


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
        walk_timeline(workbench)
        check_pictures(workbench, temp)
        compare_with_file(workbench, STARTER_PLAN)
        xdotool("key", "ctrl+z")
        wait_for(lambda: orders(workbench)[0][1] == before[0], "the undo")
        assert expect_agreement(program, workbench) == before
        assert workbench.label_text("Dauer des Plans") == duration
        search(workbench)
        sleep_by_rule(workbench)
        opening_and_guide(program, workbench)
        xdotool("windowactivate", "--sync", workbench.window_id, "key", "alt+F4")
        assert program.quit() == 0
        with open(os.path.join(folder, "config.cfg"), encoding="cp1252") as file:
            assert "[Werkbank]" in file.read()


if __name__ == "__main__":
    main(sys.argv[1])
