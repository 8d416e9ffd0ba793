"""Logging in and off."""

import os
import shutil

from ring import vendor, volumes
from ring.checks import expect, expect_equal, wait_for
from ring.drive import UNITS
from ring.notices import CRITICAL, NORMAL, Notices
from ring.program import PROGRAM
from ring.runner import scenario
from scenarios import flows

SECRET = "The meeting is at noon under the old clock."


@scenario
def files_on_the_secure_volume_come_back_with_the_next_log_in(ring):
    drive = ring.set_up_drive()
    program = flows.log_in(ring, drive)
    expect_equal("the drive's state", drive.requests.state(), vendor.UNLOCKED)
    folder = ring.desktop.mount(flows.secure_volume(drive))
    flows.write_file(ring, folder, "secret.txt", SECRET)
    program.picture("unlocked")
    flows.log_off(program, drive)
    expect("nothing is mounted from the secure unit", not os.path.ismount(folder))
    expect("what was written cannot be read from the drive's memory",
           not drive.image_contains(SECRET))

    program = flows.log_in(ring, drive)
    folder = ring.desktop.mount(flows.secure_volume(drive))
    expect_equal("the file", flows.read_file(folder, "secret.txt"), SECRET)
    flows.log_off(program, drive)
    expect_equal("what was sent", drive.logged_writes(), [0xB3, 0xB4, 0xB3, 0xB4])


@scenario
def logging_off_leaves_the_normal_volumes_mounted(ring):
    drive = ring.set_up_drive()
    normal = ring.desktop.mount(volumes.disk(drive.serial, 1))
    program = flows.log_in(ring, drive)
    ring.desktop.mount(flows.secure_volume(drive))
    flows.log_off(program, drive)
    expect("the normal volume is still mounted", os.path.ismount(normal))


@scenario
def a_busy_volume_keeps_the_drive_unlocked_and_its_holder_is_named(ring):
    drive = ring.set_up_drive()
    program = flows.log_in(ring, drive)
    folder = ring.desktop.mount(flows.secure_volume(drive))
    check_that_a_holder_keeps_it_unlocked(ring, drive, program, folder)


def check_that_a_holder_keeps_it_unlocked(ring, drive, program, folder):
    holder = ring.start_as_user(["tail", "-f", "/dev/null"], cwd=folder)
    program.click("UnlockingLogOff")
    detail = program.answer_alert("IDS_ERR_UNMOUNT")
    expect(f"the holder is named in {detail!r}", "tail" in detail)
    program.wait_for_end()
    expect_equal("the drive's state", drive.requests.state(), vendor.UNLOCKED)
    expect("the volume is still mounted", os.path.ismount(folder))
    expect_equal("no log-out was sent", drive.logged_writes(), [0xB3])

    holder.kill()
    holder.wait()
    program = ring.start_program("UnlockingWindow")
    flows.log_off(program, drive)


@scenario
def a_drive_that_the_desktop_mounts_by_itself_is_logged_off(ring):
    drive = ring.set_up_drive()
    ring.desktop.mount_what_appears()
    program = flows.log_in(ring, drive)
    disk = flows.secure_volume(drive)
    folder = wait_for("the desktop has mounted it", lambda: volumes.mount_point(disk))
    flows.log_off(program, drive)
    expect("the volume is gone", not os.path.ismount(folder))


@scenario
def two_passwords_are_asked_for_one_after_the_other(ring):
    drive = ring.set_up_drive(two_passwords=True)
    program = flows.open_log_in(ring)
    program.wait_for_text("AuthenticateMessage", "IDS_ENTER_1ST_PASSWORD")
    flows.submit_first_of_two(program)
    flows.submit_password(program, flows.SECOND)
    program.wait_for_window("UnlockedWindow")
    expect_equal("the drive's state", drive.requests.state(), vendor.UNLOCKED)
    program.click("UnlockedLogOff")
    program.wait_for_end()
    flows.expect_locked(drive)


@scenario
def a_wrong_first_password_is_refused_and_can_be_corrected(ring):
    drive = ring.set_up_drive()
    program = flows.open_log_in(ring)
    flows.submit_wrong_password(program, "wrong")
    expect_equal("the drive's state", drive.requests.state(), vendor.LOCKED)
    flows.submit_password(program, flows.FIRST)
    program.wait_for_window("UnlockingWindow")


@scenario
def wrong_second_passwords_lock_the_drive_for_good(ring):
    drive = ring.set_up_drive(two_passwords=True)
    program = flows.open_log_in(ring)
    flows.submit_first_of_two(program)
    flows.submit_wrong_password(program, "wrong 1")
    # The refusal itself still says that the password was wrong; the next start says the rest.
    flows.submit_wrong_password(program, "wrong 2")
    expect_equal("the drive's state", drive.requests.state(), vendor.FULLY_LOCKED)
    program.click("AuthenticateCancel")
    program.wait_for_end()

    program = flows.open_after_loss(ring)
    program.picture("drive-lost")


@scenario
def a_second_copy_says_who_has_the_drive_and_does_not_disturb_the_first(ring):
    drive = ring.set_up_drive()
    first = flows.open_log_in(ring)
    # Without the session's bus it cannot know of the first.
    second = ring.program()
    second.start(environment={"DBUS_SESSION_BUS_ADDRESS": "unix:path=/nonexistent"})
    second.wait_for_window("SelectZeltoWindow")
    second.wait_for_text("SelectZeltoAccessHint", "IDS_HINT_DRIVE_IN_USE")
    expect("there is nothing to select", not second.is_enabled("SelectZeltoOK"))
    second.picture("drive-in-use")
    # The refusal is the first copy's alone to read.
    flows.submit_wrong_password(first, "wrong")
    flows.submit_password(first, flows.FIRST)
    first.wait_for_window("UnlockingWindow")
    second.click("SelectZeltoCancel")
    second.wait_for_end()
    flows.log_off(first, drive)


@scenario
def started_twice_the_program_comes_forward_and_the_second_ends(ring):
    drive = ring.set_up_drive()
    program = flows.open_log_in(ring)
    # A copy of the program, wherever it lies, is the same program.
    applications = f"{ring.desktop.home}/Applications"
    os.mkdir(applications)
    for path in (PROGRAM, shutil.copy(PROGRAM, applications)):
        # No shell: it would give the window another title.
        ring.start_as_user(["xterm", "-geometry", "200x70+0+0", "-T", "in front",
                            "-e", "tail", "-f", "/dev/null"])
        wait_for("a terminal covers it", lambda: ring.desktop.front_window() == "in front")
        second = ring.start_as_user([path])
        wait_for("the second has ended", lambda started=second: started.poll() is not None)
        expect_equal("its exit status", second.returncode, 0)
        wait_for("the first is in front", lambda: ring.desktop.front_window().startswith("ZELTO"))
    expect_equal("its windows", program.window_names(), {"AuthenticateWindow"})
    flows.submit_password(program, flows.FIRST)
    program.wait_for_window("UnlockingWindow")
    flows.log_off(program, drive)
    expect_equal("what was sent", drive.logged_writes(), [0xB3, 0xB4])


@scenario
def the_desktop_says_that_the_drive_is_locked_once_it_is(ring):
    drive = ring.set_up_drive()
    notices = Notices(ring)
    program = flows.log_in(ring, drive)
    folder = ring.desktop.mount(flows.secure_volume(drive))
    check_that_a_holder_keeps_it_unlocked(ring, drive, program, folder)
    flows.expect_locked(drive)
    expect_equal("what the desktop has shown", notices.shown(), [
        {"program": "ZELTO DISK", "title": "ZELTO DISK", "urgency": CRITICAL, "limit": 0,
         "text": "The drive is still unlocked. To lock it, start this program again."},
        {"program": "ZELTO DISK", "title": "ZELTO DISK", "urgency": NORMAL, "limit": -1,
         "text": "The drive is locked. It can be unplugged."}])


@scenario
def settings_that_cannot_be_read_leave_no_program_behind(ring):
    drive = ring.set_up_drive()
    program = flows.log_in(ring, drive)
    drive.unplug()
    program.click("UnlockingSetup")
    program.answer_alert("IDS_ERR_NOT_FOUND_ZELTO")
    program.wait_for_end()
    drive.plug()
    flows.open_log_in(ring)


@scenario
def an_encrypted_volume_on_the_drive_is_closed_before_the_drive_is_locked(ring):
    drive = ring.set_up_drive()
    program = flows.log_in(ring, drive)
    flows.encrypt_secure_volume(drive)
    clear_text = flows.open_encrypted_volume(ring, drive)
    folder = ring.desktop.mount(clear_text)
    flows.write_file(ring, folder, "secret.txt", SECRET)
    flows.log_off(program, drive)
    expect("nothing is mounted from it", not os.path.ismount(folder))
    expect_equal("what is still open on the drive", volumes.holders(
        volumes.disk(drive.serial, drive.secure_unit)), [])
    expect_equal("what was sent", drive.logged_writes(), [0xB3, 0xB4])

    program = flows.log_in(ring, drive)
    folder = ring.desktop.mount(flows.open_encrypted_volume(ring, drive))
    expect_equal("the file", flows.read_file(folder, "secret.txt"), SECRET)
    flows.log_off(program, drive)


@scenario
def a_busy_encrypted_volume_keeps_the_drive_unlocked_and_its_holder_is_named(ring):
    drive = ring.set_up_drive()
    program = flows.log_in(ring, drive)
    flows.encrypt_secure_volume(drive)
    clear_text = flows.open_encrypted_volume(ring, drive)
    folder = ring.desktop.mount(clear_text)
    check_that_a_holder_keeps_it_unlocked(ring, drive, program, folder)


@scenario
def no_drive_is_told_and_one_that_comes_is_found(ring):
    program = ring.start_program("SelectZeltoWindow")
    program.wait_for_text("SelectZeltoComboBox", "IDS_ERR_NOT_FOUND_ZELTO")
    expect("there is nothing to select", not program.is_enabled("SelectZeltoOK"))
    ring.set_up_drive()

    def is_listed():
        if program.is_enabled("SelectZeltoUpdate"):
            program.click("SelectZeltoUpdate")
        return program.is_enabled("SelectZeltoOK")

    wait_for("the drive is listed", is_listed)
    program.click("SelectZeltoOK")
    program.wait_for_window("AuthenticateWindow")


@scenario
def of_two_drives_the_chosen_one_is_opened(ring):
    # Side by side, the two would be set up one after the other on the same bus.
    drives = {drive.serial: drive for drive in
              (ring.set_up_drive(), ring.set_up_drive(serial="ZD0000000000000B"))}
    program = ring.start_program("SelectZeltoWindow")
    expect_equal("the list", program.look("SelectZeltoComboBox")["rows"],
                 [["Device 0"], ["Device 1"]])
    program.choose("SelectZeltoComboBox", 1)
    program.click("SelectZeltoOK")
    program.wait_for_window("AuthenticateWindow")
    flows.submit_password(program, flows.FIRST)
    program.wait_for_window("UnlockingWindow")
    states = sorted(drive.requests.state() for drive in drives.values())
    expect_equal("one drive is unlocked, the other is not", states,
                 [vendor.LOCKED, vendor.UNLOCKED])


@scenario
def a_drive_that_may_not_be_opened_is_told_apart_from_no_drive(ring):
    drive = ring.set_up_drive()
    node = volumes.usb_node(drive.serial)
    os.chmod(node, 0o600)  # this also takes the mask off the access list
    program = ring.start_program("SelectZeltoWindow")
    wait_for("a hint says what to do", lambda: program.text("SelectZeltoAccessHint"))
    program.picture("drive-without-permission")
    expect("there is nothing to select", not program.is_enabled("SelectZeltoOK"))


@scenario
def no_area_of_the_drive_counts_as_a_part_of_the_computer(ring):
    drive = ring.set_up_drive()
    for unit in range(1, UNITS + 1):
        wait_for(f"the disk service is told so of unit {unit}",
                 lambda number=unit: volumes.udev_property(
                     volumes.disk(drive.serial, number), "UDISKS_SYSTEM") == "0")


@scenario
def the_program_runs_unprivileged_from_where_it_is_installed(ring):
    ring.set_up_drive()
    program = flows.open_log_in(ring)
    status = volumes.read(f"/proc/{program.process_id}/status")
    expect("it runs as the user", f"Uid:\t{ring.desktop.uid}\t{ring.desktop.uid}" in status)
    expect("it has no capabilities", "CapEff:\t0000000000000000" in status)
    readable, _ = ring.desktop.run(["cat", f"/proc/{program.process_id}/maps"])
    expect("no other program of the user's can read its memory", readable != 0)
    expect_equal("its file", os.readlink(f"/proc/{program.process_id}/exe"), PROGRAM)
    program.click("AuthenticateCancel")
    program.wait_for_end()
