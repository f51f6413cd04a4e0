#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "run/placed_record.hpp"

namespace tervak::run {

/// Puts the deck into a directory as TERVAK.INP and tervak.inp, and with it the PILEPLOT.TXT that is beside
/// the deck. A file there is replaced only where tervak-run has placed it and nobody has changed it since, or
/// where it holds the same bytes already; any other is refused. Nothing is written through a link.
class placing {
 public:
  /// Reads all that it needs and decides; throws refusal, with nothing touched.
  placing(const std::filesystem::path& deck, const std::filesystem::path& directory);

  /// Does it. Before it the record gets both what goes and what comes: a run that is killed in between leaves
  /// nothing that the next would not know.
  void place() const;

  [[nodiscard]] const std::string& deck() const { return deck_; }
  /// The directory has a PILEPLOT.TXT that is the user's, and none is beside the deck.
  [[nodiscard]] bool nodes_of_directory() const { return nodes_of_directory_; }

 private:
  enum class step { write, second_name, remove };
  struct target {
    std::string name;
    std::string bytes;
    step what;
  };

  void decide(const std::string& name, const std::string& bytes, const std::filesystem::path& source);
  void decide_pileplot(const std::filesystem::path& source);
  [[nodiscard]] bool is_second_name(const std::string& name) const;

  std::filesystem::path directory_;
  placed_record record_;
  std::string deck_;
  std::vector<target> targets_;
  std::vector<std::string> lines_;     ///< of the new record
  std::vector<std::string> replaced_;  ///< of what goes
  bool nodes_of_directory_ = false;
};

}  // namespace tervak::run
