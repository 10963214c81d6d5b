// What a choice wrapper holds: nothing, one owned child, or a run of owned children, for one alternative at
// a time. The wrapper knows its alternatives by number; this class knows how to own, copy, check and write
// whichever is there.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <utility>

#include "GenLibrarySupportFiles/lmxinternals/api.h"
#include "GenLibrarySupportFiles/lmxinternals/check_tracker.h"
#include "GenLibrarySupportFiles/lmxinternals/containers.h"
#include "GenLibrarySupportFiles/lmxparse/error_codes.h"

namespace lmx {

class c_xml_writer;

namespace detail {

class held_base {
 public:
  virtual ~held_base() = default;
  virtual std::unique_ptr<held_base> clone() const = 0;
  /// Checks each child under its tag; false at the first failure.
  virtual bool check(c_check_tracker* tracker, char const* tag) const = 0;
  /// Writes each child under its tag; the first error ends it.
  virtual elmx_error marshal(c_xml_writer& writer, char const* tag) const = 0;
};

template <class T>
class held_run final : public held_base {
 public:
  std::unique_ptr<held_base> clone() const override { return std::make_unique<held_run>(*this); }
  bool check(c_check_tracker* tracker, char const* tag) const override {
    for (std::size_t i = 0; i != m_items.size(); ++i) {
      if (!m_items.get(i).Check(tracker, tag)) return false;
    }
    return true;
  }
  elmx_error marshal(c_xml_writer& writer, char const* tag) const override {
    for (std::size_t i = 0; i != m_items.size(); ++i) {
      elmx_error const error = m_items.get(i).marshal(writer, tag);
      if (error != ELMX_OK) return error;
    }
    return ELMX_OK;
  }
  ct_complex_multi<T> m_items;
};

template <class T>
class held_one final : public held_base {
 public:
  std::unique_ptr<held_base> clone() const override { return std::make_unique<held_one>(*this); }
  bool check(c_check_tracker* tracker, char const* tag) const override {
    return !m_item.is_set() || m_item.get().Check(tracker, tag);
  }
  elmx_error marshal(c_xml_writer& writer, char const* tag) const override {
    return m_item.is_set() ? m_item.get().marshal(writer, tag) : ELMX_OK;
  }
  ct_complex_optional<T> m_item;
};

}  // namespace detail

class ct_choice {
 public:
  ct_choice() = default;
  ct_choice(ct_choice const& other)
      : m_alternative(other.m_alternative), mp_held(other.mp_held ? other.mp_held->clone() : nullptr) {}
  /// Leaves nothing behind.
  ct_choice(ct_choice&& other) noexcept
      : m_alternative(std::exchange(other.m_alternative, -1)), mp_held(std::move(other.mp_held)) {}
  ct_choice& operator=(ct_choice const& other) {
    ct_choice copy(other);
    return *this = std::move(copy);
  }
  ct_choice& operator=(ct_choice&& other) noexcept {
    ct_choice taken(std::move(other));
    std::swap(m_alternative, taken.m_alternative);
    mp_held.swap(taken.mp_held);
    return *this;
  }

  void release() {
    mp_held.reset();
    m_alternative = -1;
  }
  /// True when something is held for `alternative`.
  bool holds(std::int32_t alternative) const { return m_alternative == alternative; }
  bool check(c_check_tracker* tracker, char const* tag) const {
    return !mp_held || mp_held->check(tracker, tag);
  }
  elmx_error marshal(c_xml_writer& writer, char const* tag) const {
    return mp_held ? mp_held->marshal(writer, tag) : ELMX_OK;
  }

  /// The run held for `alternative`; anything else that was held is freed first.
  template <class T>
  ct_complex_multi<T>& select_run(std::int32_t alternative) {
    return select<detail::held_run<T>>(alternative).m_items;
  }
  /// The child held for `alternative`, which may be absent; anything else that was held is freed first.
  template <class T>
  ct_complex_optional<T>& select_one(std::int32_t alternative) {
    return select<detail::held_one<T>>(alternative).m_item;
  }
  /// What is held, which the caller knows.
  template <class T>
  ct_complex_multi<T> const& run() const {
    return static_cast<detail::held_run<T> const&>(*mp_held).m_items;
  }
  template <class T>
  ct_complex_multi<T>& run() {
    return static_cast<detail::held_run<T>&>(*mp_held).m_items;
  }
  template <class T>
  ct_complex_optional<T> const& one() const {
    return static_cast<detail::held_one<T> const&>(*mp_held).m_item;
  }

 private:
  template <class Held>
  Held& select(std::int32_t alternative) {
    if (m_alternative != alternative) {
      mp_held = std::make_unique<Held>();
      m_alternative = alternative;
    }
    return static_cast<Held&>(*mp_held);
  }

  std::int32_t m_alternative = -1;
  std::unique_ptr<detail::held_base> mp_held;
};

}  // namespace lmx
