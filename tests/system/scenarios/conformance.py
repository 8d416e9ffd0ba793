"""The storage units before tools that know the SCSI standards."""

import filecmp
import os
import re
import subprocess

from ring import volumes
from ring.checks import expect, expect_equal, say
from ring.runner import scenario

# sg3_utils' exit statuses.
NOT_READY, ILLEGAL_REQUEST, INVALID_OPERATION, OUT_OF_RANGE = 2, 5, 9, 22

# Each is run on a unit with a medium; the status that must come back.
COMMANDS = (
    ("sg_turs", 0),
    ("sg_requests", 0),
    ("sg_inq", 0),
    ("sg_vpd --page=sv", 0),
    ("sg_vpd --page=sn", 0),
    ("sg_vpd --page=di", 0),
    ("sg_luns", 0),
    ("sg_luns --select=2", 0),
    ("sg_readcap", 0),
    ("sg_readcap --long", 0),
    ("sg_modes --all", 0),
    ("sg_modes --all --six", 0),
    ("sg_prevent --prevent=1", 0),
    ("sg_prevent --allow", 0),
    ("sg_verify --lba=0 --count=8", 0),
    ("sg_sync", 0),
    ("sg_senddiag --test", 0),
    ("sg_start --start", 0),
)


# Suites of libiscsi's, which talks to the unit through its generic node, and the tests of each; "*"
# is all of them. Left out are:
# - commands that the units do not know, where it only finds that they say so;
# - BeyondEol: up to 2000 refused commands each, with a stall in every one, which take longer than
#   everything else together: ten seconds on an idle machine, two minutes on a busy one;
# - StartStopUnit.PwrCnd, which wants even the reserved power conditions to be accepted, and
#   PreventAllow.Eject, which wants a medium that is out to be kept from coming in.
LIBISCSI = {
    "Inquiry": "*", "Mandatory": "*", "ModeSense6": "*", "NoMedia": "*", "ReadOnly": "*",
    "TestUnitReady": "*", "ReadCapacity10": "*", "ReadCapacity16": "*",
    "StartStopUnit": "Simple NoLoej", "PreventAllow": "Simple",
    "Read6": "Simple",
    "Read10": "Simple ZeroBlocks ReadProtect DpoFua Async",
    "Read12": "Simple ZeroBlocks ReadProtect DpoFua",
    "Read16": "Simple ZeroBlocks ReadProtect DpoFua",
    "Write10": "Simple ZeroBlocks WriteProtect DpoFua Async",
    "Write12": "Simple ZeroBlocks WriteProtect DpoFua",
    "Write16": "Simple ZeroBlocks WriteProtect DpoFua",
    "Verify10": "Simple ZeroBlocks VerifyProtect Flags Dpo Mismatch MismatchNoCmp",
    "Verify12": "ZeroBlocks VerifyProtect Flags Dpo",
    "Verify16": "ZeroBlocks VerifyProtect Flags Dpo",
}


def status_of(*arguments):
    done = subprocess.run(arguments, capture_output=True, text=True, check=False, timeout=300)
    return done.returncode, done.stdout + done.stderr


@scenario
def the_units_answer_sg3_utils_as_the_standard_says(ring):
    drive = ring.set_up_drive()
    device = "/dev/" + volumes.disk(drive.serial, 1)
    statuses = {command: status_of(*command.split(), device)[0] for command, _ in COMMANDS}
    expect_equal("statuses", statuses, dict(COMMANDS))
    _, inquiry = status_of("sg_inq", device)
    expect("the unit says who it is",
           re.search(r"KESTRIN\b", inquiry) and re.search(r"ZELTO DISK1\b", inquiry))
    disk = f"/sys/class/block/{os.path.basename(device)}/device/scsi_disk"
    expect_equal("the kernel may write past the cache",
                 volumes.read(f"{disk}/{os.listdir(disk)[0]}/FUA"), "1")
    expect_equal("an unknown command",
                 status_of("sg_raw", device, "de", "0", "0", "0", "0", "0")[0], INVALID_OPERATION)
    sectors = volumes.sectors(os.path.basename(device))
    expect("a read behind the last sector is refused",
           status_of("sg_raw", "-r", "512", device, "28", "0", *hexadecimal(sectors, 4), "0", "0",
                     "1", "0")[0] in (OUT_OF_RANGE, ILLEGAL_REQUEST))
    hidden = "/dev/" + volumes.disk(drive.serial, drive.secure_unit)
    expect_equal("a unit without a medium", status_of("sg_turs", hidden)[0], NOT_READY)


def hexadecimal(number, size):
    return [f"{byte:x}" for byte in number.to_bytes(size, "big")]


@scenario
def what_is_written_with_any_size_of_command_is_read_back(ring):
    drive = ring.set_up_drive()
    device = "/dev/" + volumes.disk(drive.serial, 1)
    with open(f"{drive.folder}/written", "wb") as file:
        file.write(os.urandom(64 * 512))
    for size in (6, 10, 12, 16):
        position = size * 100
        status, output = status_of("sg_dd", f"if={drive.folder}/written", f"of={device}",
                                   "bs=512", "count=64", f"seek={position}", "blk_sgio=1",
                                   f"cdbsz={size}")
        if size == 6 and status != 0:
            # READ(6) and WRITE(6) are obsolete for disks of today's sizes.
            say("six-byte commands are not served")
            continue
        expect_equal(f"written with {size}-byte commands {output if status else ''}".strip(),
                     status, 0)
        status, _ = status_of("sg_dd", f"if={device}", f"of={drive.folder}/read", "bs=512",
                              "count=64", f"skip={position}", "blk_sgio=1", f"cdbsz={size}")
        expect_equal("read back", status, 0)
        expect("the same bytes",
               filecmp.cmp(f"{drive.folder}/written", f"{drive.folder}/read", shallow=False))


def generic_node(disk):
    """The unit's other node, and with it the unit to oneself: whoever opens the disk prevents its
    medium from being ejected, and the kernel's polling makes udev do that."""
    for setting, value in (("events_poll_msecs", "0"),
                           # Commands move up to 256 sectors there, and the kernel's limit is 240.
                           ("device/max_sectors", "256")):
        with open(f"/sys/class/block/{disk}/{setting}", "w", encoding="ascii") as file:
            file.write(value)
    subprocess.run(["udevadm", "settle"], check=True)
    return "/dev/" + os.listdir(f"/sys/class/block/{disk}/device/scsi_generic")[0]


def run_libiscsi(device, suite, test):
    """How many tests passed, and what was wrong."""
    status, output = status_of("iscsi-test-cu", "--dataloss", "--fail",
                               f"--test=ALL.{suite}.{test}", device)
    summary = re.search(r"^ +tests +\d+ +\d+ +(\d+) +0 ", output, re.MULTILINE)
    # A command that it takes for unknown would pass as well.
    is_skipped = f"[SKIPPED] {suite.upper()} is not" in output
    if status == 0 and summary and summary[1] != "0" and not is_skipped:
        return int(summary[1]), []
    complaints = re.findall(r"\[(?:FAILED|SKIPPED)\].*", output)
    return 0, [f"{suite}.{test} ended with {status}", *complaints[:5]]


@scenario
def the_units_pass_libiscsis_conformance_suite(ring):
    drive = ring.set_up_drive()
    device = generic_node(volumes.disk(drive.serial, 1))
    passed, complaints = 0, []
    for suite, tests in LIBISCSI.items():
        for test in tests.split():
            count, wrong = run_libiscsi(device, suite, test)
            passed += count
            complaints += wrong
    expect_equal("complaints", complaints, [])
    say(f"{passed} tests passed")
