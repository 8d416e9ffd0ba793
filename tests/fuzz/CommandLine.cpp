// The command line of zelto-virtual-drive, its arguments ended by zeros: options that make sense,
// or an error.

#include "simulator/drive/DriveState.h"
#include "simulator/virtual-drive/Options.h"
#include "tests/fuzz/Target.h"

#include <vector>

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace zelto::simulator;
    using zelto::test::require;
    std::string_view text = zelto::test::Input(data, size).restAsText();
    std::vector<std::string_view> arguments;
    while (!text.empty()) {
        arguments.push_back(text.substr(0, text.find('\0')));
        text.remove_prefix(std::min(arguments.back().size() + 1, text.size()));
    }
    std::string error;
    const auto options = parseOptions(arguments, error);
    require(options.has_value() == error.empty(), "what makes no sense is said");
    require(!options || !options->wantsHelp || !helpText().empty(), "there is help");
    if (options && options->sectors) {
        require(*options->sectors >= 1 && *options->sectors <= MostSectors,
                "a drive has that size");
    }
    return 0;
}
