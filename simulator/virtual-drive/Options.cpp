#include "simulator/virtual-drive/Options.h"

#include "simulator/drive/DriveState.h"
#include "simulator/drive/SectorStore.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <charconv>

namespace zelto::simulator {

namespace {

enum class Argument : std::uint8_t { None, One };

/// Takes the option's argument (empty for one without); false when it makes no sense.
using Apply = bool (*)(Options&, std::string_view);

struct Row {
    std::string_view name;
    Argument argument = Argument::None;
    Apply apply = nullptr;
};

bool isSerial(std::string_view text) {
    // What a computer can show and compare: the utility keeps 63 characters.
    constexpr std::size_t Longest = 60;
    const auto isPlain = [](char character) {
        return std::isalnum(static_cast<unsigned char>(character)) != 0;
    };
    return !text.empty() && text.size() <= Longest && std::ranges::all_of(text, isPlain);
}

/// Any text but none.
template <auto Member>
bool takeText(Options& options, std::string_view text) {
    options.*Member = text;
    return !text.empty();
}

template <bool Options::*Member>
bool takeMark(Options& options, std::string_view /*text*/) {
    return options.*Member = true;
}

bool takeSize(Options& options, std::string_view text) {
    options.sectors = parseSize(text);
    return options.sectors.has_value();
}

bool takeSerial(Options& options, std::string_view text) {
    options.serial = text;
    return isSerial(text);
}

constexpr std::array Rows{
    Row{"--help", Argument::None, &takeMark<&Options::wantsHelp>},
    Row{"--version", Argument::None, &takeMark<&Options::wantsVersion>},
    Row{"--attach", Argument::None, &takeMark<&Options::attaches>},
    Row{"--unplugged", Argument::None, &takeMark<&Options::isUnplugged>},
    Row{"--drive", Argument::One, &takeText<&Options::drive>},
    Row{"--size", Argument::One, &takeSize},
    Row{"--serial", Argument::One, &takeSerial},
    Row{"--listen", Argument::One, &takeText<&Options::address>},
    Row{"--log", Argument::One, &takeText<&Options::log>},
};

} // namespace

std::optional<std::uint64_t> parseSize(std::string_view text) {
    constexpr std::string_view Units = "KMGT";
    constexpr std::uint64_t Largest = MostSectors * SectorSize;
    std::uint64_t value = 0;
    const auto [rest, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc{} || value > Largest) {
        return std::nullopt;
    }
    const std::string_view unit(rest, static_cast<std::size_t>(text.data() + text.size() - rest));
    if (!unit.empty()) {
        const std::size_t power = Units.find(unit.front());
        if (unit.size() > 1 || power == std::string_view::npos ||
            value > Largest >> (10 * (power + 1))) {
            return std::nullopt;
        }
        value <<= 10 * (power + 1);
    }
    if (value == 0 || value % SectorSize != 0) {
        return std::nullopt;
    }
    return value / SectorSize;
}

std::optional<Options> parseOptions(std::span<const std::string_view> arguments,
                                    std::string& error) {
    Options options;
    for (std::size_t index = 0; index < arguments.size(); ++index) {
        const std::string name(arguments[index]);
        const auto row = std::ranges::find(Rows, arguments[index], &Row::name);
        if (row == Rows.end()) {
            error = "unknown option " + name;
            return std::nullopt;
        }
        std::string_view argument;
        if (row->argument == Argument::One) {
            if (++index == arguments.size()) {
                error = name + " needs an argument";
                return std::nullopt;
            }
            argument = arguments[index];
        }
        if (!row->apply(options, argument)) {
            error = name + " makes no sense with \"" + std::string(argument) + "\"";
            return std::nullopt;
        }
    }
    if (!options.address && !options.attaches) {
        options.address = Options::DefaultAddress;
    }
    return options;
}

std::string_view helpText() {
    return R"(Usage: zelto-virtual-drive [OPTION]...
A ZELTO DISK made of software, behind a real USB interface.

  --drive FOLDER      keep the drive in FOLDER; it is made when there is none
  --size SIZE         size of a new drive: 64M, 2G (default 1G)
  --serial TEXT       serial number of a new drive: letters and digits
  --listen ADDR:PORT  offer the drive over USB/IP (default 127.0.0.1:3240)
  --attach            attach the drive to this computer's kernel (vhci_hcd; root);
                      nothing listens then, unless --listen is given as well
  --unplugged         start with the drive pulled out
  --log FILE          append every vendor request and what happens to the drive
  --help, --version   print this, or the version, and end

Verbs, one a line, on standard input; each is answered by a line:
  plug, unplug, replug
  advance SECONDS     let time pass
  lose-clock          the drive was without power for too long
  not-ready N         the next N readiness reads say "not yet"
  fail K [HOW [CODE]] the K-th vendor request from now fails; HOW is stall, lost,
                      silent, silent-after, short, vanish or vanish-after; with
                      CODE, say B3, the K-th towards the drive of that code
  state               tell how the drive is
  help, quit
)";
}

} // namespace zelto::simulator
