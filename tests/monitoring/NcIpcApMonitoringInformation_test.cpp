// The device information of an AP: reading the NETCONF reply, the IPC tree and the IPC text, the
// exact IPC text with its key order, the hash over it, the power-supply texts, and the fallbacks
// for replies that failed, lack their data or are not what they should be.
#include <wlccw/cfg/owned.hpp>
#include <wlccw/monitoring/NcIpcApMonitoringInformation.hpp>

#include "support/samples.hpp"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace {

using wlccw::cfg::parse;
using wlccw::cfg::Tree;
using wlccw::test::read_sample;

/// The IPC text of a record whose error is true, and of every failed reading.
constexpr char const* error_text = R"({"error":true})";

/// The IPC text of the information in monitoring/reply-full.json: the reply's keys in the writer's
/// order (the reboot reason before the hardware revision), texts as the AP sent them, "PoE+" kept,
/// "is-default-config" false.
constexpr char const* full_text =
    R"({"error":false,"uptime":"12 days, 03:41:17","hostname":"ap-lobby-3F-east",)"
    R"("secondary-software-version":"4.12.3-rc2","boot-version":"2.1.7",)"
    R"("hw-platform":"WAP-6E-4x4","factory-serial-number":"WX2351A00417",)"
    R"("last-reboot-reason":"firmware upgrade","hw-revision":"B2","power-supply":"PoE+",)"
    R"("is-default-config":false})";

/// A NETCONF reply with "error" false whose information object has the given members.
std::string reply_with(std::string const& members) {
  return R"({"error":false,"rpc-reply":{"data":{"monitoring":{"information":{)" + members + "}}}}}";
}

/// A record with every field set by hand.
NcIpcApMonitoringInformation sample_record() {
  NcIpcApMonitoringInformation record;
  record.error = false;
  record.uptime = "3 days, 01:02:03";
  record.hostname = "ap-1";
  record.secondary_software_version = "1.0.1";
  record.boot_version = "0.9";
  record.hw_platform = "P-2";
  record.factory_serial_number = "SN1";
  record.hw_revision = "A1";
  record.power_supply = PowerSupply::POE_PLUS_PLUS;
  record.last_reboot_reason = "power loss";
  record.is_default_config = true;
  return record;
}

/// The IPC text of sample_record(), written out by hand in the writer's order.
constexpr char const* sample_record_text =
    R"({"error":false,"uptime":"3 days, 01:02:03","hostname":"ap-1",)"
    R"("secondary-software-version":"1.0.1","boot-version":"0.9","hw-platform":"P-2",)"
    R"("factory-serial-number":"SN1","last-reboot-reason":"power loss","hw-revision":"A1",)"
    R"("power-supply":"PoE++","is-default-config":true})";

NcIpcApMonitoringInformation from_json_text(std::string const& json) {
  Tree const root = parse(json);
  EXPECT_TRUE(root) << json;
  return NcIpcApMonitoringInformation::from_json(root.get());
}

std::string json_of(NcIpcApMonitoringInformation const& record) {
  Tree const tree(record.get_json());
  EXPECT_TRUE(tree);
  return wlccw::cfg::compact(tree.get());
}

void expect_default(NcIpcApMonitoringInformation const& record) {
  EXPECT_EQ(record, NcIpcApMonitoringInformation());
  EXPECT_TRUE(record.error);
  EXPECT_EQ(record.to_str(), error_text);
}

// ---- the default record ------------------------------------------------------------------------

TEST(NcIpcApMonitoringInformation, DefaultRecordIsAnErrorWithEmptyFields) {
  NcIpcApMonitoringInformation const record;
  EXPECT_TRUE(record.error);
  EXPECT_EQ(record.uptime, "");
  EXPECT_EQ(record.hostname, "");
  EXPECT_EQ(record.secondary_software_version, "");
  EXPECT_EQ(record.boot_version, "");
  EXPECT_EQ(record.hw_platform, "");
  EXPECT_EQ(record.factory_serial_number, "");
  EXPECT_EQ(record.hw_revision, "");
  EXPECT_EQ(record.power_supply, PowerSupply::UNKNOWN);
  EXPECT_EQ(static_cast<int>(record.power_supply), 3);
  EXPECT_EQ(record.last_reboot_reason, "");
  EXPECT_FALSE(record.is_default_config);
  EXPECT_EQ(record.to_str(), error_text);
}

// ---- from_netconf
// --------------------------------------------------------------------------------

TEST(NcIpcApMonitoringInformationNetconf, FullSampleReadsEveryField) {
  NcIpcApMonitoringInformation const record =
      NcIpcApMonitoringInformation::from_netconf(read_sample("monitoring/reply-full.json"));
  EXPECT_FALSE(record.error);
  EXPECT_EQ(record.uptime, "12 days, 03:41:17");
  EXPECT_EQ(record.hostname, "ap-lobby-3F-east");
  EXPECT_EQ(record.secondary_software_version, "4.12.3-rc2");
  EXPECT_EQ(record.boot_version, "2.1.7");
  EXPECT_EQ(record.hw_platform, "WAP-6E-4x4");
  EXPECT_EQ(record.factory_serial_number, "WX2351A00417");
  EXPECT_EQ(record.hw_revision, "B2");
  EXPECT_EQ(record.power_supply, PowerSupply::POE_PLUS);
  EXPECT_EQ(record.last_reboot_reason, "firmware upgrade");
  EXPECT_FALSE(record.is_default_config);
}

TEST(NcIpcApMonitoringInformationNetconf, FullSampleGivesExactIpcText) {
  NcIpcApMonitoringInformation const record =
      NcIpcApMonitoringInformation::from_netconf(read_sample("monitoring/reply-full.json"));
  EXPECT_EQ(record.to_str(), full_text);
  EXPECT_EQ(json_of(record), full_text);
  EXPECT_EQ(record.get_hash(), std::hash<std::string>{}(full_text));
}

TEST(NcIpcApMonitoringInformationNetconf, ErrorSampleGivesTheDefaultRecord) {
  // The sample carries a whole information object, but its root "error" is true.
  expect_default(
      NcIpcApMonitoringInformation::from_netconf(read_sample("monitoring/reply-error.json")));
}

TEST(NcIpcApMonitoringInformationNetconf, EmptyOrNonJsonTextGivesError) {
  for (char const* text : {"", " ", "not json", "{", R"({"error":false)", "{} {}", "[1,]",
                           R"({"error":false,"rpc-reply":{}}trailing)"}) {
    SCOPED_TRACE(text);
    NcIpcApMonitoringInformation record;
    EXPECT_NO_THROW(record = NcIpcApMonitoringInformation::from_netconf(text));
    expect_default(record);
  }
}

TEST(NcIpcApMonitoringInformationNetconf, RootErrorTrueWinsOverPresentData) {
  expect_default(NcIpcApMonitoringInformation::from_netconf(
      R"({"error":true,"rpc-reply":{"data":{"monitoring":{"information":)"
      R"({"hostname":"ap","power-supply":"PoE+","is-default-config":true}}}}})"));
}

TEST(NcIpcApMonitoringInformationNetconf, MissingInformationSubtreeGivesError) {
  for (char const* text :
       {R"({"error":false})", R"({"error":false,"rpc-reply":{}})",
        R"({"error":false,"rpc-reply":{"data":{}}})",
        R"({"error":false,"rpc-reply":{"data":{"monitoring":{}}}})",
        R"({"error":false,"rpc-reply":{"data":{"monitoring":{"radio-interface":[]}}}})",
        // the keys at some other place than the information path are not read
        R"({"error":false,"hostname":"ap","information":{"hostname":"ap"}})",
        R"({"error":false,"rpc-reply":{"data":{"information":{"hostname":"ap"}}}})",
        R"({"error":false,"rpc-reply":{"data":{"monitoring":{"Information":{"hostname":"ap"}}}}})",
        R"({"error":false,"rpc-reply":[{"data":{"monitoring":{"information":{}}}}]})",
        R"({"error":false,"rpc-reply":{"data":{"monitoring":"information"}}})"}) {
    SCOPED_TRACE(text);
    expect_default(NcIpcApMonitoringInformation::from_netconf(text));
  }
}

TEST(NcIpcApMonitoringInformationNetconf, RootThatIsNotAnObjectGivesError) {
  for (char const* text : {"[]", "[{}]", R"([{"error":false}])", "1", "-5", "true", "false", "null",
                           R"("text")", "1e999"}) {
    SCOPED_TRACE(text);
    NcIpcApMonitoringInformation record;
    EXPECT_NO_THROW(record = NcIpcApMonitoringInformation::from_netconf(text));
    expect_default(record);
  }
}

TEST(NcIpcApMonitoringInformationNetconf, RootErrorAbsentOrNotTrueDoesNotReject) {
  // Only a JSON true rejects the reply; a missing "error", false, or a value of another type
  // (including the text "true") lets the information be read.
  for (char const* error : {"", R"("error":false,)", R"("error":"true",)", R"("error":1,)",
                            R"("error":null,)", R"("error":{},)"}) {
    SCOPED_TRACE(error);
    std::string const text = std::string("{") + error +
                             R"("rpc-reply":{"data":{"monitoring":{"information":)"
                             R"({"hostname":"ap-7"}}}}})";
    NcIpcApMonitoringInformation const record = NcIpcApMonitoringInformation::from_netconf(text);
    EXPECT_FALSE(record.error);
    EXPECT_EQ(record.hostname, "ap-7");
  }
}

TEST(NcIpcApMonitoringInformationNetconf, EmptyInformationObjectReadsEveryKeyAsMissing) {
  NcIpcApMonitoringInformation const record = NcIpcApMonitoringInformation::from_netconf(
      R"({"error":false,"rpc-reply":{"data":{"monitoring":{"information":{}}}}})");
  EXPECT_FALSE(record.error);
  NcIpcApMonitoringInformation expected;
  expected.error = false;
  EXPECT_EQ(record, expected);
  EXPECT_EQ(record.to_str(),
            R"({"error":false,"uptime":"","hostname":"","secondary-software-version":"",)"
            R"("boot-version":"","hw-platform":"","factory-serial-number":"",)"
            R"("last-reboot-reason":"","hw-revision":"","power-supply":"",)"
            R"("is-default-config":false})");
}

TEST(NcIpcApMonitoringInformationNetconf, InformationThatIsNotAnObjectReadsEveryKeyAsMissing) {
  // The subtree exists, so the reading succeeds; its members simply are not there.
  for (char const* value : {R"("text")", "[]", R"([{"hostname":"ap"}])", "5", "true", "null"}) {
    SCOPED_TRACE(value);
    NcIpcApMonitoringInformation const record = NcIpcApMonitoringInformation::from_netconf(
        std::string(R"({"error":false,"rpc-reply":{"data":{"monitoring":{"information":)") + value +
        "}}}}");
    NcIpcApMonitoringInformation expected;
    expected.error = false;
    EXPECT_EQ(record, expected);
  }
}

TEST(NcIpcApMonitoringInformationNetconf, TextsAreKeptExactlyAsSent) {
  NcIpcApMonitoringInformation const record = NcIpcApMonitoringInformation::from_netconf(
      reply_with(R"("uptime":"  00:00:07 ","hostname":"printer&#x27;s AP","boot-version":"",)"
                 R"("hw-platform":"Caf\u00e9 \"quoted\" \\ back/slash",)"
                 R"("last-reboot-reason":"line\nbreak")"));
  EXPECT_FALSE(record.error);
  EXPECT_EQ(record.uptime, "  00:00:07 ");
  EXPECT_EQ(record.hostname, "printer&#x27;s AP"); // not decoded
  EXPECT_EQ(record.boot_version, "");
  EXPECT_EQ(record.hw_platform, "Caf\xc3\xa9 \"quoted\" \\ back/slash");
  EXPECT_EQ(record.last_reboot_reason, "line\nbreak");
  // Written back with only what JSON requires escaped, and read back unchanged.
  EXPECT_EQ(record.to_str(),
            "{\"error\":false,\"uptime\":\"  00:00:07 \",\"hostname\":\"printer&#x27;s AP\","
            "\"secondary-software-version\":\"\",\"boot-version\":\"\","
            "\"hw-platform\":\"Caf\xc3\xa9 \\\"quoted\\\" \\\\ back/slash\","
            "\"factory-serial-number\":\"\",\"last-reboot-reason\":\"line\\nbreak\","
            "\"hw-revision\":\"\",\"power-supply\":\"\",\"is-default-config\":false}");
  EXPECT_EQ(NcIpcApMonitoringInformation(record.to_str()), record);
}

TEST(NcIpcApMonitoringInformationNetconf, WrongTypesReadAsTextOrMissing) {
  // Numbers read as their text, booleans as "true"/"false", containers and null as "".
  NcIpcApMonitoringInformation record;
  EXPECT_NO_THROW(record = NcIpcApMonitoringInformation::from_netconf(reply_with(
                      R"("uptime":1050077,"hostname":true,"secondary-software-version":[1,2],)"
                      R"("boot-version":{"v":1},"hw-platform":null,"factory-serial-number":-1.5,)"
                      R"("hw-revision":false,"power-supply":1,"last-reboot-reason":{},)"
                      R"("is-default-config":"true")")));
  EXPECT_FALSE(record.error);
  EXPECT_EQ(record.uptime, "1050077");
  EXPECT_EQ(record.hostname, "true");
  EXPECT_EQ(record.secondary_software_version, "");
  EXPECT_EQ(record.boot_version, "");
  EXPECT_EQ(record.hw_platform, "");
  EXPECT_EQ(record.factory_serial_number, "-1.5");
  EXPECT_EQ(record.hw_revision, "false");
  EXPECT_EQ(record.power_supply, PowerSupply::UNKNOWN); // "1" is no supply's text
  EXPECT_EQ(record.last_reboot_reason, "");
  EXPECT_FALSE(record.is_default_config); // only a JSON true counts
}

TEST(NcIpcApMonitoringInformationNetconf, HugeNumbersAreKeptAsText) {
  NcIpcApMonitoringInformation const record = NcIpcApMonitoringInformation::from_netconf(reply_with(
      R"("uptime":123456789012345678901234567890,"hostname":18446744073709551616,)"
      R"("power-supply":99999999999999999999,"is-default-config":99999999999999999999)"));
  EXPECT_FALSE(record.error);
  EXPECT_EQ(record.uptime, "123456789012345678901234567890");
  EXPECT_EQ(record.hostname, "18446744073709551616");
  EXPECT_EQ(record.power_supply, PowerSupply::UNKNOWN);
  EXPECT_FALSE(record.is_default_config);
}

TEST(NcIpcApMonitoringInformationNetconf, PowerSupplyTexts) {
  struct Case {
    char const* json;
    PowerSupply expected;
    char const* written;
  };
  std::vector<Case> const cases = {
      {R"("power-supply":"PoE/Unclassified")", PowerSupply::POE_UNCLASSIFIED, "PoE/Unclassified"},
      {R"("power-supply":"PoE+")", PowerSupply::POE_PLUS, "PoE+"},
      {R"("power-supply":"PoE++")", PowerSupply::POE_PLUS_PLUS, "PoE++"},
      {R"("power-supply":"PoE")", PowerSupply::UNKNOWN, ""},
      {R"("power-supply":"AC")", PowerSupply::UNKNOWN, ""},
      {R"("power-supply":"poe+")", PowerSupply::UNKNOWN, ""},
      {R"("power-supply":"PoE+ ")", PowerSupply::UNKNOWN, ""},
      {R"("power-supply":"PoE/unclassified")", PowerSupply::UNKNOWN, ""},
      {R"("power-supply":"")", PowerSupply::UNKNOWN, ""},
      {R"("power-supply":2)", PowerSupply::UNKNOWN, ""},
      {R"("hostname":"no supply")", PowerSupply::UNKNOWN, ""},
  };
  for (Case const& c : cases) {
    SCOPED_TRACE(c.json);
    NcIpcApMonitoringInformation const record =
        NcIpcApMonitoringInformation::from_netconf(reply_with(c.json));
    EXPECT_FALSE(record.error);
    EXPECT_EQ(record.power_supply, c.expected);
    Tree const tree(record.get_json());
    ASSERT_TRUE(tree);
    EXPECT_EQ(std::string(cfg_get_param(tree.get(), "power-supply")), c.written);
  }
}

TEST(NcIpcApMonitoringInformationNetconf, IsDefaultConfig) {
  EXPECT_TRUE(NcIpcApMonitoringInformation::from_netconf(reply_with(R"("is-default-config":true)"))
                  .is_default_config);
  EXPECT_FALSE(
      NcIpcApMonitoringInformation::from_netconf(reply_with(R"("is-default-config":false)"))
          .is_default_config);
  // Missing reads as false.
  NcIpcApMonitoringInformation const missing =
      NcIpcApMonitoringInformation::from_netconf(reply_with(R"("hostname":"ap")"));
  EXPECT_FALSE(missing.error);
  EXPECT_FALSE(missing.is_default_config);
  for (char const* value : {R"("true")", "1", R"("yes")", "null", "[true]", "{}"}) {
    SCOPED_TRACE(value);
    EXPECT_FALSE(NcIpcApMonitoringInformation::from_netconf(
                     reply_with(std::string(R"("is-default-config":)") + value))
                     .is_default_config);
  }
}

TEST(NcIpcApMonitoringInformationNetconf, DeeplyNestedTextDoesNotCrash) {
  std::string const text = std::string(100000, '[') + std::string(100000, ']');
  NcIpcApMonitoringInformation record;
  EXPECT_NO_THROW(record = NcIpcApMonitoringInformation::from_netconf(text));
  EXPECT_TRUE(record.error);
}

// ---- get_json and to_str -----------------------------------------------------------------------

TEST(NcIpcApMonitoringInformationWrite, ErrorRecordWritesOnlyTheFlag) {
  NcIpcApMonitoringInformation record = sample_record();
  record.error = true; // the other fields are set but meaningless
  EXPECT_EQ(record.to_str(), error_text);
  Tree const tree(record.get_json());
  ASSERT_TRUE(tree);
  EXPECT_EQ(cfg_contain_param(tree.get(), "hostname"), 0);
  EXPECT_NE(cfg_get_boolean_param(tree.get(), "error"), 0);
}

TEST(NcIpcApMonitoringInformationWrite, ExactTextInWriterOrder) {
  NcIpcApMonitoringInformation const record = sample_record();
  EXPECT_EQ(record.to_str(), sample_record_text);
  EXPECT_EQ(json_of(record), sample_record_text);
}

TEST(NcIpcApMonitoringInformationWrite, TreeHoldsStringsAndBooleans) {
  Tree const tree(sample_record().get_json());
  ASSERT_TRUE(tree);
  // The texts are strings even where they look like numbers; the two flags are booleans.
  NcIpcApMonitoringInformation record = sample_record();
  record.uptime = "42";
  Tree const numeric(record.get_json());
  ASSERT_TRUE(numeric);
  EXPECT_EQ(wlccw::cfg::compact(cfg_get_subtree(numeric.get(), "uptime")), R"("42")");
  EXPECT_EQ(wlccw::cfg::compact(cfg_get_subtree(tree.get(), "error")), "false");
  EXPECT_EQ(wlccw::cfg::compact(cfg_get_subtree(tree.get(), "is-default-config")), "true");
}

TEST(NcIpcApMonitoringInformationWrite, GetJsonGivesANewTreeEachCall) {
  NcIpcApMonitoringInformation const record = sample_record();
  Tree const first(record.get_json());
  Tree const second(record.get_json());
  ASSERT_TRUE(first);
  ASSERT_TRUE(second);
  EXPECT_NE(first.get(), second.get());
  EXPECT_EQ(wlccw::cfg::compact(first.get()), wlccw::cfg::compact(second.get()));
}

// ---- from_json ---------------------------------------------------------------------------------

TEST(NcIpcApMonitoringInformationFromJson, NullTreeGivesTheDefaultRecord) {
  expect_default(NcIpcApMonitoringInformation::from_json(nullptr));
}

TEST(NcIpcApMonitoringInformationFromJson, ReadsTheKeysAtTheRoot) {
  EXPECT_EQ(from_json_text(sample_record_text), sample_record());
  EXPECT_EQ(from_json_text(full_text),
            NcIpcApMonitoringInformation::from_netconf(read_sample("monitoring/reply-full.json")));
}

TEST(NcIpcApMonitoringInformationFromJson, ErrorTrueLeavesEveryOtherFieldAtItsDefault) {
  expect_default(from_json_text(
      R"({"error":true,"uptime":"1","hostname":"ap","power-supply":"PoE+","is-default-config":true})"));
}

TEST(NcIpcApMonitoringInformationFromJson, DoesNotLookUnderTheReplyPath) {
  // A NETCONF reply is no IPC tree: its root "error" is false, and its root has no information
  // keys of its own.
  Tree const reply = parse(read_sample("monitoring/reply-full.json"));
  ASSERT_TRUE(reply);
  NcIpcApMonitoringInformation const record = NcIpcApMonitoringInformation::from_json(reply.get());
  NcIpcApMonitoringInformation expected;
  expected.error = false;
  EXPECT_EQ(record, expected);
}

TEST(NcIpcApMonitoringInformationFromJson, ErrorAbsentOrNotABooleanTrueReadsTheKeys) {
  for (char const* error : {"", R"("error":false,)", R"("error":"true",)", R"("error":1,)"}) {
    SCOPED_TRACE(error);
    NcIpcApMonitoringInformation const record = from_json_text(
        std::string("{") + error + R"("hostname":"ap","power-supply":"PoE/Unclassified"})");
    EXPECT_FALSE(record.error);
    EXPECT_EQ(record.hostname, "ap");
    EXPECT_EQ(record.power_supply, PowerSupply::POE_UNCLASSIFIED);
  }
}

TEST(NcIpcApMonitoringInformationFromJson, WrongTypesReadAsTextOrMissing) {
  NcIpcApMonitoringInformation const record =
      from_json_text(R"({"error":false,"uptime":7,"hostname":["a"],"hw-revision":{"a":1},)"
                     R"("power-supply":["PoE+"],"is-default-config":1,"boot-version":true})");
  EXPECT_FALSE(record.error);
  EXPECT_EQ(record.uptime, "7");
  EXPECT_EQ(record.hostname, "");
  EXPECT_EQ(record.hw_revision, "");
  EXPECT_EQ(record.boot_version, "true");
  EXPECT_EQ(record.power_supply, PowerSupply::UNKNOWN);
  EXPECT_FALSE(record.is_default_config);
}

// ---- the text constructor ----------------------------------------------------------------------

TEST(NcIpcApMonitoringInformationText, NonJsonTextKeepsTheDefaults) {
  for (char const* text : {"", "not json", R"({"error":false)", "{}x", R"({"error":false}{})"}) {
    SCOPED_TRACE(text);
    NcIpcApMonitoringInformation record;
    EXPECT_NO_THROW(record = NcIpcApMonitoringInformation(text));
    expect_default(record);
  }
}

TEST(NcIpcApMonitoringInformationText, ReadsToStrText) {
  NcIpcApMonitoringInformation const record(sample_record_text);
  EXPECT_EQ(record, sample_record());
  EXPECT_EQ(NcIpcApMonitoringInformation(std::string(error_text)), NcIpcApMonitoringInformation());
}

TEST(NcIpcApMonitoringInformationText, ReadsOnlyTheViewedCharacters) {
  // The view ends before the garbage that follows it in the buffer.
  std::string const buffer = std::string(sample_record_text) + "garbage";
  std::string_view const view(buffer.data(), buffer.size() - 7);
  EXPECT_EQ(NcIpcApMonitoringInformation(view), sample_record());
}

TEST(NcIpcApMonitoringInformationText, ErrorTrueLeavesEveryOtherFieldAtItsDefault) {
  expect_default(NcIpcApMonitoringInformation(
      std::string_view(R"({"error":true,"hostname":"ap","is-default-config":true})")));
}

TEST(NcIpcApMonitoringInformationText, RootThatIsNotAnObjectReadsEveryKeyAsMissing) {
  // The text parses, so the record is read from its root; a root without members has no "error"
  // true and none of the keys.
  NcIpcApMonitoringInformation expected;
  expected.error = false;
  for (char const* text : {"[]", R"([{"error":true}])", "7", R"("x")", "null", "true",
                           "123456789012345678901234567890"}) {
    SCOPED_TRACE(text);
    NcIpcApMonitoringInformation record;
    EXPECT_NO_THROW(record = NcIpcApMonitoringInformation(std::string_view(text)));
    EXPECT_EQ(record, expected);
  }
}

// ---- round trips and hashes
// ----------------------------------------------------------------------

TEST(NcIpcApMonitoringInformationRoundTrip, TextReadBackGivesTheSameTextAndHash) {
  std::vector<NcIpcApMonitoringInformation> const records = {
      NcIpcApMonitoringInformation(),
      sample_record(),
      NcIpcApMonitoringInformation::from_netconf(read_sample("monitoring/reply-full.json")),
  };
  for (NcIpcApMonitoringInformation const& record : records) {
    std::string const text = record.to_str();
    SCOPED_TRACE(text);
    NcIpcApMonitoringInformation const back(text);
    EXPECT_EQ(back, record);
    EXPECT_EQ(back.to_str(), text);
    EXPECT_EQ(back.get_hash(), record.get_hash());
    Tree const tree(record.get_json());
    EXPECT_EQ(NcIpcApMonitoringInformation::from_json(tree.get()), record);
  }
}

TEST(NcIpcApMonitoringInformationRoundTrip, PoePlusPlusSurvivesTheTrip) {
  NcIpcApMonitoringInformation const record =
      NcIpcApMonitoringInformation::from_netconf(reply_with(R"("power-supply":"PoE++")"));
  EXPECT_EQ(record.power_supply, PowerSupply::POE_PLUS_PLUS);
  std::string const text = record.to_str();
  EXPECT_NE(text.find(R"("power-supply":"PoE++")"), std::string::npos) << text;
  EXPECT_EQ(NcIpcApMonitoringInformation(text).power_supply, PowerSupply::POE_PLUS_PLUS);
}

TEST(NcIpcApMonitoringInformationRoundTrip, UnknownSupplyIsWrittenAsEmptyText) {
  for (char const* supply : {"PoE", "AC"}) {
    SCOPED_TRACE(supply);
    NcIpcApMonitoringInformation const record = NcIpcApMonitoringInformation::from_netconf(
        reply_with(std::string(R"("power-supply":")") + supply + "\""));
    EXPECT_EQ(record.power_supply, PowerSupply::UNKNOWN);
    std::string const text = record.to_str();
    EXPECT_NE(text.find(R"("power-supply":"")"), std::string::npos) << text;
    EXPECT_EQ(NcIpcApMonitoringInformation(text).power_supply, PowerSupply::UNKNOWN);
  }
}

TEST(NcIpcApMonitoringInformationHash, IsTheStringHashOfTheText) {
  for (NcIpcApMonitoringInformation const& record :
       {NcIpcApMonitoringInformation(), sample_record()}) {
    EXPECT_EQ(record.get_hash(), std::hash<std::string>{}(record.to_str()));
  }
  EXPECT_EQ(sample_record().get_hash(), std::hash<std::string>{}(sample_record_text));
  EXPECT_EQ(NcIpcApMonitoringInformation().get_hash(), std::hash<std::string>{}(error_text));
}

TEST(NcIpcApMonitoringInformationHash, DiffersWhenOnlyTheRebootReasonDiffers) {
  NcIpcApMonitoringInformation first = sample_record();
  NcIpcApMonitoringInformation second = sample_record();
  first.last_reboot_reason = "watchdog";
  second.last_reboot_reason = "firmware upgrade";
  EXPECT_NE(first.get_hash(), second.get_hash());
  second.last_reboot_reason = "watchdog";
  EXPECT_EQ(first.get_hash(), second.get_hash());
}

TEST(NcIpcApMonitoringInformationHash, FieldsOfAnErrorRecordDoNotCount) {
  NcIpcApMonitoringInformation record = sample_record();
  record.error = true;
  EXPECT_EQ(record.get_hash(), NcIpcApMonitoringInformation().get_hash());
}

TEST(NcIpcApMonitoringInformationHash, EveryWrittenFieldChangesTheHash) {
  std::size_t const base = sample_record().get_hash();
  std::vector<std::function<void(NcIpcApMonitoringInformation&)>> const changes = {
      [](NcIpcApMonitoringInformation& r) { r.error = true; },
      [](NcIpcApMonitoringInformation& r) { r.uptime += "x"; },
      [](NcIpcApMonitoringInformation& r) { r.hostname += "x"; },
      [](NcIpcApMonitoringInformation& r) { r.secondary_software_version += "x"; },
      [](NcIpcApMonitoringInformation& r) { r.boot_version += "x"; },
      [](NcIpcApMonitoringInformation& r) { r.hw_platform += "x"; },
      [](NcIpcApMonitoringInformation& r) { r.factory_serial_number += "x"; },
      [](NcIpcApMonitoringInformation& r) { r.hw_revision += "x"; },
      [](NcIpcApMonitoringInformation& r) { r.power_supply = PowerSupply::POE_PLUS; },
      [](NcIpcApMonitoringInformation& r) { r.last_reboot_reason += "x"; },
      [](NcIpcApMonitoringInformation& r) { r.is_default_config = false; },
  };
  for (std::size_t i = 0; i < changes.size(); ++i) {
    SCOPED_TRACE(i);
    NcIpcApMonitoringInformation record = sample_record();
    changes[i](record);
    EXPECT_NE(record.get_hash(), base);
  }
}

} // namespace
