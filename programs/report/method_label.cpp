#include "report/method_label.hpp"

#include <array>

namespace tervak::report {

std::string method_label(curve_kind kind, int code) {
  struct method {
    curve_kind kind;
    int code;
    const char* name;
  };
  static constexpr std::array<method, 13> methods = {{{curve_kind::py, 214, "API-2014"},
                                                      {curve_kind::py, 284, "API-84"},
                                                      {curve_kind::py, 287, "API-87"},
                                                      {curve_kind::py, 380, "VRK-80"},
                                                      {curve_kind::py, 404, "ISO-04"},
                                                      {curve_kind::py, 570, "ModMat"},
                                                      {curve_kind::py, 600, "NGI-11"},
                                                      {curve_kind::tz, 200, "KRAFT"},
                                                      {curve_kind::tz, 214, "API-2014"},
                                                      {curve_kind::tz, 293, "API-93"},
                                                      {curve_kind::qz, 200, "ELAPLA"},
                                                      {curve_kind::qz, 214, "API-2014"},
                                                      {curve_kind::qz, 293, "API-93"}}};
  static constexpr std::array<const char*, 4> simple = {"LINEAR", "AUTO-1", "AUTO-2", "AUTO-3"};
  if (code < 100) return "MANUAL";
  if (code <= 103) return simple[static_cast<std::size_t>(code - 100)];
  for (const method& m : methods)
    if (m.kind == kind && m.code == code) return m.name;
  return "?????";
}

const char* family_name(curve_kind kind) {
  static constexpr std::array<const char*, curve_kinds.size()> names = {"py",     "tz",  "qz",
                                                                        "mtheta", "bsy", "bmtheta"};
  return names[static_cast<std::size_t>(kind)];
}

}  // namespace tervak::report
