#include "check/trial_run.hpp"

#include <stdexcept>

#include "companion/deck_run.hpp"
#include "companion/run_files.hpp"
#include "Platform/names.hpp"

namespace tervak::check {

std::string trial_run(const std::filesystem::path& deck, const deck_reading& reading,
                      const std::filesystem::path& program) {
  const companion::deck_run run(program, companion::read_input(deck, deck.parent_path()));
  if (!run.end().failure.empty())
    throw std::runtime_error("the trial run of " + os::name_of(program) + " " + companion::ending(run.end()));
  const std::string log = run.file("TERVAK.MLG").value_or("");
  if (run.end().status == 0 && companion::last_line(log) == companion::NORMAL_EXIT) return "";

  std::string text;
  const explained_log explained = explain(log, reading);
  for (const explanation* e : explained.failure()) text += e->text(reading) + "\n";
  if (text.empty())
    text = "error: the trial run ended with " + companion::ending(run.end()) + " and states no cause\n";
  return text;
}

}  // namespace tervak::check
