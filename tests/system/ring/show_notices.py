"""Started as the user: the desktop's notification service, which writes down what it is given, a line
of JSON each."""

import json
import sys

from gi.repository import Gio, GLib

INTERFACE = """<node><interface name="org.freedesktop.Notifications"><method name="Notify">
<arg type="s" direction="in"/><arg type="u" direction="in"/><arg type="s" direction="in"/>
<arg type="s" direction="in"/><arg type="s" direction="in"/><arg type="as" direction="in"/>
<arg type="a{sv}" direction="in"/><arg type="i" direction="in"/><arg type="u" direction="out"/>
</method></interface></node>"""


def notify(_connection, _sender, _path, _interface, _method, parameters, invocation):
    program, _, _, title, text, _, hints, limit = parameters.unpack()
    with open(sys.argv[1], "a", encoding="utf-8") as shown:
        json.dump({"program": program, "title": title, "text": text,
                   "urgency": hints["urgency"], "limit": limit}, shown)
        shown.write("\n")
    invocation.return_value(GLib.Variant("(u)", (1,)))


def begin(connection, _name):
    connection.register_object("/org/freedesktop/Notifications",
                               Gio.DBusNodeInfo.new_for_xml(INTERFACE).interfaces[0], notify)


def ready(_connection, _name):
    open(sys.argv[1], "w", encoding="utf-8").close()


Gio.bus_own_name(Gio.BusType.SESSION, "org.freedesktop.Notifications", Gio.BusNameOwnerFlags.NONE,
                 begin, ready, None)
GLib.MainLoop().run()
