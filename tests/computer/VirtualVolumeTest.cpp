#include "simulator/computer/VirtualVolume.h"
#include "simulator/drive/DriveContents.h"

#include <gtest/gtest.h>

#include <array>

namespace zelto::test {
namespace {

using namespace simulator;

constexpr std::uint64_t Sectors = 64;
constexpr std::chrono::sys_seconds Noon{std::chrono::seconds(1'800'000'000)};

/// The sectors of a secure area under a key.
class SecureArea : public SectorStore {
public:
    SecureArea(DriveContents& contents, std::uint8_t keyByte) : m_contents(contents) {
        m_medium.key.emplace().fill(keyByte);
    }
    [[nodiscard]] std::uint64_t sectorCount() const override { return Sectors; }
    [[nodiscard]] bool read(std::uint64_t sector, std::span<std::uint8_t> bytes) override {
        return m_contents.read(m_medium, sector, bytes) == StorageResult::Done;
    }
    [[nodiscard]] bool write(std::uint64_t sector, std::span<const std::uint8_t> bytes) override {
        return m_contents.write(m_medium, sector, bytes) == StorageResult::Done;
    }
    [[nodiscard]] bool flush() override { return true; }
    [[nodiscard]] bool discardAll() override { return false; }

private:
    DriveContents& m_contents;
    Medium m_medium{.sectorCount = Sectors, .secure = true};
};

class VirtualVolumeTest : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(VirtualVolume::format(m_medium, "LETTERS"));
        m_volume = VirtualVolume::mount(m_medium);
        ASSERT_NE(m_volume, nullptr);
    }
    /// Changes one byte of the first sector.
    void damage(std::size_t offset, std::uint8_t byte) {
        std::array<std::uint8_t, SectorSize> sector{};
        ASSERT_TRUE(m_medium.read(0, sector));
        sector.at(offset) = byte;
        ASSERT_TRUE(m_medium.write(0, sector));
    }

    MemorySectorStore m_medium{Sectors};
    std::unique_ptr<VirtualVolume> m_volume;
};

TEST_F(VirtualVolumeTest, GivesBackWhatWasWrittenAfterMountingAgain) {
    ASSERT_TRUE(m_volume->writeFile("folder/Übersicht", FileTree::Bytes(1000, 7), Noon));
    ASSERT_TRUE(m_volume->writeFile("empty", {}, Noon));
    const auto again = VirtualVolume::mount(m_medium);
    ASSERT_NE(again, nullptr);
    EXPECT_EQ(again->label(), "LETTERS");
    EXPECT_TRUE(again->find("folder")->isFolder);
    EXPECT_EQ(again->find("folder/Übersicht")->bytes, FileTree::Bytes(1000, 7));
    EXPECT_EQ(again->find("folder/Übersicht")->modified, Noon);
    EXPECT_TRUE(again->find("empty")->isWritable);
    EXPECT_EQ(again->branch("").size(), 4U);
}

TEST_F(VirtualVolumeTest, LosesAFolderWithAllThatIsInItAndGetsTheRoomBack) {
    const FileTree::Bytes large((Sectors - 2) * SectorSize, 7);
    ASSERT_TRUE(m_volume->writeFile("folder/one", large, Noon));
    EXPECT_FALSE(m_volume->writeFile("two", large, Noon));
    ASSERT_TRUE(m_volume->remove("folder"));
    EXPECT_TRUE(m_volume->writeFile("two", large, Noon));
    EXPECT_EQ(VirtualVolume::mount(m_medium)->find("folder"), nullptr);
}

TEST_F(VirtualVolumeTest, LeavesNothingOfAFileThatDoesNotFit) {
    ASSERT_TRUE(m_volume->writeFile("file", {1, 2, 3}, Noon));
    EXPECT_FALSE(m_volume->writeFile("file", FileTree::Bytes(Sectors * SectorSize), Noon));
    EXPECT_FALSE(m_volume->writeFile("new/other", FileTree::Bytes(Sectors * SectorSize), Noon));
    const auto again = VirtualVolume::mount(m_medium);
    for (const VirtualVolume* const volume : {m_volume.get(), again.get()}) {
        EXPECT_EQ(volume->find("file")->bytes, (FileTree::Bytes{1, 2, 3}));
        EXPECT_EQ(volume->find("new"), nullptr);
    }
}

TEST_F(VirtualVolumeTest, IsNotFoundOnBlankSectorsOrUnderAnotherSignature) {
    MemorySectorStore blank(Sectors);
    EXPECT_EQ(VirtualVolume::mount(blank), nullptr);
    MemorySectorStore nothing(0);
    EXPECT_EQ(VirtualVolume::mount(nothing), nullptr);
    damage(0, 'z');
    EXPECT_EQ(VirtualVolume::mount(m_medium), nullptr);
}

TEST_F(VirtualVolumeTest, IsRefusedWhenALengthReachesBeyondTheEnd) {
    constexpr std::size_t HighByteOfLength = 16;
    constexpr std::size_t HighByteOfLabelLength = 24;
    for (const std::size_t offset : {HighByteOfLength, HighByteOfLabelLength}) {
        damage(offset, 0xFF);
        EXPECT_EQ(VirtualVolume::mount(m_medium), nullptr) << offset;
        damage(offset, 0);
        EXPECT_NE(VirtualVolume::mount(m_medium), nullptr) << offset;
    }
}

TEST_F(VirtualVolumeTest, IsNotMadeWithALongLabelOrWithoutRoom) {
    EXPECT_FALSE(VirtualVolume::format(m_medium, "LONGER THAN FAT"));
    EXPECT_EQ(VirtualVolume::mount(m_medium)->label(), "LETTERS");
    MemorySectorStore nothing(0);
    EXPECT_FALSE(VirtualVolume::format(nothing, "X"));
}

TEST(SecureVolume, IsLostWithItsKey) {
    DriveContents contents(std::make_unique<MemorySectorStore>(Sectors));
    SecureArea area(contents, 1);
    ASSERT_TRUE(VirtualVolume::format(area, "SECRET"));
    EXPECT_NE(VirtualVolume::mount(area), nullptr);
    SecureArea underAnotherKey(contents, 2);
    EXPECT_EQ(VirtualVolume::mount(underAnotherKey), nullptr);
}

} // namespace
} // namespace zelto::test
