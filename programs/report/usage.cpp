#include "report/options.hpp"

namespace tervak::report {

const char* const usage_text =
    "usage: tervak-report [--units FORCE,LENGTH] [-o PAGE] [TERVAK.RIF]\n"
    "       tervak-report --svg [PROFILE/]LAYERS [--units FORCE,LENGTH] [-o OUT] [TERVAK.RIF]\n"
    "       tervak-report [--csv DIRECTORY] [--json FILE] [--all-points] [--units FORCE,LENGTH] [TERVAK.RIF]\n"
    "       tervak-report --compare [--tolerance PERCENT] [-o PAGE] BEFORE.RIF AFTER.RIF\n"
    "\n"
    "Reads an interface file of TERVAK and writes one HTML page that shows its layers and curves; or SVG\n"
    "pictures of layers; or its numbers as CSV or JSON; or compares two files.\n"
    "\n"
    "  --svg [PROFILE/]LAYERS\n"
    "                        pictures of the P-Y, T-Z and Q-Z curves of these layers in place of the page, as\n"
    "                        in 5, 3,5-7, 2/5 or 2/all; numbers count from 1, and without PROFILE the first is\n"
    "                        meant\n"
    "  --csv DIRECTORY       layers.csv, curves.csv, capacity.csv and, where the file has such curves,\n"
    "                        monopile.csv in this directory, which is made when missing\n"
    "  --json FILE           the same as one JSON file\n"
    "  --all-points          with --csv and --json: the points that only fill a curve out, too\n"
    "  --compare             what changed from BEFORE.RIF to AFTER.RIF, largest first; with -o also as a page\n"
    "                        with both curves in one panel\n"
    "  --tolerance PERCENT   the change up to which two numbers count as alike; 0.1 when not given\n"
    "  --units FORCE,LENGTH  names of the units of the run, as in kN,m; the file carries none, so that\n"
    "                        without this option the output says \"run units\"; with --csv also units.csv\n"
    "  -o OUT                the file to write; TERVAK.html or TERVAK.svg when not given. For several\n"
    "                        pictures a directory, the current one when not given, for files as p1-l9.svg\n"
    "  -h, --help            this text\n"
    "  --version             the version\n"
    "\n"
    "The input is TERVAK.RIF when not given. The exit status is 0 when the output was written, 1 when the\n"
    "file cannot be read, is damaged or incomplete, has no such layer, or the output cannot be written, 2 for a\n"
    "wrong command line. With --compare it is 0 when the files are alike, 1 when they differ, 2 when they\n"
    "cannot be compared.\n";

}  // namespace tervak::report
