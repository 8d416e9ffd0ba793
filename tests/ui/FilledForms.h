#pragma once

#include "ui/Forms.h"

namespace zelto::test {

/// Puts into the form what it holds at the most: the longest of the texts that the controller shows
/// in each label, large areas, a full table. Nothing of it is hidden.
void fill(Window& form);

} // namespace zelto::test
