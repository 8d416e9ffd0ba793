#pragma once

#include "platform/UsbDevice.h"

#include <cstdint>
#include <string>
#include <vector>

namespace zelto::simulator {

/// One thing that the program did to the world around it.
struct LogLine {
    enum class Kind {
        /// A vendor request to a drive.
        Command,
        /// Any other request to a drive: the serial number is read.
        StandardRequest,
        DiskTool,
        Opener,
        FlagTool,
        Alert,
        Sleep,
        Stop,
    };

    Kind kind = Kind::Command;
    /// In words: "TKVR21_Logout", "diskutil eject disk2", "sleep 1".
    std::string text;
    /// Of a request: the drive, the setup packet, the data stage, and how it ended.
    std::string serial = {};
    IOUSBDevRequest setup = {};
    std::vector<std::uint8_t> data = {};
    IOReturn result = kIOReturnSuccess;
};

/// Everything that the program did, in one order.
class EventLog {
public:
    void note(LogLine line) { m_lines.push_back(std::move(line)); }
    void note(LogLine::Kind kind, std::string text) {
        LogLine line;
        line.kind = kind;
        line.text = std::move(text);
        m_lines.push_back(std::move(line));
    }
    void clear() { m_lines.clear(); }
    [[nodiscard]] const std::vector<LogLine>& lines() const { return m_lines; }
    /// The lines of one kind in words.
    [[nodiscard]] std::vector<std::string> texts(LogLine::Kind kind) const;
    /// All lines in words, without standard requests and the reads that the tick repeats every
    /// second.
    [[nodiscard]] std::vector<std::string> story() const;
    [[nodiscard]] std::size_t count(const std::string& text) const;
    /// The latest line with these words; null when there is none.
    [[nodiscard]] const LogLine* latest(const std::string& text) const;

private:
    std::vector<LogLine> m_lines;
};

/// The name of the command that a vendor request is; "request XXh" when it is none.
[[nodiscard]] std::string commandName(const IOUSBDevRequest& request);

} // namespace zelto::simulator
