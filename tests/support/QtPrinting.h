#pragma once

#include <QString>

#include <ostream>

/// For failure messages, which would list a text's bytes otherwise. Beside the type, where the
/// test library looks for it.
inline void PrintTo(const QString& text, std::ostream* stream) {
    *stream << '"' << text.toStdString() << '"';
}
