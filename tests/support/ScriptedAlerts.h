#pragma once

#include "platform/Alerts.h"
#include "simulator/computer/EventLog.h"

#include <deque>
#include <functional>
#include <vector>

namespace zelto::test {

/// A user who answers alerts as written down beforehand. Every panel is recorded; one that nobody
/// wrote an answer for is closed with its default button.
class ScriptedAlerts : public Alerts {
public:
    using WhileOpen = std::function<void(const AlertPanel&)>;

    explicit ScriptedAlerts(simulator::EventLog& log) : m_log(log) {}

    AlertButton NSRunAlertPanel(const AlertPanel& panel) override;

    /// The answer to the next panel that has none yet. `whileOpen` runs while the panel is on the
    /// screen: the moment for a tick, an arrival or a pulled plug inside an alert.
    void answer(AlertButton button, WhileOpen whileOpen = {});
    /// Runs for every panel while it is open, before the answer's own.
    void setWhileOpen(WhileOpen whileOpen) { m_whileOpen = std::move(whileOpen); }

    /// What is expected of every panel; looked at before anything else happens to it.
    void setExpectation(WhileOpen expect) { m_expect = std::move(expect); }

    [[nodiscard]] const std::vector<AlertPanel>& panels() const { return m_panels; }
    [[nodiscard]] std::vector<QString> messages() const;
    /// Panels open at this moment; more than one is a nested alert.
    [[nodiscard]] int open() const { return m_open; }
    void clear();

private:
    struct Answer {
        AlertButton button = AlertButton::Default;
        WhileOpen whileOpen;
    };

    simulator::EventLog& m_log;
    std::vector<AlertPanel> m_panels;
    std::deque<Answer> m_answers;
    WhileOpen m_whileOpen;
    WhileOpen m_expect;
    int m_open = 0;
};

} // namespace zelto::test
