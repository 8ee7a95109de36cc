#!/usr/bin/env python3
"""One operator's day at the built program, with the keyboard alone: a file with all eight notice types is loaded, a
field of each is corrected, a notice is added and one deleted, and everything exported. Ends well only if the export holds
what was typed, has lost nothing else and is valid.

Usage: tests/end_to_end.py [--keep FOLDER] [--pictures FOLDER] FOLDER_OF_THE_PROGRAMS
Needs Xvfb, openbox and xdotool. A failure leaves failure.png in the folder of --keep, if ImageMagick is there."""

import argparse
import difflib
import os
import pathlib
import shutil
import signal
import subprocess
import sys
import tempfile
import time

EXAMPLE = pathlib.Path(__file__).parent.parent / "examples" / "valid-all-types.txt"
ENCODING = "windows-1252"

PATIENCE = 40  # seconds for one window, on a machine that is busy
POLL = 0.02

MAIN = " KV19 Zamo HDLK Digital Version 2.08 / 08.04.2009"

# No frames: a picture shows the window alone. No keys of its own: all of them are the program's.
OPENBOX_CONFIG = """<?xml version="1.0"?>
<openbox_config xmlns="http://openbox.org/3.4/rc">
  <keyboard/>
  <applications><application class="*"><decor>no</decor></application></applications>
</openbox_config>
"""


class Failure(Exception):
    """What the operator met in place of what should have come."""


def expect(holds, otherwise):
    if not holds:
        raise Failure(otherwise)


# --- the desk: a display, a window manager, the program


class Desk:
    def __init__(self, programs, folder, pictures):
        self.programs = programs
        self.folder = folder
        self.pictures = pictures
        self.started = []
        self.program = None
        self.environment = os.environ | {
            "HOME": str(folder),
            "XDG_CONFIG_HOME": str(folder / "config"),
            "XDG_RUNTIME_DIR": str(folder),
            "QT_QPA_PLATFORM": "xcb",
            "LANG": "C.UTF-8",
            "LSAN_OPTIONS": f"suppressions={folder}/leaks-of-others",
        }

    def open(self):
        self.environment["DISPLAY"] = self.start_display()
        config = self.folder / "openbox.xml"
        config.write_text(OPENBOX_CONFIG)
        self.start(["openbox", "--config-file", str(config)], "openbox.log", self.environment)
        self.wait(lambda: self.xdotool("get_num_desktops"), "a window manager")
        self.program = self.start([str(self.programs / "zamo-kv19")], "program.log",
                                  self.environment_without_viewers())

    def environment_without_viewers(self):
        """The only viewer notes what it is given, and shows nothing."""
        only = self.folder / "bin"
        only.mkdir()
        viewer = only / "xdg-open"
        viewer.write_text('#!/bin/sh\necho "$1" >>"$HOME/viewed"\n')
        viewer.chmod(0o755)
        (self.folder / "leaks-of-others").write_text("leak:libdbus-1\n")
        return self.environment | {"PATH": str(only)}

    def start_display(self):
        read_end, write_end = os.pipe()
        self.start(
            ["Xvfb", "-displayfd", str(write_end), "-screen", "0", "1366x768x24", "-nolisten", "tcp"],
            "display.log", self.environment, pass_fds=[write_end])
        os.close(write_end)
        with os.fdopen(read_end) as numbers:
            number = numbers.readline().strip()
        if not number:
            raise Failure("Xvfb gave no display: " + (self.folder / "display.log").read_text())
        return ":" + number

    def start(self, command, log, environment, **options):
        with open(self.folder / log, "wb") as output:
            process = subprocess.Popen(command, env=environment, stdin=subprocess.DEVNULL, stdout=output,
                                       stderr=subprocess.STDOUT, **options)
        self.started.append(process)
        return process

    def end(self):
        for process in reversed(self.started):
            if process.poll() is None:
                process.terminate()
            try:
                process.wait(timeout=10)
            except subprocess.TimeoutExpired:
                process.kill()
                process.wait()

    # --- hands and eyes

    def xdotool(self, *arguments):
        done = subprocess.run(["xdotool", *arguments], env=self.environment, stdin=subprocess.DEVNULL,
                              capture_output=True, text=True, timeout=PATIENCE)
        return done.stdout.rstrip("\n") if done.returncode == 0 else None

    def press(self, *keys):
        expect(self.xdotool("key", "--delay", "5", *keys) is not None, f"xdotool didn't press {keys}")

    def type(self, text):
        expect(self.xdotool("type", "--delay", "5", "--", text) is not None, f"xdotool didn't type {text}")

    def wait(self, ready, what):
        end = time.monotonic() + PATIENCE
        while True:
            found = ready()
            if found:
                return found
            if self.program is not None and self.program.poll() is not None:
                raise Failure(f"the program ended with {self.program.returncode} when {what} should have come")
            if time.monotonic() > end:
                raise Failure(f"{what} didn't come: there is '{self.title(self.xdotool('getactivewindow'))}'")
            time.sleep(POLL)

    def title(self, window):
        return (window and self.xdotool("getwindowname", window)) or ""

    def active(self):
        """The window that both the window manager and the keys go to."""
        window = self.xdotool("getactivewindow")
        return window if window is not None and window == self.xdotool("getwindowfocus") else None

    def wait_for(self, title):
        def found():
            window = self.active()
            return window if window is not None and self.title(window).startswith(title) else None
        return self.wait(found, f"window '{title}'")

    def answer(self, title, *keys):
        """Answers the box of this title, and sees it go."""
        box = self.wait_for(title)
        self.press(*keys)
        self.wait(lambda: self.active() not in (None, box), f"the end of '{title}'")

    def words_of_the_program(self):
        log = self.folder / "program.log"
        return log.read_text(errors="replace") if log.exists() else ""

    def picture(self, name):
        if self.pictures is None:
            return
        self.wait_until_still()
        few_colours = ["+dither", "-colors", "64"]
        subprocess.run(["import", "-window", self.active(), *few_colours, f"PNG8:{self.pictures}/{name}.png"],
                       env=self.environment, check=True)

    def wait_until_still(self):
        """All is painted when two pictures in a row are alike."""
        seen = [None]

        def is_still():
            before, seen[0] = seen[0], subprocess.run(
                ["import", "-silent", "-window", "root", "-depth", "8", "rgb:-"], env=self.environment,
                check=True, capture_output=True).stdout
            return before == seen[0]
        self.wait(is_still, "an end of the painting")

    def picture_of_all(self, path):
        if shutil.which("import") is not None:
            subprocess.run(["import", "-window", "root", str(path)], env=self.environment, check=False)


# --- the day's work


def write_input(path):
    """The example with a GT1 that lies west of Greenwich by mistake, and one more, which the operator deletes."""
    text = EXAMPLE.read_bytes().decode(ENCODING).replace("\r\n", "\n")
    first = text[text.index("<NOTICE>"):text.index("</NOTICE>")] + "</NOTICE>\n\n"
    another = first.replace("F-GT1-PUY-DE-DOME", "F-GT1-RIOM").replace("t_long = +0025752", "t_long = +0030640")
    text = text.replace("t_long = +0025752", "t_long = -0025752")
    text = text.replace("<TAIL>\nt_num_notices = 9\n", another + "<TAIL>\nt_num_notices = 10\n")
    path.write_bytes(text.replace("\n", "\r\n").encode(ENCODING))


def load(desk, notices):
    """As far as the query form."""
    desk.wait_for(MAIN)
    desk.press("alt+f", "t", "g")
    desk.wait_for("Open")
    # The dialog opens in the home directory. The path of a file there is taken for that of a folder, its name isn't.
    desk.type(notices.name)
    desk.answer("Open", "Return")
    desk.wait_for("Query")


def select_notices(desk):
    desk.answer("Query", "Return")
    desk.wait_for(MAIN)


def select_contours(desk):
    desk.wait_for("Query")
    desk.press("Right")
    select_notices(desk)


def open_row(desk, row, title):
    desk.press("ctrl+Home", *["Down"] * row, "Return")
    desk.wait_for(title)


def close_form(desk):
    desk.press("alt+c")
    desk.wait_for(MAIN)


def update(desk):
    desk.press("alt+u")
    desk.answer("Save Notice", "alt+y")
    desk.answer("Save Notice", "Return")


def correct_assignments(desk):
    open_row(desk, 0, "GT1 ")
    desk.picture("form-gt1")
    desk.press(*["Tab"] * 9, "e")  # its longitude's side
    update(desk)
    desk.wait_for("GT1 ")
    desk.press("alt+g")
    desk.picture("antenna-diagrams")
    desk.press("alt+Right")
    desk.wait_for("GS1 ")
    desk.picture("form-gs1")
    desk.press("alt+g", "ctrl+a")
    desk.type("168")  # the first effective height
    update(desk)
    desk.wait_for("GS1 ")
    desk.press("alt+a")
    desk.wait_for("New AdminRefID")
    desk.type("F-GS1-VILLEURBANNE")
    desk.answer("New AdminRefID", "Return")
    desk.answer("Save Notice", "alt+y")
    desk.answer("Save Notice", "Return")
    desk.wait_for("GS1 ")
    close_form(desk)


def correct_allotments(desk):
    open_row(desk, 2, "GT2 ")
    desk.picture("form-gt2")
    desk.press(*["Tab"] * 6, "v")  # the polarization
    update(desk)
    desk.wait_for("GT2 ")
    close_form(desk)
    open_row(desk, 3, "GS2 ")
    desk.picture("form-gs2")
    desk.press(*["Tab"] * 8, "End")  # the network
    desk.type("-2")
    update(desk)
    desk.wait_for("GS2 ")
    close_form(desk)


def correct_actions_and_delete(desk):
    """An update of these notices goes on to the next one, and so does a deletion."""
    open_row(desk, 4, "TB2 ")
    desk.picture("form-tb2")
    desk.press(*["Tab"] * 7)
    desk.type("0600")  # the first hour of operation
    update(desk)
    desk.wait_for("TB3 ")
    desk.picture("form-tb3")
    desk.press("Tab", "Tab", "d", "Tab", "space")  # from the available administrations to the coordinated ones
    update(desk)
    desk.wait_for("TB5 ")
    desk.picture("form-tb5")
    desk.press(*["Tab"] * 4, "ctrl+End")  # the remarks
    desk.type(" depuis 2008")
    update(desk)
    desk.wait_for("GT1 ")
    desk.press("alt+d")
    desk.answer("Delete Notice", "alt+y")
    desk.wait_for("GS1 ")
    close_form(desk)


def correct_contour(desk):
    desk.press("alt+q", "n")
    select_contours(desk)
    open_row(desk, 0, "GA1 ")
    desk.press(*["Tab"] * 15, "space")
    desk.answer("Contour ID : 11", "Escape")
    desk.wait_for("GA1 ")
    desk.press(*["shift+Tab"] * 3, "Down")  # the second test point
    desk.press(*["shift+Tab"] * 3)
    desk.type("11")  # the minutes of its latitude
    desk.press(*["Tab"] * 6, "space")
    update(desk)
    desk.wait_for("GA1 ")
    close_form(desk)


def export_all(desk):
    desk.press("alt+c", "a")
    desk.answer("Create text file", "alt+y")
    desk.answer("Information", "Return")
    desk.wait_for(MAIN)


def picture_islands(desk, notices):
    """The contour whose chart has a coast."""
    shutil.copy(EXAMPLE.with_name("valid-allotments.txt"), notices)
    load(desk, notices)
    select_contours(desk)
    open_row(desk, 3, "GA1 ")
    desk.picture("form-ga1")
    desk.press(*["Tab"] * 15, "space")
    desk.wait_for("Contour ID : 201")
    desk.picture("contour-chart")
    desk.answer("Contour ID : 201", "Escape")
    desk.wait_for("GA1 ")
    close_form(desk)


def leave(desk):
    desk.press("ctrl+x")
    desk.wait(lambda: desk.program.poll() is not None, "the end of the program")
    expect(desk.program.returncode == 0, f"the program ended with {desk.program.returncode}")


def work(desk, notices):
    load(desk, notices)
    desk.picture("query-form")
    select_notices(desk)
    desk.picture("main-window-grid")
    correct_assignments(desk)
    correct_allotments(desk)
    correct_actions_and_delete(desk)
    correct_contour(desk)
    export_all(desk)
    if desk.pictures is not None:
        picture_islands(desk, notices.with_name("islands.txt"))
    leave(desk)


# --- what it must have come to

REPORT = [
    "Basic Validation OK",
    "Complete Validation WITH validation of the geographical coordination against the GZMP",
    " ",
    "FATAL ERROR : ",
    "Notice No : 1 at line number : 8 : Admin_ref_id = F-GT1-PUY-DE-DOME : t_long : -0025752 t_lat : +454620 are in the "
    "sea, 112 km from F",
    "", "", "",
]

# What each notice loses and gains. Nothing else may differ from an export of the input.
CHANGES = {
    "GT1 F-GT1-PUY-DE-DOME": ["-t_long = -0025752", "+t_long = +0025752",
                              "-t_remarks = \u00c9metteur principal de la r\u00e9gion"],  # an update drops them
    "GS1 F-GS1-LYON": ["-t_eff_hgt@azm0 = 165", "+t_eff_hgt@azm0 = 168"],
    "GT2 F-GT2-AUVERGNE": ["-t_polar = H", "+t_polar = V"],
    "GS2 F-GS2-TOURAINE": ["-t_sfn_id = F-SFN-TOURAINE", "+t_sfn_id = F-SFN-TOURAINE-2"],
    "TB2 F-GS1-TOURS-PLAN": ["-t_op_hh_fr = 05:30", "+t_op_hh_fr = 06:00"],
    "TB3 F-GT1-CHINON": ["+t_adm = D"],
    "TB5 F-GT1-LOCHES": ["-t_remarks = Station ferm\u00e9e", "+t_remarks = Station ferm\u00e9e depuis 2008"],
    "GA1 11": ["-t_lat = +461200", "+t_lat = +461100"],
    "GA1 12": [],
}
DELETED = "GT1 F-GT1-RIOM"
ADDED = "GS1 F-GS1-VILLEURBANNE"
# What the new one, which came from the corrected GS1, has that the old one hadn't.
ADDED_CHANGES = ["-t_adm_ref_id = F-GS1-LYON", "+t_adm_ref_id = F-GS1-VILLEURBANNE",
                 "-t_eff_hgt@azm0 = 165", "+t_eff_hgt@azm0 = 168"]


def read_notices(path):
    """The lines of each notice but its number, by its type and identifier."""
    notices = {}
    for number, part in enumerate(path.read_bytes().decode(ENCODING).split("<NOTICE>")[1:], start=1):
        lines = part[:part.index("</NOTICE>")].strip("\r\n").split("\r\n")
        expect(lines[0] == f"Notice No = {number}", f"notice {number} of {path.name} begins with {lines[0]}")
        name = name_of(lines)
        expect(name not in notices, f"{name} stands twice in {path.name}")
        notices[name] = lines[1:]
    return notices


def name_of(lines):
    values = dict(line.split(" = ", 1) for line in lines if " = " in line)
    keys = ("t_adm_ref_id", "t_plan_adm_ref_id", "t_trg_adm_ref_id", "t_contour_id")
    return values["t_notice_type"] + " " + next((values[key] for key in keys if key in values), "without identifier")


def changes(before, after):
    return [line[0] + line[2:] for line in difflib.ndiff(before, after) if line[0] in "+-"]


def exported(folder):
    files = list(folder.glob("*.corr.txt"))
    expect(len(files) == 1, f"{len(files)} exports in place of one")
    return files[0]


def batch(programs, status, *arguments):
    done = subprocess.run([str(programs / "zamo-kv19-batch"), *map(str, arguments)], stdin=subprocess.DEVNULL,
                          capture_output=True, text=True, timeout=PATIENCE)
    expect(done.returncode == status, f"zamo-kv19-batch {arguments} gave {done.returncode}\n{done.stdout}{done.stderr}")
    return done.stdout


def export_untouched(programs, notices):
    folder = notices.parent / "untouched"
    folder.mkdir()
    shutil.copy(notices, folder)
    batch(programs, 1, "load", "--level", "3", "--yes", folder / notices.name)
    batch(programs, 0, "export", "--yes", folder / notices.with_suffix(".mdb").name)
    return read_notices(exported(folder))


def judge_report(notices):
    report = notices.with_name("notices_val_outcome.txt")
    viewed = notices.with_name("viewed").read_text()
    expect(viewed == f"{report}\n", f"the reports that were shown: {viewed}")
    found = report.read_bytes().decode(ENCODING).split("\r\n")
    expect(found == REPORT, f"the report of the load is {found}")


def judge_export(programs, notices):
    export = exported(notices.parent)
    before = export_untouched(programs, notices)
    after = read_notices(export)
    expect(before.keys() == {*CHANGES, DELETED}, f"the input holds {sorted(before)}")
    expect(after.keys() == {*CHANGES, ADDED}, f"the export holds {sorted(after)}")
    for name, wanted in CHANGES.items():
        found = changes(before[name], after[name])
        expect(found == wanted, f"{name} has changed by {found} and not by {wanted}")
    found = changes(before["GS1 F-GS1-LYON"], after[ADDED])
    expect(found == ADDED_CHANGES, f"{ADDED} differs from its origin by {found} and not by {ADDED_CHANGES}")
    expect("\r\nt_num_notices = 10\r\n</TAIL>" in export.read_bytes().decode(ENCODING), "the tail doesn't count ten")
    verdict = batch(programs, 0, "check", "--level", "3", export)
    expect(verdict == f"{export}\tok\n", f"the export isn't valid: {verdict}")


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("programs", type=lambda text: pathlib.Path(text).resolve(), metavar="FOLDER_OF_THE_PROGRAMS")
    parser.add_argument("--keep", type=pathlib.Path, metavar="FOLDER", help="where a failure leaves its picture")
    parser.add_argument("--pictures", type=pathlib.Path, metavar="FOLDER", help="takes the pictures of the guide")
    options = parser.parse_args()
    missing = [tool for tool in ("Xvfb", "openbox", "xdotool") if shutil.which(tool) is None]
    if missing:
        sys.exit("not installed: " + ", ".join(missing))
    signal.signal(signal.SIGTERM, lambda *_: sys.exit("ended from outside"))
    with tempfile.TemporaryDirectory(prefix="zamo-") as name:
        notices = pathlib.Path(name) / "notices.txt"
        write_input(notices)
        desk = Desk(options.programs, notices.parent, options.pictures)
        try:
            desk.open()
            work(desk, notices)
            judge_report(notices)
            judge_export(options.programs, notices)
        except Failure as failure:
            if options.keep is not None:
                desk.picture_of_all(options.keep / "failure.png")
            sys.exit(f"FAILED: {failure}\n{desk.words_of_the_program()}")
        finally:
            desk.end()
    print("all eight types corrected, exported and valid")


if __name__ == "__main__":
    main()
