#pragma once

#include <array>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "Measures/Quantity.hpp"

/// The deck as the stages see it: one record a profile, its tables as lists of records in the order of the
/// deck. Values stand as the deck gives them, in kN, m, kPa (cone resistance in MPa); the stages convert.
namespace Vrsk::Plin::TervakExchange {

struct SoilTypeRecord {
  int Number = 0;
  double TotalUnitWeight = 0, FrictionAngle = 0, SuAtZ0 = 0, SuAtZ100 = 0, Eps50 = 0, Ocr = 0, ApiJ = 0;
  int OpenCrack = 0;
  double ResidualRatio = 0, ResidualDisplacement = 0;
};
struct SoilTypeAndPropertySection {
  std::vector<SoilTypeRecord> Records;
};

struct TzQzRecord {
  double Z = 0, SkinFrictionCompression = 0, SkinFrictionTension = 0;
  std::optional<double> ShearModulus;
  double TzDisplacementRatio = 0, TipStress = 0, PoissonRatio = 0, QzDisplacementRatio = 0;
};

struct LayerRecord {
  int FirstLayer = 0, LastLayer = 0, SoilType = 0;
  double BottomZ = 0;
  int PyCode = 0, TzCode = 0, QzCode = 0;
};

struct SoilMainLayerRecord {
  int Number = 0;
  double BottomZ = 0, TotalUnitWeight = 0, CptTop = 0, CptBottom = 0, FrictionAngle = 0, RelativeDensity = 0,
         SuTop = 0, SuBottom = 0;
  int PlasticityIndex = 0;
  double EpsC = 0, ApiJ = 0, KSoil = 0;
};
struct SoilMainLayersAndPropertiesSection {
  std::vector<SoilMainLayerRecord> Records;
};

struct SkinFrictionRecord {
  int Number = 0, Method = 0;
  double CompressionTop = 0, CompressionBottom = 0, TensionTop = 0, TensionBottom = 0, TipTop = 0,
         TipBottom = 0, GoFactor = 0, ResidualRatio = 0, ResidualDisplacement = 0;
};
struct SkinFrictionAndTipResistanceSectionV5 {
  double PileDiameter = 0, WallThickness = 0, PileTipZ = 0;
  int PileMaterial = 0;
  std::vector<SkinFrictionRecord> Records;
};

struct SubdivisionRecord {
  int Number = 0;
  double BottomZ = 0;
  int Subdivisions = 0, PyCode = 0, TzCode = 0, QzCode = 0, OpenCrack = 0;
  std::array<double, 5> PyParameters{};
};
struct MainLayersSubdivisionAndPyTzQzCodesSection {
  int NumberOfPile = 0;
  std::vector<SubdivisionRecord> Records;
};

/// One curve given by hand. The two lists may differ in length only when somebody else than the deck reader
/// made the record.
struct ManualCurveRecord {
  int Layer = 0;
  double Diameter = 0;
  std::vector<double> Stresses;       ///< force or moment in the monopile sections
  std::vector<double> Displacements;  ///< rotation in the M-theta and BM-theta sections
};
struct ManualPyDataSection {
  std::vector<ManualCurveRecord> Records;
};
struct ManualTzDataSection {
  std::vector<ManualCurveRecord> Records;
};
struct ManualQzPileTipResistanceDataSection {
  std::vector<ManualCurveRecord> Records;
};

struct PyModificationRecord {
  int L1 = 0, L2 = 0;
  double Diameter = 0, PYFSTR = 0, PYFDSP = 0, PYGAP = 0, PYLIMS = 0, PYFEND = 0, PYDEND = 0;
};
/// The list ends with a record whose L1 is 0.
struct PyDataModificationSection {
  std::vector<PyModificationRecord> Records;
};

struct AxialModificationRecord {
  int L1 = 0, L2 = 0;
  double Diameter = 0, FPOS = 0, FNEG = 0, FDSP = 0, FEND = 0, DEND = 0;
};
/// The list ends with a record whose L1 is 0.
struct TzDataModificationSection {
  std::vector<AxialModificationRecord> Records;
};
/// The list ends with a record whose L1 is 0.
struct QzPileTipResistanceDataModificationSection {
  std::vector<AxialModificationRecord> Records;
};

struct SoilDisplacementRecord {
  double Z = 0, X = 0, Y = 0, ZDisplacement = 0, HoleDiameter = 0;
};

/// Displacement (or rotation) to force (or moment), ascending.
using ManualMonopileCurve = std::map<double, double>;
using ManualDistributedMomentCurve = ManualMonopileCurve;
using ManualForceCurve = ManualMonopileCurve;
using ManualMomentCurve = ManualMonopileCurve;

/// Curves of a monopile, one record a curve; monopile_lookup.hpp finds them.
struct ManualMonopileSection {
  std::vector<ManualCurveRecord> Records;
};
struct ManualMthetaMomentDataSection : ManualMonopileSection {};
struct ManualBSYBaseShearDataSection : ManualMonopileSection {};
struct ManualBMthetaMomentDataSection : ManualMonopileSection {};

struct MonopileModificationRecord {
  int LAY1 = 0, LAY2 = 0;
  double Diameter = 0, ForceFactor = 0, DisplacementFactor = 0;
};
/// Factors on monopile curves; monopile_lookup.hpp finds them.
struct MonopileModificationSection {
  std::vector<MonopileModificationRecord> Records;
};
struct MthetaMomentDataModificationSection : MonopileModificationSection {};
struct BSYBaseShearDataModificationSection : MonopileModificationSection {};
struct BMthetaMomentDataModificationSection : MonopileModificationSection {};

/// Which monopile curves the profile has.
struct ControlSection {
  bool DMData = false, BMData = false, BSData = false;
  [[nodiscard]] bool HasDMData() const { return DMData; }  ///< M-theta
  [[nodiscard]] bool HasBMData() const { return BMData; }  ///< BM-theta
  [[nodiscard]] bool HasBSData() const { return BSData; }  ///< BS-Y
};

struct TervakInputData {
  std::string Boring;
  double UnitF = 1.0, UnitM = 1.0;
  int NumberOfSoilTypes = 0, NumberOfTzQzRows = 0, NumberOfLayers = 0, LevelSwitch = 0;
  int NumberOfMainLayers = 0, NumberOfDisplacements = 0;
  double AtmosphericPressure = 0;
  int PrintLevel = 0, EchoSwitch = 0;
  std::vector<double> Diameters;
  double ThirdModulus = 1.0;
  double PorePressureLevel = 0, PorePressureUnitWeight = 0;
  double ZonInf = 0, RfTz = 0;
  std::vector<double> PointLoads, PointLoadDistances;

  SoilTypeAndPropertySection SoilTypes;
  std::vector<TzQzRecord> TzQzTable;
  std::vector<LayerRecord> Layers;
  SoilMainLayersAndPropertiesSection MainLayers;
  SkinFrictionAndTipResistanceSectionV5 SkinFriction;
  MainLayersSubdivisionAndPyTzQzCodesSection Subdivision;
  ManualPyDataSection ManualPy;
  PyDataModificationSection PyModification;
  ManualTzDataSection ManualTz;
  TzDataModificationSection TzModification;
  ManualQzPileTipResistanceDataSection ManualQz;
  QzPileTipResistanceDataModificationSection QzModification;
  std::vector<SoilDisplacementRecord> SoilDisplacements;
  ControlSection Control;
  ManualMthetaMomentDataSection ManualMtheta;
  MthetaMomentDataModificationSection MthetaModification;
  ManualBSYBaseShearDataSection ManualBSY;
  BSYBaseShearDataModificationSection BSYModification;
  ManualBMthetaMomentDataSection ManualBMtheta;
  BMthetaMomentDataModificationSection BMthetaModification;
};

}  // namespace Vrsk::Plin::TervakExchange
