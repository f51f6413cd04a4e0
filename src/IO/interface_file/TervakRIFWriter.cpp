#include "IO/interface_file/TervakRIFWriter.hpp"

#include <array>
#include <fstream>
#include <string_view>

#include "Control/state/identification.hpp"
#include "IO/interface_file/DataGroup.hpp"
#include "IO/interface_file/TervakRIFWriter_records.hpp"

namespace Varno::TervakLibrary::IO {

using ::IO::Tormal::write_record;
using tervak::common;

namespace {

void write_text_record(std::ostream& stream, std::string_view profile_name, std::string_view label,
                       int PROFILE) {
  const std::array<double, 4> values = {4.0, static_cast<double>(PROFILE),
                                        static_cast<double>(profile_name.size()) + 100.0,
                                        static_cast<double>(label.size()) + 100.0};
  write_record(stream, "TSOILPRF", values);
  stream << "        " << profile_name << "\n        " << label << '\n';
}

void write_diameters(std::ostream& stream, const common& cmn, int PROFILE) {
  for (int I = 1; I <= cmn.NUMDIA; ++I) {
    const std::array<double, 4> values = {4.0, static_cast<double>(PROFILE), static_cast<double>(I),
                                          cmn.DIAM(I)};
    write_record(stream, "RDSOILDI", values);
  }
}

void write_general(std::ostream& stream, const common& cmn, int PROFILE) {
  const bool revision5 = cmn.REVISION == 5;
  const std::array<double, 13> values = {13.0,
                                         static_cast<double>(PROFILE),
                                         revision5 ? 20090901.0 : 0.0,  // date of the record's definition
                                         cmn.ZSEAFL,
                                         cmn.SCRGEN,
                                         static_cast<double>(cmn.NUMLAY),
                                         revision5 ? static_cast<double>(cmn.NUMLAYM) : 0.0,
                                         static_cast<double>(cmn.NUMDSP),
                                         static_cast<double>(cmn.NUMDIA),
                                         cmn.ESOL0,
                                         cmn.ESOL1,
                                         cmn.ESOL2,
                                         cmn.POSAVR};
  write_record(stream, "RDSOIPRF", values);
}

void write_displacements(std::ostream& stream, const common& cmn, int PROFILE) {
  for (int N = 1; N <= cmn.NUMDSP; ++N) {
    const std::array<double, 8> values = {8.0,
                                          static_cast<double>(PROFILE),
                                          static_cast<double>(N),
                                          cmn.DSPLEV(N),
                                          cmn.DSPX(N),
                                          cmn.DSPY(N),
                                          cmn.DSPZ(N),
                                          cmn.HOLDIA(N)};
    write_record(stream, "RDSOIDSP", values);
  }
}

}  // namespace

TervakRIFWriter::TervakRIFWriter() : stream_(std::make_shared<std::ofstream>("TERVAK.RIF")) {
  fem::fixed_text<10> name, version, spare1;
  fem::fixed_text<100> title, spare2;
  fem::fixed_text<11> date;
  tervak::version_texts(name, title, version, spare1, spare2, date);
  write_record(*stream_, ::IO::Tormal::DGIDENT());
  write_record(*stream_, *::IO::Tormal::make_date_record(name, version, date));
}

// The only holder of the stream lets go of it here, which closes the file. Nothing is allocated: the run may
// end because memory is exhausted, and nothing may leave a destructor.
TervakRIFWriter::~TervakRIFWriter() {
  *stream_ << "IEND      0.00000000E+00  0.00000000E+00  0.00000000E+00  0.00000000E+00\n";
  stream_->flush();
}

bool TervakRIFWriter::WriteProfile(common& cmn, int PROFILE) {
  const std::string_view profile_name = cmn.REVISION == 5 ? cmn.BORING.view() : "No given profile name";
  write_text_record(*stream_, profile_name, cmn.LABEL.view(), PROFILE);
  write_diameters(*stream_, cmn, PROFILE);
  write_general(*stream_, cmn, PROFILE);
  write_displacements(*stream_, cmn, PROFILE);
  if (!write_layers(*stream_, cmn, PROFILE)) return false;
  write_curves(*stream_, cmn, PROFILE);
  if (cmn.MONOPILE) write_monopile(*stream_, cmn, PROFILE);
  return true;
}

}  // namespace Varno::TervakLibrary::IO
