#include "Control/state/ECHO.hpp"

#include <string>

#include "Control/state/read_line.hpp"
#include "fem/errors.hpp"
#include "fem/file_positioning_chain.hpp"
#include "fem/write.hpp"

namespace tervak {

namespace {

void print_ruler(common& cmn, int NFW) {
  fem::write(cmn.units, NFW, "(/,10x,9('0'),10('1'),10('2'),10('3'),10('4'),10('5'),10('6'),10('7'),'8')");
  fem::write(cmn.units, NFW, "(10x,8('1234567890'),/)");
}

void copy_lines(common& cmn, int NFR, int NFW) {
  int NOW = 1;
  try {
    for (;; ++NOW) {
      const auto line = read_line_of_deck<80>(cmn, NFR, "(a83)", NOW == 1);
      fem::write(cmn.units, NFW, "(i5,'----',1x,a80)", NOW, line);
    }
  } catch (const fem::read_end&) {
    // The whole file is copied.
  } catch (const fem::io_err&) {
    fem::write(cmn.units, 0, "(/,' **** ERROR IN SR/ECHO  NFR,NFW,NOW=',3i5)", NFR, NFW, NOW);
  }
}

}  // namespace

void ECHO(common& cmn, int NFR, int NFW, const char* name) {
  fem::rewind(cmn.units, NFR);
  const std::string heading =
      std::string("('1',/,10x,'ECHO PRINT OF INPUT DATA TO PROGRAM \"") + name + "\"')";
  fem::write(cmn.units, NFW, heading.c_str());
  print_ruler(cmn, NFW);
  copy_lines(cmn, NFR, NFW);
  fem::rewind(cmn.units, NFR);
  print_ruler(cmn, NFW);
}

}  // namespace tervak
