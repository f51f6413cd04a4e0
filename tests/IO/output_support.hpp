#pragma once

#include <memory>
#include <string>
#include <tuple>

#include "SoilCurves/monopile/IMonoPileDataProvider.hpp"
#include "support/scratch_run.hpp"

namespace tervak {

using monopile_curve = Varno::KestraCommonLibrary::CommonData::MonoPileCurve;

/// Layers of two metres of sand, one soil type, codes 284, 200 and 200. The curves rise by 100 (P-Y), 10
/// (T-Z) and 1000 (Q-Z) a point about the origin slot, and by 0.01 in displacement.
struct output_test : scratch_run {
  void make_profile(const vector1<double>& diameters, int layers) {
    cmn.REVISION = 5;
    cmn.DIAM = diameters;
    std::tie(cmn.NUMDIA, cmn.NUMLAY, cmn.NUMLAYM) = std::tuple(diameters.size(), layers, layers);
    allocate_input_tables(cmn);
    allocate_layer_tables(cmn);
    cmn.NUMTQZ = 2;
    cmn.ZTQZ(2) = 1000.0;
    for (layer_number L(1); L <= layers; ++L) {
      cmn.LAYCOD.append({1, 284, 200, 200});
      cmn.ZBOTM.append(2.0 * L);
      cmn.ZLAY.append(2.0 * L - 1.0);
      cmn.PHIR(L) = 35.0;
      for (diameter_number ND(1); ND <= cmn.NUMDIA; ++ND) {
        cmn.NPYPNT(ND, L) = cmn.NTZPNT(ND, L) = cmn.NQZPNT(ND, L) = cmn.MAXPNT;
        for (int P = 1; P <= cmn.MAXPNT; ++P) {
          cmn.PYDSP(P, ND, L) = cmn.TZDSP(P, ND, L) = cmn.QZDSP(P, ND, L) = 0.01 * (P - 15);
          cmn.TZSTR(P, ND, L) = 10.0 * (P - 15);
          cmn.PYSTR(P, ND, L) = 100.0 * (P - 15);
          cmn.QZSTR(P, ND, L) = 1000.0 * (P - 15);
        }
      }
    }
  }
};

}  // namespace tervak
