#include <exception>
#include <filesystem>
#include <iostream>
#include <stdexcept>

#include "Platform/console.hpp"
#include "report/files.hpp"
#include "report/layer_picture.hpp"
#include "report/options.hpp"
#include "report/page.hpp"
#include "report/profile_tables.hpp"
#include "report/read_interface_file.hpp"

namespace {

using namespace tervak::report;

void write_page(const options& o, const interface_file& file) {
  write_file(o.output, page(file, std::filesystem::path(o.input).filename().string(), o.u));
  std::size_t layers = 0;
  for (const profile& p : file.profiles) layers += p.layers.size();
  std::cout << o.output << ": profiles " << file.profiles.size() << ", layers " << layers
            << "; curves with softening " << count_marked(file, mark_kind::softening)
            << ", with near-vertical pieces " << count_marked(file, mark_kind::vertical) << ", zero "
            << count_marked(file, mark_kind::zero) << '\n';
}

/// Refuses a number that the file does not have.
void in_file(const options& o, const std::string& what, std::size_t wanted, std::size_t count) {
  if (wanted > count)
    throw std::runtime_error(o.input + ": expected " + what + " from 1 to " + std::to_string(count) +
                             " behind '--svg', found " + std::to_string(wanted));
}

void write_picture(const options& o, const interface_file& file) {
  in_file(o, "a profile", o.profile, file.profiles.size());
  const profile& p = file.profiles[o.profile - 1];
  in_file(o, "a layer of profile " + std::to_string(o.profile), o.layer, p.layers.size());
  write_file(o.output, layer_picture(p, o.layer - 1, o.u));
  std::cout << o.output << ": profile " << o.profile << ", layer " << o.layer << '\n';
}

void run(const options& o) {
  if (o.help) {
    std::cout << usage_text;
    return;
  }
  if (same_file(o.input, o.output))
    throw usage_error("'" + o.output + "' is the input: the " + (o.layer > 0 ? "picture" : "page") +
                      " would replace it");
  const interface_file file = read_interface_file(o.input, read_file(o.input));
  o.layer > 0 ? write_picture(o, file) : write_page(o, file);
}

}  // namespace

int main(int count, char** arguments) {
  try {
    run(parse_options(tervak::os::start_console(count, arguments)));
    if (!std::cout.flush()) throw std::runtime_error("standard output cannot be written");
    return 0;
  } catch (const usage_error& error) {
    std::cerr << "tervak-report: " << error.what() << "; see tervak-report --help\n";
    return 2;
  } catch (const std::exception& error) {
    std::cerr << "tervak-report: " << error.what() << '\n';
    return 1;
  }
}
