#include "report/value_lists.hpp"

#include <algorithm>
#include <cstdlib>

#include "report/text.hpp"

namespace tervak::report {
namespace {

/// Digits that the interface file carries. The script makes "5+3" with as many.
constexpr int file_digits = 9;

std::string halved_text(const std::vector<double>& v) {
  const std::size_t middle = v.size() / 2;
  if (v.size() % 2 == 0 || v[middle] != 0.0) return list_text(v);
  const auto lower = [&](std::size_t i) { return v[middle - i]; };
  bool mirrored = true, zero = true;
  for (std::size_t i = 1; i <= middle; ++i) {
    mirrored = mirrored && lower(i) == -v[middle + i];
    zero = zero && lower(i) == 0.0;
  }
  if (!mirrored && !zero) return list_text(v);
  const auto first = v.begin() + static_cast<std::ptrdiff_t>(middle) + 1;
  return (zero ? "0|" : "-|") + list_text(std::vector<double>(first, v.end()));
}

}  // namespace

std::size_t value_lists::add(const std::string& text) {
  const auto [place, fresh] = numbers.try_emplace(text, texts.size());
  if (fresh) texts.push_back(text);
  return place->second;
}

std::string value_lists::json() const {
  std::string out = "[";
  for (const std::string& text : texts) out += (out.size() > 1 ? "," : "") + json_text(text);
  return out + "]";
}

std::string list_text(const std::vector<double>& values) {
  std::string out;
  for (std::size_t i = 0; i < values.size();) {
    const std::string text = number_text(values[i]);
    const auto run = [&](double step) {
      std::size_t n = 1;
      while (i + n < values.size() &&
             number_text(values[i + n]) ==
                 (step == 0.0 ? text : rounded_text(values[i] + step * static_cast<double>(n), file_digits)))
        ++n;
      return n;
    };
    const std::size_t same = run(0.0), filled = same > 1 ? 1 : run(1.0);
    out += (out.empty() ? "" : " ") + text;
    if (same > 1) out += "*" + std::to_string(same);
    if (filled > 1) out += "+" + std::to_string(filled - 1);
    i += std::max(same, filled);
  }
  return out;
}

std::string list_text(const std::vector<std::optional<double>>& values) {
  std::vector<double> run;
  std::string out;
  const auto flush = [&] {
    if (!run.empty()) out += (out.empty() ? "" : " ") + list_text(run);
    run.clear();
  };
  for (const std::optional<double>& value : values)
    if (value) {
      run.push_back(std::strtod(rounded_text(*value, file_digits).c_str(), nullptr));
    } else {
      flush();
      out += out.empty() ? "-" : " -";
    }
  flush();
  return out;
}

std::string stress_text(const curve& c) {
  std::vector<double> v;
  for (const point& q : c) v.push_back(q.stress);
  return halved_text(v);
}

std::string displacement_text(const curve& c) {
  std::vector<double> v;
  for (const point& q : c) v.push_back(q.displacement);
  return halved_text(v);
}

}  // namespace tervak::report
