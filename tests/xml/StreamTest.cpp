#include <algorithm>
#include <functional>
#include <gtest/gtest.h>
#include <sstream>

#include <tsxport/WriteTree.h>

#include "support/FailingAllocation.h"
#include "support/FailingStream.h"
#include "support/ScopedLocale.h"
#include "tests/literal/LiteralXml.h"
#include "xml/Output.h"
#include "xml/RandomTree.h"
#include "xml/Streambufs.h"
#include "xml/Text.h"

// A stream must see what it would see if each byte came by os.put(): the literal writer does that.
namespace {

using std::ios_base;
using test::Buffered;
using test::CountingFlushes;
using test::DiskFull;
using test::FailingSync;
using test::RefusingOnce;
using test::Throwing;
using test::Unbuffered;

struct Seen {
  std::string taken;
  ios_base::iostate state = ios_base::goodbit;
  std::string thrown;

  bool operator==(const Seen&) const = default;
};

void PrintTo(const Seen& seen, std::ostream* os) {
  *os << seen.taken.size() << " bytes, state " << seen.state << ", thrown: " << seen.thrown;
}

using Write = std::function<void(std::ostream&)>;

template <typename Buffer>
Seen Watch(std::size_t capacity, ios_base::iostate exceptions, ios_base::fmtflags flags,
           const Write& write) {
  Buffer buffer(capacity);
  std::ostream os(&buffer);
  os.flags(os.flags() | flags);
  os.exceptions(exceptions);
  Seen seen;
  try {
    write(os);
  } catch (const DiskFull&) {
    seen.thrown = "disk full";
  } catch (const ios_base::failure&) {
    seen.thrown = "failure";
  }
  seen.taken = buffer.taken();
  seen.state = os.rdstate();
  return seen;
}

// Our write and the literal one into such a buffer, failing at every byte in turn.
template <typename Buffer>
void ExpectSame(const Write& ours, const Write& literal, std::size_t length,
                ios_base::iostate exceptions, ios_base::fmtflags flags = {}) {
  const std::size_t step = std::max<std::size_t>(1, length / 150);
  for (std::size_t capacity = 0; capacity <= length + 1; capacity += step) {
    const Seen expected = Watch<Buffer>(capacity, exceptions, flags, literal);
    ASSERT_EQ(Watch<Buffer>(capacity, exceptions, flags, ours), expected)
        << "failing after " << capacity << " bytes, exceptions " << exceptions;
  }
}

template <typename Buffer>
void ExpectSameWithAnyExceptions(const Write& ours, const Write& literal, std::size_t length) {
  for (const auto exceptions : {ios_base::goodbit, ios_base::badbit, ios_base::failbit,
                                ios_base::badbit | ios_base::failbit}) {
    ExpectSame<Buffer>(ours, literal, length, exceptions);
  }
}

class Streams : public testing::TestWithParam<int> {
 protected:
  // Some hundreds of bytes, and some ten thousands: several of our blocks.
  Streams() : trees_(test::RandomTrees(7, GetParam())) {
    std::ostringstream out;
    literal_(out);
    length_ = out.str().size();
  }

  test::TreePair trees_;
  std::size_t length_ = 0;
  Write ours_ = [this](std::ostream& os) {
    TIMESERIESXML::WriteTree(os, nullptr, trees_.ours.get(), true);
  };
  Write literal_ = [this](std::ostream& os) {
    literal::WriteTree(os, nullptr, trees_.literal.get(), true);
  };
};

TEST_P(Streams, FullDiskAtEveryByte) {
  ExpectSameWithAnyExceptions<test::FailingStreambuf>(ours_, literal_, length_);
}

TEST_P(Streams, UnbufferedAtEveryByte) {
  ExpectSameWithAnyExceptions<Unbuffered>(ours_, literal_, length_);
}

TEST_P(Streams, BufferedAtEveryByte) {
  ExpectSameWithAnyExceptions<Buffered>(ours_, literal_, length_);
}

TEST_P(Streams, BufferThatThrowsAtEveryByte) {
  ExpectSameWithAnyExceptions<Throwing>(ours_, literal_, length_);
}

TEST_P(Streams, BufferThatRefusesOneByteOnly) {
  ExpectSameWithAnyExceptions<RefusingOnce>(ours_, literal_, length_);
}

TEST_P(Streams, FlushingAfterEachByteFails) {
  // No exceptions: the standard library's would leave a destructor and end the program.
  ExpectSame<FailingSync>(ours_, literal_, length_, ios_base::goodbit, ios_base::unitbuf);
}

TEST_P(Streams, TextCutByConversionAtEveryByte) {
  const Write ours = [this](std::ostream& os) {
    TIMESERIESXML::WriteTreeUTF8(os, nullptr, trees_.ours.get(), true);
  };
  const Write literal = [this](std::ostream& os) {
    literal::WriteTreeUTF8(os, nullptr, trees_.literal.get(), true);
  };
  ExpectSameWithAnyExceptions<Unbuffered>(ours, literal, length_);
}

TEST_P(Streams, StreamThatIsNotGoodTakesNothing) {
  for (const ios_base::iostate state : {ios_base::failbit, ios_base::eofbit, ios_base::badbit}) {
    const auto broken = [state](const Write& write) -> Write {
      return [state, &write](std::ostream& os) {
        os.setstate(state);
        write(os);
      };
    };
    const Seen expected = Watch<Unbuffered>(length_, {}, {}, broken(literal_));
    EXPECT_EQ(expected.taken, "");
    EXPECT_EQ(Watch<Unbuffered>(length_, {}, {}, broken(ours_)), expected);
  }
}

std::string NameOfSize(const testing::TestParamInfo<int>& info) {
  return std::to_string(info.param) + "Nodes";
}

INSTANTIATE_TEST_SUITE_P(Small, Streams, testing::Values(10), NameOfSize);
INSTANTIATE_TEST_SUITE_P(Large, Streams, testing::Values(600), NameOfSize);

TEST(WriteBytes, RefusedByteIsOfferedOnce) {
  Unbuffered buffer(3);
  std::ostream os(&buffer);
  TIMESERIESXML::Write(os, "abcdef");
  TIMESERIESXML::Write(os, "ghi");
  EXPECT_EQ(buffer.taken(), "abc");
  EXPECT_EQ(buffer.refusals(), 1);
}

TEST(WriteBytes, LastByteRefusedMakesTheStreamBadButNotFailed) {
  Unbuffered buffer(2);
  std::ostream os(&buffer);
  TIMESERIESXML::Write(os, "abc");
  EXPECT_EQ(os.rdstate(), ios_base::badbit);
}

TEST(WriteBytes, ByteBehindARefusedOneMakesTheStreamFailToo) {
  Unbuffered buffer(2);
  std::ostream os(&buffer);
  TIMESERIESXML::Write(os, "abcd");
  EXPECT_EQ(os.rdstate(), ios_base::badbit | ios_base::failbit);
}

TEST(WriteBytes, NothingToWriteLeavesABadStreamAlone) {
  std::ostream os(nullptr);
  TIMESERIESXML::Write(os, "");
  EXPECT_EQ(os.rdstate(), ios_base::badbit);
}

TEST(WriteBytes, StreamWithoutABufferFails) {
  std::ostream os(nullptr);
  TIMESERIESXML::Write(os, "a");
  EXPECT_EQ(os.rdstate(), ios_base::badbit | ios_base::failbit);
}

TEST(WriteBytes, TiedStreamIsFlushedBeforeEveryByte) {
  CountingFlushes prompt;
  std::ostream first(&prompt);
  Buffered buffer(100);
  std::ostream second(&buffer);
  second.tie(&first);
  TIMESERIESXML::Write(second, "abcdefg");
  EXPECT_EQ(prompt.flushes, 7);
  EXPECT_EQ(buffer.taken(), "abcdefg");
}

TEST(WriteBytes, NulBytesAreWritten) {
  std::ostringstream os;
  const std::string withNul("a\0b", 3);
  TIMESERIESXML::Write(os, withNul);
  EXPECT_EQ(os.str(), withNul);
}

TEST(ThrowingStream, LeavesTheTreeWholeAndLeaksNothing) {
  const test::ScopedLocale german("de_DE.ISO-8859-1");  // converts every byte
  const test::TreePair trees = test::RandomTrees(3, 300);
  const std::string before = test::StringOf(*trees.ours);
  for (const bool utf8 : {false, true}) {
    for (std::size_t capacity = 0; capacity < before.size(); capacity += 500) {
      const long blocks = test::LiveBlocks();
      {
        const Seen seen =
            Watch<test::FailingStreambuf>(capacity, ios_base::badbit, {}, [&](std::ostream& os) {
              TIMESERIESXML::ExportFormat format;
              trees.ours->ToStream(os, format, utf8);
            });
        EXPECT_EQ(seen.thrown, "failure");
        EXPECT_EQ(seen.taken.size(), capacity);
      }
      EXPECT_EQ(test::LiveBlocks(), blocks);
    }
  }
  EXPECT_EQ(test::StringOf(*trees.ours), before);
}

}  // namespace
