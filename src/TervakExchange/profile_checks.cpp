#include "TervakExchange/profile_checks.hpp"

#include <algorithm>
#include <string>

#include "Measures/units.hpp"

namespace Vrsk::Plin::TervakExchange {

namespace {

/// A count that may be given beside its table.
struct counted_table {
  std::string_view count, table;
  int TervakInputData::*number;
};

constexpr counted_table COUNTED[] = {
    {"NUMTYP", "SOILTYPES", &TervakInputData::NumberOfSoilTypes},
    {"NUMTQZ", "TZQZTABLE", &TervakInputData::NumberOfTzQzRows},
    {"NUMLAYM", "MAINLAYERS", &TervakInputData::NumberOfMainLayers},
    {"NUMDSP", "DISPLACEMENTS", &TervakInputData::NumberOfDisplacements},
};

/// A keyword that cannot be left out beside another one.
constexpr struct {
  std::string_view given, needed;
} COMPANIONS[] = {{"SIGEMB", "AEMB"}, {"SIGEMB", "BEMB"}, {"SIGCIR", "RADCIR"}};

/// Factors, and the curves that they modify.
constexpr struct {
  std::string_view factors, curves;
} MODIFIED[] = {
    {"MODIFYMTHETA", "MANUALMTHETA"}, {"MODIFYBSY", "MANUALBSY"}, {"MODIFYBMTHETA", "MANUALBMTHETA"}};

/// A family of curves that a layer asks for by the code 0.
constexpr struct {
  std::string_view curves, family;
  int LayerRecord::*code4;
  int SubdivisionRecord::*code5;
} FAMILIES[] = {{"MANUALPY", "P-Y", &LayerRecord::PyCode, &SubdivisionRecord::PyCode},
                {"MANUALTZ", "T-Z", &LayerRecord::TzCode, &SubdivisionRecord::TzCode},
                {"MANUALQZ", "Q-Z", &LayerRecord::QzCode, &SubdivisionRecord::QzCode}};

std::string has_rows(std::string_view table, std::size_t rows) {
  return std::string(table) + " has " + std::to_string(rows) + (rows == 1 ? " row" : " rows");
}

int last_layer(const profile_draft& draft) {
  const auto& layers = draft.profile.data.Layers;
  return layers.empty() ? 0 : layers.back().LastLayer;
}

void check_missing(const profile_draft& draft, deck_faults& faults) {
  const deck_place heading{draft.map.heading, 1, 1};
  for (std::size_t i = 0; i < draft.uses.size(); ++i) {
    const deck_keyword& keyword = deck_keywords()[i];
    const keyword_use& use = draft.uses[i];
    // Without a revision nobody knows whether a keyword of one revision is missing.
    const bool needed =
        keyword.required && (keyword.revision == BOTH || keyword.revision == draft.profile.version);
    if (needed && !use.given && !use.meant)
      faults.add(heading, draft.title() + " has no " + std::string(keyword.name));
  }
  for (const auto& [given, needed] : COMPANIONS) {
    const keyword_use& companion = draft.use(needed);
    if (draft.use(given).given && !companion.given && !companion.meant)
      faults.add(heading, draft.title() + " has " + std::string(given) + " but no " + std::string(needed));
  }
}

void check_counts(const profile_draft& draft, deck_faults& faults) {
  for (const auto& [count, table, number] : COUNTED) {
    const keyword_use& given = draft.use(count);
    const keyword_use& rows = draft.use(table);
    if (!given.given || given.faulty || rows.meant || rows.cut) continue;
    const int promised = draft.profile.data.*number;
    if (promised == static_cast<int>(rows.rows)) continue;
    const std::string says = std::string(count) + " says " + std::to_string(promised);
    if (rows.given)
      faults.add(rows.place, has_rows(table, rows.rows) + ", " + says);
    else if (table == "DISPLACEMENTS")  // the other three tables are missing as it is
      faults.add({draft.map.heading, 1, 1}, draft.title() + " has no " + std::string(table) + ", " + says);
  }
  const keyword_use& main_layers = draft.use("MAINLAYERS");
  if (!main_layers.given || main_layers.cut) return;
  for (const std::string_view table : {"SKINFRICTION", "SUBDIVISION"}) {
    const keyword_use& use = draft.use(table);
    if (use.given && !use.cut && use.rows != main_layers.rows)
      faults.add(use.place,
                 has_rows(table, use.rows) + ", MAINLAYERS has " + std::to_string(main_layers.rows));
  }
}

void check_layer_count(const profile_draft& draft, deck_faults& faults) {
  const keyword_use& count = draft.use("NUMLAY");
  const keyword_use& layers = draft.use("LAYERS");
  if (count.faulty || !layers.given || layers.faulty) return;
  const int last = last_layer(draft);
  const int promised = draft.profile.data.NumberOfLayers;
  if (count.given && promised > last)
    faults.add(layers.place,
               "LAYERS ends at layer " + std::to_string(last) + ", NUMLAY says " + std::to_string(promised));
  if (count.given) return;
  // The rows behind the first one that reaches the last layer would not be used, and nobody asked for that.
  const auto& rows = draft.profile.data.Layers;
  const auto reaches = [last](const LayerRecord& row) { return row.LastLayer >= last; };
  const auto first = std::find_if(rows.begin(), rows.end(), reaches);
  if (first != rows.end() && first + 1 != rows.end())
    faults.add(layers.place, "LAYERS reaches its last layer, " + std::to_string(last) + ", in row " +
                                 std::to_string(first - rows.begin() + 1) + " of " +
                                 std::to_string(rows.size()) + "; the L2 ascend from row to row");
}

/// Whether some layer has the code 0. True also when the codes are not known.
bool code_zero_used(const profile_draft& draft, int LayerRecord::*code4, int SubdivisionRecord::*code5) {
  const TervakInputData& data = draft.profile.data;
  const int version = draft.profile.version;
  const keyword_use& codes = draft.use(version == 4 ? "LAYERS" : "SUBDIVISION");
  if (version == 0 || !codes.given || codes.faulty) return true;
  if (version == 5) {
    for (const SubdivisionRecord& record : data.Subdivision.Records)
      if (record.*code5 == 0) return true;
    return false;
  }
  const keyword_use& count = draft.use("NUMLAY");
  const int used = count.given && !count.faulty ? data.NumberOfLayers : last_layer(draft);
  for (const LayerRecord& record : data.Layers) {
    if (record.*code4 == 0) return true;
    if (record.LastLayer >= used) break;  // rows behind it are not used
  }
  return false;
}

void check_curves(const profile_draft& draft, deck_faults& faults) {
  for (const deck_curves& curves : deck_curves_tables()) {
    const keyword_use& use = draft.use(curves.name);
    if (use.given && use.curves == 0 && !use.cut)
      faults.add(use.place, std::string(curves.name) + " has no curve; AT, a layer and a diameter open one");
  }
  for (const auto& [curves, family, code4, code5] : FAMILIES) {
    const keyword_use& use = draft.use(curves);
    if (use.given && use.curves > 0 && !code_zero_used(draft, code4, code5))
      faults.add(use.place,
                 std::string(curves) + " is not used, no layer has the " + std::string(family) + " code 0");
  }
  for (const auto& [factors, curves] : MODIFIED) {
    const keyword_use& use = draft.use(factors);
    if (use.given && !draft.use(curves).given && !draft.use(curves).meant)
      faults.add(use.place,
                 std::string(factors) + " stands without " + std::string(curves) + ", which it modifies");
  }
}

}  // namespace

void check_profile(const profile_draft& draft, deck_faults& faults) {
  if (draft.empty)
    return faults.add({draft.map.heading, 1, 1}, draft.title() +
                                                     " has nothing behind its heading; at the end of a "
                                                     "deck stands END, and no text behind it");
  if (!draft.any_meant) check_missing(draft, faults);
  check_counts(draft, faults);
  check_layer_count(draft, faults);
  check_curves(draft, faults);
}

void complete_profile(profile_draft& draft) {
  Tervak& profile = draft.profile;
  TervakInputData& data = profile.data;
  for (const auto& [count, table, number] : COUNTED)
    if (!draft.use(count).given) data.*number = static_cast<int>(draft.use(table).rows);
  if (!draft.use("NUMLAY").given) data.NumberOfLayers = last_layer(draft);
  data.PyModification.Records.emplace_back();
  data.TzModification.Records.emplace_back();
  data.QzModification.Records.emplace_back();
  profile.sideSlope *= Measures::Runtime::FindUnit("angle", "deg").GetConversionFactor();
}

}  // namespace Vrsk::Plin::TervakExchange
