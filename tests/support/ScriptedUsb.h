#pragma once

#include "platform/UsbNotifications.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <deque>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace zelto::test {

/// A USB service with devices that the test plugs in and pulls out. Handles are small numbers in
/// the order of creation: the port 1, the iterator of arrivals 2, that of removals 3.
class ScriptedUsb : public UsbNotifications {
public:
    /// A device to arrive; null is a service that has no interface (left again, say).
    using Device = std::unique_ptr<UsbDeviceInterface>;

    // The service's nature, set before it is used.
    bool hasMasterPort = true;
    bool hasPort = true;
    bool registrationsWork = true;
    /// Says every release on the standard error stream, for tests of a process that ends.
    bool speaks = false;

    // What happened to it.
    std::vector<std::string> calls;
    std::vector<UsbMatching> matchings;

    /// Before set-up: the device is there already. After it: it waits for the next event.
    void plug(Device device) { m_attached.push_back(std::move(device)); }

    /// Everything plugged since the last event arrives now.
    void deliverArrivals() { deliver(UsbEvent::FirstMatch); }

    /// So many devices leave now that nobody has seen.
    void deliverRemovals(std::size_t count) {
        m_left.insert(m_left.end(), count, 0);
        deliver(UsbEvent::Terminate);
    }
    /// The device of that stay leaves now.
    void deliverRemovalOf(std::uint32_t location) {
        m_left.push_back(location);
        deliver(UsbEvent::Terminate);
    }

    [[nodiscard]] std::size_t undrained() const { return m_attached.size() + m_left.size(); }

    [[nodiscard]] bool IOMasterPort() override {
        calls.emplace_back("IOMasterPort");
        return hasMasterPort;
    }
    [[nodiscard]] IOObject IONotificationPortCreate() override {
        calls.emplace_back("IONotificationPortCreate");
        return hasPort ? ++m_latest : 0;
    }
    void IONotificationPortDestroy(IOObject port) noexcept override { note("destroy", port); }

    [[nodiscard]] IOObject IOServiceAddMatchingNotification(IOObject port, UsbEvent event,
                                                            const UsbMatching& matching,
                                                            Callback callback) override {
        const bool arrivals = event == UsbEvent::FirstMatch;
        calls.push_back((arrivals ? "FirstMatch on port " : "Terminate on port ") +
                        std::to_string(port));
        matchings.push_back(matching);
        if (!registrationsWork) {
            return 0;
        }
        const IOObject iterator = ++m_latest;
        m_registrations[iterator] = {event, std::move(callback)};
        return iterator;
    }

    [[nodiscard]] std::unique_ptr<UsbService> IOIteratorNext(IOObject iterator) override {
        const auto registration = m_registrations.find(iterator);
        if (registration == m_registrations.end()) {
            return nullptr;
        }
        const bool arrivals = registration->second.event == UsbEvent::FirstMatch;
        if (arrivals ? m_attached.empty() : m_left.empty()) {
            calls.push_back("drained " + std::to_string(iterator));
            return nullptr;
        }
        if (!arrivals) {
            const auto location = m_left.front();
            m_left.pop_front();
            return std::make_unique<Service>(nullptr, location);
        }
        auto device = std::move(m_attached.front());
        m_attached.pop_front();
        const auto location = device ? device->GetLocationID() : 0;
        return std::make_unique<Service>(std::move(device), location);
    }

    void IOObjectRelease(IOObject iterator) noexcept override { note("release", iterator); }

private:
    class Service : public UsbService {
    public:
        Service(Device device, std::uint32_t location)
            : m_device(std::move(device)), m_location(location) {}
        [[nodiscard]] std::uint32_t GetLocationID() const override { return m_location; }
        [[nodiscard]] Device IOCreatePlugInInterfaceForService() override {
            return std::move(m_device);
        }

    private:
        Device m_device;
        std::uint32_t m_location;
    };

    struct Registration {
        UsbEvent event = UsbEvent::FirstMatch;
        Callback callback;
    };

    void deliver(UsbEvent event) {
        for (const auto& [iterator, registration] : m_registrations) {
            if (registration.event == event) {
                registration.callback(iterator);
            }
        }
    }

    void note(const char* what, IOObject object) {
        calls.push_back(what + (" " + std::to_string(object)));
        if (speaks) {
            static_cast<void>(std::fprintf(stderr, "%s %u,", what, object));
        }
    }

    IOObject m_latest = 0;
    std::map<IOObject, Registration> m_registrations;
    std::deque<Device> m_attached;
    std::deque<std::uint32_t> m_left;
};

} // namespace zelto::test
