"""Desktops as people have them: a file manager that mounts what appears, and a notification service."""

import re

from ring.checks import expect, wait_for
from ring.desktop import Desktop
from ring.plug_start import UNIT
from ring.program import DRIVER_ENVIRONMENT

# An emulated machine takes its time over a whole desktop.
START_SECONDS = 300


class RealDesktop(Desktop):
    """Its user has switched on that what is plugged in is mounted, and off that a plug starts the
    utility, but for where a scenario is about that."""

    shows_notices = True
    lets_windows_come_forward = True

    def log_in(self):
        super().log_in()
        # Programs that the desktop starts by itself are looked at and used from here, too.
        variables = [f"{name}={value}" for name, value in DRIVER_ENVIRONMENT.items()]
        wait_for("the user has a service manager",
                 lambda: self.run(["systemctl", "--user", "set-environment", *variables])[0] == 0)
        self.run(["systemctl", "--user", "mask", UNIT])
        self._start_desktop()
        for service in ("org.freedesktop.Notifications", "org.xfce.FileManager"):
            wait_for(f"the desktop has {service}", lambda name=service: self._bus_has(name),
                     patience=START_SECONDS)

    def _bus_has(self, name):
        return self.run(["busctl", "--user", "--no-pager", "status", name])[0] == 0

    def _start_desktop(self):
        raise NotImplementedError

    def _mount_what_appears(self):
        """As its settings dialog does; and what is to be run from there, it asks about."""
        for name in ("automount-drives", "automount-media", "autorun"):
            status, output = self.run(["xfconf-query", "--channel", "thunar-volman", "--create",
                                       "--property", f"/{name}/enabled", "--type", "bool",
                                       "--set", "true"])
            expect(f"{name} is switched on {output}".strip(), status == 0)

    def terminal(self, *command):
        """What opens a terminal in which the command runs, or else a shell."""
        raise NotImplementedError

    def choose_from_menu(self):
        """The utility. Nobody has clicked, so on Wayland no program may come forward for it."""
        status, output = self.run(
            ["gio", "launch", "/usr/share/applications/com.kestrin.zelto.desktop"])
        expect(f"the menu starts it {output}".strip(), status == 0)

    def open_folder(self, ring, folder):
        """In the file manager."""
        ring.start_as_user(["thunar", folder])
        wait_for(f"the file manager shows {folder}", lambda: self.shows_folder(folder))

    def shows_folder(self, folder):
        """Whether a window of the file manager does."""
        name = folder.rpartition("/")[2]
        return any(re.match(f"[Tt]hunar: {name}", window)
                   for window in self._look_around()[1].split("\n"))

    def press_button(self, window, button):
        """Of any program, once it is there."""
        wait_for(f"{button!r} is pressed in {window!r}",
                 lambda: self._look_around(window, button)[0] == 0)

    def _look_around(self, *button):
        return self.run(["python3", "/host/ring/look_around.py", *button])


class XfceDesktop(RealDesktop):
    """A desktop environment on X11."""

    def terminal(self, *command):
        return ["xfce4-terminal", "--disable-server", *(["-x", *command] if command else [])]

    def _start_desktop(self):
        self._mount_what_appears()
        with open("/host/results/desktop.log", "ab") as log:
            self.start(["/etc/X11/Xsession", "startxfce4"], stdout=log, stderr=log)


class WaylandDesktop(RealDesktop):
    """A small compositor, and what its user has it start."""

    leader = ["labwc"]
    display = {"WAYLAND_DISPLAY": "wayland-0", "XDG_SESSION_TYPE": "wayland",
               "XDG_CURRENT_DESKTOP": "labwc:wlroots"}
    lets_windows_come_forward = False

    def __init__(self):
        super().__init__()
        self.screen_socket = f"{self.runtime}/wayland-0"

    def leader_variables(self):
        # It draws, but there is nothing to show it on, and nothing to type on.
        return {**self.display, "WLR_BACKENDS": "headless", "WLR_RENDERER": "pixman"}

    def _start_desktop(self):
        self._mount_what_appears()
        log = open("/host/results/desktop.log", "ab")
        self.run(["dbus-update-activation-environment", "--systemd", *self.display])
        for program in (["swaybg", "--color", "#3a5f7d"], ["mako"], ["thunar", "--daemon"]):
            self.start(program, stdout=log, stderr=log)

    def terminal(self, *command):
        return ["foot", *command]

    def take_picture(self, program, file):
        # A program sees nothing of the screen but its own windows.
        return self.run(["grim", file])[0] == 0


REAL_DESKTOPS = {"xfce": XfceDesktop, "wayland": WaylandDesktop}
