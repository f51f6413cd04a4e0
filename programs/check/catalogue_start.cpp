#include "check/catalogue_rows.hpp"

namespace tervak::check::rows {

// Start, files, end (CONTRL)

const std::vector<known_message> START_FILES_END = {
    {"+++++ START PROGRAM TERVAK   VERSION = %t %t", "goes on",
     "the run has begun: version and release date"},
    {"**** SR/CONTRL  FILE TERVAK.INP OPEN PROBLEM  IERR=%i", "ends, 1",
     "there is no `TERVAK.INP` in this directory, or it may not be read. Nothing was rotated but the "
     "log"},
    {"ABOVE ERROR CODE MEANS FILE TERVAK.INP NOT FOUND", "ends, 1",
     "does not arise: a missing file gives IERR 1 and the line above only"},
    {"**** SR/CONTRL  FILE TERVAK.LIS OPEN PROBLEM  IERR=%i", "ends, 1",
     "any of `TERVAK.LIS`, `soil_halde.fem` and `soil_70.fem` could not be made, although the line "
     "names the first: an older one could not be moved to its name with `.bak`. Look at permissions, "
     "and whether a directory bears that name"},
    {"**** SR/CONTRL  FILE TERVAK.RIF OPEN PROBLEM  IERR=%i", "ends, 1",
     "does not arise. A `TERVAK.RIF` that cannot be written is reported nowhere: see the line of its "
     "generation below"},
    {"+++++ INPUT FILE READ , LABEL LINE :\n%t", "goes on",
     "a profile has passed all checks of the input; its heading (78 characters)"},
    {"---- Warning from SR/CONTRL : TERVAK.INP differs from tervak.inp, which is the deck of this run",
     "goes on",
     "the deck stands under both names as two files that differ: mostly one was edited and the other "
     "forgotten. All values come from `tervak.inp`, the echo in the listing shows `TERVAK.INP`. Make "
     "one a link to the other"},
    {"**** SR/CONTRL  ERROR FROM SR/READGE  IERR=%i", "ends, 1",
     "the input of a profile was not accepted; the cause is above the lines of SR/LINERD. IERR is "
     "always 1"},
    {"**** SR/CONTRL  ERROR FROM BUILD  IERR=%i"
     "|**** SR/CONTRL  ERROR FROM SR/BUILD5  IERR=%i",
     "ends, 1", "the layer build failed, see below"},
    {"**** SR/CONTRL  INVALID P-Y CODE %i"
     "|**** SR/CONTRL  INVALID T-Z CODE %i"
     "|**** SR/CONTRL  INVALID Q-Z CODE %i",
     "ends, **0**",
     "does not arise: the input checks refuse such a code. Correct `PYCODM`, `TZCODM`, `QZCODM` "
     "(`PYCODE`, `TZCODE`, `QZCODE`)",
     "SUBDIVISION.PYCODM LAYERS.PYCODE|SUBDIVISION.TZCODM LAYERS.TZCODE|SUBDIVISION.QZCODM "
     "LAYERS.QZCODE"},
    {"**** SR/CONTRL  P-Y DATA PROBLEM  IERR,LAYER,PILE= %i %i %i"
     "|**** SR/CONTRL  T-Z DATA PROBLEM  IERR,LAYER,PILE= %i %i %i"
     "|**** SR/CONTRL  Q-Z DATA PROBLEM  IERR,LAYER,PILE= %i %i %i",
     "ends, 1",
     "a curve could not be made, for this calculation layer and this diameter; the cause is above. "
     "PILE counts diameters",
     "SUBDIVISION@2.PYCODM LAYERS@2.PYCODE DIAM#3|SUBDIVISION@2.TZCODM LAYERS@2.TZCODE "
     "DIAM#3|SUBDIVISION@2.QZCODM LAYERS@2.QZCODE DIAM#3"},
    {"**** SR/CONTRL  ERROR FROM SR/MODIFY  IERR=%i", "ends, 1",
     "the modification pass failed; the cause is above"},
    {"+++++ P-Y / T-Z / Q-Z  DATA CALCULATION FINISHED", "goes on", "all curves of the profile stand"},
    {"**** SR/CONTRL  ERROR FROM SR/PRINT  IERR=%i", "ends", "does not arise"},
    {"+++++ RESULT FILE TERVAK.LIS HAS BEEN PRINTED", "goes on",
     "the pages of the profile stand in the listing. Not printed with `JPRINT` 0"},
    {"+++++ KESTRA INPUT FILE TERVAK.RIF HAS BEEN GENERATED"
     "|+++++ KESTRA INPUT FILE TERVAK.RIF HAS BEEN GENERATED,  BORING LABEL= \"%t\"",
     "goes on",
     "the profile was handed to the interface file (revision 4, revision 5). The line also stands "
     "when the file could not be opened or the disk is full: look at the time of `TERVAK.RIF` and "
     "whether it ends with `IEND`"},
    {"Pile node Z-values were used for subdivision of main layers\nValues were taken from file "
     "PILEPLOT.TXT with header line:\n%t",
     "goes on",
     "a reminder: the last profile was subdivided by the nodes of pile `NUMPIL`. Earlier profiles are "
     "not mentioned"},
};

}  // namespace tervak::check::rows
