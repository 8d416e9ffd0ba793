"""A desktop asks what to do with the program that a drive brings along."""

from ring.checks import wait_for
from ring.runner import scenario
from scenarios import flows, portable, real_desktop


@scenario
def the_desktops_prompt_starts_the_program_that_the_drive_brings(ring):
    drive = real_desktop.set_up_drive(ring)
    folder, partition = portable.carry_program(ring, drive)
    with portable.with_driver_everywhere():
        ring.start_as_user(["nautilus-autorun-software", f"file://{folder}"])
        ring.desktop.press_button("", "Run")
        program = portable.connect_to_copy(ring)
    program.picture("started-from-the-drive")
    flows.submit_password(program, flows.FIRST)
    program.wait_for_window("UnlockingWindow")
    real_desktop.wait_until_mounted(drive)
    ring.desktop.unmount(partition)
    program.click("UnlockingLogOff")
    wait_for("the copy has quit", lambda: portable.running_copy(ring.desktop.home) is None)
    flows.expect_locked(drive)
