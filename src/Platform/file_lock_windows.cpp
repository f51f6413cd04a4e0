#include "Platform/file_lock.hpp"

#include <windows.h>
// must follow windows.h
#include <fcntl.h>
#include <io.h>

#include <system_error>

namespace tervak::os {

// Open without a share: a second process cannot open it while this one has it.
file_lock::file_lock(const std::filesystem::path& file) {
  const HANDLE opened = CreateFileW(file.c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_ALWAYS,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
  const DWORD cause = opened == INVALID_HANDLE_VALUE ? GetLastError() : 0;
  if (cause == 0) {
    handle_ = _open_osfhandle(reinterpret_cast<std::intptr_t>(opened), _O_RDWR | _O_NOINHERIT);
    held_ = handle_ >= 0;
    if (held_) return;
    CloseHandle(opened);
  }
  taken_ = cause == ERROR_SHARING_VIOLATION;
  if (!taken_) failure_ = std::system_category().message(static_cast<int>(cause));
}

file_lock::~file_lock() {
  if (handle_ >= 0) _close(handle_);
}

}  // namespace tervak::os
