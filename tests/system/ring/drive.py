"""The drive: zelto-virtual-drive, attached to this kernel as a USB device."""

import datetime
import os
import re
import shutil
import subprocess

from ring import vendor, volumes
from ring.checks import Failure, say, wait_for

PROGRAM = "/host/zelto-virtual-drive"
SHELF = "/var/tmp/drives"
SERIAL = "ZD0123456789ABCD"
UNITS = 4

FIRST_PASSWORD, SECOND_PASSWORD = "correct horse", "battery staple"
# Of a second password.
TRIALS = 2
# The areas of a drive that is set up already: (is secure, MB). The tool area follows.
AREAS = [(False, 16), (True, 48)]


class Drive:
    """One drive in its folder, and the program that is it while it is not on the shelf."""

    def __init__(self, folder, log, serial):
        self.folder, self.serial = folder, serial
        self.image = f"{folder}/drive.image"
        self.requests = vendor.Requests(serial)
        self.secure_unit, self.tool_unit = 2, 3
        self._log = log
        self._log_start = 0
        self._areas = []
        self._process = None

    def take_out(self, megabytes=None):
        """Off the shelf and into the computer; a folder without a drive gets a new one."""
        size = ["--size", f"{megabytes}M", "--serial", self.serial] if megabytes else []
        self._process = subprocess.Popen(
            [PROGRAM, "--drive", self.folder, "--log", self._log, "--attach", *size],
            stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True, bufsize=1)
        self.wait_until_plugged()

    def put_away(self):
        """Out of the computer and onto the shelf."""
        if self._process is not None:
            self._process.terminate()
            self._process.wait(timeout=60)
            self._process = None
            self.wait_until_gone()

    def throw_away(self):
        self.put_away()
        shutil.rmtree(self.folder, ignore_errors=True)

    def _tell(self, verb):
        self._process.stdin.write(verb + "\n")
        answer = self._process.stdout.readline().strip()
        if not answer.startswith("ok"):
            raise Failure(f"the drive answers {verb!r} with {answer!r}")
        say(f"the drive: {verb}")

    def wait_until_plugged(self):
        wait_for("the drive and its units are there",
                 lambda: all(volumes.disk(self.serial, unit) for unit in range(1, UNITS + 1)))

    # What a person does with it.

    def plug(self):
        # Where the drive itself has decided when to go, the computer may not have noticed yet.
        self.wait_until_gone()
        self._tell("plug")
        self.wait_until_plugged()

    def unplug(self):
        self._areas = self.requests.areas()
        self._tell("unplug")
        self.wait_until_gone()

    # What time and accident do to it.

    def advance(self, seconds):
        self._tell(f"advance {seconds}")

    def lose_clock(self):
        self._tell("lose-clock")

    def vanish_at(self, request, obeyed):
        """The plug is pulled at the next request of that code, before or after it is obeyed."""
        self._tell(f"fail 1 {'vanish-after' if obeyed else 'vanish'} {request:02X}")

    def wait_until_gone(self):
        wait_for("the drive has left the bus", lambda: volumes.usb_device(self.serial) is None)

    # What can be seen from outside.

    def start_log(self):
        """What was sent before does not count."""
        self._log_start = os.path.getsize(self._log)

    def logged_writes(self):
        """The codes of the requests towards the drive, in order."""
        with open(self._log, encoding="utf-8") as log:
            log.seek(self._log_start)
            return [int(code, 16) for code in re.findall(r" request out ([0-9A-F]{2}) ", log.read())]

    def area_offset(self, unit):
        """Where an area begins in the image, in bytes; the drive must have been unplugged once."""
        return 512 * sum(sectors for _, sectors in self._areas[:unit - 1])

    def image_contains(self, text):
        return subprocess.run(["grep", "--quiet", "--text", "--fixed-strings", text, self.image],
                              check=False).returncode == 0

    def sectors_written(self, unit):
        """By this computer since the drive was plugged in."""
        counts = volumes.read(f"/sys/class/block/{volumes.disk(self.serial, unit)}/stat").split()
        return int(counts[6]) if len(counts) > 6 else 0

    def wait_for_write(self, unit):
        wait_for(f"unit {unit} is being written", lambda: self.sectors_written(unit) > 0)


class DriveShelf:
    """New drives, and copies of drives that were set up once and put away."""

    def __init__(self, desktop=None):
        self._desktop = desktop
        self._count = 0
        self._prepared = {}

    def _folder(self):
        os.makedirs(SHELF, exist_ok=True)
        self._count += 1
        return f"{SHELF}/{self._count}"

    def new_drive(self, log, serial=SERIAL, megabytes=128):
        drive = Drive(self._folder(), log, serial)
        drive.take_out(megabytes)
        return drive

    def set_up_drive(self, log, serial=SERIAL, two_passwords=False, clock_set=True,
                     erase_period=0, idle_period=0, partitioned=False):
        """Locked, with a normal and a secure volume, the latter on the whole disk or in a partition.
        Periods are in seconds; a second password may be tried twice."""
        key = (serial, two_passwords, partitioned)
        if key not in self._prepared:
            self._prepared[key] = self._prepare(*key)
        drive = Drive(self._folder(), log, serial)
        subprocess.run(["cp", "-r", "--sparse=always", self._prepared[key], drive.folder],
                       check=True)
        drive.take_out()
        if erase_period or idle_period:
            drive.requests.authenticate(FIRST_PASSWORD)
            drive.requests.set_erase_period(erase_period)
            drive.requests.set_idle_period(idle_period)
            drive.requests.log_out()
        if not clock_set:
            drive.lose_clock()
        drive.start_log()
        return drive

    def _prepare(self, serial, two_passwords, partitioned):
        """By the drive's own requests, past the utility; its folder on the shelf."""
        drive = self.new_drive("/host/results/preparations.drive.log", serial, 96)
        try:
            drive.requests.set_clock(datetime.datetime.now(datetime.timezone.utc))
            drive.requests.set_up(AREAS, FIRST_PASSWORD,
                                  SECOND_PASSWORD if two_passwords else None, TRIALS)
            drive.requests.reconnect()
            drive.wait_until_plugged()
            drive.requests.authenticate(FIRST_PASSWORD)
            if two_passwords:
                drive.requests.authenticate(SECOND_PASSWORD, first=False)
            for unit, label in ((1, "SHARED"), (drive.secure_unit, "PRIVATE")):
                wait_for("the unit shows its medium",
                         lambda number=unit: volumes.has_medium(serial, number))
                device = volumes.disk(serial, unit)
                if partitioned and unit == drive.secure_unit:
                    device = volumes.make_partition(serial, unit)
                subprocess.run(["mkfs.vfat", "-I", "-n", label, f"/dev/{device}"], check=True,
                               stdout=subprocess.DEVNULL)
            drive.requests.log_out()
        finally:
            drive.put_away()
        return drive.folder
