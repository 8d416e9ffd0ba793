#pragma once

#include <QString>

#include <string>
#include <string_view>
#include <vector>

namespace zelto {

/// Text from outside the program, the name of a file or of another program say, as it may stand in
/// a window: read as UTF-8; characters that nobody sees, but that break or turn round what stands
/// beside them, are shown by their number as "[U+202E]"; at most `longest` characters of it, with
/// an ellipsis where it was cut. Plain text: it is no markup, whatever it looks like.
[[nodiscard]] QString foreignText(std::string_view text, std::size_t longest);

/// Several such names with the separator between them; an ellipsis stands for what would be too
/// many to read.
[[nodiscard]] QString foreignNames(const std::vector<std::string>& names, const QString& separator);

} // namespace zelto
