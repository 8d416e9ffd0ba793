#pragma once

#include "tests/support/ControllerBench.h"
#include "ui/Strings.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zelto::test {

/// What the tests of the session share: the bench, and drives that lie.
class SessionTest : public testing::Test, protected ControllerBench {
protected:
    static constexpr std::uint8_t StatusRequestCode = 0xC0;
    static constexpr std::uint8_t TimeRequestCode = 0xBA;
    static constexpr std::uint8_t AreasRequestCode = 0xC2;
    static constexpr std::uint8_t AuthenticateCode = 0xB3;
    static constexpr std::uint8_t LogoutCode = 0xB4;
    static constexpr std::uint8_t HintReadCode = 0xB6;
    static constexpr std::uint8_t SetClockCode = 0xBB;

    void forgeSecurityByte(std::uint8_t security) {
        forge(StatusRequestCode, [security](ForgedReplies::Reply& reply) {
            reply.data[33] = security;
            reply.result = kIOReturnSuccess;
        });
    }
    void forgeResult(std::uint8_t requestCode, IOReturn forged) {
        forge(requestCode, [forged](ForgedReplies::Reply& reply) { reply.result = forged; });
    }

    void logInWith(const QString& password) {
        type("AuthenticateTextField", password);
        press("AuthenticateSubmit");
    }
};

} // namespace zelto::test
