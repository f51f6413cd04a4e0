#pragma once

#include <filesystem>
#include <string>

namespace tervak::os {

/// How a program that was started has ended.
struct process_end {
  int status = -1;      ///< its exit status from 0 to 255; -1 where a signal ended it or it was not started
  int signal = 0;       ///< the signal that ended it, 0 where none did
  std::string failure;  ///< why it could not be started or waited for, "" where it was
};

/// What the program gets of the environment of this process.
enum class environment {
  whole,
  no_preloads,  ///< without the libraries that the loader would put before all others (LD_PRELOAD and the
                ///< like)
};

/// Runs `program` in `directory` with no argument and no input, and waits for its end. Its outputs are those
/// of this process. It does not outlive this process where the system can see to that. After an interrupt
/// (see below) nothing is started.
process_end run_program(const std::filesystem::path& program, const std::filesystem::path& directory,
                        environment given = environment::whole);

/// The file of the running program, links resolved; empty where the system does not know it.
std::filesystem::path own_program();

/// The program of this name, without the ending that the system gives to programs, in the directory of the
/// running program or else on the path; empty where there is none.
std::filesystem::path find_program(const std::string& name);

/// Opens what is closed of standard input, output and error, so that no file of the program takes their
/// place. Writing there fails as before.
void hold_standard_streams();

/// From here on a request to end (hangup, interrupt, termination) is passed on to the program that runs, and
/// remembered, so that this process can remove what it made. A closed output gives a failed write, no end.
void catch_interrupts();
/// The number of the request, 0 when there was none.
int interrupted();
/// Ends this process as the request would have.
[[noreturn]] void end_interrupted();

}  // namespace tervak::os
