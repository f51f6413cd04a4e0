#include "report/compare.hpp"

#include <algorithm>
#include <cmath>
#include <map>
#include <stdexcept>

#include "report/compare_curves.hpp"
#include "report/compare_match.hpp"
#include "report/curve_view.hpp"
#include "report/text.hpp"

namespace tervak::report {
namespace {

std::string display_name(const profile& p, int occurrence) {
  const std::string name = p.name.empty() ? "without name" : as_utf8(p.name);
  return occurrence == 1 ? name : name + " (" + std::to_string(occurrence) + ")";
}

std::vector<double> levels_of(const profile& p) {
  std::vector<double> out;
  for (const layer& l : p.layers) out.push_back(l.ZBOTM);
  return out;
}

class comparer {
 public:
  comparer(const interface_file& before, const interface_file& after, double tolerance)
      : before_(before), after_(after) {
    out_.tolerance = tolerance;
  }

  comparison run() {
    for (const match& m : match_profiles(before_, after_)) compare_profile(m);
    if (out_.profiles == 0) throw std::runtime_error("the two files have no profile of one name");
    std::stable_sort(found_.begin(), found_.end(), [](const entry& a, const entry& b) {
      if (a.what.order != b.what.order) return a.what.order < b.what.order;
      // Equal changes keep their order although their last bits differ.
      return std::abs(static_cast<float>(a.what.percent)) > std::abs(static_cast<float>(b.what.percent));
    });
    std::vector<bool> taken(places_.size());
    for (entry& e : found_) {
      if (e.place != none && !taken[e.place]) {
        out_.changed.push_back(places_[e.place]);
        taken[e.place] = true;
      }
      if (!continues_codes(e)) out_.differences.push_back(std::move(e.what));
    }
    return std::move(out_);
  }

 private:
  struct entry {
    difference what;
    std::size_t place = none;  // index in places_
    std::size_t layer = none;
  };
  /// A row of one change of code in layers one below the other, and how it began.
  struct code_row {
    std::size_t row = 0, last = 0;
    std::string layer, level;
  };

  /// Draws a change of code into the row of the layer above, if that has the same.
  bool continues_codes(const entry& e) {
    if (e.what.order != difference_class::code || !e.what.diameter.empty()) return false;
    const std::string key = join({e.what.profile, "\n", e.what.what, e.what.before, "\n", e.what.after});
    const auto there = code_rows_.find(key);
    if (there == code_rows_.end() || there->second.last + 1 != e.layer) {
      code_rows_[key] = {out_.differences.size(), e.layer, e.what.layer, e.what.level};
      return false;
    }
    there->second.last = e.layer;
    difference& row = out_.differences[there->second.row];
    row.layer = there->second.layer + " to " + e.what.layer;
    row.level = there->second.level + " to " + e.what.level;
    return true;
  }

  void add(difference d, std::size_t place = none) {
    d.profile = at_.profile;
    d.layer = at_.layer;
    d.level = at_.level;
    d.diameter = at_.diameter;
    found_.push_back({std::move(d), place, layer_});
  }

  void add_one_sided(const std::string& what, bool in_before) {
    difference d{.order = difference_class::one_sided, .what = what};
    d.before = in_before ? "there" : "none";
    d.after = in_before ? "none" : "there";
    add(d);
  }

  void compare_profile(const match& m) {
    const bool in_before = m.first != none;
    const profile& p = in_before ? before_.profiles[m.first] : after_.profiles[m.second];
    const auto keys = keys_of(in_before ? before_ : after_);
    at_ = {};
    at_.profile = display_name(p, keys[in_before ? m.first : m.second].second);
    if (m.first == none || m.second == none) return add_one_sided("profile", in_before);
    ++out_.profiles;
    const profile& q = after_.profiles[m.second];
    diameters_ = match_values(p.diameters, q.diameters, 0.0, 1e-6);
    for (const match& d : diameters_)
      if (d.first == none || d.second == none) {
        at_.diameter = number_text(d.first != none ? p.diameters[d.first] : q.diameters[d.second]);
        add_one_sided("diameter", d.first != none);
        at_.diameter.clear();
      }
    // A nine-digit level may lie off by its last digit.
    for (const match& l : match_values(levels_of(p), levels_of(q), 0.001, 1e-8)) compare_layer(m, l);
  }

  void compare_layer(const match& profiles, const match& m) {
    const bool in_before = m.first != none;
    const std::string number = std::to_string((in_before ? m.first : m.second) + 1);
    const profile& p = before_.profiles[profiles.first];
    const profile& q = after_.profiles[profiles.second];
    at_.layer = number;
    at_.level = number_text(in_before ? p.layers[m.first].ZBOTM : q.layers[m.second].ZBOTM);
    if (m.first == none || m.second == none) return add_one_sided("layer", in_before);
    layer_ = m.first;
    if (m.first != m.second) at_.layer += ", now " + std::to_string(m.second + 1);
    ++out_.layers;
    const layer &a = p.layers[m.first], &b = q.layers[m.second];
    for (const curve_kind kind : soil_kinds)
      if (a.code(kind) != b.code(kind)) {
        const std::string name = std::string(words_of(kind).name) + " code";
        add({.order = difference_class::code,
             .what = name,
             .before = method_text(kind, a.code(kind)),
             .after = method_text(kind, b.code(kind))});
      }
    add_number("effective stress", a.SIGZRES, b.SIGZRES, none);
    add_number("undrained strength", a.SURED, b.SURED, none);
    add_number("friction angle", a.PHIR, b.PHIR, none);
    for (const match& d : diameters_)
      if (d.first != none && d.second != none) compare_curves(profiles, m, d);
    at_.diameter.clear();
  }

  /// True when it is a difference.
  bool add_number(const std::string& what, double a, double b, std::size_t place) {
    if (a == b) return false;
    const double percent = 100.0 * (b - a) / std::abs(a);
    if (a != 0.0 && !(std::abs(percent) > out_.tolerance)) return false;
    difference d{.what = what, .before = rounded_text(a, 4), .after = rounded_text(b, 4)};
    if (d.before == d.after) {  // alike on four digits
      d.before = number_text(a);
      d.after = number_text(b);
    }
    if (a == 0.0)
      d.order = difference_class::from_zero;
    else
      d.percent = percent;
    add(d, place);
    return true;
  }

  void compare_curves(const match& profiles, const match& layers, const match& diameters) {
    const profile& p = before_.profiles[profiles.first];
    at_.diameter = number_text(p.diameters[diameters.first]);
    const std::size_t place = places_.size();
    places_.push_back({profiles.first, layers.first, diameters.first, profiles.second, layers.second,
                       diameters.second,
                       "Profile " + at_.profile + ", layer " + at_.layer + ", D = " + at_.diameter});
    for (const curve_kind kind : curve_kinds) {
      const auto& a = p.layers[layers.first].of(kind);
      const auto& b = after_.profiles[profiles.second].layers[layers.second].of(kind);
      if (a.empty() && b.empty()) continue;
      const std::string name = words_of(kind).name;
      if (a.empty() || b.empty())
        add_one_sided(name + " curve", !a.empty());
      else
        compare_curve(kind, a[diameters.first], b[diameters.second], place);
    }
  }

  void compare_curve(curve_kind kind, const curve& a, const curve& b, std::size_t place) {
    ++out_.curves;
    const kind_words words = words_of(kind);
    const std::string name = words.name;
    const auto of_sides = [&](const std::string& what, double (*value)(const curve&, int)) {
      const double before[] = {value(a, 1), value(a, -1)}, now[] = {value(b, 1), value(b, -1)};
      const std::string full = name + " " + what;
      if (before[0] == before[1] && now[0] == now[1]) return add_number(full, before[0], now[0], place);
      const bool first = add_number(full + ", " + words.positive, before[0], now[0], place);
      return add_number(full + ", " + words.negative, before[1], now[1], place) || first;
    };
    const bool peaks = of_sides("peak", side_peak);
    if (of_sides("initial stiffness", initial_stiffness) || peaks) return;
    const auto change = greatest_change(a, b, kind >= curve_kind::mtheta);
    if (!change)
      add({.order = difference_class::code, .what = name + " number of points"}, place);
    else if (*change > out_.tolerance)
      add({.percent = *change, .what = name + " points between"}, place);
  }

  const interface_file& before_;
  const interface_file& after_;
  difference at_;  // the place of what is being compared
  std::size_t layer_ = none;
  std::vector<match> diameters_;
  std::map<std::string, code_row> code_rows_;
  std::vector<changed_layer> places_;
  std::vector<entry> found_;
  comparison out_;
};

}  // namespace

comparison compare_files(const interface_file& before, const interface_file& after, double tolerance) {
  return comparer(before, after, tolerance).run();
}

}  // namespace tervak::report
