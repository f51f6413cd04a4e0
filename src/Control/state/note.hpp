#pragma once

#include <initializer_list>
#include <span>
#include <string_view>

#include "Control/state/common.hpp"
#include "Control/state/equations.hpp"

namespace tervak {

/// The unit of a value that is told: by run units, or fixed where a routine works in kN and m.
enum class in { none, length, stress, weight, degrees, metre, kilopascal, kn_per_metre, kn_per_m3 };

/// A value as the run used it. The name is a symbol of the equation's page or a term of its formula.
struct note_value {
  std::string_view name;
  double value = 0;
  in unit = in::none;
};

/// What a step is about: the profile (NL 0), a layer (ND 0), or a curve.
struct note_subject {
  enum class part { layer, axial, py, tz, qz };
  part of = part::layer;
  int NL = 0;
  int ND = 0;
};

/// Hears what the stages decide and compute. The run state has a pointer to one, null in `tervak`.
class note_listener {
 public:
  virtual ~note_listener() = default;
  /// A profile begins, before anything of it is read.
  virtual void begin_profile(int number) = 0;
  /// What the steps from now on are about.
  virtual void about(const note_subject& subject) = 0;
  /// A step: its equation, the branch that was taken and why ("" where there is no choice), inputs first and
  /// results last.
  virtual void tell(const equation& step, std::string_view branch, std::span<const note_value> values) = 0;
  /// The curve of the subject is in its table: as its method made it, or finished by the factors of the deck.
  virtual void curve(bool finished) = 0;
};

inline void note_about(const common& cmn, const note_subject& subject) {
  if (cmn.NOTE != nullptr) cmn.NOTE->about(subject);
}

/// Tells a step, at the cost of one test where nobody listens.
inline void note(note_listener* listener, const equation& step, std::string_view branch,
                 std::initializer_list<note_value> values) {
  if (listener != nullptr) listener->tell(step, branch, {values.begin(), values.size()});
}
inline void note(const common& cmn, const equation& step, std::initializer_list<note_value> values) {
  note(cmn.NOTE, step, "", values);
}
inline void note(const common& cmn, const equation& step, std::string_view branch,
                 std::initializer_list<note_value> values) {
  note(cmn.NOTE, step, branch, values);
}
/// The same about layer NL, for the stages that work all layers in turn; NL 0 is the profile.
inline void note_layer(const common& cmn, int NL, const equation& step, std::string_view branch,
                       std::initializer_list<note_value> values) {
  note_about(cmn, {note_subject::part::layer, NL, 0});
  note(cmn.NOTE, step, branch, values);
}

inline void note_curve(const common& cmn, bool finished) {
  if (cmn.NOTE != nullptr) cmn.NOTE->curve(finished);
}

}  // namespace tervak
