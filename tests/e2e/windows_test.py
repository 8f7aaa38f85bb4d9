#!/usr/bin/python3
"""A player's time with the real window on Windows, by mouse and keys: first start, a drag, a run, a
save under a name with umlauts, recovery, a death in the middle, a second window, a plan by double click, an alarm that is heard, a skin from
the web, the workbench; then the setup: installed, installed over itself while the program runs,
removed.

    windows_test.py FOLDER_OF_THE_PROGRAMS SETUP PICTURES
"""
import datetime
import glob
import json
import os
import shutil
import subprocess
import sys
import time

from driver import STARTERPLAN, Fehler, Ohr, fensternummer, warte, xdotool
from skinserver import Skinserver, bild

WINE = "/usr/lib/wine/wine64"
# Places in the window, which has one size.
HIDE, METALLMINE, LISTE, WECKER, SKIN = (76, 269), (268, 60), (110, 190), (635, 244), (302, 8)
# Those that lie on no picture, don't change and are no riddle to a reader.
AUFSCHRIFTEN = ["Datei", "Einstellungen", "Schlafzeiten", "Skin", "Info", "Werkbank", "Bauliste", "Gebäude",
                "Verteidigung", "Raumschiffe", "Optimale Bauzeiten", "Uhrzeit", "Baustart-Alarm", "Undo"]
# Width, height and place of the label of the points.
PUNKTE = "120x24+655+260"
WEB, WEBPFAD, SKIN_OK = (23, 73), (150, 57), (129, 73)


def wine(*worte):
    return subprocess.run([WINE, *worte], check=False, stdout=subprocess.PIPE,
                          stderr=subprocess.DEVNULL, timeout=120)


def rechne(programme, plan):
    return json.loads(wine(os.path.join(programme, "tarvelin-cli.exe"), "--json", plan).stdout)


def aktives_fenster():
    return subprocess.run(["xdotool", "getactivewindow"], capture_output=True, text=True,
                          check=False).stdout.strip()


class Fenster:
    """The program's window."""

    def __init__(self, programm, *worte):
        self.prozess = subprocess.Popen([WINE, programm, *worte], stderr=subprocess.DEVNULL)
        self.nummer = warte(lambda: fensternummer("Kelva Aufbau"), "the window", 60)
        xdotool("windowactivate", "--sync", self.nummer, "sleep", 1)

    def klicke(self, ort):
        xdotool("mousemove", "--window", self.nummer, *ort, "sleep", 0.2, "click", 1, "sleep", 0.4)

    def ziehe(self, von, nach):
        xdotool("mousemove", "--window", self.nummer, von[0] - 3, von[1], "sleep", 0.2,
                "mousemove", "--window", self.nummer, *von, "sleep", 0.2, "mousedown", 1, "sleep", 0.2,
                "mousemove", "--window", self.nummer, *nach, "sleep", 0.2,
                "mousemove", "--window", self.nummer, nach[0] + 3, nach[1], "sleep", 0.3, "mouseup", 1,
                "sleep", 0.3)

    def tippe(self, *tasten):
        xdotool("windowactivate", "--sync", self.nummer, "key", *tasten, "sleep", 0.5)

    def titel(self):
        return subprocess.run(["xdotool", "getwindowname", self.nummer], capture_output=True,
                              text=True, check=False).stdout

    @staticmethod
    def antworte(titel, taste):
        """Answers the question with this title by a key."""
        warte(lambda: fensternummer(titel), titel)
        xdotool("sleep", 0.5, "key", taste, "sleep", 0.8)

    def stelle_wieder_her(self):
        self.antworte("Wiederherstellen", "alt+j")
        self.antworte("Wiederherstellen", "alt+n")

    def stirb(self):
        self.prozess.kill()
        self.prozess.wait()
        warte(lambda: not fensternummer("Kelva Aufbau"), "the end")

    def ausschnitt(self, wo):
        """The colours of a part of the window."""
        return subprocess.check_output(["import", "-window", self.nummer, "-crop", wo, "-depth", "8",
                                        "rgb:-"])

    def gelesen(self):
        """The texts of the window, as somebody reads them who knows nothing of it."""
        bild_ = subprocess.run(["import", "-window", self.nummer, "png:-"], check=True,
                               capture_output=True).stdout
        gross = subprocess.run(["convert", "-", "-colorspace", "Gray", "-resize", "400%", "-unsharp",
                                "0x1", "png:-"], input=bild_, check=True, capture_output=True).stdout
        return subprocess.run(["tesseract", "-", "-", "-l", "deu", "--psm", "11"], input=gross,
                              check=True, capture_output=True).stdout.decode()

    def aufnahme(self, datei):
        subprocess.run(["import", "-window", "root", datei], check=True)

    def beende(self):
        self.tippe("alt+d")
        xdotool("key", "b")
        assert self.prozess.wait(timeout=60) == 0


def speichere(fenster, datei):
    """Saves under a name of the folder that the dialog shows. Hands whose keyboard is mapped anew for
    each umlaut can slip on a busy machine: they try again."""
    for _ in range(3):
        fenster.tippe("ctrl+s")
        # The platform's own dialog bears no title here.
        warte(lambda: aktives_fenster() not in ("", fenster.nummer), "the dialog")
        xdotool("sleep", 1, "key", "ctrl+a", "type", "--delay", "80", os.path.basename(datei))
        xdotool("sleep", 0.5, "key", "Return", "sleep", 3)
        if os.path.exists(datei):
            return
        xdotool("key", "Escape", "sleep", 1)
    raise Fehler(datei)


def pruefe_texte(gelesen, bauzeiten):
    """No letter is missing in captions and lists."""
    worte = AUFSCHRIFTEN + [zeile[spalte] for zeile in bauzeiten for spalte in ("Uhrzeit", "theText")]
    fehlende = [wort for wort in worte if wort not in gelesen]
    assert not fehlende, (fehlende, gelesen)


def pruefe_ersten_start(programme, ordner, bilder):
    """The starter plan, one order more, saved under a name of its own. The plan's file."""
    shutil.copy(STARTERPLAN, os.path.join(ordner, "saves", "basic.tvf"))
    fenster = Fenster(os.path.join(ordner, "tarvelin.exe"))
    warte(lambda: "basic.tvf" in fenster.titel(), "the starter plan")
    fenster.klicke(HIDE)
    fenster.ziehe(METALLMINE, LISTE)
    vorher_punkte = fenster.ausschnitt(PUNKTE)
    fenster.tippe("Return")
    warte(lambda: fenster.ausschnitt(PUNKTE) != vorher_punkte, "the run")
    pruefe_texte(fenster.gelesen(), rechne(programme, STARTERPLAN)["LV_Bauzeiten"][:12])
    fenster.aufnahme(os.path.join(bilder, "fenster.png"))
    datei = os.path.join(ordner, "saves", "Größe äöü.tvf")
    speichere(fenster, datei)
    vorher = rechne(programme, STARTERPLAN)["Bauliste"]
    nachher = rechne(programme, datei)
    assert len(nachher["Bauliste"]) == len(vorher) + 1 and nachher["Bauliste"][-1]["Tag"] == "GM"
    fenster.beende()
    return datei


def pruefe_wiederherstellung(programme, ordner):
    """The last plan comes back, also after a death; who has died holds no lock."""
    def zeilen():
        saves = os.path.join(ordner, "saves")
        return [len(rechne(programme, os.path.join(saves, name))["Bauliste"])
                for name in ("autosave.tvf", "autosave-vorige.tvf")
                if os.path.exists(os.path.join(saves, name))]
    for stirbt in (False, True):
        letzte = zeilen()[0]
        fenster = Fenster(os.path.join(ordner, "tarvelin.exe"))
        fenster.stelle_wieder_her()
        fenster.ziehe(METALLMINE, LISTE)
        if stirbt:
            warte(lambda v=letzte: zeilen() == [v + 1, v], "the drag on the disk")
            fenster.stirb()
        else:
            fenster.beende()
        assert zeilen() == [letzte + 1, letzte], (zeilen(), letzte)


def pruefe_zweites_fenster(ordner, plan):
    """It asks whether it should open, beside the first, and keeps nothing."""
    def behalten():
        dateien = [os.path.join(ordner, "config.cfg"),
                   *glob.glob(os.path.join(ordner, "saves", "autosave*"))]
        return {datei: open(datei, "rb").read() for datei in dateien}
    vorher = behalten()
    for taste in ["alt+n", "alt+j"]:
        zweites = subprocess.Popen([WINE, os.path.join(ordner, "tarvelin.exe"), plan],
                                   stderr=subprocess.DEVNULL)
        Fenster.antworte("^Tarvelin$", taste)
        if taste == "alt+j":
            nummer = warte(lambda: fensternummer(os.path.basename(plan)), "the second window", 60)
            xdotool("windowactivate", "--sync", nummer, "sleep", 1, "key", "ctrl+n", "sleep", 0.5,
                    "key", "alt+F4")
        assert zweites.wait(timeout=60) == 0
    assert behalten() == vorher


def pruefe_wecker(programme, ordner, plan):
    """A plan by its file, which begins soon; its first order rings."""
    start = datetime.datetime.now() + datetime.timedelta(seconds=150)
    with open(plan, encoding="cp1252") as datei:
        zeilen = datei.read().splitlines()
    werte = {"UniStartZeitTag": f"{start:%d}", "UniStartZeitMonat": f"{start:%m}",
             "UniStartZeitJahr": f"{start:%Y}", "UniStartZeitStunden": f"{start:%H}",
             "UniStartZeitMinuten": f"{start:%M}", "KlickPuffer": "30"}
    bald = os.path.join(ordner, "saves", "bald.tvf")
    with open(bald, "w", encoding="cp1252", newline="\r\n") as datei:
        for zeile in zeilen:
            name = zeile.split("=")[0]
            datei.write(f"{name}={werte[name]}\n" if name in werte else zeile + "\n")
    erste = rechne(programme, bald)["LV_Bauzeiten"][0]["Tag"].split()
    faellig = datetime.datetime.strptime(" ".join(erste[1:3]), "%d.%m.%Y %H:%M:%S")
    fenster = Fenster(os.path.join(ordner, "tarvelin.exe"), bald)
    warte(lambda: "bald.tvf" in fenster.titel(), "the plan of the argument")
    fenster.klicke(WECKER)
    ohr = Ohr()
    assert faellig - datetime.timedelta(seconds=11) > datetime.datetime.now(), "no time is left"
    warte(lambda: ohr.laut_um, "the alarm", 200)
    ohr.schliesse()
    zeitig = faellig.timestamp() - ohr.laut_um[0]
    assert 0 <= zeitig <= 10, zeitig
    return fenster


def pruefe_webskin(fenster, ordner):
    server = Skinserver(lambda pfad: (200, bild(pfad), None))
    fenster.klicke(SKIN)
    for ort in (WEB, WEBPFAD):
        fenster.klicke(ort)
    xdotool("key", "ctrl+a", "type", server.adresse + "/a")
    fenster.klicke(SKIN_OK)
    warte(lambda: fensternummer("Fortsetzen"), "the notice")
    xdotool("sleep", 0.5, "key", "Return")
    dateien = warte(lambda: len(server.pfade) == 24 and list(server.pfade), "24 files")
    for pfad in dateien:
        ziel = os.path.join(ordner, "img", "skins", "temp_webskin") + pfad.removeprefix("/a")
        warte(lambda z=ziel, p=pfad: os.path.exists(z) and open(z, "rb").read() == bild(p), pfad)


def pruefe_werkbank(fenster, ordner, bilder):
    fenster.tippe("alt+w")
    xdotool("key", "Return")
    warte(lambda: fensternummer("Tarvelin  .  Werkbank"), "the workbench")
    time.sleep(1.5)
    fenster.aufnahme(os.path.join(bilder, "werkbank.png"))
    fenster.beende()
    with open(os.path.join(ordner, "config.cfg"), encoding="cp1252") as datei:
        assert "[Werkbank]" in datei.read()


def nutzerordner():
    return [ort for ort in glob.glob(os.path.join(os.environ["WINEPREFIX"], "drive_c", "users", "*"))
            if not ort.endswith("Public")][0]


def zeige_typen():
    """What the user has registered becomes everybody's: Wine's shell reads only that, where Windows
    shows both as one."""
    for typ in (".tvf", "Tarvelin.Plan"):
        kopie = wine("reg", "copy", f"HKCU\\Software\\Classes\\{typ}",
                     f"HKLM\\Software\\Classes\\{typ}", "/s", "/f")
        assert kopie.returncode == 0, typ


def altes_setup(setup, ordner):
    """The setup of an older version, which brought one more file. Its path."""
    teile = os.path.join(os.path.dirname(setup), "setup")
    with open(os.path.join(teile, "kopieren.nsh"), encoding="utf-8") as datei:
        kopieren = datei.read() + f'File "/oname=$INSTDIR\\bin\\alt.dll" "{STARTERPLAN}"\n'
    with open(os.path.join(teile, "loeschen.nsh"), encoding="utf-8") as datei:
        loeschen = 'Delete "$INSTDIR\\bin\\alt.dll"\n' + datei.read()
    for name, text in [("kopieren.nsh", kopieren), ("loeschen.nsh", loeschen)]:
        with open(os.path.join(ordner, name), "w", encoding="utf-8") as datei:
            datei.write(text)
    ziel = os.path.join(ordner, "alt.exe")
    subprocess.run(["makensis", "-V1", "-INPUTCHARSET", "UTF8", "-DVERSION=0.9.0",
                    "-DQUELLE=" + os.path.join(teile, "baum"), "-DZIEL=" + ziel, "-DLISTEN=" + ordner,
                    os.path.join(os.path.dirname(__file__), "../../packaging/windows/setup.nsi")],
                   check=True)
    return ziel


def installierte_fassung():
    return wine("reg", "query", "HKCU\\Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Tarvelin",
                "/v", "DisplayVersion").stdout.decode().split()[-1]


def pruefe_setup(programme, setup):
    """An older version installed, started by a double click on a plan; the present one installed over
    it meanwhile, then removed."""
    heim = nutzerordner()
    ziel = os.path.join(heim, "AppData", "Local", "Programs", "Tarvelin")
    daten = os.path.join(heim, "AppData", "Roaming", "Tarvelin")
    plan = os.path.join(heim, "Plan ä.tvf")
    shutil.copy(STARTERPLAN, plan)
    assert wine(altes_setup(setup, os.environ["HOME"]), "/S").returncode == 0
    alt = os.path.join(ziel, "bin", "alt.dll")
    assert os.path.exists(alt) and installierte_fassung() == "0.9.0"
    zeige_typen()
    for nochmal in (True, False):
        wine("start", "/unix", plan)
        warte(lambda: fensternummer("Plan ä.tvf"), "the installed program", 60)
        warte(lambda: os.path.exists(os.path.join(daten, "tarvelin.lock")), "its lock")
        fremd = os.path.join(ziel, "bin", "eigenes.txt")
        with open(fremd, "w", encoding="ascii") as datei:
            datei.write("von mir")
        if nochmal:
            assert wine(setup, "/S").returncode == 0
            assert not os.path.exists(alt)
            assert os.path.basename(setup).startswith(f"Tarvelin-{installierte_fassung()}-")
        else:
            wine(os.path.join(ziel, "Entfernen.exe"), "/S")
            # It removes by a copy of itself.
            warte(lambda: not os.path.exists(os.path.join(ziel, "Entfernen.exe")), "the removal")
        warte(lambda: not fensternummer("Kelva Aufbau"), "the end of the program that ran")
        assert os.path.exists(os.path.join(ziel, "bin", "tarvelin.exe")) == nochmal
        assert os.path.exists(fremd)
        assert len(rechne(programme, os.path.join(daten, "saves", "autosave.tvf"))["Bauliste"]) == 49
        assert os.path.exists(os.path.join(daten, "config.cfg"))
    assert os.listdir(ziel) == ["bin"] and os.listdir(os.path.join(ziel, "bin")) == ["eigenes.txt"]
    assert os.path.exists(plan)
    for schluessel in ["Microsoft\\Windows\\CurrentVersion\\Uninstall\\Tarvelin", "Classes\\.tvf",
                       "Classes\\Tarvelin.Plan", "QtProject", "Tarvelin"]:
        assert wine("reg", "query", "HKCU\\Software\\" + schluessel).returncode != 0, schluessel


def main(programme, setup, bilder):
    os.makedirs(bilder, exist_ok=True)
    ordner = os.path.join(os.environ["HOME"], "Tarvelin – 星")
    shutil.copytree(programme, ordner, ignore=shutil.ignore_patterns("config.cfg", "*.tvf", "*bench*"))
    plan = pruefe_ersten_start(programme, ordner, bilder)
    pruefe_wiederherstellung(programme, ordner)
    fenster = pruefe_wecker(programme, ordner, plan)
    pruefe_zweites_fenster(ordner, plan)
    pruefe_webskin(fenster, ordner)
    pruefe_werkbank(fenster, ordner, bilder)
    pruefe_setup(programme, setup)


if __name__ == "__main__":
    main(*map(os.path.abspath, sys.argv[1:]))
