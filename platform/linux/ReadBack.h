#pragma once

namespace zelto::linux_platform {

/// Whether an open file holds, on its medium, the same bytes as another: what the system still
/// remembers of writing it is dropped first, so that it is read from the medium again. The file
/// must have been flushed (fsync(2)) before. Both are read from their beginnings; their positions
/// are somewhere else afterwards. False also when either cannot be read. Blocks.
[[nodiscard]] bool readsBackAs(int written, int source);

} // namespace zelto::linux_platform
