#include "app/BundleLocation.h"

#include <QString>

#include <algorithm>
#include <iterator>

namespace zelto {
namespace {

QString joinLeadingComponents(const std::filesystem::path& path, std::ptrdiff_t count) {
    QString joined;
    for (auto component = path.begin(); component != path.end() && count > 0;
         ++component, --count) {
        joined += QString::fromStdString(component->string());
    }
    return joined;
}

} // namespace

bool runsFromMountedVolume(const std::filesystem::path& bundle,
                           const std::vector<std::filesystem::path>& mountRoots) {
    return std::ranges::any_of(mountRoots, [&](const std::filesystem::path& root) {
        const auto count = std::distance(root.begin(), root.end());
        return joinLeadingComponents(bundle, count)
                   .compare(joinLeadingComponents(root, count), Qt::CaseInsensitive) == 0;
    });
}

bool hasToRelocate(const std::filesystem::path& bundle, const std::filesystem::path& destination,
                   const std::vector<std::filesystem::path>& mountRoots) {
    return bundle != destination && runsFromMountedVolume(bundle, mountRoots);
}

} // namespace zelto
