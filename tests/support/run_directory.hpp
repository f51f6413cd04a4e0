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

/// A directory of its own in which a test runs the built program and looks at what is left behind.
class run_directory {
 public:
  run_directory() {
    std::string name = (std::filesystem::temp_directory_path() / "tervak-run-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr) std::abort();
    path_ = name;
  }
  ~run_directory() {
    std::error_code ignored;
    std::filesystem::permissions(path_, std::filesystem::perms::owner_all, ignored);
    std::filesystem::remove_all(path_, ignored);
  }
  run_directory(const run_directory&) = delete;
  run_directory& operator=(const run_directory&) = delete;

  [[nodiscard]] std::filesystem::path operator/(const std::string& name) const { return path_ / name; }
  [[nodiscard]] bool has(const std::string& name) const { return std::filesystem::exists(path_ / name); }

  void write(const std::string& name, const std::string& text) const {
    std::ofstream(path_ / name, std::ios::binary) << text;
  }
  /// The deck under both its names.
  void deck(const std::string& text) const {
    write("TERVAK.INP", text);
    write("tervak.inp", text);
  }
  [[nodiscard]] std::string read(const std::string& name) const {
    std::ifstream in(path_ / name, std::ios::binary);
    EXPECT_TRUE(in.is_open()) << name;
    return {std::istreambuf_iterator<char>(in), {}};
  }

  /// Runs the program here and returns its exit status, as the shell sees it (-1 is 255). Standard output and
  /// error go to the files "stdout" and "stderr". `as_user` runs it without the powers of root.
  int run(bool as_user = false) const {
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
        (as_user ? program.string() : std::string(TERVAK_PROGRAM)) + " >" + redirect("stdout") + " 2>" +
        redirect("stderr");
    const int status = std::system(command.c_str());
    if (as_user) std::filesystem::remove(program);
    return WIFEXITED(status) ? WEXITSTATUS(status) : 1000 + WTERMSIG(status);
  }

  /// Lets the other user write here.
  void open_to_all() const { std::filesystem::permissions(path_, std::filesystem::perms::all); }

 private:
  [[nodiscard]] std::string redirect(const std::string& name) const { return (path_ / name).string(); }

  std::filesystem::path path_;
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
