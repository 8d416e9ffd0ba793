#pragma once

#include "simulator/computer/PreparedDrive.h"
#include "simulator/demo/UtilityProcess.h"
#include "ui/AlertPresenter.h"

#include <QObject>
#include <QTimer>

#include <functional>
#include <memory>

namespace zelto::simulator {

/// The virtual computer in real time, with the utility on it and one drive to try things on.
class DemoWorld : public QObject {
public:
    static constexpr const char* FirstPassword = "first";
    static constexpr const char* SecondPassword = "second";

    DemoWorld();
    DemoWorld(const DemoWorld&) = delete;
    DemoWorld& operator=(const DemoWorld&) = delete;
    ~DemoWorld() override;

    void startUtility();
    [[nodiscard]] bool utilityRuns() const { return m_utility != nullptr; }

    void plug() { m_computer.plug(m_drive); }
    void unplug() { m_computer.unplug(m_drive); }
    void replug() { m_computer.replug(m_drive); }
    [[nodiscard]] bool isPlugged() const { return m_computer.usb.isPlugged(m_drive); }
    /// Lets time go by at once, as while the computer sleeps.
    void skip(std::chrono::seconds duration);
    void loseClock();
    /// Keeps every mounted volume of the drive busy.
    void setVolumesBusy(bool busy);
    /// Puts another drive in the place of this one: a new one from its box, or one that asks for
    /// two passwords.
    void takeNewDrive();
    void takePreparedDrive();
    /// Types into the log-in window, if it is open.
    void typePassword(const char* password);

    [[nodiscard]] QString describe();
    /// Called when something has changed.
    void setListener(std::function<void()> changed) { m_changed = std::move(changed); }

private:
    void letASecondPass();
    void settleLater();
    void endUtilityWhenIdle();
    void exchange(std::shared_ptr<DriveOnBus> drive);
    void notify() const;

    VirtualComputer m_computer{
        std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now())};
    AlertPresenter m_alerts;
    std::shared_ptr<DriveOnBus> m_drive;
    std::unique_ptr<UtilityProcess> m_utility;
    QTimer m_second;
    std::function<void()> m_changed;
    int m_drivesMade = 0;
    bool m_volumesBusy = false;
};

} // namespace zelto::simulator
