#pragma once

#include <string>
#include <string_view>

namespace tervak::companion {

/// The bytes of a run's file with what differs from one run of a deck to the next put out of the way: the
/// time stamps, and the names of the machine and its user in the head of the log and of the interface file. A
/// line is masked only where it has exactly the form that the program gives it, so that damage stays visible.
/// The number of lines is kept, and in a line what stands before its first mask.
std::string masked(std::string_view file_name, std::string_view bytes);

}  // namespace tervak::companion
