#pragma once

#include <string>
#include <utility>
#include <vector>

/// Interface files for tests, in the layout that the program writes.
namespace sample {

/// A record: the name in eight columns, fields of 16, four a line.
std::string record(const std::string& name, const std::vector<double>& values);

/// (displacement, stress) of the positive branch without the origin, as a finished curve: mirrored, a far
/// point at `far` with the last stress, filled to 29 points in steps of 1. The stresses of the negative side
/// are those of the positive times -`negative`. The result is stress, displacement, stress, ...
std::vector<double> finished(const std::vector<std::pair<double, double>>& branch, double far,
                             double negative = 1.0);

struct shape {
  int profiles = 1;
  int layers = 3;
  int diameters = 2;
  bool monopile = false;
  std::string label = "Three layers, two piles";
};

/// Layer 1 lies above the scour level; odd layers are clay with T-Z curves that soften to 0.8, even ones
/// sand. The Q-Z curves take no tension. Layer 3 has a P-Y curve that rises by half within a ten-millionth of
/// the diameter, layer 5 no tip resistance.
std::string rif(const shape& s = {});

}  // namespace sample
