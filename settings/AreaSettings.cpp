#include "settings/AreaSettings.h"

namespace zelto {

int AreaSettings::DoModal() {
    if (AreaSettingsWindow != nullptr) {
        // How the dialog ended is nobody's business here: whoever asks reads the controls.
        static_cast<void>(AreaSettingsWindow->runModal(nullptr));
    }
    return 0;
}

} // namespace zelto
