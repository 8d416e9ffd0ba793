#pragma once

#include <QString>

#include <functional>
#include <string>

class QWidget;

namespace zelto {
class Window;
}

namespace zelto::simulator {

/// Somebody in front of the utility's windows. Knows the controls by their names, and can only do
/// what a person could: what is hidden or disabled can be neither pressed nor typed into.
class Person {
public:
    /// Told in words what could not be done.
    using Complaint = std::function<void(const std::string&)>;

    explicit Person(Complaint complain) : m_complain(std::move(complain)) {}

    /// The utility's window that takes input: the open dialog, else the one that is visible. Null
    /// when none is, and when there is more than one to choose from.
    [[nodiscard]] Window* visibleWindow() const;
    /// That window's name; empty when there is none.
    [[nodiscard]] std::string visibleWindowName() const;

    /// Presses a button, a check box or a radio button.
    void press(const char* button);
    /// Presses a button that opens a modal dialog, and does something in it. The dialog must be
    /// closed by then; one that is not is cancelled, and that is complained about.
    void press(const char* button, const std::function<void()>& inDialog);
    /// Replaces what is in a field, as by marking everything and typing.
    void type(const char* field, const QString& text);
    void choose(const char* comboBox, int index);

    /// What a label, field, button or combo box shows.
    [[nodiscard]] QString text(const char* control) const;
    [[nodiscard]] bool isEnabled(const char* control) const;
    [[nodiscard]] bool isChecked(const char* button) const;

private:
    /// Null, after a complaint, when the window has no such control that is visible and enabled.
    [[nodiscard]] QWidget* usable(const char* name) const;
    [[nodiscard]] QWidget* find(const char* name) const;
    void actInDialog(const std::function<void()>& action, const QWidget* before) const;

    Complaint m_complain;
};

} // namespace zelto::simulator
