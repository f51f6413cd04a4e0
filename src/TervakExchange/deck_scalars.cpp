#include "TervakExchange/deck_scalars.hpp"

#include <string>

#include "TervakExchange/deck_numbers.hpp"
#include "TervakExchange/deck_values.hpp"

namespace Vrsk::Plin::TervakExchange {

namespace {

using D = TervakInputData;
using T = Tervak;

/// The member at the end of a path of members, as a place to read into.
template <auto... Path>
constexpr auto at() {
  return +[](Tervak & profile) -> auto& { return (profile.*....*Path); };
}
template <auto... Path>
constexpr auto data() {
  return at<&T::data, Path...>();
}

constexpr int BOTH = 0;
constexpr bool REQUIRED = true, OPTIONAL = false;

constexpr deck_scalar SCALARS[] = {
    {"REVISION", BOTH, REQUIRED, 0, special_scalar::revision},
    {"BORING", 5, OPTIONAL, 0, special_scalar::boring},
    {"UNITF", BOTH, OPTIONAL, 1, data<&D::UnitF>()},
    {"UNITM", BOTH, OPTIONAL, 1, data<&D::UnitM>()},
    {"MIDBOT", 4, REQUIRED, 0, data<&D::LevelSwitch>()},
    {"GAMWAT", BOTH, REQUIRED, 0, at<&T::waterUnitWeight>()},
    {"ATMPRS", BOTH, REQUIRED, 0, data<&D::AtmosphericPressure>()},
    {"ZCYCL", BOTH, REQUIRED, 0, at<&T::lowestLevelWithCyclicPY>()},
    {"SUSTIF", BOTH, REQUIRED, 0, at<&T::lowestShearStiff>()},
    {"JPRINT", BOTH, OPTIONAL, 1, data<&D::PrintLevel>()},
    {"JECHO", BOTH, OPTIONAL, 0, data<&D::EchoSwitch>()},
    {"SFTPHI", BOTH, OPTIONAL, 1, at<&T::tanPhiCoeff>()},
    {"SFSU", BOTH, OPTIONAL, 1, at<&T::shearStrengthCoeff>()},
    {"SFSKF", BOTH, OPTIONAL, 1, at<&T::skinFrictionCoeff>()},
    {"SFSIGT", BOTH, OPTIONAL, 1, at<&T::pileTipResistanceCoeff>()},
    {"DIAM", BOTH, REQUIRED, 0, special_scalar::diameters},
    {"ESOL0", BOTH, REQUIRED, 0, at<&T::modulusOfElasticity>()},
    {"ESOL1", BOTH, REQUIRED, 0, at<&T::modulusOfElasticitySlope>()},
    {"ESOL2", 5, OPTIONAL, 1, data<&D::ThirdModulus>()},
    {"POSAVR", BOTH, REQUIRED, 0, at<&T::averagePoissonRatio>()},
    {"ZSEAFL", BOTH, REQUIRED, 0, at<&T::zSeafloor>()},
    {"SCRGEN", BOTH, OPTIONAL, 0, at<&T::depthOfScour>()},
    {"SCRLOC", BOTH, OPTIONAL, 0, at<&T::depthOfLocalScour>()},
    {"SCRSLP", BOTH, OPTIONAL, 0, at<&T::sideSlope>()},
    {"ZPWP", BOTH, REQUIRED, 0, data<&D::PorePressureLevel>()},
    {"GAMPWP", BOTH, REQUIRED, 0, data<&D::PorePressureUnitWeight>()},
    {"SIGSUR", BOTH, OPTIONAL, 0, at<&T::verticalStressAtSurface>()},
    {"SIGEMB", BOTH, OPTIONAL, 0, at<&T::verticalStressUnderEmbankment>()},
    {"AEMB", BOTH, OPTIONAL, 0, at<&T::widthOfEmbankmentSlopingPart>()},
    {"BEMB", BOTH, OPTIONAL, 0, at<&T::distancePileToEmbankmentToe>()},
    {"SIGCIR", BOTH, OPTIONAL, 0, at<&T::verticalStressUnderCircularLoadedArea>()},
    {"RADCIR", BOTH, OPTIONAL, 0, at<&T::radiusOfCircularLoadedArea>()},
    {"ZONINF", 4, REQUIRED, 0, data<&D::ZonInf>()},
    {"RFTZ", 4, REQUIRED, 0, data<&D::RfTz>()},
    {"DIAMP", 5, REQUIRED, 0, data<&D::SkinFriction, &SkinFrictionAndTipResistanceSectionV5::PileDiameter>()},
    {"WALL", 5, REQUIRED, 0, data<&D::SkinFriction, &SkinFrictionAndTipResistanceSectionV5::WallThickness>()},
    {"ZTIP", 5, REQUIRED, 0, data<&D::SkinFriction, &SkinFrictionAndTipResistanceSectionV5::PileTipZ>()},
    {"MATPIL", 5, REQUIRED, 0,
     data<&D::SkinFriction, &SkinFrictionAndTipResistanceSectionV5::PileMaterial>()},
    {"NUMPIL", 5, OPTIONAL, 0,
     data<&D::Subdivision, &MainLayersSubdivisionAndPyTzQzCodesSection::NumberOfPile>()},
    // When one of these counts is left out, the rows are counted once the profile is complete.
    {"NUMTYP", 4, OPTIONAL, 0, data<&D::NumberOfSoilTypes>()},
    {"NUMTQZ", 4, OPTIONAL, 0, data<&D::NumberOfTzQzRows>()},
    {"NUMLAY", 4, OPTIONAL, 0, data<&D::NumberOfLayers>()},
    {"NUMLAYM", 5, OPTIONAL, 0, data<&D::NumberOfMainLayers>()},
    {"NUMDSP", BOTH, OPTIONAL, 0, data<&D::NumberOfDisplacements>()},
};

void read_revision(const deck_field& field, Tervak& profile, deck_faults& faults) {
  if (!parse_revision(field.text, profile.version))
    faults.add(field.place,
               "REVISION takes 4 or 5, found " + shown(field.text) + std::string(comma_hint(field.text)));
}

/// The text behind the keyword, to the end of the line or to a comment.
void read_boring(const deck_statement& line, Tervak& profile) {
  if (line.fields.size() < 2) return;
  const std::string_view text = line.code.substr(line.fields[1].place.column - 1);
  profile.data.Boring = text.substr(0, text.find_last_not_of(" \t") + 1);
}

void read_diameters(const deck_statement& line, Tervak& profile, deck_faults& faults) {
  for (std::size_t i = 1; i < line.fields.size(); ++i) {
    double value = 0;
    if (read_number(line.fields[i], "DIAM", "one or more numbers", value, faults))
      profile.data.Diameters.push_back(value);
  }
}

std::string_view expected(const deck_scalar& scalar) {
  if (std::holds_alternative<deck_scalar::number_place>(scalar.place)) return "one number";
  if (std::holds_alternative<deck_scalar::integer_place>(scalar.place)) return "one integer";
  return std::get<special_scalar>(scalar.place) == special_scalar::revision ? "4 or 5"
                                                                            : "one or more numbers";
}

}  // namespace

bool parse_revision(std::string_view field, Version& revision) {
  int value = 0;
  if (parse_integer(field, value) != number_fault::none || (value != 4 && value != 5)) return false;
  revision = value;
  return true;
}

std::span<const deck_scalar> deck_scalars() { return SCALARS; }

void set_standard_values(Tervak& profile) {
  for (const deck_scalar& scalar : SCALARS) {
    if (const auto* number = std::get_if<deck_scalar::number_place>(&scalar.place))
      (*number)(profile) = scalar.standard;
    else if (const auto* integer = std::get_if<deck_scalar::integer_place>(&scalar.place))
      (*integer)(profile) = static_cast<int>(scalar.standard);
  }
}

void read_scalar(const deck_scalar& scalar, const deck_statement& line, Tervak& profile,
                 deck_faults& faults) {
  const auto* special = std::get_if<special_scalar>(&scalar.place);
  if (special && *special == special_scalar::boring) return read_boring(line, profile);

  const std::string takes = std::string(scalar.name) + " takes ";
  if (line.fields.size() < 2) {
    faults.add(line.fields[0].place, takes + std::string(expected(scalar)) + ", found none");
    return;
  }
  if (special && *special == special_scalar::diameters) return read_diameters(line, profile, faults);

  const deck_field& value = line.fields[1];
  if (special)
    read_revision(value, profile, faults);
  else if (const auto* integer = std::get_if<deck_scalar::integer_place>(&scalar.place))
    read_integer(value, scalar.name, expected(scalar), (*integer)(profile), faults);
  else
    read_number(value, scalar.name, expected(scalar),
                std::get<deck_scalar::number_place>(scalar.place)(profile), faults);
  // What explains a second field has been told with the first one.
  const bool explained = value.text == "=" || value.text == ":" || !comma_hint(value.text).empty() ||
                         !ascii_hint(value.text).empty();
  if (line.fields.size() > 2 && !explained)
    faults.add(line.fields[2].place,
               takes + std::string(expected(scalar)) + ", found " + behind_it(line.fields[2]));
}

}  // namespace Vrsk::Plin::TervakExchange
