#pragma once

#include <cstdint>
#include <string>

#include "Measures/Quantity.hpp"
#include "TervakExchange/TervakInputData.hpp"

namespace Vrsk::Plin::TervakExchange {

using Version = int;  ///< deck revision, 4 or 5

namespace rt = Vrsk::Plin::Measures::Runtime;
using StressQuantity = rt::Quantity<rt::StressPhenomenon>;
using LengthQuantity = rt::Quantity<rt::LengthPhenomenon>;
using AngleQuantity = rt::Quantity<rt::AnglePhenomenon>;
using ForcePerUnitVolumeQuantity = rt::Quantity<rt::ForcePerUnitVolumePhenomenon>;
using ForcePerUnitAreaQuantity = rt::Quantity<rt::ForcePerUnitAreaPhenomenon>;

/// One soil profile of the deck. Quantities hold their value in base units; the deck reader writes the
/// members.
class Tervak {
 public:
  [[nodiscard]] Version GetVersion() const { return version; }
  [[nodiscard]] const std::string& GetHeader() const { return header; }
  [[nodiscard]] const TervakInputData& GetTervakInputData() const { return data; }

  [[nodiscard]] StressQuantity GetVerticalStressAtSurface() const { return {verticalStressAtSurface}; }
  [[nodiscard]] StressQuantity GetVerticalStressUnderEmbankment() const {
    return {verticalStressUnderEmbankment};
  }
  [[nodiscard]] StressQuantity GetVerticalStressUnderCircularLoadedArea() const {
    return {verticalStressUnderCircularLoadedArea};
  }
  [[nodiscard]] StressQuantity GetLowestShearStiff() const { return {lowestShearStiff}; }
  [[nodiscard]] LengthQuantity GetWidthOfEmbankmentSlopingPart() const {
    return {widthOfEmbankmentSlopingPart};
  }
  [[nodiscard]] LengthQuantity GetDistancePileToEmbankmentToe() const {
    return {distancePileToEmbankmentToe};
  }
  [[nodiscard]] LengthQuantity GetRadiusOfCircularLoadedArea() const { return {radiusOfCircularLoadedArea}; }
  [[nodiscard]] LengthQuantity GetZSeafloor() const { return {zSeafloor}; }
  [[nodiscard]] LengthQuantity GetDepthOfScour() const { return {depthOfScour}; }
  [[nodiscard]] LengthQuantity GetDepthOfLocalScour() const { return {depthOfLocalScour}; }
  [[nodiscard]] LengthQuantity GetLowestLevelWithCyclicPY() const { return {lowestLevelWithCyclicPY}; }
  [[nodiscard]] AngleQuantity GetSideSlope() const { return {sideSlope}; }
  [[nodiscard]] ForcePerUnitVolumeQuantity GetWaterUnitWeight() const { return {waterUnitWeight}; }
  [[nodiscard]] ForcePerUnitVolumeQuantity GetModulusOfElasticitySlope() const {
    return {modulusOfElasticitySlope};
  }
  [[nodiscard]] ForcePerUnitAreaQuantity GetModulusOfElasticity() const { return {modulusOfElasticity}; }
  [[nodiscard]] double GetTanPhiCoeff() const { return tanPhiCoeff; }
  [[nodiscard]] double GetShearStrengthCoeff() const { return shearStrengthCoeff; }
  [[nodiscard]] double GetSkinFrictionCoeff() const { return skinFrictionCoeff; }
  [[nodiscard]] double GetPileTipResistanceCoeff() const { return pileTipResistanceCoeff; }
  [[nodiscard]] double GetAveragePoissonRatio() const { return averagePoissonRatio; }
  [[nodiscard]] std::uint64_t GetDiameterCount() const { return data.Diameters.size(); }

  Version version = 0;
  std::string header;
  TervakInputData data;
  double verticalStressAtSurface = 0, verticalStressUnderEmbankment = 0,
         verticalStressUnderCircularLoadedArea = 0;
  double lowestShearStiff = 0, widthOfEmbankmentSlopingPart = 0, distancePileToEmbankmentToe = 0;
  double radiusOfCircularLoadedArea = 0, zSeafloor = 0, depthOfScour = 0, depthOfLocalScour = 0;
  double lowestLevelWithCyclicPY = 0, sideSlope = 0 /* rad */, waterUnitWeight = 0,
         modulusOfElasticitySlope = 0;
  double modulusOfElasticity = 0, tanPhiCoeff = 1, shearStrengthCoeff = 1, skinFrictionCoeff = 1;
  double pileTipResistanceCoeff = 1, averagePoissonRatio = 0;
};

}  // namespace Vrsk::Plin::TervakExchange
