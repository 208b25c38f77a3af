/// \file
/// Reacting to changes of this controller's VRRP role by calling the handlers its owner registered.
#pragma once

#include <wlccw/enums/VrrpRole.hpp>
#include <wlccw/export.hpp>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <unordered_map>
#include <utility>

/// The VRRP role dispatcher: one handler per role transition (old role, new role), one handler per
/// role for re-applying the current one. No locking: its owner serialises the calls.
class WLCCW_EXPORT FailoverMgr {
public:
  /// Hashes a pair of roles: starting from seed 0, for the first and then the second role value
  /// v (as a signed 64-bit number), seed ^= v + 0x9e3779b9 + (seed << 6) + (seed >> 2), in
  /// wrapping 64-bit unsigned arithmetic.
  struct PairHash {
    /// The hash of roles, as described above.
    std::size_t operator()(std::pair<VrrpRole, VrrpRole> const& roles) const noexcept {
      std::uint64_t seed = 0;
      for (VrrpRole const role : {roles.first, roles.second}) {
        auto const value = static_cast<std::uint64_t>(static_cast<std::int64_t>(role));
        seed ^= value + std::uint64_t{0x9e3779b9U} + (seed << 6U) + (seed >> 2U);
      }
      return static_cast<std::size_t>(seed);
    }
  };

  /// A role change: (old role, new role).
  using Transition = std::pair<VrrpRole, VrrpRole>;
  /// Handlers by role change.
  using TransitionHandlers = std::unordered_map<Transition, std::function<void()>, PairHash>;
  /// Handlers by role.
  using RoleHandlers = std::unordered_map<VrrpRole, std::function<void()>>;

  /// Handler per (old role, new role) transition.
  TransitionHandlers transition_handlers;
  /// Handler per role, for re-applying the current role.
  RoleHandlers role_handlers;
  /// The role last applied.
  VrrpRole current_role = VrrpRole::UNKNOWN;

  /// No handlers; the role is UNKNOWN.
  FailoverMgr() = default;
  /// Takes both handler maps; the role is UNKNOWN, so the first update to any other role is a
  /// transition from UNKNOWN.
  FailoverMgr(TransitionHandlers transitions, RoleHandlers roles);

  /// Applies a new role. The same role as the current one changes nothing, calls nothing and
  /// returns false. Otherwise current_role becomes new_role first, then the handler registered for
  /// (old role, new role) is called if there is one (an empty std::function counts as none), and
  /// the result is true either way. The handler runs as a copy, so it may replace the registered
  /// handlers. An exception from the handler propagates, with the role already changed.
  bool process_role_update(VrrpRole new_role);
  /// Calls the handler registered for current_role, if there is one (an empty std::function counts
  /// as none); the handler runs as a copy. An exception from the handler propagates.
  void process_role_current() const;
};
