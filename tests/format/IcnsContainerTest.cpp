// SPDX-License-Identifier: GPL-3.0-or-later
#include "iconfamily/format/IcnsContainer.h"

#include <gtest/gtest.h>

#include "format/Fixtures.h"
#include "foundation/base/Limits.h"

namespace quorvane {
namespace {

using test::element;
using test::family;
using test::hex;
using test::join;
using test::letters;
using test::patched;

const FourCharCode darkAppearance(0xFDD92FA8);

Bytes after(Bytes bytes, FourCharCode type, const Bytes& data) {
  const auto done = setIcnsElement(bytes, type, data);
  EXPECT_TRUE(done.ok());
  return bytes;
}

TEST(IcnsContainer, ReadsUpToTheFirstFault) {
  const Bytes one = element("is32", letters("abc"));
  const Bytes two = element("s8mk", letters("defg"));
  const Bytes good = family({one, two});
  const std::string both = "is32 3\ns8mk 4\n";
  struct Row {
    const char* what;
    Bytes bytes;
    std::string elements;
  };
  const Row rows[] = {
      {"well formed", good, both},
      {"no element", family({}), ""},
      {"total below the header's own length", patched(good, 4, 4, 7), ""},
      {"total one too small", patched(good, 4, 4, 30), "is32 3\n"},
      {"total with the sign bit", patched(good, 4, 4, 0x80000000), both},
      {"total cuts before the end of the bytes", join({good, element("l8mk", {})}), both},
      {"element length below 8", patched(good, 12, 4, 7), ""},
      {"element length past the end", patched(good, 23, 4, 13), "is32 3\n"},
      {"element length near 2^32", patched(good, 23, 4, 0xFFFFFFFF), "is32 3\n"},
      {"stray bytes that are no whole header", family({one, letters("s8mkxyz")}), "is32 3\n"},
      {"element without data", family({element("is32", {}), two}), "is32 0\ns8mk 4\n"},
      {"type that is no text", family({element(FourCharCode(0x0041FF0D), {})}), "\\x00A\\xFF\\x0D 0\n"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.what);
    EXPECT_TRUE(icnsElements(row.bytes).ok());
    EXPECT_EQ(describeIcns(row.bytes), row.elements);
  }
}

TEST(IcnsContainer, RefusesWhatIsNoFamilyAndChangesNothing) {
  Bytes most;
  for (std::uint32_t i = 0; i < limits::familyElements; ++i)
    most = join({most, element(FourCharCode(0x61000000 + i), {})});
  const Bytes tooMany = family({most, element("more", {})});
  for (const Bytes& bytes : {letters("icns"), hex("69636E73 000000"), letters("snci\0\0\0\x08"), tooMany}) {
    Bytes changed = bytes;
    EXPECT_FALSE(icnsElements(bytes).ok());
    EXPECT_FALSE(icnsElement(bytes, "abcd"));
    EXPECT_EQ(describeIcns(bytes), "");
    EXPECT_FALSE(setIcnsElement(changed, "is32", letters("x")).ok());
    EXPECT_EQ(changed, bytes);
  }
  EXPECT_EQ(icnsElements(tooMany).error().kind(), ErrorKind::TooLarge);

  Bytes full = family({most});
  EXPECT_TRUE(setIcnsElement(full, FourCharCode(0x61000000), letters("replaced")).ok());
  EXPECT_FALSE(setIcnsElement(full, "more", {}).ok());
}

TEST(IcnsContainer, ReplacesInPlaceAndKeepsTheRest) {
  const Bytes odd = element("zzzz", letters("unknown"));
  const Bytes mask = element("s8mk", letters("m"));
  const Bytes old = family({element("is32", letters("old")), odd, element("is32", letters("again")), mask});
  EXPECT_EQ(after(old, "is32", letters("newer")), family({element("is32", letters("newer")), odd, mask}));
  EXPECT_EQ(after(family({odd}), "is32", {}), family({odd, element("is32", {})}));
  EXPECT_EQ(after(join({family({odd}), letters("tail")}), "is32", {}), family({odd, element("is32", {})}));
  EXPECT_EQ(after(family({odd, letters("is32\x7F")}), "is32", {}), family({odd, element("is32", {})}));
  EXPECT_EQ(after({}, "is32", letters("abc")), hex("69636E73 00000013 69733332 0000000B 616263"));
  // The new data may lie inside the family itself.
  Bytes bytes = family({element("is32", letters("abcdefgh")), element("s8mk", {})});
  ASSERT_TRUE(setIcnsElement(bytes, "s8mk", *icnsElement(bytes, "is32")).ok());
  EXPECT_EQ(bytes, family({element("is32", letters("abcdefgh")), element("s8mk", letters("abcdefgh"))}));
}

TEST(IcnsContainer, BringsTheTableOfContentsUpToDate) {
  const Bytes version = element("icnV", hex("42F00000"));
  const Bytes lying = element("TOC ", letters("is32\xFF\xFF"));
  const Bytes before = family({lying, element("is32", letters("abc")), version});
  const Bytes once = after(before, "s8mk", letters("de"));
  EXPECT_EQ(once, family({element("TOC ", hex("69733332 0000000B 73386D6B 0000000A")), element("is32", letters("abc")),
                          element("s8mk", letters("de")), version}));
  const Bytes twice = after(once, "is32", {});
  EXPECT_EQ(Bytes(icnsElement(twice, "TOC ")->begin(), icnsElement(twice, "TOC ")->end()),
            hex("69733332 00000008 73386D6B 0000000A"));
}

TEST(IcnsContainer, DescribesNestedFamiliesOneLevelDeep) {
  const Bytes inner = element("is32", letters("abc"));
  const Bytes bytes = family({element("slct", join({inner, element("slct", inner)})),
                              element(darkAppearance, family({inner})), element("info", inner)});
  EXPECT_EQ(describeIcns(bytes),
            "slct 30\n"
            "  is32 3\n"
            "  slct 11\n"
            "\\xFD\\xD9/\\xA8 19\n"
            "  is32 3\n"
            "info 11\n");
}

}  // namespace
}  // namespace quorvane
