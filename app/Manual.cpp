#include "app/Manual.h"

#include "platform/Computer.h"

#include <array>

namespace zelto {

std::optional<std::filesystem::path> manualPage(const Computer& computer, const std::string& page) {
    const std::filesystem::path bundle = computer.bundlePath();
    const std::filesystem::path above = bundle.parent_path();
    const std::array folders{bundle / "manual", above / "share/doc/zelto/manual", above / "manual"};
    for (const auto& folder : folders) {
        auto file = folder / (page + ".html");
        if (computer.fileExistsAtPath(file)) {
            return file;
        }
    }
    return std::nullopt;
}

} // namespace zelto
