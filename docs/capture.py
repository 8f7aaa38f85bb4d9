#!/usr/bin/python3
"""Plays the opening and takes the pictures of the documents.

    capture.py FOLDER_OF_THE_PROGRAMS FOLDER_OF_THE_PICTURES
"""
import os
import shutil
import subprocess
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


def capture_timeline(workbench, pictures):
    """A morning of the plan, and the poster."""
    xdotool("key", "ctrl+1")
    x, y = workbench.center(workbench.find("filler", "Zeitleiste"), 0.42)
    xdotool("mousemove", x, y, *["click", 4] * 9, "sleep", 0.5)
    section = os.path.join(pictures, "workbench-timeline.png")
    workbench.screenshot(section, "Tarvelin Werkbank")
    node = workbench.find("filler", "Zeitleiste")
    place, size = node.get_extents(1), node.get_extents(0)
    subprocess.run(["convert", section, "-crop",
                    f"{size.width}x{size.height}+{place.x}+{place.y}", "+repage", section],
                   check=True)
    xdotool("key", "0")
    with tempfile.TemporaryDirectory() as temp:
        poster = os.path.join(temp, "poster.png")
        workbench.click("push button", "Als Bild")
        workbench.choose_file(poster)
        wait_for(lambda: (workbench.label_text("Meldung") or "").startswith("Gespeichert"),
                 "a poster")
        subprocess.run(["convert", poster, "+dither", "-colors", "256", "-strip",
                        "PNG8:" + os.path.join(pictures, "poster.png")], check=True)


def capture_workbench(program, pictures):
    """The starter plan, its nights, before and after a search; and an empty plan."""
    workbench = program.open_workbench()
    xdotool("windowsize", workbench.window_id, 1280, 772, "sleep", 1)

    def picture(name):
        xdotool("sleep", 0.5)
        workbench.screenshot(os.path.join(pictures, name + ".png"), "Tarvelin Werkbank")

    row = workbench.rows("Aufträge", 10)[6]
    xdotool("mousemove", *workbench.center(row[1], 0.2), "click", 1, "sleep", 0.5)
    xdotool("mousemove", *workbench.center(workbench.find("push button", "Deuteriummine"), 0.5))
    picture("workbench")
    xdotool("key", "ctrl+4", "sleep", 0.3)
    workbench.click("check box", "Alle Nächte gleich")
    workbench.click("radio button", "zusammenlegen")
    for night in ("Fr auf Sa", "Sa auf So"):
        workbench.click("spin button", night + ", bis", share=0.2)
        xdotool("key", "Up", "key", "Up")
    picture("workbench-sleep")
    xdotool("key", "ctrl+2", "sleep", 0.3, "key", "Down", "sleep", 0.3)
    workbench.click("text", "Ziel der Suche")
    xdotool("key", "ctrl+a", "type", "werft 2, kl. transporter 2")
    xdotool("key", "Escape")
    workbench.click("push button", "Suchen")
    wait_for(lambda: workbench.label_text("Meldung") == "Der Fund ist noch nicht im Plan.",
             "a plan", 120)
    picture("workbench-search")
    before = workbench.label_text("Dauer des Plans")
    workbench.click("push button", "Übernehmen")
    wait_for(lambda: workbench.label_text("Dauer des Plans") != before, "the plan that was found")
    xdotool("key", "ctrl+3")
    picture("workbench-comparison")
    capture_timeline(workbench, pictures)
    xdotool("key", "ctrl+1", "sleep", 0.2, "key", "ctrl+n")
    picture("workbench-start")


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
