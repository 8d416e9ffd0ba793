#pragma once

#include "platform/Alerts.h"

namespace zelto::test {

/// Fails the test when a panel looks more or less serious than what it says.
void expectWeightOfWords(const AlertPanel& panel);

} // namespace zelto::test
