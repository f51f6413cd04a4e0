#include "report/options.hpp"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <map>
#include <set>

namespace tervak::report {
namespace {

/// A number from 1 to 9999, else 0.
std::size_t number_of(const std::string& text) {
  if (text.empty() || text.size() > 4 || text.find_first_not_of("0123456789") != std::string::npos) return 0;
  return std::stoul(text);
}

/// "3,5-7". Empty when it is no such list.
std::set<std::size_t> numbers_of(std::string text) {
  std::set<std::size_t> out;
  for (bool more = true; more;) {
    const std::size_t comma = text.find(','), dash = text.find('-');
    more = comma != std::string::npos;
    const bool range = dash < comma;
    const std::size_t first = number_of(text.substr(0, range ? dash : comma));
    const std::size_t last = range ? number_of(text.substr(dash + 1, comma - dash - 1)) : first;
    if (first == 0 || last < first) return {};
    for (std::size_t n = first; n <= last; ++n) out.insert(n);
    if (more) text.erase(0, comma + 1);
  }
  return out;
}

layer_selection selection_of(const std::string& text) {
  layer_selection out;
  const std::size_t slash = text.find('/');
  if (slash != std::string::npos) out.profile = number_of(text.substr(0, slash));
  const std::string layers = slash == std::string::npos ? text : text.substr(slash + 1);
  out.all = layers == "all";
  const std::set<std::size_t> numbers = out.all ? std::set<std::size_t>() : numbers_of(layers);
  out.layers.assign(numbers.begin(), numbers.end());
  if (out.profile == 0 || (out.layers.empty() && !out.all))
    throw usage_error("expected layers behind '--svg', as in 5, 3,5-7 or all, or 2/5 in profile 2, found '" +
                      text + "'");
  return out;
}

double percent_of(const std::string& text) {
  double value = 0.0;
  const char* const end = text.data() + text.size();
  const auto [rest, error] = std::from_chars(text.data(), end, value);
  if (error != std::errc() || rest != end || !std::isfinite(value) || value < 0.0)
    throw usage_error("expected a number of percent behind '--tolerance', as in 0.1, found '" + text + "'");
  return value;
}

class parser {
 public:
  options parse(const std::vector<std::string>& arguments) {
    bool only_names = false;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
      const std::string& argument = arguments[i];
      if (only_names || argument.empty() || argument[0] != '-') {
        names_.push_back(argument);
      } else if (argument == "--") {
        only_names = true;
      } else {
        const std::size_t sign = argument.rfind("--", 0) == 0 ? argument.find('=') : std::string::npos;
        const std::string name = argument.substr(0, sign);
        if (sign == std::string::npos && take_flag(name)) continue;
        if (!takes_value(name)) throw usage_error("unknown option '" + argument + "'");
        if (sign == std::string::npos && i + 1 == arguments.size())
          throw usage_error("option '" + name + "' expects a value behind it");
        values_[name] = sign == std::string::npos ? arguments[++i] : argument.substr(sign + 1);
      }
    }
    finish();
    return out_;
  }

 private:
  bool take_flag(const std::string& name) {
    const bool flag = name == "-h" || name == "--help" || name == "--version" || name == "--compare" ||
                      name == "--all-points";
    if (flag) flags_.insert(name == "-h" ? "--help" : name);
    return flag;
  }

  static bool takes_value(const std::string& name) {
    return name == "-o" || name == "--units" || name == "--svg" || name == "--csv" || name == "--json" ||
           name == "--tolerance";
  }

  bool given(const std::string& name) const { return values_.count(name) + flags_.count(name) > 0; }

  /// Refuses `name` unless one of `others` is given too.
  void belongs_to(const std::string& name, const std::vector<std::string>& others) const {
    const auto there = [&](const std::string& other) { return given(other); };
    if (given(name) && std::none_of(others.begin(), others.end(), there))
      throw usage_error("option '" + name + "' goes with '" + others.front() + "' only");
  }

  void apart(const std::string& a, const std::string& b) const {
    if (given(a) && given(b)) throw usage_error("options '" + a + "' and '" + b + "' exclude each other");
  }

  void take_value(const std::string& name, std::string& into) const {
    if (!given(name)) return;
    into = values_.at(name);
    if (into.empty()) throw usage_error("the name behind '" + name + "' is empty");
  }

  void check_pairs() const {
    for (const std::string other : {"--svg", "--csv", "--json"}) apart("--compare", other);
    for (const std::string table : {"--csv", "--json"}) {
      apart("--svg", table);
      apart("-o", table);
    }
    belongs_to("--all-points", {"--csv", "--json"});
    belongs_to("--tolerance", {"--compare"});
  }

  void take_names() {
    const std::size_t wanted = out_.what == task::comparison ? 2 : 1;
    if (names_.size() > wanted)
      throw usage_error(
          (wanted == 2 ? "expected two input files, found also '" : "expected one input file, found also '") +
          names_[wanted] + "'");
    if (wanted == 2 && names_.size() < 2)
      throw usage_error("expected two input files behind '--compare', found " +
                        std::to_string(names_.size()));
    if (!names_.empty()) out_.input = names_[0];
    if (wanted == 2) out_.after = names_[1];
    if (out_.input.empty() || (wanted == 2 && out_.after.empty()))
      throw usage_error("the name of the input file is empty");
  }

  void finish() {
    if (given("--help") || given("--version")) {
      out_.what = given("--help") ? task::help : task::version;
      return;
    }
    check_pairs();
    out_.what = given("--compare")                  ? task::comparison
                : given("--svg")                    ? task::pictures
                : given("--csv") || given("--json") ? task::tables
                                                    : task::page;
    out_.all_points = given("--all-points");
    if (given("--units") && !parse_units(values_["--units"], out_.u))
      throw usage_error("expected two unit names behind '--units', as in kN,m, found '" + values_["--units"] +
                        "'");
    if (given("--svg")) out_.selection = selection_of(values_["--svg"]);
    if (given("--tolerance")) out_.tolerance = percent_of(values_["--tolerance"]);
    take_value("-o", out_.output);
    take_value("--csv", out_.csv_directory);
    take_value("--json", out_.json_file);
    take_names();
  }

  std::vector<std::string> names_;
  std::map<std::string, std::string> values_;
  std::set<std::string> flags_;
  options out_;
};

}  // namespace

options parse_options(const std::vector<std::string>& arguments) { return parser().parse(arguments); }

bool asks_for_comparison(const std::vector<std::string>& arguments) {
  const auto end = std::find(arguments.begin(), arguments.end(), "--");
  return std::find(arguments.begin(), end, "--compare") != end;
}

}  // namespace tervak::report
