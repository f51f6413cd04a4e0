#include "Platform/process.hpp"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <string_view>
#include <vector>

#include "Platform/end_with_parent.hpp"

extern char** environ;

namespace tervak::os {

namespace {

namespace fs = std::filesystem;

constexpr std::array REQUESTS = {SIGHUP, SIGINT, SIGTERM};

volatile std::sig_atomic_t request = 0;
volatile pid_t child = 0;

extern "C" void on_request(int number) {
  const int kept = errno;
  request = number;
  if (child > 0) kill(child, number);
  errno = kept;
}

/// Keeps requests away until `child` is set, so that none is lost in between.
class requests_wait {
 public:
  requests_wait() {
    sigset_t set;
    sigemptyset(&set);
    for (const int number : REQUESTS) sigaddset(&set, number);
    sigprocmask(SIG_BLOCK, &set, &before_);
  }
  ~requests_wait() { restore(); }
  requests_wait(const requests_wait&) = delete;
  requests_wait& operator=(const requests_wait&) = delete;
  void restore() const { sigprocmask(SIG_SETMASK, &before_, nullptr); }

 private:
  sigset_t before_{};
};

bool is_preload(std::string_view variable) {
  return variable.starts_with("LD_") && !variable.starts_with("LD_LIBRARY_PATH=");
}

/// What the child does between fork and the program; calls only what is allowed there. Returns on failure.
void become(const char* program, const char* directory, char* const* variables, pid_t parent,
            const requests_wait& requests) {
  end_with_parent();
  if (getppid() != parent) _exit(127);
  // A limit on the size of files ends the program with a signal and does not cut its files in silence.
  std::signal(SIGXFSZ, SIG_DFL);
  std::signal(SIGPIPE, SIG_DFL);
  requests.restore();
  const int nothing = open("/dev/null", O_RDONLY);
  if (nothing < 0 || dup2(nothing, STDIN_FILENO) < 0 || chdir(directory) != 0) return;
  if (nothing != STDIN_FILENO) close(nothing);
  char* const arguments[] = {const_cast<char*>(program), nullptr};
  execve(program, arguments, variables);
}

/// Sets `child`. The error number, 0 where there is none.
int start(const char* program, const char* directory, char* const* variables, int report) {
  const requests_wait requests;
  if (request != 0) return EINTR;
  const pid_t parent = getpid(), process = fork();
  if (process < 0) return errno;
  if (process == 0) {
    become(program, directory, variables, parent, requests);
    const int cause = errno;
    static_cast<void>(!write(report, &cause, sizeof cause));
    _exit(127);
  }
  child = process;
  return 0;
}

/// Waits for `child`, which has reported on `report` where it could not become the program. The error number.
int wait_for_end(int report, process_end& end) {
  int cause = 0, status = 0;
  ssize_t count = 0;
  while ((count = read(report, &cause, sizeof cause)) < 0 && errno == EINTR) {
  }
  if (count <= 0) cause = 0;
  while (waitpid(child, &status, 0) < 0) {
    if (errno == EINTR) continue;
    cause = errno;
    break;
  }
  child = 0;
  if (WIFEXITED(status)) end.status = WEXITSTATUS(status);
  if (WIFSIGNALED(status)) end.signal = WTERMSIG(status);
  return cause;
}

fs::path executable(const fs::path& file) {
  std::error_code error;
  return fs::is_regular_file(file, error) && access(file.c_str(), X_OK) == 0 ? file : fs::path();
}

}  // namespace

process_end run_program(const fs::path& program, const fs::path& directory, environment given) {
  process_end end;
  const std::string file = fs::absolute(program).string(), place = directory.string();
  std::vector<char*> variables;
  for (char** variable = environ; *variable != nullptr; ++variable)
    if (given == environment::whole || !is_preload(*variable)) variables.push_back(*variable);
  variables.push_back(nullptr);
  int report[2];  // closes when the program begins; before that it brings the reason why it does not
  if (pipe(report) != 0) return end.failure = std::strerror(errno), end;
  for (const int side : report) fcntl(side, F_SETFD, FD_CLOEXEC);

  int cause = start(file.c_str(), place.c_str(), variables.data(), report[1]);
  close(report[1]);
  if (cause == 0) cause = wait_for_end(report[0], end);
  close(report[0]);
  if (cause != 0) end.status = -1, end.failure = std::strerror(cause);
  return end;
}

fs::path own_program() {
  std::error_code error;
  return fs::read_symlink("/proc/self/exe", error);
}

fs::path find_program(const std::string& name) {
  if (const fs::path own = own_program(); !own.empty())
    if (fs::path beside = executable(own.parent_path() / name); !beside.empty()) return beside;
  const char* const path = std::getenv("PATH");
  for (std::string_view rest = path == nullptr ? "" : path; !rest.empty();) {
    const std::string_view directory = rest.substr(0, rest.find(':'));
    rest.remove_prefix(std::min(directory.size() + 1, rest.size()));
    if (fs::path found = executable(fs::path(directory.empty() ? "." : directory) / name); !found.empty())
      return fs::absolute(found);
  }
  return {};
}

void hold_standard_streams() {
  for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
    if (fcntl(stream, F_GETFD) < 0) static_cast<void>(open("/dev/null", O_RDONLY));
}

void catch_interrupts() {
  std::signal(SIGPIPE, SIG_IGN);
  for (const int number : REQUESTS) {
    struct sigaction action {};
    if (sigaction(number, nullptr, &action) != 0 || action.sa_handler == SIG_IGN) continue;
    action.sa_handler = on_request;
    action.sa_flags = 0;
    sigaction(number, &action, nullptr);
  }
}

int interrupted() { return request; }

void end_interrupted() {
  std::signal(request, SIG_DFL);
  std::raise(request);
  _exit(128 + request);
}

}  // namespace tervak::os
