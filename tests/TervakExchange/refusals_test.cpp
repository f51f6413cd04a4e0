#include <gtest/gtest.h>

#include "TervakExchange/decks.hpp"

using namespace decks;

namespace {

#define NO_COMMA "; write a decimal point or a blank, no comma\n"
#define NO_POINT "; an integer takes no point and no exponent\n"
#define BEHIND_IT " behind it; comments open with \"!\"\n"

struct row {
  int line;           ///< of the deck, replaced by
  std::string lines;  ///< these
  std::string faults;
};

void expect_all(const char* deck, const std::vector<row>& rows) {
  for (const row& r : rows) EXPECT_EQ(places(with(deck, r.line, r.lines)), r.faults) << r.lines;
}

const std::string TITLE5 = "1:1: profile 1 \"Heading 5\" has ";
const std::string TITLE4 = "1:1: profile 1 \"Heading 4\" has ";

TEST(DeckRefusals, ValuesOfScalars) {
  expect_all(
      REVISION5,
      {{3, "GAMWAT\n", "3:1: GAMWAT takes one number, found none\n"},
       {3, "  GAMWAT\t10,1\n", "3:10: GAMWAT takes one number, found \"10,1\"" NO_COMMA},
       {3, "GAMWAT 1O.1 2\n",
        "3:8: GAMWAT takes one number, found \"1O.1\"\n"
        "3:13: GAMWAT takes one number, found \"2\"" BEHIND_IT},
       {3, "GAMWAT = 10\n",
        "3:8: GAMWAT takes one number, found \"=\"; only blanks stand between a keyword and its value\n"},
       {3, "GAMWAT 1E400\n",
        "3:8: GAMWAT takes one number, found \"1E400\"; it is beyond the range of a double\n"},
       {3,
        "GAMWAT \xC2\xA0"
        "10\n",
        "3:8: GAMWAT takes one number, found \"\xC2\xA0"
        "10\"; it holds a character that is not plain ASCII\n"},
       {7, "DIAM\n", "7:1: DIAM takes one or more numbers, found none\n"},
       {7, "DIAM 1 nan 2 inf\nDIAM 3m\n",
        "7:8: DIAM takes one or more numbers, found \"nan\"\n"
        "7:14: DIAM takes one or more numbers, found \"inf\"\n"
        "8:6: DIAM takes one or more numbers, found \"3m\"\n"},
       {17, "MATPIL 1.0\n", "17:8: MATPIL takes one integer, found \"1.0\"" NO_POINT},
       {17, "MATPIL 4294967297\n",
        "17:8: MATPIL takes one integer, found \"4294967297\"; it is beyond 32 bits\n"},
       {4, "ATMPRS 101.3\natmprs 100\n", "5:1: ATMPRS stands twice in this profile, first on line 4\n"}});
}

TEST(DeckRefusals, Revision) {
  expect_all(
      REVISION5,
      {{2, "REVISION 6\n", "2:10: REVISION takes 4 or 5, found \"6\"\n"},
       {2, "REVISION\n", "2:1: REVISION takes 4 or 5, found none\n"},
       {2, "REVISION 5 4\n", "2:12: REVISION takes 4 or 5, found \"4\"" BEHIND_IT},
       {2, "REVISION +5\n", "accepted\n"},
       {2, "REVISION 5,\n", "2:10: REVISION takes 4 or 5, found \"5,\"" NO_COMMA},
       {2, "My boring\nREVISION 5\n", "2:1: unknown keyword \"My\"\n"},
       {3, "GAMWAT 1\nREVISION 5\n", "4:1: REVISION stands twice in this profile, first on line 2\n"},
       {2, "AT 1 1\nREVISION 5\n",
        "2:1: AT opens a curve; it stands only behind the name of a curve table\n"},
       {2, "", TITLE5 + "no REVISION\n"},
       {2, "SFSU 1\nREVISION 5\n", "3:1: REVISION comes first, right behind the heading of its profile\n"},
       {1, "", "1:1: profile 1 has no heading, found REVISION; the first line of a deck is free text\n"},
       {1, "REVISION B of the report\n",
        "1:1: profile 1 has no heading, found REVISION; the first line of a deck is free text\n"},
       {1, "revision 4 ! of the deck\n",
        "1:1: profile 1 has no heading, found REVISION; the first line of a deck is free text\n"},
       {1, "Revision 4 of the report\n", "accepted\n"},
       {3, "GAMWAT 1\nMIDBOT 1\nRFTZ x\nLAYERS\n1 2 x\n",
        "4:1: MIDBOT belongs to revision 4, this profile is revision 5\n"
        "5:1: RFTZ belongs to revision 4, this profile is revision 5\n"
        "6:1: LAYERS belongs to revision 4, this profile is revision 5\n"}});
  expect_all(REVISION4, {{3, "MIDBOT 1\nESOL2 1\nNUMLAYM 1\n",
                          "4:1: ESOL2 belongs to revision 5, this profile is revision 4\n"
                          "5:1: NUMLAYM belongs to revision 5, this profile is revision 4\n"}});
}

TEST(DeckRefusals, Keywords) {
  expect_all(
      REVISION5,
      {{7, "DAIM 1.2\n", "7:1: unknown keyword \"DAIM\"; did you mean DIAM?\n"},
       {18, "MAINLAYER\n", "18:1: unknown keyword \"MAINLAYER\"; did you mean MAINLAYERS?\n"},
       {3, "GAMWAT=10.1\n", "3:1: unknown keyword \"GAMWAT=10.1\"; did you mean GAMWAT?\n"},
       {3, "GAMWAT, 10.1\n", "3:1: unknown keyword \"GAMWAT,\"" NO_COMMA},
       {3, "GAMWAT 10 ,1\n", "3:11: GAMWAT takes one number, found \",1\" behind it" NO_COMMA},
       {18, "MAINLAYERS ,\n", "18:12: MAINLAYERS stands alone on its line, found \",\" behind it" NO_COMMA},
       {3, "GAMWAT 1\nNUMLAYN 1\n", "4:1: unknown keyword \"NUMLAYN\"; did you mean NUMLAYM?\n"},
       {3, "GAMWAT 1\nsomething else\n", "4:1: unknown keyword \"something\"\n"},
       {3, "GAMWAT 1\n#x\n *\n/\n,5\n",
        "4:1: a line cannot begin with \"#\"\n"
        "5:2: a line cannot begin with \"*\"; a comment has its * in column 1\n"
        "6:1: a line cannot begin with \"/\"\n"
        "7:1: a line cannot begin with \",\"" NO_COMMA}});
  expect_all(REVISION4,
             {{3, "MIDBOT 1\nNUMLAYN 12\n", "4:1: unknown keyword \"NUMLAYN\"; did you mean NUMLAY?\n"}});
}

TEST(DeckRefusals, WhatIsMissing) {
  expect_all(REVISION5,
             {{3, "", TITLE5 + "no GAMWAT\n"},
              {3, " * GAMWAT 10\n", "3:2: a line cannot begin with \"*\"; a comment has its * in column 1\n"},
              {3, "GAMWAX 10\n", "3:1: unknown keyword \"GAMWAX\"; did you mean GAMWAT?\n"},
              {15, "Small 1\n", TITLE5 + "no WALL\n15:1: unknown keyword \"Small\"; did you mean WALL?\n"},
              {15, "Small notes\n", TITLE5 + "no WALL\n15:1: unknown keyword \"Small\"\n"},
              {7, "", TITLE5 + "no DIAM\n"},
              {17, "", TITLE5 + "no MATPIL\n"},
              {4, "ATMPRS 1\nSIGEMB 0\n", TITLE5 + "SIGEMB but no AEMB\n" + TITLE5 + "SIGEMB but no BEMB\n"},
              {4, "ATMPRS 1\nSIGCIR 0\n", TITLE5 + "SIGCIR but no RADCIR\n"},
              {4, "ATMPRS 1\nRADCIR 1\nAEMB 1\n", "accepted\n"},
              {4, "ATMPRS 1\nNUMDSP 2\n", TITLE5 + "no DISPLACEMENTS, NUMDSP says 2\n"}});
  expect_all(REVISION4, {{3, "", TITLE4 + "no MIDBOT\n"}, {16, "", TITLE4 + "no RFTZ\n"}});
  const std::string second = "the next boring\n" + std::string(REVISION5).substr(10);
  EXPECT_EQ(
      places(REVISION5 + second),
      "24:1: unknown keyword \"the\"\n"
      "25:1: REVISION stands twice in this profile, first on line 2; is END missing above the heading of the "
      "next profile?\n");
  EXPECT_EQ(
      places(REVISION5 + std::string("END\nend of file")),
      "25:1: profile 2 \"end of file\" has nothing behind its heading; at the end of a deck stands END, and no "
      "text behind it\n");
  // The order of the file: what a later profile lacks comes behind the faults of an earlier one.
  EXPECT_EQ(places(with(REVISION5, 6, "SUSTIF x\n") + std::string("END\n Boring\tB-7 \nREVISION 5\n") +
                   with(with(with(REVISION5, 7, "DIAM x\n"), 3, ""), 2, "").substr(10)),
            "6:8: SUSTIF takes one number, found \"x\"\n"
            "25:1: profile 2 \"Boring B-7\" has no GAMWAT\n"
            "30:6: DIAM takes one or more numbers, found \"x\"\n");
}

TEST(DeckRefusals, Tables) {
  expect_all(REVISION5,
             {{18, "MAINLAYERS 1\n", "18:12: MAINLAYERS stands alone on its line, found \"1\"" BEHIND_IT},
              {19, "  1 30.5 18.1 12 20 35 0.7 21 45 31 0.01 0.25\n",
               "19:3: MAINLAYERS row takes 13 fields, found 12\n"},
              {19, "1 30.5 18.1 12 2O 35 0.7 21 45 31.5 0.01 0.25 0\n",
               "19:16: MAINLAYERS column 5, CPTBOT, takes a number, found \"2O\"\n"
               "19:32: MAINLAYERS column 10, PLIM, takes an integer, found \"31.5\"" NO_POINT},
              {19, "1,30.5,18.1\n",
               "19:1: MAINLAYERS row takes numbers parted by blanks, found \"1,30.5,18.1\"" NO_COMMA},
              {23, "1 30.5 4 284 293 200 1 81 82\n", "23:1: SUBDIVISION row takes 7 or 12 fields, found 9\n"},
              {21, "", "20:1: SKINFRICTION has 0 rows, MAINLAYERS has 1\n"},
              {21, "1 3 15 16 17 18 19 20 1 1 0\n2 3 15 16 17 18 19 20 1 1 0\n",
               "20:1: SKINFRICTION has 2 rows, MAINLAYERS has 1\n"},
              {22, "NUMLAYM 2\nSUBDIVISION\n", "18:1: MAINLAYERS has 1 row, NUMLAYM says 2\n"},
              {19, "SFSU 1\n1 30.5 18.1 12 20 35 0.7 21 45 31 0.01 0.25 99\n",
               "20:1: this row belongs to no table, SFSU on line 19 takes no rows\n"},
              {23, "x1 30.5 4 284 293 200 1\n", "23:1: unknown keyword \"x1\"\n"},
              {23, "\"1 30.5 4 284 293 200 1\n", "23:1: a line cannot begin with \"\"\"\n"},
              {23, "MAINLAYERS\n1 30.5 4 284 293 200 1\n",
               "23:1: MAINLAYERS stands twice in this profile, first on line 18\n"
               "24:1: MAINLAYERS row takes 13 fields, found 7\n"},
              {23, "Small notes\n",
               "22:1: SUBDIVISION has 0 rows, MAINLAYERS has 1\n"
               "23:1: unknown keyword \"Small\"\n"},
              {2, "+1 2\nREVISION 5\n", "2:1: this row belongs to no table\n"},
              {18, "MODIFYPY\n1 2 0 1 1 1 1 1 1\n0 0 0 0 0 0 0 0 0\n2 3 0 1 1 1 1 1 1\n3 4 1\nMAINLAYERS\n",
               "21:1: this row of MODIFYPY stands behind a row whose L1 is 0, which closes the list\n"
               "22:1: this row of MODIFYPY stands behind a row whose L1 is 0, which closes the list\n"},
              {18, "POINTLOADS\n1 2\nPOINTLOADS\n1 2 3\nMAINLAYERS\n",
               "20:1: POINTLOADS stands twice in this profile, first on line 18\n"
               "21:1: POINTLOADS row takes 2 fields, found 3\n"}});
  expect_all(REVISION4,
             {{20, "0.5 - 16 - 0.03 900 0.35 0.05\n",
               "20:5: TZQZTABLE column 2, TCMP, takes a number, found \"-\"\n"},
              {20, "0.5 15 16 -- 0.03 900 0.35 0.05\n",
               "20:11: TZQZTABLE column 4, G0SOIL, takes a number or \"-\", found \"--\"\n"},
              {3, "MIDBOT 1\nNUMTYP 2\nNUMTQZ 1\nNUMLAY 13\n",
               "20:1: SOILTYPES has 1 row, NUMTYP says 2\n"
               "22:1: TZQZTABLE has 2 rows, NUMTQZ says 1\n"
               "25:1: LAYERS ends at layer 12, NUMLAY says 13\n"},
              {24, "5 4 1 30 0 214 101\n",
               "22:1: LAYERS reaches its last layer, 4, in row 1 of 2; the L2 ascend from row to row\n"},
              {24, "NUMLAY 4\n", "accepted\n"}});
}

TEST(DeckRefusals, Curves) {
  const std::string unused = ": MANUALTZ is not used, no layer has the T-Z code 0\n";
  expect_all(
      REVISION4,
      {{24, "5 6 1 30 0 214 101\nMANUALPY\nAT 5 1.2\nAT 6 1.2\n0 0\n", "accepted\n"},
       {24, "5 6 1 30 0 214 101\nMANUALPY\nAT 5 1.2\n",
        "25:1: MANUALPY has no curve for layer 6 and diameter 1.2; layer 6 has the P-Y code 0\n"},
       {24, "5 6 1 30 0 214 101\n",
        "1:1: profile 1 \"Heading 4\" has no MANUALPY for layer 5 and diameter 1.2; layer 5 has the P-Y code 0\n"},
       {24, "5 6 1 30 0 214 101\nMANUALPY\nAT 4 1.2\nAT 5 1.2\nAT 5 1.3\nAT 5 1.2\nAT 7 1.2\nAT M1 0\n",
        "31:4: \"M1\" is a main layer, and a profile of revision 4 has none\n"},
       {24, "5 6 1 30 0 214 101\nMANUALPY\nAT 4 1.2\nAT 5 1.2\nAT 5 1.3\nAT 5 1.2\nAT 7 1.2\n",
        "26:1: this curve would not be used: layer 4 has the P-Y code 284, not 0\n"
        "28:6: this curve would not be used: \"1.3\" is no DIAM\n"
        "29:1: layer 5 and this diameter have their curve already, on line 27\n"
        "30:4: this curve would not be used: the profile has the layers 1 to 6\n"},
       // code 0 stands behind the layers in use
       {24, "5 6 1 30 0 214 101\nNUMLAY 4\nMANUALPY\nAT 5 1\n0 0\n",
        "26:1: MANUALPY is not used, no layer has the P-Y code 0\n"},
       // a faulty NUMLAY says nothing about the codes
       {24, "5 6 1 30 0 214 101\nNUMLAY 4.\nMANUALPY\nAT 5 1\n0 0\n",
        "25:8: NUMLAY takes one integer, found \"4.\"" NO_POINT},
       // numbers that are not sound are for the stages
       {24, "4 6 1 30 0 214 101\nMANUALPY\nAT 5 1\n", "accepted\n"},
       {24, "5 501 1 30 0 214 101\nMANUALPY\nAT 5 1\n", "accepted\n"},
       {3, "MIDBOT 1\nMANUALTZ\nAT 1 1\n0 0\n", "4:1" + unused}});
  expect_all(
      REVISION5,
      {{3, "GAMWAT 1\nMANUALTZ\nAT 1 1\n", "4:1" + unused},
       {3, "GAMWAT 1\nMANUALBSY\n1 2\n2 3\nSFSU 1\n",
        "5:1: this row stands before the first AT of MANUALBSY\n"},
       {3, "GAMWAT 1\nMANUALPY\n", "4:1: MANUALPY has no curve; AT, a layer and a diameter open one\n"},
       {3, "GAMWAT 1\nMANUALBSY\nAT1 1.0\n1 2\n", "5:1: unknown keyword \"AT1\"; did you mean AT?\n"},
       {3, "GAMWAT 1\nMANUALBSY\nAT 1.0 x\n1 y\n1 2 3\nAT 1\nAT 1,2\n",
        "5:4: AT takes an integer as layer, found \"1.0\"" NO_POINT
        "5:8: AT takes a number as diameter, found \"x\"\n"
        "6:3: MANUALBSY displacement takes a number, found \"y\"\n"
        "7:1: MANUALBSY row takes 2 fields, found 3\n"
        "8:1: AT takes a layer and a diameter, found 1 field behind it\n"
        "9:4: AT takes numbers parted by blanks, found \"1,2\"" NO_COMMA},
       {3, "GAMWAT 1\nMANUALBSY\n1 2\n2 3\nAT 1 1\n1 2 3\n",
        "5:1: this row stands before the first AT of MANUALBSY\n"
        "8:1: MANUALBSY row takes 2 fields, found 3\n"},
       {19, "AT 1 1.2\n1 30.5 18.1 12 20 35 0.7 21 45 31 0.01 0.25 99\n",
        "19:1: AT opens a curve; it stands only behind the name of a curve table\n"},
       {18, "AT 1 1.2\n0 0\nMAINLAYERS\n",
        "18:1: AT opens a curve; it stands only behind the name of a curve table\n"},
       {3, "GAMWAT 1\nMODIFYBSY\n1 1 1 1 1\nMODIFYMTHETA\nMODIFYBMTHETA\nMANUALBMTHETA\nAT 1 1\n",
        "4:1: MODIFYBSY stands without MANUALBSY, which it modifies\n"
        "6:1: MODIFYMTHETA stands without MANUALMTHETA, which it modifies\n"}});
}

TEST(DeckRefusals, MainLayers) {
  const std::string layers =
      "MATPIL 2\nMAINLAYERS\n1 9 18 0 0 35 0 0 0 0 0 0 0\n2 12 18 0 0 35 0 0 0 0 0 0 0\n"
      "3 30 18 0 0 35 0 0 0 0 0 0 0\nSKINFRICTION\n1 0 1 1 1 1 1 1 1 1 0\n"
      "2 0 1 1 1 1 1 1 1 1 0\n3 0 1 1 1 1 1 1 1 1 0\n"
      "SUBDIVISION\n1 9 2 284 0 200 0\n2 12 3 284 0 200 0\n3 30 4 284 293 200 0\n";
  std::string base = REVISION5;
  base.resize(base.find("MATPIL"));
  base += layers;  // up to line 29
  const std::string curves = "MANUALTZ\nAT m1 0\n0 0\nAT 4 1.2\nAT 5 1.2\nAT 3 1.2\nAT M2 1.5\n";  // to 36
  const std::string good = base + curves;
  const struct {
    std::string deck, faults;
  } rows[] = {
      {good, "accepted\n"},
      {base,
       "1:1: profile 1 \"Heading 5\" has no MANUALTZ for layer 1 and diameter 1.2; layer 1 has the T-Z code 0\n"},
      {good + "AT M3 0\nAT M4 1.2\nAT M0 0\nAT M1 1.3\nAT Mx 1\n",
       "41:4: AT takes an integer as layer, found \"Mx\"\n"},
      {good + "AT M3 0\nAT M4 1.2\nAT M0 0\nAT M1 1.3\nAT M2 1.2\n",
       "37:1: this curve would not be used: main layer 3 has the T-Z code 293, not 0\n"
       "38:4: there is no main layer 4, the profile has 3\n"
       "39:4: there is no main layer 0, the profile has 3\n"
       "40:7: this curve would not be used: \"1.3\" is no DIAM\n"
       "41:1: layer 3 and this diameter have their curve already, on line 35\n"},
      {with(good, 31, "AT m1 1.5\n"),
       "30:1: MANUALTZ has no curve for layer 1 and diameter 1.2; layer 1 has the T-Z code 0, "
       "and 1 more are missing\n"},
      {with(good, 17, "MATPIL 2\nNUMPIL 1\n"),
       "32:4: \"m1\" is a main layer, but NUMPIL 1 takes the calculation layers from pile nodes; write layer numbers\n"},
      {with(good, 27, "1 9 0 284 0 200 0\n"), "accepted\n"},  // the stage speaks of NSUBM
      {with(good, 27, "1 9 500 284 0 200 0\n"), "accepted\n"},
      {good + "MANUALBSY\nAT M3 0\nAT 9 1.5\nAT M3 7\n",
       "39:1: layer 9 and this diameter have their curve already, on line 38\n"},
      {good + "MANUALBSY\nAT 9 1.5\nAT 9 1.5\n", "accepted\n"},
      {good + "MODIFYTZ\nM2 M3 1.5 1 1 1 1 1\nm1 M1 0 1 1 1 1 1\nM2 m3 1.2 1 1 1 1 1\n", "accepted\n"},
      {good +
           "MODIFYTZ\nM2 M3 1.5 1 1 1 1 1\nM1 M2 0 1 1 1 1 1\nM3 M2 0 1 1 1 1 1\nM3 M4 0 1 1 1 1 1\nM1 M1 2 1 1 1 1 1\n",
       "39:1: this row of MODIFYTZ overlaps the row on line 38; a main layer and a diameter take one row\n"
       "40:4: \"M2\" lies above \"M3\"; the upper main layer is the first of the two\n"
       "41:4: there is no main layer 4, the profile has 3\n"
       "42:7: MODIFYTZ column 3, DIAMETER, takes one of DIAM, or 0.0 for all, found \"2\"\n"},
      {good + "MODIFYTZ\nM2 M3 1.5 1 1 1 1 1\n1 2 0 1 1 1 1 1\n",
       "39:1: this row names calculation layers, the rows above it main layers; all rows of MODIFYTZ are written "
       "one way or the other\n"},
      {good + "MODIFYTZ\nM2 3 1.5 1 1 1 1 1\n2 M3 0 1 1 1 1 1\n",
       "38:4: MODIFYTZ column 2, L2, takes a main layer as M and its number, found \"3\"\n"
       "39:3: MODIFYTZ column 2, L2, takes an integer, found \"M3\"; a main layer as M stands in both columns\n"},
      {good + "MODIFYTZ\n1 9 1.5 1 1 1 1 1\n1 9 1.2 1 1 1 1 1\n",
       "39:1: this row of MODIFYTZ would not be used: the row on line 38 reaches the last layer for the last "
       "diameter, which ends the list\n"},
      {good + "MODIFYTZ\n1 8 0 1 1 1 1 1\n1 9 1.2 1 1 1 1 1\n9 9 0 1 1 1 1 1\n0 0 0 0 0 0 0 0\n",
       "accepted\n"},
      {good + "MODIFYTZ\n1 10 0 1 1 1 1 1\n1 9 1.2 1 1 1 1 1\n", "accepted\n"},  // layers are the stage's
      {good + "MODIFYBSY\nM4 M4 7 1 1\nMANUALBSY\nAT 1 1\n",
       "38:1: there is no main layer 4, the profile has 3\n"
       "38:4: there is no main layer 4, the profile has 3\n"},
      {good + "MODIFTZ\nM1 M2 0 1\n", "37:1: unknown keyword \"MODIFTZ\"; did you mean MODIFYTZ?\n"},
      {good + "SFSU 1\nM1 M2 0 1\n", "38:1: unknown keyword \"M1\"\n"}};
  for (const auto& row : rows) EXPECT_EQ(places(row.deck), row.faults) << row.deck;
}

}  // namespace
