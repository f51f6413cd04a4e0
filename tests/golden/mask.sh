# What differs from run to run, masked in one place: stamps, the machine's rows of the banner, and the lines 2 to 4 of the
# DATE record. Sourced by the scripts that compare runs.
# shellcheck shell=bash
mask() { # file
  case $(basename "$1") in
    TERVAK.MLG)
      sed -i -e 's/\(Access time  : \).\{0,25\}/\1#/' -e 's/User id      : .\{0,25\}/#/' \
        -e 's/^ *\(Computer         : \).*/\1#/' -e 's/\(Computer         : \).*/\1#/' \
        -e 's/\(Impl. update     : \).*/\1#/' -e 's/ *\(Operating system : \).*/\1#/' \
        -e 's/ *\(CPU id           : \).*/\1#/' -e 's/\(Installation     : \).*/\1#/' "$1" ;;
    TERVAK.LIS)
      sed -i -e 's/\(THIS RUN WAS STARTED :  \).*/\1#/' -e 's/\( Time = \).*/\1#/' "$1" ;;
    TERVAK.RIF)
      sed -i -e '4,6s/.*/#/' "$1" ;;
  esac
}
