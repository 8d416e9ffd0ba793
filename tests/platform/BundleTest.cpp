#include "platform/linux/Bundle.h"

#include <gtest/gtest.h>

namespace zelto::linux_platform {
namespace {

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

} // namespace
} // namespace zelto::linux_platform
