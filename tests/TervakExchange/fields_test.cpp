#include <gtest/gtest.h>

#include "TervakExchange/decks.hpp"

using namespace decks;

namespace {

template <class R, class... M>
std::vector<double> values(const R& record, M... members) {
  return {static_cast<double>(record.*members)...};
}
using numbers = std::vector<double>;

const char* const REST =
    "BORING  B-1, north \t! text\nUNITF 1.5\nUNITM 1.7\nJPRINT 2\nJECHO 3\nDIAM 1.8\nESOL2 4.5\n"
    "SFTPHI 1.1\nSFSU 1.2\nSFSKF 1.3\nSFSIGT 1.4\nSCRGEN 0.5\nSCRLOC 1.6\nSCRSLP 25\nNUMPIL 6\nNUMDSP 1\n"
    "SIGSUR 11\nSIGEMB 12\nAEMB 13\nBEMB 14\nSIGCIR 15\nRADCIR 16\n"
    "POINTLOADS\n 500 3\n 600 4\nDISPLACEMENTS\n1 2 3 4 5\n"
    "MODIFYPY\n1 2 0 3 4 5 6 7 8\nMODIFYTZ\n1 2 1.2 3 4 5 6 7\nMODIFYQZ\n3 4 1.5 5 6 7 8 9\n"
    "MANUALBSY\nAT 1 1.2\n0 0\n5 0.1\nMODIFYBSY\n1 2 1.2 3 4\n"
    "MANUALMTHETA\nAT 2 1.5\n0 0\n7 0.2\nMODIFYMTHETA\n3 4 1.5 5 6\n"
    "MANUALBMTHETA\nAT 3 1.8\n0 0\n9 0.3\nMODIFYBMTHETA\n5 6 1.8 7 8\n";

TEST(DeckFields, RequiredOfRevision5AndWhatIsLeftOut) {
  const Tervak t = read(REVISION5).at(0);
  const TervakInputData& d = t.data;
  EXPECT_EQ(t.GetHeader(), "Heading 5");
  EXPECT_EQ(values(t, &Tervak::version, &Tervak::waterUnitWeight, &Tervak::lowestLevelWithCyclicPY,
                   &Tervak::lowestShearStiff, &Tervak::modulusOfElasticity, &Tervak::modulusOfElasticitySlope,
                   &Tervak::averagePoissonRatio, &Tervak::zSeafloor),
            (numbers{5, 10.1, 20.5, 96, 10000, 500.5, 0.4, -3}));
  EXPECT_EQ(values(d, &TervakInputData::AtmosphericPressure, &TervakInputData::PorePressureLevel,
                   &TervakInputData::PorePressureUnitWeight, &TervakInputData::NumberOfMainLayers,
                   &TervakInputData::UnitF, &TervakInputData::UnitM, &TervakInputData::PrintLevel,
                   &TervakInputData::EchoSwitch, &TervakInputData::ThirdModulus,
                   &TervakInputData::NumberOfDisplacements),
            (numbers{101.3, 0.7, 10.2, 1, 1, 1, 1, 0, 1, 0}));
  EXPECT_EQ(d.Diameters, (numbers{1.2, 1.5}));
  EXPECT_EQ(d.Boring, "");
  EXPECT_EQ(values(d.SkinFriction, &SkinFrictionAndTipResistanceSectionV5::PileDiameter,
                   &SkinFrictionAndTipResistanceSectionV5::WallThickness,
                   &SkinFrictionAndTipResistanceSectionV5::PileTipZ,
                   &SkinFrictionAndTipResistanceSectionV5::PileMaterial),
            (numbers{1.6, 0.05, 28, 2}));
  using M = SoilMainLayerRecord;
  EXPECT_EQ(values(d.MainLayers.Records.at(0), &M::Number, &M::BottomZ, &M::TotalUnitWeight, &M::CptTop,
                   &M::CptBottom, &M::FrictionAngle, &M::RelativeDensity, &M::SuTop, &M::SuBottom,
                   &M::PlasticityIndex, &M::EpsC, &M::ApiJ, &M::KSoil),
            (numbers{1, 30.5, 18.1, 12, 20, 35, 0.7, 21, 45, 31, 0.01, 0.25, 99}));
  using F = SkinFrictionRecord;
  EXPECT_EQ(values(d.SkinFriction.Records.at(0), &F::Number, &F::Method, &F::CompressionTop,
                   &F::CompressionBottom, &F::TensionTop, &F::TensionBottom, &F::TipTop, &F::TipBottom,
                   &F::GoFactor, &F::ResidualRatio, &F::ResidualDisplacement),
            (numbers{1, 3, 15, 16, 17, 18, 19, 20, 1.1, 0.9, 0.02}));
  using S = SubdivisionRecord;
  EXPECT_EQ(values(d.Subdivision.Records.at(0), &S::Number, &S::BottomZ, &S::Subdivisions, &S::PyCode,
                   &S::TzCode, &S::QzCode, &S::OpenCrack),
            (numbers{1, 30.5, 4, 284, 293, 200, 1}));
  EXPECT_EQ(d.Subdivision.Records.at(0).PyParameters, (std::array<double, 5>{}));
  // A list of factors that is left out still ends with its closing record.
  for (const int L1 : {d.PyModification.Records.at(0).L1, d.TzModification.Records.at(0).L1,
                       d.QzModification.Records.at(0).L1})
    EXPECT_EQ(L1, 0);
  EXPECT_FALSE(d.Control.HasDMData() || d.Control.HasBMData() || d.Control.HasBSData());
}

TEST(DeckFields, Revision4) {
  const Tervak t = read(REVISION4).at(0);
  const TervakInputData& d = t.data;
  EXPECT_EQ(values(d, &TervakInputData::LevelSwitch, &TervakInputData::ZonInf, &TervakInputData::RfTz,
                   &TervakInputData::NumberOfSoilTypes, &TervakInputData::NumberOfTzQzRows,
                   &TervakInputData::NumberOfLayers),
            (numbers{2, 10.5, 0.8, 1, 2, 12}));
  using S = SoilTypeRecord;
  EXPECT_EQ(values(d.SoilTypes.Records.at(0), &S::Number, &S::TotalUnitWeight, &S::FrictionAngle, &S::SuAtZ0,
                   &S::SuAtZ100, &S::Eps50, &S::Ocr, &S::ApiJ, &S::OpenCrack, &S::ResidualRatio,
                   &S::ResidualDisplacement),
            (numbers{1, 18, 30, 21, 22, 0.01, 2, 0.25, 1, 0.9, 0.02}));
  using Q = TzQzRecord;
  EXPECT_EQ(values(d.TzQzTable.at(1), &Q::Z, &Q::SkinFrictionCompression, &Q::SkinFrictionTension,
                   &Q::TzDisplacementRatio, &Q::TipStress, &Q::PoissonRatio, &Q::QzDisplacementRatio),
            (numbers{9, 25, 26, 0.04, 901, 0.36, 0.06}));
  EXPECT_EQ(d.TzQzTable[0].ShearModulus, std::nullopt);
  EXPECT_EQ(d.TzQzTable[1].ShearModulus, 7000);
  using L = LayerRecord;
  EXPECT_EQ(values(d.Layers.at(0), &L::FirstLayer, &L::LastLayer, &L::SoilType, &L::BottomZ, &L::PyCode,
                   &L::TzCode, &L::QzCode),
            (numbers{1, 4, 1, 8.5, 284, 293, 200}));
  // Fewer layers than the table has, and none at all, are for the stages to judge.
  EXPECT_EQ(read(REVISION4 + std::string("NUMLAY 3\n")).at(0).data.NumberOfLayers, 3);
  EXPECT_EQ(read(with(with(REVISION4, 24, ""), 23, "")).at(0).data.NumberOfLayers, 0);
}

TEST(DeckFields, OptionalScalarsAndTables) {
  const Tervak t = read(with(REVISION5, 23, "1 30.5 4 0 0 0 1 81 82 83 84 85\n") + REST).at(0);
  const TervakInputData& d = t.data;
  EXPECT_EQ(d.Boring, "B-1, north");
  EXPECT_EQ(values(d, &TervakInputData::UnitF, &TervakInputData::UnitM, &TervakInputData::PrintLevel,
                   &TervakInputData::EchoSwitch, &TervakInputData::ThirdModulus,
                   &TervakInputData::NumberOfDisplacements),
            (numbers{1.5, 1.7, 2, 3, 4.5, 1}));
  EXPECT_EQ(values(t, &Tervak::tanPhiCoeff, &Tervak::shearStrengthCoeff, &Tervak::skinFrictionCoeff,
                   &Tervak::pileTipResistanceCoeff, &Tervak::depthOfScour, &Tervak::depthOfLocalScour,
                   &Tervak::verticalStressAtSurface, &Tervak::verticalStressUnderEmbankment,
                   &Tervak::widthOfEmbankmentSlopingPart, &Tervak::distancePileToEmbankmentToe,
                   &Tervak::verticalStressUnderCircularLoadedArea, &Tervak::radiusOfCircularLoadedArea),
            (numbers{1.1, 1.2, 1.3, 1.4, 0.5, 1.6, 11, 12, 13, 14, 15, 16}));
  EXPECT_EQ(t.sideSlope, 25 * 0.017453292519943295);
  EXPECT_EQ(d.Diameters, (numbers{1.2, 1.5, 1.8}));
  EXPECT_EQ(d.PointLoads, (numbers{500, 600}));
  EXPECT_EQ(d.PointLoadDistances, (numbers{3, 4}));
  EXPECT_EQ(d.Subdivision.NumberOfPile, 6);
  EXPECT_EQ(d.Subdivision.Records.at(0).PyParameters, (std::array<double, 5>{81, 82, 83, 84, 85}));
  using U = SoilDisplacementRecord;
  EXPECT_EQ(values(d.SoilDisplacements.at(0), &U::Z, &U::X, &U::Y, &U::ZDisplacement, &U::HoleDiameter),
            (numbers{1, 2, 3, 4, 5}));
  using P = PyModificationRecord;
  EXPECT_EQ(values(d.PyModification.Records.at(0), &P::L1, &P::L2, &P::Diameter, &P::PYFSTR, &P::PYFDSP,
                   &P::PYGAP, &P::PYLIMS, &P::PYFEND, &P::PYDEND),
            (numbers{1, 2, 0, 3, 4, 5, 6, 7, 8}));
  using A = AxialModificationRecord;
  EXPECT_EQ(values(d.TzModification.Records.at(0), &A::L1, &A::L2, &A::Diameter, &A::FPOS, &A::FNEG, &A::FDSP,
                   &A::FEND, &A::DEND),
            (numbers{1, 2, 1.2, 3, 4, 5, 6, 7}));
  EXPECT_EQ(values(d.QzModification.Records.at(0), &A::L1, &A::Diameter, &A::FPOS, &A::DEND),
            (numbers{3, 1.5, 5, 9}));
  EXPECT_EQ(d.QzModification.Records.size(), 2u);
}

TEST(DeckFields, Curves) {
  const Tervak t = read(with(REVISION5, 23, "1 30.5 4 0 0 0 1\n") + REST +
                        "MANUALPY\n at 1 1.2\n 0 0\n 8 0.01\n AT 1 1.5\nMANUALTZ\nAT 2 1.2\n-3 -0.1\n"
                        "MANUALQZ\nAT 3 1.2\n4 .2\n")
                       .at(0);
  const TervakInputData& d = t.data;
  EXPECT_TRUE(d.Control.HasDMData() && d.Control.HasBMData() && d.Control.HasBSData());
  EXPECT_EQ(d.ManualPy.Records.at(0).Stresses, (numbers{0, 8}));
  EXPECT_EQ(d.ManualPy.Records.at(0).Displacements, (numbers{0, 0.01}));
  EXPECT_EQ(d.ManualPy.Records.at(1).Diameter, 1.5);
  EXPECT_TRUE(d.ManualPy.Records.at(1).Stresses.empty());
  EXPECT_EQ(d.ManualTz.Records.at(0).Displacements, (numbers{-0.1}));
  EXPECT_EQ(d.ManualQz.Records.at(0).Layer, 3);
  EXPECT_EQ(d.ManualMtheta.GetManualCurve(2, 1.5, 1), (ManualMonopileCurve{{0, 0}, {0.2, 7}}));
  EXPECT_EQ(d.ManualBSY.GetManualCurve(1, 1.2, 1), (ManualMonopileCurve{{0, 0}, {0.1, 5}}));
  EXPECT_EQ(d.ManualBMtheta.GetManualCurve(3, 1.8, 1), (ManualMonopileCurve{{0, 0}, {0.3, 9}}));
  EXPECT_EQ(d.BSYModification.GetModification(2, 1.2, 1), std::make_pair(3.0, 4.0));
  EXPECT_EQ(d.MthetaModification.GetModification(3, 1.5, 1), std::make_pair(5.0, 6.0));
  EXPECT_EQ(d.BMthetaModification.GetModification(6, 1.8, 1), std::make_pair(7.0, 8.0));
}

TEST(MonopileSections, FirstRecordThatFits) {
  ManualMonopileSection section;
  section.Records = {{1, 2.0, {0, 5, 6}, {0, 0.1, 0.1}}, {1, 2.0, {9}, {0}}};
  const ManualMonopileCurve first{{0, 0}, {0.1, 6}};  // the last force of a repeated displacement
  EXPECT_EQ(section.GetManualCurve(1, 2.0, 1), first);
  EXPECT_EQ(section.GetManualCurve(1, 2000.0 + 9E-9, 1000), first);  // in run units, as the tolerance
  EXPECT_TRUE(section.GetManualCurve(1, 2000.0 + 2E-8, 1000).empty());
  EXPECT_TRUE(section.GetManualCurve(2, 2.0, 1).empty());

  MonopileModificationSection factors;
  factors.Records = {{2, 3, 2.0, 1.1, 1.2}, {3, 4, 2.0, 1.3, 1.4}};
  EXPECT_EQ(factors.GetModification(3, 200.0, 100), std::make_pair(1.1, 1.2));
  EXPECT_EQ(factors.GetModification(4, 200.0, 100), std::make_pair(1.3, 1.4));
  EXPECT_THROW(static_cast<void>(factors.GetModification(1, 2.0, 1)), std::out_of_range);
  EXPECT_THROW(static_cast<void>(factors.GetModification(3, 2.1, 1)), std::out_of_range);
}

}  // namespace
