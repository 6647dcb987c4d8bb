// SPDX-License-Identifier: MIT
// KCC_ObjectState: the editing state of one object (read-only, modified, created, cascade or deleted). It is
// a small value that an object or an editor keeps beside the object it describes.
//
//   KCC_ObjectState state;              // read-only
//   state.SetStateModified();
//   if (state.IsStateModified()) { ... }
//
// Rules worth knowing:
// - The state is one value at a time, not a set of bits: setting "deleted" clears "modified".
// - SetState stores any value unchecked, also one outside the five named states; then every Is... test is
//   false and GetState gives the value back as stored.
// - The numeric values are fixed: 0 read-only, 1 modified, 2 created, 3 cascade, 4 deleted.
// See docs/behaviours.md#object-lists.
#pragma once

#include <cstdint>

#include "ncappkit/export.h"

/// The editing state of an object: one of read-only, modified, created, cascade, deleted.
class NCAPPKIT_EXPORT KCC_ObjectState {
 public:
  /// The states, with their fixed numeric values (32 bits wide).
  enum eState : std::int32_t {
    eStateReadOnly = 0,  ///< The object may not be changed (the default).
    eStateModified = 1,  ///< The object was changed.
    eStateCreated = 2,   ///< The object is new.
    eStateCascade = 3,   ///< The object changes because another object changed.
    eStateDeleted = 4    ///< The object is marked as deleted.
  };

  /// A state holding `state` (read-only when no argument is given).
  explicit KCC_ObjectState(eState state = eStateReadOnly) noexcept : m_state(state) {}
  /// Copies the state.
  KCC_ObjectState(const KCC_ObjectState& other) = default;
  /// Copies the state; returns *this.
  KCC_ObjectState& operator=(const KCC_ObjectState& other) = default;
  /// Destroys the state.
  virtual ~KCC_ObjectState();

  /// The stored state, as set (also a value outside the named states).
  eState GetState() const noexcept { return m_state; }
  /// Store `state` without any check.
  void SetState(eState state) noexcept { m_state = state; }

  /// True when the state is read-only (0).
  bool IsStateReadOnly() const noexcept { return m_state == eStateReadOnly; }
  /// True when the state is modified (1).
  bool IsStateModified() const noexcept { return m_state == eStateModified; }
  /// True when the state is created (2).
  bool IsStateCreated() const noexcept { return m_state == eStateCreated; }
  /// True when the state is cascade (3).
  bool IsStateCascade() const noexcept { return m_state == eStateCascade; }
  /// True when the state is deleted (4).
  bool IsStateDeleted() const noexcept { return m_state == eStateDeleted; }

  /// Make the state read-only (0).
  void SetStateReadOnly() noexcept { m_state = eStateReadOnly; }
  /// Make the state modified (1).
  void SetStateModified() noexcept { m_state = eStateModified; }
  /// Make the state created (2).
  void SetStateCreated() noexcept { m_state = eStateCreated; }
  /// Make the state cascade (3).
  void SetStateCascade() noexcept { m_state = eStateCascade; }
  /// Make the state deleted (4).
  void SetStateDeleted() noexcept { m_state = eStateDeleted; }

 private:
  eState m_state;
};
