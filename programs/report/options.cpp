#include "report/options.hpp"

namespace tervak::report {

const char* const usage_text =
    "usage: tervak-report [--svg [PROFILE/]LAYER] [--units FORCE,LENGTH] [-o OUT] [TERVAK.RIF]\n"
    "\n"
    "Reads an interface file of TERVAK and writes one HTML page that shows its layers and curves, or one SVG\n"
    "picture of the P-Y, T-Z and Q-Z curves of a layer.\n"
    "\n"
    "  --svg [PROFILE/]LAYER\n"
    "                        the picture of this layer in place of the page, as in 5 or 2/5; numbers count from\n"
    "                        1, and without PROFILE the first is meant\n"
    "  --units FORCE,LENGTH  names of the units of the run, as in kN,m; the file carries none, so that\n"
    "                        without this option the output says \"run units\"\n"
    "  -o OUT                the file to write; TERVAK.html or TERVAK.svg when not given\n"
    "  -h, --help            this text\n"
    "\n"
    "The input is TERVAK.RIF when not given. The exit status is 0 when the output was written, 1 when the\n"
    "file cannot be read, is damaged or incomplete, has no such layer, or the output cannot be written, 2 for a\n"
    "wrong command line.\n";

namespace {

/// A number from 1 to 9999, else 0.
std::size_t number_of(const std::string& text) {
  if (text.empty() || text.size() > 4 || text.find_first_not_of("0123456789") != std::string::npos) return 0;
  return std::stoul(text);
}

}  // namespace

options parse_options(const std::vector<std::string>& arguments) {
  options out;
  bool have_input = false, have_output = false, only_names = false;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string& argument = arguments[i];
    const auto value = [&]() -> const std::string& {
      if (i + 1 == arguments.size()) throw usage_error("option '" + argument + "' expects a value behind it");
      return arguments[++i];
    };
    const auto take_units = [&](const std::string& text) {
      if (!parse_units(text, out.u))
        throw usage_error("expected two unit names behind '--units', as in kN,m, found '" + text + "'");
    };
    const auto take_layer = [&](const std::string& text) {
      const std::size_t slash = text.find('/');
      out.profile = slash == std::string::npos ? 1 : number_of(text.substr(0, slash));
      out.layer = number_of(slash == std::string::npos ? text : text.substr(slash + 1));
      if (out.profile == 0 || out.layer == 0)
        throw usage_error("expected a layer behind '--svg', as in 5, or 2/5 in profile 2, found '" + text +
                          "'");
    };
    if (only_names || argument.empty() || argument[0] != '-') {
      if (have_input) throw usage_error("expected one input file, found also '" + argument + "'");
      out.input = argument;
      have_input = true;
    } else if (argument == "--") {
      only_names = true;
    } else if (argument == "-h" || argument == "--help") {
      out.help = true;
    } else if (argument == "-o") {
      out.output = value();
      have_output = true;
    } else if (argument == "--units") {
      take_units(value());
    } else if (argument.rfind("--units=", 0) == 0) {
      take_units(argument.substr(8));
    } else if (argument == "--svg") {
      take_layer(value());
    } else if (argument.rfind("--svg=", 0) == 0) {
      take_layer(argument.substr(6));
    } else {
      throw usage_error("unknown option '" + argument + "'");
    }
  }
  if (!have_output && out.layer > 0) out.output = "TERVAK.svg";
  if (out.input.empty()) throw usage_error("the name of the input file is empty");
  if (out.output.empty()) throw usage_error("the name behind '-o' is empty");
  return out;
}

}  // namespace tervak::report
