"""A computer without Qt that has never seen the program; the drive brings it along."""

import contextlib
import glob
import os
import subprocess

from ring import vendor, volumes
from ring.checks import expect, expect_equal, wait_for
from ring.runner import scenario
from scenarios import flows, set_up

PRELOADED = "/etc/ld.so.preload"


def carry_program(ring, drive):
    """Puts the bundle on the tool area as the program itself does; where the volume is mounted."""
    partition = volumes.make_partition(drive.serial, drive.tool_unit)
    subprocess.run(["mkfs.vfat", "-n", "ZELTO TOOL", f"/dev/{partition}"], check=True,
                   stdout=subprocess.DEVNULL)
    wait_for("its volume is recognised", lambda: volumes.file_system(partition) == "vfat")
    folder = ring.desktop.mount(partition)
    for item in ("ZeltoAppMac.app", "ZeltoAppMac.app/autorun.sh"):
        status, output = ring.desktop.run(["cp", "-r", f"/host/{item}", folder])
        expect(f"the volume takes {item} {output}".strip(), status == 0)
    ring.desktop.unmount(partition)
    return ring.desktop.mount(partition), partition


def running_copy(home):
    """The process of the copy in the user's Applications folder. It leads a session of its own, in
    contrast to the process in which the starter tries beforehand whether it can be loaded."""
    for path in glob.glob("/proc/[0-9]*/exe"):
        pid = int(path.split("/")[2])
        try:
            if os.readlink(path).endswith(f"{home}/Applications/ZeltoAppMac.app/zelto") \
                    and os.getsid(pid) == pid:
                return pid
        except OSError:
            pass
    return None


@contextlib.contextmanager
def with_driver_everywhere():
    """The copy that a starter starts can be used from here, too."""
    with open(PRELOADED, "w", encoding="ascii") as preloaded:
        preloaded.write("/host/plugins/libzelto_test_preload.so\n")
    try:
        yield
    finally:
        os.unlink(PRELOADED)


def connect_to_copy(ring):
    """What has been started from the drive and moved to the computer."""
    pid = wait_for("the copy runs", lambda: running_copy(ring.desktop.home))
    program = ring.program()
    program.connect(pid)
    program.wait_for_window("AuthenticateWindow")
    return program


@scenario
def started_from_the_drive_the_program_moves_to_the_computer_and_leaves_the_drive_free(ring):
    expect("this system has no Qt", not glob.glob("/usr/lib/*/libQt*"))
    drive = ring.set_up_drive()
    folder, partition = carry_program(ring, drive)

    with with_driver_everywhere():
        starter = ring.start_as_user(["sh", f"{folder}/autorun.sh"])
        program = connect_to_copy(ring)
        wait_for("the program on the drive has quit", lambda: starter.poll() is not None)
    program.picture("started-from-the-drive")
    menu = f"{ring.desktop.home}/.local/share/applications"
    expect("the menu has an entry for it", os.path.exists(f"{menu}/com.kestrin.zelto.desktop"))

    flows.submit_password(program, flows.FIRST)
    program.wait_for_window("UnlockingWindow")
    ring.desktop.mount(flows.secure_volume(drive))
    ring.desktop.unmount(partition)
    program.click("UnlockingLogOff")
    wait_for("the copy has quit", lambda: running_copy(ring.desktop.home) is None)
    flows.expect_locked(drive)
    expect_equal("what was sent", drive.logged_writes(), [0xB3, 0xB4])
    expect_equal("the drive's state", drive.requests.state(), vendor.LOCKED)
    expect("no volume of the drive is mounted",
           not any(device.startswith("sd") for device in volumes.mounts()))


@scenario
def the_copy_in_applications_puts_itself_on_the_next_new_drive(ring):
    applications = f"{ring.desktop.home}/Applications"
    bundle = f"{applications}/ZeltoAppMac.app"
    ring.desktop.run(["mkdir", applications])
    status, output = ring.desktop.run(["cp", "-r", "/host/ZeltoAppMac.app", applications])
    expect(f"the user has a copy {output}".strip(), status == 0)
    drive = ring.drive()
    program = ring.program()
    program.start(f"{bundle}/zelto")
    program.wait_for_window("MainSettingsWindow")
    set_up.choose_areas(program, [60, 0, 30], secure=0)
    program.click("MainSettingsOKButton")
    set_up.wait_for_completion(program)
    program.click("ZeltoSettingOKButton")
    program.wait_for_end()
    set_up.check_tool_area(ring, drive, 3, bundle)
