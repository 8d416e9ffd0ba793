"""What a scenario says about the world: it expects, and it waits for conditions."""

import time

# Far above what anything takes, also on a machine that is busy with something else: a limit that
# is reached is a failure, never a way to let time pass.
PATIENCE_SECONDS = 90
POLL_SECONDS = 0.1


class Failure(Exception):
    """The world is not as the scenario says."""


def say(text):
    print(f"      {text}", flush=True)


def expect(what, condition):
    """Ends the scenario unless the condition holds."""
    if not condition:
        raise Failure(f"not so: {what}")
    say(what)


def expect_equal(what, value, wanted):
    if value != wanted:
        raise Failure(f"{what}: {value!r} instead of {wanted!r}")
    say(f"{what}: {value!r}")


def wait_for(what, probe, patience=PATIENCE_SECONDS):
    """Returns the probe's first true value."""
    limit = time.monotonic() + patience
    while True:
        asked = time.monotonic()
        value = probe()
        if value:
            say(what)
            return value
        now = time.monotonic()
        if now > limit:
            raise Failure(f"still not after {patience} s: {what}")
        # Looking must not slow down what is looked at.
        time.sleep(max(POLL_SECONDS, 2 * (now - asked)))
