#pragma once

#include "platform/linux/FileDescriptor.h"
#include "simulator/drive/DriveModel.h"
#include "simulator/drive/SectorStore.h"

#include <filesystem>
#include <memory>
#include <string>

namespace zelto::simulator {

/// A drive put away in a folder: `drive.state`, what the firmware was manufactured with and what
/// it remembers, and `drive.image`, its sectors in a sparse file. Keys and password digests stand
/// in the state file, readable by its owner only, as they stand in a real drive's memory.
///
/// From create or open on, the folder is locked for as long as this object lives: two programs that
/// had the same drive plugged in would each overwrite what the other one's remembers.
class DriveFolder {
public:
    /// What a folder holds.
    struct Contents {
        Manufactured manufactured;
        Remembered remembered;
        std::unique_ptr<SectorStore> store;
    };

    explicit DriveFolder(std::filesystem::path folder);

    /// Puts a new drive into the folder, creating it where needed. False, and why in `error`, when
    /// that fails or when the folder already holds a drive.
    [[nodiscard]] bool create(const Manufactured& manufactured, Contents& contents,
                              std::string& error);
    /// Reads the drive. False, and why in `error`, when it can't be read whole or another program
    /// has it; nothing in the folder is changed.
    [[nodiscard]] bool open(Contents& contents, std::string& error);
    /// Replaces the saved state as a whole: after a failure, or a crash, the folder holds the old
    /// state or the new one. Returns once it would survive a power failure.
    [[nodiscard]] bool save(const Manufactured& manufactured, const Remembered& remembered,
                            std::string& error) const;

private:
    [[nodiscard]] bool lock(std::string& error);

    std::filesystem::path m_folder;
    /// The folder itself, opened; its lock is the drive's.
    linux_platform::FileDescriptor m_directory;
};

} // namespace zelto::simulator
