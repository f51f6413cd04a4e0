#include "report/write_tables.hpp"

#include <algorithm>
#include <filesystem>

#include "Platform/names.hpp"
#include "report/csv_tables.hpp"
#include "report/deck_beside.hpp"
#include "report/files.hpp"
#include "report/json_tree.hpp"

namespace tervak::report {
namespace {

namespace fs = std::filesystem;

std::string in_directory(const options& o, const std::string& name) {
  return os::name_of(os::path_of(o.csv_directory) / name);
}

void refuse_input(const options& o, const std::string& name) {
  if (same_file(o.input, name)) throw usage_error("'" + name + "' is the input: the table would replace it");
}

/// Tables that a run of before left in the directory and that are not written now, as a reader would take
/// them for those of this file.
std::string left_over(const options& o, const std::vector<csv_file>& files) {
  std::string out;
  for (const std::string name : {"monopile.csv", "units.csv"}) {
    const bool written =
        std::any_of(files.begin(), files.end(), [&](const csv_file& f) { return f.name == name; });
    std::error_code error;
    if (!written && fs::exists(os::path_of(in_directory(o, name)), error))
      out += in_directory(o, name) + ": not of this file, it was there before\n";
  }
  return out;
}

}  // namespace

std::string write_tables(const options& o, const interface_file& file) {
  const deck_beside deck = read_deck_beside(o.input, file);
  const table_choice choice{o.all_points, o.u};
  std::string said;
  if (!o.csv_directory.empty()) {
    const std::vector<csv_file> files = csv_files(file, deck, choice);
    for (const csv_file& f : files) refuse_input(o, in_directory(o, f.name));
    if (!o.json_file.empty()) refuse_input(o, o.json_file);
    make_directory(o.csv_directory);
    for (const csv_file& f : files) {
      write_file(in_directory(o, f.name), f.text);
      const auto records = std::count(f.text.begin(), f.text.end(), '\n') - 1;
      said += in_directory(o, f.name) + ": records " + std::to_string(records) + "\n";
    }
    said += left_over(o, files);
  }
  if (!o.json_file.empty()) {
    refuse_input(o, o.json_file);
    write_file(o.json_file, json_tree(file, deck, choice));
    said += o.json_file + ": profiles " + std::to_string(file.profiles.size()) + "\n";
  }
  return said + (deck.why_not.empty() ? "Capacity counts from the local scour level of TERVAK.INP.\n"
                                      : "Capacity counts from the sea floor. " + deck.why_not + "\n");
}

}  // namespace tervak::report
