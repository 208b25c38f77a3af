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
// The library writes its texts through a TextSink only when it is built with the bundled backend
// (WLCCW_BUNDLED_TREE): a host's own backend serialises in its own way, and then every text is
// the host's serialisation of the tree.
#pragma once

#include "detail/json_text.hpp"

#include <wlccw/cfg/tree.hpp>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace wlccw::detail {

class TreeSink {
public:
  explicit TreeSink(lcw_data_t* node) noexcept : node_(node) {}

  /// False when the node could not be made.
  explicit operator bool() const noexcept { return node_ != nullptr; }
  lcw_data_t* node() const noexcept { return node_; }

  void set_param(char const* key, char const* value) { cfg_set_param(node_, key, value); }
  void set_param_opt(char const* key, std::optional<std::string> const& value) {
    cfg_set_param_opt(node_, key, value);
  }
  void set_boolean_opt(char const* key, std::optional<bool> const& value) {
    cfg_set_boolean_param_opt(node_, key, value);
  }
  void set_int(char const* key, int value) { cfg_set_int_param(node_, key, value); }
  void set_int32(char const* key, std::int32_t value) { cfg_set_int32_param(node_, key, value); }
  void set_uint8(char const* key, std::uint8_t value) { cfg_set_uint8_param(node_, key, value); }
  void set_uint32_opt(char const* key, std::optional<unsigned int> const& value) {
    cfg_set_uint32_param_opt(node_, key, value);
  }

  TreeSink object(char const* key) { return TreeSink(cfg_insert_empty_subtree(node_, key)); }
  TreeSink object_or_existing(char const* key) {
    return TreeSink(cfg_insert_empty_subtree_or_exists(node_, key));
  }
  TreeSink array(char const* key) { return TreeSink(cfg_insert_empty_array(node_, key)); }
  TreeSink array_or_existing(char const* key) {
    return TreeSink(cfg_insert_empty_array_or_exists(node_, key));
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
  JsonTextWriter() { out_.resize(1024); }

  char* room(std::size_t n) {
    if (out_.size() - pos_ < n) {
      out_.resize(std::max(out_.size() * 2, pos_ + n));
    }
    return out_.data() + pos_;
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
  std::string take() {
    close_to(0);
    out_.resize(pos_);
    pos_ = 0;
    return std::move(out_);
  }

private:
  struct Open {
    char close;
    bool empty;
  };
  std::string out_;
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

  void set_param(char const* key, char const* value) {
    member(key);
    char const* const text = value != nullptr ? value : "";
    write_json_string(*writer_, text, std::strlen(text));
  }
  void set_param_opt(char const* key, std::optional<std::string> const& value) {
    if (value) {
      member(key);
      write_json_string(*writer_, value->data(), value->size());
    }
  }
  void set_boolean_opt(char const* key, std::optional<bool> const& value) {
    if (value) {
      member(key);
      put_text(*value ? "true" : "false");
    }
  }
  void set_int(char const* key, int value) { integer_member(key, value); }
  void set_int32(char const* key, std::int32_t value) { integer_member(key, value); }
  void set_uint8(char const* key, std::uint8_t value) {
    integer_member(key, static_cast<unsigned int>(value));
  }
  void set_uint32_opt(char const* key, std::optional<unsigned int> const& value) {
    if (value) {
      integer_member(key, *value);
    }
  }

  TextSink object(char const* key) { return open_member(key, '{', '}'); }
  TextSink object_or_existing(char const* key) { return object(key); }
  TextSink array(char const* key) { return open_member(key, '[', ']'); }
  TextSink array_or_existing(char const* key) { return array(key); }

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
  void member(char const* key) {
    element();
    write_json_string(*writer_, key, std::strlen(key));
    writer_->put(':');
  }
  TextSink open_member(char const* key, char opening, char closing) {
    member(key);
    writer_->open(opening, closing);
    return TextSink(*writer_, writer_->depth());
  }
  template <typename T> void integer(T value) {
    char buf[24];
    std::size_t const n = json_integer_text(buf, value);
    std::memcpy(writer_->room(n), buf, n);
    writer_->advance(n);
  }
  template <typename T> void integer_member(char const* key, T value) {
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
