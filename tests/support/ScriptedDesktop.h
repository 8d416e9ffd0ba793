#pragma once

#include "platform/Desktop.h"

#include <functional>
#include <string>
#include <vector>

namespace zelto::test {

/// A desktop session with one program in it. It counts what keeps the computer awake; a new start
/// and the session's end are told by whoever plays the world.
class ScriptedDesktop : public Desktop {
public:
    [[nodiscard]] Hold keepAwake(const std::string& why) override;
    [[nodiscard]] bool takePlace(const LaterStart& later) override;
    void giveWayToNewStart() override { m_givesWay = true; }
    void bringOtherForward() override { ++m_othersForward; }
    void leaveNotice(const Notice& notice) override { m_notices.push_back(notice); }
    [[nodiscard]] bool openDocument(const std::filesystem::path& file) override;
    void setSessionEndHandler(const std::function<bool()>& mayEnd) override;

    /// Something keeps the computer awake.
    [[nodiscard]] bool isKeptAwake() const { return m_holds > 0; }

    /// The files that were shown so far.
    [[nodiscard]] const std::vector<std::filesystem::path>& openedDocuments() const {
        return m_opened;
    }
    /// The user has no program for any file.
    void setOpensNothing() { m_opensNothing = true; }

    /// The user starts the program once more. True when the running copy has given way; otherwise
    /// it has been asked to come forward.
    bool startAgain();
    /// The user asks for the manual where the program is started, in the menu say.
    void askForManual() { m_later.showManual(); }
    /// Another copy has the session's place, and a window.
    void setOtherRuns() { m_otherRuns = true; }
    /// How often the other copy was asked to come forward.
    [[nodiscard]] int othersForward() const { return m_othersForward; }

    /// The notices left so far.
    [[nodiscard]] const std::vector<Notice>& notices() const { return m_notices; }

    /// The user logs out. True when the program lets the session end.
    [[nodiscard]] bool endSession() const;

private:
    int m_holds = 0;
    bool m_givesWay = false;
    bool m_opensNothing = false;
    std::vector<std::filesystem::path> m_opened;
    bool m_otherRuns = false;
    int m_othersForward = 0;
    std::vector<Notice> m_notices;
    LaterStart m_later;
    std::function<bool()> m_mayEnd;
};

} // namespace zelto::test
