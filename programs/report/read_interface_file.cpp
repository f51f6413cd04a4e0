#include "report/read_interface_file.hpp"

#include <algorithm>
#include <cmath>

#include "report/record_reader.hpp"
#include "report/text.hpp"

namespace tervak::report {
namespace {

constexpr int max_points = 29;
constexpr int max_layers = 500;
constexpr int max_diameters = 50;
constexpr int max_displacements = 50;

/// One profile being read.
class profile_reader {
 public:
  profile_reader(record_reader& in, int number) : in_(in) { out_.number = number; }

  profile read() {
    heading();
    diameters();
    general();
    for (std::size_t i = 0; i < displacement_count_; ++i) displacement(i);
    for (std::size_t i = 0; i < layer_count_; ++i) soil_layer(i);
    for (std::size_t i = 0; i < layer_count_; ++i)
      for (std::size_t d = 0; d < out_.diameters.size(); ++d) {
        soil_curve(curve_kind::py, "RVSOILPY", i, d);
        soil_curve(curve_kind::qz, "RVSOILQZ", i, d);
        soil_curve(curve_kind::tz, "RVSOILTZ", i, d);
      }
    monopile();
    return std::move(out_);
  }

 private:
  /// The next record, which has to be `name`; `of` tells which one of several.
  record expect(const std::string& name, const std::string& of = "") {
    const std::string found = in_.next_name();
    const std::string wanted = name + of + " of profile " + std::to_string(out_.number);
    if (found == "IEND")
      in_.refuse_here("IEND stands where " + wanted +
                      " was expected: the run failed within this profile, see its log TERVAK.MLG");
    if (in_.at_end())
      in_.refuse_here("expected " + wanted + "; no IEND: the run that wrote this file did not end properly");
    if (found != name) in_.refuse_here("expected " + wanted);
    return in_.next();
  }

  int whole(const record& from, std::size_t field, int low, int high, const std::string& meaning) const {
    const double value = from.values[field - 1];
    if (!(value >= low && value <= high) || std::floor(value) != value)
      in_.refuse(from, field,
                 "field " + std::to_string(field) + " of " + from.name + " is " + meaning +
                     ", expected a whole number from " + std::to_string(low) + " to " + std::to_string(high) +
                     ", found " + number_text(value));
    return static_cast<int>(value);
  }

  void same(const record& from, std::size_t field, std::size_t expected, const std::string& meaning) const {
    const double value = from.values[field - 1];
    if (value != static_cast<double>(expected))
      in_.refuse(from, field,
                 "field " + std::to_string(field) + " of " + from.name + " is " + meaning + ", expected " +
                     std::to_string(expected) + ", found " + number_text(value));
  }

  void size(const record& of, std::size_t fields) const {
    if (of.values.size() != fields)
      in_.refuse(of, 1,
                 "record " + of.name + " has " + std::to_string(fields) + " fields here, found a count of " +
                     std::to_string(of.values.size()));
    same(of, 2, static_cast<std::size_t>(out_.number), "the number of the profile");
  }

  void heading() {
    const record r = expect("TSOILPRF");
    size(r, 4);
    for (std::size_t i = 0; i < 2; ++i) {
      const int length =
          whole(r, 3 + i, 100, 355,
                i == 0 ? "100 plus the length of the profile name" : "100 plus the length of the label") -
          100;
      if (r.text_lines[i].size() > static_cast<std::size_t>(length))
        in_.refuse(r, 3 + i,
                   "text line " + std::to_string(i + 1) + " has " + std::to_string(r.text_lines[i].size()) +
                       " characters, expected at most " + std::to_string(length));
    }
    out_.name = r.text_lines[0];
    out_.label = r.text_lines[1];
  }

  void diameters() {
    do {
      const record r = expect("RDSOILDI");
      size(r, 4);
      same(r, 3, out_.diameters.size() + 1, "the number of the diameter");
      const double before = out_.diameters.empty() ? 0.0 : out_.diameters.back();
      if (!(r.values[3] > before))
        in_.refuse(r, 4,
                   "expected a diameter greater than " + number_text(before) + ", found " +
                       number_text(r.values[3]));
      out_.diameters.push_back(r.values[3]);
    } while (in_.next_name() == "RDSOILDI");
  }

  void general() {
    const record r = expect("RDSOIPRF");
    size(r, 13);
    out_.sea_floor = r.values[3];
    out_.general_scour = r.values[4];
    layer_count_ = static_cast<std::size_t>(whole(r, 6, 1, max_layers, "the number of layers"));
    displacement_count_ =
        static_cast<std::size_t>(whole(r, 8, 0, max_displacements, "the number of soil displacements"));
    whole(r, 9, 1, max_diameters, "the number of diameters");
    same(r, 9, out_.diameters.size(), "the number of diameters, of which the records RDSOILDI stand above");
    out_.ESOL0 = r.values[9];
    out_.ESOL1 = r.values[10];
    out_.ESOL2 = r.values[11];
    out_.POSAVR = r.values[12];
  }

  void displacement(std::size_t i) {
    const record r = expect("RDSOIDSP", join({" ", std::to_string(i + 1)}));
    size(r, 8);
    same(r, 3, i + 1, "the number of the soil displacement");
    out_.displacements.push_back({r.values[3], r.values[4], r.values[5], r.values[6], r.values[7]});
  }

  void soil_layer(std::size_t i) {
    const record r = expect("RVSOILAY", " of layer " + std::to_string(i + 1));
    size(r, 17);
    same(r, 3, i + 1, "the number of the layer");
    layer& l = out_.layers.emplace_back();
    std::size_t field = 3;
    for (double* value :
         {&l.ZBOTM, &l.ZLAY, &l.DEPTH, &l.GAMEFF, &l.PHIR, &l.SURED, &l.SIGZRES, &l.DSIGZ, &l.V, &l.E, &l.G})
      *value = r.values[field++];
    l.py_code = whole(r, 15, 0, 999, "the P-Y code");
    l.tz_code = whole(r, 16, 0, 999, "the T-Z code");
    l.qz_code = whole(r, 17, 0, 999, "the Q-Z code");
    for (const curve_kind kind : {curve_kind::py, curve_kind::tz, curve_kind::qz})
      l.of(kind).resize(out_.diameters.size());
  }

  record curve_record(const std::string& name, std::size_t i, std::size_t d) {
    record r = expect(name, " of layer " + std::to_string(i + 1) + ", diameter " + std::to_string(d + 1));
    if (r.values.size() < 5) size(r, 5);
    same(r, 3, d + 1, "the number of the diameter");
    same(r, 4, i + 1, "the number of the layer");
    return r;
  }

  /// The pairs behind the field that counts them.
  curve points(const record& r, std::size_t count_field) const {
    if (r.values.size() < count_field) size(r, count_field);
    const int count = whole(r, count_field, 0, max_points, "the number of points");
    size(r, 2 * static_cast<std::size_t>(count) + count_field);
    curve out;
    for (std::size_t i = count_field; i < r.values.size(); i += 2)
      out.push_back({r.values[i], r.values[i + 1]});
    return out;
  }

  void soil_curve(curve_kind kind, const std::string& name, std::size_t i, std::size_t d) {
    const record r = curve_record(name, i, d);
    curve& c = out_.layers[i].of(kind)[d] = points(r, 8);
    // Points may print alike when they lie closer than nine digits show.
    for (std::size_t p = 1; p < c.size(); ++p)
      if (c[p].displacement < c[p - 1].displacement)
        in_.refuse(r, 10 + 2 * p,
                   "point " + std::to_string(p + 1) + " of " + name +
                       " falls back: expected a displacement not below " +
                       number_text(c[p - 1].displacement) + ", found " + number_text(c[p].displacement));
    // The peaks were taken over all slots of the curve store, so that they can be compared when all are in
    // use.
    if (c.size() != max_points) return;
    const auto [low, high] = std::minmax_element(
        c.begin(), c.end(), [](const point& a, const point& b) { return a.stress < b.stress; });
    peak(r, 5, "the greatest stress", high->stress);
    if (kind != curve_kind::py) peak(r, 7, "the smallest stress", low->stress);
  }

  void peak(const record& r, std::size_t field, const std::string& meaning, double expected) const {
    if (r.values[field - 1] != expected)
      in_.refuse(r, field,
                 "field " + std::to_string(field) + " of " + r.name + " is " + meaning +
                     " of the curve, found " + number_text(r.values[field - 1]) +
                     ", but that of its points is " + number_text(expected));
  }

  /// The kinds that the first layer and diameter have are those of all others.
  void monopile() {
    struct form {
      const char* name;
      curve_kind kind;
    };
    std::vector<form> present;
    for (std::size_t i = 0; i < layer_count_; ++i)
      for (std::size_t d = 0; d < out_.diameters.size(); ++d)
        for (const form f : {form{"RVSOILBM", curve_kind::bmtheta}, form{"RVSOILDM", curve_kind::mtheta},
                             form{"RVSOILBS", curve_kind::bsy}}) {
          const bool first = i == 0 && d == 0;
          const bool wanted =
              std::any_of(present.begin(), present.end(), [&](const form& p) { return p.kind == f.kind; });
          if (first ? in_.next_name() != f.name : !wanted) continue;
          if (first) present.push_back(f);
          out_.layers[i].of(f.kind).push_back(points(curve_record(f.name, i, d), 5));
        }
  }

  record_reader& in_;
  profile out_;
  std::size_t layer_count_ = 0;
  std::size_t displacement_count_ = 0;
};

}  // namespace

interface_file read_interface_file(const std::string& file_name, std::istream&& stream) {
  record_reader in(file_name, stream);
  interface_file out;
  if (in.next_name() != "IDENT") in.refuse_here("expected record IDENT, with which an interface file begins");
  in.next();
  if (in.next_name() != "DATE") in.refuse_here("expected record DATE behind IDENT");
  const record date = in.next();
  std::copy_n(date.text_lines.begin(), out.date_lines.size(), out.date_lines.begin());
  while (in.next_name() == "TSOILPRF")
    out.profiles.push_back(profile_reader(in, static_cast<int>(out.profiles.size()) + 1).read());
  if (in.at_end())
    in.refuse_here(
        "expected IEND or a further profile; no IEND: the run that wrote this file did not end properly");
  if (in.next_name() != "IEND") in.refuse_here("expected IEND or the TSOILPRF of a further profile");
  if (out.profiles.empty())
    in.refuse_here(
        "the file holds no profile: the run failed before it finished one, see its log TERVAK.MLG");
  in.next();
  if (!in.at_end()) in.refuse_here("expected nothing behind IEND");
  return out;
}

}  // namespace tervak::report
