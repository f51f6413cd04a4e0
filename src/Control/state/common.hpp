#pragma once

#include <array>
#include <memory>

#include "Control/state/vector1.hpp"
#include "fem/io.hpp"
#include "fem/utils/text_ref.hpp"
#include "TervakExchange/TervakMultipleSoilProfiles.hpp"

namespace Varno::TervakLibrary::IO {
class TervakUnitConverter;
class TervakRIFWriter;
}  // namespace Varno::TervakLibrary::IO
namespace Varno::KestraCommonLibrary::CommonData {
class IMonoPileDataProvider;
}

namespace tervak {

/// Limits that are sizes as well: layers, calculation or main; diameters; points of a finished curve.
inline constexpr int MOST_LAYERS = 500;
inline constexpr int MOST_DIAMETERS = 50;
inline constexpr int CURVE_POINTS = 29;

/// What a layer is made of and by which methods its curves are made.
struct layer_code {
  int TYP = 0;     ///< soil type (revision 4) or main layer (revision 5): index into the soil type table
  int PYCODE = 0;  ///< method of the P-Y curve
  int TZCODE = 0;  ///< method of the T-Z curve
  int QZCODE = 0;  ///< method of the Q-Z curve
};

/// A value of the depth table at layer NL, kept from one diameter of the layer to the next; NL 0 is none.
struct depth_lookup {
  layer_number NL;
  double YI = 0;
};

class note_listener;

/// Year, month from 0, day, hour, minute, second of local time.
using time_array = std::array<int, 6>;

/// The run state: one record for the whole run, the first argument of nearly every routine. It holds one
/// profile at a time. Lengths, forces and what derives from them are in run units (UNITM is one metre, UNITF
/// one kilonewton in the run's units), angles in degrees, Z grows downward, all arrays count from 1.
/// Everything is zero until it is written.
struct common {
  fem::io units;  ///< the table of numbered units

  // Scale factors and general parameters of the profile
  double UNITF = 0;      ///< force scale
  double UNITM = 0;      ///< length scale
  double GAMWAT = 0;     ///< unit weight of water
  double ATMPRS = 0;     ///< atmospheric pressure
  double ZCYCL = 0;      ///< lowest level with cyclic P-Y behaviour
  double SUSTIF = 0;     ///< strength above which a clay counts as stiff
  double SFTPHI = 0;     ///< safety factor on tan(phi)
  double SFSU = 0;       ///< safety factor on Su
  double SFSKF = 0;      ///< safety factor on skin friction
  double SFSIGT = 0;     ///< safety factor on tip stress
  vector1<double> DIAM;  ///< pile diameters, ascending
  double ESOL0 = 0;      ///< soil modulus of elasticity at the surface
  double ESOL1 = 0;      ///< its slope with depth
  double ESOL2 = 0;      ///< third modulus value, handed on to the interface file
  double POSAVR = 0;     ///< average Poisson's ratio
  double PI = 0;
  double EPS = 0;     ///< general zero test, 1.0E-10
  double BIGDSP = 0;  ///< far displacement that closes a curve: 1000 times the largest diameter

  // Unit numbers
  int NFLOG = 0;  ///< run log TERVAK.MLG
  int NFFEM = 8;  ///< USFOS export soil_halde.fem
  int NFF70 = 9;  ///< USFOS export soil_70.fem
  int NFINP = 0;  ///< input deck TERVAK.INP
  int NFTMP = 0;  ///< copy of the deck's first profile without comment lines
  int NFLIS = 0;  ///< result listing TERVAK.LIS
  int NF17 = 0;   ///< pile node file PILEPLOT.TXT

  // Counts and switches
  int NUMTYP = 0;    ///< soil types (revision 4)
  int NUMTQZ = 0;    ///< rows of the depth table
  int NUMLAY = 0;    ///< calculation layers
  int NUMLAYM = 0;   ///< main layers
  int NUMDSP = 0;    ///< given soil displacement points
  int NUMDIA = 0;    ///< diameters
  int MIDBOT = 0;    ///< level of a layer: 1 = middle, 2 = bottom
  int JPRINT = 0;    ///< print level, 0 to 2
  int JECHO = 0;     ///< echo of the deck, 0 or 1
  int IERR = 0;      ///< the shared error word: 0 = all is well
  int REVISION = 0;  ///< deck revision of the profile, 4 or 5

  Vrsk::Plin::TervakExchange::TervakMultipleSoilProfiles PROFILES;  ///< the whole imported deck

  // Limits
  int MAXTYP = 0;
  int MAXTQZ = 0;
  int MAXLAY = 0;
  int MAXDSP = 0;
  int MAXDIA = 0;
  int MAXFRC = 0;
  int MAXPNT = 0;  ///< points of one curve; the origin stands at MIDPNT = MAXPNT / 2 + 1

  // Texts
  fem::fixed_text<80> LABEL;                           ///< heading line of the profile
  fem::fixed_text<10> BORING;                          ///< boring label (revision 5)
  std::array<fem::fixed_text<6>, MOST_LAYERS> METHOD;  ///< axial method by main layer; METHOD[m - 1]
  fem::fixed_text<80> PILHDR;                          ///< heading line of the pile node file

  // Levels and scour
  double ZSEAFL = 0;  ///< Z of the sea floor
  double SCRGEN = 0;  ///< depth of general scour
  double SCRLOC = 0;  ///< depth of local scour, not less than SCRGEN
  double SCRSLP = 0;  ///< side slope of the scour hole, degrees
  double ZPWP = 0;    ///< level from which pore water pressure acts
  double GAMPWP = 0;  ///< unit weight of the pore pressure gradient

  // Soil types; in a revision 5 profile one entry a main layer
  vector1<double> GAMTOT, PHI, SU0, SU100, EPS50, OCR, APIJ, TRESMX, TZZRES;
  vector1<int> OPEN;

  // Given soil displacements
  vector1<double> DSPLEV, DSPX, DSPY, DSPZ, HOLDIA;

  // Surface loads
  double SIGSUR = 0, SIGEMB = 0, AEMB = 0, BEMB = 0, SIGCIR = 0, RADCIR = 0;
  vector1<double> FRCPNT, FRCDST;
  int NUMFRC = 0;

  // Depth table
  double ZONINF = 0, RFTZ = 0;
  vector1<double> ZTQZ, TCMP, TTNS, G0SOIL, TZDRAT, SIGTIP, POIS, QZDRAT;
  std::array<depth_lookup, 7> DEPTHLOOKUPS;  ///< by column, see SoilCurves/axial/depth_table.hpp

  // Calculation layers. LAYCOD, ZBOTM and ZLAY grow by appending; the rest is allocated.
  vector1<layer_code> LAYCOD;
  vector1<double> ZBOTM, ZLAY;
  vector1<double> SIGZRES;                 ///< effective vertical stress after scour, with surface loads
  vector1<double> DSIGZ;                   ///< the part of it that comes from surface loads
  vector1<double> PHIR;                    ///< friction angle after the safety factor
  vector1<double> SURED;                   ///< undrained strength after the safety factor
  vector1<double> GAMEFF;                  ///< effective unit weight
  vector1<double> DEPTH;                   ///< depth below the local scour level, scour-corrected
  vector1<double> GSOIL;                   ///< shear modulus
  vector1<double> SUCLAY, DPCLAY, ZLCLAY;  ///< the layers that have strength in the clay sense
  int NUMCLY = 0;
  table2<std::array<double, 6>> PYMOD;  ///< PYFSTR PYFDSP PYGAP PYLIMS PYFEND PYDEND
  table2<std::array<double, 5>> TZMOD;  ///< TZFPOS TZFNEG TZFDSP TZFEND TZDEND
  table2<std::array<double, 5>> QZMOD;  ///< QZFPOS QZFNEG QZFDSP QZFEND QZDEND

  // Curves, by (ND, NL) and (P, ND, NL). A P-Y stress is resistance per unit length over the diameter.
  table2<int> NPYPNT, NPYORG, NTZPNT, NTZORG, NQZPNT, NQZORG;
  curve_table PYSTR, PYDSP, TZSTR, TZDSP, QZSTR, QZDSP;

  // Main layers of a revision 5 profile
  vector1<double> ZMAIN, GAMM, CPTTOP, CPTBOT, PHIM, DRM, SUTOP, SUBOT, PLIM, EPSCM, APIJM, KSOILM;
  vector1<double> TCMTOP, TCMBOT, TTNTOP, TTNBOT, QTPTOP, QTPBOT, GOFAC, TRESM, TZZRSM;
  vector1<int> NSUBM, PYCODM, TZCODM, QZCODM, OPENM;
  vector1<std::array<double, 5>> PYPARM;

  // Soil values by calculation layer of a revision 5 profile
  vector1<double> ZNOW, SIGZ, SUCMP, DELTAF, PLI, CPTTIP, CPTAVR, PHIL, DR, OCRL, ST, TAUCMP, TAUTNS, QTIP,
      POISL;

  // The pile of the axial capacity, and its nodes
  int NUMPIL = 0;  ///< pile whose nodes subdivide the main layers, 0 = subdivision by counts
  int MATPIL = 0;  ///< pile material, 1 or 2
  double DIAMP = 0, WALL = 0, ZTIP = 0;
  vector1<double> ZNODE;
  int NUMNOD = 0;

  std::shared_ptr<Varno::TervakLibrary::IO::TervakRIFWriter> RIFWRITER;      ///< one for the whole run
  std::shared_ptr<Varno::TervakLibrary::IO::TervakUnitConverter> CONVERTER;  ///< of the present profile
  std::shared_ptr<Varno::KestraCommonLibrary::CommonData::IMonoPileDataProvider> MONOPILE;  ///< may be null

  note_listener* NOTE = nullptr;  ///< hears every step of the run, see note.hpp; null in `tervak`

  [[nodiscard]] int MIDPNT() const { return MAXPNT / 2 + 1; }
};

/// Unit numbers, limits, PI and EPS: what no deck changes.
void set_constants(common& cmn);

/// Empties the lists that grow by appending, at the start of each profile.
void ResetLayerLists(common& cmn);

/// Tables sized by the deck's own counts: main layers and depth table, then soil types and soil
/// displacements.
void allocate_input_tables(common& cmn);

/// Tables by calculation layer, once NUMLAY is final: soil values, layer values, curves, modification
/// factors.
void allocate_layer_tables(common& cmn);

}  // namespace tervak
