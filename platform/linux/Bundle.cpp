#include "platform/linux/Bundle.h"

#include <algorithm>
#include <string>

namespace zelto::linux_platform {

namespace {

/// ASCII only: the locale must not decide what a bundle is.
char lowerCase(char character) {
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a')
                                                : character;
}

} // namespace

std::optional<std::filesystem::path> enclosingBundle(const std::filesystem::path& program) {
    for (auto folder = program.parent_path(); folder.has_relative_path();
         folder = folder.parent_path()) {
        auto extension = folder.extension().string();
        std::ranges::transform(extension, extension.begin(), lowerCase);
        if (extension == ".app") {
            return folder;
        }
    }
    return std::nullopt;
}

} // namespace zelto::linux_platform
