#include <wlccw/ipc/IpcMsgVelmoraRequest.hpp>

#include <wlccw/cfg/owned.hpp>

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace {

// The compact text of the request's tree, read through the owner that releases it.
std::string json_text(IpcMsgVelmoraRequest const& request) {
  wlccw::cfg::Tree const tree(request.get_json());
  EXPECT_TRUE(tree);
  return wlccw::cfg::compact(tree.get());
}

// A request holding only the given parameters text.
IpcMsgVelmoraRequest with_params(std::string params) {
  IpcMsgVelmoraRequest request;
  request.params = std::move(params);
  return request;
}

// Texts that are not one whole JSON text.
std::vector<std::string> const not_json = {"",
                                           "garbage",
                                           "{",
                                           "{\"type\":\"get_ap_info\"",
                                           "{\"type\":\"get_ap_info\"}x",
                                           "{'a':1}",
                                           "[1,]",
                                           "nul",
                                           std::string(600, '[') + std::string(600, ']'),
                                           "{\"a\":1}{}"};

// Requests whose parameters the accessors cannot read: none, or text that is not JSON.
std::vector<std::string> const unreadable_params = {"", "garbage", "{\"mac\":", "{\"a\":1}x"};

} // namespace

// ---- The value type -----------------------------------------------------------------------------

TEST(IpcMsgVelmoraRequest, DefaultIsGetCommonWithNoParameters) {
  static_assert(std::is_same_v<decltype(IpcMsgVelmoraRequest::type), VelmoraMsgType>);
  static_assert(std::is_same_v<decltype(IpcMsgVelmoraRequest::params), std::string>);
  static_assert(std::is_copy_constructible_v<IpcMsgVelmoraRequest>);
  static_assert(std::is_nothrow_move_constructible_v<IpcMsgVelmoraRequest>);
  IpcMsgVelmoraRequest const request;
  EXPECT_EQ(request.type, VelmoraMsgType::GET_COMMON);
  EXPECT_EQ(request.params, "");
}

TEST(IpcMsgVelmoraRequest, EqualityComparesTypeAndParams) {
  IpcMsgVelmoraRequest a = with_params("{\"days\":1}");
  IpcMsgVelmoraRequest b = a;
  EXPECT_EQ(a, b);
  b.type = VelmoraMsgType::GET_REPORTS;
  EXPECT_NE(a, b);
  b = a;
  b.params = "{\"days\":2}";
  EXPECT_NE(a, b);
}

// ---- Exact IPC text -----------------------------------------------------------------------------

TEST(IpcMsgVelmoraRequest, PopulatedRequestReadsAndWritesTheExactText) {
  std::string const text = "{\"type\":\"get_ap_info\",\"params\":{\"mac\":\"00:11:22:33:44:55\","
                           "\"band\":\"5g\",\"days\":7,\"location\":\"Floor 2\"}}";
  IpcMsgVelmoraRequest const request(text);
  EXPECT_EQ(request.type, VelmoraMsgType::GET_AP_INFO);
  EXPECT_EQ(request.params,
            "{\"mac\":\"00:11:22:33:44:55\",\"band\":\"5g\",\"days\":7,\"location\":\"Floor 2\"}");
  EXPECT_EQ(request.to_str(), text);
  EXPECT_EQ(json_text(request), text);

  IpcMsgVelmoraRequest const again(request.to_str());
  EXPECT_EQ(again, request);
  EXPECT_EQ(again.to_str(), text);
}

TEST(IpcMsgVelmoraRequest, EmptyRequestWritesGetCommonAndAnEmptyParamsObject) {
  IpcMsgVelmoraRequest const request;
  EXPECT_EQ(request.to_str(), "{\"type\":\"get_common\",\"params\":{}}");
  IpcMsgVelmoraRequest const again(request.to_str());
  EXPECT_EQ(again.type, VelmoraMsgType::GET_COMMON);
  EXPECT_EQ(again.params, "{}");
  EXPECT_EQ(again.to_str(), request.to_str());
}

TEST(IpcMsgVelmoraRequest, ParamsAreKeptAsCompactTextWhateverTheirNesting) {
  IpcMsgVelmoraRequest const request(
      "{ \"params\" : { \"list\" : [ 1 , 2 , { \"b\" : null } ], \"x\" : { } } ,"
      " \"type\" : \"get_sessions\" }");
  EXPECT_EQ(request.type, VelmoraMsgType::GET_SESSIONS);
  EXPECT_EQ(request.params, "{\"list\":[1,2,{\"b\":null}],\"x\":{}}");
  // Written in the fixed order: "type" first.
  EXPECT_EQ(request.to_str(),
            "{\"type\":\"get_sessions\",\"params\":{\"list\":[1,2,{\"b\":null}],\"x\":{}}}");
}

TEST(IpcMsgVelmoraRequest, EveryOperationWordIsReadAndWrittenBack) {
  std::vector<std::pair<char const*, VelmoraMsgType>> const words = {
      {"get_common", VelmoraMsgType::GET_COMMON},
      {"get_sessions", VelmoraMsgType::GET_SESSIONS},
      {"rem_sessions", VelmoraMsgType::REM_SESSIONS},
      {"get_rrm_group_stat", VelmoraMsgType::GET_RRM_GROUP_STAT},
      {"get_roaming_stat", VelmoraMsgType::GET_ROAMING_STAT},
      {"get_ap_info", VelmoraMsgType::GET_AP_INFO},
      {"start_optimization", VelmoraMsgType::START_OPTIMIZATION},
      {"get_reports", VelmoraMsgType::GET_REPORTS},
  };
  for (auto const& [word, value] : words) {
    std::string const text = std::string("{\"type\":\"") + word + "\",\"params\":{}}";
    IpcMsgVelmoraRequest const request(text);
    EXPECT_EQ(request.type, value) << word;
    EXPECT_EQ(request.to_str(), text);
  }
}

// ---- Reading: fallbacks -------------------------------------------------------------------------

TEST(IpcMsgVelmoraRequest, ReportsWithoutParamsGetAnEmptyParamsObject) {
  IpcMsgVelmoraRequest const request("{\"type\":\"get_reports\"}");
  EXPECT_EQ(static_cast<int>(request.type), 7);
  EXPECT_EQ(request.params, "{}");
  EXPECT_EQ(request.to_str(), "{\"type\":\"get_reports\",\"params\":{}}");
}

TEST(IpcMsgVelmoraRequest, TextThatIsNotJsonLeavesGetCommonAndEmptyParams) {
  for (std::string const& text : not_json) {
    IpcMsgVelmoraRequest const request(text);
    EXPECT_EQ(static_cast<int>(request.type), 0) << text;
    EXPECT_EQ(request.params, "") << text; // not "{}": nothing was read
    EXPECT_EQ(request.to_str(), "{\"type\":\"get_common\",\"params\":{}}") << text;
  }
}

TEST(IpcMsgVelmoraRequest, ViewIsReadOnlyUpToItsLength) {
  std::string const buffer = "{\"type\":\"get_reports\"}trailing garbage";
  IpcMsgVelmoraRequest const request(std::string_view(buffer).substr(0, 22));
  EXPECT_EQ(request.type, VelmoraMsgType::GET_REPORTS);
  EXPECT_EQ(request.params, "{}");
}

TEST(IpcMsgVelmoraRequest, UnknownMissingOrMistypedTypeReadsAsUnknownAndIsWrittenSo) {
  for (std::string const& text :
       {std::string("{\"type\":\"get_everything\",\"params\":{}}"),
        std::string("{\"type\":\"GET_COMMON\",\"params\":{}}"),
        std::string("{\"type\":\"get_common \",\"params\":{}}"),
        std::string("{\"type\":\"\",\"params\":{}}"), std::string("{\"type\":\"UNKNOWN\"}"),
        std::string("{\"params\":{}}"), std::string("{}"), std::string("{\"type\":0}"),
        std::string("{\"type\":7}"), std::string("{\"type\":true}"), std::string("{\"type\":null}"),
        std::string("{\"type\":{\"get_common\":1}}"), std::string("{\"type\":[\"get_common\"]}")}) {
    IpcMsgVelmoraRequest const request(text);
    EXPECT_EQ(request.type, VelmoraMsgType::UNKNOWN) << text;
    EXPECT_EQ(request.params, "{}") << text;
    EXPECT_EQ(request.to_str(), "{\"type\":\"UNKNOWN\",\"params\":{}}") << text;
  }
}

TEST(IpcMsgVelmoraRequest, TypeWordIsReadUpToItsFirstNul) {
  // As every converter of operation words reads them.
  IpcMsgVelmoraRequest const request("{\"type\":\"get_reports\\u0000junk\"}");
  EXPECT_EQ(request.type, VelmoraMsgType::GET_REPORTS);
}

TEST(IpcMsgVelmoraRequest, RootsThatAreNotObjectsReadAsUnknownWithEmptyParams) {
  for (char const* text : {"[]", "[{\"type\":\"get_reports\"}]", "5", "\"get_reports\"", "true",
                           "null", "-1e999999", "123456789012345678901234567890"}) {
    IpcMsgVelmoraRequest const request(text);
    EXPECT_EQ(request.type, VelmoraMsgType::UNKNOWN) << text;
    EXPECT_EQ(request.params, "{}") << text;
  }
}

TEST(IpcMsgVelmoraRequest, ParamsThatAreNotAnObjectAreKeptAsTheirCompactText) {
  // The member is carried as it stands, whatever kind of JSON it is; only its absence gives "{}".
  for (char const* params : {"[]", "[{\"mac\":\"00:11:22:33:44:55\"}]", "\"text\"", "\"{}\"", "5",
                             "-1", "true", "null"}) {
    std::string const text = std::string("{\"type\":\"get_ap_info\",\"params\":") + params + "}";
    IpcMsgVelmoraRequest const request(text);
    EXPECT_EQ(request.type, VelmoraMsgType::GET_AP_INFO) << text;
    EXPECT_EQ(request.params, params) << text;
    EXPECT_EQ(request.to_str(), text) << text;
  }
  IpcMsgVelmoraRequest const spaced("{\"type\":\"get_ap_info\",\"params\": [ 1 , 2 ] }");
  EXPECT_EQ(spaced.params, "[1,2]");
}

TEST(IpcMsgVelmoraRequest, AccessorsOfParamsThatAreNotAnObjectFindNothing) {
  IpcMsgVelmoraRequest const request("{\"type\":\"get_ap_info\",\"params\":[{\"days\":3}]}");
  bool valid = true;
  EXPECT_EQ(request.get_mac(valid), std::nullopt);
  EXPECT_EQ(request.get_days(), std::nullopt);
  EXPECT_EQ(request.get_location(), std::nullopt);
}

// ---- Writing: params set by hand ----------------------------------------------------------------

TEST(IpcMsgVelmoraRequest, ParamsThatDoNotParseAreLeftOutOfTheText) {
  for (char const* params : {"garbage", "{", "{\"a\":1}x", "{'a':1}"}) {
    IpcMsgVelmoraRequest request = with_params(params);
    request.type = VelmoraMsgType::REM_SESSIONS;
    EXPECT_EQ(request.to_str(), "{\"type\":\"rem_sessions\"}") << params;
    EXPECT_EQ(json_text(request), "{\"type\":\"rem_sessions\"}") << params;
  }
}

TEST(IpcMsgVelmoraRequest, ParamsAreWrittenAsTheirParse) {
  EXPECT_EQ(with_params("{ \"days\" : 3 }").to_str(),
            "{\"type\":\"get_common\",\"params\":{\"days\":3}}");
  // The writer does not judge the kind of JSON it is given.
  EXPECT_EQ(with_params("[1, 2]").to_str(), "{\"type\":\"get_common\",\"params\":[1,2]}");
}

TEST(IpcMsgVelmoraRequest, ValuesPastUnknownAreWrittenAsUnknown) {
  IpcMsgVelmoraRequest request;
  request.type = static_cast<VelmoraMsgType>(42);
  EXPECT_EQ(request.to_str(), "{\"type\":\"UNKNOWN\",\"params\":{}}");
  request.type = static_cast<VelmoraMsgType>(-1);
  EXPECT_EQ(request.to_str(), "{\"type\":\"UNKNOWN\",\"params\":{}}");
}

// ---- get_mac ------------------------------------------------------------------------------------

TEST(IpcMsgVelmoraRequest, GetMacReturnsAValidAddress) {
  for (char const* mac : {"00:11:22:33:44:5A", "00:11:22:33:44:5a", "00112233445a"}) {
    IpcMsgVelmoraRequest const request = with_params(std::string("{\"mac\":\"") + mac + "\"}");
    bool valid = false;
    std::optional<MacAddr> const result = request.get_mac(valid);
    EXPECT_TRUE(valid) << mac;
    ASSERT_TRUE(result.has_value()) << mac;
    EXPECT_EQ(result->str(), "00:11:22:33:44:5a");
    EXPECT_TRUE(result->valid);
  }
}

TEST(IpcMsgVelmoraRequest, GetMacOfSomethingThatIsNoAddressSetsValidFalse) {
  for (char const* params :
       {"{\"mac\":\"not a mac\"}", "{\"mac\":\"00-11-22-33-44-55\"}",
        "{\"mac\":\"00:11:22:33:44:5g\"}", "{\"mac\":\"\"}", "{}", "{\"mac\":5}",
        "{\"mac\":{\"a\":1}}", "{\"mac\":[\"00:11:22:33:44:55\"]}", "{\"mac\":null}", "[]"}) {
    IpcMsgVelmoraRequest const request = with_params(params);
    bool valid = true;
    EXPECT_FALSE(request.get_mac(valid).has_value()) << params;
    EXPECT_FALSE(valid) << params;
  }
}

TEST(IpcMsgVelmoraRequest, GetMacWithoutReadableParamsLeavesValidUntouched) {
  for (std::string const& params : unreadable_params) {
    IpcMsgVelmoraRequest const request = with_params(params);
    for (bool const before : {false, true}) {
      bool valid = before;
      EXPECT_FALSE(request.get_mac(valid).has_value()) << params;
      EXPECT_EQ(valid, before) << params;
    }
  }
}

// ---- get_band -----------------------------------------------------------------------------------

TEST(IpcMsgVelmoraRequest, GetBandReturnsTheTextOfARecognisedBand) {
  for (char const* band : {"2g", "5g", "6g"}) {
    IpcMsgVelmoraRequest const request = with_params(std::string("{\"band\":\"") + band + "\"}");
    bool valid = false;
    std::optional<std::string> const result = request.get_band(valid);
    EXPECT_TRUE(valid) << band;
    EXPECT_EQ(result, std::optional<std::string>(band));
  }
}

TEST(IpcMsgVelmoraRequest, GetBandOfAnUnknownWordSetsValidFalse) {
  for (char const* params :
       {"{\"band\":\"5G\"}", "{\"band\":\"2G\"}", "{\"band\":\"UNKNOWN\"}", "{\"band\":\" 5g\"}",
        "{\"band\":\"5g \"}", "{\"band\":\"5ghz\"}", "{\"band\":5}", "{\"band\":true}"}) {
    IpcMsgVelmoraRequest const request = with_params(params);
    bool valid = true;
    EXPECT_FALSE(request.get_band(valid).has_value()) << params;
    EXPECT_FALSE(valid) << params;
  }
}

TEST(IpcMsgVelmoraRequest, GetBandWithoutABandLeavesValidUntouched) {
  std::vector<std::string> cases = unreadable_params;
  for (char const* params : {"{}", "{\"band\":\"\"}", "{\"band\":null}", "{\"band\":{}}",
                             "{\"band\":[\"5g\"]}", "[]", "{\"BAND\":\"5g\"}"}) {
    cases.emplace_back(params);
  }
  for (std::string const& params : cases) {
    IpcMsgVelmoraRequest const request = with_params(params);
    for (bool const before : {false, true}) {
      bool valid = before;
      EXPECT_FALSE(request.get_band(valid).has_value()) << params;
      EXPECT_EQ(valid, before) << params;
    }
  }
}

// ---- get_days -----------------------------------------------------------------------------------

TEST(IpcMsgVelmoraRequest, GetDaysReadsAnUnsignedNumber) {
  EXPECT_EQ(with_params("{\"days\":7}").get_days(), std::optional<unsigned int>(7));
  EXPECT_EQ(with_params("{\"days\":0}").get_days(), std::optional<unsigned int>(0));
  EXPECT_EQ(with_params("{\"days\":4294967295}").get_days(),
            std::optional<unsigned int>(4294967295U));
  // Integers may travel as decimal strings.
  EXPECT_EQ(with_params("{\"days\":\"30\"}").get_days(), std::optional<unsigned int>(30));
}

TEST(IpcMsgVelmoraRequest, GetDaysIsEmptyForAnythingElse) {
  std::vector<std::string> cases = unreadable_params;
  for (char const* params :
       {"{}", "{\"days\":-1}", "{\"days\":4294967296}", "{\"days\":99999999999999999999999}",
        "{\"days\":1.5}", "{\"days\":\"7 days\"}", "{\"days\":\"\"}", "{\"days\":true}",
        "{\"days\":null}", "{\"days\":{}}", "{\"days\":[7]}", "[7]"}) {
    cases.emplace_back(params);
  }
  for (std::string const& params : cases) {
    EXPECT_FALSE(with_params(params).get_days().has_value()) << params;
  }
}

// ---- get_location -------------------------------------------------------------------------------

TEST(IpcMsgVelmoraRequest, GetLocationReturnsANonEmptyText) {
  EXPECT_EQ(with_params("{\"location\":\"Building 1/Floor 2\"}").get_location(),
            std::optional<std::string>("Building 1/Floor 2"));
  EXPECT_EQ(with_params("{\"location\":\"\\u00e9tage \\\"A\\\"\"}").get_location(),
            std::optional<std::string>("\xc3\xa9tage \"A\""));
}

TEST(IpcMsgVelmoraRequest, GetLocationIsEmptyForAnEmptyOrMissingText) {
  std::vector<std::string> cases = unreadable_params;
  for (char const* params : {"{}", "{\"location\":\"\"}", "{\"location\":null}",
                             "{\"location\":{\"a\":\"b\"}}", "{\"location\":[\"x\"]}", "[\"x\"]"}) {
    cases.emplace_back(params);
  }
  for (std::string const& params : cases) {
    EXPECT_FALSE(with_params(params).get_location().has_value()) << params;
  }
}

TEST(IpcMsgVelmoraRequest, AccessorsReadTheParamsOfAParsedRequest) {
  IpcMsgVelmoraRequest const request(
      "{\"type\":\"start_optimization\",\"params\":{\"mac\":\"AABBCCDDEEFF\",\"band\":\"6g\","
      "\"days\":\"2\",\"location\":\"Lab\"}}");
  bool mac_valid = false;
  bool band_valid = false;
  EXPECT_EQ(request.get_mac(mac_valid), std::optional<MacAddr>(MacAddr::from_str("aabbccddeeff")));
  EXPECT_TRUE(mac_valid);
  EXPECT_EQ(request.get_band(band_valid), std::optional<std::string>("6g"));
  EXPECT_TRUE(band_valid);
  EXPECT_EQ(request.get_days(), std::optional<unsigned int>(2));
  EXPECT_EQ(request.get_location(), std::optional<std::string>("Lab"));
}
