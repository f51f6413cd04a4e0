// Prints docs/validation.md anew: published and independently computed values beside those of the routines. A
// test compares; to take a change over:   build/release/tests/validation_table > docs/validation.md The
// status is 1 when a row is outside its tolerance.

#include <cmath>
#include <cstdio>
#include <map>
#include <string>
#include <vector>

#include "manual_run.hpp"
#include "validation.hpp"

namespace {

using validation::row;

bool all_good = true;

/// A line of a matrix. An empty cell is to be held by rows; a text says why it is not.
struct line {
  std::string name;
  std::vector<std::string> cells;
};

struct matrix {
  const char* title;
  const char* family;
  std::vector<std::string> columns;
  std::vector<line> lines;
};

const std::string SHAPE = "as static", SOFT = "as soft", GIVEN = "given", NONE = "-";

const matrix MATRICES[] = {
    {"P-Y curves",
     "P-Y",
     {"sand static", "sand cyclic", "soft clay static", "soft clay cyclic", "stiff clay static",
      "stiff clay cyclic"},
     {{"pu of 214 to 588", {"", SHAPE, "", SHAPE, "by curve", "by curve"}},
      {"0", {GIVEN, GIVEN, GIVEN, GIVEN, GIVEN, GIVEN}},
      {"100", {"", SHAPE, "", SHAPE, SOFT, SOFT}},
      {"101", {"", SHAPE, "", SHAPE, SOFT, SOFT}},
      {"102", {"", SHAPE, "", SHAPE, SOFT, SOFT}},
      {"103", {"", SHAPE, "", SHAPE, SOFT, SOFT}},
      {"214", {"", "", "", "", "", ""}},
      {"284", {"", "", "", "", "", ""}},
      {"287", {"", "", "", "", "", ""}},
      {"380", {"", "", "", "", SOFT, SOFT}},
      {"404", {"", "", "", "", "", ""}},
      {"570", {"as 404", "as 404", "", "", "", ""}},
      {"588", {"", "", "as 287", "as 287", "as 287", "as 287"}},
      {"600", {NONE, NONE, "", "", SOFT, SOFT}}}},
    {"T-Z curves",
     "T-Z",
     {"clay compression", "clay tension", "sand compression", "sand tension"},
     {{"0", {GIVEN, GIVEN, GIVEN, GIVEN}},
      {"100", {"", "", "as clay", "as clay"}},
      {"101", {"", "", "as clay", "as clay"}},
      {"102", {"", "", "as clay", "as clay"}},
      {"103", {"", "", "as clay", "as clay"}},
      {"200", {"", "", "as clay", "as clay"}},
      {"214", {"", "", "", ""}},
      {"293", {"", "", "", ""}},
      {"588", {"as sand", "as sand", "", ""}}}},
    {"Q-Z curves",
     "Q-Z",
     {"clay", "sand"},
     {{"0", {GIVEN, GIVEN}},
      {"100", {"", "as clay"}},
      {"101", {"", "as clay"}},
      {"102", {"", "as clay"}},
      {"103", {"", "as clay"}},
      {"200", {"", ""}},
      {"214", {"", ""}},
      {"293", {"", ""}}}},
    {"Axial methods",
     "Axial methods",
     {"skin, clay, open", "skin, clay, closed", "skin, sand, open", "skin, sand, closed", "tip, clay, open",
      "tip, clay, closed", "tip, sand, open, plugged", "tip, sand, open, not plugged", "tip, sand, closed"},
     {{"API-93", {"", "as open", "", "", "", "as open", "", NONE, ""}},
      {"ICP-05", {"", "", "", "", "", "", "", "", ""}},
      {"NGI-05", {"", NONE, "", "", "", NONE, "", NONE, ""}}}},
    {"Stages",
     "Stages",
     {"rows"},
     {{"stress", {""}},
      {"scour", {""}},
      {"surface loads", {""}},
      {"depth", {""}},
      {"strength of the stiff clay", {""}},
      {"correlations, sand", {""}},
      {"correlations, clay", {""}},
      {"mean cone resistance", {""}},
      {"shear modulus, sand", {""}},
      {"shear modulus, clay", {""}},
      {"shear modulus, revision 4", {""}},
      {"factors on curves", {""}}}}};

std::string bar(const std::vector<std::string>& cells) {
  std::string text = "|";
  for (const std::string& cell : cells) text += " " + cell + " |";
  return text;
}

constexpr const char* INTRODUCTION = R"(# Validation

Our numbers beside published and independently worked ones, in kN, m, kPa and degrees. The routines themselves make this page, and a test
makes it anew.

- A published number has its source in its row.
- Any other expected number is worked on this page: below each table are the steps, by the equation of the source, with the numbers put
  in. A calculator gives the same. A small calculator of its own that shares nothing with the routines makes the values, and the test works
  every step again with awk.
- Where no published source is known the equation is that of the [manual of methods](methods/README.md), which the row then names. Such a row
  shows that the program does what its manual says, not that the method is right.
- A difference up to 0.003 % comes from constants of the routines that are in single precision and from pi taken as 3.14159.
- Point 1 is the first point after the origin; points in tension are negative. What an input does not give is as in the
  [manual of methods](methods/README.md#how-to-read-a-block): level 2 m, `GAMWAT` 10.05, `ATMPRS` 101.3, D 1, wall 0.05, open tip at 10 m.
- In the workings sin, cos and tan take degrees and atan gives them; ln is the natural logarithm, ^ the power.

## What is covered

Each cell has the number of rows below that hold it; **none** is a gap. "as static", "as clay" and the like: the same curve or value, made by
the same steps. "given": the deck gives the curve. "-": the program refuses the case or cannot reach it. Beyond these rows, each block of the
manual has a worked number.
)";

/// Prints a matrix and takes its cells out of those that rows hold.
void print_matrix(const matrix& m, std::map<std::string, int>& held) {
  std::printf("\n### %s\n\n| %s\n%s\n", m.title, bar(m.columns).c_str(),
              bar(std::vector<std::string>(m.columns.size() + 1, "---")).c_str());
  for (const line& l : m.lines) {
    std::vector<std::string> cells{l.name};
    for (std::size_t i = 0; i < l.cells.size(); ++i) {
      const auto found = held.find(std::string(m.family) + "/" + l.name + "/" + m.columns.at(i));
      if (!l.cells[i].empty())
        cells.push_back(l.cells[i]);
      else if (found == held.end())
        cells.emplace_back("**none**");
      else
        cells.push_back(std::to_string(found->second)), held.erase(found);
    }
    std::printf("%s\n", bar(cells).c_str());
  }
}

/// Prints the matrices. A row whose cell is in none of them, or in a cell with a text, is a fault.
void print_matrices(const validation::rows& all) {
  std::map<std::string, int> held;
  for (const row& r : all) ++held[r.cell];
  for (const matrix& m : MATRICES) print_matrix(m, held);
  for (const auto& [cell, count] : held) {
    std::fprintf(stderr, "validation_table: no cell in the matrices for %s\n", cell.c_str());
    all_good = false;
  }
}

double our_number(const row& r) {
  manual::run cmn;
  if (!manual::prepare(cmn, r.input)) {
    std::fprintf(stderr, "validation_table: cannot read the input \"%s\"\n", r.input.c_str());
    all_good = false;
    return validation::NOT_PUBLISHED;
  }
  return r.ours(cmn);
}

/// A table, and below it the workings of its rows.
void print_section(const validation::rows& all, std::size_t first, std::size_t last) {
  std::printf(
      "\n## %s\n\n| No | Method | Input | Result | Source | Expected | Ours | Difference | Tolerance |\n"
      "|---|---|---|---|---|---|---|---|---|\n",
      all[first].section.c_str());
  std::string workings;
  for (std::size_t i = first; i < last; ++i) {
    const row& r = all[i];
    double expected = r.published;
    if (!r.formula.empty()) {
      const validation::worked w = validation::work(r.input, r.formula);
      expected = w.value;
      workings += "\nNo " + std::to_string(i + 1) + ":\n\n";
      for (const std::string& step : w.steps) workings += "    " + step + "\n";
    }
    const double ours = our_number(r);
    const double difference = std::abs(ours - expected) / std::abs(expected);
    if (!(difference <= r.tolerance)) {
      all_good = false;
      std::fprintf(stderr, "validation_table: No %zu is outside its tolerance\n", i + 1);
    }
    std::printf("| %zu | %s | %s | %s | %s | %.9g | %.7g | %.4f %% | %.2g %% |\n", i + 1, r.method.c_str(),
                r.input.c_str(), r.result.c_str(), r.source.c_str(), expected, ours, 100.0 * difference,
                100.0 * r.tolerance);
  }
  if (!workings.empty()) std::printf("\n### Working\n%s", workings.c_str());
}

}  // namespace

int main() {
  validation::rows all;
  validation::add_lateral(all);
  validation::add_axial_capacity(all);
  validation::add_axial_curves(all);
  validation::add_stages(all);
  std::printf("%s", INTRODUCTION);
  print_matrices(all);
  for (std::size_t first = 0; first < all.size();) {
    std::size_t last = first;
    while (last < all.size() && all[last].section == all[first].section) ++last;
    print_section(all, first, last);
    first = last;
  }
  return all_good ? 0 : 1;
}
