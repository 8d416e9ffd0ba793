#include "simulator/demo/Story.h"

#include "ui/Strings.h"
#include "ui/Window.h"

namespace zelto::simulator {

namespace {

using Drive = std::shared_ptr<DriveOnBus>;

/// 128 MiB: 108 for the user, 20 for the tool area.
constexpr std::uint64_t DriveSectors = 262144;
/// A set-up without trouble takes fewer.
constexpr int PatientTicks = 30;
constexpr const char* Key = "AC4B79DDD83A4257C3BA2C94EC9ACB8733ADC631ED7EF25AD539A398E0BD0909";
const std::filesystem::path ToolCopy = "/media/user/ZELTO TOOL/ZeltoAppMac.app";

struct Passwords {
    const char* first;
    const char* second;
};
constexpr Passwords OldPasswords{"copper lantern ridge moth", "violin pasture kettle drum"};
constexpr Passwords NewPasswords{"walnut glacier poem anchor", "orchid tunnel ladder frost"};

void layOutAreas(Story& story) {
    story.tell("A new drive is plugged in. The settings open; OK waits until all is said.");
    story.startUtility();
    story.tick(1);
    story.checkWindow("MainSettingsWindow");
    story.check("OK is disabled", !story.person.isEnabled("MainSettingsOKButton"));
    story.picture("new-drive");

    story.tell("The areas: Disk1 secure with 40 MB, Disk2 for everybody with the rest.");
    story.person.press("AreaSettingsButton", [&] {
        story.picture("areas-empty");
        story.person.type("Disk1CapacityText", QStringLiteral("400"));
        story.check("more than the drive holds can't be confirmed",
                    !story.person.isEnabled("AreaSettingsOKButton"));
        story.picture("areas-too-large");
        story.person.type("Disk1CapacityText", QStringLiteral("40"));
        story.person.press("Disk1SecureCheckBox");
        story.person.type("Disk2CapacityText", QStringLiteral("68"));
        story.picture("areas");
        story.person.press("AreaSettingsOKButton");
    });
}

void choosePasswords(Story& story) {
    story.tell("Two passwords, three tries for the second.");
    story.person.press("PasswordSettingsButton", [&] {
        story.picture("passwords-empty");
        story.person.press("PS_1stAnd2ndCell");
        story.person.type("PS_1stPasswordText", QString::fromLatin1(OldPasswords.first));
        story.person.type("PS_Again1stPasswordText", QStringLiteral("copper lantern ridge moht"));
        story.person.type("PS_2ndPasswordText", QString::fromLatin1(OldPasswords.second));
        story.person.type("PS_Again2ndPasswordText", QString::fromLatin1(OldPasswords.second));
        story.person.type("PS_2ndPasswordNumberOfTrials", QStringLiteral("3"));
        story.check("a slip in the repetition can't be confirmed",
                    !story.person.isEnabled("PS_OKButton"));
        story.picture("passwords-differ");
        story.person.type("PS_Again1stPasswordText", QString::fromLatin1(OldPasswords.first));
        story.check("the first password is strong",
                    story.person.text("PS_1stStrength") == localized("IDS_STRENGTH_STRONG"));
        story.picture("passwords");
        story.person.press("PS_OKButton");
    });
}

void chooseKeyAndPeriods(Story& story) {
    story.tell("The key is entered by hand, in hexadecimal digits.");
    story.person.press("EncryptionKeyManualCell");
    story.person.press("EncryptionKeyButton", [&] {
        story.person.type("EncryptionKeyText", QString::fromLatin1(Key));
        story.picture("key");
        story.person.press("EncryptionKeyOKButton");
    });
    story.tell("Auto clear after 30 days, auto log-off after 10 minutes, remaining time shown.");
    story.person.press("AutoClearEnabledCheckBox");
    story.person.type("AutoClearText", QStringLiteral("30"));
    story.person.press("AutoLogOffEnabledCheckBox");
    story.person.type("AutoLogOffText", QStringLiteral("10"));
    story.person.press("ShowRemainingTimeCheckBox");
    story.check("OK is enabled", story.person.isEnabled("MainSettingsOKButton"));
    story.picture("filled-in");
}

void finishSetUp(Story& story) {
    for (int tick = 0;
         tick < PatientTicks && story.person.visibleWindowName() == "ZeltoSettingWindow" &&
         !story.person.isEnabled("ZeltoSettingOKButton");
         ++tick) {
        story.tick(1);
    }
    story.picture("set-up-complete");
    story.checkNoAlert();
    story.check("it says: " + story.person.text("ZeltoSettingText").toStdString(),
                story.person.text("ZeltoSettingText") == localized("IDS_SETTING_COMPLETE"));
    story.check("the volume ZELTO TOOL holds the utility, byte for byte",
                story.computer.files.areEqual(story.computer.files.bundlePath(), ToolCopy));
    story.person.press("ZeltoSettingOKButton");
    story.check("the utility has ended", story.utilityHasQuit());
}

void commit(Story& story, const Drive& drive) {
    story.tell("OK: everything is sent, the drive is asked to reconnect, progress is shown.");
    story.computer.log.clear();
    story.person.press("MainSettingsOKButton");
    story.checkWindow("ZeltoSettingWindow");
    story.checkNoAlert();
    story.check("the drive has left the bus", !story.computer.usb.isPlugged(drive));
    story.picture("set-up-under-way");

    story.tell("Closing the window now is refused: the set-up is under way.");
    if (Window* const window = story.person.visibleWindow()) {
        window->reject();
    }
    story.check("the utility runs on", !story.utilityHasQuit());

    story.tell("The drive comes back; its tool area is formatted, the utility copied onto it.");
    finishSetUp(story);
}

void logIn(Story& story, const Passwords& passwords) {
    story.startUtility();
    story.checkWindow("AuthenticateWindow");
    story.submitPassword(QString::fromLatin1(passwords.first));
    story.submitPassword(QString::fromLatin1(passwords.second));
    story.checkWindow("UnlockedWindow");
    story.checkNoAlert();
}

void useTheDrive(Story& story, const Drive& drive) {
    story.tell("The drive just set up is locked; both passwords open it.");
    story.checkState("the drive is locked", *drive, SecurityState::StateLocked);
    logIn(story, OldPasswords);
    story.tell("The secure area is blank; its owner formats it and keeps something there.");
    const VirtualDisk* const secure = story.diskOfUnit("KESTRIN ZELTO DISK1");
    const bool formatted = secure != nullptr && story.computer.diskTool.eraseDisk(
                                                    secure->bsdName, secure->identity(), "SECRET");
    story.check("the volume SECRET is there",
                formatted && story.computer.files.fileExistsAtPath("/media/user/SECRET"));
    story.check("a copy of the utility fits on it",
                story.computer.files.copyItemAtPath(story.computer.files.bundlePath(),
                                                    "/media/user/SECRET/Keep.app"));
}

void setTheClock(Story& story) {
    story.tell("The drive's clock was never set; its owner sets it in the settings.");
    story.person.press("UnlockedSetup");
    story.tick(1);
    story.checkWindow("MainSettingsWindow");
    story.check("the drive's clock reads: " + story.person.text("DeviceTimeText").toStdString(),
                story.person.text("DeviceTimeText") == localized("IDS_ERR_TIME_STATUS_INVALID"));
    story.picture("clock-never-set");
    story.person.press("MainSettingsSetTimeButton");
    story.checkAlert("IDS_TIME_SYNC_COMPLETE");
    story.check("the utility has ended", story.utilityHasQuit());
}

void changePasswords(Story& story) {
    story.tell("Started again, the utility finds the drive unlocked. Both passwords are changed.");
    story.startUtility();
    story.checkWindow("UnlockingWindow");
    story.person.press("UnlockingSetup");
    story.tick(1);
    story.checkWindow("MainSettingsWindow");
    story.picture("settings-of-a-drive-in-use");
    story.person.press("PasswordSettingsButton", [&] {
        story.check("the drive is known to have two passwords",
                    story.person.isChecked("PC_1stAnd2ndCell"));
        story.person.type("PC_Current1stPasswordText", QString::fromLatin1(OldPasswords.first));
        story.person.type("PC_New1stPasswordText", QString::fromLatin1(NewPasswords.first));
        story.person.type("PC_AgainNew1stPasswordText", QString::fromLatin1(NewPasswords.first));
        story.person.type("PC_Current2ndPasswordText", QString::fromLatin1(OldPasswords.second));
        story.person.type("PC_New2ndPasswordText", QString::fromLatin1(NewPasswords.second));
        story.person.type("PC_AgainNew2ndPasswordText", QString::fromLatin1(NewPasswords.second));
        story.person.type("PC_2ndPasswordNumberOfTrials", QStringLiteral("5"));
        story.picture("password-change");
        story.person.press("PC_OKButton");
    });
    story.picture("settings-changed");
    story.person.press("MainSettingsOKButton");
    story.checkNoAlert();
    story.check("the utility has ended", story.utilityHasQuit());
}

void logInWithNewPasswords(Story& story, const Drive& drive) {
    story.tell("The drive is pulled out and put in again. The old password is refused, the new "
               "ones open it.");
    story.computer.replug(drive);
    story.startUtility();
    story.submitPassword(QString::fromLatin1(OldPasswords.first));
    story.checkAlert("IDS_ERR_AUTHENTICATE_FAILED");
    logIn(story, NewPasswords);
    story.check("what was kept there is the same, byte for byte",
                story.computer.files.areEqual(story.computer.files.bundlePath(),
                                              "/media/user/SECRET/Keep.app"));
}

void eraseTheKey(Story& story, const Drive& drive) {
    story.tell("The encryption key is erased; the utility asks whether that is meant.");
    story.person.press("UnlockedSetup");
    story.alerts.answer(AlertButton::Alternate);
    story.person.press("EraseEncryptionKeyButton");
    story.checkAlert("IDS_ERASE_ENCRYPTION_KEY_CONFIRM");
    story.check("the utility has ended", story.utilityHasQuit());
    story.computer.skip(std::chrono::seconds(2));
    story.checkState("the drive is fully locked", *drive, SecurityState::StateFullLock);
}

void clearAll(Story& story, const Drive& drive) {
    story.tell("The drive's contents are lost; the settings open, and all of it is cleared.");
    story.startUtility();
    story.checkAlert("IDS_ERR_ZELTO_DRIVE_LOST");
    story.checkWindow("MainSettingsWindow");
    story.alerts.answer(AlertButton::Alternate);
    story.person.press("MainSettingsClearAllButton");
    story.checkAlert("IDS_CLEAR_ALL_CONFIRM");
    story.check("the utility has ended", story.utilityHasQuit());
    story.computer.replug(drive);
    const VirtualDisk* const whole = story.diskOfUnit("KESTRIN ZELTO DISK1");
    story.check("the drive is as new: one blank medium of all its sectors",
                whole != nullptr && whole->medium->sectorCount() == DriveSectors &&
                    !whole->hasVolume);
}

void setUpAnew(Story& story, const Drive& drive) {
    story.tell("It is set up anew, this time without a secure area.");
    story.startUtility();
    story.checkWindow("MainSettingsWindow");
    story.person.press("AreaSettingsButton", [&] {
        story.person.type("Disk1CapacityText", QStringLiteral("108"));
        story.person.press("AreaSettingsOKButton");
    });
    story.picture("without-secure-area");
    story.person.press("MainSettingsOKButton");
    finishSetUp(story);
    story.checkState("the drive needs no password", *drive, SecurityState::StateNoPassword);
}

} // namespace

void playSetUpStory(Story& story) {
    story.chapter("A new drive is set up, changed and cleared");
    const Drive drive = makeDrive("ZD0000000000C3", DriveSectors);
    story.computer.plug(drive);
    layOutAreas(story);
    choosePasswords(story);
    chooseKeyAndPeriods(story);
    commit(story, drive);
    useTheDrive(story, drive);
    setTheClock(story);
    changePasswords(story);
    logInWithNewPasswords(story, drive);
    eraseTheKey(story, drive);
    clearAll(story, drive);
    setUpAnew(story, drive);
    story.endUtility();
}

} // namespace zelto::simulator
