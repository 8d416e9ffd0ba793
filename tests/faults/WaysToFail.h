#pragma once

#include "tests/support/FaultyDevice.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

namespace zelto::test {

struct WayToFail {
    const char* name;
    Fault fault;

    friend void PrintTo(const WayToFail& way, std::ostream* out) { *out << way.name; }

    /// In a letter: (R)efused, (L)ost answer, (Z)ero bytes, (S)hort, (G)one.
    [[nodiscard]] char letter() const {
        using Kind = Fault::Kind;
        switch (fault.kind) {
        case Kind::FailsBefore:
        case Kind::SilentBefore:
            return 'R';
        case Kind::FailsAfter:
        case Kind::SilentAfter:
            return 'L';
        case Kind::AnswersShort:
            return fault.length == 0 ? 'Z' : 'S';
        case Kind::VanishesBefore:
        case Kind::VanishesAfter:
            return 'G';
        }
        return '?';
    }
};

/// The ways in which one transfer can go wrong.
enum class Ways {
    All,
    /// The drive is still there afterwards.
    DriveStays,
    /// The drive is still there and has not heard a thing.
    Unheard,
};

inline auto waysToFail(Ways ways) {
    using Kind = Fault::Kind;
    std::vector<WayToFail> chosen{
        {"refused", {.kind = Kind::FailsBefore, .result = kIOUSBPipeStalled}},
        {"timedOutBefore", {.kind = Kind::SilentBefore}},
        {"obeyedButTimedOut", {.kind = Kind::SilentAfter}},
        {"answersNothing", {.kind = Kind::AnswersShort, .length = 0}},
        {"answersShort", {.kind = Kind::AnswersShort, .length = 13}},
        {"goneBefore", {.kind = Kind::VanishesBefore}},
        {"goneAfter", {.kind = Kind::VanishesAfter}}};
    std::erase_if(chosen, [ways](const WayToFail& way) {
        return (ways == Ways::DriveStays && way.letter() == 'G') ||
               (ways == Ways::Unheard && way.letter() != 'R');
    });
    return testing::ValuesIn(chosen);
}

inline std::string nameOfWay(const testing::TestParamInfo<WayToFail>& way) {
    return way.param.name;
}

} // namespace zelto::test
