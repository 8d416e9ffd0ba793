"""What the measurements of the program in use share: the release build, and a desktop on which nothing
else runs."""

import contextlib
import os
import pathlib
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parent.parent
BUS = """<busconfig>
  <listen>unix:dir={folder}</listen>
  <policy context="default"><allow send_destination="*"/><allow receive_sender="*"/><allow own="*"/></policy>
</busconfig>
"""


@contextlib.contextmanager
def server(command):
    """A server that says on its first line where it listens."""
    reader, writer = os.pipe()
    process = subprocess.Popen([word.format(descriptor=writer) for word in command],
                               pass_fds=[writer], stderr=subprocess.DEVNULL)
    os.close(writer)
    try:
        with open(reader, encoding="utf-8") as answer:
            place = answer.readline().strip()
            if not place:
                sys.exit(f"first-window: {command[0]} does not start")
            yield place
    finally:
        process.terminate()
        process.wait()


@contextlib.contextmanager
def desktop():
    """The environment of a desktop on which nothing else runs."""
    with contextlib.ExitStack() as stack:
        folder = stack.enter_context(tempfile.TemporaryDirectory())
        config = pathlib.Path(folder, "bus.conf")
        config.write_text(BUS.format(folder=folder), encoding="utf-8")
        display = stack.enter_context(server(
            ["Xvfb", "-displayfd", "{descriptor}", "-screen", "0", "1280x1024x24",
             "-nolisten", "tcp", "-noreset"]))
        bus = stack.enter_context(server(
            ["dbus-daemon", "--nofork", f"--config-file={config}",
             "--print-address={descriptor}"]))
        yield {"PATH": os.environ["PATH"], "HOME": folder, "XDG_RUNTIME_DIR": folder,
               "DISPLAY": f":{display}", "QT_QPA_PLATFORM": "xcb", "LC_ALL": "C.UTF-8",
               "DBUS_SESSION_BUS_ADDRESS": bus, "DBUS_SYSTEM_BUS_ADDRESS": bus}


def build(*targets):
    """The folder with these programs of the release build."""
    subprocess.run([ROOT / "packaging/install-packages", "build", "bench"], check=True)
    for command in (["cmake", "--preset", "release"],
                    ["cmake", "--build", "--preset", "release", "--target", *targets]):
        subprocess.run(command, cwd=ROOT, check=True, stdout=subprocess.DEVNULL)
    return ROOT / "build/release/bin"
