#pragma once

#include <atomic>
#include <cstddef>
#include <memory>
#include <ranges>
#include <type_traits>

namespace zelto {

namespace detail {
/// Through a volatile pointer: memory that is about to be freed is exactly where a compiler drops
/// an ordinary fill.
inline void zeroMemory(void* memory, std::size_t size) noexcept {
    auto* const bytes = static_cast<volatile unsigned char*>(memory);
    for (std::size_t index = 0; index < size; ++index) {
        bytes[index] = 0;
    }
}

inline std::atomic<bool> heapIsWiped{false};
} // namespace detail

/// A contiguous range whose elements can be overwritten byte by byte.
template <typename Range>
concept WipeableRange = std::ranges::contiguous_range<Range> &&
    std::is_trivially_copyable_v<std::ranges::range_value_t<Range>> &&
    !std::is_const_v<std::remove_reference_t<std::ranges::range_reference_t<Range>>>;

/// A record that owns no memory elsewhere.
template <typename Record>
concept WipeableRecord =
    std::is_trivially_copyable_v<Record> && !std::is_const_v<Record> && !std::is_pointer_v<Record>;

/// Overwrites the elements of a span, array, vector or string with zeros, for sure: passwords, keys
/// and digests go this way after use. Only this memory is reached: copies that a text has shared
/// out, or left behind when it grew, are not.
template <WipeableRange Range>
void wipe(Range&& range) noexcept {
    detail::zeroMemory(std::ranges::data(range),
                       static_cast<std::size_t>(std::ranges::size(range)) *
                           sizeof(std::ranges::range_value_t<Range>));
}

/// The same for a record.
template <WipeableRecord Record>
void wipeObject(Record& record) noexcept {
    detail::zeroMemory(std::addressof(record), sizeof record);
}

/// A record that is wiped when it goes, however its scope ends. Made in place: what initialises it
/// leaves no copy behind.
///
///     Wiped<AuthInfo> info{{.kind = AuthInfo::Set}};
template <WipeableRecord Record>
struct Wiped {
    Record value{};

    ~Wiped() { wipeObject(value); }

    [[nodiscard]] Record& operator*() { return value; }
    [[nodiscard]] const Record& operator*() const { return value; }
    [[nodiscard]] Record* operator->() { return std::addressof(value); }
    [[nodiscard]] const Record* operator->() const { return std::addressof(value); }
};

/// From here on the program's heap (platform/linux/WipedHeap.cpp) overwrites whatever is given back
/// to it. To be called before anything that might be secret can come in.
inline void startWipingHeap() noexcept {
    detail::heapIsWiped.store(true, std::memory_order_relaxed);
}
[[nodiscard]] inline bool wipesHeap() noexcept {
    return detail::heapIsWiped.load(std::memory_order_relaxed);
}

} // namespace zelto
