#pragma once

#include <map>
#include <string>
#include <tuple>
#include <vector>

#include "Control/state/note.hpp"
#include "SoilCurves/store/curve_point.hpp"

namespace tervak::explain {

/// A step as it was told.
struct told_step {
  const equation* step;
  std::string branch;
  std::vector<note_value> values;  ///< their names are literals of the program
};

/// All about one subject. A curve runs from the outermost point in tension to the outermost in compression.
struct told_subject {
  std::vector<told_step> steps;
  std::vector<curve_point> made, finished;
};

struct told_layer {
  double top = 0, bottom = 0, level = 0;
  layer_code code;
};

struct told_profile {
  int number = 0;
  std::string heading;
  double UNITM = 1, UNITF = 1;
  std::vector<double> diameters;
  std::vector<told_layer> layers;
  std::map<std::tuple<note_subject::part, int, int>, told_subject> subjects;

  /// Null where nothing was told.
  [[nodiscard]] const told_subject* find(note_subject::part of, int NL, int ND) const {
    const auto found = subjects.find({of, NL, ND});
    return found == subjects.end() ? nullptr : &found->second;
  }
};

/// Writes down what the run tells.
class note_book : public note_listener {
 public:
  /// `cmn` is the state of the run, which outlives the book's listening.
  explicit note_book(common& cmn) : cmn_(cmn) {}

  void begin_profile(int number) override;
  void about(const note_subject& subject) override;
  void tell(const equation& step, std::string_view branch, std::span<const note_value> values) override;
  void curve(bool finished) override;
  /// The run is over: takes the last profile's layers out of the run state.
  void end_run() { take_layers(); }

  [[nodiscard]] const std::vector<told_profile>& profiles() const { return profiles_; }
  /// What the last step was about; part layer, NL 0 before any.
  [[nodiscard]] const note_subject& last() const { return subject_; }

 private:
  told_subject& present();
  void take_layers();

  common& cmn_;
  note_subject subject_;
  std::vector<told_profile> profiles_;
};

/// The point of the greatest stress in compression, the first of equal ones; the origin of a curve without
/// stress.
curve_point peak_of(const std::vector<curve_point>& curve);

}  // namespace tervak::explain
