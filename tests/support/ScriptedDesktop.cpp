#include "tests/support/ScriptedDesktop.h"

#include <utility>

namespace zelto::test {

Desktop::Hold ScriptedDesktop::keepAwake(const std::string& /*why*/) {
    ++m_holds;
    return {this, [](void* desktop) { --static_cast<ScriptedDesktop*>(desktop)->m_holds; }};
}

void ScriptedDesktop::takePlace(std::function<void()> giveWay) {
    m_giveWay = std::move(giveWay);
    m_givesWay = false;
}

void ScriptedDesktop::setSessionEndHandler(std::function<bool()> mayEnd) {
    m_mayEnd = std::move(mayEnd);
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

void ScriptedDesktop::endProcess() {
    m_giveWay = nullptr;
    m_mayEnd = nullptr;
    m_givesWay = false;
}

} // namespace zelto::test
