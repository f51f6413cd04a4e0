#include "run/verdict.hpp"

#include <algorithm>
#include <string_view>

#include "companion/deck_run.hpp"
#include "companion/run_files.hpp"
#include "companion/shown.hpp"

namespace tervak::run {

namespace {

using companion::shown;

constexpr int STOPPED = 255;  // -1 of the program

bool whole(const run_facts& facts, std::string_view name) {
  return std::any_of(
      facts.results.files.begin(), facts.results.files.end(),
      [&](const companion::file_state& file) { return file.name == name && file.fault.empty(); });
}

bool refused(std::string_view log) {
  return log.starts_with("tervak.inp:") || log.find("\ntervak.inp:") != std::string_view::npos;
}

/// Why a run is not good.
std::string reason(const run_facts& facts) {
  const std::string last = companion::last_line(facts.log), status = std::to_string(facts.end.status);
  if (!facts.end.failure.empty()) return "tervak " + companion::ending(facts.end);
  if (facts.end.signal != 0)
    return "it was " + companion::ending(facts.end) +
           ". The log ends with: " + (last.empty() ? "nothing" : shown(last));
  if (facts.log.empty())
    return "it made no run log (status " + status + "). Can files be written and moved in " +
           shown(facts.directory) + "?";
  if (refused(facts.log)) return "the deck was refused. Correct the places above (status " + status + ").";
  if (facts.end.status == STOPPED && last != companion::ERROR_EXIT)
    return "it was stopped (status -1). Its last message: " + (last.empty() ? "none" : shown(last));
  if (facts.end.status == STOPPED && whole(facts, "TERVAK.RIF"))
    return "the USFOS exports are not whole. TERVAK.RIF is whole.";
  if (facts.end.status != 0 || last != companion::NORMAL_EXIT)
    return "status " + status + ", and its log ends with: " + (last.empty() ? "nothing" : shown(last));
  return facts.results.trouble.empty()
             ? "it ended with NORMAL EXIT and status 0, but its results are not whole."
             : "it ended with NORMAL EXIT and status 0, but whether its results are whole cannot be told.";
}

}  // namespace

bool is_good(const run_facts& facts) {
  return facts.end.failure.empty() && facts.end.signal == 0 && facts.end.status == 0 &&
         companion::last_line(facts.log) == companion::NORMAL_EXIT && facts.results.whole();
}

std::string verdict(const run_facts& facts) {
  if (!is_good(facts)) {
    const std::string files = facts.end.failure.empty() ? "result files:\n" + text_of(facts.results) : "";
    return files + "The run is not good: " + reason(facts) + '\n';
  }
  std::string text = "result files, all whole:\n";
  for (const char* const name : companion::RUN_FILES) text.append("  ").append(name) += '\n';
  text += "The run is good";
  if (facts.warnings > 0)
    text += "; " + std::to_string(facts.warnings) + (facts.warnings == 1 ? " warning" : " warnings");
  return text + ".\n";
}

}  // namespace tervak::run
