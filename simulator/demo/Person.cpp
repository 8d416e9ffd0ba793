#include "simulator/demo/Person.h"

#include "ui/SecretField.h"
#include "ui/Window.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTimer>

namespace zelto::simulator {

Window* Person::visibleWindow() const {
    if (auto* const modal = qobject_cast<Window*>(QApplication::activeModalWidget())) {
        return modal;
    }
    Window* found = nullptr;
    for (QWidget* const widget : QApplication::topLevelWidgets()) {
        auto* const window = qobject_cast<Window*>(widget);
        if (window == nullptr || !window->isVisible()) {
            continue;
        }
        if (found != nullptr) {
            m_complain("two windows are open: " + found->objectName().toStdString() + " and " +
                       window->objectName().toStdString());
            return nullptr;
        }
        found = window;
    }
    return found;
}

std::string Person::visibleWindowName() const {
    const Window* const window = visibleWindow();
    return window != nullptr ? window->objectName().toStdString() : std::string();
}

QWidget* Person::find(const char* name) const {
    const Window* const window = visibleWindow();
    auto* const control =
        window != nullptr ? window->findChild<QWidget*>(QString::fromLatin1(name)) : nullptr;
    if (control == nullptr) {
        m_complain(std::string("no control ") + name + " in window \"" + visibleWindowName() +
                   "\"");
    }
    return control;
}

QWidget* Person::usable(const char* name) const {
    QWidget* const control = find(name);
    if (control == nullptr) {
        return nullptr;
    }
    if (!control->isVisible() || !control->isEnabled()) {
        m_complain(std::string(name) + (control->isVisible() ? " is disabled" : " is hidden"));
        return nullptr;
    }
    return control;
}

void Person::press(const char* button) {
    QWidget* const control = usable(button);
    if (auto* const found = qobject_cast<QAbstractButton*>(control)) {
        found->setFocus(Qt::MouseFocusReason);
        found->click();
    } else if (control != nullptr) {
        m_complain(std::string(button) + " is no button");
    }
}

void Person::actInDialog(const std::function<void()>& action, const QWidget* before) const {
    QWidget* const dialog = QApplication::activeModalWidget();
    if (dialog == before) {
        m_complain("no dialog has opened");
        return;
    }
    action();
    if (auto* const left = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        left != nullptr && left == dialog && left->isVisible()) {
        m_complain(left->objectName().toStdString() + " was left open");
        left->reject();
    }
}

void Person::press(const char* button, const std::function<void()>& inDialog) {
    const QWidget* const before = QApplication::activeModalWidget();
    QTimer opened;
    opened.setSingleShot(true);
    bool acted = false;
    // Due at once, but run by the dialog's own loop: nothing else runs one before it.
    QObject::connect(&opened, &QTimer::timeout, [&] {
        acted = true;
        actInDialog(inDialog, before);
    });
    opened.start(0);
    press(button);
    if (!acted) {
        m_complain(std::string(button) + " has opened no dialog");
    }
}

void Person::type(const char* field, const QString& text) {
    QWidget* const control = usable(field);
    auto* const line = qobject_cast<QLineEdit*>(control);
    if (line == nullptr || line->isReadOnly()) {
        if (control != nullptr) {
            m_complain(std::string(field) + " takes no text");
        }
        return;
    }
    line->setFocus(Qt::MouseFocusReason);
    line->selectAll();
    if (text.isEmpty()) {
        QKeyEvent key(QEvent::KeyPress, Qt::Key_Delete, Qt::NoModifier);
        QApplication::sendEvent(line, &key);
        return;
    }
    QInputMethodEvent typed;
    typed.setCommitString(text);
    QApplication::sendEvent(line, &typed);
}

void Person::choose(const char* comboBox, int index) {
    QWidget* const control = usable(comboBox);
    if (auto* const box = qobject_cast<QComboBox*>(control)) {
        box->setCurrentIndex(index);
        Q_EMIT box->activated(index);
    } else if (control != nullptr) {
        m_complain(std::string(comboBox) + " is no combo box");
    }
}

QString Person::text(const char* control) const {
    const QWidget* const found = find(control);
    if (const auto* const secret = qobject_cast<const SecretField*>(found)) {
        return secret->secret().toString();
    }
    if (const auto* const box = qobject_cast<const QComboBox*>(found)) {
        return box->currentText();
    }
    return found != nullptr ? found->property("text").toString() : QString();
}

bool Person::isEnabled(const char* control) const {
    const QWidget* const found = find(control);
    return found != nullptr && found->isEnabled();
}

bool Person::isChecked(const char* button) const {
    const auto* const found = qobject_cast<const QAbstractButton*>(find(button));
    return found != nullptr && found->isChecked();
}

} // namespace zelto::simulator
