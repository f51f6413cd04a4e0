#pragma once

#include <initializer_list>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Control/state/common.hpp"
#include "support/work_directory.hpp"

/// A small valid layer for tests of the curves, in kN and m: a run state of revision 5 with the given
/// diameters and `layers` main layers of one layer each, whose level and depth are 5 times the layer's
/// number. SURED and PHIR are 0, so that the test says whether the layer is clay or sand. The run log can be
/// read back, that of the latest one alone.
///
///   small_layer soil;
///   soil.cmn.PHIR(1) = 35.0;
///   API87(soil.cmn, 1, 1);
///   EXPECT_EQ(soil.log(), "");
struct small_layer : work_directory {
  tervak::common cmn;

  explicit small_layer(int layers = 1, std::initializer_list<double> diameters = {1.0}) {
    tervak::set_constants(cmn);
    cmn.REVISION = 5;
    cmn.UNITF = cmn.UNITM = cmn.SFTPHI = cmn.SFSU = cmn.SFSKF = cmn.SFSIGT = 1.0;
    cmn.GAMWAT = 10.0, cmn.ATMPRS = cmn.SUSTIF = 100.0;
    cmn.ZCYCL = -1.0;  // static, until the test moves it below the layer
    cmn.DIAM = tervak::vector1<double>(diameters), cmn.NUMDIA = cmn.DIAM.size();
    cmn.BIGDSP = cmn.DIAM(cmn.NUMDIA) * 1000.0;
    cmn.NUMLAY = cmn.NUMLAYM = layers;
    tervak::allocate_input_tables(cmn);
    tervak::allocate_layer_tables(cmn);
    for (int i = 1; i <= layers; ++i) {
      cmn.LAYCOD.append({i, 0, 0, 0});
      cmn.ZLAY.append(5.0 * i), cmn.ZBOTM.append(5.0 * i + 2.5);
      cmn.DEPTH(i) = 5.0 * i, cmn.SIGZRES(i) = 50.0 * i;
      cmn.EPS50(i) = 0.01, cmn.APIJ(i) = 0.5;
    }
  }
  /// All that has been printed on the run log so far; lines end in CR LF.
  [[nodiscard]] std::string log() const { return get("fem_io_unit_0" + std::to_string(cmn.NFLOG)); }

  /// Point i of a P-Y curve; the origin is 0, the negative branch below it.
  [[nodiscard]] double p(int i, tervak::layer_number NL = 1, tervak::diameter_number ND = 1) const {
    return cmn.PYSTR(cmn.MIDPNT() + i, ND, NL);
  }
  [[nodiscard]] double y(int i, tervak::layer_number NL = 1, tervak::diameter_number ND = 1) const {
    return cmn.PYDSP(cmn.MIDPNT() + i, ND, NL);
  }
};
