#include "simulator/usbip/UsbipServer.h"
#include "tests/usb/UsbipTest.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/eventfd.h>
#include <sys/socket.h>

namespace zelto::test {
namespace {

using namespace simulator;

/// The server in its loop, and clients on real sockets. Nothing waits: the loop is turned by hand.
class Server : public UsbTest {
protected:
    void SetUp() override {
        UsbTest::SetUp();
        std::string error;
        ASSERT_TRUE(server.listen("127.0.0.1:0", error)) << error;
    }

    FileDescriptor connect() {
        FileDescriptor socket(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0));
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_port = htons(server.port());
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        EXPECT_EQ(
            ::connect(socket.get(), reinterpret_cast<const sockaddr*>(&address), sizeof address),
            0);
        turn();
        return socket;
    }
    void turn() {
        for (int round = 0; round < 8; ++round) {
            loop.runOnce(EventLoop::Milliseconds{0});
        }
    }
    static void write(const FileDescriptor& socket, const Bytes& bytes) {
        EXPECT_EQ(::send(socket.get(), bytes.data(), bytes.size(), MSG_NOSIGNAL),
                  static_cast<ssize_t>(bytes.size()));
    }
    /// What has come; nothing at all when the connection is closed.
    static std::optional<Bytes> read(const FileDescriptor& socket) {
        Bytes bytes(1 << 16);
        const ssize_t size = ::recv(socket.get(), bytes.data(), bytes.size(), MSG_DONTWAIT);
        if (size == 0 || (size < 0 && errno == ECONNRESET)) {
            return std::nullopt;
        }
        bytes.resize(size < 0 ? 0 : static_cast<std::size_t>(size));
        return bytes;
    }
    std::optional<Bytes> exchange(const FileDescriptor& socket, const Bytes& bytes) {
        write(socket, bytes);
        turn();
        return read(socket);
    }

    struct Export final : UsbipExport {
        explicit Export(Server& owner) : test(owner) {}
        [[nodiscard]] std::optional<UsbipDevice> offered() const override {
            return test.isPlugged ? std::optional(UsbipDevice{}) : std::nullopt;
        }
        [[nodiscard]] bool isTaken() const override { return test.server.hasImporter(); }
        [[nodiscard]] StorageDevice& device() override { return test.device; }
        [[nodiscard]] bool isLeaving() const override { return test.isLeaving; }
        Server& test;
    };

    bool isPlugged = true;
    bool isLeaving = false;
    int carriedOut = 0;
    std::vector<std::string> lines;
    EventLoop loop;
    Export exported{*this};
    UsbipServer server{loop, exported, [this] { ++carriedOut; },
                       [this](const std::string& line) { lines.push_back(line); }};
};

const Bytes GetConfiguration = submitControl(1, {0x80, 8, 0, 0, 0, 0, 1, 0});

TEST_F(Server, ListsAndCloses) {
    const FileDescriptor client = connect();
    const auto answer = exchange(client, operationPacket(0x8005));
    ASSERT_TRUE(answer);
    EXPECT_EQ(answer->size(), 328U);
    EXPECT_EQ(read(client), std::nullopt);
}

TEST_F(Server, ImportsAndServes) {
    const FileDescriptor client = connect();
    EXPECT_EQ(exchange(client, importPacket("1-1"))->size(), 320U);
    EXPECT_TRUE(server.hasImporter());
    EXPECT_EQ(exchange(client, GetConfiguration)->size(), 49U);
    EXPECT_GT(carriedOut, 0);
}

TEST_F(Server, GivesTheDeviceToOneComputerAtATime) {
    FileDescriptor first = connect();
    const FileDescriptor second = connect();
    EXPECT_EQ(exchange(first, importPacket("1-1"))->size(), 320U);
    EXPECT_EQ(exchange(second, importPacket("1-1"))->size(), 8U);
    first = FileDescriptor();
    turn();
    EXPECT_FALSE(server.hasImporter());
    const FileDescriptor third = connect();
    EXPECT_EQ(exchange(third, importPacket("1-1"))->size(), 320U);
}

TEST_F(Server, ServesASocketPairAsTheKernelUsesIt) {
    auto ends = makeSocketPair();
    ASSERT_TRUE(ends);
    server.adopt(std::move(ends->first));
    EXPECT_TRUE(server.hasImporter());
    EXPECT_EQ(exchange(ends->second, GetConfiguration)->size(), 49U);
}

TEST_F(Server, DropsWhoeverHasTheDeviceWhenItIsUnplugged) {
    auto ends = makeSocketPair();
    server.adopt(std::move(ends->first));
    server.dropImporter();
    EXPECT_EQ(read(ends->second), std::nullopt);
    EXPECT_FALSE(server.hasImporter());
}

TEST_F(Server, SendsTheLastAnswerBeforeTheDriveIsGone) {
    const FileDescriptor client = connect();
    (void)exchange(client, importPacket("1-1"));
    firmware.effect = [this] { isLeaving = true; };
    const auto answer = exchange(client, submitControl(2, {0x40, 0xC1, 1, 0, 1, 0, 0, 0}));
    EXPECT_EQ(answer, submitReply(2, 0, 0));
    EXPECT_EQ(exchange(client, GetConfiguration), Bytes{});
    server.dropImporter();
    turn();
    EXPECT_EQ(read(client), std::nullopt);
}

TEST_F(Server, DropsAndReportsWhoeverBreaksTheRules) {
    auto ends = makeSocketPair();
    server.adopt(std::move(ends->first));
    EXPECT_EQ(exchange(ends->second, Bytes(48, 0xFF)), std::nullopt);
    EXPECT_EQ(lines, std::vector<std::string>{"connection dropped: a packet that makes no sense"});
}

TEST_F(Server, SurvivesClientsThatLeaveInTheMiddle) {
    for (const std::size_t size : {1U, 8U, 39U}) {
        const FileDescriptor client = connect();
        Bytes packet = importPacket("1-1");
        packet.resize(size);
        write(client, packet);
    }
    turn();
    EXPECT_FALSE(server.hasImporter());
    const FileDescriptor client = connect();
    EXPECT_EQ(exchange(client, importPacket("1-1"))->size(), 320U);
}

TEST_F(Server, MakesRoomByDroppingTheOldestThatOnlyLooks) {
    const FileDescriptor importer = connect();
    (void)exchange(importer, importPacket("1-1"));
    std::vector<FileDescriptor> idlers;
    for (std::size_t count = 0; count < UsbipServer::MaximumConnections; ++count) {
        idlers.push_back(connect());
    }
    EXPECT_EQ(read(idlers.front()), std::nullopt);
    EXPECT_EQ(read(idlers.back()), Bytes{});
    EXPECT_EQ(exchange(importer, GetConfiguration)->size(), 49U);
}

TEST_F(Server, RefusesAddressesThatAreNone) {
    std::string error;
    UsbipServer other(
        loop, exported, [] {}, [](const std::string&) {});
    for (const char* const address : {"", "3240", ":3240", "localhost", "127.0.0.1", "1.2.3.4.5:1",
                                      "127.0.0.1:port", "127.0.0.1:70000"}) {
        error.clear();
        EXPECT_FALSE(other.listen(address, error)) << address;
        EXPECT_FALSE(error.empty()) << address;
    }
}

TEST_F(Server, RefusesAnAddressThatIsTaken) {
    std::string error;
    UsbipServer other(
        loop, exported, [] {}, [](const std::string&) {});
    EXPECT_FALSE(other.listen("127.0.0.1:" + std::to_string(server.port()), error));
}

TEST(Loop, CallsTimersInTheirOrderAndOnce) {
    EventLoop loop;
    std::string order;
    loop.callAfter(EventLoop::Milliseconds{0}, [&] { order += 'a'; });
    loop.callAfter(EventLoop::Milliseconds{0}, [&] {
        order += 'b';
        loop.callAfter(EventLoop::Milliseconds{0}, [&] { loop.stop(); });
    });
    loop.run();
    EXPECT_EQ(order, "ab");
}

TEST(Loop, CallsTimersOnTimeAlsoWhileItStaysAwake) {
    using std::chrono::milliseconds;
    EventLoop::Clock::time_point time{};
    EventLoop loop([&] { return time += milliseconds{1}; }); // time passes as it is asked for
    loop.stayAwakeFor(std::chrono::hours{1});
    const FileDescriptor event{::eventfd(1, EFD_CLOEXEC)};
    EventLoop::Clock::time_point called{};
    loop.watch(event.get(), EventLoop::Interest::Read, [&] {
        loop.forget(event.get());
        loop.callAfter(milliseconds{50}, [&] {
            called = time;
            loop.stop();
        });
    });
    loop.run();
    EXPECT_GE(called.time_since_epoch(), milliseconds{50});
    EXPECT_LT(called.time_since_epoch(), milliseconds{100});
}

} // namespace
} // namespace zelto::test
