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
