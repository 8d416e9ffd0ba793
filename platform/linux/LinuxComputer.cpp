#include "platform/linux/LinuxComputer.h"

#include "platform/linux/Bundle.h"
#include "platform/linux/DetachedStart.h"
#include "platform/linux/FileCopy.h"
#include "platform/linux/MountInfo.h"
#include "platform/linux/ProcessList.h"
#include "platform/linux/TextFile.h"

#include <QEventLoop>

#include <pwd.h>
#include <unistd.h>

#include <atomic>
#include <cstdlib>
#include <thread>

namespace zelto::linux_platform {

namespace {

namespace fs = std::filesystem;

/// Something of this program's own, to find the file that it was loaded from.
const char Landmark = 0;

/// The file of the running program. /proc/self/exe names the dynamic loader when the program was
/// started through it, as is done on volumes mounted without execute permission.
fs::path findProgram(const fs::path& proc) {
    const auto address = reinterpret_cast<std::uintptr_t>(&Landmark);
    const auto maps = readTextFile(proc / "self/maps").value_or("");
    if (auto file = fileMappedAt(address, maps)) {
        return withoutDeletedRemark(std::move(*file));
    }
    return Process(proc / "self").executable().value_or("");
}

fs::path homeFolder() {
    const char* const home = std::getenv("HOME");
    if (home != nullptr && *home == '/') {
        return home;
    }
    std::vector<char> buffer(16384);
    passwd entry{};
    passwd* found = nullptr;
    if (::getpwuid_r(::getuid(), &entry, buffer.data(), buffer.size(), &found) == 0 &&
        found != nullptr && found->pw_dir != nullptr) {
        return found->pw_dir;
    }
    return "/";
}

} // namespace

LinuxComputer::LinuxComputer(const Waiting& waiting, fs::path proc, fs::path sysfs)
    : m_waiting(waiting),
      m_proc(std::move(proc)),
      m_devices(std::move(sysfs)),
      m_program(findProgram(m_proc)) {}

fs::path LinuxComputer::bundlePath() const {
    return bundleOf(m_program).value_or(m_program.parent_path());
}

std::vector<fs::path> LinuxComputer::mountRoots(const UsbMatching& drives) const {
    std::vector<fs::path> roots{"/media", "/run/media"};
    const auto mounts = readTextFile(m_proc / "self/mountinfo").value_or("");
    for (const auto& line : parseMountInfo(mounts)) {
        const auto name = m_devices.nameOfMounted(line.deviceNumber, line.f_mntfromname);
        const auto device = name ? m_devices.usbDeviceOf(*name) : std::nullopt;
        // A computer that was started from the drive has nowhere else to go.
        if (device && line.f_mntonname != "/" &&
            device->hexadecimal("idVendor") == drives.idVendor &&
            device->hexadecimal("idProduct") == drives.idProduct) {
            roots.emplace_back(line.f_mntonname);
        }
    }
    return roots;
}

fs::path LinuxComputer::applicationsFolder() const {
    const auto folder = homeFolder() / "Applications";
    std::error_code error;
    const auto resolved = fs::weakly_canonical(folder, error);
    return error ? folder.lexically_normal() : resolved;
}

std::vector<fs::path> LinuxComputer::launchedApplications() const {
    std::vector<fs::path> applications;
    for (const auto& process : processes(m_proc)) {
        if (const auto program = process.executable()) {
            applications.push_back(bundleOf(*program).value_or(*program));
        }
    }
    return applications;
}

std::vector<fs::path> LinuxComputer::filesBesideBundle() const {
    const auto autorun = bundlePath() / "autorun.sh";
    return fileExistsAtPath(autorun) ? std::vector{autorun} : std::vector<fs::path>{};
}

bool LinuxComputer::fileExistsAtPath(const fs::path& path) const {
    std::error_code error;
    return fs::exists(path, error);
}

std::optional<Computer::FileTime> LinuxComputer::fileModificationDate(const fs::path& path) const {
    return modificationDate(path);
}

bool LinuxComputer::isWritableFileAtPath(const fs::path& path) const {
    return ::access(path.c_str(), W_OK) == 0;
}

bool LinuxComputer::removeItemAtPath(const fs::path& path) {
    return workAside([&] {
        std::error_code error;
        const auto removed = fs::remove_all(path, error);
        return !error && removed > 0;
    });
}

bool LinuxComputer::copyItemAtPath(const fs::path& source, const fs::path& destination) {
    return workAside([&] { return copyItem(source, destination); });
}

int LinuxComputer::open(const fs::path& bundle) {
    return startDetached(bundle / m_program.filename()) ? 0 : 1;
}

int LinuxComputer::chflags(const std::string& flag, const fs::path& path) {
    return flag == "nouchg" && unlockItem(path) ? 0 : 1;
}

bool LinuxComputer::workAside(const std::function<bool()>& work) const {
    std::atomic<bool> result{false};
    QEventLoop loop;
    std::thread worker([&] {
        result = work();
        QMetaObject::invokeMethod(&loop, &QEventLoop::quit, Qt::QueuedConnection);
    });
    m_waiting.run(loop);
    worker.join();
    return result;
}

} // namespace zelto::linux_platform
