#include "check/catalogue.hpp"

namespace tervak::check {

std::span<const known_refusal> known_refusals() {
  static const known_refusal rows[] = {
      {"takes ..., found none", ", found none", "the value is missing after its keyword"},
      {"found ... behind it; comments open with \"!\"", "behind it",
       "a unit or a remark after the value, or something after a table's name"},
      {"unknown keyword ...; did you mean ...?", "unknown keyword",
       "the spelling. The rows after an unknown word are passed over"},
      {"belongs to revision 4, this profile is revision 5 (or the other way round)", "belongs to revision",
       "the keyword, or `REVISION`"},
      {"REVISION takes 4 or 5; REVISION comes first; has no heading, found REVISION",
       "REVISION takes|REVISION comes first|has no heading",
       "each profile is a heading line, then `REVISION`"},
      {"stands twice in this profile, first on line N", "stands twice",
       "one of the two; only `DIAM` may be repeated"},
      {"row takes N fields, found N", "row takes", "fields of the row were lost or added"},
      {"this row belongs to no table, T on line N takes no rows", "belongs to no table",
       "a keyword is in the middle of a table and closes it"},
      {"stands behind a row whose L1 is 0, which closes the list", "which closes the list",
       "take the row with `L1` 0 out, or the rows after it"},
      {"has no curve for layer N and diameter X; has no MANUALPY for layer N and diameter X (MANUALTZ, MANUALQZ)",
       "has no curve for layer| for layer ",
       "a layer with the code 0 of the family needs a curve for each diameter. `AT M1 0` gives one to all layers "
       "of main layer 1"},
      {"this curve would not be used; layer N and this diameter have their curve already, on line N",
       "this curve would not be used|have their curve already",
       "take the curve out, or correct the layer, the diameter or the code that the message names"},
      {"this row of MODIFYPY would not be used: the row on line N reaches the last layer (MODIFYTZ, MODIFYQZ)",
       "would not be used",
       "put the rows in the order of `DIAM`, and rows for all diameters first; a list ends with the row that "
       "reaches the last layer for the last diameter"},
      {"this row of MODIFYPY overlaps the row on line N; column 3, DIAMETER, takes one of DIAM, or 0.0 for all",
       "overlaps the row|takes one of DIAM",
       "in rows with main layers each main layer and diameter takes one row; 0.0 means all diameters"},
      {"there is no main layer N; \"T\" is a main layer, but or and T; \"T\" lies above \"T\"",
       "there is no main layer|is a main layer|lies above",
       "`M` and a number is a main layer of `MAINLAYERS`, in revision 5 without `NUMPIL`"},
      {"this row names main layers, the rows above it calculation layers; takes a main layer as M and its number",
       "this row names|takes a main layer",
       "write all rows of a table, and both layers of a row, one way or the other"},
      {"the deck is written in UTF-16, two bytes a character", "written in UTF-16",
       "save it as plain text in UTF-8 or ANSI"},
      {"AT takes a layer and a diameter; AT opens a curve; stands before the first AT; has no curve",
       "AT takes|AT opens|AT, a layer and a diameter|before the first AT|has no curve",
       "each curve opens with `AT layer diameter` below the name of its table"},
      {"is not used, no layer has the P-Y code 0 (T-Z, Q-Z)", "is not used, no layer has",
       "take the curves out, or give the layers the code 0"},
      {"stands without MANUALMTHETA, which it modifies (MANUALBSY, MANUALBMTHETA)", "which it modifies",
       "give the curves, or take the factors out"},
      {"\"End\" does not close a profile; write END in columns 1 to 3", "does not close a profile",
       "as it says"},
      {"has nothing behind its heading", "has nothing behind its heading",
       "a text after the last `END`, or a profile that was left empty"},
      {"a line cannot begin with T; it holds a character that is not plain ASCII",
       "a line cannot begin with|not plain ASCII",
       "a comment sign out of column 1, a bullet, a quotation mark, a no-break space"},
      {"cannot open the deck; cannot read the deck; the deck is empty",
       "cannot open the deck|cannot read the deck|the deck is empty",
       "on Linux the deck must have both names: `ln -s TERVAK.INP tervak.inp`"},
      {"has N rows, T says N; has N rows, MAINLAYERS has N; LAYERS ends at layer N, NUMLAY says N; has no "
       "DISPLACEMENTS, NUMDSP says N; LAYERS reaches its last layer in row N of N",
       " rows, | row, | says |LAYERS reaches",
       "rows were lost, or the count is wrong. Counts may be left out; the `L2` of `LAYERS` ascend"},
      {"has no T; has T but no T", " has no | but no ",
       "a required keyword is missing; the mark is under the profile's heading"},
      {"takes one number (one integer, a number, an integer, one or more numbers, numbers separated by blanks), "
       "found ...",
       " takes ",
       "the value at the mark. Hints after it: a decimal comma, a point in an integer, a character of a word "
       "processor, a number beyond the range"},
      {"and N more faults", " more fault", "20 faults are listed; correct them and run again"},
  };
  return rows;
}

std::span<const known_ending> known_endings() {
  constexpr std::string_view begun = "START PROGRAM, or GENERATED of the profile before";
  constexpr std::string_view begun_lines = "START PROGRAM|HAS BEEN GENERATED";
  static const known_ending rows[] = {
      {begun, begun_lines,
       "a layer has the code 0, and `MANUALPY`, `MANUALTZ` or `MANUALQZ` holds fewer curves than code-0 layers "
       "times diameters, or is missing",
       "SUBDIVISION.PYCODM=0 SUBDIVISION.TZCODM=0 SUBDIVISION.QZCODM=0 LAYERS.PYCODE=0 LAYERS.TZCODE=0 "
       "LAYERS.QZCODE=0"},
      {begun, begun_lines, "`L1` of a row of `MODIFYPY`, `MODIFYTZ` or `MODIFYQZ` is negative",
       "MODIFYPY.L1<0 MODIFYTZ.L1<0 MODIFYQZ.L1<0"},
      {begun, begun_lines,
       "revision 5: the first main layer ends above `ZSEAFL`, or no more than 0.001 length units below it: `ZMAIN` "
       "of row 1",
       "MAINLAYERS^.ZMAIN ZSEAFL"},
      {begun, begun_lines, "the pile `NUMPIL` has no nodes in `PILEPLOT.TXT`", "NUMPIL"},
      {"HAS BEEN PRINTED (or CALCULATION FINISHED)", "HAS BEEN PRINTED|CALCULATION FINISHED",
       "the USFOS export failed: a diameter whose material number is beyond 32 bits, such as 3 million length units",
       "DIAM"},
      {"ERROR EXIT, and no error above it", "ERROR EXIT",
       "the USFOS export failed, its message is in `soil_halde.fem` or `soil_70.fem`: three times layers times "
       "diameters above 5000, or two diameters that are equal when rounded",
       "DIAM SUBDIVISION.NSUBM NUMLAY"},
      {"any", "", "the disk is full, or memory has run out"},
  };
  return rows;
}

}  // namespace tervak::check
