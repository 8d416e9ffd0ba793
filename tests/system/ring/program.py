"""The utility, used as a person would: by its windows."""

import glob
import json
import os
import pwd
import re
import signal
import socket
import subprocess
import xml.etree.ElementTree

from ring.checks import Failure, expect_equal, say, wait_for
from ring.desktop import USER

PROGRAM = "/usr/bin/zelto"
BUNDLE = "/usr/lib/zelto/ZeltoAppMac.app"
DRIVER_PLUGINS = "/host/plugins"
TEXTS = "/host/zelto_en.ts"
SOCKETS = f"/run/user/{pwd.getpwnam(USER).pw_uid}/zelto-driver"
# With these a program can be looked at and used from here.
DRIVER_ENVIRONMENT = {"QT_PLUGIN_PATH": DRIVER_PLUGINS,
                      "QT_QPA_GENERIC_PLUGINS": f"zeltotestdriver:{SOCKETS}"}


def texts():
    """The message texts by their keys."""
    table = {}
    for message in xml.etree.ElementTree.parse(TEXTS).iter("message"):
        table[message.get("id")] = message.findtext("source")
    return table


class Program:
    def __init__(self, desktop, name="zelto"):
        self._desktop = desktop
        self.log = f"/host/results/{name}.log"
        self._connection = None
        self._lines = None
        self._process = None
        self._texts = texts()

    @property
    def process_id(self):
        return self._process.pid

    # Its life.

    def start(self, path=PROGRAM, environment=None):
        log = open(self.log, "ab")
        self._process = self._desktop.start(
            [path], stdout=log, stderr=log,
            environment={**DRIVER_ENVIRONMENT, "QT_LOGGING_RULES": "zelto.disks=true",
                         **(environment or {})})
        self.connect(self._process.pid)

    def connect(self, pid):
        """To an instance that runs already."""
        path = f"{SOCKETS}/{pid}"
        self._connection = wait_for("the program is up", lambda: self._try_to_connect(path))
        self._lines = self._connection.makefile("r", encoding="utf-8")

    @staticmethod
    def _try_to_connect(path):
        connection = socket.socket(socket.AF_UNIX)
        try:
            connection.connect(path)
            return connection
        except OSError:
            connection.close()
            return None

    def has_ended(self):
        return self._process.poll() is not None

    def wait_for_end(self):
        wait_for("the program has ended", self.has_ended)
        expect_equal("its exit status", self._process.returncode, 0)

    def kill(self):
        if self._process is not None and self._process.poll() is None:
            os.kill(self._process.pid, signal.SIGKILL)
            self._process.wait()
        for path in glob.glob(f"{SOCKETS}/*"):
            os.unlink(path)

    # What is on the screen.

    def ask(self, do, **request):
        request["do"] = do
        try:
            self._connection.sendall((json.dumps(request) + "\n").encode())
            line = self._lines.readline()
        except OSError as error:
            raise Failure(f"the program does not answer: {error}") from error
        if not line:
            raise Failure("the program has ended")
        return json.loads(line)

    def windows(self):
        return self.ask("windows")["windows"]

    def window_names(self):
        return {window["name"] for window in self.windows()}

    def look(self, widget):
        """A control's state; None while no visible window has it."""
        answer = self.ask("look", widget=widget)
        return None if "error" in answer else answer

    def text(self, widget):
        seen = self.look(widget)
        return seen["text"] if seen else None

    def is_enabled(self, widget):
        seen = self.look(widget)
        return seen is not None and seen["enabled"]

    def alert(self):
        return next((window for window in self.windows() if "message" in window), None)

    def picture(self, name):
        file = f"{self._desktop.runtime}/picture.png"
        if self._desktop.take_picture(self, file):
            subprocess.run(["cp", file, f"/host/results/{name}.png"], check=True)

    # What a person does.

    def _wait(self, what, probe):
        """Nobody waits on behind an alert that was not expected."""
        def probe_or_alert():
            if probe():
                return True
            alert = self.alert()
            if alert is not None and not probe():
                raise Failure(f"an alert instead of: {what}\n{alert['message']}")
            return False

        wait_for(what, probe_or_alert)

    def wait_for_window(self, name):
        self._wait(f"the window {name} is open", lambda: name in self.window_names())

    def wait_for_enabled(self, widget):
        self._wait(f"{widget} is enabled", lambda: self.is_enabled(widget))

    def wait_for_text(self, widget, wanted):
        """`wanted` is a key of the message table, or the text itself."""
        wanted = self._texts.get(wanted, wanted)
        self._wait(f"{widget} says {wanted!r}", lambda: self.text(widget) == wanted)

    def click(self, widget):
        self.wait_for_enabled(widget)
        self._do("click", widget=widget)

    def type(self, widget, text):
        self.wait_for_enabled(widget)
        self._do("type", widget=widget, text=text)
        # Whoever looks at a password sees bullets.
        shown = (text, "●" * len(text))
        self._wait(f"{widget} is filled in", lambda: self.text(widget) in shown)

    def type_secretly(self, widget, text):
        """Leaves no copy of the text in the program beside what the program itself makes."""
        self.wait_for_enabled(widget)
        self._do("focus", widget=widget)
        for letter in text:
            self.ask("letter", widget=widget, text=letter)
        self._wait(f"{widget} is filled in", lambda: self.text(widget) == "●" * len(text))

    def press(self, key):
        """In the window that has the keyboard."""
        self._do("press", key=key)

    def tab_to(self, widget):
        """Moves the focus there as a person without a mouse does."""
        def focused():
            if not self.has_focus(widget):
                self.press("Tab")
            return self.has_focus(widget)

        wait_for(f"{widget} has the focus", focused)

    def has_focus(self, widget):
        seen = self.look(widget)
        return seen is not None and seen["focus"]

    def switch(self, widget, on):
        """A check box or radio button."""
        self.wait_for_enabled(widget)
        if self.look(widget)["checked"] != on:
            self._do("click", widget=widget)
            wait_for(f"{widget} is {'on' if on else 'off'}",
                     lambda: self.look(widget)["checked"] == on)

    def choose(self, widget, index):
        self.wait_for_enabled(widget)
        self._do("choose", widget=widget, index=index)
        wait_for(f"{widget} is at {index}", lambda: self.look(widget)["index"] == index)

    def answer_alert(self, key, button="OK"):
        """Waits for the alert of that message and presses a button of it, both named by their
        keys; returns what else it said."""
        pattern = message_pattern(self._texts[key])
        alert = wait_for(f"an alert: {key}", self._alert_or_end)
        if not re.fullmatch(pattern, alert["message"], re.DOTALL):
            raise Failure(f"the alert says {alert['message']!r} instead of {key}")
        expect_equal("its title", alert["text"], self._texts["IDS_APP_TITLE"])
        self._do("answer", button=self._texts[button])
        return alert["detail"]

    def _alert_or_end(self):
        if self._process is not None and self.has_ended():
            raise Failure("the program has ended instead of showing an alert")
        return self.alert()

    def _do(self, verb, **request):
        """The program takes no input while it works, so a refusal may be a matter of time."""
        refusals = []

        def accepted():
            answer = self.ask(verb, **request)
            if "error" in answer:
                refusals.append(answer["error"])
            return "error" not in answer

        try:
            wait_for(f"{verb} {next(iter(request.values()))}", accepted,
                     patience=30)
        except Failure as failure:
            say(f"refused: {refusals[-1]}")
            raise failure


def message_pattern(text):
    """A message with its arguments left open."""
    return "".join(".*" if part.startswith("%") else re.escape(part)
                   for part in re.split(r"(%L?\d+)", text))
