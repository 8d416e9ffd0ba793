#include "ui/Description.h"

#include <QLabel>
#include <QStringList>

#include <algorithm>
#include <utility>
#include <vector>

namespace zelto {
namespace {

/// Everything that is said about one control, kept with it.
class Description : public QObject {
public:
    explicit Description(QWidget& control)
        : QObject(&control), m_control(control), m_own(control.accessibleDescription()) {
        setObjectName(Name);
    }

    static Description* find(const QWidget& control) {
        return static_cast<Description*>(
            control.findChild<QObject*>(Name, Qt::FindDirectChildrenOnly));
    }

    void say(const QObject& speaker, const QString& words) {
        std::erase_if(m_said, [&](const auto& said) { return said.first == &speaker; });
        if (!words.isEmpty()) {
            m_said.emplace_back(&speaker, words);
        }
        QStringList parts;
        if (!m_own.isEmpty()) {
            parts += m_own;
        }
        for (const auto& said : m_said) {
            parts += said.second;
        }
        // Each a sentence of its own, in any language.
        const QString whole = parts.join(u'\n');
        if (whole != m_control.accessibleDescription()) {
            m_control.setAccessibleDescription(whole);
        }
    }

private:
    static inline const QString Name = QStringLiteral("zelto_description");

    QWidget& m_control;
    QString m_own;
    std::vector<std::pair<const QObject*, QString>> m_said;
};

} // namespace

void describe(QWidget& control, const QObject& speaker, const QString& words) {
    Description* description = Description::find(control);
    if (description == nullptr) {
        description = new Description(control);
    }
    description->say(speaker, words);
}

void sayBesideFocus(QLabel& line, const QString& words) {
    line.setText(words);
    QWidget* const focused = line.window()->focusWidget();
    for (QWidget* const control : line.window()->findChildren<QWidget*>()) {
        if (control != focused && Description::find(*control) != nullptr) {
            describe(*control, line, {});
        }
    }
    if (focused != nullptr) {
        describe(*focused, line, words);
    }
}

void showValue(QLabel& label, const QString& value) {
    label.setText(value);
    // What blinks is not told anew each time.
    if (!value.isEmpty() && value != label.accessibleDescription()) {
        label.setAccessibleDescription(value);
    }
}

} // namespace zelto
