#include "check/catalogue_rows.hpp"

namespace tervak::check::rows {

// Layer build (BUILD, BUILD5)

const std::vector<known_message> LAYER_BUILD = {
    {"WARNING FROM SR/BUILD : LAY,GAMEFF= %i %x"
     "|WARNING FROM SR/BUILD5 : LAY,GAMEFF= %i %x",
     "goes on",
     "the effective unit weight of the layer is zero or negative: the pore water gradient `GAMPWP` "
     "exceeds `GAMM` (`GAMTOT`). The P-Y stage often fails after it, with code 3 or 6",
     "SOILTYPES@1.GAMTOT GAMPWP|MAINLAYERS@1.GAMM GAMPWP"},
    {"**** SR/BUILD : NEGATIVE SU VALUE CALCULATED\nLAY,TYP,SU0,SU100,ZLAY,SU= %i %i %x %x %x %x"
     "|**** SR/BUILD5 : NEGATIVE SU VALUE CALCULATED\nLAY,TYP,SU0,SU100,ZLAY,SU= %i %i %x %x %x %x",
     "ends, 1",
     "the line through SU0 at Z = 0 and SU100 at Z = 100 m is negative at this layer. Revision 4: "
     "correct the two columns; remember that Z counts from the datum, not from the top of the layer. "
     "Revision 5: SU0 and SU100 are made from `SUTOP` and `SUBOT`; with `UNITM` other than 1.0 their "
     "line comes out too flat, and a steep strength low in the ground turns negative here though the "
     "deck is right: run in metres. The line of a main layer starts at the bottom of the calculation "
     "layer of the number before, so that many layers above it flatten it too",
     "SOILTYPES#2.SU0 SOILTYPES#2.SU100|MAINLAYERS#2.SUTOP MAINLAYERS#2.SUBOT"},
    {"**** SR/BUILD : BOTH PHI AND SU ARE NON-ZERO\nLAY,PHI,SU= %i %x %x"
     "|**** SR/BUILD5 : BOTH PHI AND SU ARE NON-ZERO\nLAY,PHI,SU= %i %x %x",
     "ends, 1",
     "a layer is sand or clay, not both: set `PHI`, or `SU0` and `SU100`, to 0.0. Revision 5: look "
     "for a negative `SUTOP` or `SUBOT`",
     "SOILTYPES@1.PHI SOILTYPES@1.SU0|MAINLAYERS@1.PHIM MAINLAYERS@1.SUTOP MAINLAYERS@1.SUBOT"},
    {"**** SR/BUILD5 : Maximum allowed number of layers is reached. Max = %i", "ends, 255",
     "more than 500 calculation layers: lessen `NSUBM`, or the nodes", "SUBDIVISION.NSUBM NUMPIL"},
    {"**** Error termination by SR/BUILD5", "ends, 255",
     "follows the message above, and each message of the pile nodes"},
};

// Pile nodes (PILEPLOT.TXT)

const std::vector<known_message> PILE_NODES = {
    {"**** SR/BUILD5 : File \"PILEPLOT.TXT\" open problem, IERR=%i", "ends, 255",
     "`NUMPIL` names a pile, and there is no `PILEPLOT.TXT` in this directory", "NUMPIL"},
    {"The above error code means that the file was not found", "ends, 255",
     "does not arise: a missing file gives IERR 1 and the line above only"},
    {"**** SR/BUILD5 : Layer sub-division using pile NUMPIL=%i\nFile with pile node coords only has %i "
     "piles\nThis file has heading line :\n%t",
     "ends, 255", "`NUMPIL` is greater than the number of piles in line 2 of the file", "NUMPIL"},
    {"**** SR/BUILD5 : File NF17 pile sequence error\nPile1, Pile2 = %i %i", "ends, 255",
     "the pile expected, and the number found at its head. Piles are numbered from 1; often the node "
     "count of the pile before is wrong",
     "NUMPIL"},
    {"**** SR/BUILD5 : File NF17 pile node sequence error\nPile, Node1, Node2 = %i %i %i", "ends, 255",
     "the node expected (Node1), and the number found", "NUMPIL"},
    {"**** SR/BUILD5 : End-of-file error reading file NF17\nLocation =%i", "ends, 255",
     "the file ends too early. Location 100: its first two lines; 100 + P: the head of pile P; P "
     "times 1000 + K: node K of pile P",
     "NUMPIL"},
    {"**** SR/BUILD5 : Input format error reading file NF17\nLocation =%i", "ends, 255",
     "a number cannot be read at that place, or the file cannot be read at all", "NUMPIL"},
    {"**** SR/BUILD5 : Pile %i used for layer sub-division has its tip\nbelow the last main "
     "layer\nZ.last.layer, Z.pile.tip = %x %x",
     "ends, 255",
     "the last node of the pile lies below `ZMAIN` of the last main layer: give the soil deeper. "
     "Nodes count in run units",
     "NUMPIL MAINLAYERS$.ZMAIN"},
};

// Soil strength (R5SOIL)

const std::vector<known_message> SOIL_STRENGTH = {
    {"**** SR/R5SOIL : Missing sand layer strength parameter\nLayer,CPT,PHI,Dr= %i %x %x %x", "ends, 255",
     "cone resistance, friction angle and density of this sand add up to nothing: look for negative "
     "values in `CPTTOP`, `CPTBOT`, `PHIM`, `DRM`",
     "MAINLAYERS@1.CPTTOP MAINLAYERS@1.PHIM MAINLAYERS@1.DRM"},
    {"**** SR/R5SOIL : Error from SR/INTPOL  LAY,IERR= %i %i", "ends, 255",
     "levels of the main layers, or of the calculation layers, do not ascend. Does not arise unless "
     "`UNITM` is so small that layers have no thickness left",
     "MAINLAYERS.ZMAIN UNITM"},
    {"**** Error termination by SR/R5SOIL", "ends, 255", "follows the message above"},
};

}  // namespace tervak::check::rows
