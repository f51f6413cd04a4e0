#include <array>
#include <filesystem>
#include <stdexcept>
#include <system_error>

#include "fem/errors.hpp"
#include "fem/io.hpp"
#include "fem/utils/source_position.hpp"
#include "fem/utils/stripped.hpp"
#include "Platform/names.hpp"
#include "Platform/streams.hpp"

namespace fem {

namespace {

bool exists(const std::string& name) {
  std::error_code error;
  static_cast<void>(std::filesystem::status(tervak::os::path_of(name), error));
  return error != std::errc::no_such_file_or_directory;
}

/// The stream at its start, null where that fails.
std::FILE* open_at_start(const std::string& name, const char* mode) {
  std::FILE* stream = tervak::os::open_stream(name, mode);
  if (stream == nullptr || std::fseek(stream, 0, SEEK_SET) == 0) return stream;
  static_cast<void>(std::fclose(stream));
  return nullptr;
}

void check_record_length(const unit_file& file) {
  const std::string text = "OPEN error: unit=" + std::to_string(file.unit) + " connected for ";
  if (file.access == file_access::direct && file.recl == 0) throw io_err(text + "DIRECT access but recl=0");
  if (file.access == file_access::sequential && file.recl != 0)
    throw io_err(text + "SEQUENTIAL access but recl=" + std::to_string(file.recl) + " (it must be omitted)");
}

void fill_unspecified(unit_file& file) {
  if (file.status == file_status::unspecified) file.status = file_status::unknown;
  if (file.status == file_status::scratch) file.file_name.clear();
  if (file.access == file_access::unspecified) file.access = file_access::sequential;
  check_record_length(file);
  if (file.form == file_form::unspecified)
    file.form = file.access == file_access::direct ? file_form::unformatted : file_form::formatted;
  if (file.blank == file_blank::unspecified) file.blank = file_blank::null;
}

std::string default_name(int unit) {
  std::array<char, 16> number;
  const int actual_width = std::snprintf(number.data(), number.size(), "%03d", unit);
  if (!(actual_width > 0)) utils::assertion_failed("actual_width > 0");
  return std::string("fem_io_unit_") + number.data();
}

void fail(unit_file& file, int* iostat, const char* text) {
  file.open_failed = 1;
  if (iostat == nullptr) throw io_err(text + file.file_name);
  *iostat = 1;
}

}  // namespace

unit_file& io::open_unit(int unit, std::string_view file_name) {
  std::string name(utils::stripped(file_name));
  if (const auto found = units_.find(unit); found != units_.end()) {
    if (name.empty())
      name = found->second.file_name;
    else if (name == found->second.file_name)
      utils::not_implemented();  // reopening a unit on its own file is left out
    disconnect(found->second, false);
    units_.erase(found);
  }
  unit_file& file = units_[unit];
  file.unit = unit;
  file.file_name = name;
  return file;
}

std::string io::actual_name(const unit_file& file) {
  if (!file.file_name.empty() || is_standard_unit(file.unit)) return file.file_name;
  if (file.status == file_status::scratch) return scratch_names_.next(exists);
  return default_name(file.unit);
}

void io::finish_open(unit_file& file, int* iostat) {
  fill_unspecified(file);
  file.file_name = actual_name(file);
  const bool existing = exists(file.file_name);
  if (file.status == file_status::old_file && !existing) {
    file.open_failed = 1;
    if (iostat != nullptr) *iostat = 1;
    return;
  }
  if (file.status == file_status::new_file && existing)
    return fail(file, iostat, "OPEN NEW error: file exists already: ");
  if (file.access == file_access::direct) utils::not_implemented();

  // Reading starts at the head of the file, all writing lands at its end.
  file.stream = open_at_start(file.file_name, "ab+");
  if (file.stream != nullptr) {
    if (file.status == file_status::new_file) file.status = file_status::old_file;
    return;
  }
  // A file that may only be read opens for reading.
  if (file.status != file_status::new_file) file.stream = open_at_start(file.file_name, "rb");
  if (file.stream == nullptr) fail(file, iostat, "Error opening file: ");
}

}  // namespace fem
