#include <exception>
#include <filesystem>
#include <iostream>

#include "report/files.hpp"
#include "report/options.hpp"
#include "report/page.hpp"
#include "report/profile_tables.hpp"
#include "report/read_interface_file.hpp"

namespace {

using namespace tervak::report;

void write_report(const options& o) {
  const std::string text = read_file(o.input);
  const interface_file file = read_interface_file(o.input, text);
  write_file(o.output, page(file, std::filesystem::path(o.input).filename().string(), o.u));
  std::size_t layers = 0;
  for (const profile& p : file.profiles) layers += p.layers.size();
  std::cout << o.output << ": profiles " << file.profiles.size() << ", layers " << layers
            << "; curves with softening " << count_marked(file, mark_kind::softening)
            << ", with near-vertical pieces " << count_marked(file, mark_kind::vertical) << ", zero "
            << count_marked(file, mark_kind::zero) << '\n';
}

}  // namespace

int main(int count, char** arguments) {
  try {
    const options o = parse_options({arguments + 1, arguments + count});
    if (o.help) {
      std::cout << usage_text;
      return 0;
    }
    if (same_file(o.input, o.output))
      throw usage_error("'" + o.output + "' is the input: the page would replace it");
    write_report(o);
    return std::cout.flush() ? 0 : 1;
  } catch (const usage_error& error) {
    std::cerr << "tervak-report: " << error.what() << "; see tervak-report --help\n";
    return 2;
  } catch (const std::exception& error) {
    std::cerr << "tervak-report: " << error.what() << '\n';
    return 1;
  }
}
