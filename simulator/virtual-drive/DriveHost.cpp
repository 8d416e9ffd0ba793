#include "simulator/virtual-drive/DriveHost.h"

#include "simulator/drive/DriveNames.h"
#include "simulator/virtual-drive/RequestLog.h"

#include <utility>

namespace zelto::simulator {

DriveHost::DriveHost(EventLoop& loop, std::unique_ptr<VirtualDrive> drive, WallClock clock, Log log)
    : m_loop(loop),
      m_drive(std::move(drive)),
      m_clock(std::move(clock)),
      m_log(std::move(log)),
      m_faults([this](const auto& setup, auto sent) { return askFirmware(setup, sent); }),
      m_units(*m_drive, [this] { return now(); }),
      m_device(
          m_drive->serial(), [this](const auto& setup, auto sent) { return request(setup, sent); },
          m_units),
      m_server(
          loop, *this, [this] { followFirmware(); },
          [this](const std::string& line) { m_log(line); }) {}

DriveHost::~DriveHost() {
    if (m_drive->isPlugged()) {
        leaveBus(Presence::Unplugged);
    }
}

bool DriveHost::attachToKernel(const std::filesystem::path& controller, std::string& error) {
    m_kernel = std::make_unique<VhciPort>(controller);
    if (!m_kernel->isThere(error)) {
        m_kernel.reset();
    }
    return m_kernel != nullptr;
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

// What the session and the device ask

std::optional<UsbipDevice> DriveHost::offered() const {
    if (m_presence != Presence::Plugged) {
        return std::nullopt;
    }
    UsbipDevice device;
    device.configuration = m_device.configuration();
    return device;
}

/// The log shows what the computer gets, faults included.
std::optional<ControlReply> DriveHost::request(const SetupPacket& setup,
                                               std::span<const std::uint8_t> sent) {
    std::optional<ControlReply> reply = m_faults.request(setup, sent);
    m_log("request " + describeRequest(setup, sent, reply));
    if (m_faults.takeVanished()) {
        m_presence = Presence::Vanishing;
    }
    return reply;
}

ControlReply DriveHost::askFirmware(const SetupPacket& setup, std::span<const std::uint8_t> sent) {
    ControlReply reply = m_drive->control(setup, sent, now());
    if (m_drive->takeReconnect()) {
        m_presence = Presence::Leaving;
        later(LingerTime, [this] { replug(); });
    }
    return reply;
}

} // namespace zelto::simulator
