#include "TervakExchange/deck_tables.hpp"

namespace Vrsk::Plin::TervakExchange {

namespace {

/// Two parallel lists in the object, one row in the deck.
struct point_load {
  double load = 0, distance = 0;
};

template <auto Member>
struct owner;
template <class R, class V, V R::*Member>
struct owner<Member> {
  using type = R;
};

template <auto Member>
constexpr auto in() {
  return +[](typename owner<Member>::type & record) -> auto& { return record.*Member; };
}
template <std::size_t I>
constexpr auto parameter() {
  return +[](SubdivisionRecord& record) -> double& { return record.PyParameters[I]; };
}

/// Appends to a list of the input data, which may be the records of a section.
template <auto List, class R>
constexpr auto list() {
  return +[](Tervak& profile, const R& record) { (profile.data.*List).push_back(record); };
}
template <auto Section, class R>
constexpr auto records() {
  return +[](Tervak& profile, const R& record) { (profile.data.*Section).Records.push_back(record); };
}

using input_data = TervakInputData;

const deck_table_of<point_load> POINTLOADS{
    "POINTLOADS",
    BOTH,
    OPTIONAL,
    {{"FRCPNT", in<&point_load::load>()}, {"FRCDST", in<&point_load::distance>()}},
    +[](Tervak& profile, const point_load& row) {
      profile.data.PointLoads.push_back(row.load);
      profile.data.PointLoadDistances.push_back(row.distance);
    }};

using soil_type = SoilTypeRecord;
const deck_table_of<soil_type> SOILTYPES{"SOILTYPES",
                                         4,
                                         REQUIRED,
                                         {{"number", in<&soil_type::Number>()},
                                          {"GAMTOT", in<&soil_type::TotalUnitWeight>()},
                                          {"PHI", in<&soil_type::FrictionAngle>()},
                                          {"SU0", in<&soil_type::SuAtZ0>()},
                                          {"SU100", in<&soil_type::SuAtZ100>()},
                                          {"EPS50", in<&soil_type::Eps50>()},
                                          {"OCR", in<&soil_type::Ocr>()},
                                          {"APIJ", in<&soil_type::ApiJ>()},
                                          {"OPEN", in<&soil_type::OpenCrack>()},
                                          {"TRESMX", in<&soil_type::ResidualRatio>()},
                                          {"TZZRES", in<&soil_type::ResidualDisplacement>()}},
                                         records<&input_data::SoilTypes, soil_type>()};

using tz_qz = TzQzRecord;
const deck_table_of<tz_qz> TZQZTABLE{"TZQZTABLE",
                                     4,
                                     REQUIRED,
                                     {{"ZTQZ", in<&tz_qz::Z>()},
                                      {"TCMP", in<&tz_qz::SkinFrictionCompression>()},
                                      {"TTNS", in<&tz_qz::SkinFrictionTension>()},
                                      {"G0SOIL", in<&tz_qz::ShearModulus>()},
                                      {"TZDRAT", in<&tz_qz::TzDisplacementRatio>()},
                                      {"SIGTIP", in<&tz_qz::TipStress>()},
                                      {"POIS", in<&tz_qz::PoissonRatio>()},
                                      {"QZDRAT", in<&tz_qz::QzDisplacementRatio>()}},
                                     list<&input_data::TzQzTable, tz_qz>()};

using layer = LayerRecord;
const deck_table_of<layer> LAYERS{"LAYERS",
                                  4,
                                  REQUIRED,
                                  {{"L1", in<&layer::FirstLayer>()},
                                   {"L2", in<&layer::LastLayer>()},
                                   {"TYPE", in<&layer::SoilType>()},
                                   {"ZBOTM", in<&layer::BottomZ>()},
                                   {"PYCODE", in<&layer::PyCode>()},
                                   {"TZCODE", in<&layer::TzCode>()},
                                   {"QZCODE", in<&layer::QzCode>()}},
                                  list<&input_data::Layers, layer>()};

using main_layer = SoilMainLayerRecord;
const deck_table_of<main_layer> MAINLAYERS{"MAINLAYERS",
                                           5,
                                           REQUIRED,
                                           {{"number", in<&main_layer::Number>()},
                                            {"ZMAIN", in<&main_layer::BottomZ>()},
                                            {"GAMM", in<&main_layer::TotalUnitWeight>()},
                                            {"CPTTOP", in<&main_layer::CptTop>()},
                                            {"CPTBOT", in<&main_layer::CptBottom>()},
                                            {"PHIM", in<&main_layer::FrictionAngle>()},
                                            {"DRM", in<&main_layer::RelativeDensity>()},
                                            {"SUTOP", in<&main_layer::SuTop>()},
                                            {"SUBOT", in<&main_layer::SuBottom>()},
                                            {"PLIM", in<&main_layer::PlasticityIndex>()},
                                            {"EPSCM", in<&main_layer::EpsC>()},
                                            {"APIJM", in<&main_layer::ApiJ>()},
                                            {"KSOILM", in<&main_layer::KSoil>()}},
                                           records<&input_data::MainLayers, main_layer>()};

using skin_friction = SkinFrictionRecord;
const deck_table_of<skin_friction> SKINFRICTION{"SKINFRICTION",
                                                5,
                                                REQUIRED,
                                                {{"number", in<&skin_friction::Number>()},
                                                 {"METHOD", in<&skin_friction::Method>()},
                                                 {"TCMTOP", in<&skin_friction::CompressionTop>()},
                                                 {"TCMBOT", in<&skin_friction::CompressionBottom>()},
                                                 {"TTNTOP", in<&skin_friction::TensionTop>()},
                                                 {"TTNBOT", in<&skin_friction::TensionBottom>()},
                                                 {"QTPTOP", in<&skin_friction::TipTop>()},
                                                 {"QTPBOT", in<&skin_friction::TipBottom>()},
                                                 {"GOFAC", in<&skin_friction::GoFactor>()},
                                                 {"TRESM", in<&skin_friction::ResidualRatio>()},
                                                 {"TZZRSM", in<&skin_friction::ResidualDisplacement>()}},
                                                records<&input_data::SkinFriction, skin_friction>()};

using subdivision = SubdivisionRecord;
const deck_table_of<subdivision> SUBDIVISION{"SUBDIVISION",
                                             5,
                                             REQUIRED,
                                             {{"number", in<&subdivision::Number>()},
                                              {"ZMAIN", in<&subdivision::BottomZ>()},
                                              {"NSUBM", in<&subdivision::Subdivisions>()},
                                              {"PYCODM", in<&subdivision::PyCode>()},
                                              {"TZCODM", in<&subdivision::TzCode>()},
                                              {"QZCODM", in<&subdivision::QzCode>()},
                                              {"OPENM", in<&subdivision::OpenCrack>()},
                                              {"P-Y parameter 1", parameter<0>()},
                                              {"P-Y parameter 2", parameter<1>()},
                                              {"P-Y parameter 3", parameter<2>()},
                                              {"P-Y parameter 4", parameter<3>()},
                                              {"P-Y parameter 5", parameter<4>()}},
                                             records<&input_data::Subdivision, subdivision>(),
                                             5};

using py_factors = PyModificationRecord;
const deck_table_of<py_factors> MODIFYPY{"MODIFYPY",
                                         BOTH,
                                         OPTIONAL,
                                         {{"L1", in<&py_factors::L1>()},
                                          {"L2", in<&py_factors::L2>()},
                                          {"DIAMETER", in<&py_factors::Diameter>()},
                                          {"PYFSTR", in<&py_factors::PYFSTR>()},
                                          {"PYFDSP", in<&py_factors::PYFDSP>()},
                                          {"PYGAP", in<&py_factors::PYGAP>()},
                                          {"PYLIMS", in<&py_factors::PYLIMS>()},
                                          {"PYFEND", in<&py_factors::PYFEND>()},
                                          {"PYDEND", in<&py_factors::PYDEND>()}},
                                         records<&input_data::PyModification, py_factors>()};

using axial_factors = AxialModificationRecord;
const deck_table_of<axial_factors> MODIFYTZ{"MODIFYTZ",
                                            BOTH,
                                            OPTIONAL,
                                            {{"L1", in<&axial_factors::L1>()},
                                             {"L2", in<&axial_factors::L2>()},
                                             {"DIAMETER", in<&axial_factors::Diameter>()},
                                             {"TZFPOS", in<&axial_factors::FPOS>()},
                                             {"TZFNEG", in<&axial_factors::FNEG>()},
                                             {"TZFDSP", in<&axial_factors::FDSP>()},
                                             {"TZFEND", in<&axial_factors::FEND>()},
                                             {"TZDEND", in<&axial_factors::DEND>()}},
                                            records<&input_data::TzModification, axial_factors>()};
const deck_table_of<axial_factors> MODIFYQZ{"MODIFYQZ",
                                            BOTH,
                                            OPTIONAL,
                                            {{"L1", in<&axial_factors::L1>()},
                                             {"L2", in<&axial_factors::L2>()},
                                             {"DIAMETER", in<&axial_factors::Diameter>()},
                                             {"QZFPOS", in<&axial_factors::FPOS>()},
                                             {"QZFNEG", in<&axial_factors::FNEG>()},
                                             {"QZFDSP", in<&axial_factors::FDSP>()},
                                             {"QZFEND", in<&axial_factors::FEND>()},
                                             {"QZDEND", in<&axial_factors::DEND>()}},
                                            records<&input_data::QzModification, axial_factors>()};

using soil_displacement = SoilDisplacementRecord;
const deck_table_of<soil_displacement> DISPLACEMENTS{
    "DISPLACEMENTS",
    BOTH,
    OPTIONAL,
    {{"DSPLEV", in<&soil_displacement::Z>()},
     {"DSPX", in<&soil_displacement::X>()},
     {"DSPY", in<&soil_displacement::Y>()},
     {"DSPZ", in<&soil_displacement::ZDisplacement>()},
     {"HOLDIA", in<&soil_displacement::HoleDiameter>()}},
    list<&input_data::SoilDisplacements, soil_displacement>()};

using monopile_row = MonopileModificationRecord;
std::vector<deck_column<monopile_row>> monopile_factors(std::string_view force,
                                                        std::string_view displacement) {
  return {{"LAY1", in<&monopile_row::LAY1>()},
          {"LAY2", in<&monopile_row::LAY2>()},
          {"DIAMETER", in<&monopile_row::Diameter>()},
          {force, in<&monopile_row::ForceFactor>()},
          {displacement, in<&monopile_row::DisplacementFactor>()}};
}
const deck_table_of<monopile_row> MODIFYMTHETA{"MODIFYMTHETA", BOTH, OPTIONAL,
                                               monopile_factors("MFACT", "THETAFACT"),
                                               records<&input_data::MthetaModification, monopile_row>()};
const deck_table_of<monopile_row> MODIFYBSY{"MODIFYBSY", BOTH, OPTIONAL, monopile_factors("BSFACT", "YFACT"),
                                            records<&input_data::BSYModification, monopile_row>()};
const deck_table_of<monopile_row> MODIFYBMTHETA{"MODIFYBMTHETA", BOTH, OPTIONAL,
                                                monopile_factors("BMFACT", "THETAFACT"),
                                                records<&input_data::BMthetaModification, monopile_row>()};

const deck_table* const TABLES[] = {&POINTLOADS,    &SOILTYPES,    &TZQZTABLE, &LAYERS,       &MAINLAYERS,
                                    &SKINFRICTION,  &SUBDIVISION,  &MODIFYPY,  &MODIFYTZ,     &MODIFYQZ,
                                    &DISPLACEMENTS, &MODIFYMTHETA, &MODIFYBSY, &MODIFYBMTHETA};

}  // namespace

std::span<const deck_table* const> deck_tables() { return TABLES; }

bool row_has_shape(const deck_statement& line, std::string_view who, std::size_t least, std::size_t most,
                   deck_faults& faults) {
  const std::size_t found = line.fields.size();
  if (found == least || found == most) return true;
  if (refuse_commas(line, std::string(who) + " row", faults)) return false;
  const deck_place& first = line.fields.front().place;
  const deck_place& last = line.fields.back().place;
  const std::string fields =
      least == most ? std::to_string(most) : std::to_string(least) + " or " + std::to_string(most);
  faults.add({first.line, first.column, last.column + last.length - first.column},
             std::string(who) + " row takes " + fields + " fields, found " + std::to_string(found) +
                 std::string(ascii_hint(line.code)));
  return false;
}

}  // namespace Vrsk::Plin::TervakExchange
