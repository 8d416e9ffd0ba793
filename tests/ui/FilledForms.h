#pragma once

#include "ui/Forms.h"

namespace zelto::test {

/// Puts into the form what it holds at the most: the longest of the texts that the controller shows
/// in each label, large areas, a full table. Nothing of it is hidden.
void fill(Window& form);

/// How many different texts the busiest label of the form shows at one time or another.
[[nodiscard]] int textsInTurn(const Window& form);
/// Puts into each label the text whose turn it is, 0 to textsInTurn() - 1.
void showText(Window& form, int turn);

} // namespace zelto::test
