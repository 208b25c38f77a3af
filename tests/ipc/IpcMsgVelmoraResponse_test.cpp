#include <wlccw/ipc/IpcMsgVelmoraResponse.hpp>

#include <wlccw/cfg/owned.hpp>

#include <gtest/gtest.h>

#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace {

// The compact text of the response's tree, read through the owner that releases it.
std::string json_text(IpcMsgVelmoraResponse const& response) {
  wlccw::cfg::Tree const tree(response.get_json());
  EXPECT_TRUE(tree);
  return wlccw::cfg::compact(tree.get());
}

std::string const empty_text = "{\"type\":\"get_common\",\"status\":\"success\",\"data\":{}}";

} // namespace

// ---- The value type -----------------------------------------------------------------------------

TEST(IpcMsgVelmoraResponse, DefaultIsASuccessfulGetCommonWithNothingElse) {
  static_assert(std::is_same_v<decltype(IpcMsgVelmoraResponse::type), VelmoraMsgType>);
  static_assert(std::is_same_v<decltype(IpcMsgVelmoraResponse::status), VelmoraRespStatus>);
  static_assert(std::is_same_v<decltype(IpcMsgVelmoraResponse::cause), std::string>);
  static_assert(std::is_same_v<decltype(IpcMsgVelmoraResponse::data), std::string>);
  static_assert(std::is_nothrow_move_constructible_v<IpcMsgVelmoraResponse>);
  IpcMsgVelmoraResponse const response;
  EXPECT_EQ(response.type, VelmoraMsgType::GET_COMMON);
  EXPECT_EQ(response.status, VelmoraRespStatus::SUCCESS);
  EXPECT_EQ(response.cause, "");
  EXPECT_EQ(response.data, "");
}

TEST(IpcMsgVelmoraResponse, EqualityComparesEveryField) {
  IpcMsgVelmoraResponse a;
  a.cause = "c";
  a.data = "{}";
  IpcMsgVelmoraResponse b = a;
  EXPECT_EQ(a, b);
  b.type = VelmoraMsgType::GET_AP_INFO;
  EXPECT_NE(a, b);
  b = a;
  b.status = VelmoraRespStatus::FAILURE;
  EXPECT_NE(a, b);
  b = a;
  b.cause = "d";
  EXPECT_NE(a, b);
  b = a;
  b.data = "{\"a\":1}";
  EXPECT_NE(a, b);
}

// ---- Exact IPC text -----------------------------------------------------------------------------

TEST(IpcMsgVelmoraResponse, PopulatedResponseReadsAndWritesTheExactText) {
  std::string const text =
      "{\"type\":\"start_optimization\",\"status\":\"failure\",\"cause\":\"no APs in group\","
      "\"data\":{\"groups\":[{\"id\":1,\"aps\":[]}],\"done\":false}}";
  IpcMsgVelmoraResponse const response(text);
  EXPECT_EQ(response.type, VelmoraMsgType::START_OPTIMIZATION);
  EXPECT_EQ(response.status, VelmoraRespStatus::FAILURE);
  EXPECT_EQ(response.cause, "no APs in group");
  EXPECT_EQ(response.data, "{\"groups\":[{\"id\":1,\"aps\":[]}],\"done\":false}");
  EXPECT_EQ(response.to_str(), text);
  EXPECT_EQ(json_text(response), text);

  IpcMsgVelmoraResponse const again(response.to_str());
  EXPECT_EQ(again, response);
  EXPECT_EQ(again.to_str(), text);
}

TEST(IpcMsgVelmoraResponse, EmptyResponseWritesTypeStatusAndAnEmptyDataObject) {
  IpcMsgVelmoraResponse const response;
  EXPECT_EQ(response.to_str(), empty_text);
  IpcMsgVelmoraResponse const again(response.to_str());
  EXPECT_EQ(again.data, "{}");
  EXPECT_EQ(again.to_str(), empty_text);
}

TEST(IpcMsgVelmoraResponse, KeysAreWrittenInTheirFixedOrderWhateverTheInputOrder) {
  IpcMsgVelmoraResponse const response(
      "{ \"data\" : { \"n\" : 1 }, \"cause\" : \"x\", \"status\" : \"success\","
      " \"type\" : \"get_reports\" }");
  EXPECT_EQ(response.data, "{\"n\":1}");
  EXPECT_EQ(response.to_str(), "{\"type\":\"get_reports\",\"status\":\"success\",\"cause\":\"x\","
                               "\"data\":{\"n\":1}}");
}

TEST(IpcMsgVelmoraResponse, CauseTextIsEscapedAndReadBack) {
  IpcMsgVelmoraResponse response;
  response.status = VelmoraRespStatus::FAILURE;
  response.cause = "quote \" backslash \\ newline \n";
  std::string const text = response.to_str();
  EXPECT_EQ(text, "{\"type\":\"get_common\",\"status\":\"failure\","
                  "\"cause\":\"quote \\\" backslash \\\\ newline \\n\",\"data\":{}}");
  EXPECT_EQ(IpcMsgVelmoraResponse(text).cause, response.cause);
}

// ---- Status and type words ----------------------------------------------------------------------

TEST(IpcMsgVelmoraResponse, StatusWordsAreRead) {
  EXPECT_EQ(IpcMsgVelmoraResponse("{\"status\":\"success\"}").status, VelmoraRespStatus::SUCCESS);
  EXPECT_EQ(IpcMsgVelmoraResponse("{\"status\":\"failure\"}").status, VelmoraRespStatus::FAILURE);
}

TEST(IpcMsgVelmoraResponse, AnyOtherStatusIsReadAsUnknownAndWrittenSo) {
  for (char const* status : {"\"error\"", "\"Success\"", "\"FAILURE\"", "\"success \"", "\"\"",
                             "\"UNKNOWN\"", "0", "1", "true", "null", "{}", "[\"success\"]"}) {
    std::string const text =
        std::string("{\"type\":\"get_ap_info\",\"status\":") + status + ",\"data\":{}}";
    IpcMsgVelmoraResponse const response(text);
    EXPECT_EQ(response.status, VelmoraRespStatus::UNKNOWN) << text;
    EXPECT_EQ(response.to_str(), "{\"type\":\"get_ap_info\",\"status\":\"UNKNOWN\",\"data\":{}}")
        << text;
  }
}

TEST(IpcMsgVelmoraResponse, MissingStatusOrTypeReadsAsUnknown) {
  IpcMsgVelmoraResponse const no_status("{\"type\":\"get_sessions\"}");
  EXPECT_EQ(no_status.type, VelmoraMsgType::GET_SESSIONS);
  EXPECT_EQ(no_status.status, VelmoraRespStatus::UNKNOWN);
  IpcMsgVelmoraResponse const no_type("{\"status\":\"failure\"}");
  EXPECT_EQ(no_type.type, VelmoraMsgType::UNKNOWN);
  EXPECT_EQ(no_type.status, VelmoraRespStatus::FAILURE);
  IpcMsgVelmoraResponse const neither("{}");
  EXPECT_EQ(neither.to_str(), "{\"type\":\"UNKNOWN\",\"status\":\"UNKNOWN\",\"data\":{}}");
}

TEST(IpcMsgVelmoraResponse, EveryOperationWordIsReadAndWrittenBack) {
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
    std::string const text =
        std::string("{\"type\":\"") + word + "\",\"status\":\"success\",\"data\":{}}";
    IpcMsgVelmoraResponse const response(text);
    EXPECT_EQ(response.type, value) << word;
    EXPECT_EQ(response.to_str(), text);
  }
  IpcMsgVelmoraResponse const unknown("{\"type\":\"get_all\",\"status\":\"success\"}");
  EXPECT_EQ(unknown.type, VelmoraMsgType::UNKNOWN);
  EXPECT_EQ(unknown.to_str(), "{\"type\":\"UNKNOWN\",\"status\":\"success\",\"data\":{}}");
}

TEST(IpcMsgVelmoraResponse, ValuesPastUnknownAreWrittenAsUnknown) {
  IpcMsgVelmoraResponse response;
  response.type = static_cast<VelmoraMsgType>(9);
  response.status = static_cast<VelmoraRespStatus>(-5);
  EXPECT_EQ(response.to_str(), "{\"type\":\"UNKNOWN\",\"status\":\"UNKNOWN\",\"data\":{}}");
}

// ---- Cause --------------------------------------------------------------------------------------

TEST(IpcMsgVelmoraResponse, EmptyOrMissingCauseWritesNoCauseKey) {
  IpcMsgVelmoraResponse const empty_cause(
      "{\"type\":\"get_common\",\"status\":\"failure\",\"cause\":\"\",\"data\":{}}");
  EXPECT_EQ(empty_cause.cause, "");
  EXPECT_EQ(empty_cause.to_str(), "{\"type\":\"get_common\",\"status\":\"failure\",\"data\":{}}");
  IpcMsgVelmoraResponse const missing("{\"type\":\"get_common\",\"status\":\"failure\"}");
  EXPECT_EQ(missing.cause, "");
  EXPECT_EQ(missing.to_str(), "{\"type\":\"get_common\",\"status\":\"failure\",\"data\":{}}");
}

TEST(IpcMsgVelmoraResponse, CauseThatIsNoTextReadsAsEmpty) {
  for (char const* cause : {"null", "{\"a\":\"b\"}", "[\"x\"]"}) {
    std::string const text = std::string("{\"status\":\"failure\",\"cause\":") + cause + "}";
    EXPECT_EQ(IpcMsgVelmoraResponse(text).cause, "") << text;
  }
}

// ---- Data ---------------------------------------------------------------------------------------

TEST(IpcMsgVelmoraResponse, MissingDataReadsAsAnEmptyObject) {
  IpcMsgVelmoraResponse const response("{\"type\":\"get_common\",\"status\":\"success\"}");
  EXPECT_EQ(response.data, "{}");
  EXPECT_EQ(response.to_str(), empty_text);
}

TEST(IpcMsgVelmoraResponse, DataThatIsNotAnObjectIsKeptAsItsCompactText) {
  // The member is carried as it stands, whatever kind of JSON it is.
  for (char const* data : {"[]", "[{\"a\":1}]", "\"{}\"", "5", "true", "null"}) {
    std::string const text =
        std::string("{\"type\":\"get_common\",\"status\":\"success\",\"data\":") + data + "}";
    IpcMsgVelmoraResponse const response(text);
    EXPECT_EQ(response.data, data) << text;
    EXPECT_EQ(response.to_str(), text) << text;
  }
}

TEST(IpcMsgVelmoraResponse, DataThatDoesNotParseIsLeftOutOfTheText) {
  for (char const* data : {"garbage", "{", "{\"a\":1}x"}) {
    IpcMsgVelmoraResponse response;
    response.data = data;
    EXPECT_EQ(response.to_str(), "{\"type\":\"get_common\",\"status\":\"success\"}") << data;
    EXPECT_EQ(json_text(response), "{\"type\":\"get_common\",\"status\":\"success\"}") << data;
  }
}

TEST(IpcMsgVelmoraResponse, DataIsWrittenAsItsParse) {
  IpcMsgVelmoraResponse response;
  response.data = "{ \"list\" : [ 1 , 2 ] }";
  EXPECT_EQ(response.to_str(),
            "{\"type\":\"get_common\",\"status\":\"success\",\"data\":{\"list\":[1,2]}}");
}

// ---- Hostile input ------------------------------------------------------------------------------

TEST(IpcMsgVelmoraResponse, TextThatIsNotJsonLeavesTheDefaults) {
  for (std::string const& text :
       {std::string(""), std::string("garbage"), std::string("{"),
        std::string("{\"status\":\"failure\""), std::string("{\"status\":\"failure\"}{}"),
        std::string("{\"status\":failure}"), std::string(600, '{')}) {
    IpcMsgVelmoraResponse const response(text);
    EXPECT_EQ(response.type, VelmoraMsgType::GET_COMMON) << text;
    EXPECT_EQ(response.status, VelmoraRespStatus::SUCCESS) << text;
    EXPECT_EQ(response.cause, "") << text;
    EXPECT_EQ(response.data, "") << text;
    EXPECT_EQ(response.to_str(), empty_text) << text;
  }
}

TEST(IpcMsgVelmoraResponse, RootsThatAreNotObjectsReadAsUnknownWithEmptyData) {
  for (char const* text : {"[]", "[{\"status\":\"failure\"}]", "0", "\"failure\"", "false", "null",
                           "98765432109876543210987654321"}) {
    IpcMsgVelmoraResponse const response(text);
    EXPECT_EQ(response.type, VelmoraMsgType::UNKNOWN) << text;
    EXPECT_EQ(response.status, VelmoraRespStatus::UNKNOWN) << text;
    EXPECT_EQ(response.cause, "") << text;
    EXPECT_EQ(response.data, "{}") << text;
  }
}
