#pragma once

#include "simulator/computer/PreparedDrive.h"
#include "simulator/demo/Person.h"
#include "simulator/demo/UtilityProcess.h"
#include "tests/support/FaultyDevice.h"
#include "tests/support/ForgedReplies.h"
#include "tests/support/QtPrinting.h"
#include "tests/support/ScriptedAlerts.h"

#include <QApplication>

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace zelto::test {

/// A bench for tests of the whole controller: a virtual computer, alerts with scripted answers, the
/// utility with its real windows, and somebody who drives them. Nothing sleeps and no real time
/// passes. What that somebody cannot do fails the test; so does an alert that looks more or less
/// serious than what it says.
class ControllerBench {
public:
    using Drive = std::shared_ptr<simulator::DriveOnBus>;
    /// 128 MiB.
    static constexpr std::uint64_t NewDriveSectors = 262144;

    ControllerBench();
    ControllerBench(const ControllerBench&) = delete;
    ControllerBench& operator=(const ControllerBench&) = delete;
    ~ControllerBench();

    /// The world before the utility starts, and while it runs.
    Drive plugNewDrive(const std::string& serial = "ZD0000000000A1",
                       std::uint64_t sectors = NewDriveSectors);
    Drive plugPreparedDrive(const simulator::DriveSetup& setup = {});
    void plug(const Drive& drive) { computer.plug(drive); }
    void unplug(const Drive& drive) { computer.unplug(drive); }
    void replug(const Drive& drive) { computer.replug(drive); }

    /// Starts the utility. Whatever ran before has ended by then.
    void start();
    /// Ends the utility, as by killing its process.
    void end() { m_process.reset(); }
    [[nodiscard]] AppDelegate& app() { return m_process->delegate(); }
    [[nodiscard]] bool hasQuit() const { return m_process->hasQuit(); }
    /// Lets seconds pass, a tick in each.
    void tick(int seconds = 1) { computer.advance(std::chrono::seconds(seconds)); }

    /// The person; see simulator::Person.
    void type(const char* field, const QString& text) { person.type(field, text); }
    void press(const char* button) { person.press(button); }
    void press(const char* button, const std::function<void()>& inDialog) {
        person.press(button, inDialog);
    }
    [[nodiscard]] QString text(const char* control) const { return person.text(control); }
    [[nodiscard]] bool isEnabled(const char* control) const { return person.isEnabled(control); }
    [[nodiscard]] bool isChecked(const char* button) const { return person.isChecked(button); }
    /// A control of any window, also one that nobody sees at the moment.
    template <typename Control = QWidget>
    [[nodiscard]] Control* control(const char* name) const {
        for (const QWidget* const window : QApplication::topLevelWidgets()) {
            if (auto* const found = window->findChild<Control*>(QString::fromLatin1(name))) {
                return found;
            }
        }
        throw std::invalid_argument(std::string("no window has a control ") + name);
    }
    /// The name of the window that is open; empty when none is.
    [[nodiscard]] std::string visibleWindow() const { return person.visibleWindowName(); }

    /// The texts of the alerts so far.
    [[nodiscard]] std::vector<QString> messages() const { return alerts.messages(); }
    /// The commands sent so far, by name and in order, without the tick's reading of the clock.
    [[nodiscard]] std::vector<std::string> commands() const;
    /// The runs of the disk tool so far.
    [[nodiscard]] std::vector<std::string> diskToolRuns() const;

    /// From now on the drives' answers to this request are changed on the way.
    void forge(std::uint8_t requestCode, ForgedReplies::Forgery forgery) {
        (*m_forgeries)[requestCode] = std::move(forgery);
    }
    void stopForging() { m_forgeries->clear(); }

    simulator::VirtualComputer computer;
    ScriptedAlerts alerts{computer.log};
    simulator::Person person;
    /// What goes wrong in the cables, of all drives together.
    std::shared_ptr<FaultPlan> plan = std::make_shared<FaultPlan>();

private:
    std::shared_ptr<ForgedReplies::Forgeries> m_forgeries =
        std::make_shared<ForgedReplies::Forgeries>();
    std::unique_ptr<simulator::UtilityProcess> m_process;
};

} // namespace zelto::test
