#pragma once

#include <QString>

#include <cstdint>

namespace zelto {

/// The unit of the auto-clear period; the values are the radio cells' tags.
enum class PeriodUnit : int { Days = 0, Minutes = 1 };

/// Every tag but 0 means minutes.
[[nodiscard]] constexpr PeriodUnit periodUnitOfTag(int tag) {
    return tag == 0 ? PeriodUnit::Days : PeriodUnit::Minutes;
}

/// The auto-clear period as the main settings window holds it.
struct AutoClearEntry {
    bool enabled = false;
    PeriodUnit unit = PeriodUnit::Days;
    QString text = {};

    friend bool operator==(const AutoClearEntry&, const AutoClearEntry&) = default;
};

/// The auto log-off period as the main settings window holds it; the text counts minutes.
struct AutoLogOffEntry {
    bool enabled = false;
    QString text = {};

    friend bool operator==(const AutoLogOffEntry&, const AutoLogOffEntry&) = default;
};

/// Off, or a number of 1 to 9999 days or 1 to 999 minutes.
[[nodiscard]] bool isValid(const AutoClearEntry& entry);
/// Off, or a number of 1 to 999 minutes.
[[nodiscard]] bool isValid(const AutoLogOffEntry& entry);

/// Seconds as the drive is told, cut to 32 bits; 0 when off, whatever the text says. The text is
/// not judged again: an entry that was never touched is sent back as it was shown.
[[nodiscard]] std::uint32_t autoClearSeconds(const AutoClearEntry& entry);
/// Seconds as the drive is told, cut to 16 bits: 1093 minutes go out as 44 seconds.
[[nodiscard]] std::uint16_t autoLogOffSeconds(const AutoLogOffEntry& entry);

/// How the window shows periods that the drive reports; 0 seconds mean off. Up to 999 minutes an
/// auto-clear period is shown in minutes, beyond that in days, both rounded down.
[[nodiscard]] AutoClearEntry shownAutoClear(std::uint32_t seconds);
[[nodiscard]] AutoLogOffEntry shownAutoLogOff(std::uint16_t seconds);

} // namespace zelto
