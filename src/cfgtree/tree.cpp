// The default tree backend: the configuration-tree interface implemented on
// Boost.JSON's event parser.
//
// Every root owns an arena. Nodes, keys and texts are bump-allocated in it and
// never move, so a borrowed node keeps its address until the root is released,
// whatever is inserted elsewhere. Containers are singly linked lists of their
// children (first, last, next sibling), which keeps insertion order and makes
// appending O(1). Object lookups start from the member after the last one
// found, so reading the members of an object in document order costs O(1) per
// member.
//
// Scalars keep their text: a string its bytes (any bytes; NUL-terminated for
// the char const* interface), a number the text it was read from or written as.
// Serialising therefore writes numbers back exactly as they came, and
// cfg_get_param of a number is its text without formatting.
//
// A tree is used by one thread at a time: lookups update the object's search
// hint.

#include <wlccw/cfg/tree.hpp>

#include "detail/json_text.hpp"
#include "detail/tree_extensions.hpp"

#include <boost/json/basic_parser_impl.hpp>

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <limits>
#include <memory>
#include <new>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace {

enum class Kind : std::uint8_t { Null, Bool, Int, UInt, Double, String, Array, Object };

struct MemberIndex;
struct Doc;

// How an object finds its members by name.
enum class Lookup : std::uint8_t {
  // From the member found last (c.hint): the way to read a parsed object in document order.
  Hint,
  // Through a hash index (c.index), once scans have grown long.
  Index,
  // Through a filter of the names present (c.filter): an object being written member by member
  // learns in constant time that a new name is new.
  Filter,
};

} // namespace

// A node. Members are reached only through the functions of this file.
struct lcw_data_t {
  lcw_data_t* parent = nullptr; // null for a root
  lcw_data_t* next = nullptr;   // next sibling in the parent's order
  char const* key = nullptr;    // NUL-terminated member name; null for array elements and roots
  std::uint32_t key_len = 0;
  Kind kind = Kind::Null;
  bool boolean = false;
  Lookup lookup = Lookup::Hint; // objects: which member of the union below is in use
  struct Children {
    lcw_data_t* first;
    lcw_data_t* last;
    union {
      lcw_data_t* hint;     // the member found last: lookups start next to it
      MemberIndex* index;   // the hash index of a large object's members, holding the hint
      std::uint64_t filter; // two bits for each member name present (key_bits)
    };
    Doc* doc; // the root of the tree, whose arena holds this node's children
  };
  struct Text {
    char const* text; // NUL-terminated string bytes or number text
    std::uint32_t len;
    union {
      std::int64_t i;
      std::uint64_t u;
    } v;
  };
  union {
    Children c; // arrays and objects
    Text s;     // strings and numbers
  };

  lcw_data_t() : c{nullptr, nullptr, {nullptr}, nullptr} {}
  bool is_container() const noexcept { return kind == Kind::Array || kind == Kind::Object; }
};

struct lcw_array_iterator_t {
  lcw_data_t* next;
};

struct lcw_object_iterator_t {
  lcw_data_t* next;
};

namespace {

// ---- Arena
// -------------------------------------------------------------------------------------

class Arena {
public:
  Arena() = default;
  Arena(Arena const&) = delete;
  Arena& operator=(Arena const&) = delete;
  ~Arena() {
    Chunk* c = head_;
    while (c != nullptr) {
      Chunk* next = c->next;
      std::free(c);
      c = next;
    }
  }

  void reserve(std::size_t bytes) { next_size_ = std::max(next_size_, bytes); }

  // Forgets everything allocated, keeping the newest (largest) chunk for what comes next.
  void rewind() noexcept {
    if (head_ == nullptr) {
      return;
    }
    Chunk* c = head_->next;
    while (c != nullptr) {
      Chunk* next = c->next;
      std::free(c);
      c = next;
    }
    head_->next = nullptr;
    cur_ = reinterpret_cast<std::uintptr_t>(head_) + sizeof(Chunk);
  }

  void* allocate(std::size_t size, std::size_t align) {
    std::uintptr_t p = (cur_ + (align - 1)) & ~(std::uintptr_t{align} - 1);
    if (head_ == nullptr || p + size > end_) {
      grow(size + align);
      p = (cur_ + (align - 1)) & ~(std::uintptr_t{align} - 1);
    }
    cur_ = p + size;
    return reinterpret_cast<void*>(p);
  }

  template <typename T> T* make() { return ::new (allocate(sizeof(T), alignof(T))) T(); }

  // A NUL-terminated copy of the bytes. Most names and values are short, and are copied in a few
  // word moves rather than a call.
  char const* copy(char const* data, std::size_t n) {
    auto* out = static_cast<char*>(allocate(n + 1, 1));
    if (n <= 16) {
      wlccw::detail::copy_short(out, data, n);
    } else {
      std::memcpy(out, data, n);
    }
    out[n] = '\0';
    return out;
  }

private:
  struct Chunk {
    Chunk* next;
  };

  void grow(std::size_t at_least) {
    std::size_t size = std::max(next_size_, at_least + sizeof(Chunk));
    auto* c = static_cast<Chunk*>(std::malloc(size));
    if (c == nullptr) {
      throw std::bad_alloc();
    }
    c->next = head_;
    head_ = c;
    cur_ = reinterpret_cast<std::uintptr_t>(c) + sizeof(Chunk);
    end_ = reinterpret_cast<std::uintptr_t>(c) + size;
    next_size_ = std::min<std::size_t>(size * 2, std::size_t{1} << 24);
  }

  Chunk* head_ = nullptr;
  std::uintptr_t cur_ = 0;
  std::uintptr_t end_ = 0;
  std::size_t next_size_ = 1024;
};

// Room for a serialised text: grows by doubling and, unlike a std::string, leaves new room
// uncleared, since every byte of it is written before it is read.
class TextBuffer {
public:
  TextBuffer() = default;
  TextBuffer(TextBuffer const&) = delete;
  TextBuffer& operator=(TextBuffer const&) = delete;
  ~TextBuffer() { std::free(data_); }

  char* data() noexcept { return data_; }
  std::size_t capacity() const noexcept { return capacity_; }
  void reserve(std::size_t bytes) {
    if (bytes <= capacity_) {
      return;
    }
    std::size_t const grown = std::max({bytes, capacity_ * 2, std::size_t{256}});
    void* const moved = std::realloc(data_, grown);
    if (moved == nullptr) {
      throw std::bad_alloc();
    }
    data_ = static_cast<char*>(moved);
    capacity_ = grown;
  }

private:
  char* data_ = nullptr;
  std::size_t capacity_ = 0;
};

// A root node together with the storage of its whole tree.
struct Doc : lcw_data_t {
  Doc() { c.doc = this; }

  // Makes the root an empty node again and forgets the tree, keeping the arena's largest chunk:
  // the next tree built here allocates nothing while it fits.
  void reuse() noexcept {
    arena.rewind();
    static_cast<lcw_data_t&>(*this) = lcw_data_t();
    c.doc = this;
  }

  Arena arena;
  TextBuffer out; // the last serialised text of any node of this tree, NUL-terminated
};

// The root of a node's tree in constant time: every container knows it, a scalar asks its parent,
// and a root without a parent is the root.
Doc* doc_of(lcw_data_t const* node) {
  if (node->is_container()) {
    return node->c.doc;
  }
  if (node->parent == nullptr) {
    return static_cast<Doc*>(const_cast<lcw_data_t*>(node));
  }
  return node->parent->c.doc;
}

Doc* new_doc(Kind kind) {
  auto* d = new (std::nothrow) Doc();
  if (d != nullptr) {
    d->kind = kind;
    if (kind == Kind::Object) {
      d->lookup = Lookup::Filter;
      d->c.filter = 0;
    }
  }
  return d;
}

constexpr std::size_t max_depth = 512;
constexpr std::size_t max_text_len = std::numeric_limits<std::uint32_t>::max() - 1;

// ---- Structure
// ---------------------------------------------------------------------------------

// An open-addressing table of an object's members by name, built once a lookup
// has had to scan many members: objects that are read in document order never
// need one, objects that are written member by member or searched for names
// they lack get O(1) lookups instead of a scan each. Of members with the same
// name, the first one is indexed.
struct MemberIndex {
  std::size_t mask; // capacity - 1; the capacity is a power of two, at least
                    // twice the count
  std::size_t count;
  lcw_data_t** slots;
  lcw_data_t* hint; // the object's hint, which the index displaces from the node
};

MemberIndex* index_of(lcw_data_t const* object) {
  return object->lookup == Lookup::Index ? object->c.index : nullptr;
}

// A 64-bit mix of a member name, from its length and its first, middle and last eight bytes: a
// few loads and multiplications whatever the length, which is all that member names need to be
// told apart (names of up to 24 bytes take part whole).
inline std::uint64_t key_mix(char const* p, std::size_t n) {
  std::uint64_t h = (n + 1) * 0x9E3779B97F4A7C15ULL;
  if (n >= 8) {
    std::uint64_t head;
    std::uint64_t tail;
    std::memcpy(&head, p, 8);
    std::memcpy(&tail, p + n - 8, 8);
    h ^= head * 0xC2B2AE3D27D4EB4FULL;
    h ^= (tail ^ (tail >> 29U)) * 0x165667B19E3779F9ULL;
    if (n > 16) {
      std::uint64_t middle;
      std::memcpy(&middle, p + n / 2 - 4, 8);
      h ^= (middle ^ (middle >> 31U)) * 0x27D4EB2F165667C5ULL;
    }
  } else if (n >= 4) {
    std::uint32_t head;
    std::uint32_t tail;
    std::memcpy(&head, p, 4);
    std::memcpy(&tail, p + n - 4, 4);
    h ^= (head | (std::uint64_t{tail} << 32U)) * 0xC2B2AE3D27D4EB4FULL;
  } else if (n > 0) {
    auto const byte = [p](std::size_t i) {
      return std::uint64_t{static_cast<unsigned char>(p[i])};
    };
    h ^= (byte(0) | (byte(n / 2) << 8U) | (byte(n - 1) << 16U)) * 0xC2B2AE3D27D4EB4FULL;
  }
  return h ^ (h >> 32U);
}

// The bits a member name sets in an object's filter: two of 64.
std::uint64_t key_bits(char const* p, std::size_t n) {
  std::uint64_t const h = key_mix(p, n);
  return (std::uint64_t{1} << (h & 63U)) | (std::uint64_t{1} << ((h >> 6U) & 63U));
}

// An object gets an index once one lookup has had to scan this many of its members: an
// object read in document order never scans, one searched for names it lacks is indexed early.
constexpr std::size_t index_after_scanning = 16;

// The slot a member name starts probing from in an index (the high half of a multiplied mix,
// whose low bits are what the table's mask keeps).
inline std::size_t key_hash(char const* p, std::size_t n) {
  return static_cast<std::size_t>((key_mix(p, n) * 0x9E3779B97F4A7C15ULL) >> 32U);
}

// Whether the n bytes at a and at b are equal. Names of up to 24 bytes, nearly all of them, are
// compared in at most three overlapping loads from each side, without a call; longer ones are told
// apart by their first and last eight bytes before the rest is compared.
bool same_name(char const* a, char const* b, std::size_t n) noexcept {
  auto const load8 = [](char const* p) {
    std::uint64_t v;
    std::memcpy(&v, p, sizeof v);
    return v;
  };
  auto const load4 = [](char const* p) {
    std::uint32_t v;
    std::memcpy(&v, p, sizeof v);
    return v;
  };
  if (n >= 8) {
    if (load8(a) != load8(b) || load8(a + n - 8) != load8(b + n - 8)) {
      return false;
    }
    if (n <= 16) {
      return true;
    }
    if (n <= 24) {
      return load8(a + 8) == load8(b + 8);
    }
    return std::memcmp(a + 8, b + 8, n - 16) == 0;
  }
  if (n >= 4) {
    return load4(a) == load4(b) && load4(a + n - 4) == load4(b + n - 4);
  }
  for (std::size_t i = 0; i < n; ++i) {
    if (a[i] != b[i]) {
      return false;
    }
  }
  return true;
}

bool key_is(lcw_data_t const* member, char const* key, std::size_t len) {
  return member->key_len == len && same_name(member->key, key, len);
}

lcw_data_t* index_find(MemberIndex const* ix, char const* key, std::size_t len) {
  for (std::size_t i = key_hash(key, len) & ix->mask;; i = (i + 1) & ix->mask) {
    lcw_data_t* m = ix->slots[i];
    if (m == nullptr || key_is(m, key, len)) {
      return m;
    }
  }
}

inline void index_put(MemberIndex* ix, lcw_data_t* member) {
  for (std::size_t i = key_hash(member->key, member->key_len) & ix->mask;; i = (i + 1) & ix->mask) {
    lcw_data_t*& slot = ix->slots[i];
    if (slot == nullptr) {
      slot = member;
      ++ix->count;
      return;
    }
    if (key_is(slot, member->key, member->key_len)) {
      return; // the first member of that name stays indexed
    }
  }
}

// A new table for the object's members, with room for at least `members` of
// them.
MemberIndex* build_index(Arena& arena, lcw_data_t* object, std::size_t members) {
  std::size_t capacity = 32;
  while (capacity < members * 2) {
    capacity *= 2;
  }
  auto* ix = arena.make<MemberIndex>();
  ix->mask = capacity - 1;
  ix->count = 0;
  ix->hint = object->lookup == Lookup::Hint ? object->c.hint : nullptr;
  ix->slots = static_cast<lcw_data_t**>(
      arena.allocate(capacity * sizeof(lcw_data_t*), alignof(lcw_data_t*)));
  std::memset(static_cast<void*>(ix->slots), 0, capacity * sizeof(lcw_data_t*));
  for (lcw_data_t* m = object->c.first; m != nullptr; m = m->next) {
    index_put(ix, m);
  }
  object->c.index = ix;
  object->lookup = Lookup::Index;
  return ix;
}

// Appends a node to a container. `bits` are the key_bits of the node's name when the caller has
// them already (zero: not known, worked out here if the parent filters names).
void append_child(lcw_data_t* parent, lcw_data_t* child, std::uint64_t bits = 0) {
  child->parent = parent;
  child->next = nullptr;
  if (parent->c.last == nullptr) {
    parent->c.first = child;
  } else {
    parent->c.last->next = child;
  }
  parent->c.last = child;
  if (parent->lookup == Lookup::Filter) {
    parent->c.filter |= bits != 0 ? bits : key_bits(child->key, child->key_len);
  } else if (MemberIndex* ix = index_of(parent)) {
    if ((ix->count + 1) * 2 > ix->mask + 1) {
      build_index(doc_of(parent)->arena, parent,
                  ix->count + 1); // grows; the old table is left
    } else {
      index_put(ix, child);
    }
  }
}

// Counts the members of an object and gives it a hash index of them.
void index_members(lcw_data_t* object) {
  std::size_t members = 0;
  for (lcw_data_t const* m = object->c.first; m != nullptr; m = m->next) {
    ++members;
  }
  build_index(doc_of(object)->arena, object, members);
}

// The member with the given name in an object that filters names. A name the filter lacks is
// absent; otherwise the members are scanned. Once a name is found the object is being read, and
// it turns to hint lookups, which read in document order in constant time.
lcw_data_t* find_filtered_member(lcw_data_t* object, char const* key, std::size_t len) {
  std::uint64_t const bits = key_bits(key, len);
  if ((object->c.filter & bits) != bits) {
    return nullptr;
  }
  std::size_t scanned = 0;
  for (lcw_data_t* m = object->c.first; m != nullptr; m = m->next, ++scanned) {
    if (key_is(m, key, len)) {
      object->lookup = Lookup::Hint;
      object->c.hint = m;
      return m;
    }
  }
  if (scanned >= index_after_scanning) {
    index_members(object);
  }
  return nullptr;
}

// The member with the given name, when find_member has found that the member after the one
// found last is not it: the member found last itself (reading the same member twice), then the
// index if the object has one, else a scan from that successor to the end and on from the start.
[[gnu::noinline]] lcw_data_t* find_other_member(lcw_data_t* object, char const* key,
                                                std::size_t len) {
  if (object->lookup == Lookup::Filter) {
    return find_filtered_member(object, key, len);
  }
  lcw_data_t* const last = object->lookup == Lookup::Index ? object->c.index->hint : object->c.hint;
  lcw_data_t* const next = last != nullptr && last->next != nullptr ? last->next : object->c.first;
  if (next == nullptr) {
    return nullptr;
  }
  if (last != nullptr && key_is(last, key, len)) {
    return last;
  }
  lcw_data_t* found = nullptr;
  if (MemberIndex const* ix = index_of(object)) {
    found = index_find(ix, key, len);
  } else {
    std::size_t scanned = 0;
    for (lcw_data_t* m = next->next; m != nullptr && found == nullptr; m = m->next, ++scanned) {
      if (key_is(m, key, len)) {
        found = m;
      }
    }
    for (lcw_data_t* m = object->c.first; m != next && found == nullptr; m = m->next, ++scanned) {
      if (key_is(m, key, len)) {
        found = m;
      }
    }
    if (scanned >= index_after_scanning) {
      index_members(object);
    }
  }
  if (found != nullptr) {
    // The index may have been built just now, and it holds the hint from then on.
    (object->lookup == Lookup::Index ? object->c.index->hint : object->c.hint) = found;
  }
  return found;
}

// The member with the given name. The object remembers the member found last, and its successor
// is tried first, here: reading members in document order hits it, at the cost of one comparison.
// Everything else is find_other_member's.
inline lcw_data_t* find_member(lcw_data_t const* node, char const* key, std::size_t len) {
  if (node == nullptr || key == nullptr || node->kind != Kind::Object) {
    return nullptr;
  }
  auto* object = const_cast<lcw_data_t*>(node);
  if (object->lookup != Lookup::Filter) {
    // An indexed object keeps its hint in the index, and is read in document order all the same.
    lcw_data_t*& hint = object->lookup == Lookup::Hint ? object->c.hint : object->c.index->hint;
    lcw_data_t* const last = hint;
    lcw_data_t* const next =
        last != nullptr && last->next != nullptr ? last->next : object->c.first;
    if (next != nullptr && key_is(next, key, len)) {
      hint = next;
      return next;
    }
  }
  return find_other_member(object, key, len);
}

inline lcw_data_t* find_member(lcw_data_t const* node, char const* key) {
  if (key == nullptr) {
    return nullptr;
  }
  return find_member(node, key, std::strlen(key));
}

// Turns a node into an empty value of the given kind, keeping its place and
// name.
void reset_value(lcw_data_t* node, Kind kind) {
  Doc* const doc = doc_of(node);
  node->kind = kind;
  node->boolean = false;
  // An object made by a writer filters its names: writers mostly add names that are new.
  node->lookup = kind == Kind::Object ? Lookup::Filter : Lookup::Hint;
  node->c.first = nullptr;
  node->c.last = nullptr;
  node->c.hint = nullptr;
  node->c.filter = 0;
  node->c.doc = doc;
}

// The node that a write to member `key` of `parent` fills: the existing member
// (kept in place), a new member appended to an object (key given), or a new
// element appended to an array (key null). Null when the parent cannot hold it:
// a scalar, an object without a key, an array with one.
lcw_data_t* slot(lcw_data_t* parent, char const* key) {
  if (parent == nullptr) {
    return nullptr;
  }
  if (parent->kind == Kind::Array) {
    if (key != nullptr) {
      return nullptr;
    }
    auto* node = doc_of(parent)->arena.make<lcw_data_t>();
    append_child(parent, node);
    return node;
  }
  if (parent->kind != Kind::Object || key == nullptr) {
    return nullptr;
  }
  std::size_t const len = std::strlen(key);
  if (len > max_text_len) {
    return nullptr;
  }
  std::uint64_t bits = 0;
  if (parent->lookup == Lookup::Filter) {
    // Writers mostly add new names: the filter tells most of them apart without a lookup.
    bits = key_bits(key, len);
    if ((parent->c.filter & bits) == bits) {
      if (lcw_data_t* existing = find_filtered_member(parent, key, len)) {
        return existing;
      }
    }
  } else if (lcw_data_t* existing = find_member(parent, key, len)) {
    return existing;
  }
  Arena& arena = doc_of(parent)->arena;
  auto* node = arena.make<lcw_data_t>();
  node->key = arena.copy(key, len);
  node->key_len = static_cast<std::uint32_t>(len);
  // The parent may have turned from filtering to another lookup on the way.
  append_child(parent, node, parent->lookup == Lookup::Filter ? bits : 0);
  return node;
}

// ---- Scalars
// -----------------------------------------------------------------------------------

void set_string(lcw_data_t* node, char const* text, std::size_t len) {
  reset_value(node, Kind::String);
  node->s.text = doc_of(node)->arena.copy(text, len);
  node->s.len = static_cast<std::uint32_t>(len);
}

template <typename T> void set_integer(lcw_data_t* node, T value) {
  char buf[wlccw::detail::json_integer_room];
  std::size_t const len = wlccw::detail::json_integer_text(buf, value);
  if constexpr (std::is_signed_v<T>) {
    reset_value(node, Kind::Int);
    node->s.v.i = static_cast<std::int64_t>(value);
  } else {
    reset_value(node, Kind::UInt);
    node->s.v.u = static_cast<std::uint64_t>(value);
  }
  node->s.text = doc_of(node)->arena.copy(buf, len);
  node->s.len = static_cast<std::uint32_t>(len);
}

void set_bool(lcw_data_t* node, bool value) {
  reset_value(node, Kind::Bool);
  node->boolean = value;
}

char const* scalar_text(lcw_data_t const* node) {
  if (node == nullptr) {
    return "";
  }
  switch (node->kind) {
  case Kind::String:
  case Kind::Int:
  case Kind::UInt:
  case Kind::Double:
    return node->s.text;
  case Kind::Bool:
    return node->boolean ? "true" : "false";
  default:
    return "";
  }
}

// An integer value of a node: a JSON integer, or a string whose whole text is
// one decimal integer with an optional leading "-".
struct Integer {
  bool negative;     // value is -magnitude
  std::uint64_t mag; // magnitude
};

std::optional<Integer> decimal_text(char const* p, std::size_t n) {
  Integer r{false, 0};
  if (n != 0 && *p == '-') {
    r.negative = true;
    ++p;
    --n;
  }
  if (n == 0) {
    return std::nullopt;
  }
  for (std::size_t i = 0; i < n; ++i) {
    char const ch = p[i];
    if (ch < '0' || ch > '9') {
      return std::nullopt;
    }
    auto const d = static_cast<std::uint64_t>(ch - '0');
    if (r.mag > (std::numeric_limits<std::uint64_t>::max() - d) / 10) {
      return std::nullopt; // beyond every reader's range
    }
    r.mag = r.mag * 10 + d;
  }
  return r;
}

std::optional<Integer> integer_of(lcw_data_t const* node) {
  if (node == nullptr) {
    return std::nullopt;
  }
  switch (node->kind) {
  case Kind::Int:
    if (node->s.v.i < 0) {
      return Integer{true, 0 - static_cast<std::uint64_t>(node->s.v.i)};
    }
    return Integer{false, static_cast<std::uint64_t>(node->s.v.i)};
  case Kind::UInt:
    return Integer{false, node->s.v.u};
  case Kind::String:
    return decimal_text(node->s.text, node->s.len);
  default:
    return std::nullopt;
  }
}

template <typename T> std::optional<T> integer_as(lcw_data_t const* node) {
  std::optional<Integer> const v = integer_of(node);
  if (!v) {
    return std::nullopt;
  }
  if (v->negative && v->mag != 0) {
    if constexpr (std::is_signed_v<T>) {
      // -mag fits when mag <= |min| = max + 1
      auto const limit = static_cast<std::uint64_t>(std::numeric_limits<T>::max()) + 1U;
      if (v->mag > limit) {
        return std::nullopt;
      }
      return static_cast<T>(-static_cast<std::int64_t>(v->mag - 1) - 1);
    } else {
      return std::nullopt;
    }
  }
  if (v->mag > static_cast<std::uint64_t>(std::numeric_limits<T>::max())) {
    return std::nullopt;
  }
  return static_cast<T>(v->mag);
}

template <typename T> T member_integer(lcw_data_t const* node, char const* key) {
  return integer_as<T>(find_member(node, key)).value_or(T{0});
}

template <typename T> void set_member_integer(lcw_data_t* node, char const* key, T value) {
  if (lcw_data_t* m = slot(node, key)) {
    set_integer(m, value);
  }
}

// ---- Parsing
// -----------------------------------------------------------------------------------

// What Boost.JSON's event parser asks of a handler besides its events.
struct HandlerTypes {
  using error_code = boost::json::error_code;
  using string_view = boost::json::string_view;

  static constexpr std::size_t max_array_size = static_cast<std::size_t>(-1);
  static constexpr std::size_t max_object_size = static_cast<std::size_t>(-1);
  static constexpr std::size_t max_string_size = max_text_len;
  static constexpr std::size_t max_key_size = max_text_len;
};

// The options of every parse: nesting bounded, invalid UTF-8 inside strings accepted (an SSID
// decoded from "&#xff;" must survive the trip between daemons).
boost::json::parse_options parse_options() {
  boost::json::parse_options options;
  options.max_depth = max_depth;
  options.allow_invalid_utf8 = true;
  return options;
}

// Calls fn(name, length) for each member name of a "/"-separated path, in order; empty names
// (doubled, leading or trailing slashes) are skipped.
template <typename Fn> bool for_each_path_name(char const* path, Fn&& fn) {
  for (char const* p = path; *p != '\0';) {
    if (*p == '/') {
      ++p;
      continue;
    }
    char const* end = std::strchr(p, '/');
    std::size_t const len = end != nullptr ? static_cast<std::size_t>(end - p) : std::strlen(p);
    if (!fn(p, len)) {
      return false;
    }
    p += len;
  }
  return true;
}

class Builder : public HandlerTypes {
public:
  explicit Builder(std::size_t text_len) { reserve_ = text_len; }
  /// Builds into root, which stays the caller's, instead of a new root.
  explicit Builder(Doc* root) : reuse_(root) {}

  Doc* release() noexcept { return std::exchange(doc_, nullptr); }
  ~Builder() {
    if (doc_ != reuse_) {
      delete doc_;
    }
  }
  Builder(Builder const&) = delete;
  Builder& operator=(Builder const&) = delete;

  bool on_document_begin(error_code&) { return true; }
  bool on_document_end(error_code&) { return true; }

  bool on_array_begin(error_code&) {
    open(Kind::Array);
    return true;
  }
  bool on_array_end(std::size_t, error_code&) {
    top_ = top_->parent;
    return true;
  }
  bool on_object_begin(error_code&) {
    open(Kind::Object);
    return true;
  }
  bool on_object_end(std::size_t, error_code&) {
    top_ = top_->parent;
    return true;
  }

  bool on_string_part(string_view s, std::size_t, error_code&) {
    part_.append(s.data(), s.size());
    return true;
  }
  bool on_string(string_view s, std::size_t, error_code&) {
    lcw_data_t* n = value(Kind::String);
    n->s.text = finish_text(s, n->s.len);
    return true;
  }

  bool on_key_part(string_view s, std::size_t, error_code&) {
    part_.append(s.data(), s.size());
    return true;
  }
  bool on_key(string_view s, std::size_t, error_code&) {
    key_ = finish_text(s, key_len_);
    return true;
  }

  bool on_number_part(string_view s, error_code&) {
    part_.append(s.data(), s.size());
    return true;
  }
  bool on_int64(std::int64_t i, string_view s, error_code&) {
    lcw_data_t* n = number(Kind::Int, s);
    n->s.v.i = i;
    return true;
  }
  bool on_uint64(std::uint64_t u, string_view s, error_code&) {
    lcw_data_t* n = number(Kind::UInt, s);
    n->s.v.u = u;
    return true;
  }
  bool on_double(double, string_view s, error_code&) {
    number(Kind::Double, s);
    return true;
  }
  bool on_bool(bool b, error_code&) {
    value(Kind::Bool)->boolean = b;
    return true;
  }
  bool on_null(error_code&) {
    value(Kind::Null);
    return true;
  }
  bool on_comment_part(string_view, error_code&) { return true; }
  bool on_comment(string_view, error_code&) { return true; }

private:
  // A new node for the next value: the root, or a child of the open container.
  lcw_data_t* value(Kind kind) {
    lcw_data_t* n = nullptr;
    if (doc_ == nullptr) {
      if (reuse_ != nullptr) {
        reuse_->reuse();
        doc_ = reuse_;
      } else {
        doc_ = new Doc();
        doc_->arena.reserve(reserve_ * 2 + 256);
      }
      n = doc_;
    } else {
      n = doc_->arena.make<lcw_data_t>();
      if (top_->kind == Kind::Object) {
        n->key = key_;
        n->key_len = key_len_;
      }
      append_child(top_, n);
    }
    n->kind = kind;
    if (n->is_container()) {
      n->c.doc = doc_;
    }
    return n;
  }

  void open(Kind kind) { top_ = value(kind); }

  lcw_data_t* number(Kind kind, string_view s) {
    lcw_data_t* n = value(kind);
    n->s.text = finish_text(s, n->s.len);
    return n;
  }

  // The arena copy of a string, key or number whose last piece is s: the parser hands over texts
  // that escapes or buffer ends split as earlier pieces, gathered in part_.
  char const* finish_text(string_view s, std::uint32_t& len) {
    char const* text = nullptr;
    if (part_.empty()) {
      text = doc_->arena.copy(s.data(), s.size());
      len = static_cast<std::uint32_t>(s.size());
    } else {
      part_.append(s.data(), s.size());
      text = doc_->arena.copy(part_.data(), part_.size());
      len = static_cast<std::uint32_t>(part_.size());
      part_.clear();
    }
    return text;
  }

  Doc* doc_ = nullptr;
  lcw_data_t* top_ = nullptr;
  char const* key_ = nullptr;
  std::uint32_t key_len_ = 0;
  std::string part_; // pieces of a string, key or number split by escapes
  std::size_t reserve_ = 0;
  Doc* reuse_ = nullptr;
};

// ---- Reading the elements of one array, one at a time
// ----------------------------------------------------------

// A handler that builds only the elements of the array at a path, each as a tree of its own,
// hands each to a callback as soon as it is complete and releases it: the rest of the text is
// checked by the parser but never built. The path is followed as cfg_get_subtree_from_path
// follows it in the whole tree: member names in order, the first member of each name.
class ElementStream : public HandlerTypes {
public:
  ElementStream(char const* path, void (*fn)(lcw_data_t*, void*), void* ctx) : fn_(fn), ctx_(ctx) {
    for_each_path_name(path, [this](char const* name, std::size_t len) {
      segments_.emplace_back(name, len);
      return true;
    });
    scratch_.arena.reserve(4096); // about what an AP's client object takes
  }

  /// The exception the callback threw, which stopped the parse.
  std::exception_ptr const& failure() const noexcept { return failure_; }

  bool on_document_begin(error_code&) { return true; }
  bool on_document_end(error_code&) { return true; }

  bool on_array_begin(error_code& ec) { return begin(Kind::Array, ec); }
  bool on_array_end(std::size_t n, error_code& ec) {
    if (element_) {
      return element_->on_array_end(n, ec) && end_of_container(ec);
    }
    frames_.pop_back();
    return true;
  }
  bool on_object_begin(error_code& ec) { return begin(Kind::Object, ec); }
  bool on_object_end(std::size_t n, error_code& ec) {
    if (element_) {
      return element_->on_object_end(n, ec) && end_of_container(ec);
    }
    frames_.pop_back();
    return true;
  }

  bool on_string_part(string_view s, std::size_t n, error_code& ec) {
    start_scalar_element();
    return !element_ || element_->on_string_part(s, n, ec);
  }
  bool on_string(string_view s, std::size_t n, error_code& ec) {
    return scalar(ec, [&](Builder& b) { return b.on_string(s, n, ec); });
  }
  bool on_key_part(string_view s, std::size_t n, error_code& ec) {
    if (element_) {
      return element_->on_key_part(s, n, ec);
    }
    key_.append(s.data(), s.size());
    return true;
  }
  bool on_key(string_view s, std::size_t n, error_code& ec) {
    if (element_) {
      return element_->on_key(s, n, ec);
    }
    key_.append(s.data(), s.size());
    // The value after this key is on the path when the object is, the key is the next name of
    // the path and no member of that name came before it.
    Frame& frame = frames_.back();
    std::size_t const depth = frames_.size() - 1;
    next_on_path_ = frame.on_path && depth < segments_.size() && !frame.matched &&
                    std::string_view(key_) == segments_[depth];
    if (next_on_path_) {
      frame.matched = true;
    }
    key_.clear();
    return true;
  }
  bool on_number_part(string_view s, error_code& ec) {
    start_scalar_element();
    return !element_ || element_->on_number_part(s, ec);
  }
  bool on_int64(std::int64_t i, string_view s, error_code& ec) {
    return scalar(ec, [&](Builder& b) { return b.on_int64(i, s, ec); });
  }
  bool on_uint64(std::uint64_t u, string_view s, error_code& ec) {
    return scalar(ec, [&](Builder& b) { return b.on_uint64(u, s, ec); });
  }
  bool on_double(double d, string_view s, error_code& ec) {
    return scalar(ec, [&](Builder& b) { return b.on_double(d, s, ec); });
  }
  bool on_bool(bool v, error_code& ec) {
    return scalar(ec, [&](Builder& b) { return b.on_bool(v, ec); });
  }
  bool on_null(error_code& ec) {
    return scalar(ec, [&](Builder& b) { return b.on_null(ec); });
  }
  bool on_comment_part(string_view, error_code&) { return true; }
  bool on_comment(string_view, error_code&) { return true; }

private:
  // A container the parse is in, outside the elements.
  struct Frame {
    Kind kind;
    bool on_path; // reached by following the path's first names
    bool matched; // the member of the next name has been met
  };

  // Whether the next value is on the path: the root always is, a member when its key said so.
  bool value_on_path() const noexcept { return frames_.empty() || next_on_path_; }

  // Whether the next value is an element of the array at the path.
  bool in_target() const noexcept {
    return !frames_.empty() && frames_.back().kind == Kind::Array && frames_.back().on_path &&
           frames_.size() - 1 == segments_.size();
  }

  bool begin(Kind kind, error_code& ec) {
    if (!element_ && in_target()) {
      element_.emplace(&scratch_);
      depth_ = 0;
    }
    if (element_) {
      ++depth_;
      return kind == Kind::Array ? element_->on_array_begin(ec) : element_->on_object_begin(ec);
    }
    bool const on_path = value_on_path() && frames_.size() <= segments_.size();
    frames_.push_back({kind, on_path, false});
    next_on_path_ = false;
    return true;
  }

  bool end_of_container(error_code& ec) {
    if (--depth_ == 0) {
      return deliver(ec);
    }
    return true;
  }

  // A scalar element of the array starts with its first piece: a string or number split by
  // escapes or buffer ends comes in parts before its last one.
  void start_scalar_element() {
    if (!element_ && in_target()) {
      element_.emplace(&scratch_);
      depth_ = 0;
    }
  }

  template <typename Event> bool scalar(error_code& ec, Event&& event) {
    start_scalar_element();
    if (element_) {
      if (!event(*element_)) {
        return false;
      }
      return depth_ == 0 ? deliver(ec) : true;
    }
    next_on_path_ = false;
    return true;
  }

  // Hands the finished element to the callback; the next element is built in its place. An
  // exception from the callback stops the parse and is kept for the caller to rethrow.
  bool deliver(error_code& ec) {
    Doc* const element = element_->release();
    element_.reset();
    try {
      fn_(element, ctx_);
    } catch (...) {
      failure_ = std::current_exception();
      ec = boost::json::make_error_code(boost::json::error::exception);
      return false;
    }
    return true;
  }

  void (*fn_)(lcw_data_t*, void*);
  void* ctx_;
  std::vector<std::string_view> segments_;
  std::vector<Frame> frames_;
  std::string key_; // the pieces of a key outside the elements
  bool next_on_path_ = false;
  // Every element is built in this one root, so that once its arena has grown to the largest
  // element the reading allocates nothing more for trees, and the memory stays in the cache.
  Doc scratch_;
  std::optional<Builder> element_;
  std::size_t depth_ = 0; // containers open inside the element
  std::exception_ptr failure_;
};

// ---- Serialising
// -------------------------------------------------------------------------------

// An output buffer written through a raw cursor: room is made once per piece,
// not per character. The text is NUL-terminated when the writer is done.
class Writer {
public:
  explicit Writer(TextBuffer& out) : out_(out) {}
  Writer(Writer const&) = delete;
  Writer& operator=(Writer const&) = delete;
  ~Writer() = default;

  char* room(std::size_t n) {
    if (out_.capacity() - pos_ < n) {
      out_.reserve(pos_ + n);
    }
    return out_.data() + pos_;
  }
  void advance(std::size_t n) { pos_ += n; }
  void put(char ch) {
    *room(1) = ch;
    ++pos_;
  }
  void put(char const* p, std::size_t n) {
    std::memcpy(room(n), p, n);
    pos_ += n;
  }
  /// Terminates the text; returns it.
  char const* finish() {
    *room(1) = '\0';
    return out_.data();
  }

private:
  TextBuffer& out_;
  std::size_t pos_ = 0;
};

void write_string(Writer& w, char const* p, std::size_t n) {
  wlccw::detail::write_json_string(w, p, n);
}

void write_scalar(Writer& w, lcw_data_t const* n) {
  switch (n->kind) {
  case Kind::Null:
    w.put("null", 4);
    break;
  case Kind::Bool:
    if (n->boolean) {
      w.put("true", 4);
    } else {
      w.put("false", 5);
    }
    break;
  case Kind::Int:
  case Kind::UInt:
  case Kind::Double:
    w.put(n->s.text, n->s.len);
    break;
  case Kind::String:
    write_string(w, n->s.text, n->s.len);
    break;
  default:
    break;
  }
}

// Writes a node and everything below it without recursion: the walk follows
// first-child, next sibling and parent links, so any depth is safe.
void write_node(Writer& out, lcw_data_t const* top) {
  lcw_data_t const* n = top;
  while (true) {
    if (n->parent != nullptr && n != top) {
      if (n != n->parent->c.first) {
        out.put(',');
      }
      if (n->parent->kind == Kind::Object) {
        write_string(out, n->key, n->key_len);
        out.put(':');
      }
    }
    if (n->is_container()) {
      out.put(n->kind == Kind::Object ? '{' : '[');
      if (n->c.first != nullptr) {
        n = n->c.first;
        continue;
      }
      out.put(n->kind == Kind::Object ? '}' : ']');
    } else {
      write_scalar(out, n);
    }
    // Climb until a node with a next sibling, closing the containers left
    // behind.
    while (n != top && n->next == nullptr) {
      n = n->parent;
      out.put(n->kind == Kind::Object ? '}' : ']');
    }
    if (n == top) {
      return;
    }
    n = n->next;
  }
}

// ---- Copying
// -----------------------------------------------------------------------------------

bool is_scalar_with_text(Kind kind) {
  return kind == Kind::String || kind == Kind::Int || kind == Kind::UInt || kind == Kind::Double;
}

void copy_scalar(Arena& arena, lcw_data_t* d, lcw_data_t const* s) {
  reset_value(d, s->kind);
  d->boolean = s->boolean;
  if (is_scalar_with_text(s->kind)) {
    d->s.text = arena.copy(s->s.text, s->s.len);
    d->s.len = s->s.len;
    d->s.v = s->s.v;
  }
}

// Copies the value of src (not its name) into dst, where dst is not src nor
// inside it. Iterative for the same reason as write_node.
void copy_disjoint(lcw_data_t* dst, lcw_data_t const* src) {
  Arena& arena = doc_of(dst)->arena;
  copy_scalar(arena, dst, src);
  if (!src->is_container()) {
    return;
  }
  lcw_data_t const* cur = src->c.first;
  lcw_data_t* dparent = dst;
  while (cur != nullptr) {
    auto* child = arena.make<lcw_data_t>();
    if (dparent->kind == Kind::Object) {
      child->key = arena.copy(cur->key, cur->key_len);
      child->key_len = cur->key_len;
    }
    append_child(dparent, child);
    copy_scalar(arena, child, cur);
    if (cur->is_container() && cur->c.first != nullptr) {
      dparent = child;
      cur = cur->c.first;
      continue;
    }
    // Climb until a source node with a next sibling; the destination climbs
    // alongside.
    while (cur != src && cur->next == nullptr) {
      cur = cur->parent;
      dparent = dparent->parent;
    }
    if (cur == src) {
      return;
    }
    cur = cur->next;
  }
}

// Whether node is outer itself or lies inside it.
bool contains(lcw_data_t const* outer, lcw_data_t const* node) {
  for (lcw_data_t const* a = node; a != nullptr; a = a->parent) {
    if (a == outer) {
      return true;
    }
  }
  return false;
}

// Copies the value of src into dst. When dst is src itself or lies inside it,
// src is first copied aside, so the copy never reads what it is writing.
void copy_value(lcw_data_t* dst, lcw_data_t const* src) {
  if (contains(src, dst)) {
    std::unique_ptr<Doc> aside(new Doc());
    copy_disjoint(aside.get(), src);
    copy_disjoint(dst, aside.get());
    return;
  }
  copy_disjoint(dst, src);
}

} // namespace

// ==== The interface
// =============================================================================

lcw_data_t* cfg_get_empty() {
  return new_doc(Kind::Object);
}

lcw_data_t* cfg_get_empty_array() {
  return new_doc(Kind::Array);
}

lcw_data_t* cfg_parse_buffer(char const* text) {
  if (text == nullptr) {
    return nullptr;
  }
  std::size_t const len = std::strlen(text);
  boost::json::basic_parser<Builder> parser(parse_options(), len);
  boost::json::error_code ec;
  std::size_t const used = parser.write_some(false, text, len, ec);
  if (ec || !parser.done() || used != len) {
    return nullptr;
  }
  return parser.handler().release();
}

bool cfg_parse_array_elements(char const* text, char const* path,
                              void (*fn)(lcw_data_t* element, void* ctx), void* ctx) {
  if (text == nullptr || path == nullptr || fn == nullptr) {
    return false;
  }
  std::size_t const len = std::strlen(text);
  boost::json::basic_parser<ElementStream> parser(parse_options(), path, fn, ctx);
  boost::json::error_code ec;
  std::size_t const used = parser.write_some(false, text, len, ec);
  if (std::exception_ptr const failure = parser.handler().failure()) {
    std::rethrow_exception(failure);
  }
  return !ec && parser.done() && used == len;
}

char const* cfg_serialize_compact(lcw_data_t const* node) {
  if (node == nullptr) {
    return "";
  }
  Doc* doc = doc_of(node);
  Writer w(doc->out);
  write_node(w, node);
  return w.finish();
}

std::string cfg_create_string_compact(std::function<lcw_data_t*()> const& make_root,
                                      std::function<void(lcw_data_t&)> const& fill) {
  std::unique_ptr<lcw_data_t, void (*)(lcw_data_t*)> root(make_root(), cfg_release);
  if (!root) {
    return {};
  }
  fill(*root);
  return std::string(cfg_serialize_compact(root.get()));
}

void cfg_release(lcw_data_t* root) {
  if (root == nullptr || root->parent != nullptr) {
    return; // only roots are released; a borrowed node lives with its root
  }
  delete static_cast<Doc*>(root);
}

int cfg_is_empty(lcw_data_t const* node) {
  if (node == nullptr || !node->is_container()) {
    return 1;
  }
  return node->c.first == nullptr ? 1 : 0;
}

// ---- Reading members
// ---------------------------------------------------------------------------

int cfg_contain_param(lcw_data_t const* node, char const* key) {
  return find_member(node, key) != nullptr ? 1 : 0;
}

char const* cfg_get_param(lcw_data_t const* node, char const* key) {
  return scalar_text(find_member(node, key));
}

int cfg_get_boolean_param(lcw_data_t const* node, char const* key) {
  lcw_data_t const* m = find_member(node, key);
  return m != nullptr && m->kind == Kind::Bool && m->boolean ? 1 : 0;
}

int cfg_get_int_param(lcw_data_t const* node, char const* key) {
  return member_integer<int>(node, key);
}
unsigned int cfg_get_uint_param(lcw_data_t const* node, char const* key) {
  return member_integer<unsigned int>(node, key);
}
std::uint8_t cfg_get_uint8_param(lcw_data_t const* node, char const* key) {
  return member_integer<std::uint8_t>(node, key);
}
std::uint16_t cfg_get_uint16_param(lcw_data_t const* node, char const* key) {
  return member_integer<std::uint16_t>(node, key);
}
std::uint32_t cfg_get_uint32_param(lcw_data_t const* node, char const* key) {
  return member_integer<std::uint32_t>(node, key);
}
std::uint64_t cfg_get_uint64_param(lcw_data_t const* node, char const* key) {
  return member_integer<std::uint64_t>(node, key);
}

signed char cfg_get_int8_param_with_custom_default(lcw_data_t const* node, char const* key,
                                                   signed char def) {
  return integer_as<signed char>(find_member(node, key)).value_or(def);
}

std::optional<std::string> cfg_get_param_opt(lcw_data_t const* node, char const* key) {
  lcw_data_t const* m = find_member(node, key);
  if (m == nullptr || m->is_container() || m->kind == Kind::Null) {
    return std::nullopt;
  }
  if (m->kind == Kind::Bool) {
    return std::string(m->boolean ? "true" : "false");
  }
  return std::string(m->s.text, m->s.len);
}

std::optional<bool> cfg_get_boolean_param_opt(lcw_data_t const* node, char const* key) {
  lcw_data_t const* m = find_member(node, key);
  if (m == nullptr || m->kind != Kind::Bool) {
    return std::nullopt;
  }
  return m->boolean;
}

std::optional<unsigned char> cfg_get_uint8_param_opt(lcw_data_t const* node, char const* key) {
  return integer_as<unsigned char>(find_member(node, key));
}
std::optional<unsigned int> cfg_get_uint32_param_opt(lcw_data_t const* node, char const* key) {
  return integer_as<unsigned int>(find_member(node, key));
}
std::optional<short> cfg_get_int16_param_opt(lcw_data_t const* node, char const* key) {
  return integer_as<short>(find_member(node, key));
}
std::optional<int> cfg_get_int32_param_opt(lcw_data_t const* node, char const* key) {
  return integer_as<int>(find_member(node, key));
}

lcw_data_t* cfg_get_subtree(lcw_data_t const* node, char const* key) {
  return find_member(node, key);
}

lcw_data_t* cfg_get_subtree_from_path(lcw_data_t const* node, char const* path) {
  if (node == nullptr || path == nullptr) {
    return nullptr;
  }
  auto* cur = const_cast<lcw_data_t*>(node);
  bool const found = for_each_path_name(path, [&cur](char const* name, std::size_t len) {
    cur = find_member(cur, name, len);
    return cur != nullptr;
  });
  return found ? cur : nullptr;
}

// ---- Reading a scalar node
// ---------------------------------------------------------------------

char const* cfg_object_to_string(lcw_data_t const* node) {
  return scalar_text(node);
}

std::optional<int> cfg_object_to_int_opt(lcw_data_t const* node) {
  return integer_as<int>(node);
}

// ---- Writing members
// ---------------------------------------------------------------------------

void cfg_set_param(lcw_data_t* node, char const* key, char const* value) {
  if (lcw_data_t* m = slot(node, key)) {
    std::size_t const len = value != nullptr ? std::strlen(value) : 0;
    set_string(m, value != nullptr ? value : "", std::min(len, max_text_len));
  }
}

void cfg_set_boolean_param(lcw_data_t* node, char const* key, bool value) {
  if (lcw_data_t* m = slot(node, key)) {
    set_bool(m, value);
  }
}

void cfg_set_int_param(lcw_data_t* node, char const* key, int value) {
  set_member_integer(node, key, value);
}
void cfg_set_int32_param(lcw_data_t* node, char const* key, std::int32_t value) {
  set_member_integer(node, key, value);
}
void cfg_set_uint_param(lcw_data_t* node, char const* key, unsigned int value) {
  set_member_integer(node, key, value);
}
void cfg_set_uint8_param(lcw_data_t* node, char const* key, std::uint8_t value) {
  set_member_integer(node, key, static_cast<unsigned int>(value));
}
void cfg_set_uint16_param(lcw_data_t* node, char const* key, std::uint16_t value) {
  set_member_integer(node, key, static_cast<unsigned int>(value));
}
void cfg_set_uint32_param(lcw_data_t* node, char const* key, std::uint32_t value) {
  set_member_integer(node, key, value);
}
void cfg_set_uint64_param(lcw_data_t* node, char const* key, std::uint64_t value) {
  set_member_integer(node, key, value);
}

void cfg_set_param_opt(lcw_data_t* node, char const* key, std::optional<std::string> const& value) {
  if (!value) {
    return;
  }
  if (lcw_data_t* m = slot(node, key)) {
    set_string(m, value->data(), std::min(value->size(), max_text_len));
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
  if (value) {
    set_member_integer(node, key, static_cast<int>(*value));
  }
}
void cfg_set_int16_param_opt(lcw_data_t* node, char const* key, std::optional<short> const& value) {
  if (value) {
    set_member_integer(node, key, static_cast<int>(*value));
  }
}
void cfg_set_uint8_param_opt(lcw_data_t* node, char const* key,
                             std::optional<unsigned char> const& value) {
  if (value) {
    set_member_integer(node, key, static_cast<unsigned int>(*value));
  }
}
void cfg_set_uint32_param_opt(lcw_data_t* node, char const* key,
                              std::optional<unsigned int> const& value) {
  if (value) {
    set_member_integer(node, key, *value);
  }
}

// ---- Inserting
// ---------------------------------------------------------------------------------

lcw_data_t* cfg_insert_child(lcw_data_t* parent, char const* key, lcw_data_t const* child) {
  if (child == nullptr) {
    return nullptr;
  }
  // Inserting a tree into itself copies the tree as it was before the
  // insertion.
  std::unique_ptr<Doc> aside;
  if (contains(child, parent)) {
    aside.reset(new Doc());
    copy_disjoint(aside.get(), child);
    child = aside.get();
  }
  lcw_data_t* m = slot(parent, key);
  if (m != nullptr) {
    copy_value(m, child);
  }
  return m;
}

lcw_data_t* cfg_insert_child_string(lcw_data_t* parent, char const* key, char const* value) {
  lcw_data_t* m = slot(parent, key);
  if (m != nullptr) {
    std::size_t const len = value != nullptr ? std::strlen(value) : 0;
    set_string(m, value != nullptr ? value : "", std::min(len, max_text_len));
  }
  return m;
}

lcw_data_t* cfg_insert_child_int(lcw_data_t* parent, char const* key, int value) {
  lcw_data_t* m = slot(parent, key);
  if (m != nullptr) {
    set_integer(m, value);
  }
  return m;
}

lcw_data_t* cfg_insert_empty_subtree(lcw_data_t* parent, char const* key) {
  lcw_data_t* m = slot(parent, key);
  if (m != nullptr) {
    reset_value(m, Kind::Object);
  }
  return m;
}

lcw_data_t* cfg_insert_empty_array(lcw_data_t* parent, char const* key) {
  lcw_data_t* m = slot(parent, key);
  if (m != nullptr) {
    reset_value(m, Kind::Array);
  }
  return m;
}

lcw_data_t* cfg_insert_empty_subtree_or_exists(lcw_data_t* parent, char const* key) {
  if (lcw_data_t* existing = find_member(parent, key)) {
    return existing;
  }
  return cfg_insert_empty_subtree(parent, key);
}

lcw_data_t* cfg_insert_empty_array_or_exists(lcw_data_t* parent, char const* key) {
  if (lcw_data_t* existing = find_member(parent, key)) {
    return existing;
  }
  return cfg_insert_empty_array(parent, key);
}

// ---- Iterating
// ---------------------------------------------------------------------------------

lcw_array_iterator_t* cfg_alloc_array_iterator(lcw_data_t const* array) {
  if (array == nullptr || array->kind != Kind::Array) {
    return nullptr;
  }
  return new (std::nothrow) lcw_array_iterator_t{array->c.first};
}

lcw_data_t* cfg_next_array_iterator(lcw_array_iterator_t* it) {
  if (it == nullptr || it->next == nullptr) {
    return nullptr;
  }
  lcw_data_t* element = it->next;
  it->next = element->next;
  return element;
}

void cfg_release_array_iterator(lcw_array_iterator_t* it) {
  delete it;
}

lcw_object_iterator_t* cfg_alloc_iterator(lcw_data_t const* object) {
  if (object == nullptr || object->kind != Kind::Object) {
    return nullptr;
  }
  return new (std::nothrow) lcw_object_iterator_t{object->c.first};
}

lcw_data_t* cfg_next_object_iterator(lcw_object_iterator_t* it, char const** key) {
  if (it == nullptr || it->next == nullptr) {
    return nullptr;
  }
  lcw_data_t* member = it->next;
  it->next = member->next;
  if (key != nullptr) {
    *key = member->key;
  }
  return member;
}

void cfg_release_iterator(lcw_object_iterator_t* it) {
  delete it;
}

void cfg_iterate_array(lcw_data_t const* array, void (*fn)(lcw_data_t const*, void*), void* ctx) {
  if (array == nullptr || fn == nullptr || array->kind != Kind::Array) {
    return;
  }
  for (lcw_data_t const* e = array->c.first; e != nullptr; e = e->next) {
    fn(e, ctx);
  }
}
