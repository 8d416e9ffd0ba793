#include "app/AppDelegate.h"
#include "device/Assertion.h"
#include "device/DeviceReads.h"
#include "device/DeviceWrites.h"
#include "digest/SHA256.h"
#include "digest/Wipe.h"
#include "settings/Obstacle.h"
#include "settings/PasswordRules.h"
#include "ui/Description.h"
#include "ui/Strings.h"
#include "ui/TypeAhead.h"

#include <algorithm>

namespace zelto {

using namespace std::chrono_literals;

void AppDelegate::DisplayAuthenticateWindow(bool firstStep, const QString& message) {
    auto& form = *AuthenticateWindow;
    TextInputMode =
        firstStep ? TextInputModes::AuthenticateFirstStep : TextInputModes::AuthenticateFurtherStep;
    form.AuthenticateMessage->setText(message);
    form.AuthenticateTextField->wipe();
    AuthenticateTextDidChange();
    showValue(*form.AuthenticateDeviceTimeText, {});
    showValue(*form.AuthenticateRemainingTimeText, {});

    DisplayRemainingTimeAuthenticateWindow = false;
    if (readShowRemainingTime(Device())) {
        const auto time = readTimeStatus(Device());
        DisplayRemainingTimeAuthenticateWindow = !time.failed() && time.record.autoClearPeriod != 0;
    }
    if (!DisplayRemainingTimeAuthenticateWindow) {
        form.AuthenticateRemainingTimeTitleText->clear();
    }
    form.AuthenticateTextField->setFocus();
    form.centreAndMakeKeyAndOrderFront();
}

void AppDelegate::controlTextDidChange() {
    switch (TextInputMode) {
    case TextInputModes::MainSettings:
        MainSettingsTextDidChenge();
        break;
    case TextInputModes::AuthenticateFurtherStep:
    case TextInputModes::AuthenticateFirstStep:
        AuthenticateTextDidChange();
        break;
    case TextInputModes::AreaSettings:
        AreaSettingsTextDidChange();
        break;
    case TextInputModes::PasswordSettings:
        UpdatePasswordSettingsWindow();
        break;
    case TextInputModes::PasswordChange:
        UpdatePasswordChangeWindow();
        break;
    case TextInputModes::EncryptionKey:
        UpdateEncryptionKeyWindow();
        break;
    default:
        break;
    }
}

void AppDelegate::AuthenticateTextDidChange() {
    auto& form = *AuthenticateWindow;
    const QStringView password = form.AuthenticateTextField->secret();
    form.AuthenticateSubmit->setEnabled(isValidPassword(password));
    const Obstacle obstacle = logInObstacle(password);
    showObstacle(*form.AuthenticateObstacle, obstacle);
    form.AuthenticateObstacle->setVisible(obstacle.key != nullptr);
}

void AppDelegate::AuthenticateSubmitAction() {
    auto& form = *AuthenticateWindow;
    form.AuthenticateTextField->hideText();
    Wiped<AuthPayload> payload{
        {.firstStep = TextInputMode == TextInputModes::AuthenticateFirstStep}};
    SetPasswordData(form.AuthenticateTextField->secret(), payload->digest);
    const IOReturn result = writeAuthPayload(Device(), *payload);

    if (result == kIOReturnNoDevice) {
        ShowMessage(AlertWeight::Warning, localized("IDS_ERR_NOT_FOUND_ZELTO"));
        TerminateApplication();
        return;
    }
    if (result != kIOReturnSuccess) {
        // Whoever knows what was wrong starts over at once: what is typed meanwhile takes the place
        // of the refused password.
        const TypeAhead typeAhead(*form.AuthenticateTextField);
        reportRefusedPassword();
        form.AuthenticateTextField->setFocus();
        form.AuthenticateTextField->selectAll();
        return;
    }
    form.AuthenticateTextField->wipe();
    form.giveWayTo([this] {
        if (TextInputMode == TextInputModes::AuthenticateFurtherStep) {
            DisplayUnlockedWindow();
        } else {
            ProcessBySecurityState();
        }
    });
}

/// The pauses pace repeated wrong passwords.
void AppDelegate::reportRefusedPassword() {
    Pause(1s);
    const auto status = readDeviceStatus(Device(), StatusRequest::Plain);
    if (reportIfFailed(status.result)) {
        return;
    }
    if (saysAuthenticationFailed(status.record.sense)) {
        ShowMessage(AlertWeight::Warning, localized("IDS_ERR_AUTHENTICATE_FAILED"));
        Pause(1s);
        return;
    }
    if (status.record.state() == SecurityState::StateFullLock) {
        ShowMessage(AlertWeight::Critical, localized("IDS_ERR_ZELTO_DRIVE_LOST"));
        AuthenticateWindow->orderOut();
        TerminateApplication();
    }
}

void AppDelegate::AuthenticateCancelAction() {
    TerminateApplication();
}

void AppDelegate::SetPasswordData(QStringView password, PasswordDigest& digest) const {
    const auto length = static_cast<std::size_t>(password.size());
    Wiped<std::array<std::uint8_t, PasswordLimits::LongestPassword>> characters;
    if (length > characters->size()) {
        failAssertion("[passwordString length]<=32");
    }

    QByteArray encoded = password.toUtf8();
    std::copy_n(encoded.cbegin(), std::min(length, static_cast<std::size_t>(encoded.size())),
                characters->begin());
    wipe(encoded);
    // The digest is of the characters alone, not of the padded buffer.
    const Wiped<PasswordDigest> result{digestOf(std::span(*characters).first(length))};
    digest = *result;
}

} // namespace zelto
