#include <sstream>

#include "invariants.hpp"
#include "report/page.hpp"
#include "report/read_interface_file.hpp"
#include "report/record_reader.hpp"

using namespace tervak::report;

namespace {

/// The page of the same numbers with other texts has as many tags, and as many attributes ahead of its data.
void texts_make_no_tags(interface_file file, const std::string& made, const units& u) {
  file.date_lines = {};
  for (profile& p : file.profiles) p.name = p.label = "";
  const std::string plain = page(file, {"T.RIF", u, {}, {}});
  const auto count = [](std::string_view text, char c) { return std::count(text.begin(), text.end(), c); };
  const auto body = [](const std::string& text) {
    return std::string_view(text).substr(0, text.find("<script"));
  };
  must(count(made, '<') == count(plain, '<'), "texts make no tag");
  must(count(body(made), '"') == count(body(plain), '"'), "texts leave no attribute");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  interface_file file;
  try {
    file = read_interface_file("T.RIF",
                               std::istringstream(std::string(reinterpret_cast<const char*>(data), size)));
  } catch (const rif_error& error) {
    must_be_printable(error.what(), 1000);
    return 0;
  }
  const units u;
  const std::string made = page(file, {"T.RIF", u, {}, {}});
  must_be_printable(made, made.size());
  texts_make_no_tags(std::move(file), made, u);
  return 0;
}
