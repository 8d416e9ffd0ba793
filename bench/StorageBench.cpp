// The virtual drive's storage: what the transport and the units cost in one process, what USB/IP
// over a socket pair adds, and, as the ceiling, the same pieces read from and written to a raw
// file. Every command moves as much as the argument says; "random" goes by 4 KiB all over the
// medium. One command is under way at a time, as the storage driver does it.

#include "simulator/virtual-drive/DriveHost.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <random>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace zelto::simulator {
namespace {

constexpr std::uint64_t MediumSize = std::uint64_t{64} << 20;
constexpr std::size_t SectorSize = 512;

using Bytes = std::vector<std::uint8_t>;

void put(Bytes& bytes, std::size_t offset, std::size_t width, std::uint64_t value, bool bigEndian) {
    for (std::size_t index = 0; index < width; ++index) {
        const std::size_t place = bigEndian ? width - 1 - index : index;
        bytes[offset + place] = static_cast<std::uint8_t>(value >> (8 * index) & 0xFF);
    }
}

enum class Way : std::uint8_t { Read, Write };
enum class Order : std::uint8_t { Sequential, Random };

/// The wrapper of a READ (10) or WRITE (10).
Bytes wrapperFor(Way way, std::uint64_t offset, std::size_t size) {
    Bytes bytes{'U', 'S', 'B', 'C'};
    bytes.resize(31);
    put(bytes, 8, 4, size, false);
    bytes[12] = way == Way::Read ? 0x80 : 0x00;
    bytes[14] = 10;
    bytes[15] = way == Way::Read ? 0x28 : 0x2A;
    put(bytes, 17, 4, offset / SectorSize, true);
    put(bytes, 22, 2, size / SectorSize, true);
    return bytes;
}

/// Where the next command goes.
class Offsets {
public:
    Offsets(Order order, std::size_t size) : m_order(order), m_size(size) {}

    std::uint64_t next() {
        const std::uint64_t places = MediumSize / m_size;
        m_place = m_order == Order::Sequential ? (m_place + 1) % places : m_random() % places;
        return m_place * m_size;
    }

private:
    Order m_order;
    std::size_t m_size;
    std::uint64_t m_place = 0;
    std::mt19937_64 m_random{1};
};

/// A folder for one benchmark's files, already as large as they will get.
class Folder {
public:
    Folder() {
        std::string name = (std::filesystem::temp_directory_path() / "zelto-bench-XXXXXX").string();
        if (::mkdtemp(name.data()) == nullptr) {
            std::abort();
        }
        m_path = name;
    }
    ~Folder() { std::filesystem::remove_all(m_path); }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;

    [[nodiscard]] const std::filesystem::path& path() const { return m_path; }

    static void fill(const std::filesystem::path& file) {
        const FileDescriptor descriptor(::open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600));
        const Bytes piece(1 << 20, 0x5A);
        for (std::uint64_t offset = 0; offset < MediumSize; offset += piece.size()) {
            if (::pwrite(descriptor.get(), piece.data(), piece.size(), static_cast<off_t>(offset)) <
                0) {
                std::abort();
            }
        }
    }

private:
    std::filesystem::path m_path;
};

/// A new drive in a folder, plugged, in its own loop on its own thread where that is asked for.
class Bed {
public:
    Bed()
        : m_host(
              m_loop, makeDrive(m_folder), [] { return Moment{std::chrono::seconds{1}}; },
              [](const std::string&) {}) {
        if (!m_host.plug()) {
            std::abort();
        }
    }

    DriveHost& host() { return m_host; }
    EventLoop& loop() { return m_loop; }

private:
    static std::unique_ptr<VirtualDrive> makeDrive(const Folder& folder) {
        Manufactured made;
        made.totalSectors = MediumSize / SectorSize;
        std::string error;
        auto drive = VirtualDrive::create(folder.path() / "drive", made, error);
        if (!drive) {
            std::abort();
        }
        Folder::fill(folder.path() / "drive" / "drive.image");
        return drive;
    }

    Folder m_folder;
    EventLoop m_loop;
    DriveHost m_host;
};

/// The computer's end of the bus: sends transfers and takes the answers.
class Computer {
public:
    explicit Computer(Bed& bed) : m_bed(bed) {
        auto ends = makeSocketPair();
        m_socket = std::move(ends->second);
        m_bed.host().adopt(std::move(ends->first));
        m_server = std::thread([&loop = m_bed.loop()] { loop.run(); });
        transferOut(0, {}, {0x00, 9, 1, 0, 0, 0, 0, 0});
        // Twice: the first command is told that the power came on.
        for (int time = 0; time < 2; ++time) {
            Bytes ready{'U', 'S', 'B', 'C'};
            ready.resize(31);
            ready[14] = 6;
            transferOut(2, ready);
            Bytes status(13);
            transferIn(status);
        }
    }
    ~Computer() {
        m_bed.loop().callAfter(EventLoop::Milliseconds{0}, [this] { m_bed.loop().stop(); });
        m_socket = FileDescriptor(); // wakes the loop
        m_server.join();
    }
    Computer(const Computer&) = delete;
    Computer& operator=(const Computer&) = delete;

    void transferOut(std::uint8_t endpoint, const Bytes& data, const Bytes& setup = Bytes(8)) {
        Bytes packet = header(endpoint, 0, data.size(), setup);
        packet.insert(packet.end(), data.begin(), data.end());
        sendAll(packet);
        Bytes reply(48);
        receiveAll(reply);
    }
    void transferIn(std::span<std::uint8_t> data) {
        sendAll(header(1, 1, data.size(), Bytes(8)));
        Bytes reply(48);
        receiveAll(reply);
        receiveAll(data);
    }

private:
    static Bytes header(std::uint8_t endpoint, std::uint8_t direction, std::size_t length,
                        const Bytes& setup) {
        Bytes bytes(40);
        bytes[3] = 1;
        put(bytes, 8, 4, UsbipDevice{}.deviceId(), true);
        bytes[15] = direction;
        bytes[19] = endpoint;
        put(bytes, 24, 4, length, true);
        bytes.insert(bytes.end(), setup.begin(), setup.end());
        return bytes;
    }
    void sendAll(std::span<const std::uint8_t> bytes) {
        while (!bytes.empty()) {
            const ssize_t size = ::send(m_socket.get(), bytes.data(), bytes.size(), MSG_NOSIGNAL);
            if (size <= 0) {
                std::abort();
            }
            bytes = bytes.subspan(static_cast<std::size_t>(size));
        }
    }
    void receiveAll(std::span<std::uint8_t> bytes) {
        if (!bytes.empty() && ::recv(m_socket.get(), bytes.data(), bytes.size(), MSG_WAITALL) !=
                                  static_cast<ssize_t>(bytes.size())) {
            std::abort();
        }
    }

    Bed& m_bed;
    FileDescriptor m_socket;
    std::thread m_server;
};

void report(benchmark::State& state, std::size_t size) {
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(size));
}

void rawFile(benchmark::State& state, Way way, Order order) {
    const auto size = static_cast<std::size_t>(state.range(0));
    const Folder folder;
    Folder::fill(folder.path() / "raw");
    const FileDescriptor file(::open((folder.path() / "raw").c_str(), O_RDWR | O_CLOEXEC));
    Bytes buffer(size);
    Offsets offsets(order, size);
    for ([[maybe_unused]] auto iteration : state) {
        const auto offset = static_cast<off_t>(offsets.next());
        benchmark::DoNotOptimize(way == Way::Read
                                     ? ::pread(file.get(), buffer.data(), size, offset)
                                     : ::pwrite(file.get(), buffer.data(), size, offset));
    }
    report(state, size);
}

/// Transport and units alone: no socket, no other thread.
void inProcess(benchmark::State& state, Way way, Order order) {
    const auto size = static_cast<std::size_t>(state.range(0));
    Bed bed;
    auto& device = bed.host().deviceOnBus();
    (void)device.control({0x00, 9, 1, 0, 0}, {}, {});
    Bytes status(13);
    for (int time = 0; time < 2; ++time) {
        Bytes ready{'U', 'S', 'B', 'C'};
        ready.resize(31);
        ready[14] = 6;
        (void)device.bulkOut(2, ready);
        (void)device.bulkIn(1, status);
    }
    Bytes buffer(size);
    Offsets offsets(order, size);
    for ([[maybe_unused]] auto iteration : state) {
        (void)device.bulkOut(2, wrapperFor(way, offsets.next(), size));
        const TransferResult moved =
            way == Way::Read ? device.bulkIn(1, buffer) : device.bulkOut(2, buffer);
        (void)device.bulkIn(1, status);
        if (moved.length != size || status[12] != 0) {
            state.SkipWithError("the command failed");
            break;
        }
    }
    report(state, size);
}

void overUsbip(benchmark::State& state, Way way, Order order) {
    const auto size = static_cast<std::size_t>(state.range(0));
    Bed bed;
    Computer computer(bed);
    Bytes buffer(size);
    Bytes status(13);
    Offsets offsets(order, size);
    for ([[maybe_unused]] auto iteration : state) {
        computer.transferOut(2, wrapperFor(way, offsets.next(), size));
        if (way == Way::Read) {
            computer.transferIn(buffer);
        } else {
            computer.transferOut(2, buffer);
        }
        computer.transferIn(status);
        if (status[12] != 0) {
            state.SkipWithError("the command failed");
            break;
        }
    }
    report(state, size);
}

// What the storage driver of Linux sends at most (240 sectors), and a page.
constexpr std::int64_t Large = std::int64_t{120} * 1024;
constexpr std::int64_t Page = 4096;

BENCHMARK_CAPTURE(rawFile, read, Way::Read, Order::Sequential)->Arg(Large)->UseRealTime();
BENCHMARK_CAPTURE(rawFile, readRandom, Way::Read, Order::Random)->Arg(Page)->UseRealTime();
BENCHMARK_CAPTURE(rawFile, write, Way::Write, Order::Sequential)->Arg(Large)->UseRealTime();
BENCHMARK_CAPTURE(rawFile, writeRandom, Way::Write, Order::Random)->Arg(Page)->UseRealTime();
BENCHMARK_CAPTURE(inProcess, read, Way::Read, Order::Sequential)->Arg(Large)->UseRealTime();
BENCHMARK_CAPTURE(inProcess, readRandom, Way::Read, Order::Random)->Arg(Page)->UseRealTime();
BENCHMARK_CAPTURE(inProcess, write, Way::Write, Order::Sequential)->Arg(Large)->UseRealTime();
BENCHMARK_CAPTURE(inProcess, writeRandom, Way::Write, Order::Random)->Arg(Page)->UseRealTime();
BENCHMARK_CAPTURE(overUsbip, read, Way::Read, Order::Sequential)->Arg(Large)->UseRealTime();
BENCHMARK_CAPTURE(overUsbip, readRandom, Way::Read, Order::Random)->Arg(Page)->UseRealTime();
BENCHMARK_CAPTURE(overUsbip, write, Way::Write, Order::Sequential)->Arg(Large)->UseRealTime();
BENCHMARK_CAPTURE(overUsbip, writeRandom, Way::Write, Order::Random)->Arg(Page)->UseRealTime();

} // namespace
} // namespace zelto::simulator
