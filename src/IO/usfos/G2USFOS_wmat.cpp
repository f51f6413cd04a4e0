#include <algorithm>
#include <array>

#include "fem/write.hpp"
#include "IO/usfos/G2USFOS_materials.hpp"

namespace tervak {

namespace {

constexpr std::size_t MAX_MATERIALS = 5000;
constexpr std::size_t COUNT_FIELD = 7;  // index of N in a record; the pairs follow it
constexpr int CURVE_TYPE = 2;

int points_of(const usfos_material& material) { return static_cast<int>(material.record.at(COUNT_FIELD)); }

void write_misopl(common& cmn, int UNIT, const usfos_material& material) {
  const std::vector<double>& record = material.record;
  fem::write(cmn.units, UNIT, "(a8,4e16.8)", "MISOPL  ", static_cast<double>(material.number), record.at(0),
             0.0, 0.0);
  fem::write(cmn.units, UNIT, "(8x,4e16.8)", 0.0, 0.0, 0.0, 0.0);
  const int N = points_of(material);
  fem::write(cmn.units, UNIT, "(8x,i8)", N);
  // The list begins with the count instead of the first force, so that all is shifted by one and the last
  // displacement is missing. The readers of the file have always had it so.
  std::size_t field = COUNT_FIELD;
  for (int i = 0; i < N; ++i, field += 2)
    fem::write(cmn.units, UNIT, "(8x,2e16.8)", record.at(field), record.at(field + 1));
}

void write_curve_material(common& cmn, int UNIT, const usfos_material& material) {
  const std::vector<double>& record = material.record;
  if (record.at(0) == 4.0)
    fem::write(cmn.units, UNIT, "(' ELPLCURV ',i9)", material.number);
  else
    fem::write(cmn.units, UNIT, "(' HYPELAST ',i9)", material.number);
  const int N = points_of(material);
  std::size_t field = COUNT_FIELD + 1;
  for (int i = 0; i < N; ++i, field += 2)
    fem::write(cmn.units, UNIT, "(25x,1p,2e15.5)", record.at(field), record.at(field + 1));
}

bool known_type(const usfos_material& material) {
  constexpr std::array KNOWN = {1, 2, 3, 5, 10, 12, 15, 18, 20, 21, 24};
  return std::find(KNOWN.begin(), KNOWN.end(), material.type) != KNOWN.end();
}

/// The materials that are not empty, positive numbers first, each group ascending; equal numbers in list
/// order.
std::vector<const usfos_material*> ranked(const std::vector<usfos_material>& materials) {
  std::vector<const usfos_material*> ranks;
  for (const usfos_material& material : materials)
    if (material.number != 0) ranks.push_back(&material);
  std::stable_sort(ranks.begin(), ranks.end(), [](const usfos_material* a, const usfos_material* b) {
    if ((a->number > 0) != (b->number > 0)) return a->number > 0;
    return a->number < b->number;
  });
  return ranks;
}

}  // namespace

bool UWRMAT(common& cmn, int UNIT, const std::vector<usfos_material>& materials) {
  if (!std::all_of(materials.begin(), materials.end(), known_type))
    fem::write(cmn.units, UNIT, "(a)", "# WARNING from UWRMAT: Materials missing ! ");
  if (std::any_of(materials.begin(), materials.end(),
                  [](const usfos_material& material) { return material.type == CURVE_TYPE; }))
    fem::write(cmn.units, UNIT, "('''',/,'''','            Mat  ID               P           Delta ')");

  bool good = true;
  const usfos_material* previous = nullptr;
  for (const usfos_material* material : ranked(materials)) {
    if (previous != nullptr && previous->number == material->number) {
      fem::write(cmn.units, UNIT, "(/,2x,'*** ERROR IN UWRMAT ***')");
      good = false;
    } else {
      write_curve_material(cmn, UNIT, *material);
    }
    previous = material;
  }
  return good;
}

void G2U_WMAT(common& cmn, int UNIT, int MODE, const std::vector<usfos_material>& materials, int& IERR) {
  if (materials.size() > MAX_MATERIALS) {
    fem::write(cmn.units, UNIT, "(/,2x,'*** ERROR IN G2U_WMAT ***')");
    fem::write(cmn.units, UNIT, "(/,2x,'*** Number of Materials Exceeds Max of ',i4)",
               static_cast<int>(MAX_MATERIALS));
    IERR = -1;
    return;
  }
  if (MODE == 1) {
    for (const usfos_material& material : materials)
      if (material.type == CURVE_TYPE && material.number != 0) write_misopl(cmn, UNIT, material);
  } else if (MODE != 2 || !UWRMAT(cmn, UNIT, materials)) {
    fem::write(cmn.units, UNIT, "(/,2x,'*** ERROR IN G2U_WMAT ***')");
    IERR = -1;
  }
}

}  // namespace tervak
