#include "simulator/demo/Story.h"

#include <algorithm>

namespace zelto::simulator {

namespace {

using Drive = std::shared_ptr<DriveOnBus>;

const std::filesystem::path SecureVolume = "/media/user/PRIVATE";
const std::filesystem::path Letters = SecureVolume / "My letters";

void showTheRule(Story& story, const Drive& drive) {
    story.tell("The computer lets nobody talk to such a drive yet: the utility shows the rule.");
    drive->describe().openResult = kIOReturnNotPrivileged;
    story.computer.plug(drive);
    story.startUtility();
    story.person.press("SelectZeltoShowRule", [&] {
        story.checkWindow("DeviceRuleWindow");
        story.picture("device-rule");
        story.person.press("DeviceRuleClose");
    });
    story.tell("An administrator adds it, and the drive is plugged in again.");
    drive->describe().openResult = kIOReturnSuccess;
    story.computer.replug(drive);
}

void chooseDrive(Story& story) {
    story.tell("Two drives are attached, and the utility is started: it asks which one is meant.");
    story.startUtility();
    story.checkWindow("SelectZeltoWindow");
    story.check("the first in the list is \"Device 0\"",
                story.person.text("SelectZeltoComboBox") == QLatin1String("Device 0"));
    story.picture("two-drives");

    story.tell("The second drive is chosen. It is locked and asks for its first password.");
    story.person.choose("SelectZeltoComboBox", 1);
    story.person.press("SelectZeltoOK");
    story.tick(1);
    story.checkWindow("AuthenticateWindow");
    story.check("the drive's clock is shown: " +
                    story.person.text("AuthenticateDeviceTimeText").toStdString(),
                !story.person.text("AuthenticateDeviceTimeText").isEmpty());
    story.check("an empty password can't be submitted",
                !story.person.isEnabled("AuthenticateSubmit"));
    story.picture("first-password");
}

void giveWrongPassword(Story& story) {
    story.tell("A wrong password is refused, and may be corrected.");
    story.submitPassword(QStringLiteral("wrong"));
    story.checkAlert("IDS_ERR_AUTHENTICATE_FAILED");
    story.check("what was typed is still there",
                story.person.text("AuthenticateTextField") == QLatin1String("wrong"));
}

void logIn(Story& story) {
    story.tell("The right first password leads to the second.");
    story.submitPassword(QStringLiteral("first"));
    story.checkWindow("AuthenticateWindow");
    story.picture("second-password");
    story.tell("The right second password unlocks the drive; its secure volume appears.");
    story.submitPassword(QStringLiteral("second"));
    story.checkWindow("UnlockedWindow");
    story.checkNoAlert();
    story.check("the secure volume is mounted",
                story.computer.files.fileExistsAtPath(SecureVolume));
    story.picture("unlocked");
}

void useAndLogOff(Story& story, const Drive& drive) {
    story.tell("Files are written on the secure volume.");
    story.check("the copy is complete",
                story.computer.files.copyItemAtPath(story.computer.files.bundlePath(), Letters));

    story.tell("Log off: the volume goes first, then the drive locks.");
    story.computer.log.clear();
    story.person.press("UnlockedLogOff");
    const auto lines = story.computer.log.story();
    const auto eject = std::ranges::find_if(
        lines, [](const std::string& line) { return line.starts_with("diskutil eject"); });
    const auto logout = std::ranges::find(lines, "TKVR21_Logout");
    story.check("ejected before the drive was locked", eject < logout && logout != lines.end());
    story.check("the secure volume is gone", !story.computer.files.fileExistsAtPath(SecureVolume));
    story.checkState("the drive is locked", *drive, SecurityState::StateLocked);
    story.check("the utility has ended", story.utilityHasQuit());
}

void unplugTheOther(Story& story, const Drive& other) {
    story.tell("The other drive was never touched; it is pulled out.");
    story.check("no command went to it",
                std::ranges::count(story.computer.log.lines(), other->description().serial,
                                   &LogLine::serial) == 0);
    story.computer.unplug(other);
}

void findTheFilesAgain(Story& story, const Drive& drive) {
    story.tell("With one drive the utility goes straight to log-in; the files are still there.");
    story.startUtility();
    story.submitPassword(QStringLiteral("first"));
    story.submitPassword(QStringLiteral("second"));
    story.checkWindow("UnlockedWindow");
    story.check("the files are the same, byte for byte",
                story.computer.files.areEqual(story.computer.files.bundlePath(), Letters));

    story.tell("A program keeps the volume busy: log-off is refused, the drive stays unlocked.");
    const VirtualDisk* const secure = story.diskOfUnit("KESTRIN ZELTO DISK2");
    const std::string volume = secure != nullptr ? secure->volumeName() : "";
    story.computer.mounts.setHolders(volume, {"text editor"});
    story.person.press("UnlockedLogOff");
    story.checkAlert("IDS_ERR_UNMOUNT");
    story.checkState("the drive is still unlocked", *drive, SecurityState::StateUnlocking);

    story.tell("The program is closed; the utility, started again, finds the drive unlocked.");
    story.computer.mounts.setHolders(volume, {});
    story.startUtility();
    story.checkWindow("UnlockingWindow");
    story.picture("already-unlocked");
    story.person.press("UnlockingLogOff");
    story.checkState("the drive is locked", *drive, SecurityState::StateLocked);
    story.checkNoAlert();
}

void setTheClock(Story& story, const Drive& drive) {
    story.tell("The drive has lost its clock while its auto-clear period runs: it locks fully and "
               "the utility offers to set the clock.");
    story.computer.unplug(drive);
    drive->drive().loseClock(story.computer.clock.worldTime());
    story.computer.plug(drive);
    story.checkState("the drive is fully locked", *drive, SecurityState::StateFullLock);
    story.startUtility();
    story.check("asked first, then told that the clock is set",
                story.alerts.takePanels().size() == 2);
    story.check("the drive's clock was written",
                story.computer.log.latest("TKVR21_ZELTO_SetCurrentTime") != nullptr);
    story.checkState("the drive asks for its password again", *drive, SecurityState::StateLocked);
    story.check("the utility has ended", story.utilityHasQuit());
}

void showRemainingTime(Story& story) {
    story.tell("The log-in window shows how long the drive keeps its key.");
    story.startUtility();
    story.tick(1);
    story.check("remaining: " + story.person.text("AuthenticateRemainingTimeText").toStdString(),
                !story.person.text("AuthenticateRemainingTimeText").isEmpty());
    story.picture("remaining-time");
    story.person.press("AuthenticateCancel");
}

void letItExpire(Story& story, const Drive& drive) {
    story.tell("Three days go by. The auto-clear period has run out, and the key is gone.");
    story.computer.skip(std::chrono::days(3));
    story.checkState("the drive is fully locked", *drive, SecurityState::StateFullLock);
    story.startUtility();
    story.checkAlert("IDS_ERR_ZELTO_DRIVE_LOST");
    story.tell("Nothing is left to save; the settings open, so that it can be set up anew.");
    story.checkWindow("MainSettingsWindow");
    story.tick(1);
    story.picture("expired");
    story.person.press("MainSettingsCancelButton");
    story.check("the utility has ended", story.utilityHasQuit());
}

} // namespace

void playLogInStory(Story& story) {
    story.chapter("A user logs in to a drive and logs off again");
    constexpr std::uint32_t TwoDays = 2 * 86400;
    const auto now = story.computer.clock.worldTime();
    const Drive other = makePreparedDrive({.serial = "ZD0000000000A1"}, now);
    const Drive drive = makePreparedDrive({.serial = "ZD0000000000B2",
                                           .secondPassword = "second",
                                           .autoClearSeconds = TwoDays,
                                           .showsRemainingTime = true},
                                          now);
    if (!other || !drive) {
        story.check("the drives could be prepared", false);
        return;
    }
    showTheRule(story, other);
    story.computer.plug(drive);
    story.computer.log.clear();

    chooseDrive(story);
    giveWrongPassword(story);
    logIn(story);
    useAndLogOff(story, drive);
    unplugTheOther(story, other);
    findTheFilesAgain(story, drive);
    setTheClock(story, drive);
    showRemainingTime(story);
    letItExpire(story, drive);
    story.endUtility();
}

} // namespace zelto::simulator
