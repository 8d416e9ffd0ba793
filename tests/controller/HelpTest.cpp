#include "tests/controller/SessionBench.h"
#include "tests/support/ScriptedDesktop.h"
#include "ui/ProductVersion.h"

namespace zelto::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class HelpTest : public SessionTest {
protected:
    HelpTest() { computer.desktop = desktop; }

    /// A bundle with one page of the manual.
    void installPage(const std::filesystem::path& page) {
        computer.files.setBundlePath("/home/user/Applications/ZeltoAppMac.app");
        ASSERT_TRUE(computer.files.ownDisk().writeFile(simulator::VirtualFiles::onOwnDisk(page),
                                                       std::vector<std::uint8_t>{'<'}, {}));
    }

    std::shared_ptr<ScriptedDesktop> desktop = std::make_shared<ScriptedDesktop>();
    const std::filesystem::path ofLogIn =
        "/home/user/Applications/ZeltoAppMac.app/manual/logging-in.html";
};

TEST_F(HelpTest, TheButtonOpensThePageAboutItsWindow) {
    installPage(ofLogIn);
    plugPreparedDrive();
    start();
    press("Help");
    EXPECT_THAT(desktop->openedDocuments(), ElementsAre(ofLogIn));
    EXPECT_THAT(messages(), IsEmpty());
    EXPECT_EQ(visibleWindow(), "AuthenticateWindow");
}

TEST_F(HelpTest, AProgramThatWasJustBuiltHasTheManualBesideIt) {
    computer.files.setBundlePath("/build/bin");
    const std::filesystem::path page = "/build/manual/logging-in.html";
    ASSERT_TRUE(computer.files.ownDisk().writeFile(simulator::VirtualFiles::onOwnDisk(page),
                                                   std::vector<std::uint8_t>{'<'}, {}));
    plugPreparedDrive();
    start();
    press("Help");
    EXPECT_THAT(desktop->openedDocuments(), ElementsAre(page));
}

TEST_F(HelpTest, AMissingManualIsSaid) {
    plugPreparedDrive();
    start();
    press("Help");
    EXPECT_THAT(desktop->openedDocuments(), IsEmpty());
    EXPECT_THAT(messages(), ElementsAre(localized("IDS_HINT_NO_MANUAL")));
}

TEST_F(HelpTest, SoIsAManualThatNothingCanShow) {
    installPage(ofLogIn);
    desktop->setOpensNothing();
    plugPreparedDrive();
    start();
    press("Help");
    EXPECT_THAT(messages(), ElementsAre(localized("IDS_HINT_NO_MANUAL")));
}

TEST_F(HelpTest, AFailureThatSupportIsAskedAboutNamesTheVersion) {
    plugPreparedDrive();
    start();
    app().ErrorMessageBox(kIOReturnIOError);
    ASSERT_EQ(alerts.panels().size(), 1U);
    EXPECT_TRUE(alerts.panels().front().detail.contains(productVersion()));
}

} // namespace
} // namespace zelto::test
