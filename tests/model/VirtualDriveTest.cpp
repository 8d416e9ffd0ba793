#include "simulator/drive/VirtualDrive.h"

#include "tests/model/DriveBench.h"
#include "tests/support/TemporaryFolder.h"

#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <sys/stat.h>

namespace zelto::test {
namespace {

using namespace simulator;

using enum SecurityState;

std::string contentsOf(const std::filesystem::path& path) {
    std::ostringstream text;
    text << std::ifstream(path, std::ios::binary).rdbuf();
    return text.str();
}

/// A drive in the hand, and the clock on the wall.
struct Desk {
    explicit Desk(std::unique_ptr<VirtualDrive> given) : drive(std::move(given)) {}

    static std::unique_ptr<VirtualDrive> newDrive() {
        return std::make_unique<VirtualDrive>(Manufactured{.totalSectors = SmallDrive});
    }

    bool send(const Sent& sent) { return !drive->control(sent.setup, sent.data, now).stalled; }
    Sense sense() {
        const Bytes status = drive->control(getStatus().setup, {}, now).data;
        return {status.at(13), status.at(14), status.at(15)};
    }
    void replug() {
        drive->unplug(now);
        drive->plug(now);
    }
    bool setUp() {
        const bool accepted = send(setSecureAreas()) && send(setAutomaticKey()) &&
                              send(setFirst(First)) && send(reconnect());
        if (accepted && drive->takeReconnect()) {
            replug();
        }
        return accepted;
    }
    StorageResult write(std::size_t unit, std::uint64_t sector, const Bytes& bytes) {
        return drive->write(unit, sector, bytes, now);
    }
    Bytes read(std::size_t unit, std::uint64_t sector) {
        Bytes bytes(SectorSize, 0xEE);
        return drive->read(unit, sector, bytes, now) == StorageResult::Done ? bytes : Bytes{};
    }
    std::array<std::uint64_t, 4> generations() {
        std::array<std::uint64_t, 4> all{};
        for (std::size_t unit = 0; unit < all.size(); ++unit) {
            all[unit] = drive->mediaGeneration(unit, now);
        }
        return all;
    }

    Moment now = Start;
    std::unique_ptr<VirtualDrive> drive;
};

class VirtualDriveTest : public testing::Test {
protected:
    VirtualDriveTest() { desk.drive->plug(desk.now); }

    Desk desk{Desk::newDrive()};
    const Bytes data = Bytes(SectorSize, 0x42);
};

// --- Units and media ---------------------------------------------------------------------------

TEST_F(VirtualDriveTest, ShowsNothingUntilItIsPlugged) {
    Desk drawer(Desk::newDrive());
    EXPECT_FALSE(drawer.drive->isPlugged());
    EXPECT_EQ(drawer.drive->sectorCount(0, drawer.now), 0U);
    EXPECT_EQ(drawer.write(0, 0, data), StorageResult::NoMedium);
    EXPECT_FALSE(drawer.send(getStatus()));
    drawer.drive->plug(drawer.now);
    EXPECT_EQ(drawer.drive->sectorCount(0, drawer.now), SmallDrive);
}

TEST_F(VirtualDriveTest, HasNoUnitsBeyondItsFour) {
    EXPECT_EQ(desk.drive->sectorCount(4, desk.now), 0U);
    EXPECT_EQ(desk.drive->mediaGeneration(4, desk.now), 0U);
    EXPECT_EQ(desk.write(4, 0, data), StorageResult::NoMedium);
    EXPECT_TRUE(desk.read(99, 0).empty());
}

TEST_F(VirtualDriveTest, KeepsTheSecureAreaHiddenUntilTheLogIn) {
    ASSERT_TRUE(desk.setUp());
    EXPECT_EQ(desk.write(0, 0, data), StorageResult::NoMedium);
    ASSERT_TRUE(desk.send(authenticate(1, First)));
    EXPECT_EQ(desk.write(0, 0, data), StorageResult::Done);
    EXPECT_EQ(desk.read(0, 0), data);
    ASSERT_TRUE(desk.send(logout()));
    EXPECT_TRUE(desk.read(0, 0).empty());
    ASSERT_TRUE(desk.send(authenticate(1, First)));
    EXPECT_EQ(desk.read(0, 0), data);
}

TEST_F(VirtualDriveTest, ChangesTheGenerationOfAUnitWheneverItsMediumComesOrGoes) {
    auto last = desk.generations();
    EXPECT_EQ(desk.generations(), last);
    ASSERT_TRUE(desk.setUp());
    auto next = desk.generations();
    for (const std::size_t unit : {0U, 1U, 2U}) {
        EXPECT_GT(next[unit], last[unit]);
    }
    EXPECT_EQ(next[3], last[3]);

    last = next;
    ASSERT_TRUE(desk.send(authenticate(1, First)));
    next = desk.generations();
    EXPECT_GT(next[0], last[0]);
    EXPECT_EQ(next[1], last[1]);
    ASSERT_TRUE(desk.send(logout()));
    EXPECT_GT(desk.generations()[0], next[0]);
}

TEST_F(VirtualDriveTest, ShowsByTheGenerationThatTheMediumWasGoneForAMoment) {
    ASSERT_TRUE(desk.setUp() && desk.send(authenticate(1, First)) && desk.send(setIdleLock(60)));
    const auto before = desk.generations();
    // Locked by idleness and unlocked again within the very request that finds it so.
    desk.now += 60s;
    ASSERT_TRUE(desk.send(authenticate(1, First)));
    EXPECT_EQ(desk.generations()[0], before[0] + 2);
}

TEST_F(VirtualDriveTest, NoticesWithoutAnyRequestThatTimeHasLockedIt) {
    ASSERT_TRUE(desk.setUp() && desk.send(authenticate(1, First)) && desk.send(setIdleLock(60)));
    const auto before = desk.generations();
    desk.now += 59s;
    EXPECT_EQ(desk.write(0, 0, data), StorageResult::Done);
    desk.now += 59s;
    EXPECT_EQ(desk.generations(), before);
    // Asking for the medium is no access.
    desk.now += 1s;
    EXPECT_EQ(desk.generations()[0], before[0] + 1);
    EXPECT_EQ(desk.write(0, 0, data), StorageResult::NoMedium);
}

TEST_F(VirtualDriveTest, LosesAllMediaWhenThePlugIsPulled) {
    ASSERT_TRUE(desk.setUp() && desk.send(authenticate(1, First)));
    const auto before = desk.generations();
    desk.drive->unplug(desk.now);
    for (std::size_t unit = 0; unit < 4; ++unit) {
        EXPECT_EQ(desk.drive->sectorCount(unit, desk.now), 0U);
    }
    desk.drive->plug(desk.now);
    EXPECT_EQ(desk.drive->state(desk.now), StateLocked);
    EXPECT_GT(desk.generations()[1], before[1]);
    EXPECT_GT(desk.generations()[2], before[2]);
}

TEST_F(VirtualDriveTest, ComesUpBlankAfterAReset) {
    EXPECT_EQ(desk.write(0, 7, data), StorageResult::Done);
    ASSERT_TRUE(desk.send(resetAreas()));
    EXPECT_EQ(desk.drive->sectorCount(0, desk.now), 0U);
    desk.replug();
    EXPECT_EQ(desk.read(0, 7), Bytes(SectorSize));
}

TEST_F(VirtualDriveTest, FullyLockedByALostClockOpensAgainWithItsContents) {
    ASSERT_TRUE(desk.setUp() && desk.send(authenticate(1, First)) && desk.send(setErasePeriod(60)));
    EXPECT_EQ(desk.write(0, 0, data), StorageResult::Done);
    desk.drive->loseClock(desk.now);
    EXPECT_EQ(desk.drive->state(desk.now), StateFullLock);
    EXPECT_TRUE(desk.read(0, 0).empty());
    ASSERT_TRUE(desk.send(setClock()) && desk.send(authenticate(1, First)));
    EXPECT_EQ(desk.read(0, 0), data);
}

// --- Contents after the key is gone ------------------------------------------------------------

/// Whether the text occurs in the folder's image.
bool imageHolds(const std::filesystem::path& folder, const std::string& text) {
    // The areas of these tests are written near the start of the image.
    std::ifstream image(folder / "drive.image", std::ios::binary);
    std::string start(std::size_t{8} << 20U, '\0');
    image.read(start.data(), static_cast<std::streamsize>(start.size()));
    return start.find(text) != std::string::npos;
}

class KeptDriveTest : public testing::Test {
protected:
    KeptDriveTest() {
        desk.drive = VirtualDrive::create(path, {.totalSectors = SmallDrive, .keySeed = 3}, error);
    }
    void SetUp() override {
        ASSERT_TRUE(desk.drive) << error;
        desk.drive->plug(desk.now);
    }
    /// Puts the drive away and takes it out again: another program, another day.
    void putAwayAndTakeOut() {
        desk.drive->unplug(desk.now);
        desk.drive.reset();
        desk.drive = VirtualDrive::open(path, error);
        ASSERT_TRUE(desk.drive) << error;
        desk.drive->plug(desk.now);
    }

    TemporaryFolder folder;
    std::filesystem::path path = folder.path() / "a drive";
    std::string error;
    Desk desk{nullptr};
    const Bytes data = Bytes(SectorSize, 0x42);
};

TEST_F(KeptDriveTest, PluggedInTomorrowIsTheSameDrive) {
    ASSERT_TRUE(desk.setUp() && desk.send(authenticate(1, First)) &&
                desk.send(writeHint(4095, {1})) && desk.send(setClock()) &&
                desk.send(setErasePeriod(100000)));
    EXPECT_EQ(desk.write(0, 3, data), StorageResult::Done);
    EXPECT_EQ(desk.write(1, 4, data), StorageResult::Done);
    const Remembered before = desk.drive->model().remembered();
    desk.drive->unplug(desk.now);
    desk.drive.reset();
    desk.drive = VirtualDrive::open(path, error);
    ASSERT_TRUE(desk.drive) << error;
    EXPECT_EQ(desk.drive->model().remembered(), before);
    EXPECT_EQ(desk.drive->model().manufactured().keySeed, 3U);

    desk.now += 24h;
    desk.drive->plug(desk.now);
    EXPECT_EQ(desk.drive->state(desk.now), StateLocked);
    EXPECT_EQ(desk.read(1, 4), data);
    ASSERT_TRUE(desk.send(authenticate(1, First)));
    EXPECT_EQ(desk.read(0, 3), data);
    desk.now += 100000s - 24h;
    EXPECT_EQ(desk.drive->state(desk.now), StateFullLock);
}

TEST_F(KeptDriveTest, DroppedWithoutUnpluggingHasSavedEveryAnswerItGave) {
    ASSERT_TRUE(desk.send(setSecureAreas()) && desk.send(setAutomaticKey()) &&
                desk.send(setSecond(Second, 2)) && desk.send(setBoth(First, Second)) &&
                desk.send(reconnect()));
    for (int trial = 0; trial < 2; ++trial) {
        desk.drive.reset();
        desk.drive = VirtualDrive::open(path, error);
        ASSERT_TRUE(desk.drive) << error;
        desk.drive->plug(desk.now);
        ASSERT_TRUE(desk.send(authenticate(1, First)));
        EXPECT_FALSE(desk.send(authenticate(0, Wrong)));
    }
    EXPECT_EQ(desk.drive->state(desk.now), StateFullLock);
}

TEST_F(KeptDriveTest, WithALaterClockThanTheNextComputersCountsOnFromTheLater) {
    ASSERT_TRUE(desk.setUp() && desk.send(authenticate(1, First)) &&
                desk.send(setErasePeriod(100)));
    desk.now += 90s;
    desk.drive->unplug(desk.now);
    desk.now -= 1000h;
    putAwayAndTakeOut();
    EXPECT_EQ(desk.drive->state(desk.now), StateLocked);
    EXPECT_EQ(desk.drive->control(getTime().setup, {}, desk.now).data.at(21), 90);
}

TEST_F(KeptDriveTest, HidesSecureContentsInTheImageAndKeepsNoKeyOnceItIsGone) {
    const std::string secret = "the harbour plan, page seven";
    Bytes sector(SectorSize, ' ');
    std::ranges::copy(secret, sector.begin());
    ASSERT_TRUE(desk.setUp() && desk.send(authenticate(1, First)));
    EXPECT_EQ(desk.write(0, 0, sector), StorageResult::Done);
    EXPECT_EQ(desk.read(0, 0), sector);
    EXPECT_FALSE(imageHolds(path, secret));
    EXPECT_NE(contentsOf(path / "drive.state").find("\nkey automatic "), std::string::npos);

    ASSERT_TRUE(desk.send(setErasePeriod(1)));
    desk.now += 1s;
    EXPECT_EQ(desk.drive->state(desk.now), StateFullLock);
    EXPECT_EQ(contentsOf(path / "drive.state").find("\nkey automatic "), std::string::npos);
    putAwayAndTakeOut();
    EXPECT_EQ(desk.drive->state(desk.now), StateFullLock);
    EXPECT_TRUE(desk.read(0, 0).empty());
}

TEST_F(KeptDriveTest, ResetAndPutAwayComesUpBlank) {
    const std::string text = "written before the reset";
    Bytes sector(SectorSize, ' ');
    std::ranges::copy(text, sector.begin());
    EXPECT_EQ(desk.write(0, 0, sector), StorageResult::Done);
    EXPECT_TRUE(imageHolds(path, text));
    ASSERT_TRUE(desk.send(resetAreas()));
    putAwayAndTakeOut();
    EXPECT_FALSE(imageHolds(path, text));
    EXPECT_EQ(desk.drive->sectorCount(0, desk.now), SmallDrive);
}

TEST_F(KeptDriveTest, IsReadableByItsOwnerOnly) {
    for (const char* name : {"drive.state", "drive.image"}) {
        struct stat status {};
        ASSERT_EQ(::stat((path / name).c_str(), &status), 0);
        EXPECT_EQ(status.st_mode & 0777, 0600U) << name;
    }
}

TEST_F(KeptDriveTest, IsNotPluggedInTwice) {
    std::string reason;
    EXPECT_FALSE(VirtualDrive::open(path, reason));
    EXPECT_NE(reason.find("another program has this drive"), std::string::npos) << reason;
    EXPECT_FALSE(VirtualDrive::create(path, {.totalSectors = SmallDrive}, reason));
    desk.drive.reset();
    EXPECT_FALSE(VirtualDrive::create(path, {.totalSectors = SmallDrive}, reason));
    EXPECT_NE(reason.find("there is a drive in this folder already"), std::string::npos) << reason;
    EXPECT_TRUE(VirtualDrive::open(path, reason)) << reason;
}

TEST_F(KeptDriveTest, ThatCanNotBeSavedRefusesAndSaysSo) {
    std::filesystem::remove(path / "drive.state");
    std::filesystem::create_directories(path / "drive.state" / "in the way");
    EXPECT_FALSE(desk.send(writeHint(0, {1})));
    EXPECT_EQ(desk.sense(), (Sense{4, 0x03, 0x00}));
    EXPECT_FALSE(desk.drive->saveError().empty());
    std::filesystem::remove_all(path / "drive.state");
    EXPECT_TRUE(desk.send(writeHint(0, {1})));
}

TEST_F(KeptDriveTest, DamagedIsReportedAndLeftAsItIs) {
    desk.drive->unplug(desk.now);
    desk.drive.reset();
    const auto state = path / "drive.state";
    const std::string sound = contentsOf(state);
    for (const std::string& damaged :
         {std::string(), sound.substr(0, sound.size() / 2), std::string(1'000'000, 'x'),
          std::string("ZELTO DISK state 9\n")}) {
        std::ofstream(state, std::ios::binary | std::ios::trunc) << damaged;
        EXPECT_FALSE(VirtualDrive::open(path, error));
        EXPECT_NE(error.find("drive.state: it "), std::string::npos) << error;
        EXPECT_EQ(contentsOf(state), damaged);
    }
    std::ofstream(state, std::ios::binary | std::ios::trunc) << sound;
    EXPECT_TRUE(VirtualDrive::open(path, error)) << error;
}

TEST_F(KeptDriveTest, WithItsImageMissingOrOfAnotherSizeIsReportedAndLeftAsItIs) {
    desk.drive->unplug(desk.now);
    desk.drive.reset();
    std::filesystem::resize_file(path / "drive.image", 512);
    EXPECT_FALSE(VirtualDrive::open(path, error));
    EXPECT_NE(error.find("its size is not that of the drive"), std::string::npos) << error;
    std::filesystem::remove(path / "drive.image");
    EXPECT_FALSE(VirtualDrive::open(path, error));
    EXPECT_NE(error.find("the sectors of this drive are missing"), std::string::npos) << error;
    EXPECT_FALSE(std::filesystem::exists(path / "drive.image"));
}

TEST_F(KeptDriveTest, WithAHalfWrittenNewStateBesideItOpensWithTheOldOne) {
    ASSERT_TRUE(desk.setUp());
    desk.drive->unplug(desk.now);
    desk.drive.reset();
    std::ofstream(path / "drive.state.new") << "ZELTO DISK state 1\nserial";
    desk.drive = VirtualDrive::open(path, error);
    ASSERT_TRUE(desk.drive) << error;
    desk.drive->plug(desk.now);
    EXPECT_EQ(desk.drive->state(desk.now), StateLocked);
}

TEST(VirtualDriveFolder, ThatIsNoneSaysWhy) {
    const TemporaryFolder folder;
    std::string error;
    EXPECT_FALSE(VirtualDrive::open(folder.path() / "nowhere", error));
    EXPECT_NE(error.find("nowhere"), std::string::npos);
    EXPECT_FALSE(VirtualDrive::open(folder.path(), error));
    EXPECT_NE(error.find("drive.state"), std::string::npos);
    std::ofstream(folder.path() / "file") << "x";
    EXPECT_FALSE(VirtualDrive::create(folder.path() / "file", {.totalSectors = 1}, error));
    EXPECT_FALSE(error.empty());
}

TEST(VirtualDriveFolder, TakesNoDriveThatCanNotBeMade) {
    const TemporaryFolder folder;
    std::string error;
    const auto refuses = [&](Manufactured made) {
        return !VirtualDrive::create(folder.path() / "drive", std::move(made), error) &&
               !std::filesystem::exists(folder.path() / "drive");
    };
    EXPECT_TRUE(refuses({.totalSectors = 0}));
    EXPECT_TRUE(refuses({.totalSectors = (std::uint64_t{1} << 32) + 1}));
    EXPECT_TRUE(refuses({.serial = "", .totalSectors = SmallDrive}));
    EXPECT_TRUE(refuses({.serial = "two words", .totalSectors = SmallDrive}));
    EXPECT_TRUE(refuses({.serial = "line\nfeed", .totalSectors = SmallDrive}));
    EXPECT_TRUE(refuses({.serial = std::string(127, 'A'), .totalSectors = SmallDrive}));
}

} // namespace
} // namespace zelto::test
