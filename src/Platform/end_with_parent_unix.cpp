#include "Platform/end_with_parent.hpp"

namespace tervak::os {

void end_with_parent() {}

}  // namespace tervak::os
