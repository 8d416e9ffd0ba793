"""The program on a desktop that does things by itself, as people have it."""

import os
import subprocess

from ring import vendor, volumes
from ring.checks import expect, expect_equal, wait_for
from ring.notices import CRITICAL, NORMAL, Notices
from ring.plug_start import PlugStart, running_programs
from ring.runner import scenario
from ring.screen_reader import ScreenReader
from scenarios import flows, portable, set_up

# After a log-off: the normal volume stays mounted.
LOCKED_IN_USE = "The drive is locked. Eject its other volumes before you unplug it."


def notice(urgency, limit, text):
    return {"program": "ZELTO DISK", "title": "ZELTO DISK", "urgency": urgency, "limit": limit,
            "text": text}


def shells(ring):
    """The folders that the user's shells are in."""
    found = set()
    for pid in subprocess.run(["pgrep", "--uid", str(ring.desktop.uid), "--exact", "bash"],
                              capture_output=True, text=True, check=False).stdout.split():
        try:
            found.add(os.readlink(f"/proc/{pid}/cwd"))
        except OSError:
            pass
    return found


def set_up_drive(ring):
    """As a disk program leaves it. A volume that is not in a partition is mounted at a click by some
    desktops, and not by itself, where its disk was there before it."""
    return ring.set_up_drive(partitioned=True)


def wait_until_mounted(drive):
    """The normal volume, too: it was mounted, or is about to be, when the drive was plugged in."""
    wait_for("the desktop has mounted the normal volume",
             lambda: volumes.mount_point(volumes.disk(drive.serial, 1)))
    return wait_for("the desktop has mounted it",
                    lambda: volumes.mount_point(volumes.partition(drive.serial, drive.secure_unit)))


@scenario
def a_plug_opens_the_window_and_the_desktop_mounts_what_a_log_in_unlocks(ring):
    drive = set_up_drive(ring)
    drive.unplug()
    notices = Notices(ring)
    start = PlugStart(ring.desktop.name, ring.desktop.run)
    with start.switched_on():
        drive.plug()
        program = start.wait_for_program(ring)
        program.wait_for_window("AuthenticateWindow")
        flows.submit_password(program, flows.FIRST)
        program.wait_for_window("UnlockingWindow")
        folder = wait_until_mounted(drive)
        flows.write_file(ring, folder, "letter.txt", "Dear Bob")
        program.click("UnlockingLogOff")
        start.wait_for_end()
    flows.expect_locked(drive)
    expect("the volume is gone", not os.path.ismount(folder))
    expect_equal("what the desktop was given to show", notices.shown(),
                 [notice(NORMAL, -1, LOCKED_IN_USE)])


@scenario
def a_terminal_in_the_volume_keeps_the_drive_unlocked_and_a_file_manager_does_not(ring):
    drive = set_up_drive(ring)
    notices = Notices(ring)
    program = flows.log_in(ring, drive)
    folder = wait_until_mounted(drive)
    for name in ("contract.txt", "keys.txt", "letter.txt"):
        flows.write_file(ring, folder, name, f"{name}\n" * 40)
    ring.desktop.open_folder(ring, folder)
    # Started anew, its window is in front of the file manager's.
    program.click("UnlockingCancel")
    program.wait_for_end()
    program = ring.start_program("UnlockingWindow")
    wait_for("it has the keyboard", lambda: program.has_focus("UnlockingLogOff"))
    program.picture("desktop")
    terminal = ring.start_as_user(ring.desktop.terminal(), cwd=folder)
    wait_for("the terminal's shell runs", lambda: folder in shells(ring))
    program.click("UnlockingLogOff")
    detail = program.answer_alert("IDS_ERR_UNMOUNT")
    expect(f"its shell is named in {detail!r}", "bash" in detail)
    program.wait_for_end()
    expect_equal("the drive's state", drive.requests.state(), vendor.UNLOCKED)

    terminal.kill()
    terminal.wait()
    program = ring.start_program("UnlockingWindow")
    expect("the file manager still shows the volume", ring.desktop.shows_folder(folder))
    flows.log_off(program, drive)
    expect_equal("what the desktop was given to show", notices.shown(), [
        notice(CRITICAL, 0, "The drive is still unlocked. To lock it, start this program again."),
        notice(NORMAL, -1, LOCKED_IN_USE)])


@scenario
def a_new_drive_is_set_up_behind_the_desktops_back(ring):
    drive = ring.drive()
    notices = Notices(ring)
    program = set_up.start_on_new_drive(ring)
    set_up.choose_areas(program, [32, 64, 0], secure=2)
    set_up.choose_one_password(program, flows.FIRST)
    program.click("MainSettingsOKButton")
    set_up.wait_for_completion(program)
    program.picture("desktop-set-up")
    program.click("ZeltoSettingOKButton")
    program.wait_for_end()
    expect_equal("what the desktop was given to show", notices.shown(), [
        notice(NORMAL, -1, "The drive is set up. Format each area once before you use it.")])
    set_up.check_tool_area(ring, drive, 3)


@scenario
def started_twice_from_the_menu_there_is_one_program_and_it_comes_forward(ring):
    ring.set_up_drive()
    program = flows.open_log_in(ring)
    wait_for("it has the keyboard", lambda: program.has_focus("AuthenticateTextField"))
    ring.start_as_user(ring.desktop.terminal("tail", "-f", "/dev/null"))
    wait_for("a terminal has the keyboard", lambda: not program.has_focus("AuthenticateTextField"))
    ring.desktop.choose_from_menu()
    if ring.desktop.lets_windows_come_forward:
        wait_for("it has the keyboard again", lambda: program.has_focus("AuthenticateTextField"))
    expect_equal("programs that run", running_programs(), [str(program.process_id)])
    expect_equal("its windows", program.window_names(), {"AuthenticateWindow"})


@scenario
def a_screen_reader_hears_the_windows_and_dots_for_a_password(ring):
    ring.set_up_drive()
    reader = ScreenReader(ring)
    program = flows.open_log_in(ring)
    program.type_secretly("AuthenticateTextField", flows.FIRST)
    wait_for("each key was heard", lambda: len(reader.typed()) >= len(flows.FIRST))
    expect_equal("what was heard of them", set("".join(reader.typed())), {"●"})
    program.click("AuthenticateSubmit")
    program.wait_for_window("UnlockingWindow")
    wait_for("the next window is heard", lambda: "Your drive is unlocked." in reader.heard())
