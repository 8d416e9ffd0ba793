#pragma once

#include "ui/AlertPresenter.h"

#include <deque>
#include <functional>
#include <vector>

class QWidget;

namespace zelto::simulator {

/// The utility's real alerts, closed by a story instead of a person.
class StoryAlerts : public Alerts {
public:
    AlertButton NSRunAlertPanel(const AlertPanel& panel) override;

    /// What the next alert without an answer is closed with; by default its default button.
    void answer(AlertButton button) { m_answers.push_back(button); }
    /// Called with each alert while it is on the screen.
    void setWhileOpen(std::function<void(QWidget&)> look) { m_whileOpen = std::move(look); }

    /// The alerts since the last call, which forgets them.
    [[nodiscard]] std::vector<AlertPanel> takePanels() { return std::exchange(m_panels, {}); }

private:
    void close(const AlertPanel& panel, AlertButton button) const;

    AlertPresenter m_presenter;
    std::deque<AlertButton> m_answers;
    std::vector<AlertPanel> m_panels;
    std::function<void(QWidget&)> m_whileOpen;
};

} // namespace zelto::simulator
