// The VRRP role dispatcher.
#include <wlccw/ipc/FailoverMgr.hpp>

FailoverMgr::FailoverMgr(TransitionHandlers transitions, RoleHandlers roles)
    : transition_handlers(std::move(transitions)), role_handlers(std::move(roles)) {}

bool FailoverMgr::process_role_update(VrrpRole new_role) {
  if (new_role == current_role) {
    return false;
  }
  VrrpRole const old_role = current_role;
  current_role = new_role;
  auto const it = transition_handlers.find(Transition{old_role, new_role});
  if (it != transition_handlers.end() && it->second) {
    // Called through a copy: a handler may re-register handlers, which would destroy the one
    // that is running.
    std::function<void()> const handler = it->second;
    handler();
  }
  return true;
}

void FailoverMgr::process_role_current() const {
  auto const it = role_handlers.find(current_role);
  if (it != role_handlers.end() && it->second) {
    std::function<void()> const handler = it->second;
    handler();
  }
}
