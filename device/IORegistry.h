#pragma once

#include "platform/Registry.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/// Which of the system's disks are a drive's: a walk of the registry tree, depth first, that finds
/// the drive's USB device entry and collects the BSD names below it.
namespace zelto {

/// The drive whose volumes are wanted.
struct ScanTarget {
    std::uint16_t vendor = 0;
    std::uint16_t product = 0;
    std::string serial;
    /// 0: the BSD names of every volume of the drive; n: only those of its disk number n.
    std::uint8_t diskNumber = 0;
    /// Where it is open (UsbDeviceInterface::GetLocationID), so that no other drive of the same
    /// serial number is taken for it; 0: the first drive that says so of itself.
    std::uint32_t location = 0;
};

enum class ScanPhase : std::uint32_t {
    /// Still looking for the drive's USB device entry.
    Looking = 0,
    /// Inside that entry's subtree. (There is no phase 1.)
    Collecting = 2,
    Complete = 3,
};

/// The working record of one walk.
struct ScanState {
    /// Entries that one walk looks at before it gives up. The largest registries have some
    /// thousands; one that offers more has no end, and the walk blocks the main thread.
    static constexpr std::uint32_t MaximumEntries = 65536;
    /// Depth below the root that the walk follows. USB allows seven tiers and a disk is a dozen
    /// levels below its device; a deeper tree has a loop, and every level takes stack.
    static constexpr std::uint32_t MaximumDepth = 128;

    /// Always 0; entries are examined and the subtree is closed only while it is.
    std::uint32_t reserved = 0;
    ScanPhase phase = ScanPhase::Looking;
    /// Properties of the entry being examined.
    std::optional<std::string> serial;
    std::uint32_t vendor = 0;
    std::uint32_t product = 0;
    /// Where the drive's device entry was found.
    std::uint32_t foundDepth = 0;
    /// BSD names collected so far.
    std::vector<std::string> names;
    /// Whether BSD names are being taken at present.
    bool mediaMatch = false;
    /// What is left of MaximumEntries; at 0 the walk is broken off, not complete.
    std::uint32_t entriesLeft = MaximumEntries;
};

/// The class that entries are of, and the plane in which they are walked.
struct ScanNames {
    std::string className = "IOService";
    std::string planeName = "IOService";
};

/// The registry's name for a drive's disk: "KESTRIN ZELTO DISK2 Media" for number 2.
[[nodiscard]] std::string mediaName(std::uint8_t diskNumber);

/// BSD names of the chosen drive's volumes, as the latest walk found them.
extern std::vector<std::string> g_BsdNameList;

[[nodiscard]] bool IsScanComplete(const ScanState& state);

/// Examines one entry at `depth`: turns collecting by media name on and off, takes the entry's BSD
/// name while collecting, and recognises the drive's device entry by its own three properties. A
/// registry that cannot be read ends the process with an assertion.
void CheckPropertiesUsb(const RegistryEntry& entry, const ScanNames& names, ScanState& state,
                        std::uint32_t depth, const ScanTarget& target);

/// Takes one property of the entry being examined into the state.
void CheckPropertiesUsbSub(const std::string& key, const RegistryValue& value, ScanState& state);

class IORegistry {
public:
    IORegistry() = delete;

    /// Appends the BSD names below the target drive to `names`, in the tree's order. True when the
    /// drive was found and its subtree walked to its end; otherwise `names` stays as it is. A
    /// registry without end counts as a drive whose subtree has none. Blocks for the whole walk.
    /// A registry that cannot be read ends the process with an assertion.
    [[nodiscard]] static bool Scan_ZELTOusb(Registry& registry, const ScanTarget& target,
                                            std::vector<std::string>& names);

    /// One step of the walk: an entry, then its children. `hasNextSibling` is not used.
    static void Scan(const RegistryEntry& entry, bool hasNextSibling, std::uint32_t depth,
                     ScanState& state, const ScanNames& names, const ScanTarget& target);
};

} // namespace zelto
