#include <algorithm>
#include <cstdio>

#include "IO/input/input_profile.hpp"
#include "support/text_rows.hpp"

namespace {

using strings = std::vector<std::string>;

/// Makes one change, as checks.txt has it, in the lines of a deck.
void make_change(strings& lines, const std::string& change) {
  const std::size_t end = change.find_first_of("=:");
  const strings name = parts_of(change.substr(0, end), '.');
  const std::string value = change.substr(end + 1);
  auto line =
      std::ranges::find_if(lines, [&](const std::string& l) { return parts_of(l, ' ').at(0) == name[0]; });
  if (change[end] == ':') {
    strings rows = parts_of(value, '/');
    if (line == lines.end()) line = lines.insert(line, name[0]);
    const auto behind = std::find_if(++line, lines.end(), [](const std::string& l) { return l[0] >= 'A'; });
    lines.insert(lines.erase(line, behind), rows.begin(), rows.end());
  } else if (name.size() == 1) {
    if (line == lines.end()) line = lines.insert(lines.begin() + 2, "");
    *line = name[0] + " " + value;
  } else {
    std::string& row = line[std::stoi(name[1])];
    strings fields = parts_of(row, ' ');
    fields.at(std::stoul(name[2]) - 1) = value;
    row.clear();
    for (const std::string& field : fields) row += field + " ";
  }
}

std::string deck_with(int revision, const std::string& changes, const std::string& value) {
  strings lines = parts_of(valid_deck(revision), '\n');
  for (const std::string& change : parts_of(replaced(changes, "?", value), ';')) make_change(lines, change);
  std::string deck;
  for (const std::string& line : lines) deck += line + "\n";
  return deck;
}

TEST(InputChecks, EachSideOfEachLimit) {
  for (const strings& row : rows_of("IO/input/checks.txt")) {
    ASSERT_GE(row.size(), 4U) << row[0];
    const int revision = row[0][0] - '0';
    const std::string routine = row[0].substr(2);
    for (const std::string& value : parts_of(row[2], ' ')) {
      SCOPED_TRACE(row[0] + " " + row[1] + " " + value);
      char text[400];
      const std::string message = replaced(replaced(row.at(4), "\\n", "\n"), "$", " ");
      std::snprintf(text, sizeof text, message.c_str(), std::stod(value));
      expect_log(profile_of(deck_with(revision, row[1], value)),
                 routine == "warns" ? passed(std::string(" ") + text) : refused(routine + " : " + text));
    }
    for (const std::string& value : parts_of(row[3], ' ')) {
      SCOPED_TRACE(row[0] + " " + row[1] + " " + value);
      expect_log(profile_of(deck_with(revision, row[1], value)), "");
    }
  }
}

}  // namespace
