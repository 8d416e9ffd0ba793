#include "platform/linux/ReadBack.h"

#include "platform/linux/FileDescriptor.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <unistd.h>

namespace zelto::test {
namespace {

using namespace linux_platform;

class ReadBack : public ::testing::Test {
protected:
    [[nodiscard]] bool isSame(const std::string& written, const std::string& source) const {
        folder.write("written", written);
        folder.write("source", source);
        const FileDescriptor one(::open((folder / "written").c_str(), O_RDONLY | O_CLOEXEC));
        const FileDescriptor other(::open((folder / "source").c_str(), O_RDONLY | O_CLOEXEC));
        EXPECT_EQ(::lseek(one.get(), 0, SEEK_END), static_cast<off_t>(written.size()));
        return readsBackAs(one.get(), other.get());
    }

    TemporaryFolder folder;
    const std::string large = std::string(700'001, 'x');
};

TEST_F(ReadBack, FindsTheSameBytesWhereverTheFilesStand) {
    EXPECT_TRUE(isSame(large, large));
    EXPECT_TRUE(isSame("", ""));
}

TEST_F(ReadBack, FindsOneByteThatDiffers) {
    auto bad = large;
    bad.back() = 'y';
    EXPECT_FALSE(isSame(bad, large));
    bad = large;
    bad[262'144] = 'y';
    EXPECT_FALSE(isSame(bad, large));
}

TEST_F(ReadBack, FindsWhatIsMissingAndWhatIsTooMuch) {
    EXPECT_FALSE(isSame(large.substr(1), large));
    EXPECT_FALSE(isSame(large + "x", large));
    EXPECT_FALSE(isSame("", large));
    EXPECT_FALSE(isSame(large, ""));
}

TEST_F(ReadBack, TakesWhatCannotBeReadForDifferent) {
    folder.write("file", large);
    const FileDescriptor file(::open((folder / "file").c_str(), O_RDONLY | O_CLOEXEC));
    const FileDescriptor writeOnly(::open((folder / "file").c_str(), O_WRONLY | O_CLOEXEC));
    EXPECT_FALSE(readsBackAs(writeOnly.get(), file.get()));
    EXPECT_FALSE(readsBackAs(-1, file.get()));
}

} // namespace
} // namespace zelto::test
