#include <array>
#include <cstring>
#include <exception>
#include <new>
#include <string>
#include <utility>

#include "fem/read.hpp"
#include "fem/write.hpp"
#include "invariants.hpp"

namespace {

/// Formats come from the program, not from its user: one that asks for megabytes is no find.
bool is_modest(std::string_view format) {
  std::size_t product = 1, number = 0;
  for (const char c : format) {
    if (c == ' ' || c == '\t') continue;  // they part no number
    number = c >= '0' && c <= '9' ? 10 * number + static_cast<std::size_t>(c - '0') : 0;
    if (number > 0) product *= std::min<std::size_t>(number, 10);
    if (number > 999 || product > 100000) return false;
  }
  return true;
}

/// Hands over eight items of the kinds that the bytes name.
template <class Loop>
void transfer(Loop& loop, std::string_view bytes, bool reads) {
  fem::fixed_text<12> text;
  for (std::size_t i = 0; i + 8 <= std::min<std::size_t>(bytes.size(), 64); i += 8) {
    double real = 0.0;
    std::memcpy(&real, bytes.data() + i, sizeof real);
    int integer = static_cast<int>(bytes[i]) << (bytes[i + 1] & 15);
    if (!reads) text.assign(bytes.substr(i, 8));
    switch (bytes[i] & 3) {
      case 0:
        loop(integer);
        break;
      case 1:
        loop(text);
        break;
      default:
        loop(real);
    }
  }
  loop.finish();
}

/// One statement. A failure of the runtime is an exception with a text.
template <class Loop, class... Arguments>
void run(std::string_view bytes, bool reads, Arguments&&... arguments) {
  try {
    Loop loop(std::forward<Arguments>(arguments)...);
    transfer(loop, bytes, reads);
  } catch (const std::bad_alloc&) {
    throw;
  } catch (const std::exception& error) {
    must(error.what()[0] != '\0', "a failure has a text");
  }
}

}  // namespace

// A line with the format, then what names the items and is read.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view all(reinterpret_cast<const char*>(data), size);
  const std::string_view format = all.substr(0, all.find('\n'));
  std::string rest(all.substr(std::min(size, format.size() + 1)));
  if (rest.empty() || !is_modest(format)) return 0;

  std::array<char, 40> target;
  run<fem::write_loop>(rest, false, fem::text_ref{target.data(), target.size()}, format);
  char* written = nullptr;
  std::size_t written_size = 0;
  {
    fem::io units;
    fem::unit_file& unit = units.open_unit(7, "memory");
    unit.stream = open_memstream(&written, &written_size);
    unit.writing = true;
    run<fem::write_loop>(rest, false, units, 7, format);
    run<fem::write_loop>(rest, false, units, 7, fem::io_mode::list_directed);
  }
  must(written_size < 1000000, "a record is no longer than its format asks for");
  std::free(written);
  fem::io units;
  units.open_unit(7, "memory").stream = fmemopen(rest.data(), rest.size(), "r");
  run<fem::read_loop>(rest, true, units, 7, format);
  run<fem::read_loop>(rest, true, units, 7);
  run<fem::read_loop>(rest, true, units, 7, fem::io_mode::unformatted);
  return 0;
}
