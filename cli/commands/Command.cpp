#include "cli/commands/Command.h"

#include <exception>
#include <new>

#include "cli/Errors.h"
#include "cli/options/Options.h"

namespace tsx::cli {
namespace {

int Run(const std::vector<std::string>& arguments, const Streams& io) {
  const Invocation invocation = ParseCommandLine(arguments);
  if (invocation.fit) return RunFit(*invocation.fit, io);
  io.out << invocation.page;
  if (!io.out.flush()) throw OutputError("standard output: cannot be written");
  return kExitOk;
}

int Fail(const Streams& io, const char* message, int status) {
  io.err << "tsxport: " << message << std::endl;
  return status;
}

}  // namespace

int RunCommand(const std::vector<std::string>& arguments, const Streams& io) {
  try {
    return Run(arguments, io);
  } catch (const UsageError& error) {
    return Fail(io, error.what(), kExitInput);
  } catch (const InputError& error) {
    return Fail(io, error.what(), kExitInput);
  } catch (const std::bad_alloc&) {
    return Fail(io, "memory ran out", kExitOutput);
  } catch (const std::exception& error) {
    return Fail(io, error.what(), kExitOutput);
  }
}

}  // namespace tsx::cli
