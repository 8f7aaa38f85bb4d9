"""An opening, as a player puts it together by hand."""

REIHENFOLGE = ["GS", "GM", "GM", "GK", "GD", "GS", "GF", "FE", "GR", "GR", "GW", "WS"]

BILDER = {
    "GM": "Metallmine", "GK": "Kristallmine", "GD": "Deuteriummine", "GS": "Solarkraftwerk",
    "GR": "Roboterfabrik", "GW": "Raumschiffwerft", "GF": "Forschungslabor",
    "FE": "Energietechnik", "WS": "Solarsatellit",
}


def spiele(programm):
    """Fills in parameters, a plan with a production row and a sleep window, and simulates it.
    The orders of the rows."""
    programm.tippe("Maximaltemperatur", "24")
    # A click into the groove is a large step of ten seconds.
    programm.klicke("slider", "Klickpuffer in Sekunden", anteil=0.8)
    programm.klicke("push button", "Hide")
    codes = []
    for code in REIHENFOLGE:
        if code == "FE":
            schalte_metall_herab(programm)
            codes.append("GX:9:10:10")
        codes.append(code)
        programm.ziehe(BILDER[code], len(codes))
    programm.klicke("menu item", "Schlafzeiten")
    programm.tippe("Startzeit, Stunden", "13")
    programm.tippe("Dauer, Stunden", "09")
    programm.klicke("push button", "Add")
    programm.klicke("push button", "Hide", 3)
    programm.klicke("tree", "Optimale Bauzeiten")
    return codes


def schalte_metall_herab(programm):
    programm.klicke("menu item", "Special-Events")
    programm.klicke("slider", "Metallmine in Zehnteln", anteil=0.2)
    programm.klicke("push button", "Add Event")
    programm.klicke("push button", "Hide", 1)
