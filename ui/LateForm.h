#pragma once

#include "ui/Window.h"

#include <functional>
#include <memory>
#include <utility>

namespace zelto {

/// A form's window that is built when it is first used: whoever waits for the first window does not
/// wait for all of them.
template <typename Layout>
class LateForm {
public:
    /// Is handed the window, once, when it has been built.
    void whenBuilt(std::function<void(Form<Layout>&)> prepare) { m_prepare = std::move(prepare); }

    [[nodiscard]] bool isBuilt() const { return m_form != nullptr; }
    [[nodiscard]] bool isInUse() const { return isBuilt() && m_form->isInUse(); }

    [[nodiscard]] Form<Layout>& operator*() const {
        if (!isBuilt()) {
            m_form = std::make_unique<Form<Layout>>();
            if (m_prepare) {
                m_prepare(*m_form);
            }
        }
        return *m_form;
    }
    [[nodiscard]] Form<Layout>* operator->() const { return &**this; }

private:
    std::function<void(Form<Layout>&)> m_prepare;
    mutable std::unique_ptr<Form<Layout>> m_form;
};

} // namespace zelto
