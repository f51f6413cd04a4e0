#pragma once

// The rows of docs/validation.md, and the working of those that are compared with a published equation.

#include <functional>
#include <limits>
#include <string>
#include <vector>

#include "Control/state/common.hpp"

namespace validation {

constexpr double NOT_PUBLISHED = std::numeric_limits<double>::quiet_NaN();

/// One comparison.
struct row {
  std::string section;
  std::string cell;  ///< of a matrix: "matrix/line/column"
  std::string method;
  std::string input;   ///< for manual::prepare, and the numbers of the working
  std::string result;  ///< what is compared, with its unit
  std::string source;
  std::string formula;  ///< the published equation in steps "name = expression", separated by "; "; or empty
  std::function<double(tervak::common&)> ours;
  double tolerance = 1e-6;           ///< relative
  double published = NOT_PUBLISHED;  ///< the number itself, where there is no formula
};

using rows = std::vector<row>;

void add_lateral(rows& all);
void add_axial_capacity(rows& all);
void add_axial_curves(rows& all);
void add_stages(rows& all);

/// A working with the numbers of an input put in.
struct worked {
  std::vector<std::string> steps;  ///< "name = expression with numbers = value"
  double value;                    ///< of the last step
};

/// Works a formula. Its expressions have numbers, names of the input and of earlier steps, pi, + - * / ^,
/// and the functions sin, cos, tan, atan (degrees), tanh, exp, ln, log10, sqrt, min and max. Throws
/// std::runtime_error where it cannot be read.
worked work(const std::string& input, const std::string& formula);

}  // namespace validation
