#pragma once

#include "platform/Registry.h"
#include "simulator/computer/VirtualDisks.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace zelto::simulator {

/// An entry of the registry tree, free to be bent by a test.
struct RegistryNode {
    enum class Endless {
        No,
        /// The list of its children never ends.
        Children,
        /// It is its own only child.
        Depth,
    };

    std::string name;
    std::string className = "IOService";
    RegistryProperties properties = {};
    std::vector<std::shared_ptr<RegistryNode>> children = {};
    bool isService = true;
    bool nameFails = false;
    bool classFails = false;
    bool propertiesFail = false;
    bool childrenFail = false;
    Endless endless = Endless::No;
};

/// The registry of the virtual computer: the root, its hubs, the USB devices with their disks and
/// partitions in order of arrival, and one more entry at the end.
class VirtualRegistry : public Registry {
public:
    VirtualRegistry(const VirtualUsbBus& bus, const VirtualDisks& disks)
        : m_bus(bus), m_disks(disks) {}

    [[nodiscard]] std::unique_ptr<RegistryEntry> IORegistryGetRootEntry() override;

    /// A system without a registry.
    void setMissing(bool missing) { m_missing = missing; }
    /// Bends each tree before the program gets it.
    void setEdit(std::function<void(RegistryNode& root)> edit) { m_edit = std::move(edit); }

    /// The tree as it stands. The first node of a name, depth first; null when there is none.
    [[nodiscard]] std::shared_ptr<RegistryNode> tree() const;
    [[nodiscard]] static RegistryNode* findNode(RegistryNode& from, const std::string& name);

private:
    [[nodiscard]] std::shared_ptr<RegistryNode> deviceNode(const Attachment& attachment) const;

    const VirtualUsbBus& m_bus;
    const VirtualDisks& m_disks;
    bool m_missing = false;
    std::function<void(RegistryNode&)> m_edit;
};

} // namespace zelto::simulator
