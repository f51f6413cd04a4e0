#include "Control/state/Interpolate.hpp"

#include "Control/state/sp.hpp"

namespace KestraCommonLibrary::Utils {

using tervak::table_view;

namespace {

const double TOL = tervak::sp(1.0E-10f);

void ascending(int N, table_view X, table_view Y, double XI, double& YI, int& IERR) {
  if (!(X(N) - X(1) > TOL)) {
    IERR = 2;
    return;
  }
  if (!(XI > X(1))) {
    YI = Y(1);
    return;
  }
  if (!(X(N) > XI)) {
    YI = Y(N);
    return;
  }
  for (int i = 1;; ++i) {
    const double D = X(i + 1) - X(i);
    if (!(D - TOL > 0.0)) {
      IERR = 2;
      return;
    }
    if (X(i + 1) == XI) {
      YI = Y(i + 1);
      return;
    }
    if (X(i + 1) > XI) {
      YI = Y(i) + (XI - X(i)) * (Y(i + 1) - Y(i)) / D;
      return;
    }
  }
}

void descending(int N, table_view X, table_view Y, double XI, double& YI, int& IERR) {
  if (!(X(1) - X(N) > TOL)) {
    IERR = 3;
    return;
  }
  if (!(X(1) > XI)) {
    YI = Y(1);
    return;
  }
  if (!(XI > X(N))) {
    YI = Y(N);
    return;
  }
  for (int i = 1;; ++i) {
    const double D = X(i) - X(i + 1);
    if (!(D - TOL > 0.0)) {
      IERR = 3;
      return;
    }
    if (X(i + 1) == XI) {
      YI = Y(i + 1);
      return;
    }
    if (X(i + 1) < XI) {
      YI = Y(i + 1) + (XI - X(i + 1)) * (Y(i) - Y(i + 1)) / D;
      return;
    }
  }
}

}  // namespace

void Interpolate(int N, int ISIGN, table_view X, table_view Y, double XI, double& YI, int& IERR) {
  IERR = 0;
  YI = 1.0E10;
  if (N < 2) {
    YI = Y(1);
  } else if (ISIGN == 1) {
    ascending(N, X, Y, XI, YI, IERR);
  } else if (ISIGN == -1) {
    descending(N, X, Y, XI, YI, IERR);
  } else {
    IERR = 1;
  }
}

}  // namespace KestraCommonLibrary::Utils
