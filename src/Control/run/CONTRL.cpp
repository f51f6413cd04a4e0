#include "Control/run/CONTRL.hpp"

#include <cstddef>
#include <exception>
#include <fstream>
#include <memory>

#include "Control/axial/AxialCapacityControl.hpp"
#include "Control/layers/BUILD.hpp"
#include "Control/layers/build5.hpp"
#include "Control/run/curve_dispatch.hpp"
#include "Control/run/OutputFiles.hpp"
#include "Control/run/run_files.hpp"
#include "Control/state/ECHO.hpp"
#include "Control/state/identification.hpp"
#include "Control/state/note.hpp"
#include "Control/state/report.hpp"
#include "IO/input/READGE.hpp"
#include "IO/interface_file/TervakRIFWriter.hpp"
#include "IO/listing/PRINT.hpp"
#include "SkinFriction/soilInput.hpp"
#include "SoilCurves/modify/MODIFY.hpp"
#include "SoilCurves/monopile/MonoPileRead.hpp"

namespace tervak {

namespace {

using Vrsk::Plin::TervakExchange::Tervak;

/// Who runs, and since when: the texts and the time of all headings.
struct identity {
  fem::fixed_text<10> name, version, spare1;
  fem::fixed_text<100> title, spare2;
  fem::fixed_text<11> date;
  time_array started{};

  identity() { version_texts(name, title, version, spare1, spare2, date); }
};

// The stages return false where the run ends with an error.

void open_log(common& cmn, identity& id) {
  int out = 0;
  rotate("TERVAK.MLG");
  open_run_file(cmn, cmn.NFLOG, "TERVAK.MLG", "NEW");
  // The listing has no file yet: this stamp goes to a temporary file and only sets the time of the run's
  // start.
  run_stamp(cmn, 1, cmn.NFLIS, 0, out, id.started);
  banner(cmn, cmn.NFLOG, id.name, id.title, id.version, id.date, id.started);
  remark(cmn, "(/,' +++++ START PROGRAM TERVAK   VERSION = ',a11,a11)", id.version, id.date);
}

bool open_deck(common& cmn) {
  open_run_file(cmn, cmn.NFINP, "TERVAK.INP", "OLD");
  if (cmn.IERR == 0) return true;
  remark(cmn, "(/,' **** SR/CONTRL  FILE TERVAK.INP OPEN PROBLEM  IERR=',i5)", cmn.IERR);
  if (cmn.IERR == 6416) remark(cmn, "(' ABOVE ERROR CODE MEANS FILE TERVAK.INP NOT FOUND')");
  return false;
}

bool open_results(common& cmn) {
  rotate("TERVAK.LIS");
  open_run_file(cmn, cmn.NFLIS, "TERVAK.LIS", "NEW");
  rotate("soil_halde.fem");
  open_run_file(cmn, cmn.NFFEM, "soil_halde.fem", "NEW");
  rotate("soil_70.fem");
  open_run_file(cmn, cmn.NFF70, "soil_70.fem", "NEW");
  if (cmn.IERR != 0) {
    remark(cmn, "(/,' **** SR/CONTRL  FILE TERVAK.LIS OPEN PROBLEM  IERR=',i5)", cmn.IERR);
    return false;
  }
  // The name is spelled so on purpose: TERVAK.RIF itself is never rotated, the writer replaces it.
  rotate("TEVRAK.RIF");
  if (cmn.IERR != 0) {
    remark(cmn, "(/,' **** SR/CONTRL  FILE TERVAK.RIF OPEN PROBLEM  IERR=',i5)", cmn.IERR);
    return false;
  }
  return true;
}

bool import_deck(common& cmn) {
  try {
    std::ifstream deck("tervak.inp", std::ios::binary);
    cmn.PROFILES.Import(deck, "m", "N");
    if (!same_content("TERVAK.INP", "tervak.inp"))
      remark(
          cmn,
          "(/,' ---- Warning from SR/CONTRL : TERVAK.INP differs from tervak.inp, which is the deck of this run')");
    return true;
  } catch (const std::exception& refusal) {
    fail(cmn, 1, "(A)", refusal.what());
    return false;
  }
}

/// Heading lines of the profile in the listing.
void print_heading(common& cmn, identity& id) {
  if (cmn.REVISION == 4) {
    fem::write(cmn.units, cmn.NFLIS,
               "(' PROGRAM TERVAK   Soil Data Generator for Program KESTRA',/,/,' VERSION :  ',a11,a11)",
               id.version, id.date);
  } else if (cmn.REVISION == 5) {
    fem::write(
        cmn.units, cmn.NFLIS,
        "(' Program TERVAK   Soil Data Generator for Program KESTRA',/,/,' Version : Revision 5 - ',a11,a11)",
        id.version, id.date);
  }
  int out = 0;
  time_array now{};
  run_stamp(cmn, 1, cmn.NFLIS, 0, out, now);
}

bool read_profile(common& cmn, identity& id, int PROFILECOUNT) {
  if (cmn.NOTE != nullptr) cmn.NOTE->begin_profile(PROFILECOUNT);
  ResetLayerLists(cmn);
  READGE(cmn, PROFILECOUNT);
  if (cmn.IERR != 0) {
    remark(cmn, "(/,' **** SR/CONTRL  ERROR FROM SR/READGE  IERR=',i5)", cmn.IERR);
    return false;
  }
  cmn.BIGDSP = cmn.DIAM(cmn.NUMDIA) * 1000.0;
  remark(cmn, "(' +++++ INPUT FILE READ , LABEL LINE :',/,1x,a78)", cmn.LABEL);
  cmn.REVISION = cmn.PROFILES.GetSoilProfiles().at(static_cast<std::size_t>(PROFILECOUNT - 1)).GetVersion();
  print_heading(cmn, id);
  if (cmn.JECHO == 1) tervak::ECHO(cmn, cmn.NFINP, cmn.NFLIS, "TERVAK");
  return true;
}

bool build_layers(common& cmn) {
  if (cmn.REVISION == 4) {
    BUILD(cmn);
    if (cmn.IERR != 0) remark(cmn, "(/,' **** SR/CONTRL  ERROR FROM BUILD  IERR=',i5)", cmn.IERR);
  } else if (cmn.REVISION == 5) {
    BUILD5(cmn, 2);
    if (cmn.IERR != 0) remark(cmn, "(/,' **** SR/CONTRL  ERROR FROM SR/BUILD5  IERR=',i5)", cmn.IERR);
  }
  return cmn.IERR == 0;
}

bool read_monopile(common& cmn, int PROFILECOUNT) {
  const Tervak& profile = cmn.PROFILES.GetSoilProfiles().at(static_cast<std::size_t>(PROFILECOUNT - 1));
  const auto& control = profile.GetTervakInputData().Control;
  if (!control.HasDMData() && !control.HasBMData() && !control.HasBSData()) {
    cmn.MONOPILE.reset();
    return true;
  }
  return Varno::TervakLibrary::SoilCurves::MonoPileRead(cmn, profile, cmn.MONOPILE);
}

bool make_all_curves(common& cmn) {
  for (layer_number NL(1); NL <= cmn.NUMLAY; ++NL)
    if (!make_curves(cmn, NL)) return false;
  MODIFY(cmn);
  if (cmn.IERR != 0) {
    remark(cmn, "(/,' **** SR/CONTRL  ERROR FROM SR/MODIFY  IERR=',i5)", cmn.IERR);
    return false;
  }
  remark(cmn, "(' +++++ P-Y / T-Z / Q-Z  DATA CALCULATION FINISHED')");
  return true;
}

bool print_listing(common& cmn, identity& id) {
  if (cmn.JPRINT <= 0) return true;
  PRINT(cmn, id.version, id.date, id.started);
  if (cmn.IERR != 0) {
    remark(cmn, "(/,' **** SR/CONTRL  ERROR FROM SR/PRINT  IERR=',i5)", cmn.IERR);
    return false;
  }
  remark(cmn, "(' +++++ RESULT FILE TERVAK.LIS HAS BEEN PRINTED')");
  return true;
}

bool write_results(common& cmn, int PROFILECOUNT) {
  OutputFiles(cmn, PROFILECOUNT);
  if (cmn.IERR != 0) return false;
  if (cmn.REVISION == 4) remark(cmn, "(' +++++ KESTRA INPUT FILE TERVAK.RIF HAS BEEN GENERATED',/)");
  if (cmn.REVISION == 5)
    remark(cmn, "(' +++++ KESTRA INPUT FILE TERVAK.RIF HAS BEEN GENERATED,','  BORING LABEL= \"',a10,'\"')",
           cmn.BORING);
  return true;
}

bool run_profile(common& cmn, identity& id, int PROFILECOUNT) {
  if (!read_profile(cmn, id, PROFILECOUNT)) return false;
  if (!build_layers(cmn)) return false;
  if (!read_monopile(cmn, PROFILECOUNT)) return false;
  if (cmn.REVISION != 4) {
    R5SOIL(cmn);
    R5AXCAP(cmn);
  }
  if (!make_all_curves(cmn)) return false;
  if (!print_listing(cmn, id)) return false;
  return write_results(cmn, PROFILECOUNT);
}

bool run_all_profiles(common& cmn, identity& id) {
  for (int PROFILECOUNT = 1;; ++PROFILECOUNT) {
    if (!run_profile(cmn, id, PROFILECOUNT)) return false;
    // A revision 4 profile ends the run, whatever follows it in the deck.
    if (cmn.REVISION == 4) return true;
    if (cmn.PROFILES.GetSoilProfiles().size() <= static_cast<std::size_t>(PROFILECOUNT)) break;
  }
  if (cmn.NUMPIL != 0)
    remark(
        cmn,
        "(/,' Pile node Z-values were used for subdivision of',' main layers',/,' Values were taken from file PILEPLOT.TXT',' with header line:',/,1x,a78,/,' ')",
        cmn.PILHDR);
  return true;
}

bool run(common& cmn, identity& id) {
  if (!open_deck(cmn)) return false;
  if (!open_results(cmn)) return false;
  if (!import_deck(cmn)) return false;
  cmn.RIFWRITER = std::make_shared<Varno::TervakLibrary::IO::TervakRIFWriter>();
  return run_all_profiles(cmn, id);
}

}  // namespace

int CONTRL(common& cmn) {
  identity id;
  cmn.IERR = 0;
  set_constants(cmn);
  open_log(cmn, id);
  const bool good = run(cmn, id);

  fem::fixed_text<50> EXITMSG;
  EXITMSG.assign(good ? "NORMAL EXIT FROM TERVAK" : "ERROR EXIT FROM TERVAK");
  const int status = cmn.IERR;
  remark(cmn, "(1x,a)", EXITMSG);
  close_run_files(cmn);
  return status;
}

}  // namespace tervak
