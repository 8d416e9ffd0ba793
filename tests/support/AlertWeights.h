#pragma once

#include "platform/Alerts.h"

#include <span>

namespace zelto::test {

struct WeighedText {
    const char* key;
    AlertWeight weight;
};

/// Every text that is ever shown in an alert.
[[nodiscard]] std::span<const WeighedText> alertTexts();

/// As the controller words it, with something in each of the blanks.
[[nodiscard]] AlertPanel panelOf(const WeighedText& text);

/// Fails the test when a panel looks more or less serious than what it says.
void expectWeightOfWords(const AlertPanel& panel);

} // namespace zelto::test
