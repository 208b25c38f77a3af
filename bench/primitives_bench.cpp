// The small conversions every poll runs many times: MAC addresses read and written, HTML-escaped
// texts decoded, rate texts split into modulation and numeric rate, and per-antenna readings
// averaged. Each loop cycles through inputs held in memory and reports its heap allocations per
// call (allocs/op).
#include "detail/modulation.hpp"
#include "support/cycle.hpp"

#include <wlccw/common/MacAddr.hpp>
#include <wlccw/common/html.hpp>
#include <wlccw/monitoring/NcIpcApMonitoringRadioInterface.hpp>

#include <benchmark/benchmark.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace {

using wlccw::bench::cycle;

std::array<char const*, 4> const colon_macs{"A4:5E:60:C2:19:7B", "3c:22:fb:00:10:ff",
                                            "F0:18:98:AB:CD:EF", "8c:85:90:12:34:56"};
std::array<char const*, 4> const bare_macs{"A45E60C2197B", "3c22fb0010ff", "F01898ABCDEF",
                                           "8c8590123456"};
std::array<MacAddr, 4> const macs{
    MacAddr::from_str(colon_macs[0]), MacAddr::from_str(colon_macs[1]),
    MacAddr::from_str(colon_macs[2]), MacAddr::from_str(colon_macs[3])};

void BM_MacParseColonForm(benchmark::State& state) {
  cycle(state, colon_macs, [](char const* text) { return MacAddr::from_str(text); });
}
void BM_MacParseBareForm(benchmark::State& state) {
  cycle(state, bare_macs, [](char const* text) { return MacAddr::from_str(text); });
}
struct MacText {
  char text[18];
};

void BM_MacFormatIntoBuffer(benchmark::State& state) {
  cycle(state, macs, [](MacAddr const& mac) {
    MacText out;
    mac.format(out.text);
    return out;
  });
}
void BM_MacStr(benchmark::State& state) {
  cycle(state, macs, [](MacAddr const& mac) { return mac.str(); });
}

std::array<std::string, 4> const plain_texts{"Corp-WiFi", "Guest Network", "iot-sensors",
                                             "MacBook-Pro-1806604948"};
std::array<std::string, 4> const escaped_texts{"Corp&#x2d;WiFi", "Guest &amp; Visitors",
                                               "Caf&#xe9; Libre", "iPhone&#x20;de&#x20;Marie"};

void BM_DecodeHtmlSafePlain(benchmark::State& state) {
  cycle(state, plain_texts,
        [](std::string const& text) { return external_data::ap::decode_html_safe(text); });
}
void BM_DecodeHtmlSafeEscaped(benchmark::State& state) {
  cycle(state, escaped_texts,
        [](std::string const& text) { return external_data::ap::decode_html_safe(text); });
}

std::array<std::optional<std::string>, 4> const rate_texts{
    std::string("HE-MCS 11 NSS 2 1201.0"), std::string("VHT-MCS 9 NSS 2 866.7"),
    std::string("HT-MCS 7 NSS 1 72.2"), std::string("54M")};

void BM_ParseModulationPart(benchmark::State& state) {
  cycle(state, rate_texts, [](std::optional<std::string> const& text) {
    return wlccw::detail::parse_modulation_data_string(text,
                                                       wlccw::detail::ModulationPart::MODULATION);
  });
}
void BM_ParseNumericRatePart(benchmark::State& state) {
  cycle(state, rate_texts, [](std::optional<std::string> const& text) {
    return wlccw::detail::parse_modulation_data_string(text,
                                                       wlccw::detail::ModulationPart::NUMERIC_RATE);
  });
}

std::array<std::vector<std::int32_t>, 4> const readings{
    std::vector<std::int32_t>{-90, -91, -92, -93}, std::vector<std::int32_t>{-95, -96},
    std::vector<std::int32_t>{-95, -95, -95}, std::vector<std::int32_t>{}};

void BM_AverageVectorOpt(benchmark::State& state) {
  cycle(state, readings,
        [](std::vector<std::int32_t> const& values) { return average_vector_opt(values); });
}

} // namespace

BENCHMARK(BM_MacParseColonForm);
BENCHMARK(BM_MacParseBareForm);
BENCHMARK(BM_MacFormatIntoBuffer);
BENCHMARK(BM_MacStr);
BENCHMARK(BM_DecodeHtmlSafePlain);
BENCHMARK(BM_DecodeHtmlSafeEscaped);
BENCHMARK(BM_ParseModulationPart);
BENCHMARK(BM_ParseNumericRatePart);
BENCHMARK(BM_AverageVectorOpt);
