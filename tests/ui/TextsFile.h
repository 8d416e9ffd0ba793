#pragma once

#include <QString>

#include <map>

namespace zelto::test {

/// One message of a file of texts.
struct TextMessage {
    QString source;
    QString translation;
    bool isFinished = false;
};

/// The messages of ui/texts/zelto_LANGUAGE.ts by their ids; none when it cannot be read.
[[nodiscard]] std::map<QString, TextMessage> textsOf(const QString& language);

/// The ids of all texts that the program's sources use, each with the English text that a form
/// shows for it in the designer; with an empty one where only code uses it.
[[nodiscard]] std::map<QString, QString> usedTexts();

} // namespace zelto::test
