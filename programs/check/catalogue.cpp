#include "check/catalogue.hpp"

#include <algorithm>

#include "check/catalogue_rows.hpp"

namespace tervak::check {

namespace {

/// The text of a message as the page shows it: a letter in place of a value.
std::string shown_record(std::string_view record) {
  std::string result;
  for (std::size_t i = 0; i < record.size(); ++i) {
    if (record[i] != '%' || i + 1 == record.size()) {
      result += record[i];
      continue;
    }
    const char kind = record[++i];
    result += kind == 'i' ? 'N' : kind == 'x' ? 'X' : 'T';
  }
  return result;
}

std::string cell(const known_message& row) {
  std::string result;
  for (const std::string_view message : split(row.text, '|')) {
    if (!result.empty()) result += "<br>or<br>";
    std::string records;
    for (const std::string_view record : split(message, '\n'))
      records += (records.empty() ? "`" : "<br>`") + shown_record(record) + "`";
    result += records;
  }
  return result;
}

/// A table row; an empty cell is one blank wide.
std::string table_row(std::initializer_list<std::string_view> cells) {
  std::string result = "|";
  for (const std::string_view text : cells) result += (text.empty() ? "" : " " + std::string(text)) + " |";
  return result + "\n";
}

}  // namespace

std::vector<std::string_view> split(std::string_view text, char separator) {
  std::vector<std::string_view> parts;
  for (;;) {
    const auto end = text.find(separator);
    parts.push_back(text.substr(0, end));
    if (end == std::string_view::npos) return parts;
    text.remove_prefix(end + 1);
  }
}

std::span<const message_section> message_sections() {
  static const message_section sections[] = {
      {"Start, files, end (CONTRL)", &rows::START_FILES_END},
      {"General values (READGE)", &rows::GENERAL_VALUES},
      {"Report of the input stages (LINERD)", &rows::LINE_REPORT},
      {"Surface loads, soil types, depth table, layers (READG2)",
       &rows::SURFACE_LOADS_SOIL_TYPES_DEPTH_TABLE_LAYERS},
      {"Main layers (REV5INP)", &rows::MAIN_LAYERS},
      {"Curves given by hand, factors, soil displacements (READG3)",
       &rows::CURVES_GIVEN_BY_HAND_FACTORS_SOIL_DISPLACEMENTS},
      {"Layer build (BUILD, BUILD5)", &rows::LAYER_BUILD},
      {"Pile nodes (PILEPLOT.TXT)", &rows::PILE_NODES},
      {"Soil strength (R5SOIL)", &rows::SOIL_STRENGTH},
      {"Axial capacity (R5AXCAP)", &rows::AXIAL_CAPACITY},
      {"P-Y curves", &rows::PY_CURVES},
      {"T-Z curves", &rows::TZ_CURVES},
      {"Q-Z curves", &rows::QZ_CURVES},
      {"Manual curves, laid out (TZMAN, QZMAN)", &rows::MANUAL_CURVES_LAID_OUT},
      {"Modification (MODIFY)", &rows::MODIFICATION},
      {"Monopile curves", &rows::MONOPILE_CURVES},
      {"On the listing", &rows::ON_THE_LISTING},
      {"On the USFOS exports", &rows::ON_THE_USFOS_EXPORTS},
      {"Interface file", &rows::INTERFACE_FILE},
  };
  return sections;
}

std::string catalogue_page() {
  std::string page;
  const auto title = [&](std::string_view text) { page += "## " + std::string(text) + "\n"; };
  for (const message_section& section : message_sections()) {
    title(section.title);
    for (const known_message& row : *section.messages) page += table_row({cell(row), row.run, row.meaning});
  }
  title("The deck is refused (import)");
  for (const known_refusal& row : known_refusals()) page += table_row({row.says, "ends, 1", row.meaning});
  title("A log that ends without its cause");
  for (const known_ending& row : known_endings()) page += table_row({row.last_line, row.meaning});
  return page;
}

}  // namespace tervak::check
