#pragma once

namespace Varno::TervakLibrary::SoilCurves {

/// What tells the three kinds of monopile curve apart: the words of their findings, and whether the
/// displacement is a length or a rotation, which is not converted.
struct MonoPileKind {
  const char* curve_error;
  const char* displacement_name;
  const char* force_name;
  const char* modification_error;
  const char* displacement_factor_name;
  const char* force_factor_name;
  bool displacement_is_length;
};

/// Distributed moment against rotation.
inline constexpr MonoPileKind M_THETA = {" ****  MANUAL M-THETA ERROR:",
                                         "THETA",
                                         "M",
                                         " ****  MANUAL M-THETA DATA MODIFICATION ERROR: ",
                                         "THETAFACT",
                                         "MFACT",
                                         false};
/// Base shear against displacement.
inline constexpr MonoPileKind BS_Y = {" ****  MANUAL BS-Y ERROR:",
                                      "Y",
                                      "BS",
                                      " ****  MANUAL BS-Y DATA MODIFICATION ERROR: ",
                                      "YFACT",
                                      "BSFACT",
                                      true};
/// Base moment against rotation.
inline constexpr MonoPileKind BM_THETA = {" ****  MANUAL BM-THETA ERROR:",
                                          "THETA",
                                          "BM",
                                          " ****  MANUAL BM-THETA DATA MODIFICATION ERROR: ",
                                          "THETAFACT",
                                          "BMFACT",
                                          false};

}  // namespace Varno::TervakLibrary::SoilCurves
