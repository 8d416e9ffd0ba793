#include "simulator/computer/VirtualDesktop.h"

#include <utility>

namespace zelto::simulator {

Desktop::Hold VirtualDesktop::keepAwake(const std::string& why) {
    m_reasons.push_back(why);
    ++m_holds;
    return {this, [](void* desktop) { --static_cast<VirtualDesktop*>(desktop)->m_holds; }};
}

void VirtualDesktop::takePlace(std::function<void()> giveWay) {
    m_giveWay = std::move(giveWay);
    m_givesWay = false;
}

void VirtualDesktop::setSessionEndHandler(std::function<bool()> mayEnd) {
    m_mayEnd = std::move(mayEnd);
}

bool VirtualDesktop::startAgain() {
    if (!m_givesWay || !m_giveWay) {
        return false;
    }
    m_giveWay();
    return true;
}

bool VirtualDesktop::endSession() const {
    return !m_mayEnd || m_mayEnd();
}

void VirtualDesktop::endProcess() {
    m_giveWay = nullptr;
    m_mayEnd = nullptr;
    m_givesWay = false;
}

} // namespace zelto::simulator
