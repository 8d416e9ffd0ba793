#include "tests/support/ScriptedDesktop.h"

namespace zelto::test {

Desktop::Hold ScriptedDesktop::keepAwake(const std::string& /*why*/) {
    ++m_holds;
    return {this, [](void* desktop) { --static_cast<ScriptedDesktop*>(desktop)->m_holds; }};
}

bool ScriptedDesktop::takePlace(const LaterStart& later) {
    if (m_otherRuns) {
        ++m_othersForward;
        return false;
    }
    m_later = later;
    m_givesWay = false;
    return true;
}

bool ScriptedDesktop::openDocument(const std::filesystem::path& file) {
    m_opened.push_back(file);
    return !m_opensNothing;
}

void ScriptedDesktop::setSessionEndHandler(const std::function<bool()>& mayEnd) {
    m_mayEnd = mayEnd;
}

bool ScriptedDesktop::startAgain() {
    (m_givesWay ? m_later.giveWay : m_later.comeForward)();
    return m_givesWay;
}

bool ScriptedDesktop::endSession() const {
    return !m_mayEnd || m_mayEnd();
}

} // namespace zelto::test
