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

using D = TervakInputData;
constexpr int BOTH = 0;
constexpr bool REQUIRED = true, OPTIONAL = false;

const deck_table_of<point_load> POINTLOADS{
    "POINTLOADS",
    BOTH,
    OPTIONAL,
    {{"FRCPNT", in<&point_load::load>()}, {"FRCDST", in<&point_load::distance>()}},
    +[](Tervak& profile, const point_load& row) {
      profile.data.PointLoads.push_back(row.load);
      profile.data.PointLoadDistances.push_back(row.distance);
    }};

using S = SoilTypeRecord;
const deck_table_of<S> SOILTYPES{"SOILTYPES",
                                 4,
                                 REQUIRED,
                                 {{"number", in<&S::Number>()},
                                  {"GAMTOT", in<&S::TotalUnitWeight>()},
                                  {"PHI", in<&S::FrictionAngle>()},
                                  {"SU0", in<&S::SuAtZ0>()},
                                  {"SU100", in<&S::SuAtZ100>()},
                                  {"EPS50", in<&S::Eps50>()},
                                  {"OCR", in<&S::Ocr>()},
                                  {"APIJ", in<&S::ApiJ>()},
                                  {"OPEN", in<&S::OpenCrack>()},
                                  {"TRESMX", in<&S::ResidualRatio>()},
                                  {"TZZRES", in<&S::ResidualDisplacement>()}},
                                 records<&D::SoilTypes, S>()};

using Q = TzQzRecord;
const deck_table_of<Q> TZQZTABLE{"TZQZTABLE",
                                 4,
                                 REQUIRED,
                                 {{"ZTQZ", in<&Q::Z>()},
                                  {"TCMP", in<&Q::SkinFrictionCompression>()},
                                  {"TTNS", in<&Q::SkinFrictionTension>()},
                                  {"G0SOIL", in<&Q::ShearModulus>()},
                                  {"TZDRAT", in<&Q::TzDisplacementRatio>()},
                                  {"SIGTIP", in<&Q::TipStress>()},
                                  {"POIS", in<&Q::PoissonRatio>()},
                                  {"QZDRAT", in<&Q::QzDisplacementRatio>()}},
                                 list<&D::TzQzTable, Q>()};

using L = LayerRecord;
const deck_table_of<L> LAYERS{"LAYERS",
                              4,
                              REQUIRED,
                              {{"L1", in<&L::FirstLayer>()},
                               {"L2", in<&L::LastLayer>()},
                               {"TYPE", in<&L::SoilType>()},
                               {"ZBOTM", in<&L::BottomZ>()},
                               {"PYCODE", in<&L::PyCode>()},
                               {"TZCODE", in<&L::TzCode>()},
                               {"QZCODE", in<&L::QzCode>()}},
                              list<&D::Layers, L>()};

using M = SoilMainLayerRecord;
const deck_table_of<M> MAINLAYERS{"MAINLAYERS",
                                  5,
                                  REQUIRED,
                                  {{"number", in<&M::Number>()},
                                   {"ZMAIN", in<&M::BottomZ>()},
                                   {"GAMM", in<&M::TotalUnitWeight>()},
                                   {"CPTTOP", in<&M::CptTop>()},
                                   {"CPTBOT", in<&M::CptBottom>()},
                                   {"PHIM", in<&M::FrictionAngle>()},
                                   {"DRM", in<&M::RelativeDensity>()},
                                   {"SUTOP", in<&M::SuTop>()},
                                   {"SUBOT", in<&M::SuBottom>()},
                                   {"PLIM", in<&M::PlasticityIndex>()},
                                   {"EPSCM", in<&M::EpsC>()},
                                   {"APIJM", in<&M::ApiJ>()},
                                   {"KSOILM", in<&M::KSoil>()}},
                                  records<&D::MainLayers, M>()};

using F = SkinFrictionRecord;
const deck_table_of<F> SKINFRICTION{"SKINFRICTION",
                                    5,
                                    REQUIRED,
                                    {{"number", in<&F::Number>()},
                                     {"METHOD", in<&F::Method>()},
                                     {"TCMTOP", in<&F::CompressionTop>()},
                                     {"TCMBOT", in<&F::CompressionBottom>()},
                                     {"TTNTOP", in<&F::TensionTop>()},
                                     {"TTNBOT", in<&F::TensionBottom>()},
                                     {"QTPTOP", in<&F::TipTop>()},
                                     {"QTPBOT", in<&F::TipBottom>()},
                                     {"GOFAC", in<&F::GoFactor>()},
                                     {"TRESM", in<&F::ResidualRatio>()},
                                     {"TZZRSM", in<&F::ResidualDisplacement>()}},
                                    records<&D::SkinFriction, F>()};

using B = SubdivisionRecord;
const deck_table_of<B> SUBDIVISION{"SUBDIVISION",
                                   5,
                                   REQUIRED,
                                   {{"number", in<&B::Number>()},
                                    {"ZMAIN", in<&B::BottomZ>()},
                                    {"NSUBM", in<&B::Subdivisions>()},
                                    {"PYCODM", in<&B::PyCode>()},
                                    {"TZCODM", in<&B::TzCode>()},
                                    {"QZCODM", in<&B::QzCode>()},
                                    {"OPENM", in<&B::OpenCrack>()},
                                    {"P-Y parameter 1", parameter<0>()},
                                    {"P-Y parameter 2", parameter<1>()},
                                    {"P-Y parameter 3", parameter<2>()},
                                    {"P-Y parameter 4", parameter<3>()},
                                    {"P-Y parameter 5", parameter<4>()}},
                                   records<&D::Subdivision, B>(),
                                   5};

using P = PyModificationRecord;
const deck_table_of<P> MODIFYPY{"MODIFYPY",
                                BOTH,
                                OPTIONAL,
                                {{"L1", in<&P::L1>()},
                                 {"L2", in<&P::L2>()},
                                 {"DIAMETER", in<&P::Diameter>()},
                                 {"PYFSTR", in<&P::PYFSTR>()},
                                 {"PYFDSP", in<&P::PYFDSP>()},
                                 {"PYGAP", in<&P::PYGAP>()},
                                 {"PYLIMS", in<&P::PYLIMS>()},
                                 {"PYFEND", in<&P::PYFEND>()},
                                 {"PYDEND", in<&P::PYDEND>()}},
                                records<&D::PyModification, P>()};

using A = AxialModificationRecord;
const deck_table_of<A> MODIFYTZ{"MODIFYTZ",
                                BOTH,
                                OPTIONAL,
                                {{"L1", in<&A::L1>()},
                                 {"L2", in<&A::L2>()},
                                 {"DIAMETER", in<&A::Diameter>()},
                                 {"TZFPOS", in<&A::FPOS>()},
                                 {"TZFNEG", in<&A::FNEG>()},
                                 {"TZFDSP", in<&A::FDSP>()},
                                 {"TZFEND", in<&A::FEND>()},
                                 {"TZDEND", in<&A::DEND>()}},
                                records<&D::TzModification, A>()};
const deck_table_of<A> MODIFYQZ{"MODIFYQZ",
                                BOTH,
                                OPTIONAL,
                                {{"L1", in<&A::L1>()},
                                 {"L2", in<&A::L2>()},
                                 {"DIAMETER", in<&A::Diameter>()},
                                 {"QZFPOS", in<&A::FPOS>()},
                                 {"QZFNEG", in<&A::FNEG>()},
                                 {"QZFDSP", in<&A::FDSP>()},
                                 {"QZFEND", in<&A::FEND>()},
                                 {"QZDEND", in<&A::DEND>()}},
                                records<&D::QzModification, A>()};

using U = SoilDisplacementRecord;
const deck_table_of<U> DISPLACEMENTS{"DISPLACEMENTS",
                                     BOTH,
                                     OPTIONAL,
                                     {{"DSPLEV", in<&U::Z>()},
                                      {"DSPX", in<&U::X>()},
                                      {"DSPY", in<&U::Y>()},
                                      {"DSPZ", in<&U::ZDisplacement>()},
                                      {"HOLDIA", in<&U::HoleDiameter>()}},
                                     list<&D::SoilDisplacements, U>()};

using O = MonopileModificationRecord;
std::vector<deck_column<O>> monopile_factors(std::string_view force, std::string_view displacement) {
  return {{"LAY1", in<&O::LAY1>()},
          {"LAY2", in<&O::LAY2>()},
          {"DIAMETER", in<&O::Diameter>()},
          {force, in<&O::ForceFactor>()},
          {displacement, in<&O::DisplacementFactor>()}};
}
const deck_table_of<O> MODIFYMTHETA{"MODIFYMTHETA", BOTH, OPTIONAL, monopile_factors("MFACT", "THETAFACT"),
                                    records<&D::MthetaModification, O>()};
const deck_table_of<O> MODIFYBSY{"MODIFYBSY", BOTH, OPTIONAL, monopile_factors("BSFACT", "YFACT"),
                                 records<&D::BSYModification, O>()};
const deck_table_of<O> MODIFYBMTHETA{"MODIFYBMTHETA", BOTH, OPTIONAL, monopile_factors("BMFACT", "THETAFACT"),
                                     records<&D::BMthetaModification, O>()};

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
