#include "ui/ProductVersion.h"

namespace zelto {

QString productVersion() {
    return QStringLiteral(ZELTO_VERSION);
}

} // namespace zelto
