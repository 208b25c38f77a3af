#include <wlccw/common/html.hpp>

#include "support/texts.hpp"

#include <gtest/gtest.h>

#include <cctype>
#include <optional>
#include <random>
#include <string>
#include <string_view>
#include <type_traits>

using external_data::ap::decode_html_safe;
using external_data::ap::decode_html_safe_opt;
using namespace std::string_literals;

namespace {

// The cleaner done as two separate, plainly written passes: decode the byte escapes, then replace
// the control bytes of the decoded text.
std::string reference_decode(std::string_view in) {
  std::string out;
  std::size_t i = 0;
  while (i < in.size()) {
    if (in.size() - i >= 5 && in.substr(i, 3) == "&#x") {
      std::size_t j = i + 3;
      while (j < i + 5 && std::isxdigit(static_cast<unsigned char>(in[j])) != 0) {
        ++j;
      }
      if (j > i + 3 && j < in.size() && in[j] == ';') {
        unsigned long const value =
            std::stoul(std::string(in.substr(i + 3, j - i - 3)), nullptr, 16);
        if (value <= 255) {
          out += static_cast<char>(value);
          i = j + 1;
          continue;
        }
      }
    }
    out += in[i];
    ++i;
  }
  return out;
}

std::string reference_replace(std::string text) {
  for (char& c : text) {
    auto const u = static_cast<unsigned char>(c);
    if (u <= 0x1F || u == 0x7F) {
      c = '.';
    }
  }
  return text;
}

std::string reference_clean(std::string_view in) {
  return reference_replace(reference_decode(in));
}

} // namespace

TEST(DecodeHtmlSafe, DecodesAHexadecimalByteEscape) {
  EXPECT_EQ(decode_html_safe("a&#x41;b"), "aAb");
}

TEST(DecodeHtmlSafe, DigitsOfEitherCase) {
  EXPECT_EQ(decode_html_safe("&#x4a;&#x4A;&#x6F;"), "JJo");
}

TEST(DecodeHtmlSafe, OneDigitEscape) {
  EXPECT_EQ(decode_html_safe("&#x7;"), "."); // five characters: decoded, then a control byte
  EXPECT_EQ(decode_html_safe("x&#x9;y"), "x.y");
  EXPECT_EQ(decode_html_safe("&#x0;"), ".");
}

TEST(DecodeHtmlSafe, EscapeTooShortToBeDecodedStaysText) {
  EXPECT_EQ(decode_html_safe("&#x4"), "&#x4");
  EXPECT_EQ(decode_html_safe("&#x"), "&#x");
  EXPECT_EQ(decode_html_safe("&#x;"), "&#x;");
  EXPECT_EQ(decode_html_safe("&"), "&");
}

TEST(DecodeHtmlSafe, EscapeWithoutSemicolonStaysText) {
  EXPECT_EQ(decode_html_safe("&#x41"), "&#x41");
  EXPECT_EQ(decode_html_safe("&#x41 ;"), "&#x41 ;");
  EXPECT_EQ(decode_html_safe("&#x4:"), "&#x4:");
}

TEST(DecodeHtmlSafe, ThirdDigitMakesTheEscapeMalformed) {
  EXPECT_EQ(decode_html_safe("&#x041;"), "&#x041;");
  EXPECT_EQ(decode_html_safe("&#x100;"), "&#x100;");
}

TEST(DecodeHtmlSafe, NoDigitStaysText) {
  EXPECT_EQ(decode_html_safe("&#xg1;"), "&#xg1;");
  EXPECT_EQ(decode_html_safe("&#x;ab"), "&#x;ab");
}

TEST(DecodeHtmlSafe, OnlyTheHexadecimalByteFormIsDecoded) {
  EXPECT_EQ(decode_html_safe("&amp;"), "&amp;");
  EXPECT_EQ(decode_html_safe("&lt;&gt;&quot;"), "&lt;&gt;&quot;");
  EXPECT_EQ(decode_html_safe("&#65;"), "&#65;");
  EXPECT_EQ(decode_html_safe("&#X41;"), "&#X41;");
}

TEST(DecodeHtmlSafe, MalformedEscapeIsCopiedAndScanningGoesOn) {
  EXPECT_EQ(decode_html_safe("&&#x41;"), "&A");
  EXPECT_EQ(decode_html_safe("&#x&#x41;"), "&#xA");
  EXPECT_EQ(decode_html_safe("&#x4&#x42;"), "&#x4B");
}

TEST(DecodeHtmlSafe, AdjacentEscapesAndEscapeAtTheEnd) {
  EXPECT_EQ(decode_html_safe("&#x41;&#x42;"), "AB");
  EXPECT_EQ(decode_html_safe("ssid&#x21;"), "ssid!");
}

TEST(DecodeHtmlSafe, DecodedTextIsNotScannedAgain) {
  EXPECT_EQ(decode_html_safe("&#x26;#x41;"), "&#x41;");
  EXPECT_EQ(decode_html_safe("&#x3b;"), ";");
}

TEST(DecodeHtmlSafe, EscapedControlByteBecomesADot) {
  EXPECT_EQ(decode_html_safe("&#x0a;"), ".");
  EXPECT_EQ(decode_html_safe("a&#x7f;b&#x1F;"), "a.b.");
}

TEST(DecodeHtmlSafe, TabBecomesADot) {
  EXPECT_EQ(decode_html_safe("a\tb"), "a.b");
}

TEST(DecodeHtmlSafe, EveryControlByteBecomesADotAndEveryOtherByteStays) {
  for (int b = 0; b < 256; ++b) {
    char const byte = static_cast<char>(b);
    std::string const text = "x"s + byte + "y";
    std::string const expected = (b <= 0x1F || b == 0x7F) ? "x.y" : text;
    EXPECT_EQ(decode_html_safe(std::string_view(text)), expected) << b;
  }
}

TEST(DecodeHtmlSafe, EscapedHighBytesStay) {
  EXPECT_EQ(decode_html_safe("&#xff;&#x80;"), "\xff\x80");
  EXPECT_EQ(decode_html_safe("&#xc3;&#xa9;"), "\xc3\xa9");
}

TEST(DecodeHtmlSafe, MultiByteUtf8Survives) {
  EXPECT_EQ(decode_html_safe("caf\xc3\xa9 \xe2\x82\xac"), "caf\xc3\xa9 \xe2\x82\xac");
}

TEST(DecodeHtmlSafe, NulByteInsideAViewBecomesADot) {
  EXPECT_EQ(decode_html_safe(std::string_view("a\0b", 3)), "a.b");
}

TEST(DecodeHtmlSafe, NullPointerGivesEmptyText) {
  EXPECT_EQ(decode_html_safe(static_cast<char const*>(nullptr)), "");
  EXPECT_EQ(decode_html_safe(nullptr), "");
}

TEST(DecodeHtmlSafe, EmptyText) {
  EXPECT_EQ(decode_html_safe(""), "");
  EXPECT_EQ(decode_html_safe(std::string_view()), "");
}

TEST(DecodeHtmlSafe, EveryArgumentFormPicksAnOverload) {
  static_assert(std::is_same_v<decltype(decode_html_safe("a")), std::string>);
  static_assert(std::is_same_v<decltype(decode_html_safe(std::string("a"))), std::string>);
  std::string const s = "x&#x41;";
  char buffer[] = "y&#x42;";
  char* mutable_pointer = buffer;
  char const* const_pointer = buffer;
  EXPECT_EQ(decode_html_safe(std::string("a&#x41;")), "aA");
  EXPECT_EQ(decode_html_safe(s), "xA");
  EXPECT_EQ(decode_html_safe(std::string_view(s)), "xA");
  EXPECT_EQ(decode_html_safe("z&#x43;"), "zC");
  EXPECT_EQ(decode_html_safe(buffer), "yB");
  EXPECT_EQ(decode_html_safe(mutable_pointer), "yB");
  EXPECT_EQ(decode_html_safe(const_pointer), "yB");
}

TEST(DecodeHtmlSafe, NulTerminatedTextEndsAtTheTerminator) {
  char const text[] = "a\0&#x41;";
  EXPECT_EQ(decode_html_safe(text), "a");
}

TEST(DecodeHtmlSafe, MatchesTwoSeparatePassesOnEveryShortText) {
  std::string const alphabet{"&#x4f;\n\x7f\xc3"};
  std::vector<std::string> const texts = wlccw::test::all_texts(alphabet, 6);
  for (std::string const& text : texts) {
    ASSERT_EQ(decode_html_safe(std::string_view(text)), reference_clean(text)) << text;
  }
}

TEST(DecodeHtmlSafe, MatchesTwoSeparatePassesOnRandomTexts) {
  std::mt19937 rng(2024);
  std::string const alphabet{"&&&###xxxX0aF9g;;; \t\0\xff"s};
  std::uniform_int_distribution<std::size_t> length(0, 40);
  std::uniform_int_distribution<std::size_t> pick(0, alphabet.size() - 1);
  for (int i = 0; i < 50000; ++i) {
    std::string text(length(rng), ' ');
    for (char& c : text) {
      c = alphabet[pick(rng)];
    }
    ASSERT_EQ(decode_html_safe(std::string_view(text)), reference_clean(text)) << text;
  }
}

TEST(DecodeHtmlSafeOpt, EmptyStaysEmpty) {
  EXPECT_EQ(decode_html_safe_opt(std::nullopt), std::nullopt);
}

TEST(DecodeHtmlSafeOpt, EngagedEmptyTextStaysEngaged) {
  std::optional<std::string> const result = decode_html_safe_opt(std::string());
  ASSERT_TRUE(result.has_value());
  EXPECT_EQ(*result, "");
}

TEST(DecodeHtmlSafeOpt, EngagedTextIsCleaned) {
  EXPECT_EQ(decode_html_safe_opt(std::string("a&#x41;\tb")), std::optional<std::string>("aA.b"));
  EXPECT_EQ(decode_html_safe_opt(std::string("a\0b", 3)), std::optional<std::string>("a.b"));
}
