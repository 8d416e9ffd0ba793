"""What stays of a secret in the program's memory: nothing."""

from ring import vendor
from ring.checks import expect, expect_equal, wait_for
from ring.memory import Traces
from ring.runner import scenario
from ring.screen_reader import ScreenReader
from scenarios import flows, set_up

KEY = "9f3a71c05be8d246"
NEW = "Xq7#vLw9pZ"


def expect_no_trace(traces, moment):
    expect_equal(f"what is left {moment}", traces.found(), [])


def expect_a_trace(traces, moment):
    """A search that finds nothing where something is proves nothing."""
    expect(f"it is in memory {moment}", traces.found())


@scenario
def a_typed_password_leaves_no_trace(ring):
    drive = ring.set_up_drive()
    program = flows.open_log_in(ring)
    traces = Traces(program.process_id, flows.FIRST, vendor.digest(flows.FIRST))
    program.type_secretly("AuthenticateTextField", flows.FIRST)
    expect_a_trace(traces, "while it stands in its field")
    program.click("AuthenticateSubmit")
    program.wait_for_window("UnlockingWindow")
    expect_equal("the drive's state", drive.requests.state(), vendor.UNLOCKED)
    expect_no_trace(traces, "after log-in")


@scenario
def a_screen_reader_hears_dots_and_nothing_of_a_password_stays(ring):
    ring.set_up_drive()
    reader = ScreenReader(ring)
    program = flows.open_log_in(ring)
    processes = [program.process_id, *reader.services()]
    secrets = (flows.FIRST, vendor.digest(flows.FIRST))
    all_traces = [Traces(process, *secrets) for process in processes]
    program.type_secretly("AuthenticateTextField", flows.FIRST)
    expect_a_trace(all_traces[0], "while it stands in its field")
    wait_for("each key was heard", lambda: len(reader.typed()) >= len(flows.FIRST))
    expect_equal("what was heard of them", set("".join(reader.typed())), {"●"})
    program.click("AuthenticateSubmit")
    program.wait_for_window("UnlockingWindow")
    for traces in all_traces:
        expect_no_trace(traces, "after log-in")


@scenario
def a_pasted_password_leaves_no_trace(ring):
    drive = ring.set_up_drive()
    program = flows.open_log_in(ring)
    traces = Traces(program.process_id, flows.FIRST, vendor.digest(flows.FIRST))
    offer(ring, "clipboard", flows.FIRST + "\n")
    program.press("Ctrl+V")
    wait_for("it is in its field, without the line break",
             lambda: program.text("AuthenticateTextField") == "●" * len(flows.FIRST))
    program.click("AuthenticateSubmit")
    program.wait_for_window("UnlockingWindow")
    expect_equal("the drive's state", drive.requests.state(), vendor.UNLOCKED)
    expect_no_trace(traces, "after log-in")


def offer(ring, selection, text):
    """As another program does in which something was copied or selected."""
    status, output = ring.desktop.run(
        ["sh", "-c", 'printf %s "$1" | xclip -selection "$2" >/dev/null 2>&1', "sh", text,
         selection])
    expect(f"something is in the {selection} {output}".strip(), status == 0)


@scenario
def no_key_takes_a_password_out_of_its_field(ring):
    ring.set_up_drive()
    program = flows.open_log_in(ring)
    selections = ("clipboard", "primary")
    for selection in selections:
        offer(ring, selection, "before")
    program.type_secretly("AuthenticateTextField", flows.FIRST)
    for key in ("Shift+Home", "Ctrl+C", "Ctrl+X", "Ctrl+Ins", "Ctrl+A", "Ctrl+C", "Ctrl+K",
                "Ctrl+A", "Ctrl+U", "Ctrl+A", "Del"):
        program.press(key)
    wait_for("the keys have arrived", lambda: program.text("AuthenticateTextField") == "")
    for selection in selections:
        _, output = ring.desktop.run(["xclip", "-o", "-selection", selection])
        expect_equal(f"what is in the {selection}", output, "before")


@scenario
def changed_passwords_leave_no_digest(ring):
    drive = ring.set_up_drive()
    program = flows.log_in_to_settings(ring, drive)
    traces = Traces(program.process_id, vendor.digest("not " + flows.FIRST), vendor.digest(NEW))
    program.click("PasswordSettingsButton")
    program.wait_for_window("PasswordChangeWindow")
    program.type_secretly("PC_Current1stPasswordText", "not " + flows.FIRST)
    program.type_secretly("PC_New1stPasswordText", NEW)
    program.type_secretly("PC_AgainNew1stPasswordText", NEW)
    program.click("PC_OKButton")
    wait_for("the dialog is closed", lambda: program.look("PasswordChangeWindow") is None)
    program.click("MainSettingsOKButton")
    program.answer_alert("IDS_ERR_CURRENT_1ST_PASSWORD_INVALID")
    program.wait_for_enabled("MainSettingsOKButton")
    expect_equal("what was sent", drive.logged_writes(), [0xB3, 0xB1])
    expect_no_trace(traces, "after a refused change")


@scenario
def a_key_by_hand_leaves_no_trace(ring):
    drive = ring.drive()
    program = set_up.start_on_new_drive(ring)
    traces = Traces(program.process_id, KEY, bytes.fromhex(KEY), NEW, vendor.digest(NEW))
    set_up.choose_areas(program, [48, 0, 0], secure=1)
    program.switch("EncryptionKeyManualCell", True)
    enter_key(program, "EncryptionKeyCancelButton")
    expect_no_trace(traces, "after its dialog was cancelled")

    enter_key(program, "EncryptionKeyOKButton")
    program.click("PasswordSettingsButton")
    program.wait_for_window("PasswordSettingsWindow")
    program.type_secretly("PS_1stPasswordText", NEW)
    program.type_secretly("PS_Again1stPasswordText", NEW)
    program.click("PS_OKButton")
    wait_for("the dialog is closed", lambda: program.look("PasswordSettingsWindow") is None)
    program.click("MainSettingsOKButton")
    set_up.wait_for_completion(program)
    expect_equal("what was sent", drive.logged_writes(),
                 [0xC4, 0xB0, 0xB1, 0xBC, 0xBD, 0xB7, 0xC1])
    expect_no_trace(traces, "after the set-up")
    program.click("ZeltoSettingOKButton")
    program.wait_for_end()


def enter_key(program, button):
    program.click("EncryptionKeyButton")
    program.wait_for_window("EncryptionKeyWindow")
    program.type_secretly("EncryptionKeyText", KEY)
    program.click(button)
    wait_for("the dialog is closed", lambda: program.look("EncryptionKeyWindow") is None)
