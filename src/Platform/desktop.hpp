#pragma once

namespace tervak::os {

/// The calls by which the program appears on a desktop. A table, so that a test can take the system's place.
struct desktop {
  bool (*register_class)(const char* name, unsigned style, int icon, int cursor, int background);
  void (*message_box)(const char* text, const char* caption, unsigned style);
  /// Position and size 0, no parent, no menu.
  void* (*create_window)(const char* class_name, const char* title, unsigned style);
  void (*show_window)(void* window, int command);
  /// No window, no parameters, no directory.
  void (*execute)(const char* operation, const char* file, int show_command);
};

/// The system's own calls; null on a system without a desktop of this kind.
const desktop* system_desktop();

/// Shows the program as a minimized, disabled window. False when its class could not be registered; a message
/// box has then said so, and the run must not begin.
bool enter(const desktop& calls);

}  // namespace tervak::os
