// What the kernel tells of mounts and processes, as a hostile name in it would have it.

#include "platform/linux/MountInfo.h"
#include "platform/linux/ProcessList.h"
#include "tests/fuzz/Target.h"

#include <algorithm>

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace zelto::linux_platform;
    using zelto::test::require;
    const auto text = zelto::test::Input(data, size).restAsText();
    const auto lines = static_cast<std::size_t>(std::ranges::count(text, '\n')) + 1;
    require(parseMountInfo(text).size() <= lines, "no more mounts than lines");
    const auto mappings = parseFileMappings(text);
    require(mappings.size() <= lines, "no more mappings than lines");
    for (const auto& mapping : mappings) {
        require(mapping.path.starts_with('/'), "a mapping is of a file");
    }
    require(decodeOctalEscapes(text).size() <= text.size(), "an escape stands for one byte");
    const std::string path(text);
    require(path.starts_with(withoutDeletedRemark(path)), "the remark stands behind");
    return 0;
}
