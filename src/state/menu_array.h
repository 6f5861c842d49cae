// An indexed menu (menuedits item 100, menusends item 9): sparse, created on first use. Shared by
// every panel that has one.
#pragma once

#include <map>

#include "platform/controls.h"

namespace tesk {

using MenuArray = std::map<int, MenuItem>;

}  // namespace tesk
