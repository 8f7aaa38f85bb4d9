"""What the window shows of a plan, compared with what the console program makes of it."""
import json
import os
import subprocess


def run_plan(programs, file, *options):
    """The console program's whole result for a plan, with its messages."""
    program = os.path.join(programs, "tarvelin-cli")
    return json.loads(subprocess.run([program, "--json", *options, file],
                                     stdout=subprocess.PIPE, check=False).stdout)


def texts(program, list_name, columns):
    """The texts of a list, row by row."""
    return [[cell.get_name() for cell in row] for row in program.rows(list_name, columns)]


def shown(program):
    """What the window shows of the plan and its run."""
    schedule = program.rows("Optimale Bauzeiten", 3)
    return {
        "build list": texts(program, "Bauliste", 3),
        "schedule": [[cell.get_name() for cell in row] for row in schedule],
        "tags": [row[0].get_description() for row in schedule],
    }


def expected(result):
    """What the window should show of this result."""
    return {
        "build list": [[row["Text"], row["SubItems1"], row["SubItems2"]]
                       for row in result["Bauliste"]],
        "schedule": [[row["Wochentag"], row["Uhrzeit"], row["theText"]]
                     for row in result["LV_Bauzeiten"]],
        "tags": [row["Tag"] for row in result["LV_Bauzeiten"]],
    }
