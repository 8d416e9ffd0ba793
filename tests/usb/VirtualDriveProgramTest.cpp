#include "device/VendorRequest.h"
#include "simulator/virtual-drive/Console.h"
#include "simulator/virtual-drive/Options.h"
#include "simulator/virtual-drive/RequestLog.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/usb/UsbipTest.h"

#include <sys/socket.h>

namespace zelto::test {
namespace {

using namespace simulator;
using namespace std::chrono_literals;
using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::Not;

std::optional<Options> parse(std::initializer_list<std::string_view> words) {
    std::string error;
    return parseOptions(std::vector(words), error);
}

TEST(VirtualDriveOptions, AloneListenOnLoopback) {
    const auto options = parse({});
    ASSERT_TRUE(options);
    EXPECT_EQ(options->address, "127.0.0.1:3240");
    EXPECT_FALSE(options->attaches);
    EXPECT_FALSE(options->isUnplugged);
}

TEST(VirtualDriveOptions, WithAttachingListenOnlyWhenAsked) {
    EXPECT_EQ(parse({"--attach"})->address, std::nullopt);
    EXPECT_EQ(parse({"--attach", "--listen", "127.0.0.1:1"})->address, "127.0.0.1:1");
}

TEST(VirtualDriveOptions, AllTogether) {
    const auto options = parse({"--drive", "d", "--size", "64M", "--serial", "ZD42", "--listen",
                                "0.0.0.0:1", "--attach", "--unplugged", "--log", "l"});
    ASSERT_TRUE(options);
    EXPECT_EQ(options->drive, "d");
    EXPECT_EQ(options->sectors, 131072U);
    EXPECT_EQ(options->serial, "ZD42");
    EXPECT_EQ(options->log, "l");
    EXPECT_TRUE(options->attaches && options->isUnplugged);
}

TEST(VirtualDriveOptions, ThatMakeNoSenseAreRefusedWithAReason) {
    const std::vector<std::vector<std::string_view>> refused{
        {"--frobnicate"},    {"drive"},        {""},
        {"--drive"},         {"--drive", ""},  {"--size", "0"},
        {"--size", "1"},     {"--size", "5X"}, {"--serial", ""},
        {"--serial", "a b"}, {"--listen", ""}, {"--log", ""}};
    for (const auto& words : refused) {
        std::string error;
        EXPECT_FALSE(parseOptions(words, error)) << words.front();
        EXPECT_FALSE(error.empty());
    }
}

TEST(VirtualDriveOptions, SerialNumberFitsWhatComputersKeep) {
    EXPECT_TRUE(parse({"--serial", std::string_view("0123456789ABCDEFGHIJabcdefghij")}));
    const std::string tooLong(61, 'A');
    EXPECT_FALSE(parse({"--serial", tooLong}));
}

TEST(DriveSizes, AreSectors) {
    EXPECT_EQ(parseSize("512"), 1U);
    EXPECT_EQ(parseSize("4K"), 8U);
    EXPECT_EQ(parseSize("64M"), 131072U);
    EXPECT_EQ(parseSize("2G"), 4194304U);
    EXPECT_EQ(parseSize("1T"), std::uint64_t{1} << 31);
    EXPECT_EQ(parseSize("2T"), std::uint64_t{1} << 32);
}

TEST(DriveSizes, OfNonsenseAreNone) {
    for (const char* const text :
         {"", "0", "0G", "511", "513", "1k", "1GB", "-512", "+512", " 512", "M",
          "99999999999999999999", "18014398509481984", "3T", "999999T"}) {
        EXPECT_EQ(parseSize(text), std::nullopt) << text;
    }
}

ControlReply answered(Bytes data = {}) {
    ControlReply reply;
    reply.data = std::move(data);
    return reply;
}

TEST(RequestLine, OfAStatusReadTellsStateAndSense) {
    DeviceStatus status;
    status.sense = {5, 0x74, 0x40};
    status.security = 0xC3;
    const auto bytes = encodeDeviceStatus(status);
    EXPECT_EQ(describeRequest({0xC0, 0xC0, 0, 0, 36}, {}, answered({bytes.begin(), bytes.end()})),
              "in C0 GetDeviceStatus value=0 state=3 sense=05/74/40 readiness=00 two-passwords "
              "automatic-key length=36: ok");
}

TEST(RequestLine, TellsHowTheRequestEnded) {
    ControlReply stall;
    stall.stalled = true;
    EXPECT_EQ(describeRequest({0x40, 0xB4, 0, 0, 0}, {}, stall),
              "out B4 Logout value=0 length=0: stall");
    EXPECT_EQ(describeRequest({0x40, 0xB4, 0, 0, 0}, {}, std::nullopt),
              "out B4 Logout value=0 length=0: no-answer");
}

TEST(RequestLine, DecodesPeriodsAreasClockAndHint) {
    EXPECT_EQ(describeRequest({0x40, 0xBC, 0x5180, 1, 0}, {}, answered()),
              "out BC SetErasePeriod seconds=86400 length=0: ok");
    EXPECT_EQ(describeRequest({0x40, 0xBD, 420, 0, 0}, {}, answered()),
              "out BD SetIdleLockPeriod seconds=420 length=0: ok");
    EXPECT_EQ(
        describeRequest({0x40, 0xBB, 0, 0, 7}, Bytes{0x07, 0xEA, 11, 21, 1, 2, 3}, answered()),
        "out BB SetCurrentTime time=2026-11-21T01:02:03Z length=7: ok");
    EXPECT_EQ(describeRequest({0x40, 0xB7, 1, 0x0FFF, 1}, Bytes{1}, answered()),
              "out B7 WriteHintData address=4095 byte=01 length=1: ok");
    const Bytes area{0x40, 0xC1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 8, 0};
    EXPECT_EQ(describeRequest({0x40, 0xC4, 0, 0, 20}, area, answered()),
              "out C4 SetAreaInfos area=40/C1@0+2048 length=20: ok");
}

TEST(RequestLine, NeverShowsADigestOrAKey) {
    // A line must be the same whatever the secret bytes are, for every request that is not one of
    // those that are known to carry none.
    const Bytes open{VendorRequest::GetDeviceStatus, VendorRequest::GetTimeStatus,
                     VendorRequest::GetAreaInfos, VendorRequest::SetAreaInfos};
    for (unsigned code = 0; code < 256; ++code) {
        const auto request = static_cast<std::uint8_t>(code);
        if (std::ranges::count(open, request) > 0) {
            continue;
        }
        for (const std::uint8_t type : Bytes{0x40, 0xC0, 0x41}) {
            for (const std::uint16_t length : std::vector<std::uint16_t>{32, 33, 34, 64, 72, 104}) {
                const auto lineWith = [&](std::uint8_t secret) {
                    Bytes data(length, secret);
                    std::fill_n(data.begin(), 8, std::uint8_t{0});
                    return describeRequest({type, request, 0, 0, length}, data, answered(data));
                };
                EXPECT_EQ(lineWith(0xDE), lineWith(0x21));
            }
        }
    }
}

TEST(RequestLine, OfPasswordsAndKeysTellsTheirKind) {
    Bytes record(72, 0xDE);
    record[0] = 0x02;
    record[4] = 9;
    EXPECT_EQ(describeRequest({0x40, 0xB1, 2, 0, 72}, record, answered()),
              "out B1 SetAuthInfo value=2 flags=02 trials=9 length=72: ok");
    record[5] = 0x80;
    EXPECT_EQ(describeRequest({0x40, 0xB0, 2, 0, 72}, record, answered()),
              "out B0 SetEncryptionInfo value=2 automatic-key length=72: ok");
    EXPECT_EQ(describeRequest({0x40, 0xB0, 2, 0, 4}, Bytes{'T', 'K', 'C', 'L'}, answered()),
              "out B0 SetEncryptionInfo value=2 clear length=4: ok");
    Bytes payload(34, 0xDE);
    payload[0] = 1;
    EXPECT_EQ(describeRequest({0x40, 0xB3, 0, 0, 34}, payload, answered()),
              "out B3 Authenticate value=0 step-flag=1 length=34: ok");
}

/// A drive in memory at a bus whose time a test turns.
class Host : public ::testing::Test {
protected:
    static constexpr std::uint64_t Sectors = 131072;

    static std::unique_ptr<VirtualDrive> makeDrive() {
        Manufactured made;
        made.totalSectors = Sectors;
        return std::make_unique<VirtualDrive>(made);
    }
    void pass(EventLoop::Milliseconds time) {
        steady += time;
        turn();
    }
    void turn() {
        for (int round = 0; round < 8; ++round) {
            loop.runOnce(EventLoop::Milliseconds{0});
        }
    }
    std::string verb(std::string_view line) {
        return carryOutVerb(host, line, [this] { hasQuit = true; });
    }
    /// A computer that has the drive, configured.
    FileDescriptor computer() {
        auto ends = makeSocketPair();
        host.adopt(std::move(ends->first));
        EXPECT_TRUE(exchange(ends->second, submitControl(1, {0x00, 9, 1, 0, 0, 0, 0, 0})));
        return std::move(ends->second);
    }
    std::optional<Bytes> exchange(const FileDescriptor& socket, const Bytes& bytes) {
        EXPECT_GE(::send(socket.get(), bytes.data(), bytes.size(), MSG_NOSIGNAL), 0);
        turn();
        return read(socket);
    }
    static std::optional<Bytes> read(const FileDescriptor& socket) {
        Bytes bytes(1 << 16);
        const ssize_t size = ::recv(socket.get(), bytes.data(), bytes.size(), MSG_DONTWAIT);
        if (size == 0) {
            return std::nullopt;
        }
        bytes.resize(size < 0 ? 0 : static_cast<std::size_t>(size));
        return bytes;
    }
    std::optional<Bytes> ask(const FileDescriptor& socket, const Bytes& setup,
                             const Bytes& data = {}) {
        return exchange(socket, submitControl(++sequence, setup, data));
    }
    /// Whether a request towards the device, or without data, is obeyed.
    bool succeeds(const FileDescriptor& socket, const Bytes& setup, const Bytes& data = {}) {
        const auto answer = ask(socket, setup, data);
        return answer == submitReply(sequence, 0, static_cast<std::uint32_t>(data.size()));
    }
    /// First-time set-up of one secure area with a key by hand and one password.
    void setUp(const FileDescriptor& socket) {
        Bytes areas;
        const auto secure = encodeAreaInfoEntry({0x40, 0xC1, 0, Sectors - 40960});
        const auto tool = encodeAreaInfoEntry({0x00, 0x41, Sectors - 40960, 40960});
        areas.insert(areas.end(), secure.begin(), secure.end());
        areas.insert(areas.end(), tool.begin(), tool.end());
        EXPECT_TRUE(succeeds(socket, {0x40, 0xC4, 0, 0, 0, 0, 40, 0}, areas));
        const auto key = encodeEncryptionInfo({false, {1, 2, 3}});
        EXPECT_TRUE(succeeds(socket, {0x40, 0xB0, 2, 0, 0, 0, 72, 0}, {key.begin(), key.end()}));
        AuthInfo info;
        info.slot1 = digest;
        const auto passwords = encodeAuthInfo(info);
        EXPECT_TRUE(succeeds(socket, {0x40, 0xB1, 2, 0, 0, 0, 72, 0},
                             {passwords.begin(), passwords.begin() + 72}));
    }
    void reconnect(const FileDescriptor& socket) {
        EXPECT_TRUE(succeeds(socket, {0x40, 0xC1, 1, 0, 1, 0, 0, 0}));
        pass(DriveHost::LingerTime);
        pass(DriveHost::AwayTime);
    }
    [[nodiscard]] bool hasLine(std::string_view part) const {
        return std::ranges::any_of(
            lines, [&](const std::string& line) { return line.find(part) != std::string::npos; });
    }

    PasswordDigest digest{7, 7, 7};
    std::uint32_t sequence = 100;
    bool hasQuit = false;
    EventLoop::Clock::time_point steady{};
    Moment wall{std::chrono::seconds{1'700'000'000}};
    std::vector<std::string> lines;
    EventLoop loop{[this] { return steady; }};
    DriveHost host{loop, makeDrive(), [this] { return wall; },
                   [this](const std::string& line) { lines.push_back(line); }};
};

TEST_F(Host, PlugsAndUnplugsOnce) {
    EXPECT_EQ(verb("plug"), "ok");
    EXPECT_EQ(verb("plug"), "error the drive is plugged in");
    EXPECT_EQ(verb("unplug"), "ok");
    EXPECT_EQ(verb("unplug"), "error the drive is not plugged in");
}

TEST_F(Host, TellsItsStateOnOneLine) {
    EXPECT_EQ(verb("state"), "ok unplugged serial=ZD0123456789ABCD state=StateNoPassword unit1=0 "
                             "unit2=0 unit3=0 unit4=0");
    (void)verb("plug");
    const FileDescriptor user = computer();
    EXPECT_EQ(verb("state"), "ok plugged in-use serial=ZD0123456789ABCD state=StateNoPassword "
                             "unit1=131072 unit2=0 unit3=0 unit4=0");
}

TEST_F(Host, UnpluggedLosesItsComputer) {
    (void)verb("plug");
    const FileDescriptor user = computer();
    (void)verb("unplug");
    EXPECT_EQ(read(user), std::nullopt);
}

TEST_F(Host, ReplugComesBackAfterAWhile) {
    (void)verb("plug");
    const FileDescriptor user = computer();
    EXPECT_EQ(verb("replug"), "ok");
    EXPECT_EQ(read(user), std::nullopt);
    EXPECT_THAT(verb("state"), HasSubstr("unplugged"));
    pass(499ms);
    EXPECT_THAT(verb("state"), HasSubstr("unplugged"));
    pass(1ms);
    EXPECT_THAT(verb("state"), Not(HasSubstr("unplugged")));
}

TEST_F(Host, UnpluggedWhileItIsAwayStaysAway) {
    (void)verb("plug");
    (void)verb("replug");
    (void)verb("unplug");
    pass(5000ms);
    EXPECT_THAT(verb("state"), HasSubstr("unplugged"));
}

TEST_F(Host, ReconnectAnswersThenLeavesThenComesBackWithTheNewAreas) {
    (void)verb("plug");
    const FileDescriptor user = computer();
    setUp(user);
    EXPECT_TRUE(succeeds(user, {0x40, 0xC1, 1, 0, 1, 0, 0, 0}));
    EXPECT_EQ(ask(user, {0xC0, 0xC0, 0, 0, 0, 0, 36, 0}), Bytes{}); // deaf
    pass(100ms);
    EXPECT_THAT(verb("state"), HasSubstr("unplugged"));
    pass(500ms);
    EXPECT_EQ(verb("state"), "ok plugged serial=ZD0123456789ABCD state=StateLocked unit1=0 "
                             "unit2=40960 unit3=0 unit4=0");
}

TEST_F(Host, MediaFollowTheState) {
    (void)verb("plug");
    {
        const FileDescriptor user = computer();
        setUp(user);
        reconnect(user);
    }
    const FileDescriptor user = computer();
    const Bytes ready = commandWrapper(1, 0, 0, 0, {0, 0, 0, 0, 0, 0});
    Bytes batch = submitOut(1, ready);
    append(batch, submitIn(2, 13));
    const auto statusOf = [&] { return exchange(user, batch)->back(); };
    const auto senseOf = [&] {
        Bytes sense = submitOut(3, commandWrapper(2, 18, 0x80, 0, {3, 0, 0, 0, 18, 0}));
        append(sense, submitIn(4, 18));
        append(sense, submitIn(5, 13));
        return exchange(user, sense)->at(96 + 12);
    };
    EXPECT_EQ(statusOf(), 1);
    EXPECT_EQ(senseOf(), 0x29);
    EXPECT_EQ(statusOf(), 1);
    EXPECT_EQ(senseOf(), 0x3A);
    const auto login = encodeAuthPayload({true, digest});
    EXPECT_TRUE(succeeds(user, {0x40, 0xB3, 0, 0, 0, 0, 34, 0}, {login.begin(), login.end()}));
    EXPECT_EQ(statusOf(), 1);
    EXPECT_EQ(senseOf(), 0x28);
    EXPECT_EQ(statusOf(), 0);
    EXPECT_TRUE(succeeds(user, {0x40, 0xB4, 0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(statusOf(), 1);
    EXPECT_EQ(senseOf(), 0x3A);
}

TEST_F(Host, AdvancedTimeRunsTheIdleLock) {
    (void)verb("plug");
    const FileDescriptor user = computer();
    EXPECT_TRUE(ask(user, {0x40, 0xBD, 60, 0, 0, 0, 0, 0}));
    setUp(user);
    reconnect(user);
    const FileDescriptor again = computer();
    const auto login = encodeAuthPayload({true, digest});
    (void)ask(again, {0x40, 0xB3, 0, 0, 0, 0, 34, 0}, {login.begin(), login.end()});
    EXPECT_THAT(verb("state"), HasSubstr("StateUnlocking"));
    EXPECT_EQ(verb("advance 61"), "ok");
    EXPECT_THAT(verb("state"), HasSubstr("StateLocked"));
}

TEST_F(Host, FaultMakesTheDriveVanishUntilItIsPlugged) {
    (void)verb("plug");
    const FileDescriptor user = computer();
    EXPECT_EQ(verb("fail 1 vanish"), "ok");
    EXPECT_EQ(ask(user, {0xC0, 0xC0, 0, 0, 0, 0, 36, 0}), std::nullopt);
    EXPECT_THAT(verb("state"), HasSubstr("unplugged"));
    pass(5000ms);
    EXPECT_EQ(verb("plug"), "ok");
}

TEST_F(Host, FaultStallsTheRequestCounted) {
    (void)verb("plug");
    const FileDescriptor user = computer();
    EXPECT_EQ(verb("fail 2"), "ok");
    EXPECT_EQ(ask(user, {0xC0, 0xC0, 0, 0, 0, 0, 36, 0})->size(), 48U + 36);
    EXPECT_FALSE(succeeds(user, {0xC0, 0xC0, 0, 0, 0, 0, 36, 0}));
    EXPECT_TRUE(hasLine("GetDeviceStatus value=0 length=36: stall"));
}

TEST_F(Host, NotReadyReadsAreCounted) {
    (void)verb("plug");
    const FileDescriptor user = computer();
    EXPECT_EQ(verb("not-ready 1"), "ok");
    EXPECT_NE(ask(user, {0xC0, 0xC0, 1, 0, 0, 0, 36, 0})->at(48 + 7), 0x80);
    EXPECT_EQ(ask(user, {0xC0, 0xC0, 1, 0, 0, 0, 36, 0})->at(48 + 7), 0x80);
}

TEST_F(Host, LosesItsClock) {
    (void)verb("plug");
    const FileDescriptor user = computer();
    (void)ask(user, {0x40, 0xBB, 0, 0, 0, 0, 7, 0}, {0x07, 0xEA, 11, 21, 1, 2, 3});
    EXPECT_EQ(ask(user, {0xC0, 0xBA, 0, 0, 0, 0, 28, 0})->at(48) & 0x40, 0);
    EXPECT_EQ(verb("lose-clock"), "ok");
    EXPECT_EQ(ask(user, {0xC0, 0xBA, 0, 0, 0, 0, 28, 0})->at(48) & 0x40, 0x40);
}

TEST_F(Host, LogsRequestsAndWhatHappens) {
    (void)verb("plug");
    const FileDescriptor user = computer();
    (void)ask(user, {0xC0, 0xC0, 0, 0, 0, 0, 36, 0});
    (void)verb("unplug");
    EXPECT_EQ(lines.front(), "plugged");
    EXPECT_TRUE(hasLine("request in C0 GetDeviceStatus"));
    EXPECT_EQ(lines.back(), "unplugged");
}

TEST_F(Host, AnswersEveryLineAndNothingBreaksIt) {
    for (const char* const line :
         {"", " ", "\t\r", "frob", "plug plug", "advance", "advance -1", "advance 1 2", "advance x",
          "advance 99999999999", "not-ready", "not-ready -1", "fail", "fail x", "fail 1 badly",
          "fail 1 stall again", "quit now", "state please"}) {
        EXPECT_EQ(verb(line).substr(0, 6), "error ") << line;
    }
    EXPECT_THAT(verb("help"), HasSubstr("lose-clock"));
    EXPECT_FALSE(hasQuit);
    EXPECT_EQ(verb("quit"), "ok");
    EXPECT_TRUE(hasQuit);
}

/// The host with a folder that looks like the kernel's controller.
class HostAtKernel : public Host {
protected:
    void SetUp() override {
        write("attach", "");
        write("detach", "");
        write("status", "hs  0003 004 000 00000000 000000 0-0\n");
    }
    void write(const std::string& name, const std::string& text) const {
        temporary.write(name, text);
    }
    [[nodiscard]] std::string contents(const std::string& name) const {
        return temporary.read(name);
    }

    TemporaryFolder temporary;
    std::filesystem::path folder = temporary.path();
    std::string error;
};

TEST_F(HostAtKernel, AttachesWheneverItIsPlugged) {
    ASSERT_TRUE(host.attachToKernel(folder, error)) << error;
    (void)verb("plug");
    EXPECT_THAT(contents("attach"), HasSubstr("3 "));
    EXPECT_THAT(verb("state"), HasSubstr("in-use port=3"));
}

TEST_F(HostAtKernel, LeavesThePortCleanWhenUnplugged) {
    ASSERT_TRUE(host.attachToKernel(folder, error));
    (void)verb("plug");
    (void)verb("unplug");
    EXPECT_EQ(contents("detach"), "3");
    EXPECT_THAT(verb("state"), Not(HasSubstr("port")));
}

TEST_F(HostAtKernel, TriesAgainWhileThePortIsHeld) {
    ASSERT_TRUE(host.attachToKernel(folder, error));
    write("status", "hs  0003 006 003 00010002 000003 1-1\n");
    (void)verb("plug");
    EXPECT_TRUE(hasLine("not attached yet"));
    pass(200ms);
    EXPECT_EQ(contents("attach"), "");
    write("status", "hs  0003 004 000 00000000 000000 0-0\n");
    pass(200ms);
    EXPECT_THAT(contents("attach"), HasSubstr("3 "));
    EXPECT_EQ(
        std::ranges::count_if(
            lines, [](const std::string& line) { return line.starts_with("not attached yet"); }),
        1);
}

TEST_F(HostAtKernel, AttachesAgainAfterAReplug) {
    ASSERT_TRUE(host.attachToKernel(folder, error));
    (void)verb("plug");
    write("attach", "");
    (void)verb("replug");
    EXPECT_EQ(contents("attach"), "");
    pass(500ms);
    EXPECT_THAT(contents("attach"), HasSubstr("3 "));
}

TEST_F(HostAtKernel, WithoutAControllerSaysSo) {
    EXPECT_FALSE(host.attachToKernel(folder / "nothing", error));
    EXPECT_THAT(error, HasSubstr("vhci_hcd"));
}

class ConsoleTest : public HostAtKernel {
protected:
    ConsoleTest() { console.use(ends->first.get(), ends->first.get()); }
    std::string say(std::string_view text) {
        const auto answer = exchange(ends->second, {text.begin(), text.end()});
        return answer ? std::string(answer->begin(), answer->end()) : "gone";
    }
    std::optional<std::pair<FileDescriptor, FileDescriptor>> ends = makeSocketPair();
    Console console{loop, host, [this] { hasQuit = true; }};
};

TEST_F(ConsoleTest, AnswersEachLine) {
    EXPECT_EQ(say("plug\nplug\n"), "ok\nerror the drive is plugged in\n");
    EXPECT_EQ(say("unp"), "");
    EXPECT_EQ(say("lug\n"), "ok\n");
}

TEST_F(ConsoleTest, TakesNothingMoreAfterALineWithoutAnEnd) {
    EXPECT_EQ(say(std::string(Console::MaximumLine, 'x')), "");
    EXPECT_EQ(say("x"), "");
    EXPECT_EQ(say("\nplug\n"), "");
    EXPECT_FALSE(host.isPlugged());
}

TEST_F(ConsoleTest, TakesVerbsUntilTheInputEnds) {
    EXPECT_EQ(say("plug\n"), "ok\n");
    ::shutdown(ends->second.get(), SHUT_WR);
    turn();
    EXPECT_TRUE(host.isPlugged());
    EXPECT_FALSE(hasQuit);
}

} // namespace
} // namespace zelto::test
