#include "Platform/local_time.hpp"

#include <ctime>

namespace tervak::os {

local_time local_now() {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  localtime_r(&now, &local);
  return {local.tm_year + 1900, local.tm_mon, local.tm_mday, local.tm_hour, local.tm_min, local.tm_sec};
}

}  // namespace tervak::os
