#include "platform/linux/Bundle.h"

#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace zelto::test {
namespace {

using namespace linux_platform;

TEST(Bundle, IsTheAppFolderAboveTheProgram) {
    EXPECT_EQ(enclosingBundle("/usr/lib/zelto/ZeltoAppMac.app/zelto"),
              "/usr/lib/zelto/ZeltoAppMac.app");
    EXPECT_EQ(enclosingBundle("/media/alice/ZELTO TOOL/ZeltoAppMac.app/bin/zelto"),
              "/media/alice/ZELTO TOOL/ZeltoAppMac.app");
}

TEST(Bundle, IsFoundUnderAFolderInOtherLetterCase) {
    EXPECT_EQ(enclosingBundle("/media/alice/ZELTOA~1.APP/ZELTO"), "/media/alice/ZELTOA~1.APP");
}

TEST(Bundle, IsFoundWithBlanksAndNonAsciiLettersOnTheWay) {
    EXPECT_EQ(enclosingBundle("/home/jörg/Mein Büro/Zelto Ü.app/zelto"),
              "/home/jörg/Mein Büro/Zelto Ü.app");
}

TEST(Bundle, IsTheNearestOfSeveral) {
    EXPECT_EQ(enclosingBundle("/a/Outer.app/Inner.app/zelto"), "/a/Outer.app/Inner.app");
}

TEST(Bundle, IsNoneForAProgramElsewhere) {
    EXPECT_EQ(enclosingBundle("/usr/bin/zelto"), std::nullopt);
    EXPECT_EQ(enclosingBundle("/usr/bin/zelto.app"), std::nullopt);
    EXPECT_EQ(enclosingBundle("zelto"), std::nullopt);
    EXPECT_EQ(enclosingBundle(""), std::nullopt);
}

constexpr const char* Cache =
    "/home/alice/.cache/zelto/0123456789abcdef0123456789abcdef0123456789abcdef0123456789abcdef";

TEST(Bundle, OfAnUnpackedProgramIsWhereItWasUnpackedFrom) {
    EXPECT_EQ(bundleOf(std::string(Cache) + "/at/media/alice/ZELTO TOOL/ZeltoAppMac.app/zelto"),
              "/media/alice/ZELTO TOOL/ZeltoAppMac.app");
    EXPECT_EQ(bundleOf(std::string(Cache) + "/at/home/jörg/Mein Büro/ZeltoAppMac.app/zelto"),
              "/home/jörg/Mein Büro/ZeltoAppMac.app");
}

TEST(Bundle, OfAnUnpackedProgramMayItselfLieBelowSuchAFolder) {
    EXPECT_EQ(bundleOf(std::string(Cache) + "/at" + Cache + "/at/ZeltoAppMac.app/zelto"),
              std::string(Cache) + "/at/ZeltoAppMac.app");
}

TEST(Bundle, IsNotTakenForUnpackedWithoutAWholeDigest) {
    EXPECT_EQ(bundleOf("/home/alice/at/ZeltoAppMac.app/zelto"), "/home/alice/at/ZeltoAppMac.app");
    EXPECT_EQ(bundleOf("/home/0123abcd/at/ZeltoAppMac.app/zelto"),
              "/home/0123abcd/at/ZeltoAppMac.app");
}

TEST(Bundle, OfThePackagesProgramIsThePackages) {
    const TemporaryFolder prefix;
    EXPECT_EQ(bundleOf(prefix / "bin/zelto"), std::nullopt);
    prefix.makeFolder("lib/zelto/ZeltoAppMac.app");
    EXPECT_EQ(bundleOf(prefix / "bin/zelto"), prefix / "lib/zelto/ZeltoAppMac.app");
    EXPECT_EQ(bundleOf(prefix / "bin/other"), std::nullopt);
}

} // namespace
} // namespace zelto::test
