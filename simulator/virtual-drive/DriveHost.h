#pragma once

#include "simulator/drive/DriveUnits.h"
#include "simulator/usb/ControlFaults.h"
#include "simulator/usb/StorageDevice.h"
#include "simulator/usbip/UsbipServer.h"
#include "simulator/usbip/VhciPort.h"

#include <chrono>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace zelto::simulator {

/// A virtual drive on a real bus: plugged in and pulled out as a person would, offered to other
/// computers over USB/IP and, where that is wanted, attached to this one's kernel. What the
/// firmware wants of the bus (leaving and coming back) is done here.
///
/// All on the event loop's thread; the drive, the units and the sessions know no other.
class DriveHost final : private UsbipExport {
public:
    using WallClock = std::function<Moment()>;
    using Log = std::function<void(const std::string& line)>;
    using Milliseconds = EventLoop::Milliseconds;

    /// From the answer to a reconnect request to leaving the bus: time for the answer to arrive.
    static constexpr Milliseconds LingerTime{100};
    /// How long the drive is away: long enough for every computer to notice.
    static constexpr Milliseconds AwayTime{500};
    /// How often attaching is tried again, while the controller still holds on to what was there.
    static constexpr Milliseconds RetryTime{200};

    /// The drive is not plugged in yet. `loop` has to outlive this; `log` is given every vendor
    /// request, and what happens to the drive, as lines.
    DriveHost(EventLoop& loop, std::unique_ptr<VirtualDrive> drive, WallClock clock, Log log);
    ~DriveHost() override;

    /// Offers the drive to other computers; see UsbipServer::listen.
    [[nodiscard]] bool listen(const std::string& address, std::string& error) {
        return m_server.listen(address, error);
    }
    [[nodiscard]] std::uint16_t port() const { return m_server.port(); }
    /// Whenever the drive is plugged in, it is plugged into this computer's kernel. False, and why
    /// in `error`, when there is no controller to attach to.
    [[nodiscard]] bool attachToKernel(const std::filesystem::path& controller, std::string& error);

    // What a person does. False: it is already so.
    [[nodiscard]] bool plug();
    [[nodiscard]] bool unplug();
    /// Out and in again, after AwayTime.
    void replug();

    // What time and accident do.
    void advance(std::chrono::seconds time);
    void loseClock();
    void setNotReadyReads(unsigned reads) { m_drive->setNotReadyReads(reads); }
    void failRequest(std::uint32_t count, FaultKind fault, std::optional<std::uint8_t> code) {
        m_faults.failRequest(count, fault, code);
    }

    /// The drive's condition on one line: plugged or not, who has it, its state, each unit's
    /// sectors (0 without a medium).
    [[nodiscard]] std::string describe();
    [[nodiscard]] bool isPlugged() const { return m_presence != Presence::Unplugged; }

    // For measuring and testing.

    /// A connection that has the device, as the kernel's would.
    void adopt(FileDescriptor socket) { m_server.adopt(std::move(socket)); }
    /// The device without a bus around it.
    [[nodiscard]] StorageDevice& deviceOnBus() { return m_device; }

private:
    enum class Presence : std::uint8_t {
        Unplugged,
        Plugged,
        /// Still on the bus, but deaf: to leave it as soon as the last answer has arrived.
        Leaving,
        /// Off the bus, to come back by itself.
        Returning,
        /// The drive vanished in the middle of a request.
        Vanishing,
    };

    // The session's view
    [[nodiscard]] std::optional<UsbipDevice> offered() const override;
    [[nodiscard]] bool isTaken() const override { return m_server.hasImporter(); }
    [[nodiscard]] StorageDevice& device() override { return m_device; }
    [[nodiscard]] bool isLeaving() const override { return m_presence != Presence::Plugged; }

    // The firmware's side of the device
    [[nodiscard]] std::optional<ControlReply> request(const SetupPacket& setup,
                                                      std::span<const std::uint8_t> sent);
    [[nodiscard]] ControlReply askFirmware(const SetupPacket& setup,
                                           std::span<const std::uint8_t> sent);

    [[nodiscard]] Moment now() const { return m_clock() + m_advanced; }
    void enterBus();
    void leaveBus(Presence next);
    void attach();
    void followFirmware();
    /// Calls `action` after `delay`, unless somebody plugs or unplugs the drive before.
    void later(Milliseconds delay, std::function<void()> action);

    EventLoop& m_loop;
    std::unique_ptr<VirtualDrive> m_drive;
    WallClock m_clock;
    Log m_log;
    std::chrono::seconds m_advanced{0};
    Presence m_presence = Presence::Unplugged;
    /// Counts pluggings and unpluggings: a delayed action of an earlier one is void.
    std::uint64_t m_episode = 0;
    ControlFaults m_faults;
    DriveUnits m_units;
    StorageDevice m_device;
    UsbipServer m_server;
    std::unique_ptr<VhciPort> m_kernel;
    bool m_hasReportedAttachError = false;
};

} // namespace zelto::simulator
