#pragma once

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include <gtest/gtest.h>

#include "support/work_directory.hpp"

/// A directory of its own in which a test runs the built program and looks at what is left behind.
class run_directory : public work_directory {
 public:
  ~run_directory() { permit(std::filesystem::perms::owner_all); }

  [[nodiscard]] std::filesystem::path operator/(const std::string& name) const { return path_ / name; }
  [[nodiscard]] bool has(const std::string& name) const { return std::filesystem::exists(path_ / name); }

  void write(const std::string& name, const std::string& text) const { put(path_ / name, text); }
  /// The deck under both its names.
  void deck(const std::string& text) const {
    write("TERVAK.INP", text);
    write("tervak.inp", text);
  }
  [[nodiscard]] std::string read(const std::string& name) const {
    EXPECT_TRUE(has(name)) << name;
    return get(path_ / name);
  }

  /// Runs the program here and returns its exit status, as the shell sees it (-1 is 255). Standard output and
  /// error go to the files "stdout" and "stderr". `as_user` runs it without the powers of root.
  int run(bool as_user = false, const std::string& arguments = "") const {
    const std::filesystem::path program = path_.string() + "-program";
    if (as_user) {  // a copy that everybody can reach
      std::filesystem::copy_file(TERVAK_PROGRAM, program, std::filesystem::copy_options::overwrite_existing);
      setenv("ASAN_OPTIONS", "detect_leaks=0", 1);  // the leak checker needs powers that the other user lacks
    }
    write("stdout", "");
    write("stderr", "");
    const std::string command =
        "cd " + path_.string() + " && " +
        (as_user && geteuid() == 0 ? "setpriv --reuid=65534 --regid=65534 --clear-groups " : "") +
        (as_user ? program.string() : std::string(TERVAK_PROGRAM)) + arguments + " >" + redirect("stdout") +
        " 2>" + redirect("stderr");
    const int status = std::system(command.c_str());
    if (as_user) std::filesystem::remove(program);
    return WIFEXITED(status) ? WEXITSTATUS(status) : 1000 + WTERMSIG(status);
  }

  /// Lets the other user write here.
  void open_to_all() const { permit(std::filesystem::perms::all); }

 private:
  [[nodiscard]] std::string redirect(const std::string& name) const { return (path_ / name).string(); }

  void permit(std::filesystem::perms perms) const { std::filesystem::permissions(path_, perms); }

  std::filesystem::path path_ = std::filesystem::current_path();
};

inline std::string example(const std::string& name) {
  std::ifstream in(std::string(TERVAK_SOURCE_DIR) + "/examples/" + name, std::ios::binary);
  EXPECT_TRUE(in.is_open()) << name;
  return {std::istreambuf_iterator<char>(in), {}};
}

/// Replaces the first occurrence; the test fails when there is none.
inline std::string with(std::string text, const std::string& what, const std::string& by) {
  const std::size_t at = text.find(what);
  EXPECT_NE(at, std::string::npos) << what;
  if (at != std::string::npos) text.replace(at, what.size(), by);
  return text;
}

inline bool ends_with(const std::string& text, const std::string& end) {
  return text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
}
