// Parsing and compact serialisation of the default tree backend: which texts parse, how the
// writer escapes strings, that numbers keep their text and that strings carry any bytes.
#include <wlccw/cfg/owned.hpp>
#include <wlccw/cfg/tree.hpp>

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdio>
#include <optional>
#include <string>
#include <vector>

namespace {

using wlccw::cfg::compact;
using wlccw::cfg::make_object;
using wlccw::cfg::parse;
using wlccw::cfg::Tree;

// The compact text of a parsed text; "<null>" when it does not parse.
std::string reserialize(std::string const& text) {
  Tree root = parse(text);
  if (!root) {
    return "<null>";
  }
  return compact(root.get());
}

std::string nested_arrays(std::size_t depth) {
  return std::string(depth, '[') + std::string(depth, ']');
}

// ---- What parses --------------------------------------------------------------------------------

TEST(CfgParse, NullTextGivesNull) {
  EXPECT_EQ(cfg_parse_buffer(nullptr), nullptr);
}

TEST(CfgParse, EmptyAndWhitespaceOnlyTextGiveNull) {
  for (char const* text : {"", " ", "\n", " \t\r\n "}) {
    EXPECT_EQ(parse(text), nullptr) << "text: [" << text << "]";
  }
}

TEST(CfgParse, UnfinishedOrMalformedTextGivesNull) {
  std::vector<std::string> const bad = {
      "{",          "[",          "}",         "]",           "[1,]",
      "[1,2",       "{\"a\":1,}", "{\"a\"}",   "{\"a\":}",    "{\"a\" 1}",
      "{a:1}",      "{'a':1}",    "[1 2]",     "[01]",        "[+1]",
      "[.5]",       "[1.]",       "[NaN]",     "[Infinity]",  "tru",
      "nul",        "\"abc",      "[\"\\x\"]", "[\"\\u12\"]", "[\"\\u12g4\"]",
      "{\"a\":1}}", "[1]]",       ",",         ":",           "[,1]"};
  for (auto const& text : bad) {
    EXPECT_EQ(parse(text), nullptr) << "text: " << text;
  }
}

TEST(CfgParse, TrailingTextAfterOneJsonTextGivesNull) {
  for (char const* text : {"{}x", "{} {}", "[1] 2", "[] []", "{}\n{}", "1 2", "\"a\" \"b\"",
                           "{\"a\":1}garbage", "[1],", "true false", "null x"}) {
    EXPECT_EQ(parse(text), nullptr) << "text: " << text;
  }
}

TEST(CfgParse, CommentsAreNotJson) {
  for (char const* text : {"// note\n{}", "/* note */{}", "{}// note", "{}/* note */",
                           "{\"a\":1 /* note */}", "[1, // note\n2]", "# note\n{}"}) {
    EXPECT_EQ(parse(text), nullptr) << "text: " << text;
  }
}

TEST(CfgParse, SurroundingWhitespaceIsAccepted) {
  EXPECT_EQ(reserialize(" \t\r\n{ \"a\" : 1 , \"b\" : [ 1 , 2 ] }\n "), "{\"a\":1,\"b\":[1,2]}");
  EXPECT_EQ(reserialize("\n[]\n"), "[]");
}

TEST(CfgParse, ScalarRootsAreWholeJsonTexts) {
  EXPECT_EQ(reserialize("5"), "5");
  EXPECT_EQ(reserialize("\"x\""), "\"x\"");
  EXPECT_EQ(reserialize("true"), "true");
  EXPECT_EQ(reserialize("false"), "false");
  EXPECT_EQ(reserialize("null"), "null");
}

TEST(CfgParse, DeepNestingBeyondTheBoundGivesNullWithoutCrashing) {
  std::string const unclosed(10000, '[');
  EXPECT_EQ(parse(unclosed), nullptr);
  EXPECT_EQ(parse(nested_arrays(10000)), nullptr);
  EXPECT_EQ(parse(nested_arrays(100000)), nullptr);

  std::string objects;
  for (int i = 0; i < 10000; ++i) {
    objects += "{\"a\":";
  }
  objects += "1";
  objects += std::string(10000, '}');
  EXPECT_EQ(parse(objects), nullptr);
}

TEST(CfgParse, ModeratelyDeepDocumentParsesAndRoundTrips) {
  std::string const arrays = nested_arrays(100);
  EXPECT_EQ(reserialize(arrays), arrays);

  // 50 objects each holding an array: 100 levels of mixed nesting.
  std::string mixed;
  for (int i = 0; i < 50; ++i) {
    mixed += "{\"k\":[";
  }
  mixed += "true";
  for (int i = 0; i < 50; ++i) {
    mixed += "]}";
  }
  EXPECT_EQ(reserialize(mixed), mixed);

  Tree root = parse(mixed);
  ASSERT_TRUE(root);
  lcw_data_t const* node = root.get();
  for (int i = 0; i < 50; ++i) {
    lcw_data_t const* array = cfg_get_subtree(node, "k");
    ASSERT_NE(array, nullptr) << "level " << i;
    wlccw::cfg::ArrayIterator it(cfg_alloc_array_iterator(array));
    ASSERT_TRUE(it);
    node = cfg_next_array_iterator(it.get());
    ASSERT_NE(node, nullptr) << "level " << i;
  }
  EXPECT_STREQ(cfg_object_to_string(node), "true");
}

// ---- Compact, ordered, deterministic output -----------------------------------------------------

TEST(CfgSerialize, NullNodeGivesEmptyText) {
  char const* text = cfg_serialize_compact(nullptr);
  ASSERT_NE(text, nullptr);
  EXPECT_STREQ(text, "");
}

TEST(CfgSerialize, OutputHasNoWhitespaceBetweenTokens) {
  EXPECT_EQ(reserialize("{ \"a\" : [ 1 , true , null , \"x y\" ] , \"b\" : { } , \"c\" : [ ] }"),
            "{\"a\":[1,true,null,\"x y\"],\"b\":{},\"c\":[]}");
}

TEST(CfgSerialize, ObjectMembersKeepDocumentOrder) {
  std::string const text = "{\"z\":1,\"a\":2,\"m\":{\"y\":1,\"b\":2},\"c\":3}";
  EXPECT_EQ(reserialize(text), text);
}

TEST(CfgSerialize, ObjectMembersKeepInsertionOrder) {
  Tree root = make_object();
  ASSERT_TRUE(root);
  cfg_set_param(root.get(), "zeta", "1");
  cfg_set_int_param(root.get(), "alpha", 2);
  cfg_set_boolean_param(root.get(), "mid", true);
  lcw_data_t* sub = cfg_insert_empty_subtree(root.get(), "beta");
  ASSERT_NE(sub, nullptr);
  cfg_set_int_param(sub, "y", 1);
  cfg_set_int_param(sub, "b", 2);
  EXPECT_EQ(compact(root.get()),
            "{\"zeta\":\"1\",\"alpha\":2,\"mid\":true,\"beta\":{\"y\":1,\"b\":2}}");
}

TEST(CfgSerialize, SameTreeAndSameBuildGiveTheSameText) {
  auto build = [] {
    Tree root = make_object();
    cfg_set_param(root.get(), "b", "x");
    cfg_set_uint64_param(root.get(), "a", 7);
    lcw_data_t* list = cfg_insert_empty_array(root.get(), "list");
    cfg_insert_child_int(list, nullptr, 3);
    cfg_insert_child_string(list, nullptr, "s");
    return root;
  };
  Tree one = build();
  Tree two = build();
  ASSERT_TRUE(one);
  ASSERT_TRUE(two);
  std::string const first = compact(one.get());
  EXPECT_EQ(first, "{\"b\":\"x\",\"a\":7,\"list\":[3,\"s\"]}");
  EXPECT_EQ(compact(one.get()), first);
  EXPECT_EQ(compact(two.get()), first);
}

// ---- Numbers keep the text they were read with
// ---------------------------------------------------

TEST(CfgSerialize, NumbersAreWrittenBackAsTheirOriginalText) {
  for (char const* text :
       {"[1.5]", "[-0]", "[1e3]", "[1E+3]", "[-1e-7]", "[1.50]", "[0.1]", "[0]", "[-5]",
        "[12345678901234567890]", "[18446744073709551615]", "[-9223372036854775808]",
        "[100000000000000000000000000000]", "[3.141592653589793238462643383279]"}) {
    EXPECT_EQ(reserialize(text), text);
  }
  std::string const mixed = "{\"a\":1.5,\"b\":-0,\"c\":1e3,\"d\":12345678901234567890}";
  EXPECT_EQ(reserialize(mixed), mixed);
}

// ---- String escaping ---------------------------------------------------------------------------

// The compact text of {"s": value} written with cfg_set_param.
std::string written_string(std::string const& value) {
  Tree root = make_object();
  if (!root) {
    return "<null>";
  }
  cfg_set_param(root.get(), "s", value.c_str());
  return compact(root.get());
}

TEST(CfgSerialize, QuoteAndBackslashAreEscaped) {
  EXPECT_EQ(written_string("a\"b"), "{\"s\":\"a\\\"b\"}");
  EXPECT_EQ(written_string("c\\d"), "{\"s\":\"c\\\\d\"}");
}

TEST(CfgSerialize, SlashIsWrittenAsItIs) {
  EXPECT_EQ(written_string("a/b"), "{\"s\":\"a/b\"}");
  EXPECT_EQ(reserialize("[\"a\\/b\"]"), "[\"a/b\"]");
}

TEST(CfgSerialize, ControlCharactersAreEscaped) {
  EXPECT_EQ(written_string("\x01"), "{\"s\":\"\\u0001\"}");
  EXPECT_EQ(written_string("a\nb"), "{\"s\":\"a\\nb\"}");
  EXPECT_EQ(written_string("a\tb"), "{\"s\":\"a\\tb\"}");
  EXPECT_EQ(written_string("a\rb"), "{\"s\":\"a\\rb\"}");
}

TEST(CfgSerialize, EveryControlCharacterIsEscapedAndReadsBack) {
  for (int c = 1; c < 0x20; ++c) {
    std::string const value(1, static_cast<char>(c));
    std::string const text = written_string(value);
    for (char byte : text) {
      EXPECT_GE(static_cast<unsigned char>(byte), 0x20U) << "control " << c << " written raw";
    }
    Tree back = parse(text);
    ASSERT_TRUE(back) << "control " << c << ": " << text;
    EXPECT_EQ(cfg_get_param_opt(back.get(), "s"), value) << "control " << c;
  }
}

// The JSON string of a text, escaped byte by byte: the quote, the backslash and the control
// characters, the last with their short escapes where JSON has one.
std::string escaped_byte_by_byte(std::string const& value) {
  std::string out = "\"";
  for (char const ch : value) {
    auto const byte = static_cast<unsigned char>(ch);
    switch (ch) {
    case '"':
      out += "\\\"";
      break;
    case '\\':
      out += "\\\\";
      break;
    case '\b':
      out += "\\b";
      break;
    case '\f':
      out += "\\f";
      break;
    case '\n':
      out += "\\n";
      break;
    case '\r':
      out += "\\r";
      break;
    case '\t':
      out += "\\t";
      break;
    default:
      if (byte < 0x20) {
        char buf[8];
        std::snprintf(buf, sizeof buf, "\\u%04x", byte);
        out += buf;
      } else {
        out += ch;
      }
    }
  }
  return out + "\"";
}

// The writer checks and copies short texts in overlapping words and longer ones eight bytes at a
// time; a byte to escape has to be found at every position of a word and across word ends.
TEST(CfgSerialize, EscapesAreFoundAtEveryPositionOfLongerTexts) {
  std::string const specials{'\x01', '\x1f', '"', '\\', '\n', ' ', '\x7f', '\x80', '\xff', '!'};
  for (std::size_t length = 1; length <= 40; ++length) {
    for (std::size_t at = 0; at < length; ++at) {
      for (char const special : specials) {
        std::string value(length, 'a');
        value[at] = special;
        EXPECT_EQ(written_string(value), "{\"s\":" + escaped_byte_by_byte(value) + "}")
            << "length " << length << ", byte " << static_cast<int>(special) << " at " << at;
      }
    }
  }
}

TEST(CfgSerialize, LongTextsOfEveryByteAreEscapedByteByByte) {
  std::string every;
  for (int round = 0; round < 3; ++round) {
    for (int c = 1; c < 256; ++c) {
      every += static_cast<char>((c * 37 + round) % 255 + 1);
    }
  }
  EXPECT_EQ(written_string(every), "{\"s\":" + escaped_byte_by_byte(every) + "}");
  std::string const plain(10000, 'x');
  std::string const one_at_end = plain + "\"";
  EXPECT_EQ(written_string(one_at_end), "{\"s\":" + escaped_byte_by_byte(one_at_end) + "}");
  std::string const all_escaped(5000, '\x01');
  EXPECT_EQ(written_string(all_escaped), "{\"s\":" + escaped_byte_by_byte(all_escaped) + "}");
}

TEST(CfgSerialize, DeleteAndHighBytesAreWrittenRaw) {
  EXPECT_EQ(written_string("\x7f"), "{\"s\":\"\x7f\"}");
  std::string high;
  for (int c = 0x80; c <= 0xff; ++c) {
    high += static_cast<char>(c);
  }
  EXPECT_EQ(written_string(high), "{\"s\":\"" + high + "\"}");
  EXPECT_EQ(written_string("caf\xc3\xa9"), "{\"s\":\"caf\xc3\xa9\"}");
}

TEST(CfgSerialize, KeysAreEscapedLikeStrings) {
  Tree root = make_object();
  ASSERT_TRUE(root);
  cfg_set_param(root.get(), "k\"e\\y\n/", "v");
  EXPECT_EQ(compact(root.get()), "{\"k\\\"e\\\\y\\n/\":\"v\"}");
  EXPECT_STREQ(cfg_get_param(root.get(), "k\"e\\y\n/"), "v");
}

TEST(CfgParse, UnicodeEscapesAreDecodedToUtf8) {
  EXPECT_EQ(reserialize("[\"\\u00e9\"]"), "[\"\xc3\xa9\"]");
  EXPECT_EQ(reserialize("[\"\\u20AC\"]"), "[\"\xe2\x82\xac\"]");
  EXPECT_EQ(reserialize("[\"\\ud83d\\ude00\"]"), "[\"\xf0\x9f\x98\x80\"]");
  EXPECT_EQ(reserialize("[\"\\u0041\\u0062\"]"), "[\"Ab\"]");
}

TEST(CfgParse, EscapedControlCharactersReadBackAsTheirBytes) {
  Tree root = parse("{\"s\":\"\\b\\f\\n\\r\\t\\u0001\\u001f\"}");
  ASSERT_TRUE(root);
  EXPECT_EQ(cfg_get_param_opt(root.get(), "s"), std::string("\b\f\n\r\t\x01\x1f"));
}

// ---- Strings carry any bytes
// ---------------------------------------------------------------------

TEST(CfgBytes, InvalidUtf8InsideAStringParsesAndIsWrittenBackByteForByte) {
  std::string const text = "{\"ssid\":\"\xff\xfe\",\"b\":\"a\xc3\x28z\",\"c\":\"\xed\xa0\x80\"}";
  Tree root = parse(text);
  ASSERT_TRUE(root);
  EXPECT_STREQ(cfg_get_param(root.get(), "ssid"), "\xff\xfe");
  EXPECT_STREQ(cfg_get_param(root.get(), "b"), "a\xc3\x28z");
  EXPECT_EQ(compact(root.get()), text);
}

TEST(CfgBytes, StringWithAnyByteWrittenByOneTreeIsReadByAnother) {
  std::string value;
  for (int c = 1; c <= 0xff; ++c) {
    value += static_cast<char>(c);
  }
  std::string const text = written_string(value);
  Tree back = parse(text);
  ASSERT_TRUE(back) << text;
  EXPECT_EQ(cfg_get_param_opt(back.get(), "s"), value);
  EXPECT_EQ(compact(back.get()), text);
}

TEST(CfgBytes, InvalidUtf8InAKeyRoundTrips) {
  std::string const text = "{\"\xff\xfe\":1}";
  Tree root = parse(text);
  ASSERT_TRUE(root);
  EXPECT_EQ(cfg_get_int_param(root.get(), "\xff\xfe"), 1);
  EXPECT_EQ(compact(root.get()), text);
}

TEST(CfgBytes, EscapedNulInsideAStringSurvivesSerialisation) {
  std::string const text = "{\"s\":\"a\\u0000b\"}";
  EXPECT_EQ(reserialize(text), text);
  std::string const array = "[\"\\u0000\",\"x\\u0000\\u0000y\"]";
  EXPECT_EQ(reserialize(array), array);
}

} // namespace
