#include "simulator/drive/DriveContents.h"

#include "tests/support/TemporaryFolder.h"

#include <algorithm>
#include <fcntl.h>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace zelto::test {

using Bytes = std::vector<std::uint8_t>;

namespace {

using namespace simulator;

constexpr std::uint64_t Sectors = 4096;

Bytes pattern(std::size_t sectors, std::uint8_t seed) {
    Bytes bytes(sectors * SectorSize);
    for (std::size_t index = 0; index < bytes.size(); ++index) {
        bytes[index] = static_cast<std::uint8_t>(seed + index % 251);
    }
    return bytes;
}

/// Some of the sectors in `bytes`, counted from 0.
Bytes sectorsOf(const Bytes& bytes, std::size_t first, std::size_t count) {
    const auto part = std::span(bytes).subspan(first * SectorSize, count * SectorSize);
    return {part.begin(), part.end()};
}

Medium normalMedium() {
    return {.firstSector = 100, .sectorCount = 1000};
}

Medium secureMedium(std::uint8_t keyByte) {
    MediumKey key{};
    key[0] = keyByte;
    return {.firstSector = 2000, .sectorCount = 1500, .secure = true, .key = key};
}

/// A store that the test can look into while the contents use it.
class WatchedStore final : public SectorStore {
public:
    WatchedStore(MemorySectorStore& memory, const bool& isBroken)
        : m_memory(memory), m_isBroken(isBroken) {}

    std::uint64_t sectorCount() const override { return m_memory.sectorCount(); }
    bool read(std::uint64_t sector, std::span<std::uint8_t> bytes) override {
        return !m_isBroken && m_memory.read(sector, bytes);
    }
    bool write(std::uint64_t sector, std::span<const std::uint8_t> bytes) override {
        return !m_isBroken && m_memory.write(sector, bytes);
    }
    bool flush() override { return !m_isBroken; }
    bool discardAll() override { return !m_isBroken && m_memory.discardAll(); }

private:
    MemorySectorStore& m_memory;
    const bool& m_isBroken;
};

class DriveContentsTest : public testing::Test {
protected:
    Bytes raw(std::uint64_t sector, std::size_t sectors) {
        Bytes bytes(sectors * SectorSize);
        EXPECT_TRUE(memory.read(sector, bytes));
        return bytes;
    }
    Bytes read(const Medium& medium, std::uint64_t sector, std::size_t sectors) {
        Bytes bytes(sectors * SectorSize);
        EXPECT_EQ(contents.read(medium, sector, bytes), StorageResult::Done);
        return bytes;
    }

    MemorySectorStore memory{Sectors};
    bool isBroken = false;
    DriveContents contents{std::make_unique<WatchedStore>(memory, isBroken)};
};

TEST_F(DriveContentsTest, OfANormalAreaLieInTheStoreAsTheyAre) {
    const Bytes data = pattern(3, 1);
    ASSERT_EQ(contents.write(normalMedium(), 10, data), StorageResult::Done);
    EXPECT_EQ(read(normalMedium(), 10, 3), data);
    EXPECT_EQ(raw(110, 3), data);
}

TEST_F(DriveContentsTest, OfASecureAreaComeBackWithTheKeyOnly) {
    // Longer than what is enciphered at a time.
    const Bytes data = pattern(1200, 1);
    ASSERT_EQ(contents.write(secureMedium(1), 10, data), StorageResult::Done);
    EXPECT_EQ(read(secureMedium(1), 10, 1200), data);
    EXPECT_EQ(read(secureMedium(1), 700, 2), sectorsOf(data, 690, 2));

    const Bytes otherKey = read(secureMedium(2), 10, 1200);
    const Bytes stored = raw(2010, 1200);
    for (std::size_t sector = 0; sector < 1200; ++sector) {
        EXPECT_NE(sectorsOf(data, sector, 1), sectorsOf(otherKey, sector, 1));
        EXPECT_NE(sectorsOf(data, sector, 1), sectorsOf(stored, sector, 1));
    }
}

TEST_F(DriveContentsTest, OfEqualSecureSectorsDifferInTheStore) {
    ASSERT_EQ(contents.write(secureMedium(1), 0, Bytes(4 * SectorSize)), StorageResult::Done);
    EXPECT_NE(raw(2000, 1), raw(2001, 1));
    EXPECT_NE(raw(2000, 1), Bytes(SectorSize));
}

TEST_F(DriveContentsTest, AreEncipheredUnderAKeyOfZerosToo) {
    // XTS takes no two equal halves; a key by hand of "00" has them.
    const Medium medium = secureMedium(0);
    ASSERT_EQ(contents.write(medium, 0, pattern(1, 9)), StorageResult::Done);
    EXPECT_EQ(read(medium, 0, 1), pattern(1, 9));
    EXPECT_NE(raw(2000, 1), pattern(1, 9));
}

TEST_F(DriveContentsTest, SurviveThatTheKeyWasForgottenAndComesBack) {
    ASSERT_EQ(contents.write(secureMedium(1), 0, pattern(2, 3)), StorageResult::Done);
    contents.forgetKey();
    EXPECT_EQ(read(secureMedium(1), 0, 2), pattern(2, 3));
    // Two keys in turn: the one kept ready is never the wrong one.
    ASSERT_EQ(contents.write(secureMedium(2), 5, pattern(2, 4)), StorageResult::Done);
    EXPECT_EQ(read(secureMedium(1), 0, 2), pattern(2, 3));
    EXPECT_EQ(read(secureMedium(2), 5, 2), pattern(2, 4));
}

TEST_F(DriveContentsTest, AreNotReadWithoutAKey) {
    Medium medium = secureMedium(1);
    ASSERT_EQ(contents.write(medium, 0, pattern(1, 3)), StorageResult::Done);
    medium.key.reset();
    Bytes bytes(SectorSize);
    EXPECT_EQ(contents.read(medium, 0, bytes), StorageResult::Failed);
    EXPECT_EQ(contents.write(medium, 0, bytes), StorageResult::Failed);
}

TEST_F(DriveContentsTest, EndWhereTheMediumEnds) {
    for (const Medium& medium : {normalMedium(), secureMedium(1)}) {
        const std::uint64_t end = medium.sectorCount;
        Bytes one(SectorSize);
        Bytes two(2 * SectorSize);
        EXPECT_EQ(contents.write(medium, end - 1, one), StorageResult::Done);
        EXPECT_EQ(contents.read(medium, end - 1, one), StorageResult::Done);
        EXPECT_EQ(contents.read(medium, end - 1, two), StorageResult::OutOfRange);
        EXPECT_EQ(contents.write(medium, end - 1, two), StorageResult::OutOfRange);
        EXPECT_EQ(contents.read(medium, end, one), StorageResult::OutOfRange);
        EXPECT_EQ(contents.read(medium, ~std::uint64_t{0}, one), StorageResult::OutOfRange);
        EXPECT_EQ(contents.read(medium, 0, std::span(one).first(511)), StorageResult::OutOfRange);
        EXPECT_EQ(contents.read(medium, end, {}), StorageResult::Done);
    }
}

TEST_F(DriveContentsTest, ReportAStoreThatFails) {
    isBroken = true;
    Bytes bytes(SectorSize);
    for (const Medium& medium : {normalMedium(), secureMedium(1)}) {
        EXPECT_EQ(contents.read(medium, 0, bytes), StorageResult::Failed);
        EXPECT_EQ(contents.write(medium, 0, bytes), StorageResult::Failed);
    }
    EXPECT_EQ(contents.flush(), StorageResult::Failed);
    EXPECT_EQ(contents.discardAll(), StorageResult::Failed);
}

// --- Stores ------------------------------------------------------------------------------------

void checkMiddle(SectorStore& store) {
    Bytes bytes(300 * SectorSize, 0xEE);
    ASSERT_TRUE(store.read(50, bytes));
    EXPECT_EQ(bytes, Bytes(300 * SectorSize));
    ASSERT_TRUE(store.write(100, pattern(200, 5)));
    ASSERT_TRUE(store.read(50, bytes));
    EXPECT_EQ(sectorsOf(bytes, 50, 200), pattern(200, 5));
    EXPECT_EQ(sectorsOf(bytes, 49, 1), Bytes(SectorSize));
    EXPECT_EQ(sectorsOf(bytes, 250, 1), Bytes(SectorSize));
}

void checkEnd(SectorStore& store) {
    const std::uint64_t last = store.sectorCount() - 1;
    Bytes one = pattern(1, 7);
    EXPECT_TRUE(store.write(last, one));
    EXPECT_FALSE(store.write(last + 1, one));
    EXPECT_FALSE(store.write(~std::uint64_t{0}, one));
    EXPECT_FALSE(store.write(last, pattern(2, 7)));
    EXPECT_FALSE(store.read(last, std::span(one).first(100)));
    ASSERT_TRUE(store.read(last, one));
    EXPECT_EQ(one, pattern(1, 7));

    EXPECT_TRUE(store.flush());
    ASSERT_TRUE(store.discardAll());
    ASSERT_TRUE(store.read(last, one));
    EXPECT_EQ(one, Bytes(SectorSize));
}

TEST(MemorySectorStore, KeepsWhatIsWrittenOnDrivesOfAnySize) {
    for (const std::uint64_t sectors : {std::uint64_t{1} << 17, std::uint64_t{1} << 32}) {
        MemorySectorStore store(sectors);
        checkMiddle(store);
        checkEnd(store);
    }
}

TEST(FileSectorStore, KeepsWhatIsWritten) {
    const TemporaryFolder folder;
    std::string error;
    const auto store =
        FileSectorStore::open(folder.path() / "image", std::uint64_t{1} << 17, error);
    ASSERT_TRUE(store) << error;
    checkMiddle(*store);
    checkEnd(*store);
}

TEST(FileSectorStore, OfTwoTerabytesTakesOnlyTheRoomOfWhatWasWritten) {
    const TemporaryFolder folder;
    const auto path = folder.path() / "image";
    std::string error;
    const auto store = FileSectorStore::open(path, std::uint64_t{1} << 32, error);
    if (!store) {
        GTEST_SKIP() << "this file system has no files of 2 TB: " << error;
    }
    ASSERT_TRUE(store->write((std::uint64_t{1} << 32) - 1, pattern(1, 7)));
    struct stat status {};
    ASSERT_EQ(::stat(path.c_str(), &status), 0);
    EXPECT_EQ(status.st_size, off_t{1} << 41);
    EXPECT_LT(status.st_blocks, 4096);
}

TEST(FileSectorStore, OfAnotherSizeIsNotOpenedAndNotTouched) {
    const TemporaryFolder folder;
    const auto path = folder.path() / "image";
    std::ofstream(path) << "a letter";
    std::string error;
    EXPECT_FALSE(FileSectorStore::open(path, 1000, error));
    EXPECT_NE(error.find("its size is not that of the drive"), std::string::npos) << error;
    EXPECT_EQ(std::filesystem::file_size(path), 8U);
}

TEST(FileSectorStore, CutShortBySomebodyElseFailsInsteadOfInventingSectors) {
    const TemporaryFolder folder;
    const auto path = folder.path() / "image";
    std::string error;
    const auto store = FileSectorStore::open(path, 1000, error);
    ASSERT_TRUE(store);
    std::filesystem::resize_file(path, std::size_t{512} * 10);
    Bytes bytes(2 * SectorSize);
    EXPECT_TRUE(store->read(8, bytes));
    EXPECT_FALSE(store->read(9, bytes));
}

TEST(FileSectorStore, WhereThereCanBeNoneSaysWhy) {
    const TemporaryFolder folder;
    std::string error;
    EXPECT_FALSE(FileSectorStore::open(folder.path() / "no" / "image", 1000, error));
    EXPECT_FALSE(error.empty());
    EXPECT_FALSE(FileSectorStore::open(folder.path(), 1000, error));
    ASSERT_EQ(::mkfifo((folder.path() / "pipe").c_str(), 0600), 0);
    EXPECT_FALSE(FileSectorStore::open(folder.path() / "pipe", 1000, error));
    EXPECT_NE(error.find("not a regular file"), std::string::npos) << error;
}

} // namespace
} // namespace zelto::test
