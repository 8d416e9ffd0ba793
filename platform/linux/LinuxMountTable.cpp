#include "platform/linux/LinuxMountTable.h"

#include "platform/linux/MountInfo.h"
#include "platform/linux/TextFile.h"

namespace zelto::linux_platform {

std::vector<MountedFileSystem> LinuxMountTable::getmntinfo() {
    const auto text = readTextFile(m_mountInfo);
    return text ? parseMountInfo(*text) : std::vector<MountedFileSystem>{};
}

} // namespace zelto::linux_platform
