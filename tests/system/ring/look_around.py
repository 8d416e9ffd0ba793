"""Started as the user: says what windows there are, a line each, and presses a button of one, both as
assistive technologies do.

    look_around.py [WINDOW BUTTON]

Both are searched for in the names. Ends with 1 when there is no such button."""

import sys

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi  # noqa: E402


def children(accessible):
    found = (accessible.get_child_at_index(i) for i in range(accessible.get_child_count()))
    return [child for child in found if child is not None]


def buttons(accessible):
    for child in children(accessible):
        if child.get_role() == Atspi.Role.PUSH_BUTTON:
            yield child
        yield from buttons(child)


def main(window_name=None, button_name=None):
    for program in children(Atspi.get_desktop(0)):
        for window in children(program):
            print(f"{program.get_name()}: {window.get_name()}")
            if window_name is None or window_name not in window.get_name():
                continue
            for button in buttons(window):
                if button_name in button.get_name():
                    button.get_action_iface().do_action(0)
                    return 0
    return 0 if window_name is None else 1


sys.exit(main(*sys.argv[1:]))
