#include <wlccw/ipc/IpcDasProxyConfig.hpp>

#include "support/addresses.hpp"

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <ostream>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

using Config = IpcDasProxyConfig::Config;

// Failure messages show every field but the shared secret, of which only the length is shown.
void PrintTo(Config const& cfg, std::ostream* os) {
  *os << "{mac " << cfg.mac.str() << (cfg.mac.valid ? "" : " (invalid)") << ", ip " << cfg.ip.str()
      << (cfg.ip.valid ? "" : " (invalid)") << ", key of " << cfg.key.size() << " bytes, port "
      << cfg.port << ", " << (cfg.enabled ? "enabled" : "disabled") << "}";
}

namespace {

using wlccw::test::ip;
using wlccw::test::mac;

// The change hash of one entry worked out from its rule, independently of tools::hash_combine.
std::size_t expected_entry_hash(Config const& cfg) {
  auto const mix = [](std::uint64_t seed, std::uint64_t h) {
    return seed ^ (h + 0x9e3779b9ULL + (seed << 6U) + (seed >> 2U));
  };
  std::hash<std::string> const text_hash;
  std::uint64_t seed = cfg.enabled ? 1 : 0;
  seed = mix(seed, text_hash(cfg.mac.str()));
  seed = mix(seed, text_hash(cfg.ip.str()));
  seed = mix(seed, text_hash(cfg.key));
  seed = mix(seed, cfg.port);
  return static_cast<std::size_t>(seed);
}

IpcDasProxyConfig two_entries() {
  IpcDasProxyConfig list;
  list.append_ap_cfg(Config(mac("00:11:22:33:44:55"), ip("10.0.0.1"), "s3cr3t", 3799, true));
  list.append_ap_cfg(Config(mac("AA:BB:CC:DD:EE:FF"), ip("192.168.1.20"), "", 0, false));
  return list;
}

constexpr char const* kTwoEntries =
    R"([{"mac":"00:11:22:33:44:55","ip":"10.0.0.1","key":"s3cr3t","port":3799,"enabled":true},)"
    R"({"mac":"aa:bb:cc:dd:ee:ff","ip":"192.168.1.20","key":"","port":0,"enabled":false}])";

// The records carry a shared secret: they have no stream operator.
template <typename T>
concept Streamable = requires(std::ostream& os, T const& value) {
  os << value;
};

} // namespace

// ---- The entry ----------------------------------------------------------------------------------

TEST(IpcDasProxyConfig, DefaultEntryHoldsDefaultValues) {
  Config const cfg;
  EXPECT_EQ(cfg.mac, MacAddr{});
  EXPECT_FALSE(cfg.mac.valid);
  EXPECT_EQ(cfg.ip, IpAddr{});
  EXPECT_TRUE(cfg.key.empty());
  EXPECT_EQ(cfg.port, 0);
  EXPECT_FALSE(cfg.enabled);
  static_assert(std::is_same_v<decltype(Config::port), std::uint16_t>);
  static_assert(std::is_same_v<decltype(IpcDasProxyConfig::configs), std::vector<Config>>);
}

TEST(IpcDasProxyConfig, ValueConstructorKeepsEveryField) {
  Config const cfg(mac("00:11:22:33:44:55"), ip("10.0.0.1"), "secret", 3799, true);
  EXPECT_EQ(cfg.mac, mac("00:11:22:33:44:55"));
  EXPECT_TRUE(cfg.mac.valid);
  EXPECT_EQ(cfg.ip, ip("10.0.0.1"));
  EXPECT_EQ(cfg.key, "secret");
  EXPECT_EQ(cfg.port, 3799);
  EXPECT_TRUE(cfg.enabled);
}

TEST(IpcDasProxyConfig, MoveConstructorMovesTheSecretAndCopiesTheRest) {
  static_assert(std::is_nothrow_move_constructible_v<Config>);
  static_assert(std::is_copy_constructible_v<Config>);
  // A secret too long for the small-string buffer: moving hands over its storage.
  std::string const secret(100, 'k');
  Config source(mac("00:11:22:33:44:55"), ip("10.0.0.1"), secret, 3799, true);
  char const* const storage = source.key.data();
  Config const moved(std::move(source));
  EXPECT_EQ(moved.key, secret);
  EXPECT_EQ(moved.key.data(), storage);
  EXPECT_EQ(moved.mac, mac("00:11:22:33:44:55"));
  EXPECT_TRUE(moved.mac.valid);
  EXPECT_EQ(moved.ip, ip("10.0.0.1"));
  EXPECT_TRUE(moved.ip.valid);
  EXPECT_EQ(moved.port, 3799);
  EXPECT_TRUE(moved.enabled);
  // The other fields are copied, so the source keeps them.
  EXPECT_EQ(source.mac, mac("00:11:22:33:44:55")); // NOLINT(bugprone-use-after-move)
  EXPECT_EQ(source.ip, ip("10.0.0.1"));
  EXPECT_EQ(source.port, 3799);
  EXPECT_TRUE(source.enabled);
}

TEST(IpcDasProxyConfig, CopiesAndAssignmentsKeepEveryField) {
  Config const original(mac("00:11:22:33:44:55"), ip("10.0.0.1"), "secret", 3799, true);
  Config copy(original);
  EXPECT_EQ(copy, original);
  Config assigned;
  assigned = original;
  EXPECT_EQ(assigned, original);
  Config move_assigned;
  move_assigned = std::move(copy);
  EXPECT_EQ(move_assigned, original);
}

TEST(IpcDasProxyConfig, EqualityComparesEveryField) {
  Config const base(mac("00:11:22:33:44:55"), ip("10.0.0.1"), "secret", 3799, true);
  EXPECT_EQ(base, Config(mac("00:11:22:33:44:55"), ip("10.0.0.1"), "secret", 3799, true));
  EXPECT_NE(base, Config(mac("00:11:22:33:44:56"), ip("10.0.0.1"), "secret", 3799, true));
  EXPECT_NE(base, Config(mac("00:11:22:33:44:55"), ip("10.0.0.2"), "secret", 3799, true));
  EXPECT_NE(base, Config(mac("00:11:22:33:44:55"), ip("10.0.0.1"), "Secret", 3799, true));
  EXPECT_NE(base, Config(mac("00:11:22:33:44:55"), ip("10.0.0.1"), "secret", 3798, true));
  EXPECT_NE(base, Config(mac("00:11:22:33:44:55"), ip("10.0.0.1"), "secret", 3799, false));
}

TEST(IpcDasProxyConfig, RecordsHaveNoStreamOperator) {
  static_assert(!Streamable<Config>);
  static_assert(!Streamable<IpcDasProxyConfig>);
  SUCCEED();
}

// ---- The entry's hash ---------------------------------------------------------------------------

TEST(IpcDasProxyConfig, EntryHashFollowsItsFormula) {
  Config const cfg(mac("00:11:22:33:44:55"), ip("10.0.0.1"), "secret", 3799, true);
  EXPECT_EQ(cfg.get_hash(), expected_entry_hash(cfg));
  Config const other(mac("AA:BB:CC:DD:EE:FF"), ip("192.168.1.20"), "", 65535, false);
  EXPECT_EQ(other.get_hash(), expected_entry_hash(other));
  Config const empty;
  EXPECT_EQ(empty.get_hash(), expected_entry_hash(empty));
}

TEST(IpcDasProxyConfig, EntryHashStartsFromTheEnabledFlagAndMixesThePortAsItIs) {
  // Worked out by hand for the default entry: the seed is 0 when disabled and 1 when enabled, the
  // texts are mixed in through std::hash<std::string>, the port without any hash of its own.
  std::hash<std::string> const h;
  for (bool const enabled : {false, true}) {
    for (std::uint16_t const port : {std::uint16_t{0}, std::uint16_t{1}, std::uint16_t{65535}}) {
      Config cfg;
      cfg.enabled = enabled;
      cfg.port = port;
      std::uint64_t seed = enabled ? 1U : 0U;
      for (std::string const& text :
           {std::string("00:00:00:00:00:00"), std::string("0.0.0.0"), std::string()}) {
        seed ^= h(text) + 0x9e3779b9ULL + (seed << 6U) + (seed >> 2U);
      }
      seed ^= std::uint64_t{port} + 0x9e3779b9ULL + (seed << 6U) + (seed >> 2U);
      EXPECT_EQ(cfg.get_hash(), seed) << enabled << ' ' << port;
    }
  }
}

TEST(IpcDasProxyConfig, EntryHashFollowsEveryField) {
  Config const base(mac("00:11:22:33:44:55"), ip("10.0.0.1"), "secret", 3799, true);
  std::vector<Config> const changed{
      Config(mac("00:11:22:33:44:56"), ip("10.0.0.1"), "secret", 3799, true),
      Config(mac("00:11:22:33:44:55"), ip("10.0.0.2"), "secret", 3799, true),
      Config(mac("00:11:22:33:44:55"), ip("10.0.0.1"), "secreT", 3799, true),
      Config(mac("00:11:22:33:44:55"), ip("10.0.0.1"), "secret", 3798, true),
      Config(mac("00:11:22:33:44:55"), ip("10.0.0.1"), "secret", 3799, false),
  };
  for (Config const& cfg : changed) {
    EXPECT_NE(cfg.get_hash(), base.get_hash());
  }
  // The MAC takes part through its text: its spelling and validity do not matter.
  Config const spelled(mac("001122334455"), ip("10.0.0.1"), "secret", 3799, true);
  EXPECT_EQ(spelled.get_hash(), base.get_hash());
}

// ---- The list -----------------------------------------------------------------------------------

TEST(IpcDasProxyConfig, AppendKeepsInsertionOrderAndMovesTheEntryIn) {
  IpcDasProxyConfig list;
  EXPECT_TRUE(list.configs.empty());
  std::string const secret(64, 's');
  Config first(mac("00:00:00:00:00:01"), ip("10.0.0.1"), secret, 1, true);
  char const* const storage = first.key.data();
  list.append_ap_cfg(std::move(first));
  list.append_ap_cfg(Config(mac("00:00:00:00:00:02"), ip("10.0.0.2"), "b", 2, false));
  list.append_ap_cfg(Config(mac("00:00:00:00:00:01"), ip("10.0.0.3"), "c", 3, true));
  ASSERT_EQ(list.configs.size(), 3U);
  EXPECT_EQ(list.configs[0].key.data(), storage);
  EXPECT_EQ(list.configs[0].port, 1);
  EXPECT_EQ(list.configs[1].port, 2);
  // An entry for an address already present is appended too.
  EXPECT_EQ(list.configs[2].mac, mac("00:00:00:00:00:01"));
  EXPECT_EQ(list.configs[2].port, 3);
}

// ---- Writing ------------------------------------------------------------------------------------

TEST(IpcDasProxyConfig, EmptyListSerialisesToAnEmptyArray) {
  EXPECT_EQ(IpcDasProxyConfig{}.ipc_serialize(), "[]");
}

TEST(IpcDasProxyConfig, EntriesSerialiseExactlyInVectorOrder) {
  EXPECT_EQ(two_entries().ipc_serialize(), kTwoEntries);
}

TEST(IpcDasProxyConfig, InvalidAddressesAreWrittenByTheirOctets) {
  IpcDasProxyConfig list;
  Config cfg;
  cfg.mac.bytes = {1, 2, 3, 4, 5, 6};
  cfg.ip.octets = {1, 2, 3, 4};
  list.append_ap_cfg(std::move(cfg));
  EXPECT_EQ(list.ipc_serialize(),
            R"([{"mac":"01:02:03:04:05:06","ip":"1.2.3.4","key":"","port":0,"enabled":false}])");
}

TEST(IpcDasProxyConfig, SecretIsWrittenInClearWithJsonEscapes) {
  IpcDasProxyConfig list;
  list.append_ap_cfg(Config(mac("00:11:22:33:44:55"), ip("10.0.0.1"), "a\"b\\c/d", 65535, true));
  EXPECT_EQ(
      list.ipc_serialize(),
      R"([{"mac":"00:11:22:33:44:55","ip":"10.0.0.1","key":"a\"b\\c/d","port":65535,"enabled":true}])");
  EXPECT_EQ(IpcDasProxyConfig::ipc_deserialize(list.ipc_serialize()), list);
}

// ---- Reading ------------------------------------------------------------------------------------

TEST(IpcDasProxyConfig, WrittenTextReadsBackToTheSameEntries) {
  IpcDasProxyConfig const list = two_entries();
  IpcDasProxyConfig const back = IpcDasProxyConfig::ipc_deserialize(list.ipc_serialize());
  EXPECT_EQ(back, list);
  ASSERT_EQ(back.configs.size(), 2U);
  EXPECT_TRUE(back.configs[0].mac.valid);
  EXPECT_TRUE(back.configs[0].ip.valid);
  EXPECT_EQ(back.ipc_serialize(), kTwoEntries);
  EXPECT_EQ(back.get_hash(), list.get_hash());
  EXPECT_EQ(back.configs[0].get_hash(), list.configs[0].get_hash());
}

TEST(IpcDasProxyConfig, EmptyArrayReadsAsNoEntries) {
  IpcDasProxyConfig const list = IpcDasProxyConfig::ipc_deserialize("[]");
  EXPECT_TRUE(list.configs.empty());
  EXPECT_EQ(list.ipc_serialize(), "[]");
}

TEST(IpcDasProxyConfig, TextThatIsNotJsonReadsAsNoEntries) {
  for (std::string const& text : std::vector<std::string>{
           "", " ", "not json", "[", "[{}", "[]]", "[][]", "{\"mac\":", "[{\"port\":1},]",
           std::string(100000, '['), "[" + std::string(100000, '{')}) {
    EXPECT_TRUE(IpcDasProxyConfig::ipc_deserialize(text).configs.empty()) << text.substr(0, 40);
  }
}

TEST(IpcDasProxyConfig, RootThatIsNotAnArrayReadsAsNoEntries) {
  for (std::string const text :
       {R"({"mac":"00:11:22:33:44:55","port":1})", "{}", R"("[]")", "42", "true", "null"}) {
    EXPECT_TRUE(IpcDasProxyConfig::ipc_deserialize(text).configs.empty()) << text;
  }
}

TEST(IpcDasProxyConfig, PortKeepsItsLow16Bits) {
  IpcDasProxyConfig const list = IpcDasProxyConfig::ipc_deserialize(
      R"([{"port":65537},{"port":65535},{"port":70000},{"port":4294967295},{"port":"3799"}])");
  ASSERT_EQ(list.configs.size(), 5U);
  EXPECT_EQ(list.configs[0].port, 1);
  EXPECT_EQ(list.configs[1].port, 65535);
  EXPECT_EQ(list.configs[2].port, 70000 - 65536);
  EXPECT_EQ(list.configs[3].port, 65535);
  // An integer in a string is an integer to the tree (RFC 7951 style).
  EXPECT_EQ(list.configs[4].port, 3799);
}

TEST(IpcDasProxyConfig, PortThatIsNoUnsigned32BitNumberReadsAsZero) {
  IpcDasProxyConfig const list = IpcDasProxyConfig::ipc_deserialize(
      R"([{"port":-1},{"port":4294967296},{"port":1e3},{"port":1.5},{"port":"80x"},)"
      R"({"port":true},{"port":null},{"port":[1]},{"port":{"a":1}},)"
      R"({"port":123456789012345678901234567890}])");
  ASSERT_EQ(list.configs.size(), 10U);
  for (Config const& cfg : list.configs) {
    EXPECT_EQ(cfg.port, 0);
  }
}

TEST(IpcDasProxyConfig, MissingKeysLeaveDefaults) {
  IpcDasProxyConfig const list = IpcDasProxyConfig::ipc_deserialize(R"([{}])");
  ASSERT_EQ(list.configs.size(), 1U);
  EXPECT_EQ(list.configs[0], Config{});
  EXPECT_FALSE(list.configs[0].mac.valid);
  EXPECT_FALSE(list.configs[0].ip.valid);
  EXPECT_EQ(list.ipc_serialize(),
            R"([{"mac":"00:00:00:00:00:00","ip":"0.0.0.0","key":"","port":0,"enabled":false}])");
}

TEST(IpcDasProxyConfig, MalformedAddressesLeaveTheDefaultAddress) {
  IpcDasProxyConfig const list = IpcDasProxyConfig::ipc_deserialize(
      R"([{"mac":"00-11-22-33-44-55","ip":"10.0.0.256"},)"
      R"({"mac":"00:11:22:33:44:5g","ip":"10-0-0-1"},)"
      R"({"mac":12,"ip":1},{"mac":["00:11:22:33:44:55"],"ip":{"a":"10.0.0.1"}},)"
      R"({"mac":"00:11:22:33:44:55:","ip":"192.168.100.100.1"}])");
  ASSERT_EQ(list.configs.size(), 5U);
  for (Config const& cfg : list.configs) {
    EXPECT_EQ(cfg.mac, MacAddr{});
    EXPECT_FALSE(cfg.mac.valid);
    EXPECT_EQ(cfg.ip, IpAddr{});
    EXPECT_FALSE(cfg.ip.valid);
  }
}

TEST(IpcDasProxyConfig, AddressesAreReadByTheirTextRules) {
  IpcDasProxyConfig const list = IpcDasProxyConfig::ipc_deserialize(
      R"([{"mac":"AABBCCDDEEFF","ip":"010.0.0.1"},{"mac":"Aa:bB:0C:dd:0e:FF","ip":"0x10.1.1.1"}])");
  ASSERT_EQ(list.configs.size(), 2U);
  EXPECT_EQ(list.configs[0].mac.str(), "aa:bb:cc:dd:ee:ff");
  EXPECT_TRUE(list.configs[0].mac.valid);
  EXPECT_EQ(list.configs[0].ip.str(), "8.0.0.1");
  EXPECT_EQ(list.configs[1].mac.str(), "aa:bb:0c:dd:0e:ff");
  EXPECT_EQ(list.configs[1].ip.str(), "16.1.1.1");
}

TEST(IpcDasProxyConfig, EnabledIsReadOnlyFromAJsonBoolean) {
  IpcDasProxyConfig const list = IpcDasProxyConfig::ipc_deserialize(
      R"([{"enabled":true},{"enabled":false},{"enabled":"true"},{"enabled":1},{"enabled":null}])");
  ASSERT_EQ(list.configs.size(), 5U);
  EXPECT_TRUE(list.configs[0].enabled);
  for (std::size_t i = 1; i < list.configs.size(); ++i) {
    EXPECT_FALSE(list.configs[i].enabled) << i;
  }
}

TEST(IpcDasProxyConfig, KeyIsTakenAsText) {
  IpcDasProxyConfig const list = IpcDasProxyConfig::ipc_deserialize(
      R"([{"key":"s e c r e t"},{"key":""},{"key":{"a":"b"}},{"key":["x"]},{"key":null}])");
  ASSERT_EQ(list.configs.size(), 5U);
  EXPECT_EQ(list.configs[0].key, "s e c r e t");
  for (std::size_t i = 1; i < list.configs.size(); ++i) {
    EXPECT_EQ(list.configs[i].key, "") << i;
  }
}

TEST(IpcDasProxyConfig, EveryElementGivesAnEntryEvenWhenItIsNotAnObject) {
  IpcDasProxyConfig const list =
      IpcDasProxyConfig::ipc_deserialize(R"([1,"00:11:22:33:44:55",null,[],true,{"port":5}])");
  ASSERT_EQ(list.configs.size(), 6U);
  for (std::size_t i = 0; i < 5; ++i) {
    EXPECT_EQ(list.configs[i], Config{}) << i;
  }
  EXPECT_EQ(list.configs[5].port, 5);
}

TEST(IpcDasProxyConfig, OtherMembersAreIgnoredAndKeyOrderDoesNotMatter) {
  IpcDasProxyConfig const list = IpcDasProxyConfig::ipc_deserialize(
      R"([{"enabled":true,"x":[1,2],"port":1812,"key":"k","ip":"10.1.1.1","mac":"02:00:00:00:00:01","MAC":"x"}])");
  ASSERT_EQ(list.configs.size(), 1U);
  EXPECT_EQ(list.configs[0], Config(mac("02:00:00:00:00:01"), ip("10.1.1.1"), "k", 1812, true));
}

TEST(IpcDasProxyConfig, ManyEntriesReadBackInOrder) {
  IpcDasProxyConfig list;
  for (unsigned i = 0; i < 1000; ++i) {
    MacAddr m = mac("02:00:00:00:00:00");
    m.bytes[4] = static_cast<unsigned char>(i >> 8U);
    m.bytes[5] = static_cast<unsigned char>(i);
    list.append_ap_cfg(Config(m, ip("10.0.0.1"), "key" + std::to_string(i),
                              static_cast<std::uint16_t>(i), i % 2 == 0));
  }
  EXPECT_EQ(IpcDasProxyConfig::ipc_deserialize(list.ipc_serialize()), list);
}

// ---- The list's hash ----------------------------------------------------------------------------

TEST(IpcDasProxyConfig, HashIsTheStringHashOfTheIpcText) {
  EXPECT_EQ(IpcDasProxyConfig{}.get_hash(), std::hash<std::string>{}("[]"));
  EXPECT_EQ(two_entries().get_hash(), std::hash<std::string>{}(kTwoEntries));
}

TEST(IpcDasProxyConfig, SameEntriesInAnotherOrderHashApart) {
  IpcDasProxyConfig const forward = two_entries();
  IpcDasProxyConfig backward;
  backward.append_ap_cfg(Config(forward.configs[1]));
  backward.append_ap_cfg(Config(forward.configs[0]));
  EXPECT_NE(backward.get_hash(), forward.get_hash());
  EXPECT_EQ(two_entries().get_hash(), forward.get_hash());
}

TEST(IpcDasProxyConfig, HashFollowsEveryField) {
  IpcDasProxyConfig const base = two_entries();
  for (int field = 0; field < 5; ++field) {
    IpcDasProxyConfig changed = two_entries();
    Config& cfg = changed.configs[1];
    switch (field) {
    case 0:
      cfg.mac.bytes[5] ^= 1U;
      break;
    case 1:
      cfg.ip.octets[3] ^= 1U;
      break;
    case 2:
      cfg.key = "x";
      break;
    case 3:
      cfg.port = 1;
      break;
    default:
      cfg.enabled = true;
      break;
    }
    EXPECT_NE(changed.get_hash(), base.get_hash()) << field;
  }
}
