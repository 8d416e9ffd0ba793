#include "tests/support/ScriptedDesktop.h"

namespace zelto::test {

Desktop::Hold ScriptedDesktop::keepAwake(const std::string& /*why*/) {
    ++m_holds;
    return {this, [](void* desktop) { --static_cast<ScriptedDesktop*>(desktop)->m_holds; }};
}

void ScriptedDesktop::takePlace(const std::function<void()>& giveWay) {
    m_giveWay = giveWay;
    m_givesWay = false;
}

bool ScriptedDesktop::openDocument(const std::filesystem::path& file) {
    m_opened.push_back(file);
    return !m_opensNothing;
}

void ScriptedDesktop::setSessionEndHandler(const std::function<bool()>& mayEnd) {
    m_mayEnd = mayEnd;
}

bool ScriptedDesktop::startAgain() {
    if (!m_givesWay || !m_giveWay) {
        return false;
    }
    m_giveWay();
    return true;
}

bool ScriptedDesktop::endSession() const {
    return !m_mayEnd || m_mayEnd();
}

} // namespace zelto::test
