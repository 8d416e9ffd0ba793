#pragma once

#include "platform/UsbNotifications.h"
#include "simulator/computer/PluggableDevice.h"
#include "simulator/computer/VirtualApplication.h"

#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <vector>

namespace zelto::simulator {

/// One stay of a device on the bus, from plug to unplug. Handles opened during the stay outlive
/// it and then answer, for ever, that the device is gone.
struct Attachment {
    std::shared_ptr<PluggableDevice> device;
    std::uint32_t location = 0;
    /// Null for a device without storage.
    std::unique_ptr<UnitStorage> units;
    bool isAttached = true;
    /// The media that the system has ejected, by unit; they stay away until they are exchanged.
    std::map<std::size_t, std::uint64_t> ejectedMedia = {};
    /// The handle that has opened it, for itself alone; null when none has.
    const UsbDeviceInterface* owner = nullptr;
};

/// The computer's USB ports. The physical verbs are plug, unplug and replug; the program sees
/// their effects through the notifications.
class VirtualUsbBus : public UsbNotifications {
public:
    using Device = std::shared_ptr<PluggableDevice>;
    /// Makes a layer around a handle (a FaultyDevice, say).
    using HandleLayer =
        std::function<std::unique_ptr<UsbDeviceInterface>(std::unique_ptr<UsbDeviceInterface>)>;

    VirtualUsbBus(VirtualClock& clock, VirtualApplication& application, EventLog& log)
        : m_clock(clock), m_application(application), m_log(log) {}

    void plug(const Device& device);
    void unplug(const Device& device);
    /// Out and in again, without time passing in between.
    void replug(const Device& device);
    [[nodiscard]] bool isPlugged(const Device& device) const;
    /// What is on the bus, in order of arrival.
    [[nodiscard]] const std::vector<std::shared_ptr<Attachment>>& attachments() const {
        return m_attachments;
    }

    /// How long a drive that was told to reconnect stays away; nothing: for ever.
    void setReconnectDelay(std::optional<std::chrono::seconds> delay) { m_reconnectDelay = delay; }
    /// A computer without any USB.
    void setHasService(bool hasService) { m_hasService = hasService; }
    /// From now on every handle that the program gets has this layer, around those of before.
    void addHandleLayer(HandleLayer layer) { m_handleLayers.push_back(std::move(layer)); }
    /// Called whenever devices or their media may have changed.
    void setListener(std::function<void()> changed) { m_changed = std::move(changed); }
    /// The process has ended; its notifications go with it.
    void endProcess();

    [[nodiscard]] bool IOMasterPort() override { return m_hasService; }
    [[nodiscard]] IOObject IONotificationPortCreate() override;
    void IONotificationPortDestroy(IOObject port) noexcept override;
    [[nodiscard]] IOObject IOServiceAddMatchingNotification(IOObject port, UsbEvent event,
                                                            const UsbMatching& matching,
                                                            Callback callback) override;
    [[nodiscard]] std::unique_ptr<UsbService> IOIteratorNext(IOObject iterator) override;
    void IOObjectRelease(IOObject iterator) noexcept override;

    /// One transfer of a handle. Called by the handles.
    [[nodiscard]] IOReturn request(Attachment& attachment, IOUSBDevRequest& request);
    [[nodiscard]] std::unique_ptr<UsbDeviceInterface>
    makeHandle(const std::shared_ptr<Attachment>& attachment);

private:
    struct Iterator {
        IOObject port = 0;
        UsbEvent event = UsbEvent::FirstMatch;
        UsbMatching matching;
        Callback callback;
        std::deque<std::shared_ptr<Attachment>> pending;
        /// It has been drained: the next event is to be called out.
        bool isArmed = false;
        bool isReleased = false;
    };

    void announce(UsbEvent event, const std::shared_ptr<Attachment>& attachment);
    void callOut(IOObject id);
    void reconnect(const Device& device);
    [[nodiscard]] IOReturn standardRequest(const Attachment& attachment, IOUSBDevRequest& request);
    [[nodiscard]] bool delivers(const Iterator& iterator) const;
    void notifyChanged() const;

    VirtualClock& m_clock;
    VirtualApplication& m_application;
    EventLog& m_log;
    std::vector<std::shared_ptr<Attachment>> m_attachments;
    /// Told to reconnect, away for the moment; pulling the plug meanwhile makes that for good.
    std::set<Device> m_comingBack;
    std::map<IOObject, Iterator> m_iterators;
    /// The port that events go through; 0 while there is none.
    IOObject m_port = 0;
    IOObject m_lastObject = 0;
    std::uint32_t m_lastLocation = 0;
    std::optional<std::chrono::seconds> m_reconnectDelay = std::chrono::seconds(2);
    bool m_hasService = true;
    std::vector<HandleLayer> m_handleLayers;
    std::function<void()> m_changed;
};

} // namespace zelto::simulator
