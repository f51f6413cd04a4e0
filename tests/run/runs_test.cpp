// The runs of runs.txt.

#include <algorithm>
#include <fstream>
#include <map>
#include <sstream>

#include "run/small_deck.hpp"
#include "support/run_directory.hpp"
#include "support/text_rows.hpp"

namespace {

/// What the lines of a block give, by their word.
using block = std::map<std::string, std::vector<std::string>>;

std::vector<block> blocks() {
  std::ifstream in(std::string(TERVAK_SOURCE_DIR) + "/tests/run/runs.txt");
  std::vector<block> all;
  for (std::string line; std::getline(in, line);) {
    if (line.starts_with("== ")) all.push_back({{"what", {line.substr(3)}}});
    const std::size_t colon = line.find(':');
    if (line.empty() || line[0] == '#' || line[0] == '=' || colon == std::string::npos) continue;
    all.back()[line.substr(0, colon)].push_back(line.substr(std::min(colon + 2, line.size())));
  }
  return all;
}

std::string expanded(const std::string& text) {
  std::string out;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '\\' && text[i + 1] == 'x') {
      out += static_cast<char>(std::stoi(text.substr(i + 2, 2), nullptr, 16));
      i += 3;
    } else if (text[i] == '{') {
      const std::size_t star = text.find('*', i), end = text.find('}', i);
      const std::string part = text.substr(star + 1, end - star - 1);
      for (int n = 1; n <= std::stoi(text.substr(i + 1)); ++n) out += replaced(part, "#", std::to_string(n));
      i = end;
    } else {
      out += text[i];
    }
  }
  return replaced(out, "\\n", "\n");
}

std::string deck_of(block& b) {
  std::string deck = b.contains("text")   ? b["text"][0]
                     : b.contains("deck") ? file(b["deck"][0])
                                          : small_deck();
  for (const std::string& change : b["change"]) {
    const std::size_t arrow = change.find(" => ");
    deck = with(deck, expanded(change.substr(0, arrow)), expanded(change.substr(arrow + 4)));
  }
  for (const std::string& text : b["append"]) deck += expanded(text);
  return b.contains("text") ? expanded(deck) : deck;
}

/// The fields of the n-th record of a name, from 1.
std::vector<double> fields_of(const std::string& file, const std::string& name, int n) {
  std::size_t at = 0;
  for (; n > 0; --n) at = file.find("\n" + name, at) + 1;
  std::istringstream in(file.substr(at + 8));
  std::vector<double> fields(2);
  in >> fields[1];
  for (double value = 0; static_cast<double>(fields.size()) <= fields[1] && in >> value;)
    fields.push_back(value);
  return fields;
}

void expect_record(const std::string& file, const std::string& row, bool curve) {
  SCOPED_TRACE(row);
  std::vector<std::string> cells = parts_of(row, '|');
  const std::vector<std::string> head = parts_of(cells[0], ' ');
  const std::vector<double> found = fields_of(file, head[0], std::stoi(head[1]));
  ASSERT_EQ(found.size(), curve ? 67U : found.size());
  for (std::size_t k = 1; k < cells.size(); ++k) {
    std::istringstream in(cells[k]);
    double a = 0, b = 0, c = 0;
    in >> a >> b >> c;
    if (!curve) {
      EXPECT_NEAR(found.at(static_cast<std::size_t>(a)), b, c) << cells[k];
      continue;
    }
    const double tension = std::stod(head[2]);
    EXPECT_NEAR(found[35 + 2 * k], a, 1e-4 * a) << cells[k];
    EXPECT_NEAR(found[36 + 2 * k], b, 1e-4 * b) << cells[k];
    EXPECT_NEAR(found[39 - 2 * k], -tension * a, 1e-4 * a) << cells[k];
    EXPECT_NEAR(found[40 - 2 * k], -b, 1e-4 * b) << cells[k];
  }
}

std::string trimmed(const std::string& text) {
  std::string out;
  for (const char c : text) {
    if (c == '\n') out.erase(out.find_last_not_of(' ') + 1);
    if (c != '\r') out += c;
  }
  return out;
}

TEST(Runs, EndAndLeaveWhatTheirRowsSay) {
  for (block& b : blocks()) {
    SCOPED_TRACE(b["what"][0]);
    const run_directory directory;
    const std::string deck = deck_of(b);
    directory.deck(deck);
    EXPECT_EQ(directory.run(), std::stoi(b["status"].at(0)));
    const std::string log = trimmed(directory.read("TERVAK.MLG")),
                      end = log.substr(log.size() - std::min<std::size_t>(log.size(), 800));
    for (const std::string& text : b["log"])
      EXPECT_NE(log.find(expanded(text)), std::string::npos) << text << "\n" << end;
    for (const std::string& text : b["end"]) EXPECT_TRUE(log.ends_with(expanded(text) + "\n")) << end;
    EXPECT_EQ(directory.read("stdout") + directory.read("stderr"), "");
    for (const char* name : {"TERVAK.INP", "tervak.inp"})
      EXPECT_EQ(directory.read(name) == deck, true) << name;
    // A run that broke off leaves the temporary files, any other removes them.
    EXPECT_EQ(directory.has("fem_io_unit_015"), log.find("EXIT FROM TERVAK") == std::string::npos);
    for (const std::string& row : b["record"]) expect_record(directory.read("TERVAK.RIF"), row, false);
    for (const std::string& row : b["curve"]) expect_record(directory.read("TERVAK.RIF"), row, true);
  }
}

}  // namespace
