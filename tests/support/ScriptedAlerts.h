#pragma once

#include "simulator/ScriptedAlerts.h"

namespace zelto {
using simulator::ScriptedAlerts;
}
