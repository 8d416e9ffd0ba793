#include "settings/AreaSettings.h"

namespace zelto {

int AreaSettings::DoModal() {
    if (AreaSettingsWindow != nullptr) {
        (void)AreaSettingsWindow->runModal(nullptr);
    }
    return 0;
}

} // namespace zelto
