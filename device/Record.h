#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

/// How the drive's records are read and written: each record is one table of fields, checked at
/// compile time, and every access goes through `get`, `put` or `bytes` with a field of that table.
/// Multi-byte integers are big-endian on the drive whatever the host is; this is the one place
/// that knows.
namespace zelto::record {

/// A run of bytes in a record: an integer of up to eight bytes, or a block of bytes.
struct Field {
    std::size_t offset = 0;
    std::size_t width = 0;
};

/// True when the fields, in the order given, cover a record of `size` bytes without gap or overlap.
template <std::size_t Count>
consteval bool covers(const std::array<Field, Count>& fields, std::size_t size) {
    std::size_t next = 0;
    for (const Field& field : fields) {
        if (field.offset != next || field.width == 0) {
            return false;
        }
        next += field.width;
    }
    return next == size;
}

/// The unsigned integer in a field of a record that holds the whole field.
[[nodiscard]] constexpr std::uint64_t get(std::span<const std::uint8_t> record, Field field) {
    std::uint64_t value = 0;
    for (const std::uint8_t byte : record.subspan(field.offset, field.width)) {
        value = value << 8 | byte;
    }
    return value;
}

/// The same, narrowed to the type that the field's width calls for.
template <typename Integer>
[[nodiscard]] constexpr Integer get(std::span<const std::uint8_t> record, Field field) {
    return static_cast<Integer>(get(record, field));
}

/// Writes the low bytes of an integer into a field of a record that holds the whole field.
constexpr void put(std::span<std::uint8_t> record, Field field, std::uint64_t value) {
    for (std::size_t index = field.width; index > 0; --index) {
        record[field.offset + index - 1] = static_cast<std::uint8_t>(value & 0xFF);
        value >>= 8;
    }
}

/// The bytes of a field.
[[nodiscard]] constexpr std::span<const std::uint8_t> bytes(std::span<const std::uint8_t> record,
                                                            Field field) {
    return record.subspan(field.offset, field.width);
}
[[nodiscard]] constexpr std::span<std::uint8_t> bytes(std::span<std::uint8_t> record, Field field) {
    return record.subspan(field.offset, field.width);
}

} // namespace zelto::record
