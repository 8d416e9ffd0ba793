"""What several scenarios do alike."""

import os
import subprocess

from ring import vendor, volumes
from ring.checks import expect, wait_for
from ring.drive import FIRST_PASSWORD, SECOND_PASSWORD

FIRST, SECOND = FIRST_PASSWORD, SECOND_PASSWORD


def open_log_in(ring):
    """The program, started before a locked drive."""
    return ring.start_program("AuthenticateWindow")


def open_after_loss(ring):
    """The program, started before a drive that is locked for good."""
    program = ring.start_program()
    program.answer_alert("IDS_ERR_ZELTO_DRIVE_LOST")
    program.wait_for_window("MainSettingsWindow")
    return program


def submit_password(program, password):
    program.type("AuthenticateTextField", password)
    program.click("AuthenticateSubmit")


def submit_wrong_password(program, password):
    submit_password(program, password)
    program.answer_alert("IDS_ERR_AUTHENTICATE_FAILED")


def submit_first_of_two(program):
    submit_password(program, FIRST)
    program.wait_for_text("AuthenticateMessage", "IDS_ENTER_2ND_PASSWORD")


def log_in(ring, drive):
    """With the one password; the drive is unlocked then."""
    program = open_log_in(ring)
    submit_password(program, FIRST)
    program.wait_for_window("UnlockingWindow")
    wait_for("the secure unit shows its medium",
             lambda: volumes.has_medium(drive.serial, drive.secure_unit))
    return program


def secure_volume(drive):
    """The name of the secure unit's disk once udev knows the volume on it."""
    disk = volumes.disk(drive.serial, drive.secure_unit)
    wait_for("its volume is recognised", lambda: volumes.file_system(disk) == "vfat")
    return disk


PASSPHRASE = "a word of the volume's own"


def encrypt_secure_volume(drive):
    """Puts a LUKS volume with a file system in it on the secure unit, as an administrator would."""
    disk = volumes.disk(drive.serial, drive.secure_unit)
    # The passphrase need not resist anybody; an emulated machine takes long over each round.
    crypt_setup(["luksFormat", "--batch-mode", "--pbkdf", "pbkdf2", "--pbkdf-force-iterations",
                 "1000", f"/dev/{disk}"])
    crypt_setup(["open", f"/dev/{disk}", "fresh"])
    subprocess.run(["mkfs.vfat", "-n", "HIDDEN", "/dev/mapper/fresh"], check=True,
                   stdout=subprocess.DEVNULL)
    subprocess.run(["udevadm", "settle"], check=True)
    subprocess.run(["cryptsetup", "close", "fresh"], check=True)


def crypt_setup(arguments):
    subprocess.run(["cryptsetup", "--key-file", "-", *arguments], input=PASSPHRASE, text=True,
                   check=True)


def open_encrypted_volume(ring, drive):
    """As the user, through the disk service; the name of the clear text's device."""
    disk = volumes.disk(drive.serial, drive.secure_unit)
    wait_for("the encrypted volume is recognised",
             lambda: volumes.file_system(disk) == "crypto_LUKS")
    passphrase = f"{ring.desktop.runtime}/passphrase"
    with open(passphrase, "w", encoding="ascii") as file:
        file.write(PASSPHRASE)
    os.chmod(passphrase, 0o644)

    def opened():
        # The disk service hears of a new volume a while after udev does.
        if not volumes.holders(disk):
            ring.desktop.run(["udisksctl", "unlock", "--no-user-interaction", "-b", f"/dev/{disk}",
                              "--key-file", passphrase])
        return volumes.holders(disk)

    clear_text = wait_for("the encrypted volume is open", opened)[0]
    wait_for("the volume in it is recognised", lambda: volumes.file_system(clear_text) == "vfat")
    return clear_text


def log_in_to_settings(ring, drive):
    program = log_in(ring, drive)
    program.click("UnlockingSetup")
    program.wait_for_window("MainSettingsWindow")
    return program


def log_off(program, drive):
    program.click("UnlockingLogOff")
    program.wait_for_end()
    expect_locked(drive)


def expect_locked(drive):
    expect("the drive is locked", drive.requests.state() == vendor.LOCKED)
    wait_for("the secure unit has no medium",
             lambda: not volumes.has_medium(drive.serial, drive.secure_unit))


def write_file(ring, folder, name, content):
    """As the user, not as root."""
    status, output = ring.desktop.run(
        ["sh", "-c", 'printf %s "$2" >"$1" && sync "$1"', "sh", os.path.join(folder, name),
         content])
    expect(f"the user can write {name} {output}".strip(), status == 0)


def read_file(folder, name):
    with open(os.path.join(folder, name), encoding="utf-8") as file:
        return file.read()
