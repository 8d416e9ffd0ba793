#pragma once

namespace zelto::linux_platform {

/// From now on a change of a control's name or description is told on the accessibility bus with
/// its new text. Qt before 6.6 names the control there instead, which no screen reader can say.
void tellChangesInWords();

} // namespace zelto::linux_platform
