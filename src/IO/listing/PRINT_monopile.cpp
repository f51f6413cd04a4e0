#include <cstddef>

#include "fem/write.hpp"
#include "IO/listing/PRINT_pages.hpp"
#include "SoilCurves/monopile/IMonoPileDataProvider.hpp"

namespace tervak {

namespace {

using curve = Varno::KestraCommonLibrary::CommonData::MonoPileCurve;  // displacement first, force second

void print_heading(common& cmn, const char* heading, const char* columns, diameter_number ND,
                   layer_number L) {
  fem::write(cmn.units, cmn.NFLIS, heading, cmn.LABEL, L, cmn.DEPTH(L), cmn.DIAM(ND), cmn.ZBOTM(L));
  fem::write(cmn.units, cmn.NFLIS, "(A)", columns);
  print_blank_line(cmn);
}

void print_one_kind(common& cmn, const char* heading, const char* columns, const curve& points,
                    diameter_number ND, layer_number L) {
  print_heading(cmn, heading, columns, ND, L);
  int N = 0;
  for (const auto& [displacement, force] : points) {
    ++N;
    fem::write(cmn.units, cmn.NFLIS, "(i6,1p,1x,1(e13.3,e11.3))", N, force, displacement);
    print_gap_around_origin(cmn, N);
  }
}

void print_all_kinds(common& cmn, const curve& mtheta, const curve& bsy, const curve& bmtheta,
                     diameter_number ND, layer_number L) {
  print_heading(
      cmn,
      "(/,1x,a80,/,/,' COMPLETE M-THETA / BS-Y / BM-THETA RESULTS',4x,'LAYER :',i3,'  DEPTH :',f8.2,'  DIAM :',f7.3,/,1x,42('*'),16x,'ZBOTM :',f8.2)",
      "   POINT   MTHE-DMOM  MTHET-ROT    BSY-FORCE  BSY-DISPL    BMTHE-MOM  BMTHE-ROT", ND, L);
  int N = 0;
  for (const auto& [rotation, moment] : mtheta) {
    const auto& [y, shear] = bsy.at(static_cast<std::size_t>(N));
    const auto& [base_rotation, base_moment] = bmtheta.at(static_cast<std::size_t>(N));
    ++N;
    fem::write(cmn.units, cmn.NFLIS, "(i6,1p,1x,3(e13.3,e11.3))", N, moment, rotation, shear, y, base_moment,
               base_rotation);
    print_gap_around_origin(cmn, N);
  }
}

}  // namespace

void print_monopile_page(common& cmn, const page_head& head, diameter_number ND, layer_number L) {
  print_page_head(cmn, head);
  const auto& data = *cmn.MONOPILE;
  if (data.HasMThetaData() && data.HasBMThetaData() && data.HasBSYData()) {
    print_all_kinds(cmn, data.GetMThetaCurve(ND, L), data.GetBSYCurve(ND, L), data.GetBMThetaCurve(ND, L), ND,
                    L);
    return;
  }
  if (data.HasMThetaData())
    print_one_kind(
        cmn,
        "(/,1x,a80,/,/,' COMPLETE M-THETA RESULTS',4x,'LAYER :',i3,'  DEPTH :',f8.2,'  DIAM :',f7.3,/,1x,24('*'),16x,'ZBOTM :',f8.2)",
        "   POINT  MTHET-DMOM  MTHET-ROT", data.GetMThetaCurve(ND, L), ND, L);
  if (data.HasBSYData())
    print_one_kind(
        cmn,
        "(/,1x,a80,/,/,' COMPLETE BS-Y RESULTS',4x,'LAYER :',i3,'  DEPTH :',f8.2,'  DIAM :',f7.3,/,1x,21('*'),16x,'ZBOTM :',f8.2)",
        "   POINT   BSY-FORCE  BSY-DISPL", data.GetBSYCurve(ND, L), ND, L);
  if (data.HasBMThetaData())
    print_one_kind(
        cmn,
        "(/,1x,a80,/,/,' COMPLETE BM-THETA RESULTS',4x,'LAYER :',i3,'  DEPTH :',f8.2,'  DIAM :',f7.3,/,1x,25('*'),16x,'ZBOTM :',f8.2)",
        "   POINT   BMTHE-MOM  BMTHE-ROT", data.GetBMThetaCurve(ND, L), ND, L);
}

}  // namespace tervak
