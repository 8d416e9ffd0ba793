"""Changing, clearing and losing what a drive holds."""

import datetime

from ring import vendor, volumes
from ring.checks import expect, expect_equal, wait_for
from ring.runner import scenario
from scenarios import flows

NEW = "a new password"


@scenario
def changed_periods_reach_the_drive(ring):
    drive = ring.set_up_drive()
    program = flows.log_in_to_settings(ring, drive)
    expect("the layout is fixed", not program.is_enabled("AreaSettingsButton"))
    expect("no change, no commit", not program.is_enabled("MainSettingsOKButton"))
    program.switch("AutoClearEnabledCheckBox", True)
    program.switch("AutoClearMinutesCell", True)
    program.type("AutoClearText", "30")
    program.switch("AutoLogOffEnabledCheckBox", True)
    program.type("AutoLogOffText", "7")
    program.switch("ShowRemainingTimeCheckBox", True)
    program.picture("settings")
    program.click("MainSettingsOKButton")
    program.wait_for_end()
    expect_equal("auto clear", drive.requests.erase_period(), 1800)
    expect_equal("auto log-off", drive.requests.idle_period(), 420)
    expect_equal("the remaining time is shown", drive.requests.shows_remaining_time(), 1)
    expect_equal("what was sent", drive.logged_writes(), [0xB3, 0xBC, 0xBD, 0xB7])
    drive.requests.log_out()
    program = flows.open_log_in(ring)
    wait_for("the log-in window shows the remaining time",
             lambda: "2" in (program.text("AuthenticateRemainingTimeText") or ""))


@scenario
def a_changed_password_is_the_only_one_that_opens(ring):
    drive = ring.set_up_drive()
    program = flows.log_in_to_settings(ring, drive)
    change_password(program, flows.FIRST)
    program.click("MainSettingsOKButton")
    program.wait_for_end()
    drive.requests.log_out()

    program = flows.open_log_in(ring)
    flows.submit_wrong_password(program, flows.FIRST)
    flows.submit_password(program, NEW)
    program.wait_for_window("UnlockingWindow")
    expect("the volume is the same as before", volumes.file_system(flows.secure_volume(drive)))


@scenario
def a_wrong_current_password_changes_nothing(ring):
    drive = ring.set_up_drive()
    program = flows.log_in_to_settings(ring, drive)
    change_password(program, "not the password")
    program.click("MainSettingsOKButton")
    program.answer_alert("IDS_ERR_CURRENT_1ST_PASSWORD_INVALID")
    program.wait_for_enabled("MainSettingsOKButton")
    expect_equal("no period was sent", drive.logged_writes(), [0xB3, 0xB1])
    drive.requests.log_out()
    drive.requests.authenticate(flows.FIRST)
    expect_equal("the old password opens", drive.requests.state(), vendor.UNLOCKED)


def change_password(program, current):
    program.click("PasswordSettingsButton")
    program.wait_for_window("PasswordChangeWindow")
    program.type("PC_Current1stPasswordText", current)
    program.type("PC_New1stPasswordText", NEW)
    program.type("PC_AgainNew1stPasswordText", NEW)
    program.click("PC_OKButton")
    wait_for("the dialog is closed", lambda: program.look("PasswordChangeWindow") is None)


@scenario
def the_clock_is_set_from_the_settings(ring):
    drive = ring.set_up_drive(clock_set=False)
    program = flows.log_in_to_settings(ring, drive)
    program.wait_for_text("DeviceTimeText", "IDS_ERR_TIME_STATUS_INVALID")
    program.click("MainSettingsSetTimeButton")
    program.answer_alert("IDS_TIME_SYNC_COMPLETE")
    program.wait_for_end()
    expect("the drive's clock is valid", drive.requests.clock_is_valid())
    expect_clock_near_now(drive)


@scenario
def a_lost_clock_locks_the_drive_until_it_is_set(ring):
    drive = ring.set_up_drive(erase_period=86400)
    drive.lose_clock()
    expect_equal("the drive's state", drive.requests.state(), vendor.FULLY_LOCKED)
    program = ring.start_program()
    program.answer_alert("IDS_FULLLOCK_TIME_STATUS_INVALID")
    program.answer_alert("IDS_SET_CURRENT_YIME")
    program.wait_for_end()
    expect_clock_near_now(drive)
    program = flows.log_in(ring, drive)
    expect("the volume is still there", volumes.file_system(flows.secure_volume(drive)))


@scenario
def a_lost_clock_is_left_alone_when_the_user_cancels(ring):
    drive = ring.set_up_drive(erase_period=86400)
    drive.lose_clock()
    program = ring.start_program()
    program.answer_alert("IDS_FULLLOCK_TIME_STATUS_INVALID", button="IDS_CANCEL_BUTTON")
    program.wait_for_end()
    expect("the drive's clock is still not valid", not drive.requests.clock_is_valid())


def expect_clock_near_now(drive):
    time = drive.requests.time_status()
    shown = datetime.datetime(time[2] * 256 + time[3], *time[4:9], tzinfo=datetime.timezone.utc)
    distance = abs(datetime.datetime.now(datetime.timezone.utc) - shown)
    expect(f"the drive's clock is right: {shown}", distance < datetime.timedelta(minutes=2))


@scenario
def auto_clear_takes_the_key_also_while_unlocked(ring):
    drive = ring.set_up_drive(erase_period=600)
    program = flows.log_in(ring, drive)
    folder = ring.desktop.mount(flows.secure_volume(drive))
    flows.write_file(ring, folder, "kept.txt", "not for long")
    drive.advance(601)
    wait_for("the drive is fully locked",
             lambda: drive.requests.state() == vendor.FULLY_LOCKED)
    wait_for("the volume is gone",
             lambda: not volumes.has_medium(drive.serial, drive.secure_unit))
    program.click("UnlockingCancel")
    program.wait_for_end()
    flows.open_after_loss(ring)


@scenario
def the_idle_drive_locks_itself(ring):
    drive = ring.set_up_drive(idle_period=60)
    program = flows.log_in(ring, drive)
    disk = flows.secure_volume(drive)
    expect("the unlocked drive shows its volume", volumes.sectors(disk) > 0)
    program.click("UnlockingCancel")
    program.wait_for_end()
    drive.advance(61)
    wait_for("the drive is locked", lambda: drive.requests.state() == vendor.LOCKED)
    wait_for("the volume is gone",
             lambda: not volumes.has_medium(drive.serial, drive.secure_unit))


@scenario
def clear_all_makes_the_drive_new_again(ring):
    drive = ring.set_up_drive()
    program = flows.log_in_to_settings(ring, drive)
    ring.desktop.mount(flows.secure_volume(drive))
    program.click("MainSettingsClearAllButton")
    program.answer_alert("IDS_CLEAR_ALL_CONFIRM")
    program.wait_for_end()
    expect_equal("what was sent", drive.logged_writes(),
                 [0xB3, 0xBC, 0xBD, 0xB7, 0xC5, 0xB4, 0xB0, 0xC5])
    drive.unplug()
    drive.plug()
    expect_equal("the drive's state", drive.requests.state(), vendor.NO_PASSWORD)
    expect_equal("its one area is all sectors", drive.requests.areas(), [(0, 2 ** 64 - 1)])
    program = ring.start_program("MainSettingsWindow")
    expect("its layout may be chosen", program.is_enabled("AreaSettingsButton"))


@scenario
def clear_all_does_nothing_when_the_user_cancels(ring):
    drive = ring.set_up_drive()
    program = flows.log_in_to_settings(ring, drive)
    program.click("MainSettingsClearAllButton")
    program.answer_alert("IDS_CLEAR_ALL_CONFIRM", button="IDS_CANCEL_BUTTON")
    program.wait_for_enabled("MainSettingsClearAllButton")
    expect_equal("nothing was sent", drive.logged_writes(), [0xB3])


@scenario
def an_erased_key_loses_the_drive(ring):
    drive = ring.set_up_drive()
    program = flows.log_in_to_settings(ring, drive)
    program.click("EraseEncryptionKeyButton")
    program.answer_alert("IDS_ERASE_ENCRYPTION_KEY_CONFIRM")
    program.wait_for_end()
    wait_for("the drive is fully locked",
             lambda: drive.requests.state() == vendor.FULLY_LOCKED)
    expect_equal("what was sent", drive.logged_writes()[:2], [0xB3, 0xBC])
