#include "platform/linux/DiskHolders.h"

#include "platform/linux/ProcessList.h"

#include <algorithm>
#include <set>

namespace zelto::linux_platform {

namespace {

bool contains(const std::vector<std::string>& list, const std::string& text) {
    return std::ranges::find(list, text) != list.end();
}

bool isAtOrBelow(const std::string& path, const std::string& folder) {
    return path == folder || path.starts_with(folder + '/');
}

} // namespace

std::vector<std::string> programsHolding(const std::vector<std::string>& devicePaths,
                                         const std::vector<MountedFileSystem>& mounted,
                                         const std::filesystem::path& proc, uid_t user) {
    std::vector<std::string> folders;
    for (const auto& fileSystem : mounted) {
        if (contains(devicePaths, fileSystem.f_mntfromname)) {
            folders.push_back(fileSystem.f_mntonname);
        }
    }
    // Paths are compared as texts: asking the file system itself could wait for ever on one that
    // does not answer.
    const auto isOnDevice = [&](const std::string& path) {
        return contains(devicePaths, path) ||
               std::ranges::any_of(
                   folders, [&](const std::string& folder) { return isAtOrBelow(path, folder); });
    };
    std::set<std::string> names;
    for (const auto& process : processes(proc)) {
        if (process.belongsTo(user) && std::ranges::any_of(process.heldPaths(), isOnDevice)) {
            names.insert(process.name());
        }
    }
    names.erase("");
    return {names.begin(), names.end()};
}

} // namespace zelto::linux_platform
