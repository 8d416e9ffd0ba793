#pragma once

#include "platform/Registry.h"
#include "simulator/computer/VirtualDisks.h"

#include <memory>

namespace zelto::simulator {

struct RegistryNode;

/// The registry of the virtual computer: the root, its hubs, the USB devices with their disks and
/// partitions in order of arrival, and one more entry at the end.
class VirtualRegistry : public Registry {
public:
    VirtualRegistry(const VirtualUsbBus& bus, const VirtualDisks& disks)
        : m_bus(bus), m_disks(disks) {}

    [[nodiscard]] std::unique_ptr<RegistryEntry>
    IORegistryGetRootEntry(const OpenedDevice& opened) override;

private:
    [[nodiscard]] std::shared_ptr<RegistryNode> deviceNode(const Attachment& attachment,
                                                           const OpenedDevice& opened) const;

    const VirtualUsbBus& m_bus;
    const VirtualDisks& m_disks;
};

} // namespace zelto::simulator
