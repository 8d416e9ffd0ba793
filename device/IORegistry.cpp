#include "device/IORegistry.h"

#include "device/Assertion.h"

#include <memory>
#include <string_view>
#include <utility>

namespace zelto {

std::vector<std::string> g_BsdNameList;

namespace {

constexpr std::string_view ProductName = "KESTRIN ZELTO DISK";

constexpr const char* StatusAssertion = "status == KERN_SUCCESS";

/// What a read of the registry gave; reads that fail end the process.
template <typename Result>
Result assertRead(Result result) {
    if (!result) {
        failAssertion(StatusAssertion);
    }
    return result;
}

/// A text up to its first zero, as whoever receives it will read it.
std::string zeroTerminated(const std::string& text) {
    return text.c_str();
}

/// Nothing more will come of the walk.
bool isOver(const ScanState& state) {
    return IsScanComplete(state) || state.entriesLeft == 0;
}

/// Counts one entry; false when the tree turns out to have no end.
bool takeEntry(ScanState& state, std::uint32_t depth) {
    if (depth > ScanState::MaximumDepth) {
        state.entriesLeft = 0;
    } else if (state.entriesLeft > 0) {
        --state.entriesLeft;
    }
    return state.entriesLeft > 0;
}

bool isTargetDevice(const ScanState& state, const ScanTarget& target) {
    return state.vendor == target.vendor && state.product == target.product &&
           state.serial.value_or("") == target.serial;
}

} // namespace

std::string mediaName(std::uint8_t diskNumber) {
    return std::string(ProductName) + std::to_string(diskNumber) + " Media";
}

bool IsScanComplete(const ScanState& state) {
    return state.phase == ScanPhase::Complete;
}

void CheckPropertiesUsbSub(const std::string& key, const RegistryValue& value, ScanState& state) {
    const auto* const text = std::get_if<std::string>(&value);
    const auto* const number = std::get_if<std::int64_t>(&value);
    switch (state.phase) {
    case ScanPhase::Looking:
        if (key == "idVendor" && number != nullptr) {
            state.vendor = static_cast<std::uint32_t>(*number);
        } else if (key == "idProduct" && number != nullptr) {
            state.product = static_cast<std::uint32_t>(*number);
        } else if (key == "USB Serial Number" && text != nullptr) {
            state.serial = zeroTerminated(*text);
        }
        return;
    case ScanPhase::Collecting:
        if (state.mediaMatch && key == "BSD Name" && text != nullptr) {
            state.names.push_back(zeroTerminated(*text));
        }
        return;
    case ScanPhase::Complete:
        return;
    }
}

void CheckPropertiesUsb(const RegistryEntry& entry, const ScanNames& names, ScanState& state,
                        std::uint32_t depth, const ScanTarget& target) {
    const auto name = assertRead(entry.IORegistryEntryGetNameInPlane(names.planeName));
    // The drive's disks are told apart by their names alone; entries below a disk have other names
    // and belong to the disk that was named last.
    if (target.diskNumber != 0 && name->starts_with(ProductName)) {
        state.mediaMatch = *name == mediaName(target.diskNumber);
    }
    if (IsScanComplete(state)) {
        return;
    }
    static_cast<void>(assertRead(entry.IOObjectGetClass()));
    if (entry.IOObjectConformsTo(names.className)) {
        const auto properties = assertRead(entry.IORegistryEntryCreateCFProperties());
        for (const auto& [key, value] : *properties) {
            CheckPropertiesUsbSub(key, value, state);
        }
    }
    if (state.phase != ScanPhase::Looking) {
        return;
    }
    if (isTargetDevice(state, target)) {
        state.phase = ScanPhase::Collecting;
        state.foundDepth = depth;
        return;
    }
    // Each entry is judged on its own properties: nothing may add up across entries.
    state.vendor = 0;
    state.product = 0;
    state.serial.reset();
}

bool IORegistry::Scan_ZELTOusb(Registry& registry, const ScanTarget& target,
                               std::vector<std::string>& names) {
    const auto root = registry.IORegistryGetRootEntry({target.location, target.serial});
    if (!root) {
        failAssertion("service");
    }
    ScanState state;
    state.mediaMatch = target.diskNumber == 0;
    Scan(*root, false, 0, state, {}, target);
    if (!IsScanComplete(state)) {
        return false;
    }
    names.insert(names.end(), state.names.begin(), state.names.end());
    return true;
}

void IORegistry::Scan(const RegistryEntry& entry, bool /*hasNextSibling*/, std::uint32_t depth,
                      ScanState& state, const ScanNames& names, const ScanTarget& target) {
    if (isOver(state) || !takeEntry(state, depth)) {
        return;
    }
    if (state.reserved == 0 && state.phase == ScanPhase::Collecting && state.foundDepth >= depth) {
        state.phase = ScanPhase::Complete;
    }
    const auto children = assertRead(entry.IORegistryEntryGetChildIterator(names.planeName));
    if (state.reserved == 0) {
        CheckPropertiesUsb(entry, names, state, depth, target);
    }
    if (IsScanComplete(state)) {
        return;
    }
    auto child = children->IOIteratorNext();
    while (child && !isOver(state)) {
        auto next = children->IOIteratorNext();
        Scan(*child, next != nullptr, depth + 1, state, names, target);
        child = std::move(next);
    }
}

} // namespace zelto
