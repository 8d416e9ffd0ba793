// The firmware, request after request: a locked drive does not open without its password, and a
// request that is refused changes nothing but the count of wrong passwords, and destroys the key
// when these are too many.
//
// A request is its eight bytes of setup and, for one towards the drive, as many data as there are.
// Where no request can be of that type, something happens to the drive instead.

#include "tests/fuzz/LockedDrive.h"

namespace zelto::test {
namespace {

/// What a request that is refused may leave of this.
Remembered afterRefusal(Remembered before, const Remembered& after) {
    before.wrongSecondPasswords = after.wrongSecondPasswords;
    if (after.wrongSecondPasswords >= after.trialsAllowed && !after.key) {
        before.key.reset();
        before.keyIsAutomatic = false;
    }
    return before;
}

/// A drive, and the moment.
class HandledDrive {
public:
    void happen(const SetupPacket& what) {
        switch (what.bRequest % 6) {
        case 0:
            m_now += std::chrono::seconds(what.wValue);
            break;
        case 1:
            m_now += std::chrono::hours(what.wValue);
            break;
        case 2:
            m_drive->unplug(m_now);
            m_drive->plug(m_now);
            break;
        case 3:
            m_drive->loseClock(m_now);
            break;
        case 4:
            m_drive->setNotReadyReads(what.wValue);
            break;
        default:
            // One from its box, whose password nobody knows yet.
            m_drive = std::make_unique<VirtualDrive>(
                Manufactured{.totalSectors = SmallDrive, .keySeed = what.wValue});
            m_drive->plug(m_now);
            m_isOurs = false;
        }
    }

    void request(const SetupPacket& setup, std::span<const std::uint8_t> sent) {
        (void)m_drive->state(m_now); // What time changes happens first.
        const Remembered before = m_drive->model().remembered();
        const auto reply = m_drive->control(setup, sent, m_now);
        require(reply.data.size() <= setup.wLength, "an answer is no longer than was asked for");
        const Remembered& after = m_drive->model().remembered();
        require(!reply.stalled || after == afterRefusal(before, after),
                "a request that is refused changes nothing");
        (void)m_drive->takeReconnect();
    }

    void check(std::span<const std::uint8_t> said) {
        if (m_isOurs) {
            checkIsShut(*m_drive, said, m_now);
        }
        std::uint64_t sectors = 0;
        for (std::size_t unit = 0; unit < VirtualDrive::UnitCount; ++unit) {
            sectors += m_drive->sectorCount(unit, m_now);
        }
        require(sectors <= SmallDrive, "its media are on the drive");
    }

private:
    std::unique_ptr<VirtualDrive> m_drive = makeLockedDrive();
    bool m_isOurs = true;
    Moment m_now = Now;
};

} // namespace
} // namespace zelto::test

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace zelto::test;
    HandledDrive drive;
    Input input(data, size);
    while (!input.isEmpty()) {
        const SetupPacket setup{.bmRequestType = input.takeByte(),
                                .bRequest = input.takeByte(),
                                .wValue = input.takeWord(),
                                .wIndex = input.takeWord(),
                                .wLength = input.takeWord()};
        constexpr std::uint8_t NoRequest = 0xFF;
        const bool isToHost = (setup.bmRequestType & 0x80U) != 0;
        if (setup.bmRequestType == NoRequest) {
            drive.happen(setup);
        } else {
            const auto none = std::span<const std::uint8_t>();
            drive.request(setup, isToHost ? none : input.takeBytes(setup.wLength));
        }
        drive.check({data, size});
    }
    return 0;
}
