#include <wlccw/ipc/ClientCoaProxyInfo.hpp>

#include "support/addresses.hpp"

#include <gtest/gtest.h>

#include <cstdint>
#include <optional>
#include <ostream>
#include <string>
#include <type_traits>
#include <vector>

using State = ClientCoaProxyInfo::State;

// Failure messages show every field but the shared secret, of which only the length is shown.
void PrintTo(ClientCoaProxyInfo const& info, std::ostream* os) {
  *os << "{state " << static_cast<std::int32_t>(info.state) << ", client " << info.client_mac.str()
      << ", ap " << info.ap_mac.str() << ", ip " << info.ip.str() << ", port " << info.port
      << ", password of " << info.password.size() << " bytes, "
      << (info.enabled ? "enabled" : "disabled") << "}";
}

namespace {

using wlccw::test::ip;
using wlccw::test::mac;

MacAddr const kClient = mac("00:11:22:33:44:55");
MacAddr const kAp = mac("AA:BB:CC:DD:EE:FF");

ClientCoaProxyInfo full() {
  return ClientCoaProxyInfo::with_data(kClient, kAp, ip("10.1.2.3"), 3799, "pa$$word", true);
}

constexpr char const* kFull =
    R"({"state":"has-data","client-mac":"00:11:22:33:44:55","ip":"10.1.2.3","port":3799,)"
    R"("password":"pa$$word","enabled":true,"ap-mac":"aa:bb:cc:dd:ee:ff"})";

template <typename T>
concept Streamable = requires(std::ostream& os, T const& value) {
  os << value;
};

void expect_default(ClientCoaProxyInfo const& info, std::string const& text) {
  EXPECT_EQ(info, ClientCoaProxyInfo{}) << text;
  EXPECT_FALSE(info.client_mac.valid) << text;
  EXPECT_FALSE(info.ap_mac.valid) << text;
  EXPECT_FALSE(info.ip.valid) << text;
}

} // namespace

// ---- The record ---------------------------------------------------------------------------------

TEST(ClientCoaProxyInfo, StatesHaveTheirValues) {
  static_assert(std::is_same_v<std::underlying_type_t<State>, std::int32_t>);
  EXPECT_EQ(static_cast<int>(State::no_bind), 0);
  EXPECT_EQ(static_cast<int>(State::no_config), 1);
  EXPECT_EQ(static_cast<int>(State::has_data), 2);
}

TEST(ClientCoaProxyInfo, DefaultRecordIsNoBindWithNothingSet) {
  ClientCoaProxyInfo const info;
  EXPECT_EQ(info.state, State::no_bind);
  EXPECT_EQ(info.client_mac, MacAddr{});
  EXPECT_FALSE(info.client_mac.valid);
  EXPECT_EQ(info.ap_mac, MacAddr{});
  EXPECT_FALSE(info.ap_mac.valid);
  EXPECT_EQ(info.ip, IpAddr{});
  EXPECT_FALSE(info.ip.valid);
  EXPECT_EQ(info.port, 0);
  EXPECT_TRUE(info.password.empty());
  EXPECT_FALSE(info.enabled);
  static_assert(std::is_same_v<decltype(ClientCoaProxyInfo::port), std::uint16_t>);
}

TEST(ClientCoaProxyInfo, RecordHasNoStreamOperator) {
  static_assert(!Streamable<ClientCoaProxyInfo>);
  SUCCEED();
}

TEST(ClientCoaProxyInfo, NoBindSetsOnlyTheClient) {
  ClientCoaProxyInfo expected;
  expected.client_mac = kClient;
  ClientCoaProxyInfo const info = ClientCoaProxyInfo::no_bind(kClient);
  EXPECT_EQ(info, expected);
  EXPECT_TRUE(info.client_mac.valid);
}

TEST(ClientCoaProxyInfo, NoConfigSetsTheClientAndTheAccessPoint) {
  ClientCoaProxyInfo expected;
  expected.state = State::no_config;
  expected.client_mac = kClient;
  expected.ap_mac = kAp;
  EXPECT_EQ(ClientCoaProxyInfo::no_config(kClient, kAp), expected);
}

TEST(ClientCoaProxyInfo, WithDataSetsEveryField) {
  ClientCoaProxyInfo const info = full();
  EXPECT_EQ(info.state, State::has_data);
  EXPECT_EQ(info.client_mac, kClient);
  EXPECT_EQ(info.ap_mac, kAp);
  EXPECT_EQ(info.ip, ip("10.1.2.3"));
  EXPECT_TRUE(info.ip.valid);
  EXPECT_EQ(info.port, 3799);
  EXPECT_EQ(info.password, "pa$$word");
  EXPECT_TRUE(info.enabled);
}

// ---- Accessors ----------------------------------------------------------------------------------

TEST(ClientCoaProxyInfo, NoBindAccessorsGiveOnlyTheClient) {
  ClientCoaProxyInfo info = ClientCoaProxyInfo::no_bind(kClient);
  // Fields set by hand do not show through the accessors of a state that does not carry them.
  info.ap_mac = kAp;
  info.ip = ip("10.0.0.1");
  info.port = 1;
  info.password = "p";
  info.enabled = true;
  EXPECT_EQ(info.get_state(), State::no_bind);
  ASSERT_TRUE(info.get_client_mac().has_value());
  EXPECT_EQ(*info.get_client_mac(), kClient);
  EXPECT_FALSE(info.get_ap_mac().has_value());
  EXPECT_FALSE(info.get_ip().has_value());
  EXPECT_FALSE(info.get_port().has_value());
  EXPECT_FALSE(info.get_password().has_value());
  EXPECT_FALSE(info.get_enabled().has_value());
}

TEST(ClientCoaProxyInfo, NoConfigAccessorsGiveTheAccessPointButNoProxy) {
  ClientCoaProxyInfo const info = ClientCoaProxyInfo::no_config(kClient, kAp);
  EXPECT_EQ(info.get_state(), State::no_config);
  EXPECT_EQ(info.get_client_mac(), std::optional<MacAddr>(kClient));
  ASSERT_TRUE(info.get_ap_mac().has_value());
  EXPECT_EQ(*info.get_ap_mac(), kAp);
  EXPECT_FALSE(info.get_ip().has_value());
  EXPECT_FALSE(info.get_port().has_value());
  EXPECT_FALSE(info.get_password().has_value());
  EXPECT_FALSE(info.get_enabled().has_value());
}

TEST(ClientCoaProxyInfo, HasDataAccessorsGiveEveryField) {
  ClientCoaProxyInfo const info = full();
  EXPECT_EQ(info.get_state(), State::has_data);
  EXPECT_EQ(info.get_client_mac(), std::optional<MacAddr>(kClient));
  EXPECT_EQ(info.get_ap_mac(), std::optional<MacAddr>(kAp));
  ASSERT_TRUE(info.get_ip().has_value());
  EXPECT_EQ(*info.get_ip(), ip("10.1.2.3"));
  EXPECT_EQ(info.get_port(), std::optional<unsigned short>(3799));
  EXPECT_EQ(info.get_password(), std::optional<std::string>("pa$$word"));
  EXPECT_EQ(info.get_enabled(), std::optional<bool>(true));
  ClientCoaProxyInfo const disabled =
      ClientCoaProxyInfo::with_data(kClient, kAp, IpAddr{}, 0, "", false);
  // Zero values are still present values.
  EXPECT_EQ(disabled.get_enabled(), std::optional<bool>(false));
  EXPECT_EQ(disabled.get_port(), std::optional<unsigned short>(0));
  EXPECT_EQ(disabled.get_password(), std::optional<std::string>(""));
  EXPECT_EQ(disabled.get_ip(), std::optional<IpAddr>(IpAddr{}));
}

TEST(ClientCoaProxyInfo, PasswordAccessorGivesACopy) {
  ClientCoaProxyInfo info = full();
  std::optional<std::string> password = info.get_password();
  ASSERT_TRUE(password.has_value());
  *password = "changed";
  EXPECT_EQ(info.password, "pa$$word");
  info.password = "new";
  EXPECT_EQ(*password, "changed");
}

TEST(ClientCoaProxyInfo, StateOutsideTheThreeGivesOnlyTheClient) {
  for (std::int32_t const value : {3, -1, 1000}) {
    ClientCoaProxyInfo info = full();
    info.state = static_cast<State>(value);
    EXPECT_EQ(info.get_client_mac(), std::optional<MacAddr>(kClient)) << value;
    EXPECT_FALSE(info.get_ap_mac().has_value()) << value;
    EXPECT_FALSE(info.get_ip().has_value()) << value;
    EXPECT_FALSE(info.get_port().has_value()) << value;
    EXPECT_FALSE(info.get_password().has_value()) << value;
    EXPECT_FALSE(info.get_enabled().has_value()) << value;
  }
}

// ---- Writing ------------------------------------------------------------------------------------

TEST(ClientCoaProxyInfo, NoBindWritesOnlyStateAndClient) {
  EXPECT_EQ(ClientCoaProxyInfo::to_ipc(ClientCoaProxyInfo::no_bind(kClient)),
            R"({"state":"no-bind","client-mac":"00:11:22:33:44:55"})");
}

TEST(ClientCoaProxyInfo, DefaultRecordWritesTheDefaultClientAddress) {
  EXPECT_EQ(ClientCoaProxyInfo::to_ipc(ClientCoaProxyInfo{}),
            R"({"state":"no-bind","client-mac":"00:00:00:00:00:00"})");
}

TEST(ClientCoaProxyInfo, NoConfigAddsOnlyTheAccessPoint) {
  EXPECT_EQ(
      ClientCoaProxyInfo::to_ipc(ClientCoaProxyInfo::no_config(kClient, kAp)),
      R"({"state":"no-config","client-mac":"00:11:22:33:44:55","ap-mac":"aa:bb:cc:dd:ee:ff"})");
}

TEST(ClientCoaProxyInfo, HasDataWritesTheProxyBeforeTheAccessPoint) {
  EXPECT_EQ(ClientCoaProxyInfo::to_ipc(full()), kFull);
  EXPECT_EQ(ClientCoaProxyInfo::to_ipc(
                ClientCoaProxyInfo::with_data(MacAddr{}, MacAddr{}, IpAddr{}, 65535, "", false)),
            R"({"state":"has-data","client-mac":"00:00:00:00:00:00","ip":"0.0.0.0","port":65535,)"
            R"("password":"","enabled":false,"ap-mac":"00:00:00:00:00:00"})");
}

TEST(ClientCoaProxyInfo, FieldsOfOtherStatesAreNotWritten) {
  ClientCoaProxyInfo info = full();
  info.state = State::no_bind;
  EXPECT_EQ(ClientCoaProxyInfo::to_ipc(info),
            R"({"state":"no-bind","client-mac":"00:11:22:33:44:55"})");
  info.state = State::no_config;
  EXPECT_EQ(
      ClientCoaProxyInfo::to_ipc(info),
      R"({"state":"no-config","client-mac":"00:11:22:33:44:55","ap-mac":"aa:bb:cc:dd:ee:ff"})");
}

TEST(ClientCoaProxyInfo, StateOutsideTheThreeIsWrittenAsNoBind) {
  for (std::int32_t const value : {3, -1, 1000}) {
    ClientCoaProxyInfo info = full();
    info.state = static_cast<State>(value);
    EXPECT_EQ(ClientCoaProxyInfo::to_ipc(info),
              R"({"state":"no-bind","client-mac":"00:11:22:33:44:55"})")
        << value;
  }
}

TEST(ClientCoaProxyInfo, PasswordIsWrittenInClearWithJsonEscapes) {
  ClientCoaProxyInfo const info =
      ClientCoaProxyInfo::with_data(kClient, kAp, ip("10.1.2.3"), 1700, "q\"b\\s/\t", false);
  EXPECT_EQ(ClientCoaProxyInfo::to_ipc(info),
            R"({"state":"has-data","client-mac":"00:11:22:33:44:55","ip":"10.1.2.3","port":1700,)"
            R"("password":"q\"b\\s/\t","enabled":false,"ap-mac":"aa:bb:cc:dd:ee:ff"})");
  EXPECT_EQ(ClientCoaProxyInfo::from_ipc(ClientCoaProxyInfo::to_ipc(info)), info);
}

// ---- Reading ------------------------------------------------------------------------------------

TEST(ClientCoaProxyInfo, WithDataComesBackWithAllSevenFields) {
  ClientCoaProxyInfo const info = full();
  ClientCoaProxyInfo const back = ClientCoaProxyInfo::from_ipc(ClientCoaProxyInfo::to_ipc(info));
  EXPECT_EQ(back.state, info.state);
  EXPECT_EQ(back.client_mac, info.client_mac);
  EXPECT_EQ(back.ap_mac, info.ap_mac);
  EXPECT_EQ(back.ip, info.ip);
  EXPECT_EQ(back.port, info.port);
  EXPECT_EQ(back.password, info.password);
  EXPECT_EQ(back.enabled, info.enabled);
  EXPECT_TRUE(back.client_mac.valid);
  EXPECT_TRUE(back.ap_mac.valid);
  EXPECT_TRUE(back.ip.valid);
  EXPECT_EQ(ClientCoaProxyInfo::to_ipc(back), kFull);
}

TEST(ClientCoaProxyInfo, EveryStateReadsBackToTheSameRecordAndText) {
  std::vector<ClientCoaProxyInfo> const records{
      ClientCoaProxyInfo{},
      ClientCoaProxyInfo::no_bind(kClient),
      ClientCoaProxyInfo::no_config(kClient, kAp),
      full(),
      ClientCoaProxyInfo::with_data(kClient, kAp, ip("255.255.255.255"), 65535, "", false),
  };
  for (ClientCoaProxyInfo const& info : records) {
    std::string const text = ClientCoaProxyInfo::to_ipc(info);
    ClientCoaProxyInfo const back = ClientCoaProxyInfo::from_ipc(text);
    EXPECT_EQ(back, info) << text;
    EXPECT_EQ(ClientCoaProxyInfo::to_ipc(back), text);
  }
}

TEST(ClientCoaProxyInfo, UnderscoreStateReadsAsNoBindWithOnlyTheClient) {
  for (char const* const state : {"no_config", "has_data"}) {
    std::string const text = std::string(R"({"state":")") + state +
                             R"(","client-mac":"00:11:22:33:44:55","ip":"10.1.2.3","port":3799,)"
                             R"("password":"secret","enabled":true,"ap-mac":"aa:bb:cc:dd:ee:ff"})";
    ClientCoaProxyInfo const info = ClientCoaProxyInfo::from_ipc(text);
    EXPECT_EQ(info, ClientCoaProxyInfo::no_bind(kClient)) << state;
    EXPECT_TRUE(info.client_mac.valid);
  }
}

TEST(ClientCoaProxyInfo, OnlyTheExactStateTextsAreKnown) {
  for (char const* const state : {"no_bind", "No-Config", "HAS-DATA", "has-data ", " has-data",
                                  "has", "", "2", "has-datax"}) {
    std::string const text =
        std::string(R"({"state":")") + state +
        R"(","client-mac":"00:11:22:33:44:55","ap-mac":"aa:bb:cc:dd:ee:ff","port":1})";
    EXPECT_EQ(ClientCoaProxyInfo::from_ipc(text), ClientCoaProxyInfo::no_bind(kClient)) << state;
  }
}

TEST(ClientCoaProxyInfo, MissingOrNonTextStateReadsAsNoBind) {
  for (std::string const text :
       {R"({"client-mac":"00:11:22:33:44:55","ap-mac":"aa:bb:cc:dd:ee:ff"})",
        R"({"state":2,"client-mac":"00:11:22:33:44:55","ap-mac":"aa:bb:cc:dd:ee:ff"})",
        R"({"state":null,"client-mac":"00:11:22:33:44:55","ap-mac":"aa:bb:cc:dd:ee:ff"})",
        R"({"state":["has-data"],"client-mac":"00:11:22:33:44:55","ap-mac":"aa:bb:cc:dd:ee:ff"})",
        R"({"state":{"has-data":1},"client-mac":"00:11:22:33:44:55"})"}) {
    EXPECT_EQ(ClientCoaProxyInfo::from_ipc(text), ClientCoaProxyInfo::no_bind(kClient)) << text;
  }
}

TEST(ClientCoaProxyInfo, NoConfigIgnoresProxyKeys) {
  ClientCoaProxyInfo const info = ClientCoaProxyInfo::from_ipc(
      R"({"state":"no-config","client-mac":"00:11:22:33:44:55","ip":"10.1.2.3","port":3799,)"
      R"("password":"secret","enabled":true,"ap-mac":"AABBCCDDEEFF"})");
  EXPECT_EQ(info, ClientCoaProxyInfo::no_config(kClient, kAp));
  EXPECT_TRUE(info.ap_mac.valid);
}

TEST(ClientCoaProxyInfo, TextThatIsNotJsonReadsAsTheDefaultRecord) {
  for (std::string const& text : std::vector<std::string>{
           "", " ", "no-bind", "{", R"({"state":"has-data")", R"({"state":"has-data"}x)", "{}{}",
           std::string(100000, '['), std::string(100000, '{')}) {
    expect_default(ClientCoaProxyInfo::from_ipc(text), text.substr(0, 40));
  }
}

TEST(ClientCoaProxyInfo, RootThatIsNotAnObjectReadsAsTheDefaultRecord) {
  for (std::string const text :
       {R"(["has-data","00:11:22:33:44:55"])", R"("has-data")", "7", "true", "null", "{}"}) {
    expect_default(ClientCoaProxyInfo::from_ipc(text), text);
  }
}

TEST(ClientCoaProxyInfo, MissingKeysOfHasDataLeaveDefaults) {
  ClientCoaProxyInfo const info = ClientCoaProxyInfo::from_ipc(R"({"state":"has-data"})");
  ClientCoaProxyInfo expected;
  expected.state = State::has_data;
  EXPECT_EQ(info, expected);
  EXPECT_FALSE(info.client_mac.valid);
  EXPECT_FALSE(info.ap_mac.valid);
  EXPECT_FALSE(info.ip.valid);
  EXPECT_EQ(info.get_port(), std::optional<unsigned short>(0));
  EXPECT_EQ(info.get_password(), std::optional<std::string>(""));
}

TEST(ClientCoaProxyInfo, MalformedAddressesLeaveTheDefaultAddress) {
  ClientCoaProxyInfo const info = ClientCoaProxyInfo::from_ipc(
      R"({"state":"has-data","client-mac":"00-11-22-33-44-55","ip":"10.0.0.256",)"
      R"("ap-mac":"aa:bb:cc:dd:ee:fg","port":1,"password":"p","enabled":true})");
  EXPECT_EQ(info.state, State::has_data);
  EXPECT_EQ(info.client_mac, MacAddr{});
  EXPECT_FALSE(info.client_mac.valid);
  EXPECT_EQ(info.ap_mac, MacAddr{});
  EXPECT_FALSE(info.ap_mac.valid);
  EXPECT_EQ(info.ip, IpAddr{});
  EXPECT_FALSE(info.ip.valid);
  EXPECT_EQ(info.port, 1);
  EXPECT_EQ(info.password, "p");
  EXPECT_TRUE(info.enabled);
  for (char const* const bad_ip : {R"("10-0-0-1")", "10", R"("1.2.3")", R"(["10.0.0.1"])"}) {
    std::string const text = std::string(R"({"state":"has-data","ip":)") + bad_ip + "}";
    EXPECT_FALSE(ClientCoaProxyInfo::from_ipc(text).ip.valid) << text;
  }
}

TEST(ClientCoaProxyInfo, AddressesOfOtherJsonTypesLeaveTheDefaultAddress) {
  for (std::string const value :
       {"5", "null", "true", R"(["00:11:22:33:44:55"])", R"({"a":"00:11:22:33:44:55"})"}) {
    ClientCoaProxyInfo const info =
        ClientCoaProxyInfo::from_ipc(R"({"state":"has-data","client-mac":)" + value +
                                     R"(,"ap-mac":)" + value + R"(,"ip":)" + value + "}");
    EXPECT_EQ(info.state, State::has_data) << value;
    EXPECT_FALSE(info.client_mac.valid) << value;
    EXPECT_EQ(info.client_mac, MacAddr{}) << value;
    EXPECT_FALSE(info.ap_mac.valid) << value;
    EXPECT_FALSE(info.ip.valid) << value;
  }
  // A number is read through its decimal text: twelve decimal digits are twelve hexadecimal ones.
  EXPECT_EQ(ClientCoaProxyInfo::from_ipc(R"({"client-mac":112233445566})").client_mac,
            mac("11:22:33:44:55:66"));
}

TEST(ClientCoaProxyInfo, PortIsReadAsAnUnsigned16BitNumber) {
  auto const port_of = [](std::string const& value) {
    return ClientCoaProxyInfo::from_ipc(R"({"state":"has-data","port":)" + value + "}").port;
  };
  EXPECT_EQ(port_of("0"), 0);
  EXPECT_EQ(port_of("1812"), 1812);
  EXPECT_EQ(port_of("65535"), 65535);
  EXPECT_EQ(port_of(R"("3799")"), 3799);
  // A number that is no unsigned 16-bit value reads as missing.
  for (std::string const bad : {"65536", "65537", "-1", "1.5", "1e2", "true", "null", R"("x")",
                                "[1]", R"({"a":1})", "99999999999999999999999"}) {
    EXPECT_EQ(port_of(bad), 0) << bad;
  }
}

TEST(ClientCoaProxyInfo, EnabledIsReadOnlyFromAJsonBoolean) {
  auto const enabled_of = [](std::string const& value) {
    return ClientCoaProxyInfo::from_ipc(R"({"state":"has-data","enabled":)" + value + "}").enabled;
  };
  EXPECT_TRUE(enabled_of("true"));
  for (std::string const other : {"false", R"("true")", "1", "null", "[true]"}) {
    EXPECT_FALSE(enabled_of(other)) << other;
  }
}

TEST(ClientCoaProxyInfo, PasswordIsTakenAsText) {
  auto const password_of = [](std::string const& value) {
    return ClientCoaProxyInfo::from_ipc(R"({"state":"has-data","password":)" + value + "}")
        .password;
  };
  EXPECT_EQ(password_of(R"("s e c r e t")"), "s e c r e t");
  EXPECT_EQ(password_of(R"("\u00e9\n")"), "\xc3\xa9\n");
  for (std::string const other : {"null", "[\"x\"]", R"({"a":"b"})"}) {
    EXPECT_EQ(password_of(other), "") << other;
  }
}

TEST(ClientCoaProxyInfo, OtherMembersAreIgnoredAndKeyOrderDoesNotMatter) {
  ClientCoaProxyInfo const info = ClientCoaProxyInfo::from_ipc(
      R"({"ap-mac":"aa:bb:cc:dd:ee:ff","enabled":true,"x":{"y":[1]},"password":"pa$$word",)"
      R"("port":3799,"ip":"10.1.2.3","client-mac":"00:11:22:33:44:55","state":"has-data"})");
  EXPECT_EQ(info, full());
}
