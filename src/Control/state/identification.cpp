#include "Control/state/identification.hpp"

#include <algorithm>
#include <cctype>
#include <string>
#include <string_view>
#include <vector>

#include "fem/write.hpp"
#include "Platform/local_time.hpp"
#include "Platform/platform_names.hpp"

namespace tervak {

namespace {

/// "Feb 19 2021" to "19-FEB-2021".
std::string release_date(std::string_view constant) {
  std::string day(constant.substr(4, 2));
  std::replace(day.begin(), day.end(), ' ', '0');
  std::string month(constant.substr(0, 3));
  for (char& c : month) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
  return day + "-" + month + "-" + std::string(constant.substr(constant.size() - 4));
}

std::string_view trimmed(std::string_view text) { return text.substr(0, text.find_last_not_of(' ') + 1); }

}  // namespace

void version_texts(fem::text_ref name, fem::text_ref title, fem::text_ref version, fem::text_ref spare1,
                   fem::text_ref spare2, fem::text_ref date) {
  name.assign("Tervak");
  title.assign("Structure/Pile/Soil Interaction Analysis");
  version.assign("7.6.1.21");
  spare1.assign("");
  spare2.assign("");
  date.assign(release_date("Feb 19 2021"));
}

const char* month_name(int month) {
  static constexpr const char* NAMES[] = {"JAN", "FEB", "MAR", "APR", "MAY", "JUN",
                                          "JUL", "AUG", "SEP", "OCT", "NOV", "DEC"};
  return NAMES[month];
}

void run_stamp(common& cmn, int mode, int unit_a, int unit_b, int& out, time_array& time) {
  const os::local_time now = os::local_now();
  time = {now.year, now.month, now.day, now.hour, now.minute, now.second};
  out = 0;
  if (mode != 1 && mode != 2) return;
  const auto print = [&](int unit) {
    const char* format =
        mode == 1
            ? "(/,' THIS RUN WAS STARTED :  ',2i1,'-',a3,'-',i4,'  AT  ',2i1,':',2i1,':',2i1,' HOURS')"
            : "(/,' THIS RUN WAS TERMINATED :  ',2i1,'-',a3,'-',i4,'  AT',2x,2i1,':',2i1,':',2i1,' HOURS')";
    // The month of the end stamp has always been January, whatever the date.
    const char* month = month_name(mode == 1 ? time[1] : 0);
    fem::write(cmn.units, unit, format, time[2] / 10, time[2] % 10, month, time[0], time[3] / 10,
               time[3] % 10, time[4] / 10, time[4] % 10, time[5] / 10, time[5] % 10);
  };
  if (unit_a >= 0) print(unit_a);
  if (unit_b >= 1) print(unit_b);
}

namespace {

constexpr std::size_t COLUMNS = 131;
constexpr std::size_t ROWS = 90;
constexpr std::string_view LETTERS[] = {
    "***********   ***********   *********     **       **        *        **      **",
    "***********   ***********   **********    **       **       ***       **     **",
    "    ***       **            **      **    **       **      ** **      **    **",
    "    ***       **            **      **     **     **      **   **     **   **",
    "    ***       ********      **********     **     **     **     **    ******",
    "    ***       ********      *********       **   **     **       **   *******",
    "    ***       **            **   **         **   **     ***********   **   **",
    "    ***       **            **    **         ** **      ***********   **    **",
    "    ***       ***********   **     **         ***       **       **   **     **",
    "    ***       ***********   **      ***        *        **       **   **      **",
};

/// The banner as a page of rows and columns that count from 1.
class page_image {
 public:
  page_image() : rows_(ROWS, std::string(COLUMNS, ' ')) {}

  void put(std::size_t row, std::size_t column, std::string_view text) {
    // A text of 80 characters that is centred on column 40 begins left of column 1.
    for (std::size_t i = column == 0 ? 1 : 0; i < text.size() && column + i <= COLUMNS; ++i)
      rows_.at(row - 1)[column + i - 1] = text[i];
  }
  void frame(std::size_t top, std::size_t bottom, std::size_t left, std::size_t right) {
    put(top, left, std::string(right - left + 1, '*'));
    put(bottom, left, std::string(right - left + 1, '*'));
    for (std::size_t row = top; row <= bottom; ++row) {
      put(row, left, "*");
      put(row, right, "*");
    }
  }
  /// A row without its trailing blanks, at most 90 and at least 1 character.
  [[nodiscard]] std::string row(std::size_t row) const {
    const std::string_view text = trimmed(rows_.at(row - 1));
    return std::string(text.empty() ? " " : text.substr(0, 90));
  }

 private:
  std::vector<std::string> rows_;
};

/// The name with a blank behind each letter.
std::string spaced(std::string_view name) {
  std::string target(2 * name.size(), ' ');
  fem::write_loop loop(fem::text_ref{target.data(), target.size()}, "(30(a,1x))");
  for (const char letter : name) {
    const char text[] = {letter, '\0'};
    loop(text);
  }
  loop.finish();
  return std::string(trimmed(target));
}

std::string machine_id(int id) {
  std::string target(10, ' ');
  fem::write(fem::text_ref{target.data(), target.size()}, id < 0 ? "(i10.9)" : "(i10.10)", id);
  return target;
}

std::string access_time(const time_array& time) {
  std::string target(24, ' ');
  fem::write(fem::text_ref{target.data(), target.size()}, "(i2.2,'-',a3,'-',i4,2x,i2.2,':',i2.2,':',i2.2)",
             time[2], month_name(time[1]), time[0], time[3], time[4], time[5]);
  return target;
}

void put_details(page_image& page, std::size_t row, fem::text_ref name, fem::text_ref version,
                 fem::text_ref date, const time_array& time) {
  const platform_names& machine = platform();
  page.put(row, 3, "Program id   : " + std::string(name.view()) + std::string(version.view()));
  page.put(row + 1, 3, "Release date : " + std::string(date.view()));
  page.put(row + 2, 3, "Access time  : " + access_time(time));
  if (!trimmed(machine.user).empty()) page.put(row + 3, 3, "User id      : " + machine.user);
  page.put(row, 43, "Computer         : " + machine.processor);
  page.put(row + 1, 43, "Impl. update     : ");
  page.put(row + 2, 43, "Operating system : " + machine.operating_system);
  page.put(row + 3, 43, "CPU id           : " + machine_id(machine.adapter_id));
  page.put(row + 4, 43, "Installation     : " + machine.computer);
}

}  // namespace

void banner(common& cmn, int unit, fem::text_ref name, fem::text_ref title, fem::text_ref version,
            fem::text_ref date, const time_array& time) {
  page_image page;
  for (std::size_t i = 0; i < std::size(LETTERS); ++i) page.put(4 + i, 7, LETTERS[i].substr(0, 100));

  const std::string_view word = trimmed(name.view());
  const std::string letters = spaced(word);
  std::size_t left = 40 - word.size();
  std::size_t right = left + letters.size() - 1;
  page.put(18, left, letters);

  const std::string_view words = trimmed(title.view());
  const auto centre = [&](std::size_t row, std::string_view text) {
    const std::size_t start = 40 - text.size() / 2;
    page.put(row, start, text);
    left = std::min(left, start);
    right = std::max(right, start + text.size() - 1);
  };
  const bool two_rows = words.size() > 80;
  centre(20, words.substr(0, 80));
  if (two_rows) centre(24, words.substr(80, 80));

  const std::size_t bottom = two_rows ? 26 : 22;
  page.frame(16, bottom, left > 5 ? left - 5 : 1, std::max<std::size_t>(right + 5, 40));

  const std::size_t details = two_rows ? 28 : 26;
  put_details(page, details, name, version, date, time);
  for (std::size_t row = 1; row <= details + 8; ++row)
    fem::write(cmn.units, unit, "(A)", page.row(row).c_str());
}

}  // namespace tervak
