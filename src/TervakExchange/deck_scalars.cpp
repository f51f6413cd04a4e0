#include "TervakExchange/deck_scalars.hpp"

#include <string>

#include "TervakExchange/deck_numbers.hpp"
#include "TervakExchange/deck_values.hpp"

namespace Vrsk::Plin::TervakExchange {

namespace {

using input_data = TervakInputData;

/// The member at the end of a path of members, as a place to read into.
template <auto... Path>
constexpr auto at() {
  return +[](Tervak & profile) -> auto& { return (profile.*....*Path); };
}
template <auto... Path>
constexpr auto data() {
  return at<&Tervak::data, Path...>();
}

constexpr deck_scalar SCALARS[] = {
    {"REVISION", BOTH, REQUIRED, 0, special_scalar::revision},
    {"BORING", 5, OPTIONAL, 0, special_scalar::boring},
    {"UNITF", BOTH, OPTIONAL, 1, data<&input_data::UnitF>()},
    {"UNITM", BOTH, OPTIONAL, 1, data<&input_data::UnitM>()},
    {"MIDBOT", 4, REQUIRED, 0, data<&input_data::LevelSwitch>()},
    {"GAMWAT", BOTH, REQUIRED, 0, at<&Tervak::waterUnitWeight>()},
    {"ATMPRS", BOTH, REQUIRED, 0, data<&input_data::AtmosphericPressure>()},
    {"ZCYCL", BOTH, REQUIRED, 0, at<&Tervak::lowestLevelWithCyclicPY>()},
    {"SUSTIF", BOTH, REQUIRED, 0, at<&Tervak::lowestShearStiff>()},
    {"JPRINT", BOTH, OPTIONAL, 1, data<&input_data::PrintLevel>()},
    {"JECHO", BOTH, OPTIONAL, 0, data<&input_data::EchoSwitch>()},
    {"SFTPHI", BOTH, OPTIONAL, 1, at<&Tervak::tanPhiCoeff>()},
    {"SFSU", BOTH, OPTIONAL, 1, at<&Tervak::shearStrengthCoeff>()},
    {"SFSKF", BOTH, OPTIONAL, 1, at<&Tervak::skinFrictionCoeff>()},
    {"SFSIGT", BOTH, OPTIONAL, 1, at<&Tervak::pileTipResistanceCoeff>()},
    {"DIAM", BOTH, REQUIRED, 0, special_scalar::diameters},
    {"ESOL0", BOTH, REQUIRED, 0, at<&Tervak::modulusOfElasticity>()},
    {"ESOL1", BOTH, REQUIRED, 0, at<&Tervak::modulusOfElasticitySlope>()},
    {"ESOL2", 5, OPTIONAL, 1, data<&input_data::ThirdModulus>()},
    {"POSAVR", BOTH, REQUIRED, 0, at<&Tervak::averagePoissonRatio>()},
    {"ZSEAFL", BOTH, REQUIRED, 0, at<&Tervak::zSeafloor>()},
    {"SCRGEN", BOTH, OPTIONAL, 0, at<&Tervak::depthOfScour>()},
    {"SCRLOC", BOTH, OPTIONAL, 0, at<&Tervak::depthOfLocalScour>()},
    {"SCRSLP", BOTH, OPTIONAL, 0, at<&Tervak::sideSlope>()},
    {"ZPWP", BOTH, REQUIRED, 0, data<&input_data::PorePressureLevel>()},
    {"GAMPWP", BOTH, REQUIRED, 0, data<&input_data::PorePressureUnitWeight>()},
    {"SIGSUR", BOTH, OPTIONAL, 0, at<&Tervak::verticalStressAtSurface>()},
    {"SIGEMB", BOTH, OPTIONAL, 0, at<&Tervak::verticalStressUnderEmbankment>()},
    {"AEMB", BOTH, OPTIONAL, 0, at<&Tervak::widthOfEmbankmentSlopingPart>()},
    {"BEMB", BOTH, OPTIONAL, 0, at<&Tervak::distancePileToEmbankmentToe>()},
    {"SIGCIR", BOTH, OPTIONAL, 0, at<&Tervak::verticalStressUnderCircularLoadedArea>()},
    {"RADCIR", BOTH, OPTIONAL, 0, at<&Tervak::radiusOfCircularLoadedArea>()},
    {"ZONINF", 4, REQUIRED, 0, data<&input_data::ZonInf>()},
    {"RFTZ", 4, REQUIRED, 0, data<&input_data::RfTz>()},
    {"DIAMP", 5, REQUIRED, 0,
     data<&input_data::SkinFriction, &SkinFrictionAndTipResistanceSectionV5::PileDiameter>()},
    {"WALL", 5, REQUIRED, 0,
     data<&input_data::SkinFriction, &SkinFrictionAndTipResistanceSectionV5::WallThickness>()},
    {"ZTIP", 5, REQUIRED, 0,
     data<&input_data::SkinFriction, &SkinFrictionAndTipResistanceSectionV5::PileTipZ>()},
    {"MATPIL", 5, REQUIRED, 0,
     data<&input_data::SkinFriction, &SkinFrictionAndTipResistanceSectionV5::PileMaterial>()},
    {"NUMPIL", 5, OPTIONAL, 0,
     data<&input_data::Subdivision, &MainLayersSubdivisionAndPyTzQzCodesSection::NumberOfPile>()},
    // When one of these counts is left out, the rows are counted once the profile is complete.
    {"NUMTYP", 4, OPTIONAL, 0, data<&input_data::NumberOfSoilTypes>()},
    {"NUMTQZ", 4, OPTIONAL, 0, data<&input_data::NumberOfTzQzRows>()},
    {"NUMLAY", 4, OPTIONAL, 0, data<&input_data::NumberOfLayers>()},
    {"NUMLAYM", 5, OPTIONAL, 0, data<&input_data::NumberOfMainLayers>()},
    {"NUMDSP", BOTH, OPTIONAL, 0, data<&input_data::NumberOfDisplacements>()},
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
