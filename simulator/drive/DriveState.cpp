#include "simulator/drive/DriveState.h"

#include "digest/SHA256.h"
#include "simulator/drive/SecretBytes.h"
#include "simulator/drive/Words.h"

#include <algorithm>
#include <limits>

namespace zelto::simulator {
namespace {

constexpr std::string_view Title = "ZELTO DISK state 1\n";
constexpr std::string_view TitleOfAnyVersion = "ZELTO DISK state ";
constexpr std::string_view SumName = "sum ";
/// Larger than any state: 4096 bytes of hint data in hexadecimal and some forty lines.
constexpr std::size_t MostText = std::size_t{64} * 1024;
constexpr std::size_t HintRow = 32;
constexpr std::size_t MostSerial = 126;

// --- Words -------------------------------------------------------------------------------------

std::string hexOf(std::span<const std::uint8_t> bytes) {
    constexpr std::string_view Digits = "0123456789abcdef";
    std::string text;
    text.reserve(bytes.size() * 2);
    for (const std::uint8_t byte : bytes) {
        text += Digits[byte >> 4];
        text += Digits[byte & 0x0F];
    }
    return text;
}

template <typename Integer>
bool parse(std::string_view word, Integer& value, int base = 10) {
    const auto number = numberIn<Integer>(word, base);
    value = number.value_or(value);
    return number.has_value();
}

bool parseHex(std::string_view word, std::span<std::uint8_t> bytes) {
    if (word.size() != bytes.size() * 2) {
        return false;
    }
    for (std::size_t index = 0; index < bytes.size(); ++index) {
        if (!parse(word.substr(index * 2, 2), bytes[index], 16)) {
            return false;
        }
    }
    return true;
}

template <std::size_t Size>
bool parseHex(std::string_view word, std::optional<std::array<std::uint8_t, Size>>& secret) {
    return parseHex(word, secret.emplace());
}

bool parseMoment(std::string_view word, Moment& moment) {
    // From 1970 to the year 9999, like every moment that the model keeps.
    constexpr std::int64_t Latest = 253'402'300'800;
    // The seconds counted when a clock was lost can lie before 1970.
    constexpr std::int64_t Earliest = -std::int64_t{std::numeric_limits<std::uint32_t>::max()};
    std::int64_t seconds = 0;
    if (!parse(word, seconds) || seconds < Earliest || seconds > Latest) {
        return false;
    }
    moment = Moment{std::chrono::seconds{seconds}};
    return true;
}

std::string textOf(Moment moment) {
    return std::to_string(moment.time_since_epoch().count());
}

// --- Lines -------------------------------------------------------------------------------------

using Words = std::span<const std::string_view>;

bool parseArea(Words words, std::vector<AreaInfoEntry>& areas) {
    AreaInfoEntry& area = areas.emplace_back();
    return parse(words[0], area.type, 16) && parse(words[1], area.flags, 16) &&
           parse(words[2], area.firstSector) && parse(words[3], area.sectorCount);
}

bool parseKey(Words words, std::optional<MediumKey>& key, bool& isAutomatic) {
    isAutomatic = words[0] == "automatic";
    return (isAutomatic || words[0] == "by-hand") && parseHex(words[1], key);
}

bool parseHint(Words words, std::array<std::uint8_t, DriveModel::HintDataSize>& hint) {
    std::size_t address = 0;
    return parse(words[0], address, 16) && address % HintRow == 0 && address < hint.size() &&
           parseHex(words[1], std::span(hint).subspan(address, HintRow));
}

bool parseClock(Words words, std::optional<Remembered::ClockSetting>& clock) {
    auto& setting = clock.emplace();
    return parseMoment(words[0], setting.shown) && parseMoment(words[1], setting.at);
}

SetupParts& toCome(SavedDrive& drive) {
    auto& setup = drive.remembered.setupToCome;
    return setup ? *setup : setup.emplace();
}

std::vector<AreaInfoEntry>& areasToCome(SavedDrive& drive) {
    auto& areas = toCome(drive).areas;
    return areas ? *areas : areas.emplace();
}

enum class Times { Once, Often };

struct LineRule {
    std::string_view name;
    std::size_t words;
    Times times;
    bool (*read)(Words words, SavedDrive& drive);
};

// clang-format off
constexpr LineRule LineRules[] = {
    {"serial", 1, Times::Once, [](Words words, SavedDrive& drive) { drive.manufactured.serial = words[0]; return true; }},
    {"sectors", 1, Times::Once, [](Words words, SavedDrive& drive) { return parse(words[0], drive.manufactured.totalSectors); }},
    {"key-seed", 1, Times::Once, [](Words words, SavedDrive& drive) { return parse(words[0], drive.manufactured.keySeed, 16); }},
    {"area", 4, Times::Often, [](Words words, SavedDrive& drive) { return parseArea(words, drive.remembered.areas); }},
    {"key", 2, Times::Once, [](Words words, SavedDrive& drive) { return parseKey(words, drive.remembered.key, drive.remembered.keyIsAutomatic); }},
    {"keys-drawn", 1, Times::Once, [](Words words, SavedDrive& drive) { return parse(words[0], drive.remembered.keysDrawn); }},
    {"first-password", 1, Times::Once, [](Words words, SavedDrive& drive) { return parseHex(words[0], drive.remembered.firstPassword); }},
    {"second-password", 1, Times::Once, [](Words words, SavedDrive& drive) { return parseHex(words[0], drive.remembered.secondPassword); }},
    {"trials-allowed", 1, Times::Once, [](Words words, SavedDrive& drive) { return parse(words[0], drive.remembered.trialsAllowed); }},
    {"wrong-second-passwords", 1, Times::Once, [](Words words, SavedDrive& drive) { return parse(words[0], drive.remembered.wrongSecondPasswords); }},
    {"clock", 2, Times::Once, [](Words words, SavedDrive& drive) { return parseClock(words, drive.remembered.clock); }},
    {"auto-clear", 2, Times::Once, [](Words words, SavedDrive& drive) { return parse(words[0], drive.remembered.autoClearPeriod) && parseMoment(words[1], drive.remembered.autoClearSince); }},
    {"auto-clear-held-at", 1, Times::Once, [](Words words, SavedDrive& drive) { return parse(words[0], drive.remembered.autoClearHeldAt.emplace()); }},
    {"auto-clear-expired", 0, Times::Once, [](Words, SavedDrive& drive) { return drive.remembered.autoClearExpired = true; }},
    {"idle-lock", 1, Times::Once, [](Words words, SavedDrive& drive) { return parse(words[0], drive.remembered.idleLockPeriod); }},
    {"hint", 2, Times::Often, [](Words words, SavedDrive& drive) { return parseHint(words, drive.remembered.hintData); }},
    {"reset-at-power-up", 0, Times::Once, [](Words, SavedDrive& drive) { return drive.remembered.resetAtPowerUp = true; }},
    {"latest", 1, Times::Once, [](Words words, SavedDrive& drive) { return parseMoment(words[0], drive.remembered.latest); }},
    {"to-come-area", 4, Times::Often, [](Words words, SavedDrive& drive) { return parseArea(words, areasToCome(drive)); }},
    {"to-come-key", 2, Times::Once, [](Words words, SavedDrive& drive) { return parseKey(words, toCome(drive).key, toCome(drive).keyIsAutomatic); }},
    {"to-come-first-password", 1, Times::Once, [](Words words, SavedDrive& drive) { return parseHex(words[0], toCome(drive).firstPassword); }},
    {"to-come-second-password", 1, Times::Once, [](Words words, SavedDrive& drive) { return parseHex(words[0], toCome(drive).secondPassword); }},
    {"to-come-trials-allowed", 1, Times::Once, [](Words words, SavedDrive& drive) { return parse(words[0], toCome(drive).trialsAllowed); }},
};
// clang-format on

/// Reads lines until the text ends; the number of the first one that can't be read, 0 when all
/// could.
std::size_t findBadLine(std::string_view text, SavedDrive& drive) {
    std::array<bool, std::size(LineRules)> seen{};
    for (std::size_t number = 2; !text.empty(); ++number) {
        // Every line ends with a line feed, or the sum before would not have been found.
        const std::size_t end = text.find('\n');
        const auto words = wordsOf(text.substr(0, end));
        text.remove_prefix(end + 1);
        const auto rule = std::ranges::find(LineRules, words[0], &LineRule::name);
        if (rule == std::end(LineRules) || words.size() != rule->words + 1) {
            return number;
        }
        bool& wasSeen = seen[static_cast<std::size_t>(rule - LineRules)];
        if ((wasSeen && rule->times == Times::Once) ||
            !rule->read(Words(words).subspan(1), drive)) {
            return number;
        }
        wasSeen = true;
    }
    return 0;
}

// --- The whole ---------------------------------------------------------------------------------

std::string sumOf(std::string_view text) {
    return hexOf(digestOf({reinterpret_cast<const std::uint8_t*>(text.data()), text.size()}));
}

/// What a drive can't remember, however it was used; empty when there is no such thing.
std::string faultOf(const Remembered& remembered, std::uint64_t totalSectors) {
    const std::vector<AreaInfoEntry> neverSet{{.sectorCount = AreaInfoEntry::AllSectors}};
    if (remembered.areas != neverSet && !areSoundAreas(remembered.areas, totalSectors)) {
        return "its areas don't fit the drive";
    }
    if (remembered.key && !hasSecureArea(remembered.areas)) {
        return "it has a key without a secure area";
    }
    if (remembered.key && !remembered.firstPassword) {
        return "it has a key without a password";
    }
    if (remembered.setupToCome) {
        const SetupParts& setup = *remembered.setupToCome;
        if (!setup.areas || !areSoundAreas(*setup.areas, totalSectors)) {
            return "the areas to come don't fit the drive";
        }
        if (!isComplete(setup)) {
            return "the set-up to come has no key or no password";
        }
    }
    return {};
}

class Lines {
public:
    explicit Lines(std::string& text) : m_text(text) {}

    template <typename... Words>
    void add(std::string_view name, const Words&... words) {
        m_text += name;
        ((m_text += ' ', m_text += words), ...);
        m_text += '\n';
    }

    void addAreas(std::string_view name, std::span<const AreaInfoEntry> areas) {
        for (const AreaInfoEntry& area : areas) {
            add(name, hexOf({&area.type, 1}), hexOf({&area.flags, 1}),
                std::to_string(area.firstSector), std::to_string(area.sectorCount));
        }
    }

    void addKey(std::string_view name, const std::optional<MediumKey>& key, bool isAutomatic) {
        if (key) {
            addSecret(std::string(name) + (isAutomatic ? " automatic" : " by-hand"), *key);
        }
    }

    void addPassword(std::string_view name, const std::optional<PasswordDigest>& password) {
        if (password) {
            addSecret(name, *password);
        }
    }

    void addNumber(std::string_view name, std::uint64_t number) {
        if (number != 0) {
            add(name, std::to_string(number));
        }
    }

    void addMark(std::string_view name, bool isSet) {
        if (isSet) {
            add(name);
        }
    }

private:
    void addSecret(std::string_view name, std::span<const std::uint8_t> secret) {
        std::string text = hexOf(secret);
        add(name, text);
        wipe(text);
    }

    std::string& m_text;
};

void addTimes(Lines& lines, const Remembered& remembered) {
    if (remembered.clock) {
        lines.add("clock", textOf(remembered.clock->shown), textOf(remembered.clock->at));
    }
    if (remembered.autoClearPeriod != 0 || remembered.autoClearSince != Moment{}) {
        lines.add("auto-clear", std::to_string(remembered.autoClearPeriod),
                  textOf(remembered.autoClearSince));
    }
    if (remembered.autoClearHeldAt) {
        lines.add("auto-clear-held-at", std::to_string(*remembered.autoClearHeldAt));
    }
    lines.addMark("auto-clear-expired", remembered.autoClearExpired);
    lines.addNumber("idle-lock", remembered.idleLockPeriod);
    lines.add("latest", textOf(remembered.latest));
}

void addHints(Lines& lines, std::span<const std::uint8_t> hint) {
    for (std::size_t address = 0; address < hint.size(); address += HintRow) {
        const auto row = hint.subspan(address, HintRow);
        if (std::ranges::any_of(row, [](std::uint8_t byte) { return byte != 0; })) {
            std::array<std::uint8_t, 2> place{};
            record::put(place, {0, 2}, address);
            lines.add("hint", hexOf(place), hexOf(row));
        }
    }
}

void addSetupToCome(Lines& lines, const SetupParts& setup) {
    lines.addAreas("to-come-area", setup.areas.value_or(std::vector<AreaInfoEntry>{}));
    lines.addKey("to-come-key", setup.key, setup.keyIsAutomatic);
    lines.addPassword("to-come-first-password", setup.firstPassword);
    lines.addPassword("to-come-second-password", setup.secondPassword);
    lines.addNumber("to-come-trials-allowed", setup.trialsAllowed);
}

} // namespace

std::string faultOf(const Manufactured& manufactured) {
    const std::string& serial = manufactured.serial;
    const auto isPrintable = [](char letter) { return letter > ' ' && letter <= '~'; };
    if (serial.empty() || serial.size() > MostSerial || !std::ranges::all_of(serial, isPrintable)) {
        return "a serial number has 1 to 126 printable ASCII characters and no blanks";
    }
    if (manufactured.totalSectors == 0 || manufactured.totalSectors > MostSectors) {
        return "a drive has between one sector and 2 TB";
    }
    return {};
}

std::string encodeDriveState(const SavedDrive& drive) {
    const Remembered& remembered = drive.remembered;
    std::string text(Title);
    // Growing would leave copies of the secrets behind in freed memory.
    text.reserve(MostText);
    Lines lines(text);
    std::array<std::uint8_t, 8> seed{};
    record::put(seed, {0, 8}, drive.manufactured.keySeed);
    lines.add("serial", drive.manufactured.serial);
    lines.addNumber("sectors", drive.manufactured.totalSectors);
    lines.add("key-seed", hexOf(seed));
    lines.addAreas("area", remembered.areas);
    lines.addKey("key", remembered.key, remembered.keyIsAutomatic);
    lines.addNumber("keys-drawn", remembered.keysDrawn);
    lines.addPassword("first-password", remembered.firstPassword);
    lines.addPassword("second-password", remembered.secondPassword);
    lines.addNumber("trials-allowed", remembered.trialsAllowed);
    lines.addNumber("wrong-second-passwords", remembered.wrongSecondPasswords);
    addTimes(lines, remembered);
    addHints(lines, remembered.hintData);
    if (remembered.setupToCome) {
        addSetupToCome(lines, *remembered.setupToCome);
    }
    lines.addMark("reset-at-power-up", remembered.resetAtPowerUp);
    const std::string sum = sumOf(text);
    lines.add("sum", sum);
    return text;
}

bool decodeDriveState(std::string_view text, SavedDrive& drive, std::string& error) {
    if (!text.starts_with(Title)) {
        error = text.starts_with(TitleOfAnyVersion)
                    ? "it was written by another version of this program"
                    : "it is not the state of a drive";
        return false;
    }
    const std::size_t sumAt = text.rfind("\nsum ") + 1;
    if (text.size() > MostText || sumAt == 0 ||
        text.substr(sumAt) != std::string(SumName) + sumOf(text.substr(0, sumAt)) + "\n") {
        error = "it is damaged: its check sum doesn't fit";
        return false;
    }
    SavedDrive read;
    const std::size_t badLine = findBadLine(text.substr(Title.size(), sumAt - Title.size()), read);
    if (badLine != 0) {
        error = "it can't be understood, line " + std::to_string(badLine);
        return false;
    }
    error = faultOf(read.manufactured);
    if (error.empty()) {
        error = faultOf(read.remembered, read.manufactured.totalSectors);
    }
    if (!error.empty()) {
        return false;
    }
    drive = std::move(read);
    return true;
}

} // namespace zelto::simulator
