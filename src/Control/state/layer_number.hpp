#pragma once

namespace tervak {

/// A number that counts one kind of thing, from 1. It becomes an int where one is wanted; of ints only
/// constants become one by themselves, all others by name; numbers of two kinds never become one another. So
/// a swap of layer and diameter does not compile.
template <class Kind>
class counted {
 public:
  constexpr counted() = default;
  consteval counted(int number) : number_(number) {}  // NOLINT(google-explicit-constructor)
  static constexpr counted of(int number) {
    counted made;
    made.number_ = number;
    return made;
  }
  constexpr operator int() const { return number_; }  // NOLINT(google-explicit-constructor)
  constexpr counted& operator++() {
    ++number_;
    return *this;
  }

 private:
  int number_ = 0;
};

/// A calculation layer, from the top.
using layer_number = counted<struct layer_kind>;
/// A pile diameter, ascending.
using diameter_number = counted<struct diameter_kind>;

}  // namespace tervak
