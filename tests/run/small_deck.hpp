#pragma once

#include <string>

/// A deck that runs to its good end: one clay, two layers, one diameter.
inline std::string small_deck() {
  return "Small deck\n"
         "REVISION 5\n"
         "BORING   B-1\n"
         "GAMWAT   10.0\n"
         "ATMPRS  101.3\n"
         "ZCYCL     0.0\n"
         "SUSTIF   96.0\n"
         "DIAM     1.0\n"
         "ESOL0 10000.0\n"
         "ESOL1   500.0\n"
         "POSAVR    0.4\n"
         "ZSEAFL    0.0\n"
         "ZPWP      0.0\n"
         "GAMPWP   10.0\n"
         "DIAMP     1.0\n"
         "WALL      0.05\n"
         "ZTIP      8.0\n"
         "MATPIL    1\n"
         "MAINLAYERS\n"
         "1 10.0 18.0 0.0 0.0 0.0 0.0 40.0 60.0 30 0.01 0.25 0.0\n"
         "SKINFRICTION\n"
         "1 0 20.0 30.0 20.0 30.0 360.0 540.0 1.0 0.9 0.01\n"
         "SUBDIVISION\n"
         "1 10.0 2 284 293 293 0\n";
}
