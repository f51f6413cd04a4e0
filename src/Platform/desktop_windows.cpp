#include "Platform/desktop.hpp"

#include <windows.h>
// must follow windows.h
#include <shellapi.h>

namespace tervak::os {

namespace {

HINSTANCE module() { return GetModuleHandleA(nullptr); }

/// A resource that is known by its number.
const char* numbered(int resource) { return MAKEINTRESOURCEA(resource); }

bool register_class(const char* name, unsigned style, int icon, int cursor, int background) {
  WNDCLASSEXA description{};
  description.cbSize = sizeof description;
  description.style = style;
  description.lpfnWndProc = DefWindowProcA;
  description.hInstance = module();
  description.hIcon = LoadIconA(module(), numbered(icon));
  description.hCursor = LoadCursorA(nullptr, numbered(cursor));
  description.hbrBackground = static_cast<HBRUSH>(GetStockObject(background));
  description.lpszClassName = name;
  return RegisterClassExA(&description) != 0;
}

void message_box(const char* text, const char* caption, unsigned style) {
  MessageBoxA(nullptr, text, caption, style);
}

void* create_window(const char* class_name, const char* title, unsigned style) {
  return CreateWindowExA(0, class_name, title, style, 0, 0, 0, 0, nullptr, nullptr, module(), nullptr);
}

void show_window(void* window, int command) { ShowWindow(static_cast<HWND>(window), command); }

void execute(const char* operation, const char* file, int show_command) {
  ShellExecuteA(nullptr, operation, file, nullptr, nullptr, show_command);
}

}  // namespace

const desktop* system_desktop() {
  static constexpr desktop CALLS = {register_class, message_box, create_window, show_window, execute};
  return &CALLS;
}

}  // namespace tervak::os
