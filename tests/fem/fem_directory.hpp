#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <string>
#include <typeinfo>

#include "fem/errors.hpp"
#include "fem/io.hpp"

/// A unit table in an empty directory of its own, the current one while the test runs.
class fem_directory : public ::testing::Test {
 protected:
  fem::io units;

  fem_directory() : home_(std::filesystem::current_path()) {
    std::string name = (std::filesystem::temp_directory_path() / "tervak-fem-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr) std::abort();
    directory_ = name;
    std::filesystem::current_path(directory_);
  }
  ~fem_directory() override {
    std::filesystem::current_path(home_);
    std::filesystem::remove_all(directory_);
  }

  static void put(const std::string& name, const std::string& text) {
    std::ofstream(name, std::ios::binary) << text;
  }
  static std::string get(const std::string& name) {
    std::ifstream in(name, std::ios::binary);
    EXPECT_TRUE(in.is_open()) << name;
    return {std::istreambuf_iterator<char>(in), {}};
  }

 private:
  std::filesystem::path home_, directory_;
};

/// The text of the failure that an action must throw, exactly of that type; line numbers show as "#".
template <class Failure = std::runtime_error>
std::string failure_of(const std::function<void()>& action) {
  try {
    action();
  } catch (const Failure& failure) {
    EXPECT_EQ(typeid(failure), typeid(Failure)) << failure.what();
    std::string text = failure.what();
    const std::size_t open = text.find(".cpp(");
    if (open != std::string::npos) text.replace(open + 5, text.find(')', open) - open - 5, "#");
    return text;
  }
  return "nothing thrown";
}

#define EXPECT_FAILURE(statement, text) EXPECT_EQ(failure_of([&] { statement; }), text)
#define EXPECT_IO_ERR(statement, text) EXPECT_EQ(failure_of<fem::io_err>([&] { statement; }), text)
#define EXPECT_READ_END(statement, text) EXPECT_EQ(failure_of<fem::read_end>([&] { statement; }), text)
