#include "Platform/console.hpp"

#include <windows.h>
// must follow windows.h
#include <shellapi.h>

#include <cstdio>

#include "Platform/streams.hpp"

namespace tervak::os {

namespace {

std::string utf8(const wchar_t* text) {
  const int size = WideCharToMultiByte(CP_UTF8, 0, text, -1, nullptr, 0, nullptr, nullptr);
  if (size <= 0) return {};
  std::string out(static_cast<std::size_t>(size), '\0');
  WideCharToMultiByte(CP_UTF8, 0, text, -1, out.data(), size, nullptr, nullptr);
  out.pop_back();
  return out;
}

}  // namespace

std::vector<std::string> start_console(int count, char** arguments) {
  make_streams_binary();
  SetConsoleOutputCP(CP_UTF8);
  int words = 0;
  wchar_t** const wide = CommandLineToArgvW(GetCommandLineW(), &words);
  if (wide == nullptr) return {arguments + (count > 0 ? 1 : 0), arguments + count};
  std::vector<std::string> out;
  for (int i = 1; i < words; ++i) out.push_back(utf8(wide[i]));
  LocalFree(wide);
  return out;
}

void attach_to_calling_console() {
  const HANDLE error = GetStdHandle(STD_ERROR_HANDLE);
  if (error != nullptr && error != INVALID_HANDLE_VALUE) return;
  if (AttachConsole(ATTACH_PARENT_PROCESS) == 0) return;
  static_cast<void>(std::freopen("CONOUT$", "w", stderr));
}

}  // namespace tervak::os
