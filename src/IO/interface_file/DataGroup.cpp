#include "IO/interface_file/DataGroup.hpp"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <limits>
#include <utility>

namespace IO::Tormal {

namespace {

constexpr std::size_t FIELD_WIDTH = 16;
constexpr std::size_t FIELDS_PER_LINE = 4;
constexpr std::string_view CONTINUATION = "        ";

/// Fills the 16 columns at `field`, the widest number being "-1.00000000E+100".
void put_field(char* field, double value) {
  // Compilers differ in the sign of the NaN that they make.
  if (std::isnan(value)) value = std::numeric_limits<double>::quiet_NaN();
  char* const end = std::to_chars(field, field + FIELD_WIDTH, value, std::chars_format::scientific, 8).ptr;
  if (std::isfinite(value)) {
    *std::find(end - 5, end, 'e') = 'E';
  } else {
    std::transform(field, end, field, [](char c) { return c == '-' ? c : static_cast<char>(c - 'a' + 'A'); });
  }
  char* const begin = std::move_backward(field, end, field + FIELD_WIDTH);
  std::fill(field, begin, ' ');
}

}  // namespace

DataGroup::DataGroup(std::string name, std::uint32_t kind, std::vector<double> values,
                     std::vector<std::string> text_lines)
    : values_(std::move(values)),
      text_lines_(std::move(text_lines)),
      multi_line_names_{"SPRO",    "SCON",     "TD",       "GSETMEMB", "AMD",
                        "AMATRIX", "HIERARCH", "HSUPSTAT", "HSUPTRAN", "TSLAYER"},
      name_(std::move(name)),
      kind_(kind) {}

DGIDENT::DGIDENT() : DataGroup("IDENT   ", 0, {1.0, 1.0, 0.0}, {}) {}

DGDATE::DGDATE() : DGDATE(std::vector<std::string>(4, std::string(72, ' '))) {}

// Kind 1, a reserved 0, four text lines of 72 characters.
DGDATE::DGDATE(std::vector<std::string> text_lines)
    : DataGroup("DATE    ", 1, {1.0, 0.0, 4.0, 72.0}, std::move(text_lines)) {}

void write_record(std::ostream& writer, std::string_view name, std::span<const double> values) {
  const std::size_t lines = values.size() / FIELDS_PER_LINE + 1;
  std::string record(name.size() + values.size() * FIELD_WIDTH + lines * (CONTINUATION.size() + 1), ' ');
  char* at = std::copy(name.begin(), name.end(), record.data());
  for (std::size_t i = 0; i < values.size(); ++i) {
    if (i > 0 && i % FIELDS_PER_LINE == 0) {
      *at++ = '\n';
      at = std::copy(CONTINUATION.begin(), CONTINUATION.end(), at);
    }
    put_field(at, values[i]);
    at += FIELD_WIDTH;
  }
  if (!values.empty()) *at++ = '\n';
  writer.write(record.data(), at - record.data());
}

void write_record(std::ostream& writer, const DataGroup& group) {
  write_record(writer, group.name(), group.values());
  for (const std::string& line : group.text_lines()) writer << line << '\n';
}

}  // namespace IO::Tormal
