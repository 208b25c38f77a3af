// Readers used from several threads at once, each thread on its own records: client import from
// NETCONF and the IPC list both ways, monitoring replies to their five IPC texts, and every
// dictionary. The dictionaries are built before the process runs and never written, and records
// share nothing, so none of this needs a lock; `make test` runs these tests under
// ThreadSanitizer, which reports any shared state the library kept by mistake.
#include "concurrency/dictionaries.hpp"

#include <support/samples.hpp>

#include <wlccw/wlccw.hpp>

#include <gtest/gtest.h>

#include <atomic>
#include <cstddef>
#include <string>
#include <thread>
#include <vector>

namespace {

using wlccw::test::DictionaryReader;
using wlccw::test::read_every_dictionary;
using wlccw::test::read_sample;

constexpr int thread_count = 8;

/// Runs work(thread index) on thread_count threads that start together, so the work overlaps.
template <typename Work> void run_together(Work work) {
  std::atomic<int> ready{0};
  std::vector<std::thread> workers;
  workers.reserve(thread_count);
  for (int t = 0; t < thread_count; ++t) {
    workers.emplace_back([&ready, &work, t] {
      ready.fetch_add(1);
      while (ready.load() < thread_count) {
        std::this_thread::yield();
      }
      work(t);
    });
  }
  for (std::thread& w : workers) {
    w.join();
  }
}

/// The NETCONF client samples, one client object each.
std::vector<std::string> const& client_samples() {
  static std::vector<std::string> const samples = [] {
    std::vector<std::string> texts;
    for (char const* name :
         {"netconf-full.json", "netconf-minimal.json", "netconf-html-escapes.json",
          "netconf-rfc7951-strings.json", "netconf-hostile.json", "mlo-ap-client-three-links.json",
          "mlo-ap-client-single-link.json", "mlo-ap-client-skipped-links.json",
          "mlo-ap-client-disabled.json"}) {
      texts.push_back(read_sample(std::string("client/") + name));
    }
    return texts;
  }();
  return samples;
}

/// What a poll of the client samples gives: the list's IPC text, its hash, and the text of the
/// list read back from it.
struct ClientPoll {
  std::string ipc;
  std::size_t hash = 0;
  std::string read_back;
  friend bool operator==(ClientPoll const&, ClientPoll const&) = default;
};

ClientPoll poll_clients() {
  NcIpcClientList list;
  for (std::string const& text : client_samples()) {
    wlccw::cfg::Tree const root = wlccw::cfg::parse(text);
    list.add_or_update(APClientData::from_netconf_json(root.get()));
  }
  list.recount();
  ClientPoll poll;
  poll.ipc = list.to_str();
  poll.hash = list.get_hash();
  wlccw::cfg::Tree const ipc_root = wlccw::cfg::parse(poll.ipc);
  poll.read_back = NcIpcClientList::from_ipc_json(ipc_root.get()).to_str();
  return poll;
}

/// The five IPC texts of a monitoring reply.
struct MonitoringPoll {
  std::string information;
  std::string radios;
  std::string interfaces;
  std::string ports;
  std::string neighbours;
  friend bool operator==(MonitoringPoll const&, MonitoringPoll const&) = default;
};

MonitoringPoll poll_monitoring(std::string const& reply) {
  MonitoringPoll poll;
  poll.information = NcIpcApMonitoringInformation::from_netconf(reply).to_str();
  poll.radios = NcIpcApMonitoringRadioInterface::from_netconf(reply).to_str();
  wlccw::cfg::Tree const root = wlccw::cfg::parse(reply);
  lcw_data_t* const monitoring =
      cfg_get_subtree_from_path(root.get(), "/rpc-reply/data/monitoring");
  if (monitoring == nullptr) {
    return poll;
  }
  if (auto const list = NcIpcApMonitoringInterfaces::from_netconf(*monitoring)) {
    poll.interfaces = list->to_ipc();
  }
  if (auto const list = NcIpcApMonitoringEthernetPorts::from_netconf(*monitoring)) {
    poll.ports = list->to_ipc();
  }
  if (auto const list = NcIpcApMonitoringApNeighbours::from_netconf(*monitoring)) {
    poll.neighbours = list->to_ipc();
  }
  return poll;
}

TEST(Concurrency, OnePassReadsEveryDictionaryRight) {
  DictionaryReader reader;
  read_every_dictionary(reader);
  EXPECT_EQ(reader.wrong, 0U);
}

TEST(Concurrency, SingleThreadedPollsGiveFullTexts) {
  ClientPoll const clients = poll_clients();
  EXPECT_EQ(clients.read_back, clients.ipc);
  EXPECT_NE(clients.ipc.find("\"a4:5e:60:c2:19:7b\""), std::string::npos);
  EXPECT_NE(clients.ipc.find("\"3c:22:fb:7a:10:4e\""), std::string::npos);
  MonitoringPoll const monitoring = poll_monitoring(read_sample("monitoring/reply-full.json"));
  EXPECT_NE(monitoring.information.find("\"error\":false"), std::string::npos);
  EXPECT_FALSE(monitoring.radios.empty());
  EXPECT_FALSE(monitoring.interfaces.empty());
  EXPECT_FALSE(monitoring.ports.empty());
  EXPECT_FALSE(monitoring.neighbours.empty());
}

TEST(Concurrency, DictionariesReadFromEightThreadsAtOnceGiveTheSameAnswers) {
  constexpr int passes = 100;
  std::atomic<std::size_t> total_wrong{0};
  run_together([&](int) {
    DictionaryReader reader;
    for (int p = 0; p < passes; ++p) {
      read_every_dictionary(reader);
    }
    total_wrong.fetch_add(reader.wrong);
  });
  EXPECT_EQ(total_wrong.load(), 0U);
}

// Each thread imports clients, converts monitoring replies and reads every dictionary in turn,
// on records of its own; every thread's answers equal the single-threaded ones.
TEST(Concurrency, EightThreadsImportConvertAndLookUpAtOnce) {
  constexpr int passes = 20;
  ClientPoll const expected_clients = poll_clients();
  std::string const full_reply = read_sample("monitoring/reply-full.json");
  std::string const error_reply = read_sample("monitoring/reply-error.json");
  MonitoringPoll const expected_full = poll_monitoring(full_reply);
  MonitoringPoll const expected_error = poll_monitoring(error_reply);

  std::atomic<std::size_t> client_mismatches{0};
  std::atomic<std::size_t> monitoring_mismatches{0};
  std::atomic<std::size_t> dictionary_mismatches{0};
  run_together([&](int thread) {
    DictionaryReader reader;
    for (int p = 0; p < passes; ++p) {
      // Threads start at different steps, so at any moment all three kinds of work run.
      for (int step = 0; step < 3; ++step) {
        switch ((thread + p + step) % 3) {
        case 0:
          client_mismatches.fetch_add(poll_clients() == expected_clients ? 0U : 1U);
          break;
        case 1:
          monitoring_mismatches.fetch_add(poll_monitoring(full_reply) == expected_full ? 0U : 1U);
          monitoring_mismatches.fetch_add(poll_monitoring(error_reply) == expected_error ? 0U : 1U);
          break;
        default:
          read_every_dictionary(reader);
          break;
        }
      }
    }
    dictionary_mismatches.fetch_add(reader.wrong);
  });
  EXPECT_EQ(client_mismatches.load(), 0U);
  EXPECT_EQ(monitoring_mismatches.load(), 0U);
  EXPECT_EQ(dictionary_mismatches.load(), 0U);
}

} // namespace
