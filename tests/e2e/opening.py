"""An opening, as a player puts it together by hand."""

SEQUENCE = ["GS", "GM", "GM", "GK", "GD", "GS", "GF", "FE", "GR", "GR", "GW", "WS"]

PICTURES = {
    "GM": "Metallmine", "GK": "Kristallmine", "GD": "Deuteriummine", "GS": "Solarkraftwerk",
    "GR": "Roboterfabrik", "GW": "Raumschiffwerft", "GF": "Forschungslabor",
    "FE": "Energietechnik", "WS": "Solarsatellit",
}


def play(program):
    """Enters parameters, a plan with a production row and a sleep window, and leaves the focus
    where Enter starts the simulation. Returns the codes of the rows."""
    program.type_text("Maximaltemperatur", "24")
    # A click into the groove moves the slider by a page, ten seconds.
    program.click("slider", "Klickpuffer in Sekunden", share=0.8)
    program.click("push button", "Hide")
    codes = []
    for code in SEQUENCE:
        if code == "FE":
            lower_metal(program)
            codes.append("GX:9:10:10")
        codes.append(code)
        program.drag(PICTURES[code], len(codes))
    program.click("menu item", "Schlafzeiten")
    program.type_text("Startzeit, Stunden", "13")
    program.type_text("Dauer, Stunden", "09")
    program.click("push button", "Add")
    program.click("push button", "Hide", 3)
    program.click("tree", "Optimale Bauzeiten")
    return codes


def lower_metal(program):
    program.click("menu item", "Special-Events")
    program.click("slider", "Metallmine in Zehnteln", share=0.2)
    program.click("push button", "Add Event")
    program.click("push button", "Hide", 1)
