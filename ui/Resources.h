#pragma once

namespace zelto {

/// Makes the icons and the texts that are linked into the program known to Qt. A static library's
/// resources are otherwise dropped by the linker. May be called any number of times.
void initResources();

} // namespace zelto
