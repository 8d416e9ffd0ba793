"""Runs scenarios one after the other and says what came of each."""

import re
import subprocess
import time
import traceback

from ring.checks import Failure, say
from ring.desktop import Desktop
from ring.drive import DriveShelf
from ring.program import Program
from ring.real_desktops import REAL_DESKTOPS

SCENARIOS = []


def scenario(test):
    """Marks a function as a scenario. Its name is the behaviour it proves; it gets a Ring."""
    SCENARIOS.append(test)
    return test


class Ring:
    """The world of one scenario."""

    def __init__(self, name, desktop, shelf):
        self.name = name
        self.desktop = desktop
        self._shelf = shelf
        self._drives = []
        self._programs = []
        self._helpers = []

    def drive(self, **options):
        """A new drive, plugged in."""
        return self._added(self._shelf.new_drive(self._log(), **options))

    def set_up_drive(self, **options):
        """A drive with a formatted secure area, locked, plugged in; see DriveShelf."""
        return self._added(self._shelf.set_up_drive(self._log(), **options))

    def program(self):
        program = Program(self.desktop, f"{self.name}.program")
        self._programs.append(program)
        return program

    def start_program(self, window=None):
        """Starts the installed program; with a window's name, waits until that is open."""
        program = self.program()
        program.start()
        if window:
            program.wait_for_window(window)
        return program

    def start_as_user(self, arguments, **options):
        """A program of the user's that ends with the scenario at the latest."""
        log = open(f"/host/results/{self.name}.helpers.log", "ab")
        helper = self.desktop.start(arguments, stdout=log, stderr=log, **options)
        self._helpers.append(helper)
        return helper

    def _log(self):
        return f"/host/results/{self.name}.{len(self._drives)}.drive.log"

    def _added(self, drive):
        self._drives.append(drive)
        return drive

    def show_failure(self):
        """Whatever may help to understand it."""
        for program in self._programs:
            try:
                for window in program.windows():
                    say(f"on the screen: {window}")
                program.picture(f"{self.name}.failed")
            except (Failure, AttributeError):
                pass
        # The most telling first: a log may be cut.
        for tool, lines in ((["tail", *(program.log for program in self._programs)], 20),
                            (["journalctl", "--no-pager", "-u", "udisks2", "-u", "polkit",
                              "-u", "systemd-udevd"], 20),
                            (["busctl", "tree", "--list", "org.freedesktop.UDisks2"], 30),
                            (["ps", "-o", "pid,etime,args", "-u", str(self.desktop.uid)], 40),
                            (["findmnt", "--types", "vfat"], 10), (["dmesg"], 25)):
            output = subprocess.run(tool, capture_output=True, text=True, check=False,
                                    stdin=subprocess.DEVNULL).stdout
            for line in output.rstrip().split("\n")[-lines:]:
                say(f"{tool[0]}: {line}")

    def tidy_up(self):
        self.desktop.leave_volumes_alone()
        for program in self._programs:
            program.kill()
        for helper in self._helpers:
            if helper.poll() is None:
                helper.kill()
            helper.wait()
        for drive in self._drives:
            drive.throw_away()
        self.desktop.remove_leftovers()


def run_scenarios(system, modules, wanted):
    """Runs the scenarios of some modules in whose names the pattern `wanted` is found; their number
    and that of the failed ones."""
    names = {module.__name__ for module in modules}
    desktop = REAL_DESKTOPS.get(system, Desktop)()
    desktop.log_in()
    shelf = DriveShelf(desktop)
    chosen = [test for test in SCENARIOS
              if test.__module__ in names and re.search(wanted, test.__name__)]
    failed = [test.__name__ for test in chosen if not run_scenario(test, desktop, shelf)]
    for name in failed:
        print(f"failed: {name}", flush=True)
    return len(chosen), len(failed)


def run_scenario(test, desktop, shelf):
    name = test.__name__
    print(f"  {name}", flush=True)
    started = time.monotonic()
    ring = Ring(name, desktop, shelf)
    passed = False
    try:
        test(ring)
        passed = True
    except Failure as failure:
        say(f"FAILED: {failure}")
    except Exception:  # pylint: disable=broad-except  # a bug of the scenario is a failure too
        say("FAILED: " + traceback.format_exc())
    if not passed:
        ring.show_failure()
    try:
        ring.tidy_up()
    except Exception:  # pylint: disable=broad-except
        say("FAILED to tidy up: " + traceback.format_exc())
        passed = False
    took = time.monotonic() - started
    print(f"  {'passed' if passed else 'FAILED'}: {name} ({took:.1f} s)", flush=True)
    return passed
