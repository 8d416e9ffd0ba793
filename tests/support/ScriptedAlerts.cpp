#include "tests/support/ScriptedAlerts.h"

namespace zelto::test {

AlertButton ScriptedAlerts::NSRunAlertPanel(const AlertPanel& panel) {
    m_log.note(simulator::LogLine::Kind::Alert, "alert: " + panel.message.toStdString());
    m_panels.push_back(panel);
    Answer answer;
    if (!m_answers.empty()) {
        answer = std::move(m_answers.front());
        m_answers.pop_front();
    }
    ++m_open;
    for (const WhileOpen& happening : {m_expect, m_whileOpen, answer.whileOpen}) {
        if (happening) {
            happening(panel);
        }
    }
    --m_open;
    return answer.button;
}

void ScriptedAlerts::answer(AlertButton button, WhileOpen whileOpen) {
    m_answers.push_back({button, std::move(whileOpen)});
}

std::vector<QString> ScriptedAlerts::messages() const {
    std::vector<QString> texts;
    for (const AlertPanel& panel : m_panels) {
        texts.push_back(panel.message);
    }
    return texts;
}

void ScriptedAlerts::clear() {
    m_panels.clear();
    m_answers.clear();
}

} // namespace zelto::test
