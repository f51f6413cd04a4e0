#include "check/profile_view.hpp"

#include <algorithm>

namespace tervak::check {

namespace exchange = Vrsk::Plin::TervakExchange;

namespace {

constexpr std::size_t MOST_LAYERS = 500;

bool holds(const std::vector<int>& codes, int code) {
  return std::find(codes.begin(), codes.end(), code) != codes.end();
}

bool holds_other_than_0(const std::vector<int>& codes) {
  return std::any_of(codes.begin(), codes.end(), [](int code) { return code != 0; });
}

}  // namespace

bool soil::uses_strength() const {
  return holds_other_than_0(py) || calculates_friction() || calculates_tip() || holds(tz, 200) ||
         holds(qz, 200);
}

bool soil::has_py(std::span<const int> codes) const {
  return std::any_of(codes.begin(), codes.end(), [this](int code) { return holds(py, code); });
}

profile_view::profile_view(const exchange::deck_reading& deck, std::size_t index)
    : deck_(deck), index_(index) {
  if (revision5()) {
    make_layers5();
    make_soils5();
  } else {
    make_layers4();
    make_soils4();
  }
}

double profile_view::top_of(std::size_t main_layer) const {
  return main_layer == 0 ? profile().zSeafloor : data().MainLayers.Records[main_layer - 1].BottomZ;
}

void profile_view::make_layers5() {
  const auto& rows = data().Subdivision.Records;
  if (data().Subdivision.NumberOfPile != 0 || rows.size() != data().MainLayers.Records.size()) return;
  std::size_t total = 0;
  for (const auto& row : rows) {
    const bool sound = row.Subdivisions > 0 && static_cast<std::size_t>(row.Subdivisions) <= MOST_LAYERS;
    if (!sound || (total += static_cast<std::size_t>(row.Subdivisions)) > MOST_LAYERS) return;
  }
  for (std::size_t m = 0; m < rows.size(); ++m) {
    const double top = top_of(m);
    const double height = (data().MainLayers.Records[m].BottomZ - top) / rows[m].Subdivisions;
    for (int n = 0; n < rows[m].Subdivisions; ++n)
      layers_.push_back({top + n * height, top + (n + 1) * height, top + (n + 0.5) * height, m});
  }
}

void profile_view::make_layers4() {
  const auto& rows = data().Layers;
  std::vector<calculation_layer> layers;
  double top = profile().zSeafloor;
  for (std::size_t r = 0; r < rows.size(); ++r) {
    const auto& row = rows[r];
    if (row.FirstLayer != static_cast<int>(layers.size()) + 1 || row.LastLayer < row.FirstLayer ||
        row.LastLayer > static_cast<int>(MOST_LAYERS) || row.LastLayer > data().NumberOfLayers)
      return;
    const int count = row.LastLayer - row.FirstLayer + 1;
    const double height = (row.BottomZ - top) / count;
    for (int n = 0; n < count; ++n) {
      const double z = top + n * height;
      layers.push_back({z, z + height, data().LevelSwitch == 2 ? z + height : z + height / 2, r});
    }
    top = row.BottomZ;
    if (row.LastLayer == data().NumberOfLayers) break;  // rows after it are not used
  }
  layers_ = std::move(layers);
}

void profile_view::make_soils5() {
  const auto& rows = data().MainLayers.Records;
  const auto& codes = data().Subdivision.Records;
  const auto& axial = data().SkinFriction.Records;
  if (codes.size() != rows.size() || axial.size() != rows.size()) return;
  for (std::size_t m = 0; m < rows.size(); ++m) {
    const auto& row = rows[m];
    soil s;
    s.table = "MAINLAYERS";
    s.row = m + 1;
    s.clay = row.SuTop + row.SuBottom > 0;
    s.unit_weight = row.TotalUnitWeight, s.angle = row.FrictionAngle, s.eps50 = row.EpsC, s.j = row.ApiJ;
    s.su_top = row.SuTop, s.su_bottom = row.SuBottom;
    s.py = {codes[m].PyCode}, s.tz = {codes[m].TzCode}, s.qz = {codes[m].QzCode};
    s.cone_top = row.CptTop, s.cone_bottom = row.CptBottom, s.density = row.RelativeDensity;
    s.plasticity = row.PlasticityIndex, s.method = axial[m].Method;
    s.friction_given =
        axial[m].CompressionTop + axial[m].CompressionBottom + axial[m].TensionTop + axial[m].TensionBottom !=
        0;
    s.tip_given = axial[m].TipTop + axial[m].TipBottom != 0;
    for (const auto& layer : layers_)
      if (layer.row == m && layer.level > scour_level())
        s.su.push_back(row.SuTop +
                       (row.SuBottom - row.SuTop) * (layer.level - top_of(m)) / (row.BottomZ - top_of(m)));
    if (layers_.empty()) s.su.push_back((row.SuTop + row.SuBottom) / 2);
    soils_.push_back(std::move(s));
  }
}

void profile_view::make_soils4() {
  const auto& types = data().SoilTypes.Records;
  for (std::size_t t = 0; t < types.size(); ++t) {
    const auto& type = types[t];
    soil s;
    s.table = "SOILTYPES";
    s.row = t + 1;
    s.clay = type.FrictionAngle == 0;
    s.unit_weight = type.TotalUnitWeight, s.angle = type.FrictionAngle, s.eps50 = type.Eps50, s.j = type.ApiJ;
    s.su_top = type.SuAtZ0, s.su_bottom = type.SuAtZ100;
    for (const auto& layer : layers_) {
      const auto& row = data().Layers[layer.row];
      if (row.SoilType != static_cast<int>(t) + 1) continue;
      s.py.push_back(row.PyCode), s.tz.push_back(row.TzCode), s.qz.push_back(row.QzCode);
      if (layer.level > scour_level())
        s.su.push_back(type.SuAtZ0 + (type.SuAtZ100 - type.SuAtZ0) * layer.level / 100);
    }
    if (!s.py.empty()) soils_.push_back(std::move(s));
  }
}

bool profile_view::is_added(std::string_view table, std::size_t record) const {
  const auto& records = deck_.maps()[index_].of(table).records;
  return record <= records.size() && records[record - 1].kind == exchange::record_kind::added;
}

const std::vector<exchange::ManualCurveRecord>& profile_view::curves(std::string_view table) const {
  if (table == "MANUALPY") return data().ManualPy.Records;
  if (table == "MANUALTZ") return data().ManualTz.Records;
  if (table == "MANUALQZ") return data().ManualQz.Records;
  if (table == "MANUALMTHETA") return data().ManualMtheta.Records;
  return table == "MANUALBSY" ? data().ManualBSY.Records : data().ManualBMtheta.Records;
}

bool profile_view::calculates_capacity() const {
  return std::any_of(soils_.begin(), soils_.end(),
                     [](const soil& s) { return s.calculates_friction() || s.calculates_tip(); });
}

bool profile_view::reads_clay_cone(const soil& s) const {
  if (!s.clay) return false;
  if (s.method == 2 && s.calculates_tip()) return true;
  const auto reads = [&](std::size_t other) {  // from 0
    return other < soils_.size() && !soils_[other].clay && soils_[other].method >= 2 &&
           soils_[other].calculates_tip();
  };
  return reads(s.row) || (s.row > 1 && reads(s.row - 2));
}

}  // namespace tervak::check
