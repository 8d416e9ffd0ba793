#include "tests/system/driver/ZeltoTestDriver.h"

#include <QAbstractButton>
#include <QAbstractItemModel>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QGuiApplication>
#include <QJsonArray>
#include <QJsonObject>
#include <QKeyEvent>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPixmap>
#include <QPointer>
#include <QScreen>
#include <QTimer>
#include <QWidget>
#include <QWindow>

#include <functional>

// The door that window-system plug-ins hand their events in by, as Qt's own test library uses it.
// It is exported without a header.
Q_GUI_EXPORT void qt_handleMouseEvent(QWindow* window, const QPointF& local, const QPointF& global,
                                      Qt::MouseButtons state, Qt::MouseButton button,
                                      QEvent::Type type, Qt::KeyboardModifiers modifiers,
                                      int timestamp);
Q_GUI_EXPORT void qt_handleKeyEvent(QWindow* window, QEvent::Type type, int key,
                                    Qt::KeyboardModifiers modifiers, const QString& text,
                                    bool autoRepeat, ushort count);

namespace zelto::test {
namespace {

QJsonObject error(const QString& what) {
    return {{QStringLiteral("error"), what}};
}

/// Notices whether keys still arrive.
class Ear : public QWidget {
public:
    [[nodiscard]] bool hears() {
        m_heard = false;
        QKeyEvent nothing(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier);
        QCoreApplication::sendEvent(this, &nothing);
        return m_heard;
    }

protected:
    void keyPressEvent(QKeyEvent* /*event*/) override { m_heard = true; }

private:
    bool m_heard = false;
};

/// The program is at work and lets its windows take no input; what came now would be lost.
bool isDeaf() {
    Ear ear;
    return !ear.hears();
}

/// After the answer has left, and not while the program is deaf.
void later(std::function<void()> action, int delayMilliseconds = 0) {
    QTimer::singleShot(delayMilliseconds, qApp, [action = std::move(action)] {
        if (isDeaf()) {
            constexpr int TryAgainAfter = 50;
            later(action, TryAgainAfter);
        } else {
            action();
        }
    });
}

QList<QWidget*> visibleWindows() {
    QList<QWidget*> windows;
    const auto topLevels = QApplication::topLevelWidgets();
    for (QWidget* widget : topLevels) {
        if (widget->isVisible() && widget->isWindow()) {
            windows.append(widget);
        }
    }
    return windows;
}

/// The window in front first, as a dialog may use a name again.
QWidget* findWidget(const QString& name) {
    QList<QWidget*> windows = visibleWindows();
    if (QWidget* front = QApplication::activeModalWidget()) {
        windows.removeAll(front);
        windows.prepend(front);
    }
    for (QWidget* window : windows) {
        if (window->objectName() == name) {
            return window;
        }
        if (auto* widget = window->findChild<QWidget*>(name)) {
            return widget;
        }
    }
    return nullptr;
}

/// An accelerator's mark is not part of what a person reads.
QString readable(QString text) {
    text.replace(QLatin1String("&&"), QString(QChar::Null));
    text.remove(QLatin1Char('&'));
    return text.replace(QChar::Null, QLatin1Char('&'));
}

QString textOf(const QWidget& widget) {
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
        return label->text();
    }
    if (const auto* field = qobject_cast<const QLineEdit*>(&widget)) {
        return field->text();
    }
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
        return readable(button->text());
    }
    if (const auto* box = qobject_cast<const QComboBox*>(&widget)) {
        return box->currentText();
    }
    return widget.isWindow() ? widget.windowTitle() : QString();
}

QJsonArray rowsOf(const QAbstractItemModel& model) {
    QJsonArray rows;
    for (int row = 0; row < model.rowCount(); ++row) {
        QJsonArray cells;
        for (int column = 0; column < model.columnCount(); ++column) {
            cells.append(model.index(row, column).data().toString());
        }
        rows.append(cells);
    }
    return rows;
}

QJsonObject describe(const QWidget& widget) {
    QJsonObject description{
        {QStringLiteral("name"), widget.objectName()},
        {QStringLiteral("class"), QString::fromLatin1(widget.metaObject()->className())},
        {QStringLiteral("visible"), widget.isVisible()},
        {QStringLiteral("enabled"), widget.isEnabled()},
        {QStringLiteral("focus"), widget.hasFocus()},
        {QStringLiteral("text"), textOf(widget)},
    };
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
        description.insert(QStringLiteral("checked"), button->isChecked());
    }
    if (const auto* box = qobject_cast<const QComboBox*>(&widget)) {
        description.insert(QStringLiteral("rows"), rowsOf(*box->model()));
        description.insert(QStringLiteral("index"), box->currentIndex());
    }
    if (const auto* view = qobject_cast<const QAbstractItemView*>(&widget)) {
        description.insert(QStringLiteral("rows"), rowsOf(*view->model()));
    }
    return description;
}

QJsonObject describeWindow(const QWidget& window) {
    QJsonObject description = describe(window);
    description.insert(QStringLiteral("modal"), window.isModal());
    if (const auto* alert = qobject_cast<const QMessageBox*>(&window)) {
        description.insert(QStringLiteral("message"), alert->text());
        description.insert(QStringLiteral("detail"), alert->informativeText());
        QJsonArray buttons;
        const auto all = alert->buttons();
        for (const QAbstractButton* button : all) {
            buttons.append(readable(button->text()));
        }
        description.insert(QStringLiteral("buttons"), buttons);
    }
    return description;
}

/// Empty when a person could click there.
QString obstacle(const QWidget& widget) {
    const QWidget* modal = QApplication::activeModalWidget();
    if (!widget.isVisible()) {
        return QStringLiteral("%1 is not visible").arg(widget.objectName());
    }
    if (!widget.isEnabled()) {
        return QStringLiteral("%1 is disabled").arg(widget.objectName());
    }
    if (modal != nullptr && modal != widget.window()) {
        return QStringLiteral("%1 is behind the dialog %2 (%3)")
            .arg(widget.objectName(), modal->objectName(), textOf(*modal));
    }
    if (isDeaf()) {
        return QStringLiteral("the program takes no input now");
    }
    return {};
}

/// A radio button or a check box takes clicks on its indicator and text only, and both stand at
/// the left of a wide control.
QPoint clickPoint(const QWidget& widget) {
    const QPoint middle = widget.rect().center();
    if (qobject_cast<const QAbstractButton*>(&widget) != nullptr &&
        static_cast<const QAbstractButton&>(widget).isCheckable()) {
        return {qMin(middle.x(), 8), middle.y()};
    }
    return middle;
}

void click(QWidget& widget) {
    QWindow* window = widget.window()->windowHandle();
    const QPoint point = clickPoint(widget);
    const QPointF local = widget.mapTo(widget.window(), point);
    const QPointF global = widget.mapToGlobal(point);
    qt_handleMouseEvent(window, local, global, Qt::LeftButton, Qt::LeftButton,
                        QEvent::MouseButtonPress, Qt::NoModifier, 0);
    qt_handleMouseEvent(window, local, global, Qt::NoButton, Qt::LeftButton,
                        QEvent::MouseButtonRelease, Qt::NoModifier, 0);
}

void press(QWindow* window, int key, Qt::KeyboardModifiers modifiers, const QString& text) {
    qt_handleKeyEvent(window, QEvent::KeyPress, key, modifiers, text, false, 1);
    qt_handleKeyEvent(window, QEvent::KeyRelease, key, modifiers, text, false, 1);
}

void typeText(QWidget& field, const QString& text) {
    QWindow* window = field.window()->windowHandle();
    // A click gives the focus only in a window that has it; there is no window manager here that
    // would hand it over.
    field.window()->activateWindow();
    click(field);
    field.setFocus(Qt::MouseFocusReason);
    press(window, Qt::Key_A, Qt::ControlModifier, QString());
    press(window, Qt::Key_Delete, Qt::NoModifier, QString());
    for (const QChar character : text) {
        const bool isUpper = character.isUpper();
        press(window, character.toUpper().unicode(), isUpper ? Qt::ShiftModifier : Qt::NoModifier,
              character);
    }
}

/// One character more, so that no request ever holds the whole of a secret.
/// Not done until the display has given the window the keyboard.
QJsonObject answerFocus(QWidget& widget) {
    widget.window()->activateWindow();
    widget.setFocus(Qt::TabFocusReason);
    return widget.hasFocus() ? QJsonObject() : error(QStringLiteral("it has no focus yet"));
}

void typeLetter(const QWidget& field, QChar letter) {
    press(field.window()->windowHandle(), letter.toUpper().unicode(),
          letter.isUpper() ? Qt::ShiftModifier : Qt::NoModifier, letter);
}

QJsonObject answerWindows() {
    QJsonArray windows;
    const auto all = visibleWindows();
    for (const QWidget* window : all) {
        windows.append(describeWindow(*window));
    }
    return {{QStringLiteral("windows"), windows}};
}

QJsonObject answerAlert(const QString& buttonText) {
    auto* alert = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (alert == nullptr) {
        return error(QStringLiteral("no alert is up"));
    }
    const auto buttons = alert->buttons();
    for (QAbstractButton* button : buttons) {
        if (readable(button->text()) == buttonText) {
            later([target = QPointer(button)] {
                if (target) {
                    click(*target);
                }
            });
            return {};
        }
    }
    return error(QStringLiteral("the alert has no button %1").arg(buttonText));
}

QJsonObject answerPress(const QString& keyName) {
    const QKeySequence sequence(keyName);
    QWidget* window = QApplication::activeModalWidget();
    if (window == nullptr) {
        window = QApplication::activeWindow();
    }
    if (sequence.isEmpty() || window == nullptr) {
        return error(QStringLiteral("no such key, or no window to press it in"));
    }
    const QKeyCombination combination = sequence[0];
    later([handle = QPointer(window->windowHandle()), combination] {
        if (handle) {
            press(handle, combination.key(), combination.keyboardModifiers(), QString());
        }
    });
    return {};
}

QJsonObject answerChoose(QWidget& widget, int index) {
    auto* box = qobject_cast<QComboBox*>(&widget);
    if (box == nullptr || index < 0 || index >= box->count()) {
        return error(QStringLiteral("%1 has no item %2").arg(widget.objectName()).arg(index));
    }
    later([target = QPointer(box), index] {
        if (!target) {
            return;
        }
        target->setFocus(Qt::TabFocusReason);
        press(target->window()->windowHandle(), Qt::Key_Home, Qt::NoModifier, QString());
        for (int step = 0; step < index; ++step) {
            press(target->window()->windowHandle(), Qt::Key_Down, Qt::NoModifier, QString());
        }
    });
    return {};
}

QJsonObject answerPicture(const QString& file) {
    const QPixmap picture = QGuiApplication::primaryScreen()->grabWindow(0);
    return picture.save(file, "PNG") ? QJsonObject()
                                     : error(QStringLiteral("cannot write %1").arg(file));
}

QJsonObject answerForWidget(const QString& verb, QWidget& widget, const QJsonObject& request) {
    if (verb == QLatin1String("look")) {
        return describe(widget);
    }
    if (const QString why = obstacle(widget); !why.isEmpty()) {
        return error(why);
    }
    if (verb == QLatin1String("click")) {
        later([target = QPointer(&widget)] {
            if (target) {
                click(*target);
            }
        });
        return {};
    }
    if (verb == QLatin1String("type")) {
        typeText(widget, request.value(QLatin1String("text")).toString());
        return {};
    }
    if (verb == QLatin1String("focus")) {
        return answerFocus(widget);
    }
    if (verb == QLatin1String("letter")) {
        const QString text = request.value(QLatin1String("text")).toString();
        if (text.size() != 1) {
            return error(QStringLiteral("that is not one letter"));
        }
        typeLetter(widget, text.front());
        return {};
    }
    if (verb == QLatin1String("choose")) {
        return answerChoose(widget, request.value(QLatin1String("index")).toInt(-1));
    }
    return error(QStringLiteral("unknown request %1").arg(verb));
}

} // namespace

QJsonObject answer(const QJsonObject& request) {
    const QString verb = request.value(QLatin1String("do")).toString();
    if (verb == QLatin1String("windows")) {
        return answerWindows();
    }
    if (verb == QLatin1String("answer")) {
        return answerAlert(request.value(QLatin1String("button")).toString());
    }
    if (verb == QLatin1String("press")) {
        return answerPress(request.value(QLatin1String("key")).toString());
    }
    if (verb == QLatin1String("picture")) {
        return answerPicture(request.value(QLatin1String("file")).toString());
    }
    const QString name = request.value(QLatin1String("widget")).toString();
    QWidget* widget = findWidget(name);
    return widget != nullptr ? answerForWidget(verb, *widget, request)
                             : error(QStringLiteral("no visible window has %1").arg(name));
}

} // namespace zelto::test
