#pragma once

#include <array>
#include <cstddef>
#include <initializer_list>
#include <span>
#include <stdexcept>
#include <vector>

#include "Control/state/layer_number.hpp"

namespace tervak {

/// A vector that counts from 1, as the engineer does: X(1) is the first. Every access is checked and throws
/// std::out_of_range, so that a deck with fewer records than it promises can never read a stray value.
template <class T>
class vector1 {
 public:
  vector1() = default;
  vector1(std::initializer_list<T> items) : items_(items) {}

  /// Drops the content and makes `count` entries of `value`.
  void allocate(int count, T value = T{}) { items_.assign(static_cast<std::size_t>(count), value); }
  void append(T value) { items_.push_back(value); }
  void clear() { items_.clear(); }

  T& operator()(int i) { return items_.at(static_cast<std::size_t>(i) - 1); }
  const T& operator()(int i) const { return items_.at(static_cast<std::size_t>(i) - 1); }
  [[nodiscard]] int size() const { return static_cast<int>(items_.size()); }
  [[nodiscard]] std::span<const T> items() const { return items_; }

 private:
  std::vector<T> items_;
};

namespace detail {
inline std::size_t checked(int i, int count) {
  if (i < 1 || i > count) throw std::out_of_range("table index out of range");
  return static_cast<std::size_t>(i - 1);
}
}  // namespace detail

/// A column of numbers that somebody else holds, counted from 1: a vector1 or a constant table.
class table_view {
 public:
  template <std::size_t N>
  constexpr table_view(const std::array<double, N>& table)
      : items_(table) {}                                               // NOLINT(google-explicit-constructor)
  table_view(const vector1<double>& table) : items_(table.items()) {}  // NOLINT(google-explicit-constructor)
  double operator()(int i) const { return items_[detail::checked(i, size())]; }
  [[nodiscard]] int size() const { return static_cast<int>(items_.size()); }

 private:
  std::span<const double> items_;
};

/// A table by (diameter, layer), both from 1.
template <class T>
class table2 {
 public:
  void allocate(int diameters, int layers, T value = T{}) {
    diameters_ = diameters;
    layers_ = layers;
    items_.assign(static_cast<std::size_t>(diameters) * static_cast<std::size_t>(layers), value);
  }
  T& operator()(diameter_number nd, layer_number nl) { return items_[place(nd, nl)]; }
  const T& operator()(diameter_number nd, layer_number nl) const { return items_[place(nd, nl)]; }

 private:
  [[nodiscard]] std::size_t place(int nd, int nl) const {
    return detail::checked(nd, diameters_) * static_cast<std::size_t>(layers_) + detail::checked(nl, layers_);
  }
  int diameters_ = 0;
  int layers_ = 0;
  std::vector<T> items_;
};

/// A curve table by (point, diameter, layer), all from 1, point-major with the layer innermost.
class curve_table {
 public:
  void allocate(int points, int diameters, int layers) {
    points_ = points;
    diameters_ = diameters;
    layers_ = layers;
    items_.assign(static_cast<std::size_t>(points) * static_cast<std::size_t>(diameters) *
                      static_cast<std::size_t>(layers),
                  0.0);
  }
  double& operator()(int p, diameter_number nd, layer_number nl) { return items_[place(p, nd, nl)]; }
  const double& operator()(int p, diameter_number nd, layer_number nl) const {
    return items_[place(p, nd, nl)];
  }

 private:
  [[nodiscard]] std::size_t place(int p, int nd, int nl) const {
    return (detail::checked(p, points_) * static_cast<std::size_t>(diameters_) +
            detail::checked(nd, diameters_)) *
               static_cast<std::size_t>(layers_) +
           detail::checked(nl, layers_);
  }
  int points_ = 0;
  int diameters_ = 0;
  int layers_ = 0;
  std::vector<double> items_;
};

}  // namespace tervak
