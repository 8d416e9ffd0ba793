"""Started as the user: asks for every event there is, as a screen reader does, and writes down
every message on the bus of the assistive technologies."""

import os
import subprocess
import sys
import time

import dbus
import dbus.bus

session = dbus.SessionBus()
address = session.call_blocking("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress", "", ())
session.call_blocking("org.a11y.Bus", "/org/a11y/bus", "org.freedesktop.DBus.Properties", "Set",
                      "ssv", ("org.a11y.Status", "IsEnabled", dbus.Boolean(True)))
# Stays connected: who leaves hears nothing any more.
reader = dbus.bus.BusConnection(address)
with open(sys.argv[1], "w", encoding="utf-8") as heard:
    monitor = subprocess.Popen(["dbus-monitor", "--address", address], stdout=heard)
# It hears what is said once the bus has told it so, not before.
while not os.path.getsize(sys.argv[1]):
    time.sleep(0.05)
for events in ("object:", "window:", "focus:"):
    reader.call_blocking("org.a11y.atspi.Registry", "/org/a11y/atspi/registry",
                         "org.a11y.atspi.Registry", "RegisterEvent", "sass",
                         (events, dbus.Array([], signature="s"), ""))
monitor.wait()
