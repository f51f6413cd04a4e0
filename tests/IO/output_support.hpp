#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <tuple>
#include <vector>

#include "Control/common.hpp"
#include "SoilCurves/monopile/IMonoPileDataProvider.hpp"

namespace tervak {

using lines_of_text = std::vector<std::string>;
using monopile_curve = Varno::KestraCommonLibrary::CommonData::MonoPileCurve;

/// `count` lines from number `from` on, counted from 0, with "|" between them.
inline std::string rows(const lines_of_text& all, std::size_t from, std::size_t count = 9999) {
  std::string text;
  for (std::size_t i = from; i < std::min(from + count, all.size()); ++i)
    text += (i > from ? "|" : "") + all[i];
  return text;
}

/// A run state in an empty directory of its own. Units without an open write to "fem_io_unit_NNN" there.
struct output_test : ::testing::Test {
  output_test() {
    std::string name = (std::filesystem::temp_directory_path() / "tervak_output_XXXXXX").string();
    std::filesystem::current_path(directory = mkdtemp(name.data()));
    set_constants(cmn);
  }
  ~output_test() override {
    std::filesystem::current_path(home);
    std::filesystem::remove_all(directory);
  }

  /// Layers of two metres of sand, one soil type, codes 284, 200 and 200. The curves rise by 100 (P-Y), 10
  /// (T-Z) and 1000 (Q-Z) a point about the origin slot, and by 0.01 in displacement.
  void make_profile(const vector1<double>& diameters, int layers) {
    cmn.REVISION = 5;
    cmn.DIAM = diameters;
    std::tie(cmn.NUMDIA, cmn.NUMLAY, cmn.NUMLAYM) = std::tuple(diameters.size(), layers, layers);
    allocate_input_tables(cmn);
    allocate_layer_tables(cmn);
    cmn.LABEL.assign("TWO PILES IN SAND");
    cmn.BORING.assign("BORING 7");
    cmn.NUMTQZ = 2;
    cmn.ZTQZ(2) = 1000.0;
    for (int L = 1; L <= layers; ++L) {
      cmn.LAYCOD.append({1, 284, 200, 200});
      cmn.ZBOTM.append(2.0 * L);
      cmn.ZLAY.append(2.0 * L - 1.0);
      cmn.PHIR(L) = 35.0;
      for (int ND = 1; ND <= cmn.NUMDIA; ++ND) {
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

  /// Lines end in LF, or in CR LF in the file of a unit.
  static lines_of_text lines(const std::string& file) {
    std::ifstream stream(file, std::ios::binary);
    lines_of_text found;
    for (std::string line; std::getline(stream, line); found.push_back(line))
      if (file != "TERVAK.RIF") line.pop_back();
    return found;
  }

  common cmn;
  std::filesystem::path home = std::filesystem::current_path(), directory;
};

/// Monopile curves that are the same for every diameter and layer; an empty one counts as not there.
struct monopile_curves : Varno::KestraCommonLibrary::CommonData::IMonoPileDataProvider {
  monopile_curve mtheta, bmtheta, bsy;
  bool HasMThetaData() const override { return !mtheta.empty(); }
  monopile_curve GetMThetaCurve(int, int) const override { return mtheta; }
  bool HasBMThetaData() const override { return !bmtheta.empty(); }
  monopile_curve GetBMThetaCurve(int, int) const override { return bmtheta; }
  bool HasBSYData() const override { return !bsy.empty(); }
  monopile_curve GetBSYCurve(int, int) const override { return bsy; }
};

}  // namespace tervak
