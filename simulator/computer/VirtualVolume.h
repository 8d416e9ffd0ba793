#pragma once

#include "simulator/computer/FileTree.h"
#include "simulator/drive/SectorStore.h"

#include <memory>
#include <string>

namespace zelto::simulator {

/// A volume of the virtual computer. This is no file system that anybody else knows: the files are
/// one container of this program's own, written anew after each change, from the medium's first
/// sector on. 16 bytes "ZELTO VOLUME 1" and zeros, 8 bytes of length, then a QDataStream: the
/// label, and for each file and folder its path, whether it is a folder, whether it is writable,
/// when it was modified, and its bytes.
///
/// So files are on the medium and nowhere else: they come and go with the drive, are lost with its
/// key, and need room. Nothing that is read is believed. What a real computer does with real file
/// systems is seen on a real kernel.
class VirtualVolume final : public FileTree {
public:
    static constexpr std::size_t LongestLabel = 11;

    /// Writes an empty volume. False when the label is too long or the medium can't be written.
    [[nodiscard]] static bool format(SectorStore& medium, const std::string& label);
    /// Null when the medium holds no volume, or a damaged one. The medium outlives the volume.
    [[nodiscard]] static std::unique_ptr<VirtualVolume> mount(SectorStore& medium);

    [[nodiscard]] const std::string& label() const { return m_label; }

protected:
    [[nodiscard]] bool keep(const Branch& files) override;

private:
    VirtualVolume(SectorStore& medium, std::string label, Branch files)
        : FileTree(std::move(files)), m_medium(medium), m_label(std::move(label)) {}

    SectorStore& m_medium;
    std::string m_label;
};

} // namespace zelto::simulator
