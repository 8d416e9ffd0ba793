"""What a person does without a mouse."""

from ring.checks import expect, expect_equal, wait_for
from ring.runner import scenario
from scenarios import flows


@scenario
def return_presses_the_button_that_has_the_focus(ring):
    drive = ring.set_up_drive()
    program = flows.log_in(ring, drive)
    program.tab_to("UnlockingLogOff")
    program.press("Return")
    program.wait_for_end()
    flows.expect_locked(drive)


@scenario
def return_on_cancel_changes_no_setting(ring):
    drive = ring.set_up_drive()
    program = flows.log_in_to_settings(ring, drive)
    program.switch("AutoLogOffEnabledCheckBox", True)
    program.type("AutoLogOffText", "7")
    program.wait_for_enabled("MainSettingsOKButton")
    program.tab_to("MainSettingsCancelButton")
    program.press("Return")
    program.wait_for_end()
    expect_equal("the period is as it was", drive.requests.idle_period(), 0)
    expect_equal("what was sent", drive.logged_writes(), [0xB3])


@scenario
def return_in_a_confirmation_cancels(ring):
    drive = ring.set_up_drive()
    program = flows.log_in_to_settings(ring, drive)
    program.click("MainSettingsClearAllButton")
    wait_for("a confirmation is shown", program.alert)
    program.press("Return")
    wait_for("it is gone", lambda: program.alert() is None)
    program.wait_for_enabled("MainSettingsClearAllButton")
    expect("the program goes on", not program.has_ended())
    expect_equal("nothing was sent", drive.logged_writes(), [0xB3])
