// Fuzzes the two command-line splitters behind exec_cmd, called directly on a private copy of the
// text (nothing is executed). Neither ever yields an empty token, every token is a run of the
// input's bytes, and the plain splitter's tokens joined by single spaces give the input with its
// runs of spaces collapsed and its leading and trailing spaces dropped.
#include "fuzz_support.hpp"

#include "detail/exec.hpp"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace {

using wlccw::fuzz::check;
using wlccw::fuzz::check_same;

/// The tokens of a split of a private copy of command (up to its first NUL, as the splitters see
/// a C string), each checked to be non-empty and to occur in command.
std::vector<std::string> split(std::string const& command, bool quoted) {
  std::vector<char> text(command.c_str(), command.c_str() + command.size() + 1);
  wlccw::detail::ArgumentList args;
  bool const found = wlccw::detail::split_command(text.data(), quoted, args);
  check(!args.failed());
  check(found == (args.size() > 0));
  std::vector<std::string> tokens;
  for (int i = 0; i < args.size(); ++i) {
    char const* const token = args.data()[i];
    check(token != nullptr);
    // Every token points into the copy, and so it is a run of the input's bytes.
    check(token >= text.data() && token < text.data() + text.size());
    std::string_view const view(token);
    check(!view.empty());
    check(command.find(view) != std::string::npos);
    tokens.emplace_back(view);
  }
  return tokens;
}

/// The text up to its first NUL with every run of spaces made one space and no space at either
/// end.
std::string collapse_spaces(std::string const& command) {
  std::string out;
  bool pending_space = false;
  for (char const c : std::string_view(command.c_str())) {
    if (c == ' ') {
      pending_space = !out.empty();
      continue;
    }
    if (pending_space) {
      out += ' ';
      pending_space = false;
    }
    out += c;
  }
  return out;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  std::string const command = wlccw::fuzz::to_string(data, size);

  std::vector<std::string> const plain = split(command, false);
  std::string joined;
  for (std::string const& token : plain) {
    check(token.find(' ') == std::string::npos);
    if (!joined.empty()) {
      joined += ' ';
    }
    joined += token;
  }
  check_same(joined, collapse_spaces(command));

  std::vector<std::string> const quoted = split(command, true);
  // Text without a double quote splits the same way under both rules.
  if (std::string_view(command.c_str()).find('"') == std::string_view::npos) {
    check(quoted == plain);
  }
  return 0;
}
