/// \file
/// What the GRE tunnelling daemon needs to know: the remote offices, which client MAC addresses
/// belong to which office and which IPv4 address pools are assigned to which office.
#pragma once

#include <wlccw/cfg/tree.hpp>
#include <wlccw/common/MacAddr.hpp>
#include <wlccw/export.hpp>

#include <netinet/in.h>

#include <cstddef>
#include <memory>
#include <set>
#include <string>
#include <string_view>

/// The GRE tunnel data message, read from IPC JSON text and written back to the same form.
///
/// IPC form: {"offices":[...],"macs":{"<mac>":"<office>",...},
///            "ip-pools":{"<name>":{"network":"<a.b.c.d>","netmask":"<a.b.c.d>","office":"..."}}}
/// "offices" is always written; "macs" and "ip-pools" only when they hold an entry. Every
/// collection is written in its set's order, so the text (and the hash over it) does not depend on
/// the order in which the entries were read.
class WLCCW_EXPORT IpcMsgGreData {
public:
  /// One client MAC address and the office it belongs to.
  struct MacInfo {
    /// The client's address.
    MacAddr mac;
    /// Name of the office.
    std::string office;

    /// Same address octets (validity ignored) and same office.
    friend bool operator==(MacInfo const&, MacInfo const&) = default;
  };

  /// One IPv4 address pool.
  struct IpPoolInfo {
    /// Name of the pool (its key in the IPC form).
    std::string name;
    /// Network address of the pool, in network byte order; 0.0.0.0 when inet_aton refused it.
    in_addr network{};
    /// Mask of the pool, in network byte order; 0.0.0.0 when inet_aton refused it.
    in_addr netmask{};
    /// Office the pool belongs to.
    std::string office;

    /// Same name, network, netmask and office.
    friend bool operator==(IpPoolInfo const& a, IpPoolInfo const& b) noexcept {
      return a.name == b.name && a.network.s_addr == b.network.s_addr &&
             a.netmask.s_addr == b.netmask.s_addr && a.office == b.office;
    }
  };

  /// Orders MAC entries by the six octets of their addresses, lexicographically as unsigned bytes;
  /// validity takes no part, so two entries with equal octets are one key. Also compares an entry
  /// with a bare MacAddr, so a set can be searched by address. A null entry orders before every
  /// other entry.
  struct MacsCmp {
    /// Lets the set be searched by a bare MacAddr.
    using is_transparent = void;

    /// Whether entry a orders before entry b.
    bool operator()(std::shared_ptr<MacInfo> const& a,
                    std::shared_ptr<MacInfo> const& b) const noexcept {
      if (!a || !b) {
        return !a && b;
      }
      return a->mac.bytes < b->mac.bytes;
    }
    /// Whether entry a orders before address b.
    bool operator()(std::shared_ptr<MacInfo> const& a, MacAddr const& b) const noexcept {
      return !a || a->mac.bytes < b.bytes;
    }
    /// Whether address a orders before entry b.
    bool operator()(MacAddr const& a, std::shared_ptr<MacInfo> const& b) const noexcept {
      return b && a.bytes < b->mac.bytes;
    }
  };

  /// Orders pools by name (ordinary string comparison). Also compares a pool with a bare name, so
  /// a set can be searched by name. A null entry orders before every other entry.
  struct IpPoolsCmp {
    /// Lets the set be searched by a bare name.
    using is_transparent = void;

    /// Whether pool a orders before pool b.
    bool operator()(std::shared_ptr<IpPoolInfo> const& a,
                    std::shared_ptr<IpPoolInfo> const& b) const noexcept {
      if (!a || !b) {
        return !a && b;
      }
      return a->name < b->name;
    }
    /// Whether pool a orders before name b.
    bool operator()(std::shared_ptr<IpPoolInfo> const& a, std::string_view b) const noexcept {
      return !a || std::string_view(a->name) < b;
    }
    /// Whether name a orders before pool b.
    bool operator()(std::string_view a, std::shared_ptr<IpPoolInfo> const& b) const noexcept {
      return b && a < std::string_view(b->name);
    }
  };

  /// Office names, sorted, each once.
  std::set<std::string> offices;
  /// MAC-to-office assignments, one per address.
  std::set<std::shared_ptr<MacInfo>, MacsCmp> macs;
  /// Address pools, one per name.
  std::set<std::shared_ptr<IpPoolInfo>, IpPoolsCmp> ip_pools;

  /// No offices, no addresses, no pools.
  IpcMsgGreData() = default;
  /// Reads the IPC text. Never throws on bad input: text that is not JSON leaves all three sets
  /// empty; a key that is missing or not of its container type leaves its set empty. An "offices"
  /// element is taken as its scalar text ("" for an object, an array or null). A "macs" key that is
  /// no MAC address gives the all-zero address; of entries with the same address octets, and of
  /// pools with the same name, the first one read stays. A pool's "network" or "netmask" that
  /// inet_aton refuses gives 0.0.0.0.
  explicit IpcMsgGreData(std::string_view json);

  /// The IPC tree, owned by the caller (release it with cfg_release); null when no object can be
  /// made. A container that cannot be inserted is left out; null entries are skipped.
  lcw_data_t* get_json() const;
  /// The compact text of get_json(); "" when no tree can be made.
  std::string to_str() const;
  /// std::hash<std::string> of to_str().
  std::size_t get_hash() const;
};

/// Same offices, and entry by entry the same MAC assignments and pools (compared by value, not by
/// pointer; two null entries are equal).
WLCCW_EXPORT bool operator==(IpcMsgGreData const& a, IpcMsgGreData const& b);
