#include "simulator/computer/VirtualRegistry.h"

namespace zelto::simulator {

struct RegistryNode {
    std::string name;
    std::string className;
    RegistryProperties properties = {};
    std::vector<std::shared_ptr<RegistryNode>> children = {};
};

namespace {

using NodePointer = std::shared_ptr<RegistryNode>;

const std::string ServicePlane = "IOService";

class Entry : public RegistryEntry {
public:
    explicit Entry(NodePointer node) : m_node(std::move(node)) {}

    [[nodiscard]] std::optional<std::string>
    IORegistryEntryGetNameInPlane(const std::string& plane) const override {
        return plane == ServicePlane ? std::optional(m_node->name) : std::nullopt;
    }
    [[nodiscard]] std::optional<std::string> IOObjectGetClass() const override {
        return m_node->className;
    }
    [[nodiscard]] bool IOObjectConformsTo(const std::string& className) const override {
        const bool isService = m_node->className != "IORegistryEntry";
        return className == m_node->className || className == "IORegistryEntry" ||
               (isService && className == "IOService");
    }
    [[nodiscard]] std::optional<RegistryProperties>
    IORegistryEntryCreateCFProperties() const override {
        return m_node->properties;
    }
    [[nodiscard]] std::unique_ptr<RegistryIterator>
    IORegistryEntryGetChildIterator(const std::string& plane) const override;

private:
    NodePointer m_node;
};

class Iterator : public RegistryIterator {
public:
    explicit Iterator(NodePointer parent) : m_parent(std::move(parent)) {}

    [[nodiscard]] std::unique_ptr<RegistryEntry> IOIteratorNext() override {
        const auto& children = m_parent->children;
        return m_next < children.size() ? std::make_unique<Entry>(children[m_next++]) : nullptr;
    }

private:
    NodePointer m_parent;
    std::size_t m_next = 0;
};

std::unique_ptr<RegistryIterator>
Entry::IORegistryEntryGetChildIterator(const std::string& plane) const {
    return plane == ServicePlane ? std::make_unique<Iterator>(m_node) : nullptr;
}

NodePointer makeNode(std::string name, std::string className) {
    auto node = std::make_shared<RegistryNode>();
    node->name = std::move(name);
    node->className = std::move(className);
    return node;
}

NodePointer mediaNode(std::string name, const std::string& bsdName) {
    NodePointer node = makeNode(std::move(name), "IOMedia");
    node->properties = {{"Removable", std::monostate()}, {"BSD Name", bsdName}};
    return node;
}

void addStacked(RegistryNode& node, const std::string& bsdName, const VirtualDisks& disks) {
    for (const StackedVolume& volume : disks.stacked()) {
        if (volume.below == bsdName) {
            const NodePointer above = mediaNode("Media", volume.bsdName);
            addStacked(*above, volume.bsdName, disks);
            node.children.push_back(above);
        }
    }
}

NodePointer diskNode(const VirtualDisk& disk, const VirtualDisks& disks) {
    NodePointer node = mediaNode(disk.unitName + " Media", disk.bsdName);
    if (disk.hasVolume) {
        const NodePointer volume = mediaNode("Untitled 1", disk.volumeName());
        addStacked(*volume, disk.volumeName(), disks);
        node->children.push_back(volume);
    }
    addStacked(*node, disk.bsdName, disks);
    return node;
}

} // namespace

NodePointer VirtualRegistry::deviceNode(const Attachment& attachment,
                                        const OpenedDevice& opened) const {
    const UsbDescription& description = attachment.device->description();
    NodePointer node = makeNode(description.product, "IOUSBDevice");
    const bool isOpened = opened.location == attachment.location;
    if (isOpened || opened.location == 0) {
        node->properties = {{"sessionID", std::monostate()},
                            {"idProduct", std::int64_t{description.idProduct}},
                            {"bcdDevice", std::int64_t{description.bcdDevice}},
                            {"idVendor", std::int64_t{description.idVendor}},
                            {"USB Serial Number", isOpened ? opened.serial : description.serial}};
    }
    const NodePointer interface = makeNode("IOUSBInterface@0", "IOUSBInterface");
    node->children.push_back(interface);
    for (std::size_t unit = 0; unit < attachment.device->unitCount(); ++unit) {
        const NodePointer logicalUnit =
            makeNode("IOSCSILogicalUnitNub@" + std::to_string(unit), "IOSCSILogicalUnitNub");
        interface->children.push_back(logicalUnit);
        for (const auto& disk : m_disks.all()) {
            if (disk->attachment.get() == &attachment && disk->unit == unit) {
                logicalUnit->children.push_back(diskNode(*disk, m_disks));
            }
        }
    }
    return node;
}

std::unique_ptr<RegistryEntry> VirtualRegistry::IORegistryGetRootEntry(const OpenedDevice& opened) {
    NodePointer root = makeNode("Root", "IORegistryEntry");
    const NodePointer computer = makeNode("VirtualComputer", "IOPlatformExpertDevice");
    root->children.push_back(computer);
    const NodePointer controller = makeNode("EHC1", "IOUSBController");
    computer->children.push_back(controller);
    const NodePointer hub = makeNode("Root Hub", "IOUSBHubDevice");
    controller->children.push_back(hub);
    for (const auto& attachment : m_bus.attachments()) {
        hub->children.push_back(deviceNode(*attachment, opened));
    }
    root->children.push_back(makeNode("IOResources", "IOService"));
    return std::make_unique<Entry>(std::move(root));
}

} // namespace zelto::simulator
