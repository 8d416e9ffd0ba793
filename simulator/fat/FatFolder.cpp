#include "simulator/fat/FatFolder.h"

#include "simulator/fat/LittleEndian.h"

#include <QString>

#include <algorithm>
#include <array>
#include <ranges>

namespace zelto::simulator::FatFolder {

namespace {

constexpr std::uint8_t LongNameAttributes = 0x0F;
constexpr std::uint8_t VolumeLabel = 0x08;
constexpr std::uint8_t Deleted = 0xE5;
constexpr std::uint8_t LastLongEntry = 0x40;
constexpr std::size_t UnitsPerLongEntry = 13;
constexpr std::size_t LongestName = 255;
constexpr std::size_t ShortNameSize = 11;
/// Where a long name's entry keeps its 13 UTF-16 units.
constexpr std::array<std::size_t, UnitsPerLongEntry> UnitOffsets{1,  3,  5,  7,  9,  14, 16,
                                                                 18, 20, 22, 24, 28, 30};
using ShortName = std::array<std::uint8_t, ShortNameSize>;

std::uint8_t checksum(std::span<const std::uint8_t> shortName) {
    unsigned sum = 0;
    for (const std::uint8_t byte : shortName.first(ShortNameSize)) {
        sum = ((sum & 1U) << 7U) + (sum >> 1U) + byte;
        sum &= 0xFFU;
    }
    return static_cast<std::uint8_t>(sum);
}

/// The short name as text; letter case by the two flags that other systems set.
std::string shortNameText(std::span<const std::uint8_t> slot) {
    std::string text;
    const auto take = [&](std::size_t from, std::size_t to, bool lowerCase) {
        std::string part;
        for (std::size_t i = from; i < to; ++i) {
            const auto letter = static_cast<char>(slot[i]);
            part += slot[i] > 0x7E || slot[i] < ' ' ? '_' : letter;
        }
        part.erase(part.find_last_not_of(' ') + 1);
        if (lowerCase) {
            part = QString::fromStdString(part).toLower().toStdString();
        }
        return part;
    };
    text = take(0, 8, (slot[12] & 0x08U) != 0);
    const std::string extension = take(8, ShortNameSize, (slot[12] & 0x10U) != 0);
    return extension.empty() ? text : text + "." + extension;
}

/// Gathers the entries of a long name, which precede the short one in reverse order.
class LongNameReader {
public:
    void take(std::span<const std::uint8_t> slot, std::size_t index) {
        const unsigned order = slot[0] & 0x3FU;
        if ((slot[0] & LastLongEntry) != 0) {
            m_units.clear();
            m_firstSlot = index;
            m_expected = order;
            m_sum = slot[13];
        }
        if (order == 0 || order != m_expected || slot[13] != m_sum) {
            reset();
            return;
        }
        --m_expected;
        std::u16string part;
        for (const std::size_t offset : UnitOffsets) {
            part += static_cast<char16_t>(getLittleEndian<std::uint16_t>(slot, offset));
        }
        m_units.insert(0, part);
    }
    /// The name that goes with this short entry; nothing when there is none or it is damaged.
    [[nodiscard]] std::optional<std::string> name(std::span<const std::uint8_t> slot) const {
        if (m_units.empty() || m_expected != 0 || checksum(slot) != m_sum) {
            return std::nullopt;
        }
        const std::u16string units = m_units.substr(0, m_units.find(u'\0'));
        const std::string text = QString::fromStdU16String(units).toStdString();
        return isNameAllowed(text) ? std::optional(text) : std::nullopt;
    }
    [[nodiscard]] std::size_t firstSlot() const { return m_firstSlot; }
    void reset() {
        m_units.clear();
        m_expected = 0;
    }

private:
    std::u16string m_units;
    unsigned m_expected = 0;
    std::size_t m_firstSlot = 0;
    std::uint8_t m_sum = 0;
};

FatItem readShortEntry(std::span<const std::uint8_t> slot) {
    FatItem item;
    item.name = shortNameText(slot);
    item.attributes = slot[11];
    item.firstCluster = static_cast<std::uint32_t>(getLittleEndian<std::uint16_t>(slot, 20))
                            << 16U |
                        getLittleEndian<std::uint16_t>(slot, 26);
    item.modified = fromFatMoment(
        {getLittleEndian<std::uint16_t>(slot, 24), getLittleEndian<std::uint16_t>(slot, 22)});
    item.size = getLittleEndian<std::uint32_t>(slot, 28);
    return item;
}

bool equalIgnoringCase(const std::string& one, const std::string& other) {
    return QString::compare(QString::fromStdString(one), QString::fromStdString(other),
                            Qt::CaseInsensitive) == 0;
}

} // namespace

bool isNameAllowed(const std::string& name) {
    const QString text = QString::fromStdString(name);
    if (text.isEmpty() || text.size() > static_cast<qsizetype>(LongestName) ||
        text.toStdString() != name || name == "." || name == ".." || name.back() == '.' ||
        name.back() == ' ') {
        return false;
    }
    static const std::string Forbidden = "\"*/:<>?\\|";
    return std::ranges::none_of(name, [](char c) {
        return static_cast<unsigned char>(c) < ' ' || Forbidden.find(c) != std::string::npos;
    });
}

std::vector<FatItem> items(std::span<const std::uint8_t> folder) {
    std::vector<FatItem> found;
    LongNameReader longName;
    for (std::size_t index = 0; (index + 1) * SlotSize <= folder.size(); ++index) {
        const auto slot = folder.subspan(index * SlotSize, SlotSize);
        if (slot[0] == 0) {
            break;
        }
        if (slot[0] == Deleted || slot[0] == '.') {
            longName.reset();
        } else if (slot[11] == LongNameAttributes) {
            longName.take(slot, index);
        } else {
            if ((slot[11] & VolumeLabel) == 0) {
                FatItem item = readShortEntry(slot);
                const auto name = longName.name(slot);
                item.firstSlot = name ? longName.firstSlot() : index;
                item.slotCount = index - item.firstSlot + 1;
                item.name = name.value_or(item.name);
                found.push_back(std::move(item));
            }
            longName.reset();
        }
    }
    return found;
}

std::optional<FatItem> find(std::span<const std::uint8_t> folder, const std::string& name) {
    for (FatItem& item : items(folder)) {
        if (equalIgnoringCase(item.name, name)) {
            return std::move(item);
        }
    }
    return std::nullopt;
}

namespace {

bool isShortNameLetter(char c) {
    static const std::string Others = "$%'-_@~`!(){}^#&";
    return (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || Others.find(c) != std::string::npos;
}

/// The letters of one part of a name that a short name can hold, in capitals.
std::string shortPart(const std::string& part, std::size_t width) {
    std::string letters;
    for (const char c : QString::fromStdString(part).toUpper().toStdString()) {
        const bool continuation = (static_cast<unsigned char>(c) & 0xC0U) == 0x80U;
        if (c != ' ' && c != '.' && !continuation) {
            letters += isShortNameLetter(c) ? c : '_';
        }
    }
    return letters.substr(0, width);
}

ShortName makeShortName(const std::string& base, const std::string& extension) {
    ShortName name{};
    name.fill(' ');
    std::ranges::copy(base.substr(0, 8), name.begin());
    std::ranges::copy(extension.substr(0, 3), name.begin() + 8);
    return name;
}

bool holdsShortName(std::span<const std::uint8_t> folder, const ShortName& name) {
    for (std::size_t at = 0; at + SlotSize <= folder.size() && folder[at] != 0; at += SlotSize) {
        if (folder[at + 11] != LongNameAttributes &&
            std::ranges::equal(folder.subspan(at, ShortNameSize), name)) {
            return true;
        }
    }
    return false;
}

struct ChosenShortName {
    ShortName name{};
    /// The name says all: no long name is needed.
    bool isWholeName = false;
};

ChosenShortName chooseShortName(std::span<const std::uint8_t> folder, const std::string& name) {
    const std::size_t dot = name.rfind('.');
    const bool hasExtension = dot != std::string::npos && dot > 0;
    const std::string extension = hasExtension ? shortPart(name.substr(dot + 1), 3) : "";
    const std::string base = shortPart(hasExtension ? name.substr(0, dot) : name, 8);
    ShortName candidate = makeShortName(base, extension);
    const std::string whole = extension.empty() ? base : base + "." + extension;
    if (whole == name && !holdsShortName(folder, candidate)) {
        return {candidate, true};
    }
    for (unsigned number = 1;; ++number) {
        const std::string tail = "~" + std::to_string(number);
        candidate = makeShortName(base.substr(0, 8 - tail.size()) + tail, extension);
        if (!holdsShortName(folder, candidate)) {
            return {candidate, false};
        }
    }
}

void writeLongEntry(std::span<std::uint8_t> slot, const std::u16string& name, std::size_t order,
                    bool last, std::uint8_t sum) {
    slot[0] = static_cast<std::uint8_t>(order | (last ? LastLongEntry : 0U));
    slot[11] = LongNameAttributes;
    slot[13] = sum;
    for (std::size_t i = 0; i < UnitsPerLongEntry; ++i) {
        const std::size_t position = (order - 1) * UnitsPerLongEntry + i;
        const char16_t unit = position < name.size()    ? name[position]
                              : position == name.size() ? u'\0'
                                                        : char16_t{0xFFFF};
        putLittleEndian(slot, UnitOffsets[i], static_cast<std::uint16_t>(unit));
    }
}

void writeShortEntry(std::span<std::uint8_t> slot, const ShortName& name, const FatItem& item) {
    std::ranges::copy(name, slot.begin());
    slot[11] = item.attributes;
    const FatMoment moment = toFatMoment(item.modified);
    putLittleEndian(slot, 14, moment.time);
    putLittleEndian(slot, 16, moment.date);
    putLittleEndian(slot, 18, moment.date);
    putLittleEndian(slot, 20, static_cast<std::uint16_t>(item.firstCluster >> 16U));
    putLittleEndian(slot, 22, moment.time);
    putLittleEndian(slot, 24, moment.date);
    putLittleEndian(slot, 26, static_cast<std::uint16_t>(item.firstCluster & 0xFFFFU));
    putLittleEndian(slot, 28, item.size);
}

/// The first of `count` free slots in a row; the folder is made longer when there are none.
std::optional<std::size_t> findRoom(std::vector<std::uint8_t>& folder, std::size_t count) {
    std::size_t run = 0;
    std::size_t index = 0;
    bool ended = false;
    for (; run < count && (index + 1) * SlotSize <= folder.size(); ++index) {
        const std::uint8_t first = folder[index * SlotSize];
        ended = ended || first == 0;
        run = ended || first == Deleted ? run + 1 : 0;
    }
    const std::size_t start = index - run;
    const std::size_t needed = (start + count) * SlotSize;
    if (needed > LargestSize) {
        return std::nullopt;
    }
    folder.resize(std::max(folder.size(), needed));
    return start;
}

} // namespace

bool add(std::vector<std::uint8_t>& folder, const FatItem& item) {
    const ChosenShortName chosen = chooseShortName(folder, item.name);
    const std::u16string name = QString::fromStdString(item.name).toStdU16String();
    const std::size_t longEntries =
        chosen.isWholeName ? 0 : (name.size() + UnitsPerLongEntry - 1) / UnitsPerLongEntry;
    const auto start = findRoom(folder, longEntries + 1);
    if (!start) {
        return false;
    }
    const auto slot = [&](std::size_t index) {
        return std::span(folder).subspan((*start + index) * SlotSize, SlotSize);
    };
    for (std::size_t i = 0; i <= longEntries; ++i) {
        std::ranges::fill(slot(i), std::uint8_t{0});
    }
    const std::uint8_t sum = checksum(chosen.name);
    for (std::size_t i = 0; i < longEntries; ++i) {
        writeLongEntry(slot(i), name, longEntries - i, i == 0, sum);
    }
    writeShortEntry(slot(longEntries), chosen.name, item);
    return true;
}

void remove(std::span<std::uint8_t> folder, const FatItem& item) {
    for (std::size_t i = 0; i < item.slotCount; ++i) {
        folder[(item.firstSlot + i) * SlotSize] = Deleted;
    }
}

void putDotEntries(std::span<std::uint8_t> folder, std::uint32_t own, std::uint32_t parent,
                   std::chrono::sys_seconds modified) {
    FatItem dot;
    dot.attributes = FatItem::Folder;
    dot.modified = modified;
    dot.firstCluster = own;
    writeShortEntry(folder.first(SlotSize), makeShortName(".", ""), dot);
    dot.firstCluster = parent;
    writeShortEntry(folder.subspan(SlotSize, SlotSize), makeShortName("..", ""), dot);
}

} // namespace zelto::simulator::FatFolder
