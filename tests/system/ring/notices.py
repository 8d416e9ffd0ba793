"""The notices on the user's desktop."""

import json
import os

from ring.checks import wait_for

NORMAL, CRITICAL = 1, 2


class Notices:
    """Of the utility, from now on. On a desktop that has no service which shows them there is one
    then, which writes them down; elsewhere it is overheard what the service is given."""

    def __init__(self, ring):
        self._shown = f"{ring.desktop.runtime}/notices"
        if os.path.exists(self._shown):
            os.unlink(self._shown)
        script = "overhear_notices" if ring.desktop.shows_notices else "show_notices"
        ring.start_as_user(["python3", f"/host/ring/{script}.py", self._shown])
        wait_for("the desktop shows notices", lambda: os.path.exists(self._shown))

    def shown(self):
        """In order, as the service got them."""
        with open(self._shown, encoding="utf-8") as lines:
            notices = [json.loads(line) for line in lines]
        return [notice for notice in notices if notice["program"] == "ZELTO DISK"]
