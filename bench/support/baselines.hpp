// The baselines the library's conversions are measured against, run on the caller's bytes:
// - the floor: Boost.JSON parse into a monotonic resource and compact serialisation, what any
//   conversion through a JSON tree pays at least;
// - the parse limit: simdjson's DOM parse, what parsing alone costs at best.
#pragma once

#include <benchmark/benchmark.h>
#include <boost/json.hpp>
#include <simdjson.h>

#include <string>

namespace wlccw::bench {

/// One pass of the floor over text.
inline void boost_parse_serialize_once(std::string const& text) {
  boost::json::monotonic_resource resource;
  boost::json::value const value = boost::json::parse(text, &resource);
  std::string out = boost::json::serialize(value);
  benchmark::DoNotOptimize(out.data());
}

/// The floor's loop over text.
inline void boost_parse_serialize(benchmark::State& state, std::string const& text) {
  for (auto _ : state) {
    boost_parse_serialize_once(text);
  }
}

/// The parse limit's loop over text; the parser keeps its buffers from one parse to the next, as
/// simdjson is meant to be used.
inline void simdjson_dom_parse(benchmark::State& state, std::string const& text) {
  simdjson::padded_string const padded(text);
  simdjson::dom::parser parser;
  for (auto _ : state) {
    simdjson::dom::element root;
    if (parser.parse(padded).get(root) != simdjson::SUCCESS) {
      state.SkipWithError("simdjson refused the text");
      return;
    }
    benchmark::DoNotOptimize(&root);
  }
}

} // namespace wlccw::bench
