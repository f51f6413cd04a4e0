// A library to be loaded before all others (LD_PRELOAD). It makes one call of a program fail:
//   FAULT=PROGRAM:CALL:N:MODE   PROGRAM a process name, CALL one of the names below, N from 1, MODE
//     once   the N-th call fails
//     on     the N-th and all later calls fail
//     short  the N-th call writes half
// FAULT_COUNTS=FILE appends "PROGRAM CALL COUNT" for each kind of call when a program ends.
// The writes of C streams count as writes: the C library makes them without a call that can be seen from
// here.

#include <dlfcn.h>
#include <fcntl.h>
#include <pwd.h>
#include <sys/uio.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>

extern "C" void* __libc_malloc(std::size_t size);

namespace {

enum call_kind { WRITE, WRITEV, FOPEN, RENAME, FTRUNCATE, MALLOC, KINDS };
constexpr std::array<const char*, KINDS> NAMES = {"write",  "writev",    "fopen",
                                                  "rename", "ftruncate", "malloc"};

enum class outcome { as_ever, fails, half };

std::array<std::atomic<long>, KINDS> counts;
bool in_account_lookup = false;
int faulty = -1;
long first = 0;
char mode = 'o';  // once, on ("n") or short

[[gnu::constructor]] void read_fault() {
  const char* text = std::getenv("FAULT");
  const std::size_t name = std::strlen(program_invocation_short_name);
  if (text == nullptr || std::strncmp(text, program_invocation_short_name, name) != 0 || text[name] != ':')
    return;
  text += name + 1;
  const char* const number = std::strchr(text, ':') + 1;
  char* rest = nullptr;
  first = std::strtol(number, &rest, 10);
  mode = rest[1] == 's' ? 's' : rest[2];
  for (int kind = 0; kind < KINDS; ++kind) {
    counts[static_cast<std::size_t>(kind)] = 0;
    if (std::strncmp(text, NAMES[static_cast<std::size_t>(kind)],
                     static_cast<std::size_t>(number - 1 - text)) == 0 &&
        NAMES[static_cast<std::size_t>(kind)][number - 1 - text] == '\0')
      faulty = kind;
  }
}

[[gnu::destructor]] void tell_counts() {
  const char* const file = std::getenv("FAULT_COUNTS");
  if (file == nullptr) return;
  const int out = open(file, O_WRONLY | O_APPEND | O_CREAT, 0666);
  for (std::size_t kind = 0; kind < KINDS; ++kind)
    dprintf(out, "%s %s %ld\n", program_invocation_short_name, NAMES[kind], counts[kind].load());
  close(out);
}

outcome next(call_kind kind) {
  if (in_account_lookup) return outcome::as_ever;
  const long n = ++counts[kind];
  if (kind != faulty || n < first || (mode != 'n' && n > first)) return outcome::as_ever;
  errno = kind == MALLOC ? ENOMEM : ENOSPC;
  return mode == 's' ? outcome::half : outcome::fails;
}

template <class F>
F* real(F*, const char* name) {
  return reinterpret_cast<F*>(dlsym(RTLD_NEXT, name));
}

}  // namespace

extern "C" {

void* malloc(std::size_t size) { return next(MALLOC) == outcome::fails ? nullptr : __libc_malloc(size); }

ssize_t write(int file, const void* bytes, std::size_t size) {
  static auto* const call = real(write, "write");
  const outcome o = next(WRITE);
  return o == outcome::fails ? -1 : call(file, bytes, o == outcome::half ? (size + 1) / 2 : size);
}

std::size_t fwrite(const void* bytes, std::size_t size, std::size_t count, std::FILE* stream) {
  static auto* const call = real(fwrite, "fwrite");
  const outcome o = next(WRITE);
  return o == outcome::fails ? 0 : call(bytes, size, o == outcome::half ? count / 2 : count, stream);
}

ssize_t writev(int file, const struct iovec* parts, int count) {
  static auto* const call = real(writev, "writev");
  const outcome o = next(WRITEV);
  return o == outcome::fails ? -1 : call(file, parts, o == outcome::half ? 1 : count);
}

std::FILE* fopen(const char* name, const char* how) {
  static auto* const call = real(fopen, "fopen");
  return next(FOPEN) == outcome::fails ? nullptr : call(name, how);
}

std::FILE* fopen64(const char* name, const char* how) { return fopen(name, how); }

// The lookup of the C library itself ends the program (an assertion, a null pointer) where an allocation
// fails.
struct passwd* getpwuid(uid_t user) {
  static auto* const call = real(getpwuid, "getpwuid");
  in_account_lookup = true;
  struct passwd* const found = call(user);
  in_account_lookup = false;
  return found;
}

int rename(const char* from, const char* to) noexcept {
  static auto* const call = real(rename, "rename");
  return next(RENAME) == outcome::fails ? -1 : call(from, to);
}

int ftruncate(int file, off_t size) noexcept {
  static auto* const call = real(ftruncate, "ftruncate");
  return next(FTRUNCATE) == outcome::fails ? -1 : call(file, size);
}

int ftruncate64(int file, off64_t size) noexcept { return ftruncate(file, static_cast<off_t>(size)); }

}  // extern "C"
