#include "fem/utils/list_directed_to_string.hpp"

#include <cmath>

#include "fem/utils/printed_value.hpp"

namespace fem::utils {

namespace {

struct range {
  double below;
  const char* conversion;
};

constexpr range FROM_A_TENTH[] = {
    {1.0, "%18.15f     "}, {1e1, "%18.14f     "}, {1e2, "%18.13f     "}, {1e3, "%18.12f     "},
    {1e4, "%18.11f     "}, {1e5, "%18.10f     "}, {1e6, "%18.9f     "},  {1e7, "%18.8f     "},
    {1e8, "%18.7f     "},  {1e9, "%18.6f     "},  {1e10, "%18.5f     "}, {1e11, "%18.4f     "},
    {1e12, "%18.3f     "}, {1e13, "%18.2f     "}, {1e14, "%18.1f     "}, {1e15, "%17.0f.     "},
};

}  // namespace

std::string list_directed_to_string(double value) {
  const double a = std::fabs(value);
  if (a >= 0.1) {
    for (const range& row : FROM_A_TENTH)
      if (a < row.below) return std::string(printed_value(row.conversion, value).text());
  }
  std::string text(printed_value("%23.15E", value).text());
  if (text[text.size() - 4] == 'E') {  // an exponent of two digits
    text.insert(text.size() - 2, 1, '0');
    text.erase(0, 1);
  }
  return text;
}

}  // namespace fem::utils
