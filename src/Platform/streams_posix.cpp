#include "Platform/streams.hpp"

#include <unistd.h>

namespace tervak::os {

std::FILE* open_stream(const std::string& name, const char* mode) { return std::fopen(name.c_str(), mode); }

std::FILE* create_stream(const std::string& name) { return std::fopen(name.c_str(), "wbx"); }

bool cut_here(std::FILE* stream) {
  const long position = std::ftell(stream);
  if (position < 0 || ftruncate(fileno(stream), position) != 0) return false;
  static_cast<void>(std::fflush(stream));
  return std::fseek(stream, 0, SEEK_END) == 0;
}

bool case_tells_names_apart() { return true; }

void make_streams_binary() {}

}  // namespace tervak::os
