#pragma once

#include <QObject>
#include <QString>

class QLabel;
class QWidget;

/// What assistive technology is told beside the names of the controls. A reader says a control's
/// description when the control gets the focus, and again when it changes meanwhile: that is how a
/// hint is heard that appears under the user's hands.
namespace zelto {

/// `speaker` says this about the control, instead of what it said before; an empty text takes it
/// back. The form's own description of the control stays in front of what speakers add.
void describe(QWidget& control, const QObject& speaker, const QString& words);

/// Shows `words` in `line`, which says them about the control that has the focus in its window, and
/// no longer about the one that had it before.
void sayBesideFocus(QLabel& line, const QString& words);

/// Shows a value in a label that has a name of its own: a reader says the name, then the value.
void showValue(QLabel& label, const QString& value);

} // namespace zelto
