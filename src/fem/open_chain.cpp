#include "fem/open_chain.hpp"

namespace fem {

namespace {

constexpr const char* ACCESS_WORDS[] = {"sequential", "direct", nullptr};
constexpr const char* FORM_WORDS[] = {"formatted", "unformatted", nullptr};
constexpr const char* STATUS_WORDS[] = {"old", "new", "scratch", "unknown", nullptr};

}  // namespace

open_chain& open_chain::access(std::string_view keyword) {
  file_.access = static_cast<file_access>(io::keyword_index(ACCESS_WORDS, keyword, "OPEN ACCESS"));
  return *this;
}

open_chain& open_chain::form(std::string_view keyword) {
  file_.form = static_cast<file_form>(io::keyword_index(FORM_WORDS, keyword, "OPEN FORM"));
  return *this;
}

open_chain& open_chain::status(std::string_view keyword) {
  file_.status = static_cast<file_status>(io::keyword_index(STATUS_WORDS, keyword, "OPEN STATUS"));
  return *this;
}

open_chain& open_chain::recl(int length) {
  file_.recl = length;
  return *this;
}

open_chain& open_chain::iostat(int* iostat) {
  iostat_ = iostat;
  return *this;
}

}  // namespace fem
