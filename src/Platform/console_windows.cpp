#include "Platform/console.hpp"

#include <windows.h>
// must follow windows.h
#include <shellapi.h>

#include <cstdio>
#include <iostream>
#include <limits>

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
  // Without a buffer the library hands a console single bytes, and a character of several would be torn.
  for (std::FILE* const stream : {stdout, stderr}) std::setvbuf(stream, nullptr, _IOFBF, 65536);
  int words = 0;
  wchar_t** const wide = CommandLineToArgvW(GetCommandLineW(), &words);
  if (wide == nullptr) return {arguments + (count > 0 ? 1 : 0), arguments + count};
  std::vector<std::string> out;
  for (int i = 1; i < words; ++i) out.push_back(utf8(wide[i]));
  LocalFree(wide);
  return out;
}

bool owns_console() {
  DWORD first = 0;
  return GetConsoleProcessList(&first, 1) == 1;
}

void wait_for_enter() {
  std::cout << "\nPress Enter to close this window." << std::flush;
  std::cin.ignore(std::numeric_limits<std::streamsize>::max(), '\n');
}

void attach_to_calling_console() {
  // Redirected, or a value that the caller left there and that is no handle of this process.
  const DWORD type = GetFileType(GetStdHandle(STD_ERROR_HANDLE));
  if (type == FILE_TYPE_DISK || type == FILE_TYPE_PIPE) return;
  if (AttachConsole(ATTACH_PARENT_PROCESS) == 0) return;
  if (type == FILE_TYPE_UNKNOWN) static_cast<void>(std::freopen("CONOUT$", "w", stderr));
}

}  // namespace tervak::os
