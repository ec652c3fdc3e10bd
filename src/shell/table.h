// Bounded tables with the game's bounds: Table<T, Hi> holds elements 0..Hi.
// An index outside the bounds never touches memory: it throws
// StatementFailed, and the caller skips the statement (see Skip) or the step.
#pragma once

#include <array>
#include <cstddef>
#include <exception>

namespace lf {

// A statement that failed at run time (index out of bounds, division by
// zero, a picture that was never loaded). The game skips it and goes on.
struct StatementFailed : std::exception {
  const char* what() const noexcept override { return "statement failed"; }
};

template <class T, int Hi>
struct Table {
  static_assert(Hi >= 0);
  static constexpr int kHi = Hi;
  std::array<T, Hi + 1> Items{};

  static constexpr bool InBounds(long long i) { return i >= 0 && i <= Hi; }
  T& operator[](long long i) {
    if (!InBounds(i)) throw StatementFailed{};
    return Items[static_cast<std::size_t>(i)];
  }
  const T& operator[](long long i) const {
    if (!InBounds(i)) throw StatementFailed{};
    return Items[static_cast<std::size_t>(i)];
  }
  static constexpr int size() { return Hi + 1; }
  auto begin() { return Items.begin(); }
  auto end() { return Items.end(); }
  auto begin() const { return Items.begin(); }
  auto end() const { return Items.end(); }
  bool operator==(const Table&) const = default;
};

// Runs one statement; if it fails it is skipped, as the game does.
template <class F>
void Skip(F&& statement) {
  try {
    statement();
  } catch (const StatementFailed&) {
  }
}

}  // namespace lf
