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
        <translation>The ZELTO DISK was not found. Plug it in and try again.</translation>
    </message>
    <message id="IDS_ENTER_1ST_PASSWORD">
        <source></source>
        <translation>Enter the first password.</translation>
    </message>
    <message id="IDS_ENTER_2ND_PASSWORD">
        <source></source>
        <translation>Enter the second password.</translation>
    </message>
    <message id="IDS_FULLLOCK_TIME_STATUS_INVALID">
        <source></source>
        <translation>The drive’s clock has stopped, so the drive is locked for safety. Your data is still there.

Set the drive’s clock to this computer’s time, %1? Check first that this time is right.</translation>
    </message>
    <message id="IDS_SET_CURRENT_YIME">
        <source></source>
        <translation>The drive’s clock has been set. Unplug the drive, plug it in again and start this program to log in.</translation>
    </message>
    <message id="IDS_ERR_ZELTO_DRIVE_LOST">
        <source></source>
        <translation>The drive has locked itself for good and erased its key: after too many wrong passwords, or because its time ran out. What was in the secure area cannot be read any more, by anyone. You can set the drive up again as a new one.</translation>
    </message>
    <message id="IDS_ERR_AUTHENTICATE_FAILED">
        <source></source>
        <translation>This password is not right. Check Caps Lock and try again; the drive may allow only a few tries.</translation>
    </message>
    <message id="IDS_ERR_UNMOUNT">
        <source></source>
        <translation>The drive’s volumes could not be released, because a program is still using a file on them. Close all files and windows that show the drive, then try again.</translation>
    </message>
    <message id="IDS_COMMAND_FAIL_WITH_SENSE_INFO">
        <source></source>
        <translation>The drive refused this step. If it happens again, unplug the drive, plug it in and try once more.

For support: sense key %1, code %2, qualifier %3.</translation>
    </message>
    <message id="IDS_COMMAND_FAIL">
        <source></source>
        <translation>The drive does not answer. Unplug it, plug it in again and try once more.</translation>
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
        <translation>The drive is ready to use.</translation>
    </message>
    <message id="IDS_ERR_FORMAT">
        <source></source>
        <translation>The drive’s tool area could not be formatted. Unplug the drive, plug it in again and start this program to check its settings.</translation>
    </message>
    <message id="IDS_ERR_FILE_COPY">
        <source></source>
        <translation>This program could not be copied to the drive’s tool area.

From: %1
To: %2</translation>
    </message>
    <message id="IDS_ERR_SPINUP">
        <source></source>
        <translation>The drive does not get ready. Unplug it, plug it in again and start this program once more.</translation>
    </message>
    <message id="IDS_ERR_ENCRYPTION_MANUAL_KEY_NOT_SETUP">
        <source></source>
        <translation>You chose to enter the encryption key by hand, but there is none yet. Enter a key, or let the drive make one.</translation>
    </message>
    <message id="IDS_ERR_CURRENT_1ST_PASSWORD_INVALID">
        <source></source>
        <translation>The current first password is not right, so it was not changed. Check Caps Lock and enter it again.</translation>
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
</context>
</TS>
