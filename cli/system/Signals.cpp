#include "cli/system/Signals.h"

#include <array>
#include <unistd.h>

namespace tsx::cli {
namespace {

constexpr std::size_t kMostFiles = 8;
using Slot = std::atomic<const char*>;
static_assert(Slot::is_always_lock_free);  // handlers must not wait for anybody

std::array<Slot, kMostFiles> marked{};  // empty slots are null

extern "C" void RemoveMarkedFilesAndEnd(int signal) {
  for (const Slot& slot : marked) {
    if (const char* const path = slot.load()) unlink(path);
  }
  raise(signal);  // by now it has its usual effect, as soon as this handler returns
}

bool IsIgnored(int signal) {
  struct sigaction action {};
  return sigaction(signal, nullptr, &action) == 0 && action.sa_handler == SIG_IGN;
}

}  // namespace

void HandleSignals() {
  struct sigaction action {};
  action.sa_handler = RemoveMarkedFilesAndEnd;
  action.sa_flags = static_cast<int>(SA_RESETHAND);
  for (const int signal : {SIGHUP, SIGINT, SIGPIPE, SIGQUIT, SIGTERM}) {
    if (!IsIgnored(signal)) sigaction(signal, &action, nullptr);
  }
  std::signal(SIGXFSZ, SIG_IGN);
}

SignalsHeld::SignalsHeld() {
  sigset_t all;
  sigfillset(&all);
  pthread_sigmask(SIG_SETMASK, &all, &before_);
}

SignalsHeld::~SignalsHeld() { pthread_sigmask(SIG_SETMASK, &before_, nullptr); }

RemovedOnSignal::RemovedOnSignal(const char* path) {
  for (Slot& slot : marked) {
    const char* none = nullptr;
    if (!slot.compare_exchange_strong(none, path)) continue;
    slot_ = &slot;
    return;
  }
}

RemovedOnSignal::~RemovedOnSignal() {
  if (slot_ != nullptr) slot_->store(nullptr);
}

}  // namespace tsx::cli
