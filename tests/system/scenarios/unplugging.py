"""The plug is pulled in the middle of everything."""

import glob

from ring import vendor, volumes
from ring.checks import expect, expect_equal, wait_for
from ring.runner import scenario
from scenarios import flows, set_up


def start_set_up(ring):
    program = set_up.start_on_new_drive(ring)
    set_up.choose_areas(program, [32, 64, 0], secure=2)
    set_up.choose_one_password(program, flows.FIRST)
    return program


def commit_set_up(program):
    program.click("MainSettingsOKButton")
    program.wait_for_window("ZeltoSettingWindow")


def plug_in_locked(drive):
    drive.plug()
    expect_equal("the drive's state", drive.requests.state(), vendor.LOCKED)


def expect_new(drive):
    expect_equal("the drive's state", drive.requests.state(), vendor.NO_PASSWORD)
    expect_equal("the old areas are in force", drive.requests.areas(), [(0, 2 ** 64 - 1)])


@scenario
def unplugged_while_the_areas_are_sent_a_new_drive_stays_new(ring):
    drive = ring.drive()
    program = start_set_up(ring)
    drive.vanish_at(0xC4, obeyed=True)
    program.click("MainSettingsOKButton")
    program.answer_alert("IDS_ERR_NOT_FOUND_ZELTO")
    program.wait_for_enabled("MainSettingsOKButton")
    drive.plug()
    expect_new(drive)


@scenario
def unplugged_while_the_password_is_sent_a_new_drive_can_be_set_up_again(ring):
    drive = ring.drive()
    program = start_set_up(ring)
    drive.vanish_at(0xB1, obeyed=False)
    program.click("MainSettingsOKButton")
    program.answer_alert("IDS_ERR_NOT_FOUND_ZELTO")
    program.click("MainSettingsCancelButton")
    program.wait_for_end()
    drive.plug()
    ring.start_program("MainSettingsWindow")


@scenario
def unplugged_while_it_reconnects_and_never_back_the_wait_ends(ring):
    drive = ring.drive()
    program = start_set_up(ring)
    drive.vanish_at(0xC1, obeyed=True)
    commit_set_up(program)
    drive.wait_until_gone()
    # The program gives the drive a minute.
    program.answer_alert("IDS_ERR_NOT_FOUND_ZELTO")
    program.wait_for_end()
    plug_in_locked(drive)


@scenario
def unplugged_while_the_tool_area_is_formatted_the_user_is_told(ring):
    drive = ring.drive()
    program = start_set_up(ring)
    commit_set_up(program)
    # The first sectors written to the tool area are the format's.
    drive.wait_for_write(unit=3)
    drive.unplug()
    program.answer_alert("IDS_ERR_FORMAT")
    program.wait_for_end()
    plug_in_locked(drive)


@scenario
def unplugged_while_the_program_is_copied_the_user_is_told(ring):
    drive = ring.drive()
    program = start_set_up(ring)
    commit_set_up(program)
    wait_for("the program is being copied",
             lambda: glob.glob(f"/media/{ring.desktop.name}/ZELTO TOOL/.*/new/*"))
    drive.unplug()
    program.answer_alert("IDS_ERR_FILE_COPY")
    program.wait_for_end()
    plug_in_locked(drive)


@scenario
def unplugged_while_the_password_is_checked_the_user_is_told(ring):
    drive = ring.set_up_drive()
    program = flows.open_log_in(ring)
    drive.vanish_at(0xB3, obeyed=True)
    flows.submit_password(program, flows.FIRST)
    program.answer_alert("IDS_ERR_NOT_FOUND_ZELTO")
    program.wait_for_end()
    plug_in_locked(drive)


@scenario
def unplugged_while_unlocked_the_drive_is_locked_and_its_mounts_are_gone(ring):
    drive = ring.set_up_drive()
    program = flows.log_in(ring, drive)
    disk = flows.secure_volume(drive)
    ring.desktop.mount(disk)
    drive.unplug()
    wait_for("nothing is mounted from it", lambda: disk not in volumes.mounts())
    program.click("UnlockingLogOff")
    program.answer_alert("IDS_ERR_NOT_FOUND_ZELTO")
    program.wait_for_end()
    plug_in_locked(drive)
    program = flows.log_in(ring, drive)
    expect("its volume is still there", volumes.file_system(flows.secure_volume(drive)))


@scenario
def unplugged_while_files_are_written_those_from_before_are_kept(ring):
    drive = ring.set_up_drive()
    program = flows.log_in(ring, drive)
    folder = ring.desktop.mount(flows.secure_volume(drive))
    flows.write_file(ring, folder, "before.txt", "kept")
    before = drive.sectors_written(drive.secure_unit)
    writer = ring.start_as_user(["dd", "if=/dev/zero", f"of={folder}/big", "bs=64k", "oflag=sync"])
    wait_for("the file is being written",
             lambda: drive.sectors_written(drive.secure_unit) > before + 1024)
    drive.unplug()
    wait_for("the writer has given up", lambda: writer.poll() is not None)
    expect("it was told", writer.returncode != 0)
    program.click("UnlockingCancel")
    program.wait_for_end()
    drive.plug()
    flows.log_in(ring, drive)
    folder = ring.desktop.mount(flows.secure_volume(drive))
    expect_equal("the file", flows.read_file(folder, "before.txt"), "kept")


@scenario
def unplugged_while_a_busy_volume_is_reported_the_drive_is_locked(ring):
    drive = ring.set_up_drive()
    program = flows.log_in(ring, drive)
    folder = ring.desktop.mount(flows.secure_volume(drive))
    ring.start_as_user(["tail", "-f", "/dev/null"], cwd=folder)
    program.click("UnlockingLogOff")
    wait_for("an alert is shown", program.alert)
    drive.unplug()
    program.answer_alert("IDS_ERR_UNMOUNT")
    program.wait_for_end()
    plug_in_locked(drive)


@scenario
def unplugged_between_wrong_passwords_the_drive_goes_on_counting(ring):
    drive = ring.set_up_drive(two_passwords=True)
    program = flows.open_log_in(ring)
    flows.submit_first_of_two(program)
    flows.submit_wrong_password(program, "wrong 1")
    drive.unplug()
    flows.submit_password(program, "wrong 2")
    program.answer_alert("IDS_ERR_NOT_FOUND_ZELTO")
    program.wait_for_end()
    plug_in_locked(drive)

    program = flows.open_log_in(ring)
    flows.submit_first_of_two(program)
    flows.submit_wrong_password(program, "wrong 2")
    expect_equal("the drive's state", drive.requests.state(), vendor.FULLY_LOCKED)


@scenario
def unplugged_while_the_clock_is_set_the_user_is_told_and_may_retry(ring):
    drive = ring.set_up_drive(clock_set=False)
    program = flows.log_in_to_settings(ring, drive)
    drive.vanish_at(0xBB, obeyed=False)
    program.click("MainSettingsSetTimeButton")
    program.answer_alert("IDS_ERR_NOT_FOUND_ZELTO")
    program.wait_for_enabled("MainSettingsSetTimeButton")
    drive.plug()
    expect("the clock is as it was", not drive.requests.clock_is_valid())


@scenario
def unplugged_past_its_auto_clear_period_the_drive_has_lost_its_key(ring):
    drive = ring.set_up_drive(erase_period=600)
    drive.unplug()
    drive.advance(601)
    drive.plug()
    expect_equal("the drive's state", drive.requests.state(), vendor.FULLY_LOCKED)
    flows.open_after_loss(ring)


@scenario
def unplugged_while_the_idle_period_runs_the_drive_is_locked_and_counts_anew(ring):
    drive = ring.set_up_drive(idle_period=600)
    program = flows.log_in(ring, drive)
    drive.advance(500)
    drive.unplug()
    program.click("UnlockingCancel")
    program.wait_for_end()
    plug_in_locked(drive)
    flows.log_in(ring, drive)
    drive.advance(500)
    expect_equal("the drive's state", drive.requests.state(), vendor.UNLOCKED)


@scenario
def unplugged_while_it_logs_off_the_drive_is_locked(ring):
    drive = ring.set_up_drive()
    program = flows.log_in(ring, drive)
    ring.desktop.mount(flows.secure_volume(drive))
    drive.vanish_at(0xB4, obeyed=False)
    program.click("UnlockingLogOff")
    program.wait_for_end()
    plug_in_locked(drive)


@scenario
def unplugged_while_settings_are_sent_the_user_is_told_and_may_retry(ring):
    drive = ring.set_up_drive()
    program = flows.log_in_to_settings(ring, drive)
    program.switch("AutoLogOffEnabledCheckBox", True)
    program.type("AutoLogOffText", "7")
    drive.vanish_at(0xBD, obeyed=False)
    program.click("MainSettingsOKButton")
    program.answer_alert("IDS_ERR_NOT_FOUND_ZELTO")
    program.wait_for_enabled("MainSettingsOKButton")
    drive.plug()
    expect_equal("the period is as it was", drive.requests.idle_period(), 0)


@scenario
def unplugged_before_the_key_is_cleared_nothing_is_lost(ring):
    drive = ring.set_up_drive()
    program = flows.log_in_to_settings(ring, drive)
    # The first reset is refused while there is a key; the drive goes before it is cleared.
    drive.vanish_at(0xB0, obeyed=False)
    program.click("MainSettingsClearAllButton")
    program.answer_alert("IDS_CLEAR_ALL_CONFIRM")
    program.answer_alert("IDS_ERR_NOT_FOUND_ZELTO")
    program.wait_for_enabled("MainSettingsClearAllButton")
    plug_in_locked(drive)
