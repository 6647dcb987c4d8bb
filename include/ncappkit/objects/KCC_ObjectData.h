// SPDX-License-Identifier: MIT
// KCC_ObjectData: the base of the objects a KCC_ObjectList holds, carrying the selection flag that the list's
// selection operations read and set. Programs derive their drawing or machining objects from it.
//
//   class Hole : public KCC_ObjectData {
//    public:
//     KCString GetObjectString() const override { return "Hole"; }
//   };
//   Hole hole;
//   hole.SetSelectionFlag(true);        // hole.IsSelected() == true
//
// Rules worth knowing:
// - A new object is not selected; the copy constructor and the assignment copy the flag.
// - GetObjectString gives "" in the base; derived classes override it with a description of the object.
// See docs/behaviours.md#object-lists.
#pragma once

#include "ncappkit/export.h"
#include "ncappkit/foundation/KCString.h"

/// The base of every object kept in a KCC_ObjectList: a selection flag and a description text.
class NCAPPKIT_EXPORT KCC_ObjectData {
 public:
  /// An object that is not selected.
  KCC_ObjectData() = default;
  /// Copies the selection flag.
  KCC_ObjectData(const KCC_ObjectData& other) = default;
  /// Copies the selection flag; returns *this.
  KCC_ObjectData& operator=(const KCC_ObjectData& other) = default;
  /// Destroys the object; deleting a derived object through this base is safe.
  virtual ~KCC_ObjectData();

  /// A description of the object; "" in the base (derived classes override it). Never fails.
  virtual KCString GetObjectString() const;

  /// True when the selection flag is set.
  bool IsSelected() const noexcept { return m_selected; }
  /// Set (true) or clear (false) the selection flag.
  void SetSelectionFlag(bool selected) noexcept { m_selected = selected; }

 private:
  bool m_selected = false;
};
