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
    void takePlace(const std::function<void()>& giveWay) override;
    void giveWayToNewStart() override { m_givesWay = true; }
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

    /// The user starts the program once more. True when the running copy has given way.
    bool startAgain();
    /// The user logs out. True when the program lets the session end.
    [[nodiscard]] bool endSession() const;

private:
    int m_holds = 0;
    bool m_givesWay = false;
    bool m_opensNothing = false;
    std::vector<std::filesystem::path> m_opened;
    std::function<void()> m_giveWay;
    std::function<bool()> m_mayEnd;
};

} // namespace zelto::test
