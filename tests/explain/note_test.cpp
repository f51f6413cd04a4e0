#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <set>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include "Control/run/CONTRL.hpp"
#include "explain/manual_places.hpp"
#include "explain/note_book.hpp"
#include "SoilCurves/axial/axial_methods.hpp"
#include "SoilCurves/py/py_methods.hpp"
#include "SoilCurves/store/curve_family.hpp"
#include "support/work_directory.hpp"

namespace {

namespace fs = std::filesystem;
using namespace tervak;
using namespace tervak::explain;
using part = note_subject::part;

std::string text_of(const fs::path& file) {
  std::ostringstream text;
  text << std::ifstream(file, std::ios::binary).rdbuf();
  return text.str();
}

/// Where a page of the manual names its symbols: tables and the paragraphs that open with "Symbols".
std::string symbols_of(const std::string& page) {
  std::istringstream lines(text_of(fs::path(TERVAK_SOURCE_DIR) / "docs/methods" / page));
  std::string symbols;
  bool inside = false;
  for (std::string line; std::getline(lines, line);) {
    if (line.starts_with("**Symbols")) inside = true;
    if (line.empty()) inside = false;
    if (inside || line.starts_with("|")) symbols += " " + line + " ";
  }
  return symbols;
}

bool has_word(const std::string& text, std::string_view word) {
  const auto in_word = [](char c) { return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '\''; };
  for (std::size_t at = text.find(word); at != std::string::npos; at = text.find(word, at + 1))
    if (!in_word(text[at - 1]) && !in_word(text[at + word.size()])) return true;
  return false;
}

/// Every name that is neither a symbol of its equation's page nor a term of its formula, once.
class name_check {
 public:
  name_check() {
    for (const equation_page& page : EQUATION_PAGES) {
      const std::string symbols = symbols_of(std::string(page.file));
      for (const equation& e : page.equations) known_[e.id] = " " + std::string(e.formula) + " \n" + symbols;
    }
  }
  void look_at(const told_step& step) {
    const std::string& known = known_.at(step.step->id);
    for (const note_value& value : step.values)
      if (!has_word(known, value.name))
        unknown_.insert(std::string(step.step->id) + ": " + std::string(value.name));
  }
  [[nodiscard]] const std::set<std::string>& unknown() const { return unknown_; }

 private:
  std::map<std::string_view, std::string> known_;
  std::set<std::string> unknown_;
};

/// A deck that was run in a directory of its own.
struct heard_run : work_directory {
  std::unique_ptr<common> cmn = std::make_unique<common>();
  note_book book{*cmn};
  int status = -1;

  explicit heard_run(const fs::path& deck) {
    put("TERVAK.INP", text_of(deck));
    put("tervak.inp", text_of(deck));
    const fs::path nodes = deck.parent_path() / "PILEPLOT.TXT";
    if (fs::exists(nodes)) put("PILEPLOT.TXT", text_of(nodes));
    cmn->NOTE = &book;
    status = CONTRL(*cmn);
    book.end_run();
  }
};

/// The greatest stress that the run state holds after all files are written.
double greatest(common& cmn, part family, int NL, int ND) {
  const curve_family curves = family == part::py   ? py_curves(cmn)
                              : family == part::tz ? tz_curves(cmn)
                                                   : qz_curves(cmn);
  double peak = curves.STR(1, diameter_number::of(ND), layer_number::of(NL));
  for (int i = 2; i <= cmn.MAXPNT; ++i)
    peak = std::max(peak, curves.STR(i, diameter_number::of(ND), layer_number::of(NL)));
  return peak;
}

std::vector<fs::path> decks() {
  std::vector<fs::path> found;
  for (const char* folder : {"examples", "tests/golden"})
    for (const auto& entry : fs::recursive_directory_iterator(fs::path(TERVAK_SOURCE_DIR) / folder))
      if (entry.path().extension() == ".inp" && entry.path().parent_path().filename() != "faults")
        found.push_back(entry.path());
  return found;
}

TEST(Note, EveryDeckHasItsFinishedCurvesAndKnownSymbolsAndEveryCodeItsSteps) {
  name_check names;
  std::set<std::pair<part, int>> codes;
  int stopped = 0;
  for (const fs::path& deck : decks()) {
    heard_run run(deck);
    ASSERT_FALSE(run.book.profiles().empty()) << deck;
    for (const told_profile& profile : run.book.profiles())
      for (const auto& [place, subject] : profile.subjects) {
        for (const told_step& step : subject.steps) names.look_at(step);
        const auto& [family, NL, ND] = place;
        if (ND == 0) continue;
        // The last steps are the factors of the deck, or that the layer is dead; those before are the
        // method's.
        const auto of_method =
            std::count_if(subject.steps.begin(), subject.steps.end(),
                          [](const told_step& s) { return !s.step->id.starts_with("MOD-"); });
        EXPECT_GT(of_method, 0) << deck << " layer " << NL << " diameter " << ND;
        codes.emplace(family, code_of(profile.layers.at(static_cast<std::size_t>(NL) - 1), family));
      }
    if (run.status != 0) {  // one deck of the tutorial stops on purpose
      ++stopped;
      continue;
    }
    const told_profile& last = run.book.profiles().back();
    for (int NL = 1; NL <= run.cmn->NUMLAY; ++NL)
      for (int ND = 1; ND <= run.cmn->NUMDIA; ++ND)
        for (const part family : {part::py, part::tz, part::qz}) {
          const told_subject* subject = last.find(family, NL, ND);
          ASSERT_NE(subject, nullptr) << deck;
          EXPECT_EQ(peak_of(subject->finished).stress, greatest(*run.cmn, family, NL, ND)) << deck << NL;
        }
  }
  EXPECT_EQ(stopped, 1);
  EXPECT_EQ(names.unknown(), std::set<std::string>());
  for (const auto& [family, methods] : {std::pair(part::py, py_methods()), std::pair(part::tz, tz_methods()),
                                        std::pair(part::qz, qz_methods())})
    for (const curve_method& method : methods)
      EXPECT_TRUE(codes.contains({family, method.code})) << method.label << " " << method.code;
}

}  // namespace
