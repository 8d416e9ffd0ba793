"""A new drive becomes a working one."""

import os
import subprocess

from ring import vendor, volumes
from ring.checks import expect, expect_equal, say, wait_for
from ring.program import BUNDLE
from ring.runner import scenario
from scenarios import flows


def start_on_new_drive(ring):
    program = ring.start_program("MainSettingsWindow")
    expect("nothing can be committed yet", not program.is_enabled("MainSettingsOKButton"))
    return program


def choose_areas(program, sizes, secure):
    """Sizes in MB; `secure` is the number of the secure area, 0 for none."""
    program.click("AreaSettingsButton")
    program.wait_for_window("AreaSettingsWindow")
    for number, size in enumerate(sizes, start=1):
        program.type(f"Disk{number}CapacityText", str(size))
    if secure:
        program.switch(f"Disk{secure}SecureCheckBox", True)
    program.click("AreaSettingsOKButton")
    wait_for("the area dialog is closed", lambda: program.look("AreaSettingsWindow") is None)


def choose_one_password(program, password):
    program.click("PasswordSettingsButton")
    program.wait_for_window("PasswordSettingsWindow")
    program.type("PS_1stPasswordText", password)
    program.type("PS_Again1stPasswordText", password)
    program.click("PS_OKButton")
    wait_for("the password dialog is closed",
             lambda: program.look("PasswordSettingsWindow") is None)


def choose_two_passwords(program, first, second, trials):
    program.click("PasswordSettingsButton")
    program.wait_for_window("PasswordSettingsWindow")
    program.switch("PS_1stAnd2ndCell", True)
    for number, password in (("1st", first), ("2nd", second)):
        program.type(f"PS_{number}PasswordText", password)
        program.type(f"PS_Again{number}PasswordText", password)
    program.type("PS_2ndPasswordNumberOfTrials", str(trials))
    program.click("PS_OKButton")
    wait_for("the password dialog is closed",
             lambda: program.look("PasswordSettingsWindow") is None)


def wait_for_completion(program):
    program.wait_for_window("ZeltoSettingWindow")
    program.wait_for_text("ZeltoSettingText", "IDS_SETTING_COMPLETE")
    program.wait_for_enabled("ZeltoSettingOKButton")


def check_tool_area(ring, drive, unit, bundle=BUNDLE):
    """First as this computer sees it, then in the image, with tools that are not the kernel."""
    partition = volumes.partition(drive.serial, unit)
    folder = volumes.mount_point(partition)
    expect("the tool volume is mounted", folder is not None)
    expect("it carries the program",
           os.path.exists(os.path.join(folder, "ZeltoAppMac.app", "zelto")))
    expect("desktops find what to run", os.path.exists(os.path.join(folder, "autorun.sh")))
    ring.desktop.unmount(partition)
    drive.unplug()

    fat = f"{drive.image}@@{partition_offset(drive, unit)}"
    expect("its label in the image is ZELTO TOOL",
           "ZELTO TOOL" in tool(["mlabel", "-s", "-i", fat, "::"]))
    copied = f"{drive.folder}/from-image"
    os.mkdir(copied)
    tool(["mcopy", "-s", "-n", "-i", fat, "::ZeltoAppMac.app", copied])
    expect_equal("what differs between the bundle in the image and the one on this computer",
                 subprocess.run(["diff", "-r", f"{copied}/ZeltoAppMac.app", bundle],
                                capture_output=True, text=True, check=False).stdout, "")


def partition_offset(drive, unit):
    """Where the one partition of a unit begins in the drive's image, by its master boot record."""
    with open(drive.image, "rb") as image:
        image.seek(drive.area_offset(unit))
        record = image.read(512)
    expect_equal("signature of the master boot record", record[510:], b"\x55\xaa")
    expect("it has one partition, a FAT one",
           record[450] in (0x01, 0x04, 0x06, 0x0B, 0x0C, 0x0E) and not any(record[462:510]))
    return drive.area_offset(unit) + 512 * int.from_bytes(record[454:458], "little")


def tool(arguments):
    done = subprocess.run(arguments, capture_output=True, text=True, check=False,
                          env={**os.environ, "MTOOLS_SKIP_CHECK": "1"})
    output = done.stdout + done.stderr
    if done.returncode != 0:
        say(output)
    expect_equal(f"status of {arguments[0]}", done.returncode, 0)
    return output


@scenario
def a_new_drive_is_set_up_with_a_secure_area_and_carries_the_program(ring):
    drive = ring.drive()
    program = start_on_new_drive(ring)
    expect_equal("the areas shown", program.look("AreaInfosTableView")["rows"][0][0], "Disk1")
    choose_areas(program, [32, 64, 0], secure=2)
    expect("no password yet, no commit", not program.is_enabled("MainSettingsOKButton"))
    choose_one_password(program, flows.FIRST)
    program.switch("AutoClearEnabledCheckBox", True)
    program.type("AutoClearText", "2")
    program.switch("AutoLogOffEnabledCheckBox", True)
    program.type("AutoLogOffText", "5")
    program.picture("settings-of-a-new-drive")
    program.click("MainSettingsOKButton")
    wait_for_completion(program)
    program.picture("set-up-complete")

    expect_equal("the drive's state", drive.requests.state(), vendor.LOCKED)
    expect_equal("its areas", drive.requests.areas(),
                 [(0, 32 * 2048), (0x40, 64 * 2048), (0, vendor.TOOL_SECTORS)])
    expect_equal("auto clear", drive.requests.erase_period(), 2 * 86400)
    expect_equal("auto log-off", drive.requests.idle_period(), 5 * 60)
    expect("the secure unit has no medium yet", not volumes.has_medium(drive.serial, 2))
    expect_equal("what was sent", drive.logged_writes(),
                 [0xC4, 0xB0, 0xB1, 0xBC, 0xBD, 0xB7, 0xC1])
    program.click("ZeltoSettingOKButton")
    program.wait_for_end()
    check_tool_area(ring, drive, 3)


@scenario
def a_new_drive_is_set_up_with_two_passwords(ring):
    drive = ring.drive()
    program = start_on_new_drive(ring)
    choose_areas(program, [48, 0, 0], secure=1)
    choose_two_passwords(program, flows.FIRST, flows.SECOND, trials=3)
    program.click("MainSettingsOKButton")
    wait_for_completion(program)
    expect_equal("what was sent", drive.logged_writes(),
                 [0xC4, 0xB0, 0xB1, 0xB1, 0xBC, 0xBD, 0xB7, 0xC1])
    expect_equal("the security byte", drive.requests.security() & 0x47, 0x42)
    program.click("ZeltoSettingOKButton")
    program.wait_for_end()


@scenario
def a_drive_without_a_secure_area_is_set_up_while_the_desktop_mounts_what_appears(ring):
    ring.desktop.mount_what_appears()
    drive = ring.drive()
    program = start_on_new_drive(ring)
    choose_areas(program, [60, 0, 30], secure=0)
    program.click("MainSettingsOKButton")
    wait_for_completion(program)
    expect_equal("its areas", drive.requests.areas(),
                 [(0, 60 * 2048), (0, 30 * 2048), (0, vendor.TOOL_SECTORS)])
    expect_equal("no key and no password was sent", drive.logged_writes(),
                 [0xC4, 0xBC, 0xBD, 0xB7, 0xC1])
    program.click("ZeltoSettingOKButton")
    program.wait_for_end()
    check_tool_area(ring, drive, 3)


@scenario
def the_computer_stays_awake_until_a_set_up_is_done(ring):
    ring.drive()
    program = start_on_new_drive(ring)
    choose_areas(program, [48, 0, 0], secure=1)
    choose_one_password(program, flows.FIRST)
    expect_equal("what keeps the computer awake", ring.desktop.inhibitors(program), [])
    program.click("MainSettingsOKButton")
    program.wait_for_window("ZeltoSettingWindow")
    wait_for("the computer is kept awake",
             lambda: ring.desktop.inhibitors(program) == [("shutdown:sleep", "block")])
    wait_for_completion(program)
    wait_for("it may sleep again", lambda: not ring.desktop.inhibitors(program))
    program.click("ZeltoSettingOKButton")
    program.wait_for_end()
