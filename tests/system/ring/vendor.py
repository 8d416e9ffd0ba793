"""The drive's vendor requests, sent past the utility: to prepare a drive, and to check it.

Written from the drive's tables, not from the utility's code, so that both can't be wrong alike."""

import array
import ctypes
import fcntl
import hashlib
import os
import struct

from ring import volumes
from ring.checks import wait_for

USBDEVFS_CONTROL = 0xC0185500  # _IOWR('U', 0, struct usbdevfs_ctrltransfer)

LOCKED, PENDING, UNLOCKED, FULLY_LOCKED, NO_PASSWORD = 2, 3, 4, 5, 0
TOOL_SECTORS = 40960


class Requests:
    def __init__(self, serial):
        self._serial = serial

    def _transfer(self, request_type, request, value, index, data):
        buffer = array.array("B", data)
        address, _ = buffer.buffer_info()
        transfer = struct.pack("@BBHHHI P", request_type, request, value, index, len(data), 5000,
                               address if data else 0)
        node = os.open(volumes.usb_node(self._serial), os.O_RDWR)
        try:
            count = fcntl.ioctl(node, USBDEVFS_CONTROL, ctypes.create_string_buffer(transfer))
        finally:
            os.close(node)
        return buffer.tobytes()[:count]

    def read(self, request, length, value=0, index=0):
        return self._transfer(0xC0, request, value, index, bytes(length))

    def write(self, request, data=b"", value=0, index=0):
        self._transfer(0x40, request, value, index, data)

    # What the drive says.

    def security(self):
        return self.read(0xC0, 36)[33]

    def state(self):
        return self.security() & 7

    def time_status(self):
        return self.read(0xBA, 28)

    def clock_is_valid(self):
        return not self.time_status()[0] & 0x40

    def erase_period(self):
        return struct.unpack(">I", self.time_status()[22:26])[0]

    def idle_period(self):
        return struct.unpack(">H", self.time_status()[26:28])[0]

    def shows_remaining_time(self):
        return self.read(0xB6, 1, index=4095)[0] & 1

    def areas(self):
        """Type and number of sectors of each."""
        table = self.read(0xC2, 256)
        count = (struct.unpack(">H", table[:2])[0] - 10) // 20
        found = []
        for entry in range(12, 12 + 20 * count, 20):
            found.append((table[entry], struct.unpack(">Q", table[entry + 12:entry + 20])[0]))
        return found

    # What it is told.

    def set_clock(self, moment):
        self.write(0xBB, struct.pack(">HBBBBB", moment.year, moment.month, moment.day,
                                     moment.hour, moment.minute, moment.second))

    def set_erase_period(self, seconds):
        self.write(0xBC, value=seconds & 0xFFFF, index=seconds >> 16)

    def set_idle_period(self, seconds):
        self.write(0xBD, value=seconds)

    def authenticate(self, password, first=True):
        self.write(0xB3, bytes([int(first), 0]) + digest(password))

    def log_out(self):
        self.write(0xB4)

    def set_up(self, areas, first=None, second=None, trials=0):
        """First-time set-up of the given areas, (is secure, MB) each, and the tool area; the drive
        does not come back before it is asked to reconnect."""
        entries, start = b"", 0
        for secure, size in areas + [(None, TOOL_SECTORS // 2048)]:
            kind, flags = (0x40, 0xC1) if secure else (0, 0x41)
            entries += struct.pack(">BBHQQ", kind, flags, 0, start, size * 2048)
            start += size * 2048
        self.write(0xC4, entries)
        if first is not None:
            self.write(0xB0, b"TKER" + bytes([0x03, 0x80]) + bytes(66), value=2)
            if second is not None:
                self._set_password(0x02, digest(second), trials)
                self._set_password(0x0B, digest(first) + digest(second), 0)
            else:
                self._set_password(0x02, digest(first), 0)

    def _set_password(self, flags, digests, trials):
        record = bytes([flags, 0, 1, 0, trials, 0, 0, 0]) + digests
        self.write(0xB1, record.ljust(72, b"\0"), value=2)

    def reconnect(self):
        before = volumes.usb_device(self._serial)
        number = volumes.read(f"{before}/devnum")
        self.write(0xC1, value=1, index=1)

        def is_back():
            folder = volumes.usb_device(self._serial)
            # Empty while it is just leaving.
            return folder is not None and volumes.read(f"{folder}/devnum") not in ("", number)

        wait_for("the drive has left the bus and come back", is_back)


def digest(password):
    return hashlib.sha256(password.encode("ascii")).digest()
