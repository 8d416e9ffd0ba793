// A bundle on somebody's volume, "from/Z.app", copied to "to": whatever it is made of and whatever
// is at the destination, nothing beside the copy is touched, a link is not followed, and the copy
// is whole or does not exist.

#include "platform/linux/FileCopy.h"
#include "tests/fuzz/DescribedFolder.h"
#include "tests/fuzz/Target.h"

#include <chrono>
#include <map>

namespace zelto::test {
namespace {

namespace fs = std::filesystem;

/// What there is at a path, in words.
std::string describe(const fs::path& path) {
    std::error_code ignored;
    switch (fs::symlink_status(path, ignored).type()) {
    case fs::file_type::directory:
        return "folder";
    case fs::file_type::symlink:
        return "link to " + fs::read_symlink(path, ignored).string();
    case fs::file_type::regular: {
        std::ifstream file(path, std::ios::binary);
        const auto date = fs::last_write_time(path, ignored).time_since_epoch().count();
        return "file of " + std::to_string(date) + ": " +
               std::string(std::istreambuf_iterator<char>(file), {});
    }
    default:
        return "something else";
    }
}

/// By their paths within the folder; a link is not followed.
using Contents = std::map<std::string, std::string>;

Contents contentsOf(const fs::path& folder) {
    Contents contents;
    std::error_code error;
    for (fs::recursive_directory_iterator at(folder, error), end; !error && at != end;
         at.increment(error)) {
        contents[at->path().lexically_relative(folder).string()] = describe(at->path());
    }
    return contents;
}

/// What an earlier copy may have left beside the destination.
bool isLeftover(const std::string& path) {
    constexpr std::string_view Prefix = "to/.Z.app-";
    constexpr std::size_t RandomPart = 6;
    return path.starts_with(Prefix) &&
           std::min(path.find('/', Prefix.size()), path.size()) == Prefix.size() + RandomPart;
}

bool isDestination(const std::string& path) {
    return path == "to/Z.app" || path.starts_with("to/Z.app/");
}

template <typename Predicate>
Contents without(Contents contents, Predicate isOut) {
    std::erase_if(contents, [&](const auto& item) { return isOut(item.first); });
    return contents;
}

void checkCopy(const fs::path& source, const fs::path& copy) {
    const Contents copied = contentsOf(copy);
    require(describe(copy) == describe(source) && copied == contentsOf(source),
            "the copy is the same");
    for (const auto& [path, what] : copied) {
        require(!what.starts_with("link") && what != "something else",
                "a copy is of files and folders");
    }
}

} // namespace
} // namespace zelto::test

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace zelto::linux_platform;
    using namespace zelto::test;
    const DescribedFolder folder(Input(data, size).restAsText());
    std::error_code ignored;
    if (!fs::is_directory(fs::symlink_status(folder / "to", ignored))) {
        return 0;
    }
    const fs::path source = folder / "from/Z.app";
    const fs::path destination = folder / "to/Z.app";
    const Contents before = contentsOf(folder.path());
    const bool isCopied = copyItem(source, destination);
    const Contents after = contentsOf(folder.path());

    for (const auto& [path, what] : after) {
        require(!isLeftover(path) || (before.contains(path) && before.at(path) == what),
                "a copy leaves nothing behind");
    }
    const auto isTouched = [&](const std::string& path) {
        return isLeftover(path) || (isCopied && isDestination(path));
    };
    require(without(before, isTouched) == without(after, isTouched),
            "what is beside a copy stays as it was");
    if (isCopied) {
        checkCopy(source, destination);
        require(modificationDate(destination) == modificationDate(source), "the date is kept");
        require(unlockItem(destination), "a copy can be unlocked");
    }
    return 0;
}
