#include "report/deck_beside.hpp"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <sstream>
#include <stdexcept>

#include "Platform/names.hpp"
#include "report/files.hpp"
#include "report/text.hpp"
#include "TervakExchange/TervakMultipleSoilProfiles.hpp"

namespace tervak::report {
namespace {

namespace fs = std::filesystem;

using Vrsk::Plin::TervakExchange::Tervak;
using Vrsk::Plin::TervakExchange::TervakMultipleSoilProfiles;

constexpr const char* deck_name = "TERVAK.INP";
constexpr std::size_t label_width = 80;
constexpr std::size_t boring_width = 10;

/// One deck length in run units; a value of zero or less counts as 1.
double length_scale(const Tervak& from) {
  const double scale = from.GetTervakInputData().UnitM;
  return scale > 1e-10 ? scale : 1.0;
}

deck_profile take(const Tervak& from) {
  const auto& data = from.GetTervakInputData();
  const double scale = length_scale(from);
  deck_profile out;
  for (const auto& m : data.MainLayers.Records) out.main_layers.push_back({m.Number, m.BottomZ * scale});
  for (const auto& l : data.Layers) {
    if (out.main_layers.empty() || out.main_layers.back().number != l.SoilType)
      out.main_layers.push_back({l.SoilType, 0.0});
    out.main_layers.back().bottom = l.BottomZ * scale;
  }
  out.local_scour = (from.GetZSeafloor().value + from.GetDepthOfLocalScour().value) * scale;
  const auto& pile = data.SkinFriction;
  if (from.GetVersion() == 5)
    out.pile = {pile.PileDiameter * scale, pile.WallThickness * scale, pile.PileTipZ * scale};
  return out;
}

/// Equal but for the nine digits of the interface file.
bool same_length(double deck, double file) {
  return std::abs(deck - file) <= 1e-8 * std::max(std::abs(deck), std::abs(file));
}

std::string cut(const std::string& text, std::size_t width) {
  return std::string(trim_end(std::string_view(text).substr(0, width)));
}

/// Whether each layer lies on that side of the local scour level which its DEPTH says.
bool same_scour(const deck_profile& deck, const profile& file) {
  return std::all_of(file.layers.begin(), file.layers.end(), [&](const layer& l) {
    return same_length(l.ZLAY, deck.local_scour) || (l.ZLAY <= deck.local_scour) == l.above_scour();
  });
}

/// What of the profile differs from that of the file; empty when nothing does.
std::string difference(const Tervak& deck, const profile& file) {
  const auto& data = deck.GetTervakInputData();
  const double scale = length_scale(deck);
  if (cut(deck.GetHeader(), label_width) != file.label)
    return "the heading \"" + cut(deck.GetHeader(), label_width) + "\"";
  if (deck.GetVersion() == 5 && cut(data.Boring, boring_width) != file.name)
    return "the boring \"" + cut(data.Boring, boring_width) + "\"";
  if (!std::equal(data.Diameters.begin(), data.Diameters.end(), file.diameters.begin(), file.diameters.end(),
                  [&](double a, double b) { return same_length(a * scale, b); }))
    return "other diameters";
  if (!same_length(deck.GetZSeafloor().value * scale, file.sea_floor)) return "another sea floor";
  const bool same =
      same_length(deck.GetDepthOfScour().value * scale, file.general_scour) && same_scour(take(deck), file);
  return same ? "" : "another scour level";
}

std::string difference(const std::vector<Tervak>& deck, const interface_file& file) {
  if (deck.size() != file.profiles.size())
    return std::to_string(deck.size()) + (deck.size() == 1 ? " profile, not " : " profiles, not ") +
           std::to_string(file.profiles.size());
  for (std::size_t i = 0; i < deck.size(); ++i)
    if (const std::string what = difference(deck[i], file.profiles[i]); !what.empty())
      return what + " in profile " + std::to_string(i + 1);
  return "";
}

/// The profiles that a run works: one of revision 4 ends it.
std::vector<Tervak> worked(std::vector<Tervak> deck) {
  const auto last =
      std::find_if(deck.begin(), deck.end(), [](const Tervak& p) { return p.GetVersion() == 4; });
  if (last != deck.end()) deck.erase(last + 1, deck.end());
  return deck;
}

std::string first_line(std::string_view text) {
  return std::string(text.substr(0, text.find_first_of("\r\n")));
}

}  // namespace

deck_beside read_deck_beside(const std::string& rif_name, const interface_file& file) {
  const fs::path path = os::path_of(rif_name).parent_path() / deck_name;
  std::error_code error;
  if (!fs::exists(path, error))
    return {{}, std::string("There is no deck ") + deck_name + " in the directory of the file."};
  TervakMultipleSoilProfiles deck;
  try {
    std::istringstream stream(read_file(os::name_of(path)));
    deck.Import(stream, "m", "N", deck_name);
  } catch (const std::exception& fault) {
    return {{}, "The deck in the directory of the file cannot be read: " + first_line(fault.what())};
  }
  const std::vector<Tervak> profiles = worked(deck.GetSoilProfiles());
  if (const std::string what = difference(profiles, file); !what.empty())
    return {{},
            std::string("The deck ") + deck_name +
                " in the directory of the file is that of another run: it has " + what + "."};
  deck_beside out;
  for (const Tervak& p : profiles) out.profiles.push_back(take(p));
  return out;
}

}  // namespace tervak::report
