#include "report/options.hpp"

namespace tervak::report {

const char* const usage_text =
    "usage: tervak-report [--units FORCE,LENGTH] [-o OUT.html] [TERVAK.RIF]\n"
    "\n"
    "Reads an interface file of TERVAK and writes one HTML page that shows its layers and curves.\n"
    "\n"
    "  --units FORCE,LENGTH  names of the units of the run, as in kN,m; the file carries none, so that\n"
    "                        without this option the page says \"run units\"\n"
    "  -o OUT.html           the page to write; TERVAK.html when not given\n"
    "  -h, --help            this text\n"
    "\n"
    "The input is TERVAK.RIF when not given. The exit status is 0 when the page was written, 1 when the\n"
    "file cannot be read, is damaged or incomplete, or the page cannot be written, 2 for a wrong command line.\n";

options parse_options(const std::vector<std::string>& arguments) {
  options out;
  bool have_input = false, only_names = false;
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
    } else if (argument == "--units") {
      take_units(value());
    } else if (argument.rfind("--units=", 0) == 0) {
      take_units(argument.substr(8));
    } else {
      throw usage_error("unknown option '" + argument + "'");
    }
  }
  if (out.input.empty()) throw usage_error("the name of the input file is empty");
  if (out.output.empty()) throw usage_error("the name behind '-o' is empty");
  return out;
}

}  // namespace tervak::report
