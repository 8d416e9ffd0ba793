#include "simulator/virtual-drive/DriveHost.h"

#include "simulator/virtual-drive/RequestLog.h"

#include <array>
#include <string_view>
#include <utility>

namespace zelto::simulator {

namespace {

std::string_view nameOf(SecurityState state) {
    switch (state) {
    case SecurityState::StateNoPassword:
        return "StateNoPassword";
    case SecurityState::StateIdle:
        return "StateIdle";
    case SecurityState::StateLocked:
        return "StateLocked";
    case SecurityState::StatePasswordPending:
        return "StatePasswordPending";
    case SecurityState::StateUnlocking:
        return "StateUnlocking";
    case SecurityState::StateFullLock:
        return "StateFullLock";
    }
    return "unknown";
}

} // namespace

/// The log shows what the computer gets, so it stands outside the faults.
class DriveHost::LoggedControl final : public VendorControl {
public:
    explicit LoggedControl(DriveHost& host) : m_host(host) {}

    [[nodiscard]] std::optional<ControlReply> request(const SetupPacket& setup,
                                                      std::span<const std::uint8_t> sent) override {
        std::optional<ControlReply> reply = m_host.m_faults.request(setup, sent);
        m_host.m_log("request " + describeRequest(setup, sent, reply));
        if (m_host.m_faults.takeVanished()) {
            m_host.m_presence = Presence::Vanishing;
        }
        return reply;
    }

private:
    DriveHost& m_host;
};

DriveHost::DriveHost(EventLoop& loop, std::unique_ptr<VirtualDrive> drive, WallClock clock, Log log)
    : m_loop(loop),
      m_drive(std::move(drive)),
      m_clock(std::move(clock)),
      m_log(std::move(log)),
      m_faults(*this),
      m_logged(std::make_unique<LoggedControl>(*this)),
      m_device(m_drive->serial(), *m_logged, *this),
      m_server(
          loop, *this, [this] { followFirmware(); },
          [this](const std::string& line) { m_log(line); }) {}

DriveHost::~DriveHost() {
    if (m_drive->isPlugged()) {
        leaveBus(Presence::Unplugged);
    }
}

bool DriveHost::listen(const std::string& address, std::string& error) {
    return m_server.listen(address, error);
}

bool DriveHost::attachToKernel(const std::filesystem::path& controller, std::string& error) {
    m_kernel = std::make_unique<VhciPort>(controller);
    if (!m_kernel->isThere()) {
        error = "no virtual host controller in " + controller.string() +
                " (is the module vhci_hcd loaded?)";
        m_kernel.reset();
        return false;
    }
    return true;
}

// Coming and going

bool DriveHost::plug() {
    if (m_presence != Presence::Unplugged) {
        return false;
    }
    enterBus();
    return true;
}

bool DriveHost::unplug() {
    if (m_presence == Presence::Unplugged) {
        return false;
    }
    leaveBus(Presence::Unplugged);
    return true;
}

void DriveHost::replug() {
    leaveBus(Presence::Returning);
    later(AwayTime, [this] { enterBus(); });
}

void DriveHost::enterBus() {
    ++m_episode;
    m_drive->plug(now());
    m_device.powerUp();
    m_presence = Presence::Plugged;
    m_log("plugged");
    m_hasReportedAttachError = false;
    attach();
}

void DriveHost::leaveBus(Presence next) {
    ++m_episode;
    // First the connection: to the computer, the drive is gone before anything else happens.
    m_server.dropImporter();
    if (m_kernel) {
        m_kernel->detach();
    }
    if (m_drive->isPlugged()) {
        m_drive->unplug(now());
        m_log("unplugged");
    }
    m_presence = next;
}

void DriveHost::attach() {
    if (!m_kernel) {
        return;
    }
    std::string error = "no socket pair";
    auto ends = makeSocketPair();
    if (ends && m_kernel->attach(ends->second.get(), UsbipDevice{}, error)) {
        m_server.adopt(std::move(ends->first));
        m_log("attached to port " + std::to_string(*m_kernel->port()));
        return;
    }
    if (!std::exchange(m_hasReportedAttachError, true)) {
        m_log("not attached yet: " + error);
    }
    later(RetryTime, [this] { attach(); });
}

void DriveHost::later(Milliseconds delay, std::function<void()> action) {
    m_loop.callAfter(delay, [this, episode = m_episode, action = std::move(action)] {
        if (episode == m_episode) {
            action();
        }
    });
}

void DriveHost::followFirmware() {
    if (m_presence == Presence::Vanishing) {
        leaveBus(Presence::Unplugged);
    }
}

// Time

void DriveHost::advance(std::chrono::seconds time) {
    m_advanced += time;
    m_device.noticeMedia();
}

void DriveHost::loseClock() {
    m_drive->loseClock(now());
    m_device.noticeMedia();
}

std::string DriveHost::describe() {
    std::string text = m_presence == Presence::Plugged ? "plugged" : "unplugged";
    if (m_server.hasImporter()) {
        text += " in-use";
    }
    if (m_kernel && m_kernel->port()) {
        text += " port=" + std::to_string(*m_kernel->port());
    }
    text += " serial=" + m_drive->serial();
    text += " state=" + std::string(nameOf(m_drive->state(now())));
    for (std::size_t unit = 0; unit < VirtualDrive::UnitCount; ++unit) {
        text += " unit" + std::to_string(unit + 1) + "=" +
                std::to_string(m_drive->sectorCount(unit, now()));
    }
    return text;
}

// What the session, the device and the units ask

std::optional<UsbipDevice> DriveHost::offered() const {
    if (m_presence != Presence::Plugged) {
        return std::nullopt;
    }
    UsbipDevice device;
    device.configuration = m_device.configuration();
    return device;
}

std::optional<ControlReply> DriveHost::request(const SetupPacket& setup,
                                               std::span<const std::uint8_t> sent) {
    ControlReply reply = m_drive->control(setup, sent, now());
    if (m_drive->takeReconnect()) {
        m_presence = Presence::Leaving;
        later(LingerTime, [this] { replug(); });
    }
    return reply;
}

std::optional<UnitMedium> DriveHost::medium(std::size_t unit) {
    const std::uint64_t sectors = m_drive->sectorCount(unit, now());
    if (sectors == 0) {
        return std::nullopt;
    }
    return UnitMedium{sectors, m_drive->mediaGeneration(unit, now())};
}

bool DriveHost::read(std::size_t unit, std::uint64_t firstSector, std::span<std::uint8_t> sectors) {
    return m_drive->read(unit, firstSector, sectors, now()) == StorageResult::Done;
}

bool DriveHost::write(std::size_t unit, std::uint64_t firstSector,
                      std::span<const std::uint8_t> sectors) {
    return m_drive->write(unit, firstSector, sectors, now()) == StorageResult::Done;
}

bool DriveHost::flush(std::size_t /*unit*/) {
    return m_drive->flush() == StorageResult::Done;
}

} // namespace zelto::simulator
