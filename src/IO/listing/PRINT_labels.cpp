#include "IO/listing/PRINT_labels.hpp"

#include <array>
#include <cstddef>

#include "SoilCurves/axial/axial_methods.hpp"
#include "SoilCurves/py/py_methods.hpp"

namespace tervak {

namespace {

constexpr std::array<const char*, 18> LABELS = {"API-84", "API-87", "VRK-80", "MANUAL", "LINEAR", "AUTO-1",
                                                "AUTO-2", "AUTO-3", "KRAFT ", "ELAPLA", "????? ", "STATIC",
                                                "CYCLIC", "API-93", "ISO-04", "NGI-11", "ModMat", "API-2014"};

const char* label_of(curve_methods methods, int code) {
  if (const curve_method* method = find_method(methods, code)) return method->label;
  return method_label(code < 100 ? 4 : code - 95);
}

}  // namespace

const char* method_label(int index) { return LABELS.at(static_cast<std::size_t>(index) - 1); }

const char* PY_label(int code) { return label_of(py_methods(), code); }
const char* TZ_label(int code) { return label_of(tz_methods(), code); }
const char* QZ_label(int code) { return label_of(qz_methods(), code); }

}  // namespace tervak
