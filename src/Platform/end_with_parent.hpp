#pragma once

namespace tervak::os {

/// For a child between fork and its program: it and the program end when the parent ends. Does nothing on a
/// system that cannot do this.
void end_with_parent();

}  // namespace tervak::os
