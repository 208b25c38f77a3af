// The default tree backend against Boost.JSON's own DOM on the same bytes: parse, serialise and
// member reads of a reply shaped like an AP's client list.
#include <wlccw/cfg/owned.hpp>
#include <wlccw/cfg/tree.hpp>

#include <benchmark/benchmark.h>
#include <boost/json.hpp>

#include <cstdint>
#include <random>
#include <string>
#include <vector>

namespace {

std::vector<std::string> const& client_keys() {
  static std::vector<std::string> const keys = [] {
    std::vector<std::string> k = {
        "hw-addr",    "interface",   "ssid",       "hostname",     "username",      "ip-address",
        "vlan",       "channel",     "frequency",  "uptime",       "rx-bytes",      "tx-bytes",
        "rx-packets", "tx-packets",  "rx-retries", "tx-retries",   "signal",        "snr",
        "noise",      "auth-method", "eap-method", "cipher",       "wireless-mode", "rx-rate",
        "tx-rate",    "rx-mcs",      "tx-mcs",     "wds-connected"};
    for (int i = 0; i < 4; ++i) {
      k.push_back("signal-" + std::to_string(i));
      k.push_back("rssi-" + std::to_string(i));
    }
    return k;
  }();
  return keys;
}

// A reply of n client objects; counters are written as RFC 7951 strings, as APs send them.
std::string make_reply(std::size_t n) {
  std::mt19937 rng(42);
  std::string out = R"({"rpc-reply":{"data":{"monitoring":{"clients":[)";
  for (std::size_t i = 0; i < n; ++i) {
    if (i != 0) {
      out += ',';
    }
    out += '{';
    bool first = true;
    for (auto const& key : client_keys()) {
      if (!first) {
        out += ',';
      }
      first = false;
      out += '"' + key + "\":";
      auto const r = static_cast<std::uint32_t>(rng());
      if (key.find("bytes") != std::string::npos || key.find("packets") != std::string::npos) {
        out += '"' + std::to_string(r) + '"';
      } else if (key.find('-') == std::string::npos || r % 2 == 0) {
        out += '"' + key + "-value-" + std::to_string(r % 1000) + '"';
      } else {
        out += std::to_string(static_cast<int>(r % 200) - 100);
      }
    }
    out += '}';
  }
  out += "]}}}}";
  return out;
}

void BM_BoostParseSerialize(benchmark::State& state) {
  std::string const text = make_reply(static_cast<std::size_t>(state.range(0)));
  for (auto _ : state) {
    boost::json::monotonic_resource mr;
    boost::json::value v = boost::json::parse(text, &mr);
    std::string out = boost::json::serialize(v);
    benchmark::DoNotOptimize(out.data());
  }
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
}

void BM_TreeParseSerialize(benchmark::State& state) {
  std::string const text = make_reply(static_cast<std::size_t>(state.range(0)));
  for (auto _ : state) {
    wlccw::cfg::Tree root = wlccw::cfg::parse(text);
    char const* out = cfg_serialize_compact(root.get());
    benchmark::DoNotOptimize(out);
  }
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
}

void BM_BoostParse(benchmark::State& state) {
  std::string const text = make_reply(static_cast<std::size_t>(state.range(0)));
  for (auto _ : state) {
    boost::json::monotonic_resource mr;
    boost::json::value v = boost::json::parse(text, &mr);
    benchmark::DoNotOptimize(&v);
  }
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
}

void BM_TreeParse(benchmark::State& state) {
  std::string const text = make_reply(static_cast<std::size_t>(state.range(0)));
  for (auto _ : state) {
    wlccw::cfg::Tree root = wlccw::cfg::parse(text);
    benchmark::DoNotOptimize(root.get());
  }
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
}

// Every key of every client read in document order, as the record readers do.
void BM_TreeReadMembers(benchmark::State& state) {
  std::string const text = make_reply(static_cast<std::size_t>(state.range(0)));
  wlccw::cfg::Tree root = wlccw::cfg::parse(text);
  lcw_data_t* clients = cfg_get_subtree_from_path(root.get(), "/rpc-reply/data/monitoring/clients");
  for (auto _ : state) {
    std::uint64_t sum = 0;
    wlccw::cfg::for_each_element(clients, [&sum](lcw_data_t& client) {
      for (auto const& key : client_keys()) {
        sum += cfg_get_uint32_param(&client, key.c_str());
      }
      sum += static_cast<std::uint64_t>(cfg_contain_param(&client, "missing-key"));
    });
    benchmark::DoNotOptimize(sum);
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}

// An IPC writer's pattern: one object per client, every member set by name, then the text.
void BM_TreeWriteObjects(benchmark::State& state) {
  auto const n = static_cast<std::size_t>(state.range(0));
  for (auto _ : state) {
    wlccw::cfg::Tree root = wlccw::cfg::make_array();
    for (std::size_t i = 0; i < n; ++i) {
      lcw_data_t* client = cfg_insert_empty_subtree(root.get(), nullptr);
      for (auto const& key : client_keys()) {
        cfg_set_param(client, key.c_str(), "value");
      }
    }
    benchmark::DoNotOptimize(cfg_serialize_compact(root.get()));
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}

void BM_BoostWriteObjects(benchmark::State& state) {
  auto const n = static_cast<std::size_t>(state.range(0));
  for (auto _ : state) {
    boost::json::monotonic_resource mr;
    boost::json::array root(&mr);
    for (std::size_t i = 0; i < n; ++i) {
      boost::json::object& client = root.emplace_back(boost::json::object(&mr)).as_object();
      for (auto const& key : client_keys()) {
        client[key] = "value";
      }
    }
    std::string out = boost::json::serialize(root);
    benchmark::DoNotOptimize(out.data());
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}

// One object of n members written by name: lookups of names an object lacks must not scan it.
void BM_TreeWriteLargeObject(benchmark::State& state) {
  auto const n = static_cast<std::size_t>(state.range(0));
  std::vector<std::string> keys;
  for (std::size_t i = 0; i < n; ++i) {
    keys.push_back("member-" + std::to_string(i));
  }
  for (auto _ : state) {
    wlccw::cfg::Tree root = wlccw::cfg::make_object();
    for (auto const& key : keys) {
      cfg_set_int_param(root.get(), key.c_str(), 1);
    }
    benchmark::DoNotOptimize(root.get());
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}

} // namespace

BENCHMARK(BM_TreeWriteObjects)->Arg(256);
BENCHMARK(BM_TreeWriteLargeObject)->Arg(64)->Arg(4096);
BENCHMARK(BM_BoostWriteObjects)->Arg(256);
BENCHMARK(BM_BoostParseSerialize)->Arg(16)->Arg(256)->Arg(4096);
BENCHMARK(BM_TreeParseSerialize)->Arg(16)->Arg(256)->Arg(4096);
BENCHMARK(BM_BoostParse)->Arg(256);
BENCHMARK(BM_TreeParse)->Arg(256);
BENCHMARK(BM_TreeReadMembers)->Arg(256);
