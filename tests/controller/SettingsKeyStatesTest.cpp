#include "device/VendorRequest.h"
#include "tests/support/SettingsBench.h"

#include <map>

namespace zelto::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

enum class Areas { WithSecure, NormalOnly };
enum class Reset { Accepted, RefusedForItsState };

/// The settings window of a drive that claims to be in any security state.
class KeyInStates : public SettingsBench {
protected:
    void openWindowInState(Areas areas, int state, Reset reset) {
        beginWithSettingsOf({.secureDisk = areas == Areas::WithSecure ? 1 : 0});
        // Every command is accepted, save the first reset: only the program's steps count here.
        for (const std::uint8_t code :
             {VendorRequest::SetEncryptionInfo, VendorRequest::Logout, VendorRequest::WriteHintData,
              VendorRequest::SetErasePeriod, VendorRequest::SetIdleLockPeriod}) {
            forge(code, [](ForgedReplies::Reply& reply) { reply.result = kIOReturnSuccess; });
        }
        forge(VendorRequest::GetDeviceStatus, [state](ForgedReplies::Reply& reply) {
            reply.data[13] = 5;
            reply.data[14] = 0x74;
            reply.data[15] = 0x00;
            reply.data[33] = static_cast<std::uint8_t>(state);
        });
        forge(VendorRequest::ResetAreaInfos,
              [refusals = reset == Reset::Accepted ? 0 : 1](ForgedReplies::Reply& reply) mutable {
                  reply.result = refusals-- > 0 ? kIOUSBPipeStalled : kIOReturnSuccess;
              });
    }

    void pressAndConfirm(const char* button) {
        computer.log.clear();
        alerts.answer(AlertButton::Alternate);
        press(button);
    }

    /// The commands, a letter each: (S)tatus, (E)rase period, (I)dle period, (H)int, (R)eset,
    /// (L)og out, (C)lear, (A)reas.
    [[nodiscard]] std::string letters() const {
        static const std::map<std::string, char> Letters{
            {"TKVR21_GetDeviceStatus", 'S'},     {"TKVR21_ZELTO_SetErasePeriod", 'E'},
            {"TKVR21_ZELTO_WriteHintData", 'H'}, {"TKVR21_ZELTO_SetIdleLockPeriod", 'I'},
            {"TKVR21_ResetAreaInfos", 'R'},      {"TKVR21_Logout", 'L'},
            {"TKVR21_ClearEncryptionInfo", 'C'}, {"TKVR21_GetAreaInfos", 'A'}};
        std::string text;
        for (const auto& command : commands()) {
            const auto found = Letters.find(command);
            text += found == Letters.end() ? '?' : found->second;
        }
        return text;
    }
};

struct Row {
    int line;
    Areas areas;
    int state;
    Reset reset;
    const char* letters;
    /// The message after the confirmation; none: the program has ended.
    const char* message;
};

constexpr const char* NotUnlocking = "IDS_ERR_ZELTO_NOT_UNLOCKING";
constexpr const char* Sense = "IDS_COMMAND_FAIL_WITH_SENSE_INFO";
constexpr const char* Ended = nullptr;

TEST_F(KeyInStates, ClearAllSendsWhatEachStateCallsFor) {
    using enum Areas;
    using enum Reset;
    const Row rows[] = {
        {__LINE__, WithSecure, 0, Accepted, "SSEIHR", Ended},
        {__LINE__, WithSecure, 0, RefusedForItsState, "SSEIHRSS", Sense},
        {__LINE__, WithSecure, 1, Accepted, "SS", NotUnlocking},
        {__LINE__, WithSecure, 2, Accepted, "SS", NotUnlocking},
        {__LINE__, WithSecure, 3, Accepted, "SS", NotUnlocking},
        {__LINE__, WithSecure, 4, Accepted, "SSEIHR", Ended},
        {__LINE__, WithSecure, 4, RefusedForItsState, "SSEIHRSLCR", Ended},
        {__LINE__, WithSecure, 5, Accepted, "SSHR", Ended},
        {__LINE__, WithSecure, 5, RefusedForItsState, "SSHRSCR", Ended},
        {__LINE__, WithSecure, 6, Accepted, "SS", NotUnlocking},
        {__LINE__, NormalOnly, 0, Accepted, "SSEIHR", Ended},
        {__LINE__, NormalOnly, 0, RefusedForItsState, "SSEIHRSS", Sense},
        {__LINE__, NormalOnly, 1, Accepted, "SSEIHR", Ended},
        {__LINE__, NormalOnly, 1, RefusedForItsState, "SSEIHRSCR", Ended},
        {__LINE__, NormalOnly, 2, Accepted, "SSEIHR", Ended},
        {__LINE__, NormalOnly, 2, RefusedForItsState, "SSEIHRSCR", Ended},
        {__LINE__, NormalOnly, 3, Accepted, "SSEIHR", Ended},
        {__LINE__, NormalOnly, 3, RefusedForItsState, "SSEIHRSCR", Ended},
        {__LINE__, NormalOnly, 4, Accepted, "SSEIHR", Ended},
        {__LINE__, NormalOnly, 4, RefusedForItsState, "SSEIHRSLCR", Ended},
        {__LINE__, NormalOnly, 5, Accepted, "SSHR", Ended},
        {__LINE__, NormalOnly, 5, RefusedForItsState, "SSHRSCR", Ended},
        {__LINE__, NormalOnly, 7, RefusedForItsState, "SSEIHRSR", Ended},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE("line " + std::to_string(row.line));
        openWindowInState(row.areas, row.state, row.reset);
        pressAndConfirm("MainSettingsClearAllButton");
        EXPECT_EQ(letters(), row.letters);
        EXPECT_EQ(hasQuit(), row.message == Ended);
        std::vector<QString> expected{localized("IDS_CLEAR_ALL_CONFIRM")};
        if (row.message == Sense) {
            expected.push_back(localized(Sense, 5, 116, 0));
        } else if (row.message != Ended) {
            expected.push_back(localized(row.message));
        }
        EXPECT_EQ(messages(), expected);
        stopForging();
        putAway();
    }
}

TEST_F(KeyInStates, TheKeyIsErasedOnlyWhileTheDriveIsUnlocked) {
    for (int state = 0; state <= 7; ++state) {
        SCOPED_TRACE(state);
        const bool isUnlocked = state == 4;
        openWindowInState(Areas::WithSecure, state, Reset::Accepted);
        pressAndConfirm("EraseEncryptionKeyButton");
        EXPECT_EQ(letters(), isUnlocked ? "SEAL" : "S");
        EXPECT_EQ(hasQuit(), isUnlocked);
        EXPECT_EQ(messages().back(), localized(isUnlocked ? "IDS_ERASE_ENCRYPTION_KEY_CONFIRM"
                                                          : "IDS_ERR_ZELTO_NOT_UNLOCKING"));
        stopForging();
        putAway();
    }
}

TEST_F(KeyInStates, ThereIsNoKeyToEraseOnADriveWithoutSecureArea) {
    openWindowInState(Areas::NormalOnly, 0, Reset::Accepted);
    EXPECT_FALSE(isEnabled("EraseEncryptionKeyButton"));
    EXPECT_TRUE(isEnabled("MainSettingsClearAllButton"));
}

TEST_F(KeyInStates, TheDefaultAnswerSendsNothingInAnyState) {
    for (int state = 0; state <= 5; ++state) {
        SCOPED_TRACE(state);
        openWindowInState(Areas::WithSecure, state, Reset::Accepted);
        for (const char* button : {"EraseEncryptionKeyButton", "MainSettingsClearAllButton"}) {
            alerts.answer(AlertButton::Default);
            press(button);
            EXPECT_EQ(alerts.panels().back().onEscape, AlertButton::Default);
        }
        EXPECT_THAT(commands(), IsEmpty());
        EXPECT_THAT(diskToolRuns(), IsEmpty());
        EXPECT_THAT(messages(), ElementsAre(localized("IDS_ERASE_ENCRYPTION_KEY_CONFIRM"),
                                            localized("IDS_CLEAR_ALL_CONFIRM")));
        EXPECT_FALSE(hasQuit());
        stopForging();
        putAway();
    }
}

} // namespace
} // namespace zelto::test
