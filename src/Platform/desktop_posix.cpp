#include "Platform/desktop.hpp"

namespace tervak::os {

const desktop* system_desktop() { return nullptr; }

}  // namespace tervak::os
