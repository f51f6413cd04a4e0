#include "TervakExchange/deck_layers.hpp"

#include <cmath>

namespace Vrsk::Plin::TervakExchange {

namespace {

constexpr int MOST_LAYERS = 500;
constexpr std::size_t MOST_DIAMETERS = 50;

bool add_layers(deck_layers& layers, int number, const std::array<int, 3>& codes) {
  if (number < 1 || number > MOST_LAYERS - layers.count()) return false;
  layers.codes.insert(layers.codes.end(), static_cast<std::size_t>(number), codes);
  return true;
}

/// Up to NUMLAY, which is the L2 of a row.
bool count_revision4(const profile_draft& draft, deck_layers& layers) {
  const TervakInputData& data = draft.profile.data;
  const keyword_use& count = draft.use("NUMLAY");
  if (count.faulty || count.meant || !draft.use("LAYERS").read_whole()) return false;
  for (const LayerRecord& row : data.Layers) {
    if (row.FirstLayer != layers.count() + 1 || row.LastLayer < row.FirstLayer || row.LastLayer > MOST_LAYERS)
      return false;
    if (!add_layers(layers, row.LastLayer - row.FirstLayer + 1, {row.PyCode, row.TzCode, row.QzCode}))
      return false;
    if (count.given && row.LastLayer >= data.NumberOfLayers) return row.LastLayer == data.NumberOfLayers;
  }
  return !count.given && layers.count() > 0;
}

bool count_revision5(const profile_draft& draft, deck_layers& layers) {
  const TervakInputData& data = draft.profile.data;
  const keyword_use& pile = draft.use("NUMPIL");
  if (pile.faulty || pile.meant || data.Subdivision.NumberOfPile != 0) return false;
  if (!draft.use("SUBDIVISION").read_whole() || !draft.use("MAINLAYERS").read_whole()) return false;
  int number = 0;
  for (const SoilMainLayerRecord& row : data.MainLayers.Records)
    if (row.Number != ++number) return false;
  if (data.Subdivision.Records.size() != data.MainLayers.Records.size()) return false;
  number = 0;
  for (const SubdivisionRecord& row : data.Subdivision.Records) {
    if (row.Number != ++number) return false;
    const int first = layers.count() + 1;
    if (!add_layers(layers, row.Subdivisions, {row.PyCode, row.TzCode, row.QzCode})) return false;
    layers.main_layers.push_back({first, layers.count()});
  }
  return number > 0;
}

}  // namespace

int deck_layers::diameter_number(double diameter) const {
  for (std::size_t i = 0; i < diameters.size(); ++i)
    if (std::abs(diameter - diameters[i]) * run_length < 1.0E-10) return static_cast<int>(i) + 1;
  return 0;
}

std::optional<deck_layers> known_layers(const profile_draft& draft) {
  const TervakInputData& data = draft.profile.data;
  deck_layers layers;
  layers.diameters = data.Diameters;
  if (!draft.use("DIAM").read_whole() || layers.diameters.empty() || layers.diameters.size() > MOST_DIAMETERS)
    return std::nullopt;
  if (data.UnitM > 0) layers.run_length = data.UnitM;
  const bool known = draft.profile.version == 4   ? count_revision4(draft, layers)
                     : draft.profile.version == 5 ? count_revision5(draft, layers)
                                                  : false;
  return known ? std::optional(std::move(layers)) : std::nullopt;
}

}  // namespace Vrsk::Plin::TervakExchange
