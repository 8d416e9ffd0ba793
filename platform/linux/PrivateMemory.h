#pragma once

namespace zelto::linux_platform {

/// Keeps what this process knows to itself: a crash leaves no core file, and no other program of
/// the same user may read or trace it. To be called before the first secret is there, and before
/// the toolkit starts. What is started from here has no core files either.
void keepMemoryPrivate();

} // namespace zelto::linux_platform
