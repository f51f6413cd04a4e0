#include "Platform/end_with_parent.hpp"

#include <sys/prctl.h>

#include <csignal>

namespace tervak::os {

void end_with_parent() { prctl(PR_SET_PDEATHSIG, SIGKILL); }

}  // namespace tervak::os
