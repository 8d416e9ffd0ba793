"""Started as the user: writes down what the desktop's own notification service is given, a line of
JSON each."""

import json
import sys

import dbus
import dbus.bus
import dbus.mainloop.glib
from gi.repository import GLib

INTERFACE = "org.freedesktop.Notifications"


def hear(_connection, message):
    if message.is_method_call(INTERFACE, "Notify"):
        program, _, _, title, text, _, hints, limit = message.get_args_list()
        with open(sys.argv[1], "a", encoding="utf-8") as heard:
            json.dump({"program": program, "title": title, "text": text,
                       "urgency": int(hints.get("urgency", 1)), "limit": limit}, heard)
            heard.write("\n")


dbus.mainloop.glib.DBusGMainLoop(set_as_default=True)
bus = dbus.bus.BusConnection(dbus.bus.BusConnection.TYPE_SESSION)
bus.add_message_filter(hear)
bus.call_blocking(dbus.BUS_DAEMON_NAME, dbus.BUS_DAEMON_PATH, "org.freedesktop.DBus.Monitoring",
                  "BecomeMonitor", "asu", ([f"interface='{INTERFACE}'"], 0))
open(sys.argv[1], "w", encoding="utf-8").close()
GLib.MainLoop().run()
