#include "platform/linux/Bundle.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <numeric>
#include <string>
#include <string_view>

namespace zelto::linux_platform {

namespace {

/// ASCII only: the locale must not decide what a bundle is.
char lowerCase(char character) {
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a')
                                                : character;
}

constexpr std::size_t DigestDigits = 64;

bool isDigest(std::string_view name) {
    return name.size() == DigestDigits &&
           name.find_first_not_of("0123456789abcdef") == std::string_view::npos;
}

/// The path below ".../DIGEST/at", made absolute again. The first such place counts: what follows
/// it is the user's, and may look like another.
std::optional<std::filesystem::path> pathBeforeUnpacking(const std::filesystem::path& unpacked) {
    for (auto part = unpacked.begin(); part != unpacked.end(); ++part) {
        const auto next = std::next(part);
        if (next == unpacked.end() || *next != "at" || !isDigest(part->native())) {
            continue;
        }
        return std::accumulate(std::next(next), unpacked.end(), std::filesystem::path("/"),
                               std::divides<>());
    }
    return std::nullopt;
}

std::optional<std::filesystem::path> installedBundle(const std::filesystem::path& program) {
    const auto folder = program.parent_path();
    if (program.filename() != "zelto" || folder.filename() != "bin") {
        return std::nullopt;
    }
    auto bundle = folder.parent_path() / "lib/zelto/ZeltoAppMac.app";
    std::error_code error;
    return std::filesystem::is_directory(bundle, error) ? std::optional(std::move(bundle))
                                                        : std::nullopt;
}

} // namespace

std::optional<std::filesystem::path> bundleOf(const std::filesystem::path& program) {
    const auto enclosing = enclosingBundle(program);
    if (!enclosing) {
        return installedBundle(program);
    }
    const auto unpackedFrom = pathBeforeUnpacking(*enclosing);
    return unpackedFrom ? unpackedFrom : enclosing;
}

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
