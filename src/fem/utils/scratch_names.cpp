#include "fem/utils/scratch_names.hpp"

#include <ctime>

#include "fem/utils/source_position.hpp"

namespace fem::utils {

namespace {

constexpr std::uint64_t MODULUS = 225150;
constexpr char ALPHABET[] = "abcdefghijklmnopqrstuvwxyz0123456789";
constexpr std::uint64_t LETTERS = 26;
constexpr std::uint64_t LETTERS_AND_DIGITS = 36;

}  // namespace

char scratch_names::character(std::uint64_t alphabet_size) {
  state_ = (*state_ * 9538 + 50294) % MODULUS;
  return ALPHABET[*state_ % alphabet_size];
}

std::string scratch_names::next(const std::function<bool(const std::string&)>& exists) {
  if (!state_) state_ = static_cast<std::uint64_t>(std::time(nullptr)) % MODULUS;
  for (int run_away_counter = 0; run_away_counter < 1000; ++run_away_counter) {
    std::string name = "fem_io_unit_scratch_";
    name += character(LETTERS);
    for (int i = 0; i < 7; ++i) name += character(LETTERS_AND_DIGITS);
    if (!exists(name)) return name;
  }
  assertion_failed("run_away_counter < 1000");
}

}  // namespace fem::utils
