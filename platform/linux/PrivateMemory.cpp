#include "platform/linux/PrivateMemory.h"

#include <sys/prctl.h>
#include <sys/resource.h>

namespace zelto::linux_platform {

void keepMemoryPrivate() {
    // Neither can fail for a program that asks for less. The limit also holds where cores go to a
    // service, which heeds it.
    const rlimit none{0, 0};
    (void)::setrlimit(RLIMIT_CORE, &none);
    (void)::prctl(PR_SET_DUMPABLE, 0);
}

} // namespace zelto::linux_platform
