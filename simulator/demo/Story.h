#pragma once

#include "simulator/computer/PreparedDrive.h"
#include "simulator/demo/Person.h"
#include "simulator/demo/StoryAlerts.h"
#include "simulator/demo/UtilityProcess.h"

#include <filesystem>
#include <memory>
#include <string>

namespace zelto::simulator {

/// A story that plays by itself: the utility on a virtual computer, a person at its windows, and a
/// narrator who prints every step as a numbered sentence with what was checked, and takes
/// pictures.
class Story {
public:
    /// Pictures go to the folder, their names beginning with the story's; an empty path: none are
    /// taken.
    Story(std::string name, std::filesystem::path pictures);

    void chapter(const std::string& title) const;
    /// The next numbered sentence.
    void tell(const std::string& sentence);
    /// Prints what was checked; a check that fails makes the whole story fail.
    void check(const std::string& what, bool holds);
    /// A picture of the window that is open.
    void picture(const std::string& name);
    [[nodiscard]] bool hasFailed() const { return m_failures > 0; }

    /// Starts the utility anew.
    void startUtility();
    /// Ends it if it still runs.
    void endUtility() { m_utility.reset(); }
    [[nodiscard]] bool utilityHasQuit() const { return !m_utility || m_utility->hasQuit(); }
    void tick(int seconds) { computer.advance(std::chrono::seconds(seconds)); }

    /// Checks that exactly one alert has been shown since the last call, with this text.
    void checkAlert(const char* key);
    void checkNoAlert();
    void checkWindow(const std::string& name);
    void checkState(const std::string& what, DriveOnBus& drive, SecurityState state);
    /// The disk that a unit's medium is; null without one.
    [[nodiscard]] const VirtualDisk* diskOfUnit(const std::string& unitName) const;
    /// Types a password into the log-in window and submits it.
    void submitPassword(const QString& password);

    VirtualComputer computer;
    StoryAlerts alerts;
    Person person;

private:
    void save(QWidget& window, const std::string& name);

    std::string m_name;
    std::filesystem::path m_pictures;
    std::unique_ptr<UtilityProcess> m_utility;
    int m_sentence = 0;
    int m_picture = 0;
    int m_failures = 0;
};

/// A user logs in to a drive and logs off again; then the clock, and the drive that has expired.
void playLogInStory(Story& story);
/// A new drive is set up, logged in to, changed, erased, cleared and set up anew.
void playSetUpStory(Story& story);

} // namespace zelto::simulator
