// A tree library of the host's own, behind the tree interface that libwlccw reads and writes JSON
// through. Nodes live in a std::deque owned by their root, so a node never moves once made and a
// borrowed node stays valid until its root is released, whatever is inserted elsewhere. Texts are
// parsed with Boost.JSON's event parser, which hands over every number's text as it was written.
//
// What the library relies on, and what this implementation does:
//   - a missing member reads as "" (cfg_get_param), 0 (numeric and boolean readers), an empty
//     optional (_opt readers) or the given default (cfg_get_int8_param_with_custom_default);
//   - integer readers take a JSON integer or a string holding one whole decimal integer with an
//     optional "-" (APs send 64-bit counters as strings); anything else, or a value outside the
//     reader's type, reads as missing;
//   - cfg_get_param of a number is its text as read or written, of a boolean "true"/"false", of
//     an object, array or null "";
//   - writing an existing member replaces it where it stands; a new member is appended;
//   - serialisation is compact, in insertion order, escaping only '"', '\' and control
//     characters; bytes from 0x80 up are written as they are.
#include "host_tree.hpp"

#include <wlccw/cfg/tree.hpp>

#include <boost/json/basic_parser_impl.hpp>

#include <charconv>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <deque>
#include <functional>
#include <memory>
#include <new>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace host_tree {
std::size_t serialisations = 0;
struct Store;
} // namespace host_tree

struct lcw_data_t {
  enum class Kind { Null, Boolean, Number, String, Array, Object };

  lcw_data_t(Kind k, host_tree::Store& s) : kind(k), store(&s) {}

  Kind kind;
  /// The tree the node belongs to.
  host_tree::Store* store;
  /// The member name, for a member of an object.
  std::string key;
  /// A string's bytes, a number's text, or "true"/"false".
  std::string text;
  /// The elements of an array or the members of an object, in order.
  std::vector<lcw_data_t*> children;
};

struct lcw_array_iterator_t {
  lcw_data_t const* array;
  std::size_t next;
};

struct lcw_object_iterator_t {
  lcw_data_t const* object;
  std::size_t next;
};

namespace host_tree {

/// One tree: its nodes (the root first) and the text of its last serialisation.
struct Store {
  std::deque<lcw_data_t> nodes;
  std::string text;
};

} // namespace host_tree

namespace {

using Kind = lcw_data_t::Kind;
using host_tree::Store;

lcw_data_t* make(Store& store, Kind kind, std::string text = {}) {
  lcw_data_t& node = store.nodes.emplace_back(kind, store);
  node.text = std::move(text);
  return &node;
}

lcw_data_t* new_tree(Kind kind) {
  try {
    auto store = std::make_unique<Store>();
    make(*store, kind);
    return &store.release()->nodes.front();
  } catch (std::bad_alloc const&) {
    return nullptr;
  }
}

/// The first member of that name; null for a missing member or a node that is not an object.
lcw_data_t* member(lcw_data_t const* node, std::string_view key) {
  if (node == nullptr || node->kind != Kind::Object) {
    return nullptr;
  }
  for (lcw_data_t* child : node->children) {
    if (child->key == key) {
      return child;
    }
  }
  return nullptr;
}

lcw_data_t* member(lcw_data_t const* node, char const* key) {
  return key == nullptr ? nullptr : member(node, std::string_view(key));
}

bool is_scalar(lcw_data_t const* node) {
  return node != nullptr &&
         (node->kind == Kind::Boolean || node->kind == Kind::Number || node->kind == Kind::String);
}

char const* text_of(lcw_data_t const* node) {
  return is_scalar(node) ? node->text.c_str() : "";
}

std::optional<std::string> text_opt(lcw_data_t const* node) {
  if (!is_scalar(node)) {
    return std::nullopt;
  }
  return node->text;
}

std::optional<bool> boolean_of(lcw_data_t const* node) {
  if (node == nullptr || node->kind != Kind::Boolean) {
    return std::nullopt;
  }
  return node->text == "true";
}

/// A number or string whose whole text is one decimal integer that fits T.
template <typename T> std::optional<T> integer_of(lcw_data_t const* node) {
  if (node == nullptr || (node->kind != Kind::Number && node->kind != Kind::String)) {
    return std::nullopt;
  }
  char const* const first = node->text.data();
  char const* const last = first + node->text.size();
  T value{};
  auto const [end, error] = std::from_chars(first, last, value);
  if (error != std::errc{} || end != last) {
    return std::nullopt;
  }
  return value;
}

/// Whether child can go into parent: as a member (key given) of an object, or as the next
/// element (null key) of an array.
bool accepts(lcw_data_t const* parent, char const* key) {
  return parent != nullptr && parent->kind == (key != nullptr ? Kind::Object : Kind::Array);
}

/// Puts child into parent, which accepts it: a member of the same name is replaced where it
/// stands (the old node stays in the tree's storage, so a pointer to it stays valid).
lcw_data_t* attach(lcw_data_t* parent, char const* key, lcw_data_t* child) {
  if (key == nullptr) {
    child->key.clear();
    parent->children.push_back(child);
    return child;
  }
  child->key = key;
  for (lcw_data_t*& existing : parent->children) {
    if (existing->key == child->key) {
      existing = child;
      return child;
    }
  }
  parent->children.push_back(child);
  return child;
}

lcw_data_t* insert(lcw_data_t* parent, char const* key, Kind kind, std::string text = {}) {
  if (!accepts(parent, key)) {
    return nullptr;
  }
  return attach(parent, key, make(*parent->store, kind, std::move(text)));
}

/// Sets member key of an object; nothing for a null key or a node that is not an object.
void set(lcw_data_t* node, char const* key, Kind kind, std::string text) {
  if (key != nullptr) {
    insert(node, key, kind, std::move(text));
  }
}

template <typename T> void set_number(lcw_data_t* node, char const* key, T value) {
  set(node, key, Kind::Number, std::to_string(value));
}

template <typename T>
void set_number_opt(lcw_data_t* node, char const* key, std::optional<T> const& value) {
  if (value) {
    set_number(node, key, *value);
  }
}

/// A copy of from and everything below it, made in the tree to. The copy is complete before the
/// caller attaches it, so copying a tree into itself copies it as it was.
lcw_data_t* copy(lcw_data_t const* from, Store& to) {
  lcw_data_t* node = make(to, from->kind, from->text);
  node->key = from->key;
  node->children.reserve(from->children.size());
  for (lcw_data_t const* child : from->children) {
    node->children.push_back(copy(child, to));
  }
  return node;
}

void write_string(std::string& out, std::string const& text) {
  out += '"';
  for (char const c : text) {
    switch (c) {
    case '"':
      out += "\\\"";
      break;
    case '\\':
      out += "\\\\";
      break;
    case '\b':
      out += "\\b";
      break;
    case '\f':
      out += "\\f";
      break;
    case '\n':
      out += "\\n";
      break;
    case '\r':
      out += "\\r";
      break;
    case '\t':
      out += "\\t";
      break;
    default:
      if (static_cast<unsigned char>(c) < 0x20) {
        char escaped[8];
        std::snprintf(escaped, sizeof escaped, "\\u%04x", static_cast<unsigned>(c));
        out += escaped;
      } else {
        out += c;
      }
    }
  }
  out += '"';
}

void write(std::string& out, lcw_data_t const& node) {
  switch (node.kind) {
  case Kind::Null:
    out += "null";
    return;
  case Kind::Boolean:
  case Kind::Number:
    out += node.text;
    return;
  case Kind::String:
    write_string(out, node.text);
    return;
  case Kind::Array:
  case Kind::Object:
    break;
  }
  bool const object = node.kind == Kind::Object;
  out += object ? '{' : '[';
  for (std::size_t i = 0; i < node.children.size(); ++i) {
    if (i > 0) {
      out += ',';
    }
    if (object) {
      write_string(out, node.children[i]->key);
      out += ':';
    }
    write(out, *node.children[i]);
  }
  out += object ? '}' : ']';
}

/// Builds a tree from the parser's events: each value becomes a node of the tree, appended to
/// the array or object open at that moment.
class Builder {
public:
  static constexpr std::size_t max_array_size = static_cast<std::size_t>(-1);
  static constexpr std::size_t max_object_size = static_cast<std::size_t>(-1);
  static constexpr std::size_t max_string_size = static_cast<std::size_t>(-1);
  static constexpr std::size_t max_key_size = static_cast<std::size_t>(-1);

  using error_code = boost::json::error_code;
  using string_view = boost::json::string_view;

  explicit Builder(Store& store) : store_(store) {}

  /// The document's value; null until one was read.
  lcw_data_t* root = nullptr;

  bool on_document_begin(error_code&) { return true; }
  bool on_document_end(error_code&) { return true; }
  bool on_array_begin(error_code&) { return open(Kind::Array); }
  bool on_array_end(std::size_t, error_code&) { return close(); }
  bool on_object_begin(error_code&) { return open(Kind::Object); }
  bool on_object_end(std::size_t, error_code&) { return close(); }
  bool on_string_part(string_view part, std::size_t, error_code&) { return more(text_, part); }
  bool on_string(string_view last, std::size_t, error_code&) {
    more(text_, last);
    return add(Kind::String) != nullptr;
  }
  bool on_key_part(string_view part, std::size_t, error_code&) { return more(key_, part); }
  bool on_key(string_view last, std::size_t, error_code&) { return more(key_, last); }
  bool on_number_part(string_view part, error_code&) { return more(text_, part); }
  bool on_int64(std::int64_t, string_view last, error_code&) { return number(last); }
  bool on_uint64(std::uint64_t, string_view last, error_code&) { return number(last); }
  bool on_double(double, string_view last, error_code&) { return number(last); }
  bool on_bool(bool value, error_code&) {
    text_ = value ? "true" : "false";
    return add(Kind::Boolean) != nullptr;
  }
  bool on_null(error_code&) { return add(Kind::Null) != nullptr; }
  bool on_comment_part(string_view, error_code&) { return true; }
  bool on_comment(string_view, error_code&) { return true; }

private:
  static bool more(std::string& text, string_view part) {
    text.append(part.data(), part.size());
    return true;
  }
  /// A number's text comes whole: the parts read so far and the last one.
  bool number(string_view last) {
    more(text_, last);
    return add(Kind::Number) != nullptr;
  }

  /// A node of the value just read, appended to the open array or object (with the key read
  /// before it), or the document's root.
  lcw_data_t* add(Kind kind) {
    lcw_data_t* node = make(store_, kind, std::move(text_));
    text_.clear();
    if (open_.empty()) {
      root = node;
    } else {
      if (open_.back()->kind == Kind::Object) {
        node->key = std::move(key_);
        key_.clear();
      }
      open_.back()->children.push_back(node);
    }
    return node;
  }
  bool open(Kind kind) {
    open_.push_back(add(kind));
    return true;
  }
  bool close() {
    open_.pop_back();
    return true;
  }

  Store& store_;
  /// The arrays and objects being read, innermost last.
  std::vector<lcw_data_t*> open_;
  std::string text_;
  std::string key_;
};

} // namespace

// ---- Creating, parsing, serialising and releasing trees ----------------------------------------

lcw_data_t* cfg_get_empty() {
  return new_tree(Kind::Object);
}

lcw_data_t* cfg_get_empty_array() {
  return new_tree(Kind::Array);
}

lcw_data_t* cfg_parse_buffer(char const* text) {
  if (text == nullptr) {
    return nullptr;
  }
  auto store = std::make_unique<Store>();
  boost::json::parse_options options;
  options.max_depth = 512;           // hostile nesting cannot exhaust the stack
  options.allow_invalid_utf8 = true; // an SSID's bytes travel as they are
  boost::json::basic_parser<Builder> parser(options, *store);
  boost::json::error_code error;
  std::size_t const length = std::strlen(text);
  std::size_t const used = parser.write_some(false, text, length, error);
  // One whole JSON text and nothing after it.
  if (error || used != length || !parser.done() || parser.handler().root == nullptr) {
    return nullptr;
  }
  return &store.release()->nodes.front();
}

char const* cfg_serialize_compact(lcw_data_t const* node) {
  if (node == nullptr) {
    return "";
  }
  ++host_tree::serialisations;
  std::string& out = node->store->text;
  out.clear();
  write(out, *node);
  return out.c_str();
}

std::string cfg_create_string_compact(std::function<lcw_data_t*()> const& make_root,
                                      std::function<void(lcw_data_t&)> const& fill) {
  std::unique_ptr<lcw_data_t, void (*)(lcw_data_t*)> root(make_root(), cfg_release);
  if (!root) {
    return {};
  }
  fill(*root);
  return cfg_serialize_compact(root.get());
}

void cfg_release(lcw_data_t* root) {
  // Only a root frees its tree; it is the first node of its storage.
  if (root != nullptr && &root->store->nodes.front() == root) {
    delete root->store;
  }
}

int cfg_is_empty(lcw_data_t const* node) {
  return node == nullptr || node->children.empty() ? 1 : 0;
}

// ---- Reading members of an object --------------------------------------------------------------

int cfg_contain_param(lcw_data_t const* node, char const* key) {
  return member(node, key) != nullptr ? 1 : 0;
}
char const* cfg_get_param(lcw_data_t const* node, char const* key) {
  return text_of(member(node, key));
}
int cfg_get_boolean_param(lcw_data_t const* node, char const* key) {
  return boolean_of(member(node, key)).value_or(false) ? 1 : 0;
}
int cfg_get_int_param(lcw_data_t const* node, char const* key) {
  return integer_of<int>(member(node, key)).value_or(0);
}
unsigned int cfg_get_uint_param(lcw_data_t const* node, char const* key) {
  return integer_of<unsigned int>(member(node, key)).value_or(0);
}
std::uint8_t cfg_get_uint8_param(lcw_data_t const* node, char const* key) {
  return integer_of<std::uint8_t>(member(node, key)).value_or(0);
}
std::uint16_t cfg_get_uint16_param(lcw_data_t const* node, char const* key) {
  return integer_of<std::uint16_t>(member(node, key)).value_or(0);
}
std::uint32_t cfg_get_uint32_param(lcw_data_t const* node, char const* key) {
  return integer_of<std::uint32_t>(member(node, key)).value_or(0);
}
std::uint64_t cfg_get_uint64_param(lcw_data_t const* node, char const* key) {
  return integer_of<std::uint64_t>(member(node, key)).value_or(0);
}
signed char cfg_get_int8_param_with_custom_default(lcw_data_t const* node, char const* key,
                                                   signed char def) {
  return integer_of<signed char>(member(node, key)).value_or(def);
}
std::optional<std::string> cfg_get_param_opt(lcw_data_t const* node, char const* key) {
  return text_opt(member(node, key));
}
std::optional<bool> cfg_get_boolean_param_opt(lcw_data_t const* node, char const* key) {
  return boolean_of(member(node, key));
}
std::optional<unsigned char> cfg_get_uint8_param_opt(lcw_data_t const* node, char const* key) {
  return integer_of<unsigned char>(member(node, key));
}
std::optional<unsigned int> cfg_get_uint32_param_opt(lcw_data_t const* node, char const* key) {
  return integer_of<unsigned int>(member(node, key));
}
std::optional<short> cfg_get_int16_param_opt(lcw_data_t const* node, char const* key) {
  return integer_of<short>(member(node, key));
}
std::optional<int> cfg_get_int32_param_opt(lcw_data_t const* node, char const* key) {
  return integer_of<int>(member(node, key));
}
lcw_data_t* cfg_get_subtree(lcw_data_t const* node, char const* key) {
  return member(node, key);
}
lcw_data_t* cfg_get_subtree_from_path(lcw_data_t const* node, char const* path) {
  if (node == nullptr || path == nullptr) {
    return nullptr;
  }
  // The nodes are never const in their storage; the interface hands them out writable.
  lcw_data_t* at = const_cast<lcw_data_t*>(node);
  std::string_view rest(path);
  while (at != nullptr && !rest.empty()) {
    std::size_t const end = rest.find('/');
    if (end != 0) {
      at = member(at, rest.substr(0, end));
    }
    rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
  }
  return at;
}

// ---- Reading a scalar node itself (array elements) ----------------------------------------------

char const* cfg_object_to_string(lcw_data_t const* node) {
  return text_of(node);
}
std::optional<int> cfg_object_to_int_opt(lcw_data_t const* node) {
  return integer_of<int>(node);
}

// ---- Writing members of an object ---------------------------------------------------------------

void cfg_set_param(lcw_data_t* node, char const* key, char const* value) {
  if (value != nullptr) {
    set(node, key, Kind::String, value);
  }
}
void cfg_set_boolean_param(lcw_data_t* node, char const* key, bool value) {
  set(node, key, Kind::Boolean, value ? "true" : "false");
}
void cfg_set_int_param(lcw_data_t* node, char const* key, int value) {
  set_number(node, key, value);
}
void cfg_set_int32_param(lcw_data_t* node, char const* key, std::int32_t value) {
  set_number(node, key, value);
}
void cfg_set_uint_param(lcw_data_t* node, char const* key, unsigned int value) {
  set_number(node, key, value);
}
void cfg_set_uint8_param(lcw_data_t* node, char const* key, std::uint8_t value) {
  set_number(node, key, unsigned{value});
}
void cfg_set_uint16_param(lcw_data_t* node, char const* key, std::uint16_t value) {
  set_number(node, key, unsigned{value});
}
void cfg_set_uint32_param(lcw_data_t* node, char const* key, std::uint32_t value) {
  set_number(node, key, value);
}
void cfg_set_uint64_param(lcw_data_t* node, char const* key, std::uint64_t value) {
  set_number(node, key, value);
}
void cfg_set_param_opt(lcw_data_t* node, char const* key, std::optional<std::string> const& value) {
  if (value) {
    set(node, key, Kind::String, *value);
  }
}
void cfg_set_boolean_param_opt(lcw_data_t* node, char const* key,
                               std::optional<bool> const& value) {
  if (value) {
    cfg_set_boolean_param(node, key, *value);
  }
}
void cfg_set_int8_param_opt(lcw_data_t* node, char const* key,
                            std::optional<signed char> const& value) {
  set_number_opt<int>(node, key, value);
}
void cfg_set_int16_param_opt(lcw_data_t* node, char const* key, std::optional<short> const& value) {
  set_number_opt<int>(node, key, value);
}
void cfg_set_uint8_param_opt(lcw_data_t* node, char const* key,
                             std::optional<unsigned char> const& value) {
  set_number_opt<unsigned>(node, key, value);
}
void cfg_set_uint32_param_opt(lcw_data_t* node, char const* key,
                              std::optional<unsigned int> const& value) {
  set_number_opt(node, key, value);
}

// ---- Inserting sub-trees and elements -----------------------------------------------------------

lcw_data_t* cfg_insert_child(lcw_data_t* parent, char const* key, lcw_data_t const* child) {
  if (child == nullptr || !accepts(parent, key)) {
    return nullptr;
  }
  return attach(parent, key, copy(child, *parent->store));
}
lcw_data_t* cfg_insert_child_string(lcw_data_t* parent, char const* key, char const* value) {
  if (value == nullptr) {
    return nullptr;
  }
  return insert(parent, key, Kind::String, value);
}
lcw_data_t* cfg_insert_child_int(lcw_data_t* parent, char const* key, int value) {
  return insert(parent, key, Kind::Number, std::to_string(value));
}
lcw_data_t* cfg_insert_empty_subtree(lcw_data_t* parent, char const* key) {
  return insert(parent, key, Kind::Object);
}
lcw_data_t* cfg_insert_empty_array(lcw_data_t* parent, char const* key) {
  return insert(parent, key, Kind::Array);
}
lcw_data_t* cfg_insert_empty_subtree_or_exists(lcw_data_t* parent, char const* key) {
  lcw_data_t* existing = member(parent, key);
  return existing != nullptr ? existing : cfg_insert_empty_subtree(parent, key);
}
lcw_data_t* cfg_insert_empty_array_or_exists(lcw_data_t* parent, char const* key) {
  lcw_data_t* existing = member(parent, key);
  return existing != nullptr ? existing : cfg_insert_empty_array(parent, key);
}

// ---- Iterating ----------------------------------------------------------------------------------

lcw_array_iterator_t* cfg_alloc_array_iterator(lcw_data_t const* array) {
  if (array == nullptr || array->kind != Kind::Array) {
    return nullptr;
  }
  return new lcw_array_iterator_t{array, 0};
}
lcw_data_t* cfg_next_array_iterator(lcw_array_iterator_t* it) {
  if (it == nullptr || it->next >= it->array->children.size()) {
    return nullptr;
  }
  return it->array->children[it->next++];
}
void cfg_release_array_iterator(lcw_array_iterator_t* it) {
  delete it;
}
lcw_object_iterator_t* cfg_alloc_iterator(lcw_data_t const* object) {
  if (object == nullptr || object->kind != Kind::Object) {
    return nullptr;
  }
  return new lcw_object_iterator_t{object, 0};
}
lcw_data_t* cfg_next_object_iterator(lcw_object_iterator_t* it, char const** key) {
  if (it == nullptr || it->next >= it->object->children.size()) {
    return nullptr;
  }
  lcw_data_t* node = it->object->children[it->next++];
  if (key != nullptr) {
    *key = node->key.c_str();
  }
  return node;
}
void cfg_release_iterator(lcw_object_iterator_t* it) {
  delete it;
}
void cfg_iterate_array(lcw_data_t const* array, void (*fn)(lcw_data_t const*, void*), void* ctx) {
  if (array == nullptr || array->kind != Kind::Array || fn == nullptr) {
    return;
  }
  for (std::size_t i = 0; i < array->children.size(); ++i) {
    fn(array->children[i], ctx);
  }
}
