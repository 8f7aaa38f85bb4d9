#!/usr/bin/python3
"""A player's time with the real program: the first start, a plan by hand that is compared with what
the console program makes of it, a second window, recovery, a skin from the web, an alarm that is
heard, the end of the session.

    play_test.py FOLDER_OF_THE_PROGRAMS
"""
import datetime
import os
import shutil
import signal
import subprocess
import sys
import tempfile
import time

from compare import expected, run_plan, shown, texts
from driver import (STARTER_PLAN, Atspi, Ear, Program, copy_program, find_window, first_window,
                    has_state, wait_for, xdotool)
from opening import play
from skinserver import SkinServer, color

LABELS = ["LBL_Timegone", "LBL_Met", "LBL_Kris", "LBL_Deut", "LBL_ENergie", "LBL_Punkte"]


def expect_shown(program, result):
    wait_for(lambda: len(program.rows("Optimale Bauzeiten", 3)) == len(result["LV_Bauzeiten"]),
             "build times")
    assert shown(program) == expected(result), shown(program)
    for label in LABELS:
        program.find("label", result[label])


def first_start(programs, folder):
    """The starter plan is loaded without a question. Returns the running program."""
    copy_program(programs, folder)
    starter_plan = os.path.join(folder, "saves", "basic.tvf")
    shutil.copy(STARTER_PLAN, starter_plan)
    program = Program(programs, folder)
    expect_shown(program, run_plan(programs, STARTER_PLAN))
    assert not program.boxes() and program.window.get_name().endswith("      ( basic.tvf )")
    wait_for(lambda: not os.path.exists(starter_plan), "end of the starter plan")
    return program


def check_second_window(program, autosave, file):
    """The second window of a folder asks whether it should open, and writes nothing."""
    def kept():
        with open(os.path.join(program.folder, "config.cfg"), "rb") as config:
            with open(autosave, "rb") as plan:
                return config.read(), plan.read()
    before = kept()
    shutil.copy(autosave, file)
    for answer in ["Nein", "Ja"]:
        second = subprocess.Popen([os.path.join(program.folder, "tarvelin"), file],
                                  env={**os.environ, "LC_ALL": "C.UTF-8"})
        window = wait_for(lambda: first_window(second.pid), "the question")
        box = Program.read_box(window)
        assert box.text.startswith("Tarvelin läuft schon."), box
        Atspi.Action.do_action(box.buttons[answer], 0)
        if answer == "Ja":
            window_id = wait_for(lambda: find_window(f"[(] {os.path.basename(file)} [)]"),
                                 "the second window")
            xdotool("windowactivate", "--sync", window_id, "key", "Tab", "key", "ctrl+n",
                    "sleep", 0.5, "key", "alt+F4")
        assert second.wait(timeout=30) == 0
    assert kept() == before
    xdotool("windowactivate", "--sync", program.window_id)


def check_plan(programs, program, autosave):
    """A new plan by hand, compared with what is kept of it. Returns its result."""
    xdotool("key", "ctrl+n")
    wait_for(lambda: program.rows("Bauliste", 3) == [], "an empty list")
    program.drag("Roboterfabrik", 0)  # its gate is closed
    codes = play(program)
    sleep_rows = texts(program, "Schlafzeiten", 2)
    xdotool("key", "Return")

    def kept():
        with open(autosave, encoding="cp1252") as file:
            text = file.read()
        return "KlickPuffer=15" in text and "TempMax=24" in text and sleep_rows[-1][1] in text
    wait_for(kept, "the plan on the disk")
    result = run_plan(programs, autosave)
    assert [row["Tag"] for row in result["Bauliste"]] == codes, result["Bauliste"]
    expect_shown(program, result)
    # The sleep window holds an order back until its end.
    end = sleep_rows[-1][1].split()[1]
    assert any(row["Uhrzeit"].startswith(end) for row in result["LV_Bauzeiten"]), result
    return result


def recover(programs, folder, result):
    """The last plan comes back at the start. Returns the running program."""
    program = Program(programs, folder)
    for question, answer in [("Möchtest du die letzte Bauliste wiederherstellen?", "Ja"),
                             ("Bei jedem Start so verfahren?", "Nein")]:
        title = program.answer(question, answer)
        assert title == "Wiederherstellen...", title
    expect_shown(program, result)
    panel = program.find("panel", "Einstellungen:")
    wait_for(lambda: not has_state(panel, Atspi.StateType.SHOWING), "end of the settings")
    return program


def check_web_skin(program):
    """A skin is fetched and shown."""
    server = SkinServer()
    points_color = program.colors()["Punkte"]
    program.click("menu item", "Skin")
    program.click("radio button", "Web")
    program.type_text("Web-Verzeichnis", server.address + "/a")
    program.click("push button", "OK")
    title = program.answer(
        "Der folgende Vorgang kann einige Sekunden dauern, je nach Internet-Anbindung...", "OK")
    assert title == "Fortsetzen...", title
    files = wait_for(lambda: len(server.paths) == 24 and list(server.paths), "24 files")
    wait_for(lambda: sorted(program.colors().values())
             == sorted([points_color] + [color(path) for path in files]), "pictures")


def check_alarm(program):
    """An order falls due, and the sound card plays as many seconds before as the player chose."""
    program.click("menu item", "Einstellungen")
    start = datetime.datetime.now() + datetime.timedelta(minutes=2)
    for field, pattern in [("Tag", "%d"), ("Monat", "%m"), ("Jahr", "%Y"), ("Stunden", "%H"),
                           ("Minuten", "%M")]:
        program.type_text(field, start.strftime(pattern))
    program.click("push button", "Simulation starten")
    tag = wait_for(lambda: (rows := program.rows("Optimale Bauzeiten", 3))
                   and start.strftime("%d.%m.%Y %H:%M:") in rows[0][0].get_description()
                   and rows[0][0].get_description(), "an order to come")
    order_start = datetime.datetime.strptime(" ".join(tag.split()[1:3]), "%d.%m.%Y %H:%M:%S")
    program.click("check box", "Baustart-Alarm | X-sec vorher:", share=0.1)
    # On a busy machine a tick can miss its second; then there is no sound.
    for _ in range(5):
        ear = Ear()
        lead = int((order_start - datetime.datetime.now()).total_seconds()) - 4
        assert lead >= 0, "no time is left"
        # The text field of the drop-down list has no name.
        program.type_text("", str(lead))
        due = order_start.timestamp() - lead
        time.sleep(max(0, due + 3 - time.time()))
        ear.close()
        if ear.loud_at:
            break
        # A late sound must not be taken for the next one.
        time.sleep(2)
    assert ear.loud_at and ear.loud_at[0] >= due, (ear.loud_at[:1], due)


def check_end_by_signal(program, autosave):
    """The session ends while a dialog is open; the plan is kept."""
    program.click("push button", "Undo")
    xdotool("key", "ctrl+o")
    wait_for(lambda: any(node.get_role_name() == "dialog" for node in program.top_levels()),
             "the dialog")
    program.process.send_signal(signal.SIGTERM)
    code = program.process.wait(timeout=30)
    assert code == 0, code
    plan = run_plan(program.folder, autosave)["Bauliste"]
    assert plan[-1]["Tag"] == "GW"
    with open(os.path.join(program.folder, "config.cfg"), encoding="cp1252") as file:
        assert f"ItemCount={len(plan)}\n" in file.read(), "only the program's end writes it"


def main(programs):
    with tempfile.TemporaryDirectory() as temp:
        folder = os.path.join(temp, "Tarvelin")
        autosave = os.path.join(folder, "saves", "autosave.tvf")
        program = first_start(programs, folder)
        result = check_plan(programs, program, autosave)
        check_second_window(program, autosave, os.path.join(temp, "plan.tvf"))
        assert program.quit() == 0
        assert run_plan(programs, autosave)["LV_Bauzeiten"] == result["LV_Bauzeiten"]
        program = recover(programs, folder, result)
        check_web_skin(program)
        check_alarm(program)
        check_end_by_signal(program, autosave)


if __name__ == "__main__":
    main(sys.argv[1])
