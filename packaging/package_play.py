#!/usr/bin/python3
"""A new user's first two starts of an installed program: the starter plan is there, gets some more
orders, and comes back.

    package_play.py FOLDER_OF_THE_PROGRAMS STARTER_PLAN HOME
"""
import os
import sys

from compare import expected, run_plan, shown
from driver import InstalledProgram, wait_for, xdotool

PICTURES = ["Metallmine", "Solarkraftwerk", "Kleiner Transporter"]


def main(programs, starter_plan, home):
    def start():
        return InstalledProgram(programs, home)

    starter_result = run_plan(programs, starter_plan)
    program = start()
    wait_for(lambda: shown(program) == expected(starter_result), "the starter plan")
    program.click("push button", "Hide")
    for row_count, picture in enumerate(PICTURES, len(starter_result["Bauliste"]) + 1):
        program.drag(picture, row_count)
    program.click("tree", "Optimale Bauzeiten")
    xdotool("key", "Return")
    wait_for(lambda: len(program.rows("Optimale Bauzeiten", 3)) == row_count, "build times")
    seen = shown(program)
    assert program.quit() == 0
    result = run_plan(programs, os.path.join(program.folder, "saves", "autosave.tvf"))
    # The build list isn't compared: its "Prod %" is as of the moment when a row was dropped.
    for part in ["schedule", "tags"]:
        wanted = expected(result)[part]
        assert seen[part] == wanted, f"console: {wanted}\nwindow:  {seen[part]}"
    program = start()
    program.answer("Möchtest du die letzte Bauliste wiederherstellen?", "Ja")
    program.answer("Bei jedem Start so verfahren?", "Nein")
    wait_for(lambda: shown(program) == expected(result), "the plan of the last session")
    assert program.quit() == 0


if __name__ == "__main__":
    main(*sys.argv[1:])
