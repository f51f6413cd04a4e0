#include <exception>
#include <iostream>
#include <numeric>
#include <stdexcept>

#include "Platform/console.hpp"
#include "Platform/names.hpp"
#include "Platform/process.hpp"
#include "report/compare.hpp"
#include "report/compare_page.hpp"
#include "report/files.hpp"
#include "report/layer_picture.hpp"
#include "report/mark_rows.hpp"
#include "report/note_beside.hpp"
#include "report/options.hpp"
#include "report/page.hpp"
#include "report/read_interface_file.hpp"
#include "report/write_tables.hpp"

namespace {

using namespace tervak::report;
namespace os = tervak::os;

void refuse_input(const std::string& input, const std::string& output, const char* what) {
  if (same_file(input, output))
    throw usage_error("'" + output + "' is the input: the " + what + " would replace it");
}

void write_page(const options& o) {
  const std::string output = o.output.empty() ? "TERVAK.html" : o.output;
  refuse_input(o.input, output, "page");
  const interface_file file = read_interface_file(o.input, open_file(o.input));
  const page_facts facts{os::name_of(os::path_of(o.input).filename()), o.u, run_log_beside(o.input),
                         read_deck_beside(o.input, file), find_note_beside(o.input, output)};
  write_file(output, page(file, facts));
  std::size_t layers = 0;
  for (const profile& p : file.profiles) layers += p.layers.size();
  std::cout << output << ": profiles " << file.profiles.size() << ", layers " << layers
            << "; curves to look at " << count_marked(file, true) << ", with marks of their method "
            << count_marked(file, false) << '\n';
  for (const std::string& line : look_here_lines(file)) std::cout << line << '\n';
}

/// Refuses a number that the file does not have.
void in_file(const options& o, const std::string& what, std::size_t wanted, std::size_t count) {
  if (wanted > count)
    throw std::runtime_error(o.input + ": expected " + what + " from 1 to " + std::to_string(count) +
                             " after '--svg', found " + std::to_string(wanted));
}

void write_pictures(const options& o) {
  const interface_file file = read_interface_file(o.input, open_file(o.input));
  const std::size_t number = o.selection.profile;
  in_file(o, "a profile", number, file.profiles.size());
  const profile& p = file.profiles[number - 1];
  std::vector<std::size_t> layers = o.selection.layers;
  if (o.selection.all) {
    layers.resize(p.layers.size());
    std::iota(layers.begin(), layers.end(), std::size_t{1});
  }
  in_file(o, "a layer of profile " + std::to_string(number), layers.back(), p.layers.size());
  const bool one = layers.size() == 1;
  const auto output = [&](std::size_t l) {
    if (one) return o.output.empty() ? std::string("TERVAK.svg") : o.output;
    return os::name_of(os::path_of(o.output) /
                       ("p" + std::to_string(number) + "-l" + std::to_string(l) + ".svg"));
  };
  for (const std::size_t l : layers) refuse_input(o.input, output(l), "picture");
  if (!one && !o.output.empty()) make_directory(o.output);
  for (const std::size_t l : layers) {
    write_file(output(l), layer_picture(p, l - 1, o.u));
    std::cout << output(l) << ": profile " << number << ", layer " << l << '\n';
  }
}

/// The exit status: 0 alike, 1 different.
int compare(const options& o) {
  if (!o.output.empty())
    for (const std::string& input : {o.input, o.after}) refuse_input(input, o.output, "page");
  const interface_file before = read_interface_file(o.input, open_file(o.input));
  const interface_file after = read_interface_file(o.after, open_file(o.after));
  const comparison found = compare_files(before, after, o.tolerance);
  const std::string names = o.input + ", " + o.after;
  if (!o.output.empty()) write_file(o.output, compare_page(before, after, found, names, o.u));
  std::cout << comparison_text(found, names);
  return found.differences.empty() ? 0 : 1;
}

int run(const options& o) {
  switch (o.what) {
    case task::help:
      std::cout << usage_text;
      break;
    case task::version:
      std::cout << "tervak-report " << TERVAK_VERSION << '\n';
      break;
    case task::page:
      write_page(o);
      break;
    case task::pictures:
      write_pictures(o);
      break;
    case task::tables:
      std::cout << write_tables(o, read_interface_file(o.input, open_file(o.input)));
      break;
    case task::comparison:
      return compare(o);
  }
  return 0;
}

}  // namespace

int main(int count, char** arguments) {
  const std::vector<std::string> given = tervak::os::start_console(count, arguments);
  try {
    tervak::os::hold_standard_streams();
    const int status = run(parse_options(given));
    if (!std::cout.flush()) throw std::runtime_error("standard output cannot be written");
    return status;
  } catch (const usage_error& error) {
    std::cerr << "tervak-report: " << error.what() << "; see tervak-report --help\n";
    return 2;
  } catch (const std::exception& error) {
    std::cerr << "tervak-report: " << error.what() << '\n';
    return asks_for_comparison(given) ? 2 : 1;
  }
}
