// Where a record writer puts its IPC form: one writer, two sinks.
//
// - TreeSink fills a node through the tree interface, with its semantics: a member that is there
//   already is replaced in place, the _or_existing variants reuse it, and an insertion the tree
//   refuses gives a sink that converts to false.
// - TextSink writes the compact text straight away, byte for byte what the bundled tree backend's
//   serialiser writes for the tree a TreeSink would have built. It needs no tree, so it costs a
//   fraction of building one and serialising it, and no memory beyond the text. It is right only
//   where the writer puts each name once into a fresh object, which the record writers do when
//   they fill a new root; the _or_existing variants then always make a new member.
//
// The library writes its texts through a TextSink only when the bundled backend is the tree
// interface in use (bundled_tree() in detail/tree_extensions.hpp): a host's own backend serialises
// in its own way, and then every text is the host's serialisation of the tree.
#pragma once

#include "detail/json_text.hpp"

#include <wlccw/cfg/tree.hpp>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <new>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace wlccw::detail {

/// A member name as the writers give it: a literal, measured and checked for characters to escape
/// at compile time, or a text known only at run time (Key::text).
class Key {
public:
  template <std::size_t N>
  consteval Key(char const (&literal)[N]) // implicit: the writers pass literals
      : text_(literal), size_(N - 1), plain_(true) {
    for (std::size_t i = 0; i + 1 < N; ++i) {
      if (json_escape_table[static_cast<unsigned char>(literal[i])] != 0 || literal[i] == '\0') {
        plain_ = false;
      }
    }
  }

  /// A NUL-terminated name known at run time.
  static Key text(char const* name) noexcept { return Key(name, std::strlen(name), false); }

  char const* c_str() const noexcept { return text_; }
  std::size_t size() const noexcept { return size_; }
  /// True when the name is written as it is, without escapes.
  bool plain() const noexcept { return plain_; }

private:
  Key(char const* name, std::size_t size, bool plain) noexcept
      : text_(name), size_(size), plain_(plain) {}

  char const* text_;
  std::size_t size_;
  bool plain_;
};

class TreeSink {
public:
  explicit TreeSink(lcw_data_t* node) noexcept : node_(node) {}

  /// False when the node could not be made.
  explicit operator bool() const noexcept { return node_ != nullptr; }
  lcw_data_t* node() const noexcept { return node_; }

  void set_param(Key key, char const* value) { cfg_set_param(node_, key.c_str(), value); }
  void set_param_opt(Key key, std::optional<std::string> const& value) {
    cfg_set_param_opt(node_, key.c_str(), value);
  }
  /// A text viewed elsewhere, set as set_param_opt sets a string.
  void set_text_opt(Key key, std::optional<std::string_view> const& value) {
    if (value) {
      cfg_set_param_opt(node_, key.c_str(), std::optional<std::string>(*value));
    }
  }
  void set_boolean_opt(Key key, std::optional<bool> const& value) {
    cfg_set_boolean_param_opt(node_, key.c_str(), value);
  }
  void set_int(Key key, int value) { cfg_set_int_param(node_, key.c_str(), value); }
  void set_int32(Key key, std::int32_t value) { cfg_set_int32_param(node_, key.c_str(), value); }
  void set_uint8(Key key, std::uint8_t value) { cfg_set_uint8_param(node_, key.c_str(), value); }
  void set_uint32_opt(Key key, std::optional<unsigned int> const& value) {
    cfg_set_uint32_param_opt(node_, key.c_str(), value);
  }

  TreeSink object(Key key) { return TreeSink(cfg_insert_empty_subtree(node_, key.c_str())); }
  TreeSink object_or_existing(Key key) {
    return TreeSink(cfg_insert_empty_subtree_or_exists(node_, key.c_str()));
  }
  TreeSink array(Key key) { return TreeSink(cfg_insert_empty_array(node_, key.c_str())); }
  TreeSink array_or_existing(Key key) {
    return TreeSink(cfg_insert_empty_array_or_exists(node_, key.c_str()));
  }

  /// Array elements.
  void append_int(int value) { cfg_insert_child_int(node_, nullptr, value); }
  TreeSink append_object() { return TreeSink(cfg_insert_empty_subtree(node_, nullptr)); }

private:
  lcw_data_t* node_;
};

/// The text a TextSink writes: one buffer and the containers open in it. A sink writes at its
/// depth; containers opened deeper by sinks of members written before are closed first.
class JsonTextWriter {
public:
  /// expected_size: about how long the text will be, so that the buffer seldom has to grow.
  explicit JsonTextWriter(std::size_t expected_size = 1024) {
    SpareBuffer& spare = spare_buffer();
    data_ = std::exchange(spare.data, nullptr);
    capacity_ = std::exchange(spare.capacity, 0);
    if (capacity_ < expected_size) {
      grow(expected_size);
    }
  }
  JsonTextWriter(JsonTextWriter const&) = delete;
  JsonTextWriter& operator=(JsonTextWriter const&) = delete;
  ~JsonTextWriter() {
    SpareBuffer& spare = spare_buffer();
    if (spare.data == nullptr && capacity_ <= SpareBuffer::kept_limit) {
      spare.data = data_;
      spare.capacity = capacity_;
    } else {
      std::free(data_);
    }
  }

  char* room(std::size_t n) {
    if (capacity_ - pos_ < n) {
      grow(std::max(capacity_ * 2, pos_ + n));
    }
    return data_ + pos_;
  }
  void advance(std::size_t n) noexcept { pos_ += n; }
  void put(char ch) {
    *room(1) = ch;
    ++pos_;
  }

  /// Closes every container deeper than depth.
  void close_to(std::size_t depth) {
    while (open_.size() > depth) {
      put(open_.back().close);
      open_.pop_back();
    }
  }
  /// The comma before every member or element but the first of the innermost container.
  void separate() {
    if (!open_.back().empty) {
      put(',');
    }
    open_.back().empty = false;
  }
  void open(char opening, char closing) {
    put(opening);
    open_.push_back({closing, true});
  }
  std::size_t depth() const noexcept { return open_.size(); }

  /// The whole text, every container closed.
  std::string take() { return std::string(view()); }
  /// The whole text, every container closed, valid while the writer lives and writes no more.
  std::string_view view() {
    close_to(0);
    return {data_, pos_};
  }

private:
  struct Open {
    char close;
    bool empty;
  };

  // The buffer of the writer that ended last on this thread, kept for the next one. A client
  // list's text is a few hundred kilobytes; a fresh buffer of that size comes straight from the
  // system and costs a page fault every few kilobytes on every write, which a daemon polling its
  // APs would pay on every poll. A buffer beyond kept_limit is given back instead.
  struct SpareBuffer {
    static constexpr std::size_t kept_limit = std::size_t{8} << 20U;
    char* data = nullptr;
    std::size_t capacity = 0;
    SpareBuffer() = default;
    SpareBuffer(SpareBuffer const&) = delete;
    SpareBuffer& operator=(SpareBuffer const&) = delete;
    ~SpareBuffer() { std::free(data); }
  };
  static SpareBuffer& spare_buffer() noexcept {
    thread_local SpareBuffer spare;
    return spare;
  }

  // The buffer grows without being cleared: every byte is written before it is read.
  void grow(std::size_t capacity) {
    void* const moved = std::realloc(data_, capacity);
    if (moved == nullptr) {
      throw std::bad_alloc();
    }
    data_ = static_cast<char*>(moved);
    capacity_ = capacity;
  }

  char* data_ = nullptr;
  std::size_t capacity_ = 0;
  std::size_t pos_ = 0;
  std::vector<Open> open_;
};

class TextSink {
public:
  /// The root object of the writer's text.
  explicit TextSink(JsonTextWriter& writer) : writer_(&writer) {
    writer.open('{', '}');
    depth_ = writer.depth();
  }

  explicit operator bool() const noexcept { return true; }

  void set_param(Key key, char const* value) {
    member(key);
    char const* const text = value != nullptr ? value : "";
    write_json_string(*writer_, text, std::strlen(text));
  }
  void set_param_opt(Key key, std::optional<std::string> const& value) {
    if (value) {
      member(key);
      write_json_string(*writer_, value->data(), value->size());
    }
  }
  void set_text_opt(Key key, std::optional<std::string_view> const& value) {
    if (value) {
      member(key);
      write_json_string(*writer_, value->data(), value->size());
    }
  }
  void set_boolean_opt(Key key, std::optional<bool> const& value) {
    if (value) {
      member(key);
      put_text(*value ? "true" : "false");
    }
  }
  void set_int(Key key, int value) { integer_member(key, value); }
  void set_int32(Key key, std::int32_t value) { integer_member(key, value); }
  void set_uint8(Key key, std::uint8_t value) {
    integer_member(key, static_cast<unsigned int>(value));
  }
  void set_uint32_opt(Key key, std::optional<unsigned int> const& value) {
    if (value) {
      integer_member(key, *value);
    }
  }

  TextSink object(Key key) { return open_member(key, '{', '}'); }
  TextSink object_or_existing(Key key) { return object(key); }
  TextSink array(Key key) { return open_member(key, '[', ']'); }
  TextSink array_or_existing(Key key) { return array(key); }

  void append_int(int value) {
    element();
    integer(value);
  }
  TextSink append_object() {
    element();
    writer_->open('{', '}');
    return TextSink(*writer_, writer_->depth());
  }

private:
  TextSink(JsonTextWriter& writer, std::size_t depth) : writer_(&writer), depth_(depth) {}

  void element() {
    writer_->close_to(depth_);
    writer_->separate();
  }
  void member(Key key) {
    element();
    if (key.plain()) {
      char* const o = writer_->room(key.size() + 3);
      o[0] = '"';
      if (key.size() <= short_text_limit) {
        copy_short(o + 1, key.c_str(), key.size());
      } else {
        std::memcpy(o + 1, key.c_str(), key.size());
      }
      o[key.size() + 1] = '"';
      o[key.size() + 2] = ':';
      writer_->advance(key.size() + 3);
    } else {
      write_json_string(*writer_, key.c_str(), key.size());
      writer_->put(':');
    }
  }
  TextSink open_member(Key key, char opening, char closing) {
    member(key);
    writer_->open(opening, closing);
    return TextSink(*writer_, writer_->depth());
  }
  template <typename T> void integer(T value) {
    // Written in place: the room of the longest 64-bit integer text is asked for, only the
    // digits written are kept.
    char* const o = writer_->room(json_integer_room);
    writer_->advance(json_integer_text(o, value));
  }
  template <typename T> void integer_member(Key key, T value) {
    member(key);
    integer(value);
  }
  void put_text(char const* text) {
    std::size_t const n = std::strlen(text);
    std::memcpy(writer_->room(n), text, n);
    writer_->advance(n);
  }

  JsonTextWriter* writer_;
  std::size_t depth_;
};

} // namespace wlccw::detail
