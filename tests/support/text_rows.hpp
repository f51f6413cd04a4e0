#pragma once

#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

/// The parts between separators, without the blanks at their ends; those of "" are none.
inline std::vector<std::string> parts_of(const std::string& text, char separator) {
  std::vector<std::string> parts;
  std::istringstream in(text);
  for (std::string part; std::getline(in, part, separator);) {
    part.erase(0, part.find_first_not_of(' '));
    parts.push_back(part.substr(0, part.find_last_not_of(' ') + 1));
  }
  return parts;
}

/// The columns of each row of a data file of the tests, separated by "|". Blank lines and those that begin
/// with "#" are no rows.
inline std::vector<std::vector<std::string>> rows_of(const std::string& file) {
  std::ifstream in(std::string(TERVAK_SOURCE_DIR) + "/tests/" + file);
  EXPECT_TRUE(in.is_open()) << file;
  std::vector<std::vector<std::string>> rows;
  for (std::string line; std::getline(in, line);)
    if (!line.empty() && line[0] != '#') rows.push_back(parts_of(line, '|'));
  return rows;
}

inline std::string replaced(std::string text, const std::string& what, const std::string& by) {
  for (std::size_t at = 0; (at = text.find(what, at)) != std::string::npos; at += by.size())
    text.replace(at, what.size(), by);
  return text;
}
