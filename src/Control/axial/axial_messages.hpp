#pragma once

/// What R5AXCAP prints when a method fails: the message (items: layer, IERR) and the text of its codes.
namespace tervak::axial_messages {

struct method_texts {
  const char* message;
  const char* codes;
};

// Texts stand as they always have, also where they differ from the tests they describe (Dr of NGI05SS).
constexpr method_texts NGI05SS = {
    "(/,' **** SR/R5AXCAP : Error from SR/NGI05SS. Layer,IERR=',2i5)",
    "(/,' Error codes from this routine are:',/,' 1 = SIGZ < EPS   2 = Dr < 0.1 or Dr > 2.0',/,' 3 = Present layer is below pile tip',/,' 4 = Open/closed pile tip code error')"};
constexpr method_texts NGI05SC = {
    "(/,' **** SR/R5AXCAP : Error from SR/NGI05SC. Layer,IERR=',2i5)",
    "(/,' Error codes from this routine are:',/,' 1 = SIGZ < EPS   2 = Ip < EPS   3 = Su < EPS',/,' 4 or 5 = Open/closed pile tip code error')"};
constexpr method_texts ICP96SC = {
    "(/,' **** SR/R5AXCAP : Error from SR/ICP96SC. Layer,IERR=',2i5)",
    "(/,' Error codes from this routine are:',/,' 1 = SIGZ < EPS   2 = H/R < 8   3 = Ip < 0.1 %',/,' 4 = OCR < 0.1 and SuCMP < EPS  5 = St < 0.9',/,' 100+N = SR/INTPOL error')"};
constexpr method_texts ICP05SS = {
    "(/,' **** SR/R5AXCAP : Error from SR/ICP05SS. Layer,IERR=',2i5)",
    "(/,' Error codes from this routine are:',/,' -1 or -2 = MCSAND error   1 = SIGZ < EPS   2 = QCPT < EPS',/,' 3 = DISTH < -EPS   4 = Radius < 0.01m   5 = Wall < 1mm',/,' 6 = DELTAF < EPS and D50 < EPS  7 = Open/closed code error',/,' 8 = Radius-Wall is negative')"};
constexpr method_texts API87SC = {
    "(/,' **** SR/R5AXCAP : Error from SR/API87SC. Layer,IERR=',2i5)",
    "(/,' Error codes from this routine are:',/,' 1 = SIGZ < EPS   2 = Su < EPS')"};
constexpr method_texts API84SS = {
    "(/,' **** SR/R5AXCAP : Error from SR/API84SS. Layer,IERR=',2i5)",
    "(/,' Error codes from this routine are:',/,' 1 = SIGZ < EPS   2 = PHI < 10 degr   3 = Open/closed code',' error')"};
constexpr method_texts NGI05TS = {
    "(/,' **** SR/R5AXCAP : Error from SR/NGI05TS. Layer,IERR=',2i5)",
    "(/,' Error codes from this routine are:',/,' 1,2 = MCSAND error   3 = SIGZ < EPS   4 = Dr < 0.0',/,' 5 = Dr > 1.5   6-9 = CPT qc problem  10 = DIAM < 0.05m',/,' 11 = DIAM > 10m   12 = WALL < 1mm   13 = DIAINS < 0.0',/,' 14,15 = Open/closed tip code error')"};
constexpr method_texts ICPXXTS = {
    "(/,' **** SR/R5AXCAP : Error from SR/ICPXXTS. Layer,IERR=',2i5)",
    "(/,' Error codes from this routine are:',/,' 1,2 = MCSAND error   3 = SIGZ < EPS   4 = Dr < 0.0',/,' 5 = Dr > 1.5   6-9 = CPT qc problem  10 = DIAm < 0.05m',/,' 11 = DIAM > 10m   12 = WALL < 1mm   13 = DIAINS < 0.0',/,' 14,15 = Open/closed tip code error')"};
constexpr method_texts APITipResistance = {
    "(/,' **** SR/R5AXCAP : Error from SR/APITipResistance. Layer,IERR=',2i5)",
    "(/,' Error codes from this routine are:',/,' 1,2 = MCSAND error   3 = SIGZ < EPS   4 = PHI < 1 degree')"};

}  // namespace tervak::axial_messages
