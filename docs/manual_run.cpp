#include "manual_run.hpp"

#include <map>
#include <sstream>
#include <vector>

#include "fem/open_chain.hpp"

namespace manual {

using namespace tervak;

run::run() {
  set_constants(*this);
  REVISION = 5;
  UNITF = UNITM = SFTPHI = SFSU = SFSKF = SFSIGT = MIDBOT = MATPIL = 1;
  GAMWAT = GAMPWP = 10.05;
  ATMPRS = 101.3;
  ZCYCL = ZPWP = -1.0;
  SUSTIF = 96.0;
  NUMDIA = NUMFRC = 1;
  NUMLAY = NUMLAYM = NUMCLY = 2;
  NUMTQZ = 5;
  ZONINF = 10.0;
  RFTZ = static_cast<double>(0.9f);
  DIAM = {1.0};
  BIGDSP = 1000.0;
  DIAMP = 1.0, WALL = 0.05, ZTIP = 10.0;
  allocate_input_tables(*this);
  allocate_layer_tables(*this);
  FRCPNT.allocate(1), FRCDST.allocate(1);
  for (int i = 1; i <= 2; ++i) {
    LAYCOD.append({i, 0, 0, 0});
    ZMAIN(i) = i == 1 ? 4.0 : 10.0;
    ZBOTM.append(ZMAIN(i));
    ZLAY.append(i == 1 ? 2.0 : 7.0);
    DEPTH(i) = DPCLAY(i) = ZLAY(i);
    GAMTOT(i) = 20.05, EPS50(i) = 0.01, APIJ(i) = 0.5, GOFAC(i) = TRESMX(i) = 1.0, DELTAF(i) = 29.0;
  }
  for (int r = 1; r <= 5; ++r) ZTQZ(r) = 2.5 * (r - 1), TZDRAT(r) = 0.01, QZDRAT(r) = 0.05;
  fem::open(units, NFLIS).status("SCRATCH").finish();
}

namespace {

using places = std::map<std::string, std::vector<double*>>;

/// The values of layers that a name of an input sets, in both layers.
places places_by_layer(common& c) {
  const auto both = [](std::initializer_list<vector1<double>*> lists) {
    std::vector<double*> all;
    for (vector1<double>* list : lists)
      for (int i = 1; i <= list->size(); ++i) all.push_back(&(*list)(i));
    return all;
  };
  return {
      {"phi", both({&c.PHIR, &c.PHI, &c.PHIM, &c.PHIL})},
      {"PHIM", both({&c.PHIM})},
      {"Su", both({&c.SURED, &c.SUCMP, &c.SUTOP, &c.SUBOT, &c.SUCLAY})},
      {"SUTOP", both({&c.SUTOP})},
      {"SUBOT", both({&c.SUBOT})},
      {"SU0", both({&c.SU0})},
      {"SU100", both({&c.SU100})},
      {"sig'", both({&c.SIGZRES, &c.SIGZ})},
      {"dsig", both({&c.DSIGZ})},
      {"X", both({&c.DEPTH})},
      {"Z", both({&c.ZLAY, &c.ZNOW})},
      {"J", both({&c.APIJ})},
      {"APIJM", both({&c.APIJ})},
      {"eps50", both({&c.EPS50})},
      {"KSOILM", both({&c.KSOILM})},
      {"GAMM", both({&c.GAMTOT})},
      {"qc", both({&c.CPTTOP, &c.CPTBOT, &c.CPTTIP, &c.CPTAVR})},
      {"Dr", both({&c.DRM, &c.DR})},
      {"Ip", both({&c.PLIM, &c.PLI})},
      {"delta", both({&c.DELTAF})},
      {"St", both({&c.ST})},
      {"G", both({&c.GSOIL})},
      {"nu", both({&c.POIS})},
      {"tc", both({&c.TAUCMP, &c.TCMP})},
      {"tt", both({&c.TAUTNS, &c.TTNS})},
      {"q", both({&c.QTIP, &c.SIGTIP})},
      {"TCMTOP", both({&c.TCMTOP})},
      {"TCMBOT", both({&c.TCMBOT})},
      {"TRESM", both({&c.TRESMX})},
      {"TZZRSM", both({&c.TZZRES})},
  };
}

/// The other values that a name of an input sets.
places single_places(common& c) {
  auto &P1 = c.PYPARM(1), &P2 = c.PYPARM(2);
  auto &Y1 = c.PYMOD(1, 1), &Y2 = c.PYMOD(1, 2);
  auto &T1 = c.TZMOD(1, 1), &T2 = c.TZMOD(1, 2);
  return {
      {"D", {&c.DIAM(1), &c.DIAMP}},
      {"ZCYCL", {&c.ZCYCL}},
      {"Zt", {&c.ZBOTM(1)}},
      {"ZPWP", {&c.ZPWP}},
      {"wall", {&c.WALL}},
      {"tip", {&c.ZTIP}},
      {"SCRGEN", {&c.SCRGEN}},
      {"SCRLOC", {&c.SCRLOC}},
      {"SCRSLP", {&c.SCRSLP}},
      {"GAMWAT", {&c.GAMWAT}},
      {"c1", {&c.SUCLAY(1)}},
      {"c2", {&c.SUCLAY(2)}},
      {"SIGSUR", {&c.SIGSUR}},
      {"SIGEMB", {&c.SIGEMB}},
      {"AEMB", {&c.AEMB}},
      {"BEMB", {&c.BEMB}},
      {"SIGCIR", {&c.SIGCIR}},
      {"RADCIR", {&c.RADCIR}},
      {"SFSU", {&c.SFSU}},
      {"SFTPHI", {&c.SFTPHI}},
      {"SFSKF", {&c.SFSKF}},
      {"SFSIGT", {&c.SFSIGT}},
      {"load", {&c.FRCPNT(1)}},
      {"at", {&c.FRCDST(1)}},
      {"qc1", {&c.CPTTOP(1), &c.CPTBOT(1)}},
      {"qc2", {&c.CPTTOP(2), &c.CPTBOT(2)}},
      {"g", {&P1[0], &P2[0]}},
      {"C", {&P1[1], &P2[1]}},
      {"PYFSTR", {&Y1[0], &Y2[0]}},
      {"PYFDSP", {&Y1[1], &Y2[1]}},
      {"PYGAP", {&Y1[2], &Y2[2]}},
      {"TZFNEG", {&T1[1], &T2[1]}},
      {"TZFDSP", {&T1[2], &T2[2]}},
  };
}

}  // namespace

bool prepare(common& cmn, const std::string& input) {
  places names = single_places(cmn);
  names.merge(places_by_layer(cmn));
  std::istringstream words(input);
  std::string name;
  double value = 0;
  while (words >> name >> value) {
    const auto found = names.find(name);
    if (found == names.end()) return false;
    for (double* place : found->second) *place = value;
    if (words.peek() == ',') words.get();
  }
  cmn.BIGDSP = 1000.0 * cmn.DIAM(1);
  return words.eof();
}

}  // namespace manual
