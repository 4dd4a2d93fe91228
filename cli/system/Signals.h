#ifndef TSXPORT_CLI_SYSTEM_SIGNALS_H_
#define TSXPORT_CLI_SYSTEM_SIGNALS_H_

#include <atomic>
#include <csignal>

// What signals do to the command.
//
// They are not held off while files are written: an output may be a pipe that nobody reads, and
// waiting for it must end when somebody says so.
namespace tsx::cli {

// From now on a signal that asks the command to end (SIGHUP, SIGINT, SIGPIPE, SIGQUIT, SIGTERM)
// first removes the files that are marked, and then ends it as if nobody had listened. Signals that
// are ignored stay so. A file that grows past a limit of the system is an error of writing like a
// full disk, no reason to end (SIGXFSZ).
void HandleSignals();

// Holds all signals off, from the thread that made it, as long as it lives.
class SignalsHeld {
 public:
  SignalsHeld();
  ~SignalsHeld();
  SignalsHeld(const SignalsHeld&) = delete;
  SignalsHeld& operator=(const SignalsHeld&) = delete;

 private:
  sigset_t before_{};
};

// Marks a file, as long as it lives, for a signal to remove. The path is borrowed. More than eight
// files at a time are too many, and the last ones would stay.
class RemovedOnSignal {
 public:
  explicit RemovedOnSignal(const char* path);
  ~RemovedOnSignal();
  RemovedOnSignal(const RemovedOnSignal&) = delete;
  RemovedOnSignal& operator=(const RemovedOnSignal&) = delete;

 private:
  std::atomic<const char*>* slot_ = nullptr;
};

}  // namespace tsx::cli

#endif  // TSXPORT_CLI_SYSTEM_SIGNALS_H_
