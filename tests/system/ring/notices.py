"""The notices on the user's desktop."""

import json
import os

from ring.checks import wait_for

NORMAL, CRITICAL = 1, 2


class Notices:
    """Shown from now on."""

    def __init__(self, ring):
        self._shown = f"{ring.desktop.runtime}/notices"
        if os.path.exists(self._shown):
            os.unlink(self._shown)
        ring.start_as_user(["python3", "/host/ring/show_notices.py", self._shown])
        wait_for("the desktop shows notices", lambda: os.path.exists(self._shown))

    def shown(self):
        """In order, as the service got them."""
        with open(self._shown, encoding="utf-8") as lines:
            return [json.loads(line) for line in lines]
