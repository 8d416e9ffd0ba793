"""Somebody who hears what is on the screen."""

import os
import re
import subprocess

from ring.checks import wait_for


class ScreenReader:
    """Listens from now on; programs that start later talk to it."""

    def __init__(self, ring):
        self._heard = f"{ring.desktop.runtime}/heard"
        ring.start_as_user(["python3", "/host/ring/listen.py", self._heard])
        wait_for("the screen reader listens", lambda: "RegisterEvent" in self.heard())

    def heard(self):
        if not os.path.exists(self._heard):
            return ""
        with open(self._heard, encoding="utf-8", errors="replace") as messages:
            return messages.read()

    def typed(self):
        """The texts that came into a field or left it, in order."""
        messages = re.split(r"^(?=signal|method)", self.heard(), flags=re.MULTILINE)
        return [text for message in messages if "member=TextChanged" in message
                for text in re.findall(r'variant\s+string "(.*)"', message)]

    @staticmethod
    def services():
        """The processes through which it all goes."""
        found = subprocess.run(["pgrep", "-f", "at-spi|org.a11y"], capture_output=True, text=True,
                               check=True).stdout
        return [int(pid) for pid in found.split()]
