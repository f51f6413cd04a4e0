#include <ctime>

#include "Control/state/identification.hpp"
#include "IO/interface_file/DataGroup.hpp"
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
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  localtime_r(&now, &local);
  std::string month = tervak::month_name(local.tm_mon);
  for (std::size_t i = 1; i < month.size(); ++i) month[i] = static_cast<char>(month[i] - 'A' + 'a');
  return halves("        DATE:     " + two_digits(local.tm_mday) + "-" + month + "-" +
                    std::to_string(local.tm_year + 1900),
                "TIME:         " + two_digits(local.tm_hour) + ":" + two_digits(local.tm_min) + ":" +
                    two_digits(local.tm_sec));
}

}  // namespace

std::shared_ptr<DGDATE> make_date_record(fem::text_ref name, fem::text_ref version, fem::text_ref date) {
  const tervak::platform_names& machine = tervak::platform();
  return std::make_shared<DGDATE>(std::vector<std::string>{
      program_line(name, version, date), clock_line(),
      halves("        COMPUTER: " + machine.operating_system, "INSTALLATION: " + machine.computer),
      halves("        USER:     " + machine.user, "ACCOUNT:                          ")});
}

}  // namespace IO::Tormal
