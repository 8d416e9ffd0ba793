#include "simulator/fat/FatVolume.h"
#include "simulator/fat/PartitionTable.h"
#include "tests/computer/MemoryDisk.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <memory>

#include <unistd.h>

namespace zelto::test {
namespace {

using namespace simulator;
using testing::ElementsAre;
using testing::UnorderedElementsAre;

constexpr std::chrono::sys_seconds Noon =
    std::chrono::sys_days(std::chrono::year(2026) / std::chrono::March / 2) +
    std::chrono::hours(12) + std::chrono::minutes(34) + std::chrono::seconds(56);

FileStore::Bytes makeBytes(std::size_t size, unsigned seed = 1) {
    FileStore::Bytes bytes(size);
    unsigned state = seed;
    for (auto& byte : bytes) {
        state = state * 1664525U + 1013904223U;
        byte = static_cast<std::uint8_t>(state >> 24U);
    }
    return bytes;
}

std::unique_ptr<FatVolume> makeVolume(BlockDevice& disk) {
    EXPECT_TRUE(formatFat(disk, "ZELTO TOOL", 0, Noon));
    return FatVolume::mount(disk);
}

struct Size {
    std::uint64_t sectors;
    FatLayout::Kind kind;

    friend void PrintTo(const Size& size, std::ostream* out) { *out << size.sectors << " sectors"; }
};

class EverySize : public testing::TestWithParam<Size> {};

constexpr std::uint64_t SectorsPerMebibyte = 2048;

INSTANTIATE_TEST_SUITE_P(Fat, EverySize,
                         testing::Values(Size{SectorsPerMebibyte, FatLayout::Kind::Fat12},
                                         Size{38912, FatLayout::Kind::Fat16},
                                         Size{64 * SectorsPerMebibyte, FatLayout::Kind::Fat16},
                                         Size{300 * SectorsPerMebibyte, FatLayout::Kind::Fat32}));

TEST_P(EverySize, GivesTheKindOfFileSystemThatSuitsIt) {
    MemoryDisk disk(GetParam().sectors);
    const auto volume = makeVolume(disk);
    ASSERT_NE(volume, nullptr);
    EXPECT_EQ(volume->layout().kind, GetParam().kind);
    EXPECT_EQ(volume->label(), "ZELTO TOOL");
    EXPECT_THAT(volume->list(""), testing::Optional(testing::IsEmpty()));
}

TEST_P(EverySize, GivesBackWhatWasWrittenAfterMountingAgain) {
    MemoryDisk disk(GetParam().sectors);
    const FileStore::Bytes contents = makeBytes(70001);
    {
        const auto volume = makeVolume(disk);
        ASSERT_TRUE(volume->makeFolder("Zelto App.app", Noon));
        ASSERT_TRUE(volume->makeFolder("Zelto App.app/Contents", Noon));
        ASSERT_TRUE(
            volume->writeFile("Zelto App.app/Contents/Übersicht – 概要.txt", contents, Noon));
        ASSERT_TRUE(volume->writeFile("README.TXT", {}, Noon));
    }
    const auto volume = FatVolume::mount(disk);
    EXPECT_THAT(volume->list(""),
                testing::Optional(UnorderedElementsAre("Zelto App.app", "README.TXT")));
    EXPECT_EQ(volume->readFile("zelto app.APP/contents/Übersicht – 概要.txt"), contents);
    EXPECT_EQ(volume->readFile("README.TXT"), FileStore::Bytes());
    EXPECT_EQ(volume->info("Zelto App.app/Contents/Übersicht – 概要.txt")->modified, Noon);
    EXPECT_TRUE(volume->info("Zelto App.app")->isFolder);
}

/// An image of the disk in a file, for the tools of other people.
class ImageFile {
public:
    explicit ImageFile(BlockDevice& disk) {
        std::array<char, 32> name{"/tmp/zelto-fat-XXXXXX"};
        const int descriptor = mkstemp(name.data());
        EXPECT_GE(descriptor, 0);
        m_path = name.data();
        std::ofstream file(m_path, std::ios::binary);
        FileStore::Bytes chunk(SectorSize * 512);
        for (std::uint64_t sector = 0; sector < disk.sectorCount(); sector += 512) {
            const auto count = std::min<std::uint64_t>(512, disk.sectorCount() - sector);
            const auto part = std::span(chunk).first(static_cast<std::size_t>(count) * SectorSize);
            EXPECT_TRUE(disk.read(sector, part));
            file.write(reinterpret_cast<const char*>(part.data()),
                       static_cast<std::streamsize>(part.size()));
        }
        if (descriptor >= 0) {
            close(descriptor);
        }
    }
    ImageFile(const ImageFile&) = delete;
    ImageFile& operator=(const ImageFile&) = delete;
    ~ImageFile() { static_cast<void>(std::remove(m_path.c_str())); }
    [[nodiscard]] const std::string& path() const { return m_path; }

private:
    std::string m_path;
};

bool isInstalled(const std::string& tool) {
    return std::system(
               ("PATH=$PATH:/sbin:/usr/sbin command -v " + tool + " > /dev/null 2>&1").c_str()) ==
           0;
}

TEST_P(EverySize, IsSoundInTheEyesOfTheSystemsChecker) {
    if (!isInstalled("fsck.vfat")) {
        GTEST_SKIP() << "dosfstools are not installed";
    }
    MemoryDisk disk(GetParam().sectors);
    const auto volume = makeVolume(disk);
    ASSERT_TRUE(volume->makeFolder("A folder with a long name", Noon));
    for (int i = 0; i < 60; ++i) {
        const std::string name = "A folder with a long name/file number " + std::to_string(i);
        ASSERT_TRUE(volume->writeFile(name, makeBytes(static_cast<std::size_t>(i) * 100), Noon));
    }
    ASSERT_TRUE(volume->remove("A folder with a long name/file number 7"));
    ASSERT_TRUE(volume->writeFile("SHORT.TXT", makeBytes(5000), Noon));
    const ImageFile image(disk);
    EXPECT_EQ(std::system(("PATH=$PATH:/sbin:/usr/sbin fsck.vfat -n -v " + image.path() + " > " +
                           image.path() + ".txt 2>&1 || { cat " + image.path() + ".txt; exit 1; }")
                              .c_str()),
              0);
    static_cast<void>(std::remove((image.path() + ".txt").c_str()));
}

TEST(FatVolume, IsReadBySomebodyElsesTool) {
    if (!isInstalled("mcopy")) {
        GTEST_SKIP() << "mtools are not installed";
    }
    MemoryDisk disk(38912);
    const auto volume = makeVolume(disk);
    const FileStore::Bytes contents = makeBytes(123457);
    ASSERT_TRUE(volume->makeFolder("ZeltoAppMac.app", Noon));
    ASSERT_TRUE(volume->writeFile("ZeltoAppMac.app/a long program name.bin", contents, Noon));
    const ImageFile image(disk);
    const std::string out = image.path() + ".out";
    ASSERT_EQ(std::system(("mcopy -n -i " + image.path() +
                           " '::ZeltoAppMac.app/a long program name.bin' " + out)
                              .c_str()),
              0);
    std::ifstream file(out, std::ios::binary);
    const FileStore::Bytes read((std::istreambuf_iterator<char>(file)),
                                std::istreambuf_iterator<char>());
    static_cast<void>(std::remove(out.c_str()));
    EXPECT_EQ(read, contents);
}

TEST(FatVolume, RemovesAFolderWithAllThatIsInItAndGetsTheRoomBack) {
    MemoryDisk disk(38912);
    const auto volume = makeVolume(disk);
    const std::uint64_t before = volume->freeBytes();
    ASSERT_TRUE(volume->makeFolder("one", Noon));
    ASSERT_TRUE(volume->makeFolder("one/two", Noon));
    ASSERT_TRUE(volume->writeFile("one/two/three", makeBytes(9999), Noon));
    EXPECT_LT(volume->freeBytes(), before);
    ASSERT_TRUE(volume->remove("one"));
    EXPECT_EQ(volume->freeBytes(), before);
    EXPECT_FALSE(volume->info("one"));
    EXPECT_FALSE(volume->remove("one"));
}

TEST(FatVolume, LeavesNothingOfAFileThatDoesNotFit) {
    MemoryDisk disk(SectorsPerMebibyte);
    const auto volume = makeVolume(disk);
    const std::uint64_t before = volume->freeBytes();
    EXPECT_FALSE(volume->writeFile("large", makeBytes(2 * 1024 * 1024), Noon));
    EXPECT_FALSE(volume->info("large"));
    EXPECT_EQ(volume->freeBytes(), before);
    EXPECT_TRUE(volume->writeFile("just", makeBytes(static_cast<std::size_t>(before)), Noon));
    EXPECT_EQ(volume->freeBytes(), 0U);
}

TEST(FatVolume, TellsShortNamesApartThatLookAlike) {
    MemoryDisk disk(38912);
    const auto volume = makeVolume(disk);
    for (int i = 0; i < 15; ++i) {
        const std::string name = "the same beginning " + std::to_string(i) + ".text";
        ASSERT_TRUE(volume->writeFile(name, makeBytes(10, static_cast<unsigned>(i)), Noon));
    }
    EXPECT_EQ(volume->list("")->size(), 15U);
    EXPECT_EQ(volume->readFile("the same beginning 11.text"), makeBytes(10, 11));
}

TEST(FatVolume, RefusesNamesThatFatCannotHold) {
    MemoryDisk disk(38912);
    const auto volume = makeVolume(disk);
    for (const char* name : {"a:b", "what?", "star*", "end.", "end ", "bad\xFFutf", "tab\there"}) {
        EXPECT_FALSE(volume->writeFile(name, {}, Noon)) << name;
    }
    EXPECT_FALSE(volume->writeFile(std::string(256, 'x'), {}, Noon));
    EXPECT_TRUE(volume->writeFile(std::string(255, 'x'), {}, Noon));
    EXPECT_FALSE(volume->writeFile("no such folder/file", {}, Noon));
}

TEST(FatVolume, IsNotFoundOnBlankOrDamagedSectors) {
    MemoryDisk disk(38912);
    EXPECT_EQ(FatVolume::mount(disk), nullptr);
    ASSERT_TRUE(formatFat(disk, "X", 0, Noon));
    std::array<std::uint8_t, SectorSize> boot{};
    ASSERT_TRUE(disk.read(0, boot));
    for (std::size_t i = 11; i < 36; ++i) {
        auto damaged = boot;
        damaged[i] = 0xFF;
        ASSERT_TRUE(disk.write(0, damaged));
        // Some bytes matter to nobody; whatever is mounted must bear being walked.
        if (const auto volume = FatVolume::mount(disk)) {
            static_cast<void>(volume->list(""));
        }
    }
}

TEST(FatVolume, EndsAChainThatRunsInACircle) {
    MemoryDisk disk(38912);
    const auto volume = makeVolume(disk);
    ASSERT_TRUE(volume->writeFile("file", makeBytes(3000), Noon));
    std::array<std::uint8_t, SectorSize> fat{};
    ASSERT_TRUE(disk.read(volume->layout().firstFatSector, fat));
    fat[4] = 2;
    fat[5] = 0;
    ASSERT_TRUE(disk.write(volume->layout().firstFatSector, fat));
    const auto again = FatVolume::mount(disk);
    EXPECT_EQ(again->readFile("file")->size(), 3000U);
}

TEST(FatVolume, IsRefusedOnADeviceTooSmallForOne) {
    MemoryDisk disk(8);
    EXPECT_FALSE(formatFat(disk, "X", 0, Noon));
    EXPECT_FALSE(formatFat(disk, "TWELVE CHARS", 0, Noon));
}

TEST(FatMoment, KeepsEvenSecondsFrom1980On) {
    EXPECT_EQ(fromFatMoment(toFatMoment(Noon)), Noon);
    EXPECT_EQ(fromFatMoment(toFatMoment(Noon + std::chrono::seconds(1))), Noon);
    EXPECT_EQ(fromFatMoment(toFatMoment({})),
              std::chrono::sys_days(std::chrono::year(1980) / std::chrono::January / 1));
}

TEST(MasterBootRecord, GivesBackThePartitionThatFillsTheDisk) {
    MemoryDisk disk(40960);
    const Partition partition = partitionFilling(40960, 0x0E);
    EXPECT_EQ(partition.firstSector, 2048U);
    EXPECT_EQ(partition.sectorCount, 38912U);
    ASSERT_TRUE(writeMasterBootRecord(disk, partition));
    EXPECT_THAT(readMasterBootRecord(disk), ElementsAre(partition));
}

TEST(MasterBootRecord, LeavesOutPartitionsThatReachBeyondTheDisk) {
    MemoryDisk disk(40960);
    Partition partition{.number = 2, .type = 0x0C, .firstSector = 2048, .sectorCount = 40000};
    ASSERT_TRUE(writeMasterBootRecord(disk, partition));
    EXPECT_TRUE(readMasterBootRecord(disk).empty());
}

} // namespace
} // namespace zelto::test
