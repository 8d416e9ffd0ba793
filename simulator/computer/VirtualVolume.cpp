#include "simulator/computer/VirtualVolume.h"

#include "device/Record.h"

#include <algorithm>
#include <array>
#include <optional>
#include <span>
#include <string_view>

namespace zelto::simulator {

namespace {

using Bytes = FileTree::Bytes;

constexpr std::string_view Signature{"ZELTO VOLUME 1\0\0", 16};
constexpr record::Field Length{16, 8};
constexpr std::size_t HeaderSize = 24;
constexpr std::uint64_t FolderBit = 1;
constexpr std::uint64_t WritableBit = 2;

void addNumber(Bytes& bytes, std::uint64_t number) {
    bytes.resize(bytes.size() + sizeof number);
    record::put(bytes, {bytes.size() - sizeof number, sizeof number}, number);
}

template <typename Text>
void addText(Bytes& bytes, const Text& text) {
    addNumber(bytes, text.size());
    bytes.insert(bytes.end(), text.begin(), text.end());
}

/// Takes a container apart. What goes beyond its end reads as nothing and leaves it damaged.
class Reader {
public:
    explicit Reader(std::span<const std::uint8_t> bytes) : m_rest(bytes) {}

    [[nodiscard]] bool isDamaged() const { return m_isDamaged; }
    [[nodiscard]] bool hasMore() const { return !m_isDamaged && !m_rest.empty(); }

    std::uint64_t number() {
        const auto bytes = take(sizeof(std::uint64_t));
        return bytes.empty() ? 0 : record::get(bytes, {0, sizeof(std::uint64_t)});
    }

    template <typename Text>
    Text text() {
        const auto bytes = take(number());
        return {bytes.begin(), bytes.end()};
    }

private:
    std::span<const std::uint8_t> take(std::uint64_t size) {
        m_isDamaged = m_isDamaged || size > m_rest.size();
        if (m_isDamaged) {
            return {};
        }
        const auto taken = m_rest.first(static_cast<std::size_t>(size));
        m_rest = m_rest.subspan(taken.size());
        return taken;
    }

    std::span<const std::uint8_t> m_rest;
    bool m_isDamaged = false;
};

/// What follows the header; nothing when there is none.
std::optional<Bytes> readContainer(SectorStore& medium) {
    Bytes bytes(SectorSize);
    const std::uint64_t capacity = medium.sectorCount() * SectorSize;
    if (capacity < SectorSize || !medium.read(0, bytes) ||
        !std::equal(Signature.begin(), Signature.end(), bytes.begin())) {
        return std::nullopt;
    }
    const std::uint64_t length = record::get(bytes, Length);
    if (length > capacity - HeaderSize) {
        return std::nullopt;
    }
    const auto end = static_cast<std::size_t>(HeaderSize + length);
    bytes.resize((end + SectorSize - 1) / SectorSize * SectorSize);
    if (!medium.read(0, bytes)) {
        return std::nullopt;
    }
    bytes.resize(end);
    bytes.erase(bytes.begin(), bytes.begin() + HeaderSize);
    return bytes;
}

Bytes encode(const std::string& label, const FileTree::Branch& files) {
    Bytes bytes(Signature.begin(), Signature.end());
    bytes.resize(HeaderSize);
    addText(bytes, label);
    for (const auto& [path, file] : files) {
        addText(bytes, path);
        addNumber(bytes, (file.isFolder ? FolderBit : 0) | (file.isWritable ? WritableBit : 0));
        addNumber(bytes, static_cast<std::uint64_t>(file.modified.time_since_epoch().count()));
        addText(bytes, file.bytes);
    }
    record::put(bytes, Length, bytes.size() - HeaderSize);
    return bytes;
}

} // namespace

bool VirtualVolume::format(SectorStore& medium, const std::string& label) {
    VirtualVolume volume(medium, label, {});
    return label.size() <= LongestLabel && volume.keep({});
}

std::unique_ptr<VirtualVolume> VirtualVolume::mount(SectorStore& medium) {
    const auto container = readContainer(medium);
    if (!container) {
        return nullptr;
    }
    Reader reader(*container);
    auto label = reader.text<std::string>();
    Branch files;
    while (reader.hasMore()) {
        File& file = files[reader.text<std::string>()];
        const std::uint64_t bits = reader.number();
        file.isFolder = (bits & FolderBit) != 0;
        file.isWritable = (bits & WritableBit) != 0;
        file.modified = std::chrono::sys_seconds(
            std::chrono::seconds(static_cast<std::int64_t>(reader.number())));
        file.bytes = reader.text<Bytes>();
    }
    return reader.isDamaged() ? nullptr
                              : std::unique_ptr<VirtualVolume>(
                                    new VirtualVolume(medium, std::move(label), std::move(files)));
}

bool VirtualVolume::keep(const Branch& files) {
    Bytes bytes = encode(m_label, files);
    bytes.resize((bytes.size() + SectorSize - 1) / SectorSize * SectorSize);
    return m_medium.write(0, bytes);
}

} // namespace zelto::simulator
