#pragma once

#include "platform/Registry.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace zelto::test {

/// One entry of a registry tree, as a test writes it down.
struct RegistryNode {
    std::optional<std::string> name;
    RegistryProperties properties{};
    std::vector<RegistryNode> children{};

    std::optional<std::string> className = "IOService";
    bool isService = true;
    bool propertiesReadable = true;
    bool childrenListable = true;
    /// Instead of `children`: the child at an index, null at the end. For trees without end.
    std::function<const RegistryNode*(std::size_t index)> childAt{};

    [[nodiscard]] const RegistryNode* child(std::size_t index) const {
        if (childAt) {
            return childAt(index);
        }
        return index < children.size() ? &children[index] : nullptr;
    }
};

/// The tree below one node, which outlives it. Counts what a walk takes from it.
class ScriptedRegistry : public Registry {
public:
    explicit ScriptedRegistry(const RegistryNode& root) : m_root(&root) {}
    /// A computer without a registry.
    ScriptedRegistry() = default;

    [[nodiscard]] std::unique_ptr<RegistryEntry>
    IORegistryGetRootEntry(const OpenedDevice& /*opened*/) override {
        return m_root == nullptr ? nullptr : std::make_unique<Entry>(*m_root, m_entriesTaken);
    }

    [[nodiscard]] std::size_t entriesTaken() const { return m_entriesTaken; }

private:
    class Entry : public RegistryEntry {
    public:
        Entry(const RegistryNode& node, std::size_t& entriesTaken)
            : m_node(node), m_entriesTaken(entriesTaken) {
            ++entriesTaken;
        }

        [[nodiscard]] std::optional<std::string>
        IORegistryEntryGetNameInPlane(const std::string& plane) const override {
            return plane == "IOService" ? m_node.name : std::nullopt;
        }
        [[nodiscard]] std::optional<std::string> IOObjectGetClass() const override {
            return m_node.className;
        }
        [[nodiscard]] bool IOObjectConformsTo(const std::string& className) const override {
            return m_node.isService && className == "IOService";
        }
        [[nodiscard]] std::optional<RegistryProperties>
        IORegistryEntryCreateCFProperties() const override {
            return m_node.propertiesReadable ? std::optional(m_node.properties) : std::nullopt;
        }
        [[nodiscard]] std::unique_ptr<RegistryIterator>
        IORegistryEntryGetChildIterator(const std::string& plane) const override {
            if (!m_node.childrenListable || plane != "IOService") {
                return nullptr;
            }
            return std::make_unique<Iterator>(m_node, m_entriesTaken);
        }

    private:
        const RegistryNode& m_node;
        std::size_t& m_entriesTaken;
    };

    class Iterator : public RegistryIterator {
    public:
        Iterator(const RegistryNode& parent, std::size_t& entriesTaken)
            : m_parent(parent), m_entriesTaken(entriesTaken) {}

        [[nodiscard]] std::unique_ptr<RegistryEntry> IOIteratorNext() override {
            const RegistryNode* const child = m_parent.child(m_next++);
            return child == nullptr ? nullptr : std::make_unique<Entry>(*child, m_entriesTaken);
        }

    private:
        const RegistryNode& m_parent;
        std::size_t& m_entriesTaken;
        std::size_t m_next = 0;
    };

    const RegistryNode* m_root = nullptr;
    std::size_t m_entriesTaken = 0;
};

} // namespace zelto::test
