// Layer and diameter numbers cannot be swapped: seen by the compiler.
#include "Control/state/layer_number.hpp"

#include <type_traits>

#include "Control/state/vector1.hpp"

using namespace tervak;

static_assert(std::is_invocable_v<table2<int>&, diameter_number, layer_number>);
static_assert(!std::is_invocable_v<table2<int>&, layer_number, diameter_number>);
static_assert(std::is_invocable_v<curve_table&, int, diameter_number, layer_number>);
static_assert(!std::is_invocable_v<curve_table&, int, layer_number, diameter_number>);
static_assert(!std::is_convertible_v<layer_number, diameter_number>);
