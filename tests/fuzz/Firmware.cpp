// The firmware, request after request: a locked drive does not open without its password, and a
// request that is refused changes nothing but the count of wrong passwords.
//
// A request is its eight bytes of setup and, for one towards the drive, as many data as there are.

#include "tests/fuzz/LockedDrive.h"

namespace {

zelto::simulator::Remembered withoutTries(zelto::simulator::Remembered remembered) {
    remembered.wrongSecondPasswords = 0;
    return remembered;
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace zelto::test;
    LockedDrive locked;
    Input input(data, size);
    while (!input.isEmpty()) {
        const zelto::simulator::SetupPacket setup{.bmRequestType = input.takeByte(),
                                                  .bRequest = input.takeByte(),
                                                  .wValue = input.takeWord(),
                                                  .wIndex = input.takeWord(),
                                                  .wLength = input.takeWord()};
        const bool isToHost = (setup.bmRequestType & 0x80U) != 0;
        const auto sent =
            isToHost ? std::span<const std::uint8_t>() : input.takeBytes(setup.wLength);
        const auto before = withoutTries(locked.drive.model().remembered());
        const auto reply = locked.drive.control(setup, sent, LockedDrive::Now);
        require(reply.data.size() <= setup.wLength, "an answer is no longer than was asked for");
        require(!reply.stalled || withoutTries(locked.drive.model().remembered()) == before,
                "a request that is refused changes nothing");
        locked.check({data, size});
    }
    return 0;
}
