#include "platform/linux/SysfsEntry.h"

#include "platform/linux/TextFile.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <string_view>
#include <tuple>
#include <utility>

namespace zelto::linux_platform {

namespace {

namespace fs = std::filesystem;

/// An attribute is at most one page.
constexpr std::size_t AttributeLimit = 4096;
/// From a USB device down to a partition there are about eight folders; a tree that goes on for
/// ever is none of the kernel's.
constexpr unsigned DepthLimit = 24;

bool isDigit(char character) {
    return character >= '0' && character <= '9';
}

/// The run of digits at the start, without leading zeros; `rest` is left with what follows.
std::string_view takeNumber(std::string_view& rest) {
    const auto end = std::find_if_not(rest.begin(), rest.end(), isDigit);
    auto number = rest.substr(0, static_cast<std::size_t>(end - rest.begin()));
    rest.remove_prefix(number.size());
    number.remove_prefix(std::min(number.find_first_not_of('0'), number.size()));
    return number;
}

template <typename Number>
std::optional<Number> parseNumber(std::string_view text, int base) {
    Number number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number, base);
    if (error != std::errc{} || end != text.data() + text.size()) {
        return std::nullopt;
    }
    return number;
}

std::string trimmed(const std::string& text) {
    constexpr auto Padding = " \t\n\r\f\v";
    const auto first = text.find_first_not_of(Padding);
    if (first == std::string::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(Padding) - first + 1);
}

bool isThere(const fs::path& path) {
    std::error_code error;
    return fs::exists(path, error);
}

/// The name of the subsystem that the folder's link points to; empty when it is no device's.
std::string subsystem(const fs::path& folder) {
    std::array<char, AttributeLimit> place{};
    const auto length = ::readlink((folder / "subsystem").c_str(), place.data(), place.size());
    const std::string_view target(place.data(), length > 0 ? static_cast<std::size_t>(length) : 0);
    return std::string(target.substr(target.rfind('/') + 1));
}

SysfsEntry::Kind kindOf(const fs::path& folder) {
    const auto name = subsystem(folder);
    if (name == "usb" && isThere(folder / "idVendor")) {
        return SysfsEntry::Kind::UsbDevice;
    }
    if (name == "block") {
        return isThere(folder / "partition") ? SysfsEntry::Kind::Partition : SysfsEntry::Kind::Disk;
    }
    return SysfsEntry::Kind::Other;
}

std::vector<fs::path> subfolders(const fs::path& folder) {
    std::vector<fs::path> found;
    std::error_code error;
    for (fs::directory_iterator at(folder, error), end; !error && at != end; at.increment(error)) {
        // A link leads out of the subtree, and often back to its own beginning. The iterator knows
        // what is one without asking the kernel about each attribute.
        std::error_code ignored;
        if (!at->is_symlink(ignored) && at->is_directory(ignored)) {
            found.push_back(at->path());
        }
    }
    std::ranges::sort(found, [](const fs::path& left, const fs::path& right) {
        return precedesInKernelOrder(left.filename().string(), right.filename().string());
    });
    return found;
}

} // namespace

SysfsEntry::SysfsEntry(fs::path folder, unsigned depth)
    : m_folder(std::move(folder)), m_depth(depth), m_kind(kindOf(m_folder)) {}

std::string SysfsEntry::kernelName() const {
    return blockName(m_folder);
}

std::optional<std::string> SysfsEntry::attribute(const std::string& name) const {
    auto text = readTextFile(m_folder / name, AttributeLimit);
    if (text && text->ends_with('\n')) {
        text->pop_back();
    }
    return text;
}

std::optional<std::uint16_t> SysfsEntry::hexadecimal(const std::string& name) const {
    constexpr std::size_t Digits = 4;
    const auto text = attribute(name);
    if (!text || text->size() != Digits) {
        return std::nullopt;
    }
    return parseNumber<std::uint16_t>(*text, 16);
}

std::optional<std::uint64_t> SysfsEntry::decimal(const std::string& name) const {
    const auto text = attribute(name);
    return text ? parseNumber<std::uint64_t>(*text, 10) : std::nullopt;
}

std::optional<std::uint32_t> SysfsEntry::usbLocation() const {
    const auto bus = decimal("busnum");
    const auto number = decimal("devnum");
    if (!bus || !number) {
        return std::nullopt;
    }
    return static_cast<std::uint32_t>(*bus << 16U | *number);
}

std::vector<SysfsEntry> SysfsEntry::children() const {
    std::vector<SysfsEntry> found;
    addChildren(m_folder, m_depth, found);
    if (m_kind == Kind::Disk || m_kind == Kind::Partition) {
        addHolders(found);
    }
    return found;
}

/// What is stacked on a disk lies elsewhere in the tree; "holders" has a link to each.
void SysfsEntry::addHolders(std::vector<SysfsEntry>& found) const {
    std::vector<fs::path> folders;
    std::error_code error;
    for (fs::directory_iterator at(m_folder / "holders", error), end; !error && at != end;
         at.increment(error)) {
        std::error_code gone;
        if (auto folder = fs::canonical(at->path(), gone); !gone && m_depth < DepthLimit) {
            folders.push_back(std::move(folder));
        }
    }
    std::ranges::sort(folders, precedesInKernelOrder,
                      [](const fs::path& folder) { return folder.filename().string(); });
    for (auto& folder : folders) {
        found.emplace_back(std::move(folder), m_depth + 1);
    }
}

void SysfsEntry::addChildren(const fs::path& folder, unsigned depth,
                             std::vector<SysfsEntry>& found) const {
    if (depth >= DepthLimit) {
        return;
    }
    for (const auto& path : subfolders(folder)) {
        if (!isThere(path / "uevent")) {
            addChildren(path, depth + 1, found); // a folder that only groups, such as "block"
            continue;
        }
        SysfsEntry entry(path, depth + 1);
        const bool withoutMedium =
            entry.kind() == Kind::Disk && entry.decimal("size").value_or(0) == 0;
        if (entry.kind() != Kind::UsbDevice && !withoutMedium) {
            found.push_back(std::move(entry));
        }
    }
}

std::multimap<std::uint32_t, SysfsEntry> usbDevices(const fs::path& sysfs) {
    std::multimap<std::uint32_t, SysfsEntry> devices;
    std::error_code error;
    for (fs::directory_iterator at(sysfs / "bus/usb/devices", error), end; !error && at != end;
         at.increment(error)) {
        SysfsEntry entry(at->path());
        if (entry.kind() != SysfsEntry::Kind::UsbDevice) {
            continue; // a device's interfaces are listed beside it
        }
        if (const auto location = entry.usbLocation()) {
            devices.emplace(*location, std::move(entry));
        }
    }
    return devices;
}

std::string blockName(const fs::path& folder) {
    auto name = folder.filename().string();
    // Some block devices have a slash in their names, which a folder's name cannot have.
    std::ranges::replace(name, '!', '/');
    return name;
}

std::string mediaName(const SysfsEntry& disk) {
    std::string name;
    for (const auto* attribute : {"device/vendor", "device/model"}) {
        if (const auto text = trimmed(disk.attribute(attribute).value_or("")); !text.empty()) {
            name += text + ' ';
        }
    }
    return name + "Media";
}

bool precedesInKernelOrder(const std::string& left, const std::string& right) {
    std::string_view leftRest = left;
    std::string_view rightRest = right;
    while (!leftRest.empty() && !rightRest.empty()) {
        if (isDigit(leftRest.front()) && isDigit(rightRest.front())) {
            const auto leftNumber = takeNumber(leftRest);
            const auto rightNumber = takeNumber(rightRest);
            if (leftNumber != rightNumber) {
                return std::tuple(leftNumber.size(), leftNumber) <
                       std::tuple(rightNumber.size(), rightNumber);
            }
        } else if (leftRest.front() != rightRest.front()) {
            return leftRest.front() < rightRest.front();
        } else {
            leftRest.remove_prefix(1);
            rightRest.remove_prefix(1);
        }
    }
    return std::tuple(leftRest.size(), left) < std::tuple(rightRest.size(), right);
}

} // namespace zelto::linux_platform
