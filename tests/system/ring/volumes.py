"""Disks, partitions and mounts, as the kernel tells them."""

import glob
import os
import re
import subprocess

from ring.checks import wait_for

VENDOR, PRODUCT = "07f7", "0135"


def read(path):
    try:
        with open(path, encoding="utf-8") as file:
            return file.read().strip()
    except OSError:
        return ""


def usb_device(serial):
    """The drive's folder in sysfs; None while it is not on the bus."""
    for folder in glob.glob("/sys/bus/usb/devices/*"):
        if (read(f"{folder}/idVendor"), read(f"{folder}/idProduct")) == (VENDOR, PRODUCT) \
                and read(f"{folder}/serial") == serial:
            return folder
    return None


def usb_node(serial):
    folder = usb_device(serial)
    if folder is None:
        return None
    return f"/dev/bus/usb/{int(read(folder + '/busnum')):03}/{int(read(folder + '/devnum')):03}"


def disk(serial, number):
    """The kernel's name for unit `number`, counted from 1, such as "sdb". Letters say nothing:
    the units are probed side by side."""
    folder = usb_device(serial)
    found = glob.glob(f"{folder}/*/host*/target*/*:*:*:{number - 1}/block/*") if folder else []
    return os.path.basename(found[0]) if found else None


def sectors(device):
    return int(read(f"/sys/class/block/{device}/size") or 0)


def has_medium(serial, number):
    device = disk(serial, number)
    return device is not None and sectors(device) > 0


def partition(serial, number):
    """The first partition of a unit, such as "sdb1"."""
    device = disk(serial, number)
    return f"{device}1" if device and os.path.exists(f"/sys/class/block/{device}1") else None


def make_partition(serial, number):
    """One over the whole unit, for a FAT volume; its name."""
    subprocess.run(["sfdisk", "--quiet", f"/dev/{disk(serial, number)}"],
                   input="label: dos\n2048,,0e\n", text=True, check=True)
    made = wait_for("the partition is there", lambda: partition(serial, number))
    # Before it has seen the partition, udev does not notice that something is written to it.
    subprocess.run(["udevadm", "settle"], check=True)
    return made


def mounts():
    """Device name to mount point."""
    found = {}
    for line in read("/proc/self/mountinfo").split("\n"):
        fields = line.split()
        source = fields[fields.index("-") + 2]
        if source.startswith("/dev/"):
            point = re.sub(r"\\(\d{3})", lambda octal: chr(int(octal[1], 8)), fields[4])
            # A mapping is mounted by a link that says what it is for.
            found[os.path.basename(os.path.realpath(source))] = point
    return found


def mount_point(device):
    return mounts().get(device)


def holders(device):
    """What is open on top of it: the clear text of an encrypted volume, such as "dm-0"."""
    folder = f"/sys/class/block/{device}/holders"
    return sorted(os.listdir(folder)) if os.path.isdir(folder) else []


def udev_property(device, name):
    number = read(f"/sys/class/block/{device}/dev")
    properties = read(f"/run/udev/data/b{number}")
    found = re.search(rf"^E:{name}=(.*)$", properties, re.MULTILINE)
    return found[1] if found else ""


def file_system(device):
    """What udev found on it, such as "vfat"."""
    return udev_property(device, "ID_FS_TYPE")


def removable_volumes():
    """Everything with a file system on a removable disk that has a medium."""
    found = []
    for path in glob.glob("/sys/class/block/sd*"):
        device = os.path.basename(path)
        whole = re.sub(r"\d+$", "", device)
        if read(f"/sys/class/block/{whole}/removable") == "1" and sectors(device) > 0 \
                and file_system(device):
            found.append(device)
    return found
