#pragma once

#include "simulator/computer/ScriptedAlerts.h"

namespace zelto {
using simulator::ScriptedAlerts;
}
