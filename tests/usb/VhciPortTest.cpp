#include "simulator/usbip/VhciPort.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace zelto::test {
namespace {

using namespace simulator;

constexpr std::string_view Heading = "hub port sta spd dev      sockfd local_busid\n";

TEST(VhciStatus, FindsTheFirstFreePortForHighSpeed) {
    EXPECT_EQ(findFreeVhciPort(std::string(Heading) + "hs  0000 006 003 00010002 000003 1-1\n"
                                                      "hs  0001 004 000 00000000 000000 0-0\n"
                                                      "hs  0002 004 000 00000000 000000 0-0\n"),
              1U);
}

TEST(VhciStatus, LeavesPortsForFasterDevicesAlone) {
    EXPECT_EQ(findFreeVhciPort(std::string(Heading) + "hs  0000 006 003 00010002 000003 1-1\n"
                                                      "ss  0008 004 000 00000000 000000 0-0\n"),
              std::nullopt);
}

TEST(VhciStatus, CountsPortsInDecimal) {
    EXPECT_EQ(findFreeVhciPort("hs  0010 004 000 00000000 000000 0-0\n"), 10U);
}

TEST(VhciStatus, OfNonsenseHasNoPort) {
    EXPECT_EQ(findFreeVhciPort(""), std::nullopt);
    EXPECT_EQ(findFreeVhciPort("hs"), std::nullopt);
    EXPECT_EQ(findFreeVhciPort("hs -1 four\nhs x 004\n\n\n"), std::nullopt);
}

/// A folder that looks like the controller's.
class Vhci : public ::testing::Test {
protected:
    void SetUp() override {
        write("status", std::string(Heading) + "hs  0000 006 003 00010002 000003 1-1\n"
                                               "hs  0001 004 000 00000000 000000 0-0\n");
        write("attach", "");
        write("detach", "");
    }

    void write(const std::string& name, const std::string& text) const {
        temporary.write(name, text);
    }
    [[nodiscard]] std::string read(const std::string& name) const { return temporary.read(name); }

    TemporaryFolder temporary;
    std::filesystem::path folder = temporary.path();
    std::string error;
};

TEST_F(Vhci, TakesPortSocketDeviceAndSpeed) {
    VhciPort port(folder);
    EXPECT_TRUE(port.attach(17, UsbipDevice{}, error)) << error;
    EXPECT_EQ(read("attach"), "1 17 65538 3");
    EXPECT_EQ(port.port(), 1U);
}

TEST_F(Vhci, IsLeftCleanByDetaching) {
    VhciPort port(folder);
    ASSERT_TRUE(port.attach(17, UsbipDevice{}, error));
    port.detach();
    EXPECT_EQ(read("detach"), "1");
    EXPECT_EQ(port.port(), std::nullopt);
}

TEST_F(Vhci, IsLeftCleanAtTheEnd) {
    { ASSERT_TRUE(VhciPort(folder).attach(17, UsbipDevice{}, error)); }
    EXPECT_EQ(read("detach"), "1");
}

TEST_F(Vhci, IsNotTouchedByAPortThatWasNeverAttached) {
    { const VhciPort port(folder); }
    EXPECT_EQ(read("detach"), "");
}

TEST_F(Vhci, LooksForAPortAtFurtherControllers) {
    write("status", std::string(Heading) + "hs  0000 006 003 00010002 000003 1-1\n");
    write("status.1", std::string(Heading) + "hs  0016 004 000 00000000 000000 0-0\n");
    VhciPort port(folder);
    EXPECT_TRUE(port.attach(17, UsbipDevice{}, error)) << error;
    EXPECT_EQ(port.port(), 16U);
}

TEST_F(Vhci, WithoutAFreePortSaysSo) {
    write("status", std::string(Heading));
    EXPECT_FALSE(VhciPort(folder).attach(17, UsbipDevice{}, error));
    EXPECT_EQ(error, "no free port at the virtual host controller");
}

TEST_F(Vhci, ThatIsNotThereSaysSo) {
    EXPECT_FALSE(VhciPort(folder / "nothing").attach(17, UsbipDevice{}, error));
    EXPECT_EQ(error, "no virtual host controller (is the module vhci_hcd loaded?)");
}

} // namespace
} // namespace zelto::test
