"""The user: an ordinary account with an active session at the machine's own screen."""

import json
import os
import pwd
import re
import shutil
import subprocess
import threading

from ring import volumes
from ring.checks import POLL_SECONDS, wait_for

USER = "alice"
DISPLAY = ":0"
SCREEN = "1280x960x24"


class Desktop:
    """The session's leader is the X server, as behind a display manager; what is started here
    becomes part of the session, so that logind, polkit and udev treat it as the user's. Nothing else
    runs in it."""

    leader = ["Xvfb", DISPLAY, "-screen", "0", SCREEN, "-nolisten", "tcp"]
    # What a program has to know of the screen, and of what kind it is.
    display = {"DISPLAY": DISPLAY, "XDG_SESSION_TYPE": "x11"}
    shows_notices = False
    screen_socket = "/tmp/.X11-unix/X" + DISPLAY.lstrip(":")

    def __init__(self):
        account = pwd.getpwnam(USER)
        self.name = USER
        self.uid, self.gid, self.home = account.pw_uid, account.pw_gid, account.pw_dir
        self.runtime = f"/run/user/{self.uid}"
        self._scope = None
        self._stop_mounting = None

    def log_in(self):
        variables = {"XDG_SEAT": "seat0", "XDG_VTNR": "1", **self.leader_variables()}
        subprocess.run(
            ["systemd-run", "--quiet", "--collect", "--unit=session", f"--uid={USER}",
             "-p", "PAMName=login", "-p", "TTYPath=/dev/tty1", "-p", "StandardInput=tty-force",
             "-p", "StandardOutput=null", "-p", "StandardError=null",
             *(f"--setenv={name}={value}" for name, value in variables.items()), *self.leader],
            check=True)
        session = wait_for("the user has a session", self._session)
        wait_for("the session is active", lambda: self._property(session, "Active") == "yes")
        wait_for("its screen is there", lambda: os.path.exists(self.screen_socket))
        self._scope = self._property(session, "Scope")

    def leader_variables(self):
        return {"XDG_SESSION_TYPE": self.display["XDG_SESSION_TYPE"]}

    @staticmethod
    def _session():
        listed = subprocess.run(["loginctl", "list-sessions", "--no-legend"],
                                capture_output=True, text=True, check=True).stdout.split("\n")
        # Not the one of the user's service manager.
        return next((line.split()[0] for line in listed if f" {USER} seat0 " in line), None)

    @staticmethod
    def _property(session, name):
        return subprocess.run(["loginctl", "show-session", session, "-P", name],
                              capture_output=True, text=True, check=True).stdout.strip()

    def start(self, arguments, environment=None, **options):
        """Starts a program as the user, in the session."""
        variables = {
            "HOME": self.home, "USER": USER, "LOGNAME": USER, "SHELL": "/bin/bash",
            "PATH": "/usr/local/bin:/usr/bin:/bin", "LANG": "C.UTF-8",
            "XDG_RUNTIME_DIR": self.runtime,
            "DBUS_SESSION_BUS_ADDRESS": f"unix:path={self.runtime}/bus",
            **self.display, **(environment or {}),
        }
        return subprocess.Popen(arguments, env=variables, cwd=options.pop("cwd", self.home),
                                preexec_fn=self._become_user, stdin=subprocess.DEVNULL, **options)

    def _become_user(self):
        scope = f"/sys/fs/cgroup/user.slice/user-{self.uid}.slice/{self._scope}/cgroup.procs"
        with open(scope, "w", encoding="ascii") as processes:
            processes.write(str(os.getpid()))
        os.initgroups(USER, self.gid)
        os.setgid(self.gid)
        os.setuid(self.uid)
        os.setsid()

    def run(self, arguments, **options):
        """Runs a tool as the user; its status and what it said."""
        tool = self.start(arguments, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True,
                          **options)
        output, _ = tool.communicate()
        return tool.returncode, output.strip()

    def front_window(self):
        """The title of the window that is above all others."""
        _, tree = self.run(["xwininfo", "-root", "-tree"])
        titles = re.findall(r'^ +0x[0-9a-f]+ "(.*)": \(.*\)  [0-9]{3}', tree, flags=re.MULTILINE)
        return titles[0] if titles else ""

    @staticmethod
    def take_picture(program, file):
        """Of the whole screen; whether there is one now."""
        return "error" not in program.ask("picture", file=file)

    @staticmethod
    def inhibitors(program):
        """What a program keeps the computer from, and how strictly, as the login service has it."""
        answer = subprocess.run(
            ["busctl", "--json=short", "call", "org.freedesktop.login1", "/org/freedesktop/login1",
             "org.freedesktop.login1.Manager", "ListInhibitors"],
            capture_output=True, text=True, check=True).stdout
        return [(what, mode) for what, _, _, mode, _, pid in json.loads(answer)["data"][0]
                if pid == program.process_id]

    def mount(self, device):
        """Mounts a volume as the file manager does; where it is then."""
        def mounted():
            # The disk service hears of a new volume a while after the kernel does.
            if not volumes.mount_point(device):
                self.run(["udisksctl", "mount", "--no-user-interaction", "-b", f"/dev/{device}"])
            return volumes.mount_point(device)

        return wait_for(f"{device} is mounted", mounted)

    def unmount(self, device):
        def unmounted():
            if volumes.mount_point(device):
                self.run(["udisksctl", "unmount", "--no-user-interaction", "-b", f"/dev/{device}"])
            return not volumes.mount_point(device)

        wait_for(f"{device} is not mounted", unmounted)

    def format_fat(self, device, label):
        """A fresh FAT volume on a whole disk or partition, as the system's disk program makes it."""
        return self.run(["busctl", "call", "--timeout=300", "org.freedesktop.UDisks2",
                         f"/org/freedesktop/UDisks2/block_devices/{device}",
                         "org.freedesktop.UDisks2.Block", "Format", "sa{sv}", "vfat",
                         "1", "label", "s", label])

    def mount_what_appears(self):
        """From now on this desktop mounts every new volume by itself, as most do."""
        self._stop_mounting = threading.Event()
        threading.Thread(target=self._mount_new_volumes, args=(self._stop_mounting,),
                         daemon=True).start()

    def leave_volumes_alone(self):
        if self._stop_mounting is not None:
            self._stop_mounting.set()
            self._stop_mounting = None

    def _mount_new_volumes(self, stop):
        seen = set(volumes.removable_volumes())
        while not stop.wait(POLL_SECONDS):
            now = set(volumes.removable_volumes())
            seen &= now
            for device in now - seen:
                status, _ = self.run(["udisksctl", "mount", "--no-user-interaction",
                                      "-b", f"/dev/{device}"])
                if status == 0:
                    seen.add(device)

    def remove_leftovers(self):
        """What a scenario left in the user's home folder."""
        shutil.rmtree(f"{self.home}/Applications", ignore_errors=True)
