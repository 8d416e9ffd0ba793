<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name></name>
    <message id="OK">
        <source></source>
        <translation>OK</translation>
    </message>
    <message id="IDS_APP_TITLE">
        <source></source>
        <translation>ZELTO DISK</translation>
    </message>
    <message id="IDS_CANCEL_BUTTON">
        <source></source>
        <translation>Cancel</translation>
    </message>
    <message id="IDS_ERR_NOT_FOUND_ZELTO">
        <source></source>
        <translation>No ZELTO DISK is ready for use. Plug it in, then start this program again.</translation>
    </message>
    <message id="IDS_ENTER_1ST_PASSWORD">
        <source></source>
        <translation>Enter the password; the first one if the drive has two.</translation>
    </message>
    <message id="IDS_ENTER_2ND_PASSWORD">
        <source></source>
        <translation>Enter the second password.</translation>
    </message>
    <message id="IDS_FULLLOCK_TIME_STATUS_INVALID">
        <source></source>
        <translation>The drive’s clock has stopped, so the drive has locked itself.

Set the drive’s clock to this computer’s time, %1? Check first that this time is right. If the drive still has its key, you can log in to it afterwards.</translation>
    </message>
    <message id="IDS_SET_CURRENT_YIME">
        <source></source>
        <translation>The drive’s clock has been set. The program now closes. Start it again: it then says whether you can log in.</translation>
    </message>
    <message id="IDS_ERR_ZELTO_DRIVE_LOST">
        <source></source>
        <translation>The drive has locked itself for good and its key is gone: after too many wrong passwords, because its time ran out, or because the key was erased. What was in the secure area cannot be read any more, by anyone.

To use the drive again, start this program if it has closed, choose “Clear All” in the settings, then plug the drive out and in and start the program once more to set it up.</translation>
    </message>
    <message id="IDS_ERR_AUTHENTICATE_FAILED">
        <source></source>
        <translation>This password is not right. Check Caps Lock and try again; the drive may allow only a few tries.</translation>
    </message>
    <message id="IDS_ERR_UNMOUNT">
        <source></source>
        <translation>The drive’s volumes could not be released; most often a program still uses a file on them. Nothing else was done: a drive that was unlocked is still unlocked.

Close all files and windows that show the drive, then try again. Start this program again if it has closed.</translation>
    </message>
    <message id="IDS_COMMAND_FAIL_WITH_SENSE_INFO">
        <source></source>
        <translation>The drive did not carry out this step. If it happens again, close this program, plug the drive out and in, and start the program again.

For support: sense key %1, code %2, qualifier %3.</translation>
    </message>
    <message id="IDS_COMMAND_FAIL">
        <source></source>
        <translation>The drive does not answer. Close this program, plug the drive out and in, and start the program again.</translation>
    </message>
    <message id="IDS_ERR_TIME_STATUS_INVALID">
        <source></source>
        <translation>not set</translation>
    </message>
    <message id="IDS_EXPIRED">
        <source></source>
        <translation>The time has run out</translation>
    </message>
    <message id="IDS_DAYS">
        <source></source>
        <translation>d</translation>
    </message>
    <message id="IDS_HOURS">
        <source></source>
        <translation>h</translation>
    </message>
    <message id="IDS_MIN">
        <source></source>
        <translation>min</translation>
    </message>
    <message id="IDS_TIME_SYNC_COMPLETE">
        <source></source>
        <translation>The drive’s clock has been set to this computer’s time. The program now closes; start it again to go on.</translation>
    </message>
    <message id="IDS_NOW_SETTING">
        <source></source>
        <translation>Setting up the drive. Please do not unplug it.</translation>
    </message>
    <message id="IDS_SETTING_COMPLETE">
        <source></source>
        <translation>The drive is set up. Its areas are still blank: format each once before you use it, a secure one after you have logged in.</translation>
    </message>
    <message id="IDS_ERR_FORMAT">
        <source></source>
        <translation>The drive is set up and can be used. Only its tool area could not be formatted, so the drive does not carry this program: use the drive with the program on this computer.</translation>
    </message>
    <message id="IDS_ERR_FILE_COPY">
        <source></source>
        <translation>The drive is set up and can be used. Only this program could not be copied to its tool area: use the drive with the program on this computer.

From: %1
To: %2</translation>
    </message>
    <message id="IDS_ERR_SPINUP">
        <source></source>
        <translation>The drive did not get ready, so nothing on it was changed. The program now closes. Plug the drive out and in, and start the program again.</translation>
    </message>
    <message id="IDS_ERR_ENCRYPTION_MANUAL_KEY_NOT_SETUP">
        <source></source>
        <translation>You chose to enter the encryption key by hand, but there is none yet. Enter a key, or let the drive make one.</translation>
    </message>
    <message id="IDS_ERR_CURRENT_1ST_PASSWORD_INVALID">
        <source></source>
        <translation>The current first password is not right, so the first password was not changed. If you are changing two passwords, the second one has been changed already: from now on its current password is the new one. Check Caps Lock and enter the passwords again.</translation>
    </message>
    <message id="IDS_ERR_CURRENT_2ND_PASSWORD_INVALID">
        <source></source>
        <translation>The current second password is not right, so no password was changed. Check Caps Lock and enter it again.</translation>
    </message>
    <message id="IDS_ERR_ZELTO_NOT_UNLOCKING">
        <source></source>
        <translation>The drive is locked. Log in to it first, then try again.</translation>
    </message>
    <message id="IDS_CLEAR_ALL_CONFIRM">
        <source></source>
        <translation>Clear everything on this drive?

All areas with all their files, all passwords and all settings will be gone. This cannot be undone.</translation>
    </message>
    <message id="IDS_ERASE_ENCRYPTION_KEY_CONFIRM">
        <source></source>
        <translation>Erase the encryption key of this drive?

Everything in the secure area becomes unreadable for good, even with the right password. This cannot be undone.</translation>
    </message>
    <message id="IDS_TOTAL_CAPACITY">
        <source></source>
        <translation>Total: %1 MB</translation>
    </message>
    <message id="IDS_FREE_CAPACITY">
        <source></source>
        <translation>Free: %1 MB</translation>
    </message>
    <message id="IDS_CAPACITY_OVER">
        <source></source>
        <translation>The areas are larger than the drive.</translation>
    </message>
    <message id="IDS_NORMAL_AREA">
        <source></source>
        <translation>Normal</translation>
    </message>
    <message id="IDS_SECURE_AREA">
        <source></source>
        <translation>Secure</translation>
    </message>
    <message id="IDS_FREE_AREA">
        <source></source>
        <translation>Not used yet</translation>
    </message>
    <message id="IDS_ALL_SECTORS">
        <source></source>
        <translation>Whole drive</translation>
    </message>
    <message id="IDS_DRIVE_SERIAL">
        <source></source>
        <translation>Serial number: %1</translation>
    </message>
    <message id="IDS_DRIVE_SERIAL_AND_PORT">
        <source></source>
        <translation>Serial number: %1, in USB port %2</translation>
    </message>
    <message id="IDS_DRIVE_PORT">
        <source></source>
        <translation>No serial number, in USB port %1</translation>
    </message>
    <message id="IDS_HINT_RULE_MISSING">
        <source></source>
        <translation>One ZELTO DISK that is plugged in is not in this list, because this computer does not let you use it yet. Install the program’s package, or ask your administrator to add its device rule, then plug the drive in again.</translation>
    </message>
    <message id="IDS_HINT_OTHER_SESSION">
        <source></source>
        <translation>One ZELTO DISK that is plugged in is not in this list, because it belongs to another user’s session on this computer. Use it from that session, or log in at this computer’s own screen and plug it in again.</translation>
    </message>
    <message id="IDS_HINT_DRIVE_IN_USE">
        <source></source>
        <translation>One ZELTO DISK that is plugged in is not in this list, because another copy of this program uses it. Close that copy, then start this program again.</translation>
    </message>
    <message id="IDS_HINT_BUSY_PROGRAMS">
        <source></source>
        <translation>Still using the drive: %1</translation>
    </message>
    <message id="IDS_HINT_NEXT_AREAS">
        <source></source>
        <translation>Next: lay out the areas.</translation>
    </message>
    <message id="IDS_HINT_NEXT_PASSWORDS">
        <source></source>
        <translation>Next: choose the passwords.</translation>
    </message>
    <message id="IDS_HINT_NOTHING_CHANGED">
        <source></source>
        <translation>Nothing has been changed yet.</translation>
    </message>
    <message id="IDS_HINT_AUTO_CLEAR_DAYS">
        <source></source>
        <translation>Erase the key after: enter 1 to 9999 days.</translation>
    </message>
    <message id="IDS_HINT_AUTO_CLEAR_MINUTES">
        <source></source>
        <translation>Erase the key after: enter 1 to 999 minutes.</translation>
    </message>
    <message id="IDS_HINT_AUTO_LOG_OFF_MINUTES">
        <source></source>
        <translation>Log off after: enter 1 to 999 minutes.</translation>
    </message>
    <message id="IDS_HINT_AREA_DIGITS">
        <source></source>
        <translation>Sizes are whole numbers of MB.</translation>
    </message>
    <message id="IDS_HINT_AREA_DISK1">
        <source></source>
        <translation>Next: enter a size for Disk1.</translation>
    </message>
    <message id="IDS_HINT_FIRST_MISSING">
        <source></source>
        <translation>Next: enter the first password.</translation>
    </message>
    <message id="IDS_HINT_FIRST_AGAIN">
        <source></source>
        <translation>Next: enter the first password again.</translation>
    </message>
    <message id="IDS_HINT_FIRST_DIFFERS">
        <source></source>
        <translation>The two entries of the first password differ.</translation>
    </message>
    <message id="IDS_HINT_SECOND_MISSING">
        <source></source>
        <translation>Next: enter the second password.</translation>
    </message>
    <message id="IDS_HINT_SECOND_AGAIN">
        <source></source>
        <translation>Next: enter the second password again.</translation>
    </message>
    <message id="IDS_HINT_SECOND_DIFFERS">
        <source></source>
        <translation>The two entries of the second password differ.</translation>
    </message>
    <message id="IDS_HINT_CURRENT_FIRST_MISSING">
        <source></source>
        <translation>Next: enter the current first password.</translation>
    </message>
    <message id="IDS_HINT_CURRENT_SECOND_MISSING">
        <source></source>
        <translation>Next: enter the current second password.</translation>
    </message>
    <message id="IDS_HINT_PASSWORD_ACCENTS">
        <source></source>
        <translation>Letters with accents cannot be used in a password.</translation>
    </message>
    <message id="IDS_HINT_PASSWORD_TOO_LONG">
        <source></source>
        <translation>A password has 32 characters at most.</translation>
    </message>
    <message id="IDS_HINT_TRIALS">
        <source></source>
        <translation>Next: enter how many tries are allowed, 1 to 99.</translation>
    </message>
    <message id="IDS_HINT_KEY_MISSING">
        <source></source>
        <translation>Next: enter the digits of the key.</translation>
    </message>
    <message id="IDS_HINT_KEY_DIGITS">
        <source></source>
        <translation>Only the digits 0 to 9 and A to F can be used.</translation>
    </message>
    <message id="IDS_HINT_KEY_ODD">
        <source></source>
        <translation>One digit is missing.</translation>
    </message>
    <message id="IDS_HINT_KEY_TOO_LONG">
        <source></source>
        <translation>%1 of 128 digits: that is too many.</translation>
    </message>
    <message id="IDS_HINT_SETUP_ERASES">
        <source></source>
        <translation>OK erases everything on this drive and closes this window.</translation>
    </message>
    <message id="IDS_HINT_SETUP_OPEN">
        <source></source>
        <translation>No secure area: anyone can read this drive. Passwords and a key that were entered are not used.</translation>
    </message>
    <message id="IDS_HINT_SETUP_RETRY">
        <source></source>
        <translation>Before you try again, open the areas and confirm them once more.</translation>
    </message>
    <message id="IDS_HINT_SETUP_TABLE_FULL">
        <source></source>
        <translation>There is no room for one more attempt in the list of areas. Open the areas, confirm them once more, then try again.</translation>
    </message>
    <message id="IDS_HINT_CLOSES">
        <source></source>
        <translation>OK, Cancel, Erase Key and Clear All close the program.</translation>
    </message>
    <message id="IDS_HINT_SET_CLOCK_CLOSES">
        <source></source>
        <translation>Setting the clock closes the program; what was entered is lost.</translation>
    </message>
    <message id="IDS_HINT_PERIOD_ZERO">
        <source></source>
        <translation>A period that shows 0 is switched off by OK.</translation>
    </message>
    <message id="IDS_HINT_SECURE_CHOICE_DROPPED">
        <source></source>
        <translation>Only Disk1 keeps its choice when this window opens. To make Disk2 or Disk3 secure, choose it again.</translation>
    </message>
    <message id="IDS_HINT_TRIALS_ERASE">
        <source></source>
        <translation>After that many wrong second passwords the drive erases its key for good.</translation>
    </message>
</context>
</TS>
