#include "TervakExchange/deck_curves.hpp"

#include <string>

#include "TervakExchange/deck_tables.hpp"
#include "TervakExchange/deck_values.hpp"

namespace Vrsk::Plin::TervakExchange {

namespace {

using input_data = TervakInputData;

template <auto Section>
constexpr auto records() {
  return +[](Tervak& profile) -> std::vector<ManualCurveRecord>& { return (profile.data.*Section).Records; };
}
template <bool ControlSection::*Flag>
constexpr auto flag() {
  return +[](Tervak& profile) { return &(profile.data.Control.*Flag); };
}
bool* no_flag(Tervak&) { return nullptr; }

constexpr deck_curves CURVES[] = {
    {"MANUALPY", "stress", "displacement", records<&input_data::ManualPy>(), no_flag},
    {"MANUALTZ", "stress", "displacement", records<&input_data::ManualTz>(), no_flag},
    {"MANUALQZ", "stress", "displacement", records<&input_data::ManualQz>(), no_flag},
    {"MANUALMTHETA", "moment", "rotation", records<&input_data::ManualMtheta>(),
     flag<&ControlSection::DMData>()},
    {"MANUALBSY", "force", "displacement", records<&input_data::ManualBSY>(),
     flag<&ControlSection::BSData>()},
    {"MANUALBMTHETA", "moment", "rotation", records<&input_data::ManualBMtheta>(),
     flag<&ControlSection::BMData>()},
};

}  // namespace

std::span<const deck_curves> deck_curves_tables() { return CURVES; }

void read_at(const deck_curves& curves, const deck_statement& line, Tervak& profile, deck_faults& faults) {
  ManualCurveRecord record;
  if (!refuse_commas(line, "AT", faults)) {
    if (line.fields.size() == 3) {
      if (is_main_layer(line.fields[1].text))
        read_main_layer(line.fields[1], "AT", record.Layer, faults);
      else
        read_integer(line.fields[1], "AT", "an integer as layer", record.Layer, faults);
      read_number(line.fields[2], "AT", "a number as diameter", record.Diameter, faults);
    } else {
      const std::size_t found = line.fields.size() - 1;
      faults.add(line.fields[0].place, "AT takes a layer and a diameter, found " + std::to_string(found) +
                                           (found == 1 ? " field" : " fields") + " behind it" +
                                           std::string(ascii_hint(line.code)));
    }
  }
  curves.records(profile).push_back(record);
}

bool read_point(const deck_curves& curves, const deck_statement& line, Tervak& profile, deck_faults& faults) {
  if (curves.records(profile).empty()) {
    faults.add(line.fields[0].place, "this row stands before the first AT of " + std::string(curves.name));
    return false;
  }
  if (row_has_shape(line, curves.name, 2, 2, faults)) {
    ManualCurveRecord& curve = curves.records(profile).back();
    const std::string who = std::string(curves.name) + " ";
    double force = 0, displacement = 0;
    const bool good = read_number(line.fields[0], who + std::string(curves.force), "a number", force, faults);
    if (read_number(line.fields[1], who + std::string(curves.displacement), "a number", displacement,
                    faults) &&
        good) {
      curve.Stresses.push_back(force);
      curve.Displacements.push_back(displacement);
    }
  }
  return true;
}

}  // namespace Vrsk::Plin::TervakExchange
