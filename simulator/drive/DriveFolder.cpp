#include "simulator/drive/DriveFolder.h"

#include "simulator/drive/DriveState.h"
#include "simulator/drive/SecretBytes.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace zelto::simulator {
namespace {

using linux_platform::FileDescriptor;

constexpr const char* StateName = "drive.state";
/// Written first, then given the state's name.
constexpr const char* NewStateName = "drive.state.new";
constexpr const char* ImageName = "drive.image";
/// More is no state file, whatever it is.
constexpr std::size_t MostStateBytes = std::size_t{64} * 1024;

bool fail(std::string& error, const std::filesystem::path& path, const std::string& reason) {
    error = path.string() + ": " + reason;
    return false;
}

bool failWithErrno(std::string& error, const std::filesystem::path& path) {
    return fail(error, path, std::generic_category().message(errno));
}

/// The whole file, of at most MostStateBytes.
bool readFile(const std::filesystem::path& path, std::string& text, std::string& error) {
    const FileDescriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    if (!file.isOpen()) {
        return failWithErrno(error, path);
    }
    text.resize(MostStateBytes + 1);
    std::size_t size = 0;
    while (size < text.size()) {
        const ssize_t done = ::read(file.get(), &text[size], text.size() - size);
        if (done < 0 && errno == EINTR) {
            continue;
        }
        if (done < 0) {
            return failWithErrno(error, path);
        }
        if (done == 0) {
            text.resize(size);
            return true;
        }
        size += static_cast<std::size_t>(done);
    }
    return fail(error, path, "it is not the state of a drive: it is too long");
}

bool writeFile(const std::filesystem::path& path, std::string_view text, std::string& error) {
    constexpr mode_t OwnerOnly = 0600;
    const FileDescriptor file(
        ::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC | O_NOFOLLOW, OwnerOnly));
    if (!file.isOpen()) {
        return failWithErrno(error, path);
    }
    while (!text.empty()) {
        const ssize_t done = ::write(file.get(), text.data(), text.size());
        if (done < 0 && errno == EINTR) {
            continue;
        }
        if (done < 0) {
            return failWithErrno(error, path);
        }
        text.remove_prefix(static_cast<std::size_t>(done));
    }
    return ::fsync(file.get()) == 0 || failWithErrno(error, path);
}

} // namespace

DriveFolder::DriveFolder(std::filesystem::path folder) : m_folder(std::move(folder)) {}

bool DriveFolder::lock(std::string& error) {
    if (!m_directory.isOpen()) {
        m_directory = FileDescriptor(::open(m_folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    }
    if (!m_directory.isOpen()) {
        return failWithErrno(error, m_folder);
    }
    if (::flock(m_directory.get(), LOCK_EX | LOCK_NB) == 0) {
        return true;
    }
    return errno == EWOULDBLOCK ? fail(error, m_folder, "another program has this drive")
                                : failWithErrno(error, m_folder);
}

bool DriveFolder::create(const Manufactured& manufactured, Contents& contents, std::string& error) {
    const std::string fault = faultOf(manufactured);
    if (!fault.empty()) {
        return fail(error, m_folder, fault);
    }
    std::error_code failure;
    std::filesystem::create_directories(m_folder, failure);
    if (failure) {
        return fail(error, m_folder, failure.message());
    }
    if (!lock(error)) {
        return false;
    }
    // The image counts as well: without its state it may still be what somebody wants back.
    for (const char* name : {StateName, ImageName}) {
        if (std::filesystem::symlink_status(m_folder / name, failure).type() !=
            std::filesystem::file_type::not_found) {
            return fail(error, m_folder, "there is a drive in this folder already");
        }
    }
    auto store = FileSectorStore::open(m_folder / ImageName, manufactured.totalSectors, error);
    const Remembered remembered = DriveModel(manufactured).remembered();
    if (!store || !save(manufactured, remembered, error)) {
        return false;
    }
    contents = {manufactured, remembered, std::move(store)};
    return true;
}

bool DriveFolder::open(Contents& contents, std::string& error) {
    const auto statePath = m_folder / StateName;
    const auto imagePath = m_folder / ImageName;
    std::string text;
    SavedDrive drive;
    std::string fault;
    if (!lock(error) || !readFile(statePath, text, error)) {
        return false;
    }
    const bool isRead = decodeDriveState(text, drive, fault);
    wipe(text);
    if (!isRead) {
        return fail(error, statePath, fault);
    }
    std::error_code failure;
    if (!std::filesystem::is_regular_file(imagePath, failure)) {
        return fail(error, imagePath, "the sectors of this drive are missing");
    }
    auto store = FileSectorStore::open(imagePath, drive.manufactured.totalSectors, error);
    if (!store) {
        return false;
    }
    contents = {std::move(drive.manufactured), std::move(drive.remembered), std::move(store)};
    return true;
}

bool DriveFolder::save(const Manufactured& manufactured, const Remembered& remembered,
                       std::string& error) const {
    std::string text = encodeDriveState({manufactured, remembered});
    const auto newPath = m_folder / NewStateName;
    const auto path = m_folder / StateName;
    const bool isWritten = writeFile(newPath, text, error);
    wipe(text);
    if (!isWritten) {
        return false;
    }
    if (::rename(newPath.c_str(), path.c_str()) != 0) {
        return failWithErrno(error, path);
    }
    // The new name survives a power failure only once the folder is written, too.
    return !m_directory.isOpen() || ::fsync(m_directory.get()) == 0 ||
           failWithErrno(error, m_folder);
}

} // namespace zelto::simulator
