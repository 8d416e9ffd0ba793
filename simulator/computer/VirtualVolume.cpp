#include "simulator/computer/VirtualVolume.h"

#include "device/Record.h"

#include <QByteArray>
#include <QDataStream>
#include <QIODevice>

#include <algorithm>
#include <string_view>

namespace zelto::simulator {

namespace {

constexpr std::string_view Signature{"ZELTO VOLUME 1\0\0", 16};
constexpr record::Field Length{16, 8};
constexpr std::size_t HeaderSize = 24;
constexpr auto StreamVersion = QDataStream::Qt_6_0;

void fillLastSector(FileTree::Bytes& bytes) {
    bytes.resize((bytes.size() + SectorSize - 1) / SectorSize * SectorSize);
}

/// What follows the header; null when there is no header.
QByteArray readContainer(SectorStore& medium) {
    FileTree::Bytes bytes(SectorSize);
    const std::uint64_t capacity = medium.sectorCount() * SectorSize;
    if (capacity < SectorSize || !medium.read(0, bytes) ||
        !std::equal(Signature.begin(), Signature.end(), bytes.begin())) {
        return {};
    }
    const std::uint64_t length = record::get(bytes, Length);
    if (length > capacity - HeaderSize) {
        return {};
    }
    bytes.resize(static_cast<std::size_t>(HeaderSize + length));
    fillLastSector(bytes);
    return medium.read(0, bytes) ? QByteArray(reinterpret_cast<const char*>(&bytes[HeaderSize]),
                                              static_cast<qsizetype>(length))
                                 : QByteArray();
}

} // namespace

bool VirtualVolume::format(SectorStore& medium, const std::string& label) {
    VirtualVolume volume(medium, label, {});
    return label.size() <= LongestLabel && volume.keep({});
}

std::unique_ptr<VirtualVolume> VirtualVolume::mount(SectorStore& medium) {
    const QByteArray container = readContainer(medium);
    QDataStream stream(container);
    stream.setVersion(StreamVersion);
    QByteArray label;
    stream >> label;
    Branch files;
    while (!stream.atEnd() && stream.status() == QDataStream::Ok) {
        QByteArray path;
        QByteArray bytes;
        qint64 modified = 0;
        File file;
        stream >> path >> file.isFolder >> file.isWritable >> modified >> bytes;
        file.modified = std::chrono::sys_seconds(std::chrono::seconds(modified));
        file.bytes.assign(bytes.begin(), bytes.end());
        files[path.toStdString()] = std::move(file);
    }
    return stream.status() == QDataStream::Ok ? std::unique_ptr<VirtualVolume>(new VirtualVolume(
                                                    medium, label.toStdString(), std::move(files)))
                                              : nullptr;
}

bool VirtualVolume::keep(const Branch& files) {
    QByteArray container;
    QDataStream stream(&container, QIODevice::WriteOnly);
    stream.setVersion(StreamVersion);
    stream << QByteArray::fromStdString(m_label);
    for (const auto& [path, file] : files) {
        stream << QByteArray::fromStdString(path) << file.isFolder << file.isWritable
               << qint64{file.modified.time_since_epoch().count()}
               << QByteArray(reinterpret_cast<const char*>(file.bytes.data()),
                             static_cast<qsizetype>(file.bytes.size()));
    }
    Bytes bytes(Signature.begin(), Signature.end());
    bytes.resize(HeaderSize);
    record::put(bytes, Length, static_cast<std::uint64_t>(container.size()));
    bytes.insert(bytes.end(), container.begin(), container.end());
    fillLastSector(bytes);
    return m_medium.write(0, bytes);
}

} // namespace zelto::simulator
