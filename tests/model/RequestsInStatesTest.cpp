#include "tests/model/DriveBench.h"

#include <gtest/gtest.h>
#include <string>

/// Every request in every state. State 1 is not among them: the drive never enters it.
namespace zelto::test {
namespace {

using namespace simulator;
using enum SecurityState;

constexpr Sense Ok{};
constexpr Sense Unknown{5, 0x20, 0x00};
constexpr Sense Field{5, 0x24, 0x00};
constexpr Sense Length{5, 0x1A, 0x00};
constexpr Sense Data{5, 0x26, 0x00};
constexpr Sense Order{5, 0x2C, 0x00};
constexpr Sense State{5, 0x74, 0x00};
constexpr Sense Refused{5, 0x74, 0x40};

constexpr std::uint32_t AutoClear = 100;

Bench newDrive() {
    return Bench{};
}
Bench inLocked() {
    Bench bench;
    EXPECT_TRUE(bench.setUpTwoPasswords(5));
    return bench;
}
Bench inPending() {
    Bench bench = inLocked();
    EXPECT_TRUE(bench.send(authenticate(1, First)));
    return bench;
}
Bench inUnlocked() {
    Bench bench = inPending();
    EXPECT_TRUE(bench.send(authenticate(0, Second)));
    return bench;
}
Bench withoutKey() {
    Bench bench = inUnlocked();
    EXPECT_TRUE(bench.send(setErasePeriod(AutoClear)));
    bench.pass(std::chrono::seconds{AutoClear});
    return bench;
}
Bench withoutClock() {
    Bench bench = inUnlocked();
    EXPECT_TRUE(bench.send(setErasePeriod(AutoClear)));
    bench.drive.loseClock();
    return bench;
}

struct Situation {
    const char* name;
    Bench (*make)();
    SecurityState state;
};

constexpr std::array Situations{
    Situation{"new", newDrive, StateNoPassword},
    Situation{"locked", inLocked, StateLocked},
    Situation{"second password awaited", inPending, StatePasswordPending},
    Situation{"unlocked", inUnlocked, StateUnlocking},
    Situation{"key gone", withoutKey, StateFullLock},
    Situation{"clock lost", withoutClock, StateFullLock},
};

struct Row {
    int line;
    Sent sent;
    /// In the order of the situations.
    std::array<Sense, Situations.size()> expected;
};

std::array<Sense, Situations.size()> always(Sense sense) {
    std::array<Sense, Situations.size()> all{};
    all.fill(sense);
    return all;
}

void check(const std::vector<Row>& rows) {
    for (const Row& row : rows) {
        for (std::size_t index = 0; index < Situations.size(); ++index) {
            SCOPED_TRACE("line " + std::to_string(row.line) + ", " + Situations[index].name);
            Bench bench = Situations[index].make();
            ASSERT_EQ(bench.state(), Situations[index].state);
            EXPECT_EQ(bench.send(row.sent), row.expected[index] == Ok);
            EXPECT_EQ(bench.sense(), row.expected[index]);
        }
    }
}

// clang-format off
TEST(EveryRequestInEveryState, IsAcceptedOrRefusedAsTheTableSays) {
    //                                            new      locked   pending  unlocked key gone clock lost
    check({
        {__LINE__, getStatus(),                  {Ok,      Ok,      Ok,      Ok,      Ok,      Ok}},
        {__LINE__, getTime(),                    {Ok,      Ok,      Ok,      Ok,      Ok,      Ok}},
        {__LINE__, getAreas(),                   {Ok,      Ok,      Ok,      Ok,      Ok,      Ok}},
        {__LINE__, readHint(4095, 1),            {Ok,      Ok,      Ok,      Ok,      Ok,      Ok}},
        {__LINE__, writeHint(4095, {1}),         {Ok,      State,   State,   Ok,      Ok,      Ok}},
        {__LINE__, authenticate(1, First),       {State,   Ok,      Data,    State,   State,   State}},
        {__LINE__, authenticate(1, Wrong),       {State,   Refused, Data,    State,   State,   State}},
        {__LINE__, authenticate(0, Second),      {State,   Data,    Ok,      State,   State,   State}},
        {__LINE__, authenticate(0, Wrong),       {State,   Data,    Refused, State,   State,   State}},
        {__LINE__, logout(),                     {State,   Ok,      Ok,      Ok,      State,   State}},
        {__LINE__, setSecureAreas(),             {Ok,      State,   State,   State,   State,   State}},
        {__LINE__, setAutomaticKey(),            {Ok,      State,   State,   State,   State,   State}},
        {__LINE__, setKeyByHand({0x0A, 0x1B}),   {Ok,      State,   State,   State,   State,   State}},
        {__LINE__, clearEncryption(),            {State,   Ok,      Ok,      State,   Ok,      Ok}},
        {__LINE__, setFirst(First),              {Ok,      State,   State,   State,   State,   State}},
        {__LINE__, setSecond(Second, 3),         {Ok,      State,   State,   State,   State,   State}},
        {__LINE__, setBoth(First, Second),       {Order,   State,   State,   State,   State,   State}},
        {__LINE__, changeFirst(0x33, First),     {State,   State,   State,   Ok,      State,   State}},
        {__LINE__, changeFirst(0x33, Wrong),     {State,   State,   State,   Refused, State,   State}},
        {__LINE__, changeSecond(0x33, Second, 3),{State,   State,   State,   Ok,      State,   State}},
        {__LINE__, changeSecond(0x33, Wrong, 3), {State,   State,   State,   Refused, State,   State}},
        {__LINE__, changeBoth(0x33, First, 0x44),{State,   State,   State,   Ok,      State,   State}},
        {__LINE__, changeBoth(0x33, Wrong, 0x44),{State,   State,   State,   Refused, State,   State}},
        {__LINE__, setErasePeriod(0),            {Ok,      State,   State,   Ok,      State,   State}},
        {__LINE__, setIdleLock(0),               {Ok,      State,   State,   Ok,      State,   State}},
        {__LINE__, setClock(),                   {Ok,      Ok,      Ok,      Ok,      Ok,      Ok}},
        {__LINE__, resetAreas(),                 {Ok,      State,   State,   State,   Ok,      State}},
        {__LINE__, reconnect(),                  {Ok,      Ok,      Ok,      Ok,      Ok,      Ok}},
    });
}

TEST(EveryRequestInEveryState, IsRefusedWhenItIsMalformed) {
    check({
        // Requests that the drive doesn't know.
        {__LINE__, input(0xB2, 0, 0, 4),                 always(Unknown)},
        {__LINE__, output(0xB5, 0, 0, {1}),              always(Unknown)},
        {__LINE__, output(0x00, 0, 0, {}),               always(Unknown)},
        {__LINE__, output(0xFF, 0, 0, {}),               always(Unknown)},
        // The other direction, another type, another recipient.
        {__LINE__, output(0xC0, 0, 0, Bytes(36)),        always(Field)},
        {__LINE__, input(0xB3, 0, 0, 34),                always(Field)},
        {__LINE__, input(0xB0, 2, 0, 72),                always(Field)},
        {__LINE__, input(0xC5, 3, 0, 1),                 always(Field)},
        {__LINE__, {{0x80, 0xC0, 0, 0, 36}},             always(Field)},
        {__LINE__, {{0xC1, 0xC0, 0, 0, 36}},             always(Field)},
        // Lengths that belong to no record.
        {__LINE__, input(0xC0, 0, 0, 0),                 always(Length)},
        {__LINE__, output(0xB3, 0, 0, Bytes(33)),        always(Length)},
        {__LINE__, output(0xB3, 0, 0, Bytes(35)),        always(Length)},
        {__LINE__, output(0xB0, 2, 0, Bytes(71)),        always(Length)},
        {__LINE__, output(0xB0, 2, 0, Bytes(5)),         always(Length)},
        {__LINE__, output(0xB0, 2, 0, {}),               always(Length)},
        {__LINE__, output(0xB1, 2, 0, Bytes(73)),        always(Length)},
        {__LINE__, output(0xB1, 2, 0, Bytes(0)),         always(Length)},
        {__LINE__, output(0xBB, 0, 0, Bytes(8)),         always(Length)},
        {__LINE__, output(0xBC, 0, 0, Bytes(1)),         always(Length)},
        {__LINE__, output(0xC4, 0, 0, {}),               always(Length)},
        {__LINE__, output(0xC4, 0, 0, Bytes(19)),        always(Length)},
        {__LINE__, output(0xC4, 0, 0, Bytes(100)),       always(Length)},
        {__LINE__, output(0xB7, 1, 0, Bytes(4097)),      always(Length)},
        {__LINE__, input(0xB6, 0, 0, 4097),              always(Length)},
        // A data stage shorter than it says.
        {__LINE__, {{0x40, 0xB3, 0, 0, 34}, Bytes(33)},  always(Length)},
        {__LINE__, {{0x40, 0xBB, 0, 0, 7}, {}},          always(Length)},
        // Values and indices that the requests don't have.
        {__LINE__, input(0xC0, 2, 0, 36),                always(Field)},
        {__LINE__, input(0xC0, 0, 1, 36),                always(Field)},
        {__LINE__, input(0xC2, 1, 0, 256),               always(Field)},
        {__LINE__, output(0xC5, 4, 0, {}),               always(Field)},
        {__LINE__, output(0xBB, 1, 0, Bytes(7)),         always(Field)},
        {__LINE__, output(0xBD, 60, 1, {}),              always(Field)},
        // Hint data beyond the last byte.
        {__LINE__, readHint(4095, 2),                    always(Field)},
        {__LINE__, readHint(0xFFFF, 1),                  always(Field)},
    });
}
// clang-format on

TEST(EveryRequestInEveryState, StallsAndDoesNothingWithoutPower) {
    for (const Situation& situation : Situations) {
        Bench bench = situation.make();
        bench.unplug();
        const Remembered before = bench.drive.remembered();
        for (const Sent& sent : {getStatus(), setClock(), resetAreas(), clearEncryption()}) {
            EXPECT_FALSE(bench.send(sent)) << situation.name;
        }
        EXPECT_EQ(bench.drive.remembered(), before) << situation.name;
        EXPECT_FALSE(bench.drive.medium(0, bench.now)) << situation.name;
    }
}

TEST(Sense, OfARefusedRequestStaysUntilAnotherOneSucceeds) {
    Bench bench = inLocked();
    EXPECT_FALSE(bench.send(authenticate(1, Wrong)));
    // A status read reports it, and leaves it for the next one who asks.
    EXPECT_EQ(bench.sense(), Refused);
    EXPECT_EQ(bench.sense(), Refused);
    EXPECT_TRUE(bench.send(readHint(4095, 1)));
    EXPECT_EQ(bench.sense(), Ok);
}

TEST(Sense, OfARefusedRequestGivesWayToThatOfTheNext) {
    Bench bench = inLocked();
    EXPECT_FALSE(bench.send(authenticate(1, Wrong)));
    EXPECT_FALSE(bench.send(setErasePeriod(0)));
    EXPECT_EQ(bench.sense(), State);
    EXPECT_FALSE(bench.send(input(0xC0, 0, 7, 36)));
    EXPECT_EQ(bench.sense(), Field);
}

TEST(Sense, IsClearedByAPowerCycle) {
    Bench bench = inLocked();
    EXPECT_FALSE(bench.send(authenticate(1, Wrong)));
    bench.replug();
    EXPECT_EQ(bench.sense(), Ok);
}

TEST(Reads, AreCutToTheLengthAskedFor) {
    Bench bench = inLocked();
    EXPECT_EQ(bench.read(input(0xC0, 0, 0, 1)).size(), 1U);
    EXPECT_EQ(bench.read(input(0xC0, 0, 0, 34)).size(), 34U);
    EXPECT_EQ(bench.read(input(0xC0, 0, 0, 0xFFFF)).size(), 36U);
    EXPECT_EQ(bench.read(input(0xC2, 0, 0, 12)).size(), 12U);
    // The header and three entries: no more than there are.
    EXPECT_EQ(bench.read(getAreas()).size(), 72U);
    EXPECT_EQ(bench.read(input(0xBA, 1, 0, 9)).size(), 9U);
}

TEST(SpinUp, AnswersNotReadyForTheSetNumberOfReads) {
    Bench bench;
    const Sent ask = input(0xC0, 1, 0, 36);
    EXPECT_EQ(bench.read(ask).at(7), 0x80);
    bench.drive.setNotReadyReads(2);
    EXPECT_EQ(bench.read(ask).at(7), 0x00);
    // A read that doesn't ask counts for nothing.
    EXPECT_EQ(bench.read(getStatus()).at(7), 0x00);
    EXPECT_EQ(bench.read(ask).at(7), 0x00);
    EXPECT_EQ(bench.read(ask).at(7), 0x80);
}

} // namespace
} // namespace zelto::test
