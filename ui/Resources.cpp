#include "ui/Resources.h"

#include <QDir>

// Q_INIT_RESOURCE declares a function of the global namespace and so can't stand inside another.
static void initLinkedResources() {
    Q_INIT_RESOURCE(resources);
    Q_INIT_RESOURCE(strings);
}

namespace zelto {

void initResources() {
    initLinkedResources();
}

} // namespace zelto
