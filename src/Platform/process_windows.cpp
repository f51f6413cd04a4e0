#include "Platform/process.hpp"

#include <windows.h>

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <mutex>
#include <string_view>
#include <system_error>
#include <vector>

namespace tervak::os {

namespace {

namespace fs = std::filesystem;

std::atomic<int> request = 0;

/// The program that runs, null while none does.
std::mutex child_guard;
HANDLE child = nullptr;

void set_child(HANDLE process) {
  const std::lock_guard guard(child_guard);
  child = process;
  if (child != nullptr && request != 0) TerminateProcess(child, STATUS_CONTROL_C_EXIT);
}

/// Ctrl-C, the closing of the window and the like, on a thread of its own. The program that runs is a
/// windowed one and hears nothing of the console, so it is ended here. The system ends this process when the
/// closing of the window has been answered: the answer waits, a few seconds at most, for the end of the main
/// thread.
BOOL WINAPI on_request(DWORD event) {
  {
    const std::lock_guard guard(child_guard);
    request = static_cast<int>(event) + 1;
    if (child != nullptr) TerminateProcess(child, STATUS_CONTROL_C_EXIT);
  }
  if (event != CTRL_C_EVENT && event != CTRL_BREAK_EVENT) Sleep(INFINITE);
  return TRUE;
}

std::string last_error() { return std::system_category().message(static_cast<int>(GetLastError())); }

/// Closes a handle of the system at its end.
class handle {
 public:
  explicit handle(HANDLE value) : value_(value) {}
  ~handle() {
    if (value_ != nullptr && value_ != INVALID_HANDLE_VALUE) CloseHandle(value_);
  }
  handle(const handle&) = delete;
  handle& operator=(const handle&) = delete;
  [[nodiscard]] HANDLE get() const { return value_; }

 private:
  HANDLE value_;
};

/// All that is in it ends with this process.
HANDLE job_of_children() {
  const HANDLE job = CreateJobObjectW(nullptr, nullptr);
  JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits{};
  limits.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE;
  if (job != nullptr) SetInformationJobObject(job, JobObjectExtendedLimitInformation, &limits, sizeof limits);
  return job;
}

bool start(const fs::path& program, const fs::path& directory, HANDLE input, PROCESS_INFORMATION& process) {
  STARTUPINFOW setup{};
  setup.cb = sizeof setup;
  setup.dwFlags = STARTF_USESTDHANDLES;
  setup.hStdInput = input;
  setup.hStdOutput = GetStdHandle(STD_OUTPUT_HANDLE);
  setup.hStdError = GetStdHandle(STD_ERROR_HANDLE);
  std::wstring line = L"\"" + program.native() + L"\"";
  return CreateProcessW(program.c_str(), line.data(), nullptr, nullptr, TRUE, CREATE_SUSPENDED, nullptr,
                        directory.c_str(), &setup, &process) != 0;
}

fs::path regular(const fs::path& file) {
  std::error_code error;
  return fs::is_regular_file(file, error) ? file : fs::path();
}

}  // namespace

// The loader of this system knows no preloads.
process_end run_program(const fs::path& program, const fs::path& directory, environment) {
  process_end end;
  if (request != 0) return end.failure = "interrupted", end;
  SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
  const handle input(CreateFileW(L"NUL", GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, &inherited,
                                 OPEN_EXISTING, 0, nullptr));
  const handle job(job_of_children());
  PROCESS_INFORMATION started{};
  std::error_code error;
  if (!start(fs::absolute(program, error), directory, input.get(), started))
    return end.failure = last_error(), end;
  const handle process(started.hProcess), thread(started.hThread);
  if (job.get() != nullptr) AssignProcessToJobObject(job.get(), process.get());
  set_child(process.get());
  ResumeThread(thread.get());
  DWORD status = 0;
  const bool ended = WaitForSingleObject(process.get(), INFINITE) == WAIT_OBJECT_0;
  set_child(nullptr);
  if (!ended || GetExitCodeProcess(process.get(), &status) == 0) return end.failure = last_error(), end;
  end.status = static_cast<int>(std::min<DWORD>(status, 255));  // -1, and the status of a crash, are above
  return end;
}

fs::path own_program() {
  std::vector<wchar_t> name(32768);
  const DWORD size = GetModuleFileNameW(nullptr, name.data(), static_cast<DWORD>(name.size()));
  return std::wstring(name.data(), size < name.size() ? size : 0);
}

fs::path find_program(const std::string& name) {
  const std::string file = name + ".exe";
  if (const fs::path own = own_program(); !own.empty())
    if (fs::path beside = regular(own.parent_path() / file); !beside.empty()) return beside;
  const wchar_t* const path = _wgetenv(L"PATH");
  for (std::wstring_view rest = path == nullptr ? L"" : path; !rest.empty();) {
    const std::wstring_view directory = rest.substr(0, rest.find(L';'));
    rest.remove_prefix(directory.size() < rest.size() ? directory.size() + 1 : rest.size());
    if (directory.empty()) continue;
    std::error_code error;
    if (fs::path found = regular(fs::path(directory) / file); !found.empty())
      return fs::absolute(found, error);
  }
  return {};
}

// Nothing opens in the place of a closed stream here.
void hold_standard_streams() {}

void catch_interrupts() { SetConsoleCtrlHandler(on_request, TRUE); }

int interrupted() { return request; }

void end_interrupted() {
  std::fflush(nullptr);
  ExitProcess(STATUS_CONTROL_C_EXIT);
}

}  // namespace tervak::os
