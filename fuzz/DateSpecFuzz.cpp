// Bytes are a program of calls on a date specification. After every call the laws of calendars must
// hold, a refused call must have changed nothing, and the element must be well-behaved.

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <span>
#include <string>
#include <vector>

#include <tsxport/ExportFormat.h>
#include <tsxport/TSXDateSpec.h>

#include "datespec/write/DateSpecificationElement.h"
#include "tests/datespec/Laws.h"

namespace {

using Tuple = TSXDateSpec::TSXIndexTuple;

void Require(const char* brokenLaw) {
  if (brokenLaw == nullptr) return;
  std::fprintf(stderr, "broken law: %s\n", brokenLaw);
  std::abort();
}

void Require(bool holds, const char* law) { Require(holds ? nullptr : law); }

// Takes the program apart; gives zeros when it is at its end.
class Program {
 public:
  explicit Program(std::span<const std::uint8_t> bytes) : bytes_(bytes) {}

  bool IsAtEnd() const { return bytes_.empty(); }

  unsigned Byte() {
    if (bytes_.empty()) return 0;
    const unsigned byte = bytes_.front();
    bytes_ = bytes_.subspan(1);
    return byte;
  }

  // Mostly what calendars are made of, now and then any 32 bits.
  unsigned Number() {
    constexpr std::array<unsigned, 8> kUsual{4, 5, 7, 12, 24, 60, 4294967294U, 4294967295U};
    const unsigned choice = Byte();
    if (choice < 0xC0) return choice % 16;
    if (choice < 0xF0) return kUsual[choice % kUsual.size()];
    return static_cast<unsigned>(Bytes(4));
  }

  // Mostly near zero, sometimes any 64 bits, sometimes the very ends.
  long Offset() {
    const unsigned choice = Byte();
    if (choice < 0x80) return static_cast<long>(choice) - 32;
    if (choice < 0xA0) return std::numeric_limits<long>::max() - static_cast<long>(choice - 0x80);
    if (choice < 0xC0) return std::numeric_limits<long>::min() + static_cast<long>(choice - 0xA0);
    return static_cast<long>(Bytes(8));
  }

  TSXDateSpec::PeriodType Type() { return TSXDateSpec::PeriodType{Byte() % 13}; }

 private:
  std::uint64_t Bytes(int count) {
    std::uint64_t value = 0;
    for (int i = 0; i < count; ++i) value = value << 8 | Byte();
    return value;
  }

  std::span<const std::uint8_t> bytes_;
};

// A valid tuple where the program names one; else where the calendar stands.
Tuple TupleFrom(Program& program, const TSXDateSpec& spec) {
  Tuple tuple(spec);
  std::vector<unsigned> indexes = tuple.GetIndexes();
  for (unsigned& index : indexes) index = program.Number();
  if (tuple.SetIndexes(indexes)) {
    Require(tuple.IsValid(), "indexes that were taken are valid");
    Require(tuple.GetIndexes() == indexes, "indexes that were taken are kept");
  }
  return tuple;
}

void CheckTuples(Program& program, const TSXDateSpec& spec) {
  const Tuple a = TupleFrom(program, spec);
  const Tuple b = TupleFrom(program, spec);
  if (!a.IsValid() || !b.IsValid()) return;  // a replaced quarter can make the start impossible
  Require(test::BrokenPositionLaw(spec, a));
  Require(test::BrokenPositionLaw(spec, b));
  Require(test::BrokenOrderLaw(a, b));
}

void CheckFirstCase(const TSXDateSpec& spec, const Tuple& first) {
  Require(spec.FirstCaseIndex().Compare(first) == 0, "the first case is the one set");
  Require(first.VirtualCaseOffset() == 0, "it has offset 0");
  Require(spec.IndexTuple(0).Compare(first) == 0, "offset 0 gives it back");
}

void CheckElement(const TSXDateSpec& spec) {
  std::string text;
  TIMESERIESXML::ExportFormat format;
  tsx::MakeDateSpecification(spec, "", 1)->ToString(text, format);
  Require((text.find("<GapList>") != std::string::npos) == (spec.GapCount() != 0), "gap list");
  Require(text.find("nan") == std::string::npos, "numbers are numbers");
}

void CheckCopies(TSXDateSpec& spec) {
  const TSXDateSpec copy(spec);
  Require(test::AreSame(copy, spec), "a copy is equal");
  TSXDateSpec assigned(TSXDateSpec::Day);
  assigned = copy;
  Require(test::AreSame(assigned, spec), "an assigned one is equal");
  spec = assigned;
  Require(test::AreSame(copy, spec), "and back");
}

unsigned GapsOnceMore(TSXDateSpec& spec, long offset) {
  const unsigned long count = spec.GapCount();
  const unsigned code = spec.AddGap(offset).GetCode();
  Require(code != 0 || spec.GapCount() == count, "a gap added twice is one gap");
  return code;
}

// One call; returns its status code, 0 for calls without one.
unsigned Step(Program& program, TSXDateSpec& spec) {
  switch (program.Byte() % 12) {
    case 0:
    case 1: {
      const auto type = program.Type();
      const unsigned cycle = program.Number();
      const unsigned start = program.Number();
      return spec.AddPeriod(type, cycle, start, program.Number()).GetCode();
    }
    case 2:
      return spec.SetLowestIncrement(program.Number()).GetCode();
    case 3: {
      const Tuple first = TupleFrom(program, spec);
      const unsigned code = spec.SetFirstCaseIndex(first).GetCode();
      if (code == 0) CheckFirstCase(spec, first);
      return code;
    }
    case 4: {
      const long offset = program.Offset();
      const unsigned code = spec.AddGap(offset).GetCode();
      if (code == 0) {
        Require(spec.CaseOffset(offset) == -1, "a gap has no case");
        Require(GapsOnceMore(spec, offset) == 0, "a gap added twice succeeds");
      }
      return code;
    }
    case 5:
      return spec.AddGap(TupleFrom(program, spec)).GetCode();
    case 6:
      spec.ClearGaps();
      return 0;
    case 7: {
      const unsigned day = program.Number();
      const unsigned month = program.Number();
      spec.SetFirstCaseDay(day, month, program.Number());
      return 0;
    }
    case 8:
      CheckCopies(spec);
      return 0;
    case 9:
      CheckElement(spec);
      return 0;
    case 10:
      CheckTuples(program, spec);
      return 0;
    default:
      Require(test::BrokenLaw(spec, program.Offset()));
      return 0;
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Program program({data, size});
  const auto base = program.Type();
  if (base == TSXDateSpec::Obs) return 0;
  TSXDateSpec spec(base);
  while (!program.IsAtEnd()) {
    const TSXDateSpec before(spec);
    if (Step(program, spec) != 0) Require(test::AreSame(spec, before), "refused, so unchanged");
    for (const long offset : {-1L, 0L, 1L, 5L}) Require(test::BrokenLaw(spec, offset));
    Require(test::BrokenGapLaw(spec, program.Offset()));
  }
  return 0;
}
