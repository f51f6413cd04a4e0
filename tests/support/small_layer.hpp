#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <initializer_list>
#include <iterator>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Control/common.hpp"
#include "fem/open_chain.hpp"

/// A small valid layer for tests of the curves, in kN and m: a run state of revision 5 with the given
/// diameters and `layers` main layers of one layer each, whose level and depth are 5 times the layer's
/// number. SURED and PHIR are 0, so that the test says whether the layer is clay or sand. The run log can be
/// read back.
///
///   small_layer soil;
///   soil.cmn.PHIR(1) = 35.0;
///   API87(soil.cmn, 1, 1);
///   EXPECT_EQ(soil.log(), "");
struct small_layer {
  tervak::common cmn;

  explicit small_layer(int layers = 1, std::initializer_list<double> diameters = {1.0}) {
    tervak::set_constants(cmn);
    cmn.REVISION = 5;
    cmn.UNITF = cmn.UNITM = 1.0;
    cmn.GAMWAT = 10.0;
    cmn.ATMPRS = 100.0;
    cmn.ZCYCL = -1.0;  // static, until the test moves it below the layer
    cmn.SUSTIF = 100.0;
    cmn.SFTPHI = cmn.SFSU = cmn.SFSKF = cmn.SFSIGT = 1.0;
    cmn.DIAM = tervak::vector1<double>(diameters);
    cmn.NUMDIA = cmn.DIAM.size();
    cmn.BIGDSP = cmn.DIAM(cmn.NUMDIA) * 1000.0;
    cmn.NUMLAY = cmn.NUMLAYM = layers;
    tervak::allocate_input_tables(cmn);
    tervak::allocate_layer_tables(cmn);
    for (int i = 1; i <= layers; ++i) {
      cmn.LAYCOD.append({i, 0, 0, 0});
      cmn.ZLAY.append(5.0 * i);
      cmn.ZBOTM.append(5.0 * i + 2.5);
      cmn.DEPTH(i) = 5.0 * i;
      cmn.SIGZRES(i) = 50.0 * i;
      cmn.EPS50(i) = 0.01;
      cmn.APIJ(i) = 0.5;
    }
    open_log();
  }
  ~small_layer() {
    std::error_code ignored;
    std::filesystem::remove_all(directory_, ignored);
  }
  small_layer(const small_layer&) = delete;
  small_layer& operator=(const small_layer&) = delete;

  /// All that has been printed on the run log so far; lines end in CR LF.
  [[nodiscard]] std::string log() const {
    std::ifstream in(directory_ / "TERVAK.MLG", std::ios::binary);
    EXPECT_TRUE(in.is_open());
    return {std::istreambuf_iterator<char>(in), {}};
  }

  /// Point i of a P-Y curve; the origin is 0, the negative branch below it.
  [[nodiscard]] double p(int i, int NL = 1, int ND = 1) const { return cmn.PYSTR(cmn.MIDPNT() + i, ND, NL); }
  [[nodiscard]] double y(int i, int NL = 1, int ND = 1) const { return cmn.PYDSP(cmn.MIDPNT() + i, ND, NL); }

 private:
  void open_log() {
    std::string name = (std::filesystem::temp_directory_path() / "tervak-layer-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr) std::abort();
    directory_ = name;
    int iostat = 0;
    fem::open(cmn.units, cmn.NFLOG, (directory_ / "TERVAK.MLG").string().c_str())
        .status("NEW")
        .form("FORMATTED")
        .access("SEQUENTIAL")
        .iostat(&iostat)
        .finish();
    if (iostat != 0) std::abort();
  }

  std::filesystem::path directory_;
};
