#pragma once

#include "ui/Forms.h"

#include <functional>
#include <memory>
#include <ostream>
#include <vector>

namespace zelto::test {

/// One of the program's windows, by its name.
struct FormUnderTest {
    const char* name;
    std::function<std::unique_ptr<Window>()> create;
};

inline std::ostream& operator<<(std::ostream& stream, const FormUnderTest& form) {
    return stream << form.name;
}

template <typename Layout>
std::unique_ptr<Window> createForm() {
    return std::make_unique<Form<Layout>>();
}

inline std::vector<FormUnderTest> allForms() {
    return {
        {"SelectZeltoWindow", createForm<Ui::SelectZeltoWindow>},
        {"DeviceRuleWindow", createForm<Ui::DeviceRuleWindow>},
        {"AuthenticateWindow", createForm<Ui::AuthenticateWindow>},
        {"UnlockedWindow", createForm<Ui::UnlockedWindow>},
        {"UnlockingWindow", createForm<Ui::UnlockingWindow>},
        {"ZeltoSettingWindow", createForm<Ui::ZeltoSettingWindow>},
        {"MainSettingsWindow", createForm<Ui::MainSettingsWindow>},
        {"AreaSettingsWindow", createForm<Ui::AreaSettingsWindow>},
        {"PasswordSettingsWindow", createForm<Ui::PasswordSettingsWindow>},
        {"PasswordChangeWindow", createForm<Ui::PasswordChangeWindow>},
        {"EncryptionKeyWindow", createForm<Ui::EncryptionKeyWindow>},
    };
}

} // namespace zelto::test
