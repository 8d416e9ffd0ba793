"""A computer without Qt that has never seen the program; the drive brings it along."""

import glob
import os
import subprocess

from ring import vendor, volumes
from ring.checks import expect, expect_equal, wait_for
from ring.runner import scenario
from scenarios import flows

PRELOADED = "/etc/ld.so.preload"


def carry_program(ring, drive):
    """Puts the bundle on the tool area as the program itself does; where the volume is mounted."""
    disk = volumes.disk(drive.serial, drive.tool_unit)
    subprocess.run(["sfdisk", "--quiet", f"/dev/{disk}"], input="label: dos\n2048,,0e\n",
                   text=True, check=True)
    partition = wait_for("the partition is there",
                         lambda: volumes.partition(drive.serial, drive.tool_unit))
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
    """The process of the copy in the user's Applications folder."""
    for path in glob.glob("/proc/[0-9]*/exe"):
        try:
            if os.readlink(path).endswith(f"{home}/Applications/ZeltoAppMac.app/zelto"):
                return int(path.split("/")[2])
        except OSError:
            pass
    return None


@scenario
def started_from_the_drive_the_program_moves_to_the_computer_and_leaves_the_drive_free(ring):
    expect("this system has no Qt", not glob.glob("/usr/lib/*/libQt*"))
    with open(PRELOADED, "w", encoding="ascii") as preloaded:
        preloaded.write("/host/plugins/libzelto_test_preload.so\n")
    drive = ring.set_up_drive()
    folder, partition = carry_program(ring, drive)

    starter = ring.start_as_user(["sh", f"{folder}/autorun.sh"])
    pid = wait_for("the copy runs", lambda: running_copy(ring.desktop.home))
    wait_for("the program on the drive has quit", lambda: starter.poll() is not None)
    program = ring.program()
    program.connect(pid)
    program.wait_for_window("AuthenticateWindow")
    program.picture("started-from-the-drive")
    expect("the menu has an entry for it",
           os.path.exists(f"{ring.desktop.home}/.local/share/applications/zelto.desktop"))

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
    os.unlink(PRELOADED)
