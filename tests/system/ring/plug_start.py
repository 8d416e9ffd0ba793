"""What a plug starts: the unit that a session's service manager wants for a drive."""

import contextlib
import os
import pwd
import subprocess

from ring import volumes
from ring.checks import expect_equal, wait_for
from ring.desktop import DISPLAY
from ring.program import DRIVER_ENVIRONMENT

UNIT = "zelto.service"


class PlugStart:
    """As one user's service manager sees it; `run` runs a tool as that user and returns its status
    and output."""

    def __init__(self, user, run):
        self._user, self._run = user, run
        self._refusals = self._count_refusals()

    def manage(self, *arguments):
        return self._run(["systemctl", "--user", *arguments])

    @contextlib.contextmanager
    def in_a_session_with_a_display(self):
        """As from where the desktop has told the service manager of its display until it ends."""
        variables = {"DISPLAY": DISPLAY, **DRIVER_ENVIRONMENT}
        self.manage("set-environment", *(f"{name}={value}" for name, value in variables.items()))
        try:
            yield
        finally:
            self.manage("stop", UNIT)
            self.manage("unset-environment", *variables)

    @contextlib.contextmanager
    def switched_on(self):
        """Where it is off otherwise."""
        self.manage("unmask", UNIT)
        try:
            yield
        finally:
            self.manage("stop", UNIT)
            self.manage("mask", UNIT)

    def _property(self, name):
        return self.manage("show", UNIT, "-P", name)[1]

    def wait_for_program(self, ring):
        """The program that has been started."""
        pid = wait_for("the plug has started the program", lambda: int(self._property("MainPID")))
        program = ring.program()
        program.connect(pid)
        return program

    def wait_for_end(self):
        wait_for("the program has ended", lambda: self._property("ActiveState") == "inactive")
        expect_equal("what became of it", self._property("Result"), "success")

    def wait_until_refused(self):
        """The unit has been asked for, once more, and has found that this is no time or place."""
        wait_for("the plug was noticed, and nothing started",
                 lambda: self._count_refusals() > self._refusals)
        self._refusals = self._count_refusals()

    def _count_refusals(self):
        # The manager itself forgets a unit that has not run.
        uid = pwd.getpwnam(self._user).pw_uid
        return subprocess.run(["journalctl", "--quiet", "--output=cat", f"_UID={uid}",
                               f"USER_UNIT={UNIT}", "--grep=exec-condition"],
                              capture_output=True, text=True, check=False).stdout.count("\n")

    def wait_until_seen(self, drive):
        """Whatever the service manager does about the drive, it has done."""
        path = os.path.realpath(volumes.usb_device(drive.serial))
        name = subprocess.run(["systemd-escape", "--path", "--suffix=device", path],
                              capture_output=True, text=True, check=True).stdout.strip()
        wait_for("the service manager knows the drive",
                 lambda: self.manage("is-active", name)[0] == 0)
        wait_for("it has nothing to do", lambda: "No jobs" in self.manage("list-jobs")[1])


def running_programs():
    """The processes of all copies of the program, whoever started them."""
    return subprocess.run(["pgrep", "--exact", "zelto"], capture_output=True, text=True,
                          check=False).stdout.split()
