#include "programs/sample_rif.hpp"

#include <algorithm>
#include <cstdio>

namespace sample {

std::string record(const std::string& name, const std::vector<double>& values) {
  std::string out = name;
  char field[32];
  for (std::size_t i = 0; i < values.size(); ++i) {
    if (i > 0 && i % 4 == 0) out += "\n        ";
    std::snprintf(field, sizeof field, "%16.8E", values[i]);
    out += field;
  }
  return out + "\n";
}

std::vector<double> finished(const std::vector<std::pair<double, double>>& branch, double far,
                             double negative) {
  std::vector<std::pair<double, double>> side = branch;
  for (int i = 0; side.size() < 14; ++i)
    side.emplace_back(far + i, branch.empty() ? 0.0 : branch.back().second);
  std::vector<double> out;
  for (auto p = side.rbegin(); p != side.rend(); ++p)
    out.insert(out.end(), {-negative * p->second, -p->first});
  out.insert(out.end(), {0.0, 0.0});
  for (const auto& [displacement, stress] : side) out.insert(out.end(), {stress, displacement});
  return out;
}

namespace {

std::string curve(const std::string& name, double profile, double d, double l,
                  const std::vector<double>& pairs) {
  double high = pairs[0], low = pairs[0];
  for (std::size_t i = 0; i < pairs.size(); i += 2) {
    high = std::max(high, pairs[i]);
    low = std::min(low, pairs[i]);
  }
  const bool py = name == "RVSOILPY";
  std::vector<double> values = {
      8.0 + static_cast<double>(pairs.size()), profile, d, l, high, 1000.0, py ? 0.0 : low,
      static_cast<double>(pairs.size()) / 2.0};
  values.insert(values.end(), pairs.begin(), pairs.end());
  return record(name, values);
}

std::string curves(const shape& s, int p, int l, int d) {
  const double D = d, far = 1000.0 * s.diameters, z = l - 1.0;
  const double live = l > 1 ? 1.0 : 0.0, tip = l == 5 ? 0.0 : live;
  const double pu = live * (20.0 + 12.0 * z), t = live * (10.0 + 4.0 * z), q = tip * 9.0 * (10.0 + 4.0 * z);
  const double first = l == 3 ? 1e-7 * D : 0.005 * D;
  const double residual = l % 2 == 1 ? 0.8 : 1.0;
  return curve("RVSOILPY", p, d, l,
               finished({{first, 0.5 * pu}, {0.05 * D, 0.72 * pu}, {0.15 * D, pu}, {0.4 * D, pu}}, far)) +
         curve("RVSOILQZ", p, d, l,
               finished({{0.002 * D, 0.25 * q}, {0.013 * D, 0.5 * q}, {0.042 * D, 0.75 * q}, {0.1 * D, q}},
                        far, 0.0)) +
         curve("RVSOILTZ", p, d, l,
               finished(
                   {{0.0016 * D, 0.3 * t}, {0.0057 * D, 0.75 * t}, {0.01 * D, t}, {0.02 * D, residual * t}},
                   far, 0.9));
}

std::string monopile_curve(const std::string& name, double p, double l, double d, double force) {
  std::vector<double> values = {63.0, p, d, l, 29.0};
  const std::vector<double> pairs = finished({{0.01, 0.5 * force}, {0.05, force}}, 2000.0);
  values.insert(values.end(), pairs.begin(), pairs.end());
  return record(name, values);
}

std::string profile(const shape& s, int p) {
  const std::string blanks(8, ' ');
  std::string label = s.label;
  label.resize(80, ' ');
  std::string out = record("TSOILPRF", {4.0, 1.0 * p, 110.0, 180.0}) + blanks + "BORING-" +
                    std::to_string(p) + "  \n" + blanks + label + "\n";
  for (int d = 1; d <= s.diameters; ++d) out += record("RDSOILDI", {4.0, 1.0 * p, 1.0 * d, 1.0 * d});
  out += record("RDSOIPRF", {13.0, 1.0 * p, 20090901.0, 0.0, 0.5, 1.0 * s.layers, 2.0, 1.0, 1.0 * s.diameters,
                             0.0, 0.0, 1.0, 0.5});
  out += record("RDSOIDSP", {8.0, 1.0 * p, 1.0, 2.0, 0.1, 0.0, 0.0, 0.0});
  for (int l = 1; l <= s.layers; ++l) {
    const double z = l - 0.5, sand = l % 2 == 0 ? 1.0 : 0.0;
    out += record("RVSOILAY",
                  {17.0, 1.0 * p, 1.0 * l, 1.0 * l, z, z - 1.0, 8.0 + sand, 34.5 * sand,
                   (1.0 - sand) * (20.0 + 3.5 * z), l > 1 ? 8.4 * (z - 1.0) : 0.0, 0.0,
                   sand > 0.0 ? 0.30000001192092896 : 0.5, 9100.0 * z, 3500.0 * z, 284.0, 293.0, 293.0});
  }
  for (int l = 1; l <= s.layers; ++l)
    for (int d = 1; d <= s.diameters; ++d) out += curves(s, p, l, d);
  if (!s.monopile) return out;
  for (int l = 1; l <= s.layers; ++l)
    for (int d = 1; d <= s.diameters; ++d)
      out += monopile_curve("RVSOILDM", p, l, d, 100.0 * l) +
             monopile_curve("RVSOILBS", p, l, d, l == s.layers ? 50.0 : 0.0);
  return out;
}

}  // namespace

std::string rif(const shape& s) {
  std::string out = record("IDENT   ", {1.0, 1.0, 0.0}) + record("DATE    ", {1.0, 0.0, 4.0, 72.0});
  for (const char* line : {"PROGRAM:  HALDE TERVAK      VERSION:      0.1.0", "DATE:     05-Mar-2024",
                           "COMPUTER: Linux", "USER:     engineer"}) {
    std::string text = std::string(8, ' ') + line;
    text.resize(72, ' ');
    out += text + "\n";
  }
  for (int p = 1; p <= s.profiles; ++p) out += profile(s, p);
  return out + record("IEND    ", {0.0, 0.0, 0.0, 0.0});
}

}  // namespace sample
