#include "app/AppDelegate.h"
#include "app/Manual.h"
#include "device/DeviceReads.h"
#include "device/IORegistry.h"
#include "platform/Clock.h"
#include "platform/Desktop.h"
#include "platform/Disks.h"
#include "session/ForeignText.h"
#include "ui/ProductVersion.h"
#include "ui/Strings.h"

namespace zelto {

void AppDelegate::ErrorMessageBox(IOReturn result) {
    if (result == kIOReturnNoDevice) {
        ShowMessage(AlertWeight::Warning, localized("IDS_ERR_NOT_FOUND_ZELTO"));
        return;
    }
    reportSense();
}

bool AppDelegate::reportIfFailed(IOReturn result) {
    if (result == kIOReturnSuccess) {
        return false;
    }
    ErrorMessageBox(result);
    return true;
}

void AppDelegate::reportSense() {
    // Whoever asks for help with one of these is asked for it.
    const QString version = localized("IDS_HINT_VERSION", productVersion());
    const auto status = readDeviceStatus(Device(), StatusRequest::Plain);
    if (status.failed()) {
        ShowMessage(AlertWeight::Warning, localized("IDS_COMMAND_FAIL"), version);
        return;
    }
    const Sense& sense = status.record.sense;
    ShowMessage(AlertWeight::Warning,
                localized("IDS_COMMAND_FAIL_WITH_SENSE_INFO", QString::number(sense.key),
                          QString::number(sense.additionalCode), QString::number(sense.qualifier)),
                version);
}

void AppDelegate::ShowMessage(AlertWeight weight, const QString& message, const QString& detail) {
    RunAlertPanel({.weight = weight,
                   .title = localized("IDS_APP_TITLE"),
                   .message = message,
                   .detail = detail,
                   .defaultButton = localized("OK")});
}

bool AppDelegate::Confirm(const char* messageKey) {
    return RunAlertPanel({.weight = AlertWeight::Warning,
                          .title = localized("IDS_APP_TITLE"),
                          .message = localized(messageKey),
                          .defaultButton = localized("IDS_CANCEL_BUTTON"),
                          .alternateButton = localized("OK"),
                          .onEscape = AlertButton::Default}) == AlertButton::Alternate;
}

void AppDelegate::ReportUnmountFailure() {
    const QString programs =
        foreignNames(m_platform.disks.holders(g_BsdNameList), localized("IDS_LIST_SEPARATOR"));
    ShowMessage(AlertWeight::Warning, localized("IDS_ERR_UNMOUNT"),
                programs.isEmpty() ? QString() : localized("IDS_HINT_BUSY_PROGRAMS", programs));
}

void AppDelegate::ShowHelp(const QString& page) {
    const auto file = manualPage(m_platform.computer, page.toStdString());
    if (!file || !m_platform.desktop.openDocument(*file)) {
        ShowMessage(AlertWeight::Warning, localized("IDS_HINT_NO_MANUAL"));
    }
}

AlertButton AppDelegate::RunAlertPanel(const AlertPanel& panel) {
    const EventGate::Closing closing(m_gate);
    return m_platform.alerts.NSRunAlertPanel(panel);
}

void AppDelegate::LeaveNotice(Desktop::Notice::Weight weight, const char* messageKey) {
    m_platform.desktop.leaveNotice({.weight = weight,
                                    .title = localized("IDS_APP_TITLE").toStdString(),
                                    .text = localized(messageKey).toStdString()});
}

void AppDelegate::Pause(std::chrono::seconds duration) {
    const EventGate::Closing closing(m_gate);
    m_platform.clock.sleep(duration);
}

} // namespace zelto
