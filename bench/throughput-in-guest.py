#!/usr/bin/python3
"""Measures three storage devices, one after the other and in turns, so that a slow minute of the
host does not fall on one of them alone.

A command on a USB disk is a conversation of threads that wait for each other. Where the scheduler
puts them decides more than what they do: in an emulated machine, waking a processor that has gone
to sleep costs more than the command. So all is measured twice, as the scheduler places it, and with
each device's threads on one processor."""

import glob
import json
import os
import statistics
import subprocess
import sys
import time

sys.path.insert(0, "/host")

from ring import volumes  # noqa: E402
from ring.checks import wait_for  # noqa: E402
from ring.drive import DriveShelf  # noqa: E402

MEGABYTES = 192
ROUNDS = 3
SECONDS = 2
GADGET_SERIAL = "GADGET00"
FOLDER = "/var/tmp/throughput"

# Name, fio's pattern, block size, requests in flight.
WORKLOADS = (
    ("sequential read", "read", "1M", 4),
    ("sequential write", "write", "1M", 4),
    ("4 KiB random read", "randread", "4k", 8),
    ("4 KiB random write", "randwrite", "4k", 8),
)


# What a command passes through, as the kernel names threads.
THREADS = ("usb-storage", "vhci_tx", "vhci_rx", "zelto-virtual-d", "file-storage")


def run(*arguments):
    return subprocess.run(arguments, check=True, capture_output=True, text=True).stdout.strip()


def image(name):
    """Written, not sparse: the first write to a hole costs what later ones do not."""
    path = f"{FOLDER}/{name}"
    run("dd", "if=/dev/zero", f"of={path}", "bs=1M", f"count={MEGABYTES}")
    return path


def our_drive():
    drive = DriveShelf(None).new_drive("/host/results/drive.log", megabytes=MEGABYTES)
    return "/dev/" + wait_for("the drive is there", lambda: volumes.disk(drive.serial, 1))


def gadget():
    """What g_mass_storage is made of, put together by hand: the kernel's packages have only the
    parts."""
    path = image("gadget")
    for module in ("dummy_hcd", "libcomposite", "usb_f_mass_storage"):
        run("modprobe", module)
    root = "/sys/kernel/config/usb_gadget/measured"
    if not os.path.ismount("/sys/kernel/config"):
        run("mount", "-t", "configfs", "configfs", "/sys/kernel/config")
    unit = "functions/mass_storage.0/lun.0"
    for folder in ("", "strings/0x409", "configs/c.1", "functions/mass_storage.0"):
        os.makedirs(f"{root}/{folder}")
    for name, value in (("idVendor", f"0x{volumes.VENDOR}"), ("idProduct", f"0x{volumes.PRODUCT}"),
                        ("strings/0x409/serialnumber", GADGET_SERIAL),
                        (f"{unit}/removable", "1"), (f"{unit}/file", path)):
        with open(f"{root}/{name}", "w", encoding="ascii") as setting:
            setting.write(value)
    os.symlink(f"{root}/functions/mass_storage.0", f"{root}/configs/c.1/mass_storage.0")
    with open(f"{root}/UDC", "w", encoding="ascii") as controller:
        controller.write("dummy_udc.0")
    return "/dev/" + wait_for("the gadget is there", lambda: volumes.disk(GADGET_SERIAL, 1))


def loop():
    run("modprobe", "loop")
    return run("losetup", "--show", "-f", image("loop"))


def measure(device, pattern, block, depth):
    """Megabytes per second and requests per second."""
    report = json.loads(run(
        "fio", "--name=measure", f"--filename={device}", f"--rw={pattern}", f"--bs={block}",
        f"--iodepth={depth}", "--ioengine=libaio", "--direct=1", "--time_based",
        f"--runtime={SECONDS}", f"--size={MEGABYTES - 8}M", "--output-format=json"))
    result = report["jobs"][0]["write" if "write" in pattern else "read"]
    return result["bw_bytes"] / 1e6, result["iops"]


def put_on_one_processor():
    for folder in glob.glob("/proc/[0-9]*"):
        if volumes.read(f"{folder}/comm") in THREADS:
            os.sched_setaffinity(int(os.path.basename(folder)), {0})


def print_table(title, devices):
    print(f"\n{title:20}" + "".join(f"{name:>24}" for name in devices))
    for workload, pattern, block, depth in WORKLOADS:
        taken = {name: [] for name in devices}
        for _ in range(ROUNDS):
            for name, device in devices.items():
                taken[name].append(measure(device, pattern, block, depth))
        cells = []
        for results in taken.values():
            speed, requests = (statistics.median(column) for column in zip(*results))
            cells.append(f"{speed:8.1f} MB/s {requests:6.0f}/s")
        print(f"{workload:20}" + "".join(f"{cell:>24}" for cell in cells), flush=True)


def main():
    os.makedirs(FOLDER)
    run("modprobe", "vhci_hcd")
    devices = {"virtual drive": our_drive(), "storage gadget": gadget(), "loop device": loop()}
    # Every sector of ours written once, as the others' are.
    run("dd", "if=/dev/zero", f"of={devices['virtual drive']}", "bs=1M",
        f"count={MEGABYTES - 1}", "oflag=direct")
    print_table("as scheduled", devices)
    put_on_one_processor()
    print_table("on one processor", devices)
    print(f"\nmedians of {ROUNDS} rounds of {SECONDS} s, {time.strftime('%Y-%m-%d')}")
    return 0


if __name__ == "__main__":
    sys.exit(main())
