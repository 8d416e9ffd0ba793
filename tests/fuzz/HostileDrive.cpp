// The whole utility with a drive that answers as it likes, and a person who presses whatever can be
// pressed: the window fits what the drive said, nothing that it says makes the program change a
// drive or touch another disk, and every answer leads to a bounded number of requests.
//
// The first byte says which drive. From then on whoever has something to decide takes it from the
// bytes: the person what to do, the drive how to answer. A drive that finds none left is honest.

#include "device/VendorRequest.h"
#include "simulator/computer/ForwardingDevice.h"
#include "simulator/computer/PreparedDrive.h"
#include "simulator/demo/Person.h"
#include "simulator/demo/UtilityProcess.h"
#include "tests/fuzz/Target.h"
#include "tests/support/OtherUsbDevices.h"
#include "ui/Resources.h"
#include "ui/Strings.h"
#include "ui/Window.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QTimer>

#include <algorithm>
#include <array>
#include <map>
#include <set>

namespace zelto::test {
namespace {

using namespace simulator;

/// What came of one thing that happened: a press, some seconds, the start.
struct Episode {
    /// The button that the person pressed; empty when it was something else.
    std::string pressed;
    bool hasConfirmed = false;
    int requests = 0;
    /// Of the status records, as the program got them.
    std::vector<SecurityState> states;
    bool hasAuthenticated = false;

    [[nodiscard]] bool wasTold(std::initializer_list<SecurityState> wanted) const {
        return std::ranges::any_of(states, [&](SecurityState state) {
            return std::ranges::find(wanted, state) != wanted.end();
        });
    }
};

/// What a request that changes the drive needs: that the person has pressed one of these.
const std::map<std::uint8_t, std::set<std::string>> AskedForBy{
    {VendorRequest::Authenticate, {"AuthenticateSubmit"}},
    {VendorRequest::SetAreaInfos, {"MainSettingsOKButton"}},
    {VendorRequest::SetAuthInfo, {"MainSettingsOKButton"}},
    {VendorRequest::Reconnect, {"MainSettingsOKButton"}},
    {VendorRequest::SetEncryptionInfo, {"MainSettingsOKButton", "MainSettingsClearAllButton"}},
    {VendorRequest::WriteHintData, {"MainSettingsOKButton", "MainSettingsClearAllButton"}},
    {VendorRequest::SetIdleLockPeriod, {"MainSettingsOKButton", "MainSettingsClearAllButton"}},
    {VendorRequest::SetErasePeriod,
     {"MainSettingsOKButton", "MainSettingsClearAllButton", "EraseEncryptionKeyButton"}},
    {VendorRequest::ResetAreaInfos, {"MainSettingsClearAllButton"}},
    {VendorRequest::Logout,
     {"UnlockedLogOff", "UnlockingLogOff", "MainSettingsClearAllButton",
      "EraseEncryptionKeyButton"}},
};

const std::set<std::string> NeedsConfirmation{"MainSettingsClearAllButton",
                                              "EraseEncryptionKeyButton"};

void checkIsAskedFor(const IOUSBDevRequest& request, const Episode& episode) {
    if (request.bmRequestType != VendorRequest::ToDevice) {
        return;
    }
    if (request.bRequest == VendorRequest::SetCurrentTime) {
        require(episode.hasConfirmed || episode.pressed == "MainSettingsSetTimeButton",
                "a clock is set when somebody wants that");
        return;
    }
    const auto asked = AskedForBy.find(request.bRequest);
    require(asked != AskedForBy.end() && asked->second.contains(episode.pressed),
            "a drive is changed when somebody wants that");
    require(episode.hasConfirmed || !NeedsConfirmation.contains(episode.pressed),
            "what cannot be undone has been confirmed");
}

/// A handle of the drive: each transfer ends as the input says.
class LyingDevice final : public ForwardingDevice {
public:
    LyingDevice(std::unique_ptr<UsbDeviceInterface> device, Input& input, Episode& episode)
        : ForwardingDevice(std::move(device)), m_input(input), m_episode(episode) {}

    [[nodiscard]] IOReturn DeviceRequest(IOUSBDevRequest& request) override {
        constexpr int MostRequests = 100;
        require(++m_episode.requests <= MostRequests, "there is an end to the requests");
        checkIsAskedFor(request, m_episode);
        const IOReturn result = answer(request);
        if (request.bRequest == VendorRequest::GetDeviceStatus && request.pData != nullptr) {
            const std::span<const std::uint8_t, DeviceStatus::Size> bytes(request.pData,
                                                                          DeviceStatus::Size);
            m_episode.states.push_back(decodeDeviceStatus(bytes).state());
        }
        m_episode.hasAuthenticated |=
            request.bRequest == VendorRequest::Authenticate && result == kIOReturnSuccess;
        return result;
    }

private:
    [[nodiscard]] IOReturn answer(IOUSBDevRequest& request) {
        const bool isToHost = (request.bmRequestType & 0x80U) != 0;
        switch (m_input.takeByte() % 10) {
        case 1:
            return kIOUSBPipeStalled;
        case 2:
            return kIOReturnTimeout;
        case 3:
            return kIOReturnNoDevice;
        case 4:
            // It has obeyed, and nobody hears of it.
            return isToHost ? kIOReturnIOError : obeyed(request, kIOReturnTimeout);
        case 5:
            return isToHost ? madeUp(request) : kIOReturnSuccess;
        case 6:
            return isToHost ? altered(request) : kIOUSBPipeStalled;
        default:
            return ForwardingDevice::DeviceRequest(request);
        }
    }

    [[nodiscard]] IOReturn obeyed(IOUSBDevRequest& request, IOReturn result) {
        (void)ForwardingDevice::DeviceRequest(request);
        return result;
    }

    /// As many bytes as the drive likes, up to what was asked for.
    [[nodiscard]] IOReturn madeUp(IOUSBDevRequest& request) {
        const auto bytes =
            m_input.takeBytes(std::min<std::size_t>(request.wLength, m_input.takeByte()));
        std::ranges::copy(bytes, request.pData);
        request.wLenDone = static_cast<std::uint32_t>(bytes.size());
        return kIOReturnSuccess;
    }

    /// The truth but for one byte.
    [[nodiscard]] IOReturn altered(IOUSBDevRequest& request) {
        const IOReturn result = ForwardingDevice::DeviceRequest(request);
        if (request.wLength > 0) {
            const std::size_t place = m_input.takeByte() % request.wLength;
            request.pData[place] = m_input.takeByte();
        }
        return result == kIOReturnNoDevice ? result : kIOReturnSuccess;
    }

    Input& m_input;
    Episode& m_episode;
};

class Table final : public Alerts {
public:
    Table(Input& input, Episode& episode, VirtualComputer& computer)
        : m_input(input), m_episode(episode), m_computer(computer) {}

    AlertButton NSRunAlertPanel(const AlertPanel& panel) override {
        require(!std::exchange(m_isOpen, true), "one alert at a time");
        const std::uint8_t choice = m_input.takeByte();
        if ((choice & 2U) != 0) {
            m_computer.advance(std::chrono::seconds(1));
        }
        m_isOpen = false;
        const bool isAlternate = (choice & 1U) != 0 && !panel.alternateButton.isEmpty();
        const bool isYes = isAlternate == (panel.onEscape == AlertButton::Default);
        m_episode.hasConfirmed |= isYes && !panel.alternateButton.isEmpty();
        return isAlternate ? AlertButton::Alternate : AlertButton::Default;
    }

private:
    Input& m_input;
    Episode& m_episode;
    VirtualComputer& m_computer;
    bool m_isOpen = false;
};

class Evening {
public:
    static constexpr std::uint64_t NewDriveSectors = 131072;

    explicit Evening(Input& input) : m_input(input) {
        m_computer.usb.addHandleLayer([this](std::unique_ptr<UsbDeviceInterface> handle) {
            return std::make_unique<LyingDevice>(std::move(handle), m_input, m_episode);
        });
        m_computer.plug(m_other);
        m_computer.diskTool.setBeforeRun(
            [other = m_computer.disks.all().front()->bsdName](const std::string& disk) {
                require(!disk.starts_with(other), "another's disk is left alone");
            });
        fillPorts(m_input.takeByte());
    }

    void play() {
        m_utility.start();
        checkWindow();
        while (!m_input.isEmpty() && !m_utility.hasQuit()) {
            act();
        }
    }

private:
    void fillPorts(std::uint8_t which) {
        m_drive = makeSomeDrive(which);
        constexpr std::array Results{kIOReturnNotPrivileged, kIOReturnNotPermitted,
                                     kIOReturnExclusiveAccess, kIOReturnNoDevice};
        if ((which & 8U) != 0) {
            m_drive->describe().openResult = Results.at(which >> 6U);
        }
        if ((which & 16U) != 0) {
            m_computer.plug(makeDrive("ZD0000000000B2", NewDriveSectors));
        }
        if ((which & 32U) == 0) {
            m_computer.plug(m_drive);
        }
    }

    [[nodiscard]] std::shared_ptr<DriveOnBus> makeSomeDrive(std::uint8_t which) {
        if (which % 4 == 0) {
            return makeDrive("ZD0000000000A1", NewDriveSectors);
        }
        DriveSetup setup{.areas = {{.mebibytes = 2}, {.mebibytes = 2, .isSecure = true}}};
        if (which % 4 == 2) {
            setup.secondPassword = "second";
        }
        if (which % 4 == 3) {
            setup.areas[1].label = "PRIVATE";
            setup.autoClearSeconds = 86400;
            setup.showsRemainingTime = true;
        }
        auto drive = makePreparedDrive(setup, m_computer.clock.worldTime());
        require(drive != nullptr, "the drive is prepared");
        if ((which & 4U) != 0) {
            drive->drive().loseClock(m_computer.clock.worldTime());
        }
        return drive;
    }

    /// One thing that happens, and what has come of it.
    void act() {
        const std::uint8_t choice = m_input.takeByte();
        constexpr std::uint8_t Controls = 0xC0;
        if (choice >= Controls) {
            happen(choice);
        } else if (Window* const window = m_person.visibleWindow()) {
            use(*window);
        }
        m_computer.settle();
        checkWindow();
    }

    void happen(std::uint8_t choice) {
        constexpr std::array Verbs{DiskVerb::Umount, DiskVerb::Eject, DiskVerb::EraseDisk};
        m_episode = {};
        const unsigned which = choice >> 2U & 0xFU;
        switch (choice & 0x3U) {
        case 0:
            return m_computer.unplug(m_drive);
        case 1:
            return m_computer.plug(m_drive);
        case 2:
            return m_computer.diskTool.setBehaviour(Verbs.at(which % Verbs.size()),
                                                    ToolBehaviour::Fails);
        default:
            return m_computer.advance(std::chrono::seconds(1 + which));
        }
    }

    void use(Window& window) {
        const std::uint16_t wanted = m_input.takeWord();
        QList<QWidget*> controls = window.findChildren<QWidget*>();
        controls.removeIf([](const QWidget* control) { return !isOfUse(*control); });
        if (controls.isEmpty()) {
            return;
        }
        QWidget& control = **std::ranges::min_element(controls, {}, [&](const QWidget* candidate) {
            return static_cast<std::uint16_t>(signOf(*candidate) - wanted);
        });
        const QByteArray name = control.objectName().toLatin1();
        if (qobject_cast<QLineEdit*>(&control) != nullptr) {
            m_person.type(name, text());
        } else if (const auto* const box = qobject_cast<QComboBox*>(&control)) {
            m_person.choose(name, m_input.takeByte() % std::max(1, box->count()));
        } else {
            press(name);
        }
    }

    /// A number that stands for a control, whatever others there are.
    [[nodiscard]] static std::uint16_t signOf(const QWidget& control) {
        std::uint32_t sign = 0;
        for (const char letter : control.objectName().toLatin1()) {
            sign = sign * 31U + static_cast<std::uint8_t>(letter);
        }
        return static_cast<std::uint16_t>(sign);
    }

    [[nodiscard]] static bool isOfUse(const QWidget& control) {
        const auto* const line = qobject_cast<const QLineEdit*>(&control);
        const bool isUsed = control.inherits("QAbstractButton") || control.inherits("QComboBox") ||
                            (line != nullptr && !line->isReadOnly());
        return isUsed && control.isVisible() && control.isEnabled() &&
               !control.objectName().isEmpty() && !control.objectName().startsWith(u"qt_");
    }

    [[nodiscard]] QString text() {
        constexpr std::array Texts{"first", "second", "new", "0A1B", "1", "2", "3", "20", ""};
        const std::uint8_t choice = m_input.takeByte();
        if (choice < Texts.size()) {
            return QString::fromLatin1(Texts[choice]);
        }
        QString typed;
        for (const std::uint8_t byte : m_input.takeBytes(choice % 40U)) {
            typed += QChar(byte);
        }
        return typed;
    }

    /// A dialog that opens is used as well, and closed in the end.
    void press(const QByteArray& button) {
        const QWidget* const before = QApplication::activeModalWidget();
        QTimer opened;
        opened.setSingleShot(true);
        QObject::connect(&opened, &QTimer::timeout, [&] {
            auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            while (dialog != nullptr && dialog != before && dialog->isVisible()) {
                if (m_input.isEmpty() || m_utility.hasQuit()) {
                    dialog->reject();
                } else {
                    act();
                }
            }
        });
        opened.start(0);
        m_episode = {};
        m_episode.pressed = button.toStdString();
        m_person.press(button);
    }

    void checkWindow() {
        using enum SecurityState;
        if (m_utility.hasQuit()) {
            return;
        }
        const std::string before = std::exchange(m_window, m_person.visibleWindowName());
        if (m_window == before) {
            return;
        }
        if (m_window == "UnlockingWindow") {
            require(m_episode.wasTold({StateUnlocking}), "an unlocked drive has said so");
        } else if (m_window == "UnlockedWindow") {
            require(m_episode.hasAuthenticated && before == "AuthenticateWindow",
                    "a drive is unlocked by its password");
        } else if (m_window == "AuthenticateWindow") {
            require(m_episode.wasTold({StateLocked, StatePasswordPending}),
                    "a locked drive asks for its password");
        } else if (m_window == "MainSettingsWindow" && !isDialog(before)) {
            require(m_episode.pressed.ends_with("Setup") ||
                        m_episode.wasTold({StateNoPassword, StateFullLock}),
                    "settings are for who is in, or where nobody is kept out");
        } else if (m_window == "ZeltoSettingWindow") {
            require(m_episode.pressed == "MainSettingsOKButton", "a set-up begins with OK");
        } else if (m_window.empty()) {
            require(!m_episode.states.empty() && !hasWindow(m_episode.states.back()),
                    "a program without a window has ended, or its drive is idle");
        }
    }

    [[nodiscard]] static bool isDialog(const std::string& window) {
        static const std::set<std::string> Dialogs{"AreaSettingsWindow", "PasswordSettingsWindow",
                                                   "PasswordChangeWindow", "EncryptionKeyWindow"};
        return Dialogs.contains(window);
    }

    [[nodiscard]] static bool hasWindow(SecurityState state) {
        return state <= SecurityState::StateFullLock && state != SecurityState::StateIdle;
    }

    Input& m_input;
    Episode m_episode;
    VirtualComputer m_computer;
    Table m_alerts{m_input, m_episode, m_computer};
    Person m_person{[](const std::string& what) { require(false, what.c_str()); }};
    std::shared_ptr<ForeignDisk> m_other = std::make_shared<ForeignDisk>(2048);
    std::shared_ptr<DriveOnBus> m_drive;
    UtilityProcess m_utility{m_computer, m_alerts};
    std::string m_window;
};

/// The one application that all windows need, without a display.
void beginApplication() {
    static QApplication* const application = [] {
        static int count = 1;
        static std::array<char, 6> name{"zelto"};
        static std::array<char*, 2> arguments{name.data(), nullptr};
        qputenv("QT_QPA_PLATFORM", "offscreen");
        auto* const made = new QApplication(count, arguments.data());
        initResources();
        installStrings();
        return made;
    }();
    (void)application;
}

} // namespace
} // namespace zelto::test

/// The font library keeps what it knows of fonts where no search for leaks finds it.
extern "C" const char* __lsan_default_suppressions();
extern "C" const char* __lsan_default_suppressions() {
    return "leak:libfontconfig";
}

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace zelto::test;
    beginApplication();
    Input input(data, size);
    Evening(input).play();
    return 0;
}
