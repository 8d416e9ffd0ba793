"""A plug opens the window; nobody has to look for the program."""

import contextlib
import os
import pwd
import signal
import subprocess

from ring import vendor, volumes
from ring.checks import expect, expect_equal, wait_for
from ring.plug_start import UNIT, PlugStart, running_programs
from ring.runner import scenario
from scenarios import flows, set_up


@scenario
def a_plugged_drive_opens_its_window(ring):
    drive = ring.set_up_drive()
    drive.unplug()
    start = PlugStart(ring.desktop.name, ring.desktop.run)
    with start.in_a_session_with_a_display():
        drive.plug()
        program = start.wait_for_program(ring)
        program.wait_for_window("AuthenticateWindow")
        flows.submit_password(program, flows.FIRST)
        program.wait_for_window("UnlockingWindow")

        drive.unplug()
        drive.plug()
        start.wait_until_seen(drive)
        expect_equal("programs that run", len(running_programs()), 1)
        expect_equal("its windows", program.window_names(), {"UnlockingWindow"})
        program.click("UnlockingCancel")
        start.wait_for_end()

        drive.unplug()
        drive.plug()
        start.wait_for_program(ring).wait_for_window("AuthenticateWindow")


@scenario
def a_drive_that_comes_back_during_its_set_up_starts_nothing(ring):
    drive = ring.drive()
    start = PlugStart(ring.desktop.name, ring.desktop.run)
    with start.in_a_session_with_a_display():
        program = set_up.start_on_new_drive(ring)
        set_up.choose_areas(program, [60, 0, 30], secure=0)
        program.click("MainSettingsOKButton")
        start.wait_until_refused()
        set_up.wait_for_completion(program)
        expect_equal("programs that run", running_programs(), [str(program.process_id)])
        program.click("ZeltoSettingOKButton")
        program.wait_for_end()


@scenario
def what_help_opened_stays_when_the_program_ends(ring):
    drive = ring.set_up_drive()
    drive.unplug()
    start = PlugStart(ring.desktop.name, ring.desktop.run)
    with a_browser(ring) as process_id, start.in_a_session_with_a_display():
        drive.plug()
        program = start.wait_for_program(ring)
        program.wait_for_window("AuthenticateWindow")
        program.click("Help")
        reader = wait_for("the browser runs", process_id)
        expect("it belongs to the unit", UNIT in volumes.read(f"/proc/{reader}/cgroup"))
        program.click("AuthenticateCancel")
        start.wait_for_end()
        expect("it still runs", volumes.read(f"/proc/{reader}/cmdline"))

        drive.unplug()
        drive.plug()
        start.wait_for_program(ring).wait_for_window("AuthenticateWindow")


@contextlib.contextmanager
def a_browser(ring):
    """Opened with a page it stays until the end; yields what tells its process id then."""
    opener, seen = "/usr/local/bin/xdg-open", f"{ring.desktop.runtime}/browser"
    with open(opener, "w", encoding="ascii") as script:
        script.write(f"#!/bin/sh\necho $$ >{seen}\nexec sleep infinity\n")
    os.chmod(opener, 0o755)

    def process_id():
        return volumes.read(seen)

    try:
        yield process_id
    finally:
        os.unlink(opener)
        if process_id():
            with contextlib.suppress(ProcessLookupError):
                os.kill(int(process_id()), signal.SIGKILL)
            os.unlink(seen)


@scenario
def one_line_switches_the_start_by_a_plug_off_and_on(ring):
    drive = ring.set_up_drive()
    drive.unplug()
    start = PlugStart(ring.desktop.name, ring.desktop.run)
    with start.in_a_session_with_a_display():
        start.manage("mask", UNIT)
        drive.plug()
        start.wait_until_seen(drive)
        expect_equal("programs that run", running_programs(), [])

        drive.unplug()
        start.manage("unmask", UNIT)
        drive.plug()
        start.wait_for_program(ring).wait_for_window("AuthenticateWindow")


@scenario
def in_a_session_without_a_display_nothing_starts_and_nothing_fails(ring):
    drive = ring.set_up_drive()
    start = PlugStart(ring.desktop.name, ring.desktop.run)
    start.wait_until_seen(drive)
    expect_equal("programs that run", running_programs(), [])
    expect_equal("the unit", start.manage("is-failed", UNIT)[1], "inactive")


@scenario
def in_another_users_session_nothing_starts(ring):
    drive = ring.set_up_drive()
    drive.unplug()
    subprocess.run(["useradd", "--create-home", "bob"], check=True)
    start = PlugStart("bob", as_somebody_else)
    try:
        subprocess.run(["loginctl", "enable-linger", "bob"], check=True)
        wait_for("the other user has a service manager",
                 lambda: start.manage("is-system-running")[1] in ("running", "degraded"))
        with start.in_a_session_with_a_display():
            drive.plug()
            start.wait_until_refused()
            expect_equal("programs that run", running_programs(), [])
    finally:
        subprocess.run(["loginctl", "disable-linger", "bob"], check=True)
    expect("the drive is the active user's",
           ring.desktop.run(["test", "-w", volumes.usb_node(drive.serial)])[0] == 0)
    expect_equal("the drive's state", drive.requests.state(), vendor.LOCKED)


def as_somebody_else(arguments):
    runtime = f"/run/user/{pwd.getpwnam('bob').pw_uid}"
    done = subprocess.run(
        ["runuser", "-u", "bob", "--", "env", f"XDG_RUNTIME_DIR={runtime}", *arguments],
        capture_output=True, text=True, check=False)
    return done.returncode, done.stdout.strip()
