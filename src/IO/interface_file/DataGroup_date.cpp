#include "Control/state/identification.hpp"
#include "IO/interface_file/DataGroup.hpp"
#include "Platform/local_time.hpp"
#include "Platform/platform_names.hpp"

namespace IO::Tormal {

namespace {

/// Cut or padded with blanks to `width`.
std::string fitted(std::string text, std::size_t width) {
  text.resize(width, ' ');
  return text;
}

std::string halves(const std::string& left, const std::string& right) {
  return fitted(left, 38) + fitted(right, 34);
}

std::string program_line(fem::text_ref name, fem::text_ref version, fem::text_ref date) {
  std::string line = "        PROGRAM:  HALDE ";
  line += fitted(std::string(name.view()), 11);
  line += "   VERSION:      ";
  line += version.view().substr(0, 9);
  line += date.view();
  return line;
}

std::string two_digits(int number) {
  const std::string text = std::to_string(number);
  return text.size() < 2 ? "0" + text : text;
}

std::string clock_line() {
  const tervak::os::local_time now = tervak::os::local_now();
  std::string month = tervak::month_name(now.month);
  for (std::size_t i = 1; i < month.size(); ++i) month[i] = static_cast<char>(month[i] - 'A' + 'a');
  return halves(
      "        DATE:     " + two_digits(now.day) + "-" + month + "-" + std::to_string(now.year),
      "TIME:         " + two_digits(now.hour) + ":" + two_digits(now.minute) + ":" + two_digits(now.second));
}

}  // namespace

std::shared_ptr<DGDATE> make_date_record(fem::text_ref name, fem::text_ref version, fem::text_ref date) {
  const tervak::platform_names& machine = tervak::platform();
  return std::make_shared<DGDATE>(std::vector<std::string>{
      program_line(name, version, date), clock_line(),
      halves("        COMPUTER: " + machine.interface_file_system, "INSTALLATION: " + machine.computer),
      halves("        USER:     " + machine.user, "ACCOUNT:                          ")});
}

}  // namespace IO::Tormal
