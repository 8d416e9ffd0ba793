#include "platform/linux/LinuxUsb.h"

#include <QSocketNotifier>

#include <algorithm>
#include <utility>

namespace zelto::linux_platform {

namespace {

/// Iterators are numbered from 1, in slot order; the port's number is none of theirs.
constexpr IOObject PortNumber = 0x100;

bool matches(const UdevDevice& device, const UsbMatching& matching) {
    return device.idVendor && device.idProduct && *device.idVendor == matching.idVendor &&
           *device.idProduct == matching.idProduct;
}

class LinuxUsbService final : public UsbService {
public:
    LinuxUsbService(UsbAnnouncement announcement, std::shared_ptr<const UsbContext> context,
                    const Waiting& waiting, OpenPatience patience,
                    DeparturePatience departurePatience)
        : m_announcement(std::move(announcement)),
          m_context(std::move(context)),
          m_waiting(waiting),
          m_patience(patience),
          m_departurePatience(std::move(departurePatience)) {}

    std::uint32_t GetLocationID() const override { return m_announcement.location; }

    std::unique_ptr<UsbDeviceInterface> IOCreatePlugInInterfaceForService() override {
        if (m_announcement.node.empty()) {
            return nullptr;
        }
        return std::make_unique<LinuxUsbDevice>(m_announcement, m_context, m_waiting, m_patience,
                                                m_departurePatience);
    }

private:
    UsbAnnouncement m_announcement;
    std::shared_ptr<const UsbContext> m_context;
    const Waiting& m_waiting;
    OpenPatience m_patience;
    DeparturePatience m_departurePatience;
};

UsbAnnouncement announce(const UdevDevice& device, std::shared_ptr<bool> isTaken,
                         std::shared_ptr<const UdevMonitor> monitor) {
    UsbAnnouncement announcement;
    announcement.isTaken = std::move(isTaken);
    announcement.syspath = device.syspath;
    announcement.node = device.node;
    announcement.location = device.location;
    announcement.identity = {device.idVendor.value_or(0), device.idProduct.value_or(0),
                             device.bcdDevice.value_or(0), 0};
    announcement.accessRule = [known = device.accessRule, syspath = device.syspath,
                               monitor = std::move(monitor)] {
        return known == AccessRule::Present ? known : monitor->accessRule(syspath);
    };
    return announcement;
}

} // namespace

LinuxUsb::LinuxUsb(const Waiting& waiting, OpenPatience patience,
                   DeparturePatience departurePatience)
    : m_waiting(waiting),
      m_patience(patience),
      m_departurePatience(std::move(departurePatience)),
      m_monitor(std::make_shared<UdevMonitor>()),
      m_context(std::make_shared<UsbContext>()) {}

LinuxUsb::~LinuxUsb() = default;

IOObject LinuxUsb::IONotificationPortCreate() {
    if (!m_monitor->listen()) {
        return 0;
    }
    if (!m_notifier) {
        m_notifier =
            std::make_unique<QSocketNotifier>(m_monitor->descriptor(), QSocketNotifier::Read);
        connect(m_notifier.get(), &QSocketNotifier::activated, this, &LinuxUsb::readMonitor);
    }
    return PortNumber;
}

void LinuxUsb::IONotificationPortDestroy(IOObject port) noexcept {
    if (port == PortNumber) {
        m_monitor->silence();
    }
}

IOObject LinuxUsb::IOServiceAddMatchingNotification(IOObject, UsbEvent event,
                                                    const UsbMatching& matching,
                                                    Callback callback) {
    const auto free = std::ranges::find_if(
        m_iterators, [](const Iterator& iterator) { return !iterator.inUse.load(); });
    if (free == m_iterators.end()) {
        return 0;
    }
    free->event = event;
    free->matching = matching;
    free->callback = std::move(callback);
    free->waiting.clear();
    free->armed = false;
    free->inUse = true;
    // The monitor listens already, so nothing is lost between this listing and the first event;
    // what comes in both is recognised by its place and node.
    resynchronise();
    free->waiting.clear();
    for (const auto& [syspath, stay] : m_present) {
        if (event == UsbEvent::FirstMatch && matches(stay.device, matching)) {
            free->waiting.push_back(stay);
        }
    }
    // The listing may have brought news for the iterators that were there before.
    QMetaObject::invokeMethod(this, &LinuxUsb::callBack, Qt::QueuedConnection);
    return static_cast<IOObject>(free - m_iterators.begin()) + 1;
}

std::unique_ptr<UsbService> LinuxUsb::IOIteratorNext(IOObject iterator) {
    auto* found = find(iterator);
    if (found == nullptr) {
        return nullptr;
    }
    if (found->waiting.empty()) {
        found->armed = true;
        return nullptr;
    }
    const auto stay = std::move(found->waiting.front());
    found->waiting.pop_front();
    return std::make_unique<LinuxUsbService>(announce(stay.device, stay.isTaken, m_monitor),
                                             m_context, m_waiting, m_patience, m_departurePatience);
}

void LinuxUsb::IOObjectRelease(IOObject iterator) noexcept {
    if (auto* found = find(iterator)) {
        found->inUse = false;
    }
}

LinuxUsb::Iterator* LinuxUsb::find(IOObject iterator) {
    if (iterator == 0 || iterator > m_iterators.size()) {
        return nullptr;
    }
    auto& found = m_iterators[iterator - 1];
    return found.inUse.load() ? &found : nullptr;
}

void LinuxUsb::readMonitor() {
    const auto batch = m_monitor->drain();
    if (m_monitor->isSilenced()) {
        // Where the socket was there is now a file that is always readable.
        m_notifier->setEnabled(false);
        return;
    }
    for (const auto& device : batch.events) {
        apply(device);
    }
    if (batch.overflowed) {
        resynchronise();
    }
    callBack();
}

void LinuxUsb::apply(const UdevDevice& device) {
    if (device.action == "remove") {
        leave(device);
    } else if (device.action == "add" || device.action == "bind" || device.action == "change") {
        arrive(device);
    }
}

void LinuxUsb::resynchronise() {
    Present gone = m_present;
    for (const auto& device : m_monitor->list()) {
        gone.erase(device.syspath);
        arrive(device);
    }
    for (const auto& [syspath, stay] : gone) {
        leave(stay.device);
    }
}

/// A device can be listed or announced before its attributes can be read or before it may be
/// opened, so until somebody has opened it, every event of it is its arrival once more.
void LinuxUsb::arrive(const UdevDevice& device) {
    auto known = m_present.find(device.syspath);
    if (known != m_present.end() && known->second.device.node != device.node) {
        leave(UdevDevice(known->second.device)); // its removal was lost
        known = m_present.end();
    }
    const bool isListedAgain = known != m_present.end() && device.action.empty();
    auto& stay = m_present[device.syspath];
    // An event that is read late finds the attributes gone; the removal still has to match.
    if (known == m_present.end() || device.idVendor) {
        stay.device = device;
    }
    if (!isListedAgain && !*stay.isTaken) {
        deliver(UsbEvent::FirstMatch, stay);
    }
}

/// A removal that is read late may be that of the stay before, in the same place.
void LinuxUsb::leave(const UdevDevice& device) {
    const auto known = m_present.find(device.syspath);
    if (known != m_present.end() && known->second.device.node == device.node) {
        deliver(UsbEvent::Terminate, m_present.extract(known).mapped());
    }
}

void LinuxUsb::deliver(UsbEvent event, const Stay& stay) {
    for (auto& iterator : m_iterators) {
        const bool waitsAlready = std::ranges::find(iterator.waiting, stay.isTaken,
                                                    &Stay::isTaken) != iterator.waiting.end();
        if (iterator.inUse && iterator.event == event && !waitsAlready &&
            matches(stay.device, iterator.matching)) {
            iterator.waiting.push_back(stay);
        }
    }
}

void LinuxUsb::callBack() {
    for (std::size_t slot = 0; slot < m_iterators.size(); ++slot) {
        auto& iterator = m_iterators[slot];
        if (iterator.inUse && iterator.armed && !iterator.waiting.empty()) {
            iterator.armed = false;
            // A copy: the callback may give the iterator back.
            const auto callback = iterator.callback;
            callback(static_cast<IOObject>(slot) + 1);
        }
    }
}

} // namespace zelto::linux_platform
