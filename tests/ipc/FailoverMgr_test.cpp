#include <wlccw/ipc/FailoverMgr.hpp>

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <set>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <unordered_map>
#include <utility>
#include <vector>

namespace {

using Transition = std::pair<VrrpRole, VrrpRole>;

std::vector<VrrpRole> const all_roles = {VrrpRole::NO_VRRP, VrrpRole::MASTER, VrrpRole::STANDBY,
                                         VrrpRole::UNKNOWN};

std::string name(VrrpRole role) {
  return VrrpRoleToStrX(role);
}

// A manager whose every transition handler and every role handler records its own name in calls.
FailoverMgr recording_manager(std::vector<std::string>& calls) {
  FailoverMgr::TransitionHandlers transitions;
  FailoverMgr::RoleHandlers roles;
  for (VrrpRole const from : all_roles) {
    roles[from] = [&calls, from] { calls.push_back("role " + name(from)); };
    for (VrrpRole const to : all_roles) {
      transitions[{from, to}] = [&calls, from, to] {
        calls.push_back(name(from) + "->" + name(to));
      };
    }
  }
  return FailoverMgr(std::move(transitions), std::move(roles));
}

// The pair hash worked out step by step: seed 0, then for each role value v (sign-extended to 64
// bits) seed ^= v + 0x9e3779b9 + (seed << 6) + (seed >> 2), wrapping modulo 2^64.
std::uint64_t expected_hash(std::int64_t first, std::int64_t second) {
  std::uint64_t seed = 0;
  std::uint64_t const a = static_cast<std::uint64_t>(first);
  seed ^= a + 0x9e3779b9ULL + (seed << 6U) + (seed >> 2U);
  std::uint64_t const b = static_cast<std::uint64_t>(second);
  seed ^= b + 0x9e3779b9ULL + (seed << 6U) + (seed >> 2U);
  return seed;
}

} // namespace

// ---- Construction -------------------------------------------------------------------------------

TEST(FailoverMgr, MembersHaveTheirDeclaredTypes) {
  static_assert(
      std::is_same_v<decltype(FailoverMgr::transition_handlers),
                     std::unordered_map<Transition, std::function<void()>, FailoverMgr::PairHash>>);
  static_assert(std::is_same_v<decltype(FailoverMgr::role_handlers),
                               std::unordered_map<VrrpRole, std::function<void()>>>);
  static_assert(std::is_same_v<decltype(FailoverMgr::current_role), VrrpRole>);
}

TEST(FailoverMgr, DefaultHasNoHandlersAndStartsUnknown) {
  FailoverMgr const manager;
  EXPECT_EQ(manager.current_role, VrrpRole::UNKNOWN);
  EXPECT_TRUE(manager.transition_handlers.empty());
  EXPECT_TRUE(manager.role_handlers.empty());
}

TEST(FailoverMgr, ConstructedFromBothMapsStartsUnknownAndHoldsThem) {
  std::vector<std::string> calls;
  FailoverMgr const manager = recording_manager(calls);
  EXPECT_EQ(manager.current_role, VrrpRole::UNKNOWN);
  EXPECT_EQ(manager.transition_handlers.size(), 16U);
  EXPECT_EQ(manager.role_handlers.size(), 4U);
  EXPECT_TRUE(calls.empty()); // building calls nothing
}

// ---- process_role_update ------------------------------------------------------------------------

TEST(FailoverMgr, SameRoleReturnsFalseAndCallsNothing) {
  std::vector<std::string> calls;
  FailoverMgr manager = recording_manager(calls);
  EXPECT_FALSE(manager.process_role_update(VrrpRole::UNKNOWN)); // the starting role
  EXPECT_TRUE(calls.empty());
  manager.current_role = VrrpRole::MASTER;
  EXPECT_FALSE(manager.process_role_update(VrrpRole::MASTER));
  EXPECT_TRUE(calls.empty());
  EXPECT_EQ(manager.current_role, VrrpRole::MASTER);
}

TEST(FailoverMgr, MasterToStandbyCallsOnlyThatHandler) {
  std::vector<std::string> calls;
  FailoverMgr manager = recording_manager(calls);
  manager.current_role = VrrpRole::MASTER;
  EXPECT_TRUE(manager.process_role_update(VrrpRole::STANDBY));
  EXPECT_EQ(calls, std::vector<std::string>{"MASTER->STANDBY"});
  EXPECT_EQ(manager.current_role, VrrpRole::STANDBY);
}

TEST(FailoverMgr, NoVrrpToStandbyCallsOnlyThatHandler) {
  std::vector<std::string> calls;
  FailoverMgr manager = recording_manager(calls);
  manager.current_role = VrrpRole::NO_VRRP;
  EXPECT_TRUE(manager.process_role_update(VrrpRole::STANDBY));
  EXPECT_EQ(calls, std::vector<std::string>{"NO_VRRP->STANDBY"});
  EXPECT_EQ(manager.current_role, VrrpRole::STANDBY);
}

TEST(FailoverMgr, EveryTransitionCallsExactlyItsOwnHandler) {
  for (VrrpRole const from : all_roles) {
    for (VrrpRole const to : all_roles) {
      if (from == to) {
        continue;
      }
      std::vector<std::string> calls;
      FailoverMgr manager = recording_manager(calls);
      manager.current_role = from;
      EXPECT_TRUE(manager.process_role_update(to));
      EXPECT_EQ(calls, std::vector<std::string>{name(from) + "->" + name(to)});
      EXPECT_EQ(manager.current_role, to);
    }
  }
}

TEST(FailoverMgr, ASequenceOfUpdatesFollowsTheRoles) {
  std::vector<std::string> calls;
  FailoverMgr manager = recording_manager(calls);
  EXPECT_TRUE(manager.process_role_update(VrrpRole::NO_VRRP));
  EXPECT_TRUE(manager.process_role_update(VrrpRole::MASTER));
  EXPECT_FALSE(manager.process_role_update(VrrpRole::MASTER));
  EXPECT_TRUE(manager.process_role_update(VrrpRole::STANDBY));
  EXPECT_TRUE(manager.process_role_update(VrrpRole::MASTER));
  EXPECT_EQ(calls, (std::vector<std::string>{"UNKNOWN->NO_VRRP", "NO_VRRP->MASTER",
                                             "MASTER->STANDBY", "STANDBY->MASTER"}));
}

TEST(FailoverMgr, WithoutAHandlerTheUpdateStillReturnsTrueAndChangesTheRole) {
  std::vector<std::string> calls;
  FailoverMgr manager;
  manager.transition_handlers[{VrrpRole::STANDBY, VrrpRole::MASTER}] = [&calls] {
    calls.emplace_back("STANDBY->MASTER");
  };
  manager.current_role = VrrpRole::MASTER;
  EXPECT_TRUE(manager.process_role_update(VrrpRole::STANDBY));
  EXPECT_EQ(manager.current_role, VrrpRole::STANDBY);
  EXPECT_TRUE(calls.empty());
  // The handler of the reverse direction is not the one for this transition.
  EXPECT_TRUE(manager.process_role_update(VrrpRole::MASTER));
  EXPECT_EQ(calls, std::vector<std::string>{"STANDBY->MASTER"});
}

TEST(FailoverMgr, AnEmptyHandlerCountsAsNone) {
  FailoverMgr manager;
  manager.transition_handlers[{VrrpRole::UNKNOWN, VrrpRole::MASTER}] = nullptr;
  manager.role_handlers[VrrpRole::MASTER] = nullptr;
  bool result = false;
  EXPECT_NO_THROW(result = manager.process_role_update(VrrpRole::MASTER));
  EXPECT_TRUE(result);
  EXPECT_EQ(manager.current_role, VrrpRole::MASTER);
  EXPECT_NO_THROW(manager.process_role_current());
}

TEST(FailoverMgr, TheHandlerSeesTheNewRoleAlready) {
  FailoverMgr manager;
  VrrpRole seen = VrrpRole::UNKNOWN;
  manager.transition_handlers[{VrrpRole::UNKNOWN, VrrpRole::STANDBY}] = [&] {
    seen = manager.current_role;
  };
  EXPECT_TRUE(manager.process_role_update(VrrpRole::STANDBY));
  EXPECT_EQ(seen, VrrpRole::STANDBY);
}

TEST(FailoverMgr, AThrowingHandlerPropagatesWithTheRoleAlreadyChanged) {
  FailoverMgr manager;
  manager.current_role = VrrpRole::MASTER;
  manager.transition_handlers[{VrrpRole::MASTER, VrrpRole::STANDBY}] = [] {
    throw std::runtime_error("demotion failed");
  };
  EXPECT_THROW(manager.process_role_update(VrrpRole::STANDBY), std::runtime_error);
  EXPECT_EQ(manager.current_role, VrrpRole::STANDBY);
  // The transition counts as done: the same role again is no change.
  EXPECT_FALSE(manager.process_role_update(VrrpRole::STANDBY));
}

TEST(FailoverMgr, AHandlerMayReplaceTheHandlersWhileItRuns) {
  FailoverMgr manager;
  int runs = 0;
  manager.transition_handlers[{VrrpRole::UNKNOWN, VrrpRole::MASTER}] = [&manager, &runs] {
    manager.transition_handlers.clear(); // destroys the map's copy of this very handler
    manager.role_handlers.clear();
    ++runs;
  };
  manager.role_handlers[VrrpRole::MASTER] = [&manager, &runs] {
    manager.role_handlers.clear();
    ++runs;
  };
  EXPECT_TRUE(manager.process_role_update(VrrpRole::MASTER));
  EXPECT_EQ(runs, 1);
  EXPECT_TRUE(manager.transition_handlers.empty());

  manager.role_handlers[VrrpRole::MASTER] = [&manager, &runs] {
    manager.role_handlers.clear();
    ++runs;
  };
  manager.process_role_current();
  EXPECT_EQ(runs, 2);
  EXPECT_TRUE(manager.role_handlers.empty());
}

// ---- process_role_current -----------------------------------------------------------------------

TEST(FailoverMgr, ProcessRoleCurrentCallsTheHandlerOfTheCurrentRoleOnly) {
  std::vector<std::string> calls;
  FailoverMgr manager = recording_manager(calls);
  manager.process_role_current();
  EXPECT_EQ(calls, std::vector<std::string>{"role UNKNOWN"});
  calls.clear();
  ASSERT_TRUE(manager.process_role_update(VrrpRole::MASTER));
  calls.clear();
  manager.process_role_current();
  manager.process_role_current();
  EXPECT_EQ(calls, (std::vector<std::string>{"role MASTER", "role MASTER"}));
  EXPECT_EQ(manager.current_role, VrrpRole::MASTER); // re-applying changes nothing
}

TEST(FailoverMgr, ProcessRoleCurrentWithoutAHandlerDoesNothing) {
  std::vector<std::string> calls;
  FailoverMgr manager;
  manager.role_handlers[VrrpRole::MASTER] = [&calls] { calls.emplace_back("MASTER"); };
  manager.current_role = VrrpRole::STANDBY;
  manager.process_role_current();
  EXPECT_TRUE(calls.empty());
  FailoverMgr const empty;
  EXPECT_NO_THROW(empty.process_role_current());
}

TEST(FailoverMgr, ProcessRoleCurrentPropagatesAHandlerException) {
  FailoverMgr manager;
  manager.current_role = VrrpRole::NO_VRRP;
  manager.role_handlers[VrrpRole::NO_VRRP] = [] { throw std::logic_error("reapply failed"); };
  EXPECT_THROW(manager.process_role_current(), std::logic_error);
  EXPECT_EQ(manager.current_role, VrrpRole::NO_VRRP);
}

// ---- PairHash -----------------------------------------------------------------------------------

TEST(FailoverMgr, PairHashFollowsTheCombiningFormula) {
  FailoverMgr::PairHash const hash;
  for (VrrpRole const first : all_roles) {
    for (VrrpRole const second : all_roles) {
      EXPECT_EQ(hash({first, second}),
                expected_hash(static_cast<std::int64_t>(first), static_cast<std::int64_t>(second)))
          << name(first) << "," << name(second);
    }
  }
}

TEST(FailoverMgr, PairHashKnownValues) {
  FailoverMgr::PairHash const hash;
  // Worked out by hand for (0, 0): s = 0x9e3779b9, then s ^ (0x9e3779b9 + (s << 6) + (s >> 2)).
  EXPECT_EQ(hash({VrrpRole::NO_VRRP, VrrpRole::NO_VRRP}), 0x28cd94bfdeULL);
  EXPECT_EQ(hash({VrrpRole::MASTER, VrrpRole::STANDBY}), 0x28cd94bf13ULL);
  EXPECT_EQ(hash({VrrpRole::STANDBY, VrrpRole::MASTER}), 0x28cd94bf53ULL);
  EXPECT_EQ(hash({VrrpRole::UNKNOWN, VrrpRole::UNKNOWN}), 0x28cd94be97ULL);
  // A negative value counts as a sign-extended 64-bit number.
  EXPECT_EQ(hash({static_cast<VrrpRole>(-1), VrrpRole::MASTER}), 0x28cd94bf90ULL);
  EXPECT_EQ(hash({static_cast<VrrpRole>(-1), VrrpRole::MASTER}), expected_hash(-1, 1));
}

TEST(FailoverMgr, PairHashTellsTheDirectionOfATransition) {
  FailoverMgr::PairHash const hash;
  std::set<std::size_t> values;
  for (VrrpRole const first : all_roles) {
    for (VrrpRole const second : all_roles) {
      values.insert(hash({first, second}));
    }
  }
  EXPECT_EQ(values.size(), 16U);
  EXPECT_NE(hash({VrrpRole::MASTER, VrrpRole::STANDBY}),
            hash({VrrpRole::STANDBY, VrrpRole::MASTER}));
}
