#include "app/AppDelegate.h"
#include "app/BundleLocation.h"
#include "app/Manual.h"
#include "device/IORegistry.h"
#include "device/ZELTOctrl.h"
#include "platform/Application.h"
#include "platform/Computer.h"
#include "platform/Desktop.h"
#include "ui/FrontWindow.h"

#include <algorithm>

namespace zelto {

using namespace std::chrono_literals;

void AppDelegate::applicationWillFinishLaunching() {}

void AppDelegate::applicationDidFinishLaunching() {
    const std::filesystem::path bundle = m_platform.computer.bundlePath();
    const std::filesystem::path destination =
        m_platform.computer.applicationsFolder() / bundle.filename();
    const UsbMatching drives{.idVendor = UsbIdentity::Vendor, .idProduct = UsbIdentity::Product};
    if (hasToRelocate(bundle, destination, m_platform.computer.mountRoots(drives))) {
        relocate(bundle, destination);
        return;
    }
    startSession();
}

/// A program that runs from the drive keeps the drive's volume busy, so it hands over to a copy on
/// the computer.
void AppDelegate::relocate(const std::filesystem::path& bundle,
                           const std::filesystem::path& destination) {
    if (!isAlreadyBooted(destination)) {
        CopyApplicationFile(bundle, destination);
        ExecuteTempApp(destination);
    } else {
        m_platform.desktop.bringOtherForward();
    }
    TerminateApplication();
}

void AppDelegate::startSession() {
    // Not through the gate: whoever waits in an alert wants to see that alert.
    if (!m_platform.desktop.takePlace({.comeForward = bringForward,
                                       .showManual = [this] { showManualOrComeForward(); },
                                       .giveWay = [this] { TerminateApplication(); }})) {
        TerminateApplication();
        return;
    }
    m_platform.desktop.setSessionEndHandler(
        [this] { return applicationShouldTerminate() == TerminateReply::TerminateNow; });
    static_cast<ControllerState&>(*this) = {};
    g_BsdNameList.clear();
    m_platform.application.scheduledTimer(
        1s, [this] { m_gate.deliver(EventGate::Event::Tick, [this] { TimerHandler(); }); });
    // A computer without USB is a computer without drives; the selection window says so.
    (void)SetupMatchingNotification(UsbIdentity::Vendor, UsbIdentity::Product, m_discovery);

    if (Drives.DevCnt == 1 && !Drives.AlwaysUseSelectZeltoWindow) {
        Drives.CurrentUsbIntf = Drives.UsbIntf[0];
        Drives.SelectedZeltoIndex = 0;
        ProcessBySecurityState();
        return;
    }
    DisplaySelectZeltoWindow();
    SelectZeltoWindow->centreAndMakeKeyAndOrderFront();
}

/// An alert may be open already, so that none says that there is no manual.
void AppDelegate::showManualOrComeForward() {
    const auto page = manualPage(m_platform.computer, "index");
    if (!page || !m_platform.desktop.openDocument(*page)) {
        bringForward();
    }
}

AppDelegate::TerminateReply AppDelegate::applicationShouldTerminate() const {
    return Setup.isUnderWay() ? TerminateReply::TerminateCancel : TerminateReply::TerminateNow;
}

bool AppDelegate::applicationShouldTerminateAfterLastWindowClosed() const {
    return true;
}

void AppDelegate::TerminateApplication() {
    terminate();
    terminate();
}

void AppDelegate::terminate() {
    if (applicationShouldTerminate() == TerminateReply::TerminateCancel) {
        return;
    }
    m_gate.closeForGood();
    m_platform.application.stop();
}

bool AppDelegate::isAlreadyBooted(const std::filesystem::path& path) const {
    return std::ranges::any_of(
        m_platform.computer.launchedApplications(),
        [&](const std::filesystem::path& running) { return running.native() == path.native(); });
}

void AppDelegate::CopyApplicationFile(const std::filesystem::path& source,
                                      const std::filesystem::path& destination) {
    Computer& computer = m_platform.computer;
    bool copy = true;
    const bool existed = computer.fileExistsAtPath(destination);
    if (existed) {
        const auto sourceDate = computer.fileModificationDate(source);
        copy = !sourceDate || sourceDate != computer.fileModificationDate(destination);
        if (!computer.isWritableFileAtPath(destination)) {
            ReleaseLock(destination);
        }
    }
    if (!copy) {
        return;
    }
    // A failure here shows itself as a copy that does not start.
    const EventGate::Closing closing(m_gate);
    if (existed) {
        (void)computer.removeItemAtPath(destination);
    }
    (void)computer.copyItemAtPath(source, destination);
}

void AppDelegate::ExecuteTempApp(const std::filesystem::path& path) {
    const EventGate::Closing closing(m_gate);
    (void)m_platform.computer.open(path);
}

void AppDelegate::ReleaseLock(const std::filesystem::path& path) {
    const EventGate::Closing closing(m_gate);
    (void)m_platform.computer.chflags("nouchg", path);
}

} // namespace zelto
