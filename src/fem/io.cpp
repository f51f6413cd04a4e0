#include "fem/io.hpp"

#include <stdexcept>

#include "fem/errors.hpp"
#include "fem/utils/source_position.hpp"
#include "fem/utils/stripped.hpp"
#include "Platform/streams.hpp"

namespace fem {

namespace {

void add_standard_unit(std::map<int, unit_file>& units, int unit, std::FILE* stream) {
  unit_file& file = units[unit];
  file.unit = unit;
  file.stream = stream;
}

bool truncate_here(std::FILE* stream) { return stream != nullptr && tervak::os::cut_here(stream); }

}  // namespace

io::io() {
  add_standard_unit(units_, 0, stderr);
  add_standard_unit(units_, 5, stdin);
  add_standard_unit(units_, 6, stdout);
}

io::~io() {
  for (auto& [unit, file] : units_) disconnect(file, false);
}

io& io::operator=(io&& other) noexcept {
  units_.swap(other.units_);  // `other` closes the files at its own end
  std::swap(scratch_names_, other.scratch_names_);
  return *this;
}

void io::disconnect(unit_file& file, bool remove) {
  if (is_standard_unit(file.unit) || file.stream == nullptr) return;
  static_cast<void>(std::fclose(file.stream));
  file.stream = nullptr;
  if (remove || file.status == file_status::scratch) static_cast<void>(std::remove(file.file_name.c_str()));
}

unit_file& io::fetch(int unit) {
  const auto found = units_.find(unit);
  if (found != units_.end()) return found->second;
  unit_file& file = units_[unit];
  file.unit = unit;
  finish_open(file, nullptr);
  return file;
}

void io::close_unit(int unit, int* iostat, bool remove) {
  const auto found = units_.find(unit);
  if (found == units_.end()) return;
  if (iostat != nullptr) *iostat = 0;
  disconnect(found->second, remove);
  units_.erase(found);
}

void io::rewind_unit(int unit, int* iostat) {
  unit_file& file = fetch(unit);
  if (file.stream != nullptr && std::fseek(file.stream, 0, SEEK_SET) == 0) {
    file.writing = false;
    if (iostat != nullptr) *iostat = 0;
    return;
  }
  file.open_failed = 1;
  if (iostat == nullptr) throw io_err("Error rewinding file: " + file.file_name);
  *iostat = 1;
}

void io::end_file(int unit) {
  if (is_standard_unit(unit)) utils::not_implemented();
  unit_file& file = fetch(unit);
  if (!truncate_here(file.stream)) throw io_err("ENDFILE failure: " + file.file_name);
  file.writing = false;
}

void io::backspace(int /*unit*/) { utils::not_implemented(); }

std::unique_ptr<utils::simple_ostream_to_c_file> io::stream_for_writing(int unit) {
  unit_file& file = fetch(unit);
  if (!file.writing) {
    if (!is_standard_unit(unit) && !truncate_here(file.stream))
      throw io_err("Cannot truncate file for writing: " + file.file_name);
    file.writing = true;
  }
  if (file.stream == nullptr) throw io_err("unit " + std::to_string(unit) + " has no open file to write to");
  return std::make_unique<utils::simple_ostream_to_c_file>(file.stream);
}

std::unique_ptr<utils::simple_istream_from_c_file> io::stream_for_reading(int unit) {
  unit_file& file = fetch(unit);
  if (file.stream == nullptr)
    throw io_err("unit " + std::to_string(unit) + " has no open file to read from: " + file.file_name);
  file.writing = false;
  return std::make_unique<utils::simple_istream_from_c_file>(file.stream);
}

int io::keyword_index(const char* const* table, std::string_view text, const char* context) {
  std::string word(utils::stripped(text));
  for (char& c : word)
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  for (int i = 0; table[i] != nullptr; ++i)
    if (word == table[i]) return i;
  if (context == nullptr) return -1;
  throw std::runtime_error(std::string(context) + ": invalid keyword: \"" + std::string(text) + "\"");
}

}  // namespace fem
