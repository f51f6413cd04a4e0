#include <algorithm>
#include <cmath>

#include "check/rules.hpp"

namespace tervak::check::rules {

namespace {

using Vrsk::Plin::TervakExchange::ManualCurveRecord;
using Vrsk::Plin::TervakExchange::TervakInputData;
using curve_list = std::vector<ManualCurveRecord>;

constexpr std::string_view STAGE_CURVES[] = {"MANUALPY", "MANUALTZ", "MANUALQZ"};
constexpr std::string_view MONOPILE_CURVES[] = {"MANUALMTHETA", "MANUALBSY", "MANUALBMTHETA"};

bool is_diameter(const profile_view& profile, double value) {
  const auto& all = profile.data().Diameters;
  return std::any_of(all.begin(), all.end(), [&](double d) { return std::abs(d - value) < 1e-8; });
}

/// Whether the layers up to this one end at the local scour level or above it.
bool is_scoured(const profile_view& profile, int last) {
  const auto& layers = profile.layers();
  return last >= 1 && static_cast<std::size_t>(last) <= layers.size() &&
         !(layers[static_cast<std::size_t>(last) - 1].bottom > profile.scour_level() + 1e-9);
}

template <class Rows>
void scoured_rows(const profile_view& profile, std::string_view table, const Rows& rows,
                  const rule_hit& hit) {
  for (std::size_t i = 0; i < rows.size(); ++i) {
    int last = 0;
    if constexpr (requires { rows[i].L2; })
      last = rows[i].L1 == 0 ? 0 : rows[i].L2;
    else
      last = rows[i].LAY2;
    if (is_scoured(profile, last) && !profile.is_added(table, i + 1))
      hit({table, i + 1}, "all layers of the row");
  }
}

void above_scour(const profile_view& profile, const rule_hit& hit) {
  const TervakInputData& data = profile.data();
  scoured_rows(profile, "MODIFYPY", data.PyModification.Records, hit);
  scoured_rows(profile, "MODIFYTZ", data.TzModification.Records, hit);
  scoured_rows(profile, "MODIFYQZ", data.QzModification.Records, hit);
  scoured_rows(profile, "MODIFYMTHETA", data.MthetaModification.Records, hit);
  scoured_rows(profile, "MODIFYBSY", data.BSYModification.Records, hit);
  scoured_rows(profile, "MODIFYBMTHETA", data.BMthetaModification.Records, hit);
  const auto curves = [&](std::string_view table) {
    const curve_list& list = profile.curves(table);
    for (std::size_t i = 0; i < list.size(); ++i)
      if (is_scoured(profile, list[i].Layer)) hit({table, i + 1}, "the layer of the curve");
  };
  for (const std::string_view table : STAGE_CURVES) curves(table);
  for (const std::string_view table : MONOPILE_CURVES) curves(table);
}

void look_at_factor(std::string_view table, std::size_t row, std::string_view name, double value,
                    const rule_hit& hit) {
  if (value > 3 || (value > 0 && value < 0.01)) hit({table, row, name}, value_is(name, value));
}

void factors(const profile_view& profile, const rule_hit& hit) {
  const TervakInputData& data = profile.data();
  const auto& py = data.PyModification.Records;
  for (std::size_t i = 0; i < py.size(); ++i) {
    look_at_factor("MODIFYPY", i + 1, "PYFSTR", py[i].PYFSTR, hit);
    look_at_factor("MODIFYPY", i + 1, "PYFDSP", py[i].PYFDSP, hit);
  }
  const auto& tz = data.TzModification.Records;
  for (std::size_t i = 0; i < tz.size(); ++i) {
    look_at_factor("MODIFYTZ", i + 1, "TZFPOS", tz[i].FPOS, hit);
    look_at_factor("MODIFYTZ", i + 1, "TZFNEG", tz[i].FNEG, hit);
    look_at_factor("MODIFYTZ", i + 1, "TZFDSP", tz[i].FDSP, hit);
  }
  const auto& qz = data.QzModification.Records;
  for (std::size_t i = 0; i < qz.size(); ++i) {
    look_at_factor("MODIFYQZ", i + 1, "QZFPOS", qz[i].FPOS, hit);
    look_at_factor("MODIFYQZ", i + 1, "QZFDSP", qz[i].FDSP, hit);
  }
}

/// The last point on each side may lie far out, to hold the end stress.
void far_points(const profile_view& profile, const std::string_view table, const rule_hit& hit) {
  const curve_list& list = profile.curves(table);
  for (std::size_t i = 0; i < list.size(); ++i) {
    const auto& points = list[i].Displacements;
    for (std::size_t n = 0; n + 1 < points.size(); ++n) {
      if (n == 0 && points[n] < 0) continue;
      if (list[i].Diameter > 0 && std::abs(points[n]) > list[i].Diameter) {
        hit({table, i + 1, "", n + 1}, "the displacement " + number(points[n]));
        break;
      }
    }
  }
}

void displacements(const profile_view& profile, const rule_hit& hit) {
  for (const std::string_view table : STAGE_CURVES) far_points(profile, table, hit);
  far_points(profile, "MANUALBSY", hit);
}

double peak(const ManualCurveRecord& curve) {
  double most = 0;
  for (const double stress : curve.Stresses) most = std::max(most, std::abs(stress));
  return most;
}

void peaks(const profile_view& profile, const rule_hit& hit) {
  const auto differ = [](double a, double b) { return a > 0 && b > 0 && (a > 30 * b || b > 30 * a); };
  for (const std::string_view table : STAGE_CURVES) {
    const curve_list& list = profile.curves(table);
    const auto find = [&](int layer, double diameter) {
      return std::find_if(list.begin(), list.end(), [&](const ManualCurveRecord& c) {
        return c.Layer == layer && c.Diameter == diameter;
      });
    };
    for (std::size_t i = 0; i < list.size(); ++i) {
      const auto above = find(list[i].Layer - 1, list[i].Diameter),
                 below = find(list[i].Layer + 1, list[i].Diameter);
      if (above == list.end() || below == list.end()) continue;
      if (differ(peak(list[i]), peak(*above)) && differ(peak(list[i]), peak(*below)))
        hit({table, i + 1}, "the peak of the curve is " + number(peak(list[i])) + ", those next to it are " +
                                number(peak(*above)) + " and " + number(peak(*below)));
    }
  }
}

void monopile_diameter(const profile_view& profile, const rule_hit& hit) {
  for (const std::string_view table : MONOPILE_CURVES) {
    const curve_list& list = profile.curves(table);
    for (std::size_t i = 0; i < list.size(); ++i)
      if (!is_diameter(profile, list[i].Diameter))
        hit({table, i + 1}, "the diameter of the curve is " + number(list[i].Diameter));
  }
}

constexpr rule RULES[] = {
    {"above-scour", "rows of the MODIFY tables, curves of the MANUAL tables",
     "wholly above the local scour level (`ZSEAFL` + `SCRLOC`)",
     " ends above the local scour level; there is no resistance there, are the layer numbers right?",
     "layers that are scoured away have no resistance, so that the row has no effect", above_scour},
    {"factor", "`PYFSTR`, `PYFDSP`, `TZFPOS`, `TZFNEG`, `TZFDSP`, `QZFPOS`, `QZFDSP`",
     "above 3, or between 0 and 0.01", ", above 3 or next to 0; is it in percent, or in the wrong column?",
     "factors for groups and cyclic loading are 0.3 to 2", factors},
    {"manual-displacement",
     "displacements of `MANUALPY`, `MANUALTZ`, `MANUALQZ`, `MANUALBSY` before the last point",
     "above one diameter", " exceeds one diameter before the last point; is it in mm?",
     "curves reach their end stress within a fraction of the diameter", displacements},
    {"manual-peak", "peaks of `MANUALPY`, `MANUALTZ`, `MANUALQZ`",
     "more than 30 times greater or less than in the layer above and in the layer below",
     "; is the stress in another unit?", "one curve in Pa or MPa among others in kPa", peaks},
    {"monopile-diameter", "`AT` of `MANUALMTHETA`, `MANUALBSY`, `MANUALBMTHETA`",
     "a diameter that is none of `DIAM`", ", none of DIAM; the program ends with status 0 and no results",
     "only the log then shows that the run failed", monopile_diameter},
};

}  // namespace

std::span<const rule> of_curves() { return RULES; }

}  // namespace tervak::check::rules
