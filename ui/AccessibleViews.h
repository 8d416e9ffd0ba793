#pragma once

namespace zelto {

/// Tells assistive technology what the program's own widgets are: the bar of areas a chart, the
/// steps of the set-up a progress bar, a matrix of radio buttons a group. Once is enough.
void installAccessibleViews();

} // namespace zelto
