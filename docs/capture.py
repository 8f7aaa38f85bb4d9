#!/usr/bin/python3
"""Plays the opening and takes the pictures of the documents.

    capture.py FOLDER_OF_THE_PROGRAMS FOLDER_OF_THE_PICTURES
"""
import os
import shutil
import sys
import tempfile

sys.path.insert(0, os.path.join(os.path.dirname(__file__), "..", "tests", "e2e"))
from driver import STARTER_PLAN, Program, copy_program, wait_for, xdotool  # noqa: E402
from opening import play  # noqa: E402


def capture(program, pictures):
    def picture(name, title=None):
        xdotool("mousemove", 2, 2, "sleep", 0.5)
        program.screenshot(os.path.join(pictures, name + ".png"), title)

    picture("settings")
    codes = play(program)
    for panel, name, hide in [("Special-Events", "special-events", 1),
                              ("Schlafzeiten", "sleep-windows", 3), ("Skin", "skin", 2)]:
        program.click("menu item", panel)
        picture(name)
        program.click("push button", "Hide", hide)
    program.click("tree", "Optimale Bauzeiten")
    xdotool("key", "Return")
    wait_for(lambda: len(program.rows("Optimale Bauzeiten", 3)) == len(codes), "build times")
    picture("window")
    for letter, name, title in [("s", "donate", "unterst"), ("a", "about", "About Tarvelin")]:
        program.click("menu item", "Info")
        xdotool("sleep", 0.3, "key", letter)
        picture(name, title)
        xdotool("key", "alt+F4", "sleep", 0.3)


def capture_workbench(program, pictures):
    """The starter plan, before and after a search."""
    workbench = program.open_workbench()

    def picture(name):
        workbench.screenshot(os.path.join(pictures, name + ".png"), "Tarvelin  |  Werkbank")

    row = workbench.rows("Aufträge", 6)[23]
    xdotool("mousemove", *workbench.center(row[1], 0.2), "click", 1, "sleep", 0.5)
    timeline = workbench.find("filler", "Zeitleiste")
    xdotool("mousemove", *workbench.center(timeline, 0.45), "sleep", 0.5)
    picture("workbench")
    xdotool("key", "alt+g")
    workbench.click("push button", "Merken")
    xdotool("key", "alt+c")
    workbench.click("push button", "Suchen")
    wait_for(lambda: any("Nachher" in node.get_name() for node in workbench.with_role("label")),
             "a plan", 120)
    picture("workbench-search")
    before = workbench.label_text("Dauer des Plans")
    workbench.click("push button", "Übernehmen")
    wait_for(lambda: workbench.label_text("Dauer des Plans") != before, "the plan that was found")
    xdotool("key", "alt+g", "sleep", 0.5)
    picture("workbench-comparison")


with tempfile.TemporaryDirectory() as folder:
    program_folder = os.path.join(folder, "Werkbank")
    copy_program(sys.argv[1], program_folder)
    shutil.copy(STARTER_PLAN, os.path.join(program_folder, "saves", "basic.tvf"))
    player = Program(sys.argv[1], program_folder)
    capture_workbench(player, sys.argv[2])
    player.quit()
    player = Program(sys.argv[1], os.path.join(folder, "Tarvelin"))
    capture(player, sys.argv[2])
    player.quit()
