#pragma once

namespace tervak::os {

/// The clock, in local time.
struct local_time {
  int year = 0;
  int month = 0;  ///< from 0 to 11
  int day = 0, hour = 0, minute = 0, second = 0;
};

local_time local_now();

}  // namespace tervak::os
