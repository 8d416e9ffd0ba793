#pragma once

#include "ui/RadioMatrix.h"
#include "ui/Window.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>
#include <QObject>

/// How a control is connected to the controller's operation. Only what the user does counts: a
/// control that is set by the program stays silent.
namespace zelto::outlets {

template <typename Delegate>
using Action = void (Delegate::*)();

template <typename Delegate>
void onClick(QAbstractButton* button, Delegate* delegate, Action<Delegate> action) {
    QObject::connect(button, &QAbstractButton::clicked, button,
                     [delegate, action] { (delegate->*action)(); });
}

template <typename Delegate>
void onChoice(QComboBox* list, Delegate* delegate, Action<Delegate> action) {
    QObject::connect(list, &QComboBox::activated, list,
                     [delegate, action] { (delegate->*action)(); });
}

template <typename Delegate>
void onClose(Window& window, Delegate* delegate, Action<Delegate> action) {
    QObject::connect(&window, &Window::closeRequested, &window,
                     [delegate, action] { (delegate->*action)(); });
}

template <typename Delegate>
void onEdit(QLineEdit* field, Delegate* delegate, Action<Delegate> action) {
    QObject::connect(field, &QLineEdit::textEdited, field,
                     [delegate, action] { (delegate->*action)(); });
}

/// One operation for the cell with tag 0, another for the other one.
template <typename Delegate>
void onCell(RadioMatrix* matrix, Delegate* delegate, Action<Delegate> firstCell,
            Action<Delegate> secondCell) {
    QObject::connect(matrix, &RadioMatrix::cellActivated, matrix,
                     [delegate, firstCell, secondCell](int tag) {
                         (delegate->*(tag == 0 ? firstCell : secondCell))();
                     });
}

} // namespace zelto::outlets
