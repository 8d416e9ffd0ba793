// A hostile computer on the other end of USB/IP, down to the firmware and the sectors: memory stays
// bounded, and the drive does not open without its password. The first byte says in what pieces the
// stream arrives.

#include "simulator/drive/DriveUnits.h"
#include "simulator/usbip/UsbipSession.h"
#include "tests/fuzz/LockedDrive.h"

#include <algorithm>

namespace zelto::test {
namespace {

class Port final : public UsbipExport {
public:
    Port() { m_device.powerUp(); }
    [[nodiscard]] std::optional<UsbipDevice> offered() const override { return UsbipDevice{}; }
    [[nodiscard]] bool isTaken() const override { return false; }
    [[nodiscard]] StorageDevice& device() override { return m_device; }
    [[nodiscard]] bool isLeaving() const override { return false; }

    const std::unique_ptr<VirtualDrive> drive = makeLockedDrive();

private:
    DriveUnits m_units{*drive, [] { return Now; }};
    StorageDevice m_device{"ZD0123456789ABCD",
                           [this](const SetupPacket& setup, std::span<const std::uint8_t> sent) {
                               return std::optional(drive->control(setup, sent, Now));
                           },
                           m_units};
};

void converse(UsbipSession& session, Input& input, std::size_t piece) {
    while (!input.isEmpty() && !session.isOver()) {
        if (session.wantsInput()) {
            const auto space = session.receiveSpace();
            require(!space.empty(), "there is room for what is wanted");
            const auto bytes = input.takeBytes(std::min(space.size(), piece));
            std::ranges::copy(bytes, space.begin());
            session.received(bytes.size());
        }
        require(session.toSend().size() <= 2 * UsbipSession::MaximumTransfer,
                "what waits to be sent is bounded");
        session.sent(session.toSend().size());
    }
}

} // namespace
} // namespace zelto::test

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace zelto::test;
    Input input(data, size);
    const std::uint8_t shape = input.takeByte();
    Port port;
    UsbipSession session(port, (shape & 1U) != 0 ? UsbipSession::Start::Operations
                                                 : UsbipSession::Start::Imported);
    converse(session, input, std::size_t{1} + (shape >> 1U) * std::size_t{16});
    checkIsShut(*port.drive, {data, size});
    return 0;
}
