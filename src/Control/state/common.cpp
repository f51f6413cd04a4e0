#include "Control/state/common.hpp"

#include <algorithm>
#include <cmath>

namespace tervak {

namespace {

void allocate_all(int count, std::initializer_list<vector1<double>*> vectors) {
  for (vector1<double>* vector : vectors) vector->allocate(count);
}

}  // namespace

void set_constants(common& cmn) {
  cmn.NFLOG = 18;
  cmn.NFLIS = 16;
  cmn.NFINP = 14;
  cmn.NFTMP = 15;
  cmn.NF17 = 17;
  cmn.PI = 4.0 * std::atan(1.0);
  cmn.EPS = 1.0E-10;
  cmn.MAXTYP = 500;
  cmn.MAXTQZ = 10000;
  cmn.MAXLAY = MOST_LAYERS;
  cmn.MAXDSP = 50;
  cmn.MAXDIA = MOST_DIAMETERS;
  cmn.MAXFRC = 45;
  cmn.MAXPNT = CURVE_POINTS;
}

void ResetLayerLists(common& cmn) {
  cmn.LAYCOD.clear();
  cmn.ZBOTM.clear();
  cmn.ZLAY.clear();
}

void allocate_input_tables(common& cmn) {
  allocate_all(cmn.NUMLAYM,
               {&cmn.ZMAIN,  &cmn.GAMM,   &cmn.CPTTOP, &cmn.CPTBOT, &cmn.PHIM,   &cmn.DRM,    &cmn.SUTOP,
                &cmn.SUBOT,  &cmn.PLIM,   &cmn.EPSCM,  &cmn.APIJM,  &cmn.TCMTOP, &cmn.TCMBOT, &cmn.TTNTOP,
                &cmn.TTNBOT, &cmn.QTPTOP, &cmn.QTPBOT, &cmn.GOFAC,  &cmn.TRESM,  &cmn.TZZRSM});
  for (vector1<int>* vector : {&cmn.NSUBM, &cmn.PYCODM, &cmn.TZCODM, &cmn.QZCODM, &cmn.OPENM})
    vector->allocate(cmn.NUMLAYM);
  cmn.PYPARM.allocate(cmn.NUMLAYM);

  // A revision 4 deck may have more soil types than layers, and more depth rows than two a layer.
  const int rows = std::max(2 * cmn.NUMLAYM + 1, cmn.NUMTQZ);
  allocate_all(
      rows, {&cmn.ZTQZ, &cmn.TCMP, &cmn.TTNS, &cmn.G0SOIL, &cmn.TZDRAT, &cmn.SIGTIP, &cmn.POIS, &cmn.QZDRAT});
  const int types = std::max(cmn.NUMLAY, cmn.NUMTYP);
  allocate_all(types, {&cmn.GAMTOT, &cmn.PHI, &cmn.SU0, &cmn.SU100, &cmn.EPS50, &cmn.OCR, &cmn.APIJ,
                       &cmn.TRESMX, &cmn.TZZRES, &cmn.KSOILM});
  cmn.OPEN.allocate(types);
  allocate_all(cmn.NUMDSP, {&cmn.DSPLEV, &cmn.DSPX, &cmn.DSPY, &cmn.DSPZ, &cmn.HOLDIA});
}

void allocate_layer_tables(common& cmn) {
  cmn.DEPTHLOOKUPS = {};
  allocate_all(cmn.NUMLAY,
               {&cmn.ZNOW,   &cmn.SIGZ,    &cmn.SUCMP,  &cmn.DELTAF, &cmn.PLI,    &cmn.CPTTIP, &cmn.CPTAVR,
                &cmn.PHIL,   &cmn.DR,      &cmn.OCRL,   &cmn.ST,     &cmn.TAUCMP, &cmn.TAUTNS, &cmn.QTIP,
                &cmn.POISL,  &cmn.SIGZRES, &cmn.PHIR,   &cmn.SURED,  &cmn.GAMEFF, &cmn.DEPTH,  &cmn.DSIGZ,
                &cmn.SUCLAY, &cmn.DPCLAY,  &cmn.ZLCLAY, &cmn.GSOIL});
  for (table2<int>* counts : {&cmn.NPYPNT, &cmn.NTZPNT, &cmn.NQZPNT})
    counts->allocate(cmn.NUMDIA, cmn.NUMLAY);
  for (table2<int>* origins : {&cmn.NPYORG, &cmn.NTZORG, &cmn.NQZORG})
    origins->allocate(cmn.NUMDIA, cmn.NUMLAY, cmn.MIDPNT());
  for (curve_table* table : {&cmn.PYSTR, &cmn.PYDSP, &cmn.TZSTR, &cmn.TZDSP, &cmn.QZSTR, &cmn.QZDSP})
    table->allocate(cmn.MAXPNT, cmn.NUMDIA, cmn.NUMLAY);
  cmn.PYMOD.allocate(cmn.NUMDIA, cmn.NUMLAY, {1.0, 1.0, 0.0, 1.0, 1.0, 1.0});
  cmn.TZMOD.allocate(cmn.NUMDIA, cmn.NUMLAY, {1.0, 1.0, 1.0, 1.0, 1.0});
  // A pile tip takes no tension unless the deck says so: the factor on the negative side is 0.
  cmn.QZMOD.allocate(cmn.NUMDIA, cmn.NUMLAY, {1.0, 0.0, 1.0, 1.0, 1.0});
}

}  // namespace tervak
