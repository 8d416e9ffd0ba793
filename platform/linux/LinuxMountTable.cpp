#include "platform/linux/LinuxMountTable.h"

#include "platform/linux/MountInfo.h"
#include "platform/linux/TextFile.h"

namespace zelto::linux_platform {

std::vector<MountedFileSystem> LinuxMountTable::getmntinfo() {
    std::vector<MountedFileSystem> mounted;
    for (auto& line : parseMountInfo(readTextFile(m_mountInfo).value_or(""))) {
        const bool isDevice = line.f_mntfromname.starts_with("/dev/");
        const auto name = isDevice ? m_devices.nameOfMounted(line.deviceNumber, line.f_mntfromname)
                                   : std::nullopt;
        if (name) {
            line.f_mntfromname = "/dev/" + *name;
        }
        mounted.push_back(std::move(line));
    }
    return mounted;
}

} // namespace zelto::linux_platform
