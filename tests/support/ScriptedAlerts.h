#pragma once

#include "simulator/computer/ScriptedAlerts.h"

namespace zelto::test {
using simulator::ScriptedAlerts;
}
