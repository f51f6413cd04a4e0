#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <typeinfo>

#include "fem/errors.hpp"
#include "fem/io.hpp"
#include "support/work_directory.hpp"

/// A unit table in an empty directory of its own.
class fem_directory : public ::testing::Test, public work_directory {
 protected:
  fem::io units;
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
