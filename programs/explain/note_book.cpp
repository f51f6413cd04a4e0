#include "explain/note_book.hpp"

#include <algorithm>
#include <cstddef>

#include "SoilCurves/store/curve_family.hpp"

namespace tervak::explain {

void note_book::begin_profile(int number) {
  take_layers();
  subject_ = {};
  profiles_.emplace_back().number = number;
}

void note_book::about(const note_subject& subject) { subject_ = subject; }

told_subject& note_book::present() {
  return profiles_.back().subjects[{subject_.of, subject_.NL, subject_.ND}];
}

void note_book::tell(const equation& step, std::string_view branch, std::span<const note_value> values) {
  present().steps.push_back({&step, std::string(branch), {values.begin(), values.end()}});
}

void note_book::curve(bool finished) {
  const curve_family family = subject_.of == note_subject::part::py   ? py_curves(cmn_)
                              : subject_.of == note_subject::part::tz ? tz_curves(cmn_)
                                                                      : qz_curves(cmn_);
  const layer_number NL = layer_number::of(subject_.NL);
  const diameter_number ND = diameter_number::of(subject_.ND);
  const int half = family.NPNT(ND, NL) / 2;
  std::vector<curve_point> points;
  for (int i = family.NORG(ND, NL) - half; i <= family.NORG(ND, NL) + half; ++i)
    points.push_back({family.STR(i, ND, NL), family.DSP(i, ND, NL)});
  (finished ? present().finished : present().made) = std::move(points);
}

void note_book::take_layers() {
  if (profiles_.empty()) return;
  told_profile& profile = profiles_.back();
  const std::string_view heading = cmn_.LABEL.view();
  profile.heading = heading.substr(0, heading.find_last_not_of(" \r") + 1);
  if (cmn_.UNITM > 0) profile.UNITM = cmn_.UNITM;
  if (cmn_.UNITF > 0) profile.UNITF = cmn_.UNITF;
  for (int ND = 1; ND <= std::min(cmn_.NUMDIA, cmn_.DIAM.size()); ++ND)
    profile.diameters.push_back(cmn_.DIAM(ND));
  // A run that stops early may have fewer levels than layers.
  double top = cmn_.ZSEAFL;
  for (int i = 1; i <= std::min({cmn_.NUMLAY, cmn_.ZLAY.size(), cmn_.ZBOTM.size(), cmn_.LAYCOD.size()});
       ++i) {
    profile.layers.push_back({top, cmn_.ZBOTM(i), cmn_.ZLAY(i), cmn_.LAYCOD(i)});
    top = cmn_.ZBOTM(i);
  }
}

curve_point peak_of(const std::vector<curve_point>& curve) {
  // The origin is in the middle.
  const auto origin = curve.begin() + static_cast<std::ptrdiff_t>(curve.size() / 2);
  const auto peak = std::max_element(
      origin, curve.end(), [](const curve_point& a, const curve_point& b) { return a.stress < b.stress; });
  return peak == curve.end() ? curve_point{0, 0} : *peak;
}

}  // namespace tervak::explain
