#include "IO/listing/PRINT_labels.hpp"

#include <array>
#include <cstddef>
#include <span>

namespace tervak {

namespace {

constexpr std::array<const char*, 18> LABELS = {"API-84", "API-87", "VRK-80", "MANUAL", "LINEAR", "AUTO-1",
                                                "AUTO-2", "AUTO-3", "KRAFT ", "ELAPLA", "????? ", "STATIC",
                                                "CYCLIC", "API-93", "ISO-04", "NGI-11", "ModMat", "API-2014"};

struct label_row {
  int code;
  int index;
};

constexpr label_row PY_ROWS[] = {{284, 1},  {287, 2},  {214, 18}, {380, 3},
                                 {404, 15}, {570, 17}, {588, 11}, {600, 16}};
constexpr label_row TZ_ROWS[] = {{200, 9}, {214, 18}, {293, 14}, {588, 11}};
constexpr label_row QZ_ROWS[] = {{200, 10}, {293, 14}, {214, 18}};

const char* label_of(std::span<const label_row> rows, int code) {
  for (const label_row& row : rows)
    if (row.code == code) return method_label(row.index);
  return method_label(code < 100 ? 4 : code - 95);
}

}  // namespace

const char* method_label(int index) { return LABELS.at(static_cast<std::size_t>(index) - 1); }

const char* PY_label(int code) { return label_of(PY_ROWS, code); }
const char* TZ_label(int code) { return label_of(TZ_ROWS, code); }
const char* QZ_label(int code) { return label_of(QZ_ROWS, code); }

}  // namespace tervak
