// SPDX-License-Identifier: MIT
// KCC_ObjectList: an ordered list of pointers to KCC_ObjectData objects, with one cursor for walking it,
// selection handling over the objects' selection flags, and operations that move, remove or delete objects.
//
//   KCC_ObjectList list(true);                     // owner: the destructor deletes the objects
//   list.InsertTail(new Hole);
//   list.InsertTail(new Hole);
//   for (KCC_ObjectData* o = list.GetFirst(); o != nullptr; o = list.GetNext())
//     o->SetSelectionFlag(true);
//   list.DeleteAllSelectedItems();                 // deletes both, whatever the ownership flag says
//
// Ownership, in three rules:
// - Copies share. Copying a list copies only the pointers, the ownership flag and the cursor: both lists then
//   refer to the same objects, and a copy of an owning list owns them too. Only one of the two may still hold
//   the objects when both are destroyed: empty the other one first, for example with
//   KCC_ObjectList(false).AppendList(copy). There is no deep copy: a list object does not know how to copy
//   itself (KCC_ObjectData has no Clone).
// - Moves transfer. A moved-to list takes the objects, the ownership flag and the cursor over; the moved-from
//   list is empty and usable, with no current element. So a list can be returned from a function or kept in
//   a std::vector safely. A move assignment onto an owning list deletes its objects first.
// - Deleting operations always delete. DeleteOneDataItem, DeleteAllSelectedItems and
//   DeleteAllUnSelectedItems delete objects whatever the ownership flag says; the flag governs only the
//   destructor (and a move assignment onto the list). A copy assignment does not delete the objects held
//   before.
//
// Rules worth knowing (deliberate behaviours):
// - Searches compare pointers, run from the first element and stop at the first match; a null pointer is a
//   valid element and can be searched for. Searching moves the cursor, also for IsElement; a search that
//   finds nothing leaves no current element.
// - Count stops at the first null pointer and leaves the cursor there; IsEmpty counts null pointers.
// - GetPrev on the first element gives null and keeps the cursor there; from no current element it goes to
//   the last element.
// - MoveForeward / MoveBackward exchange the pointers of two neighbouring elements; the cursor stays on its
//   element, which then holds the other object. The name MoveForeward is spelled so.
// - The copied cursor: a copy's cursor still refers to the source list's element, which the copy cannot
//   reach. Until the copy is re-positioned (GetFirst, GetLast, GetPrev, SetCurrent, UpdateCurrent,
//   IsElement, Count, an insert, a remove or delete, ReInitList), it behaves as having no current element:
//   GetCurrent and GetNext give null, and GetPrev goes to the copy's last element and gives its object.
//   The source's cursor is not touched by copying.
// - Null elements: the public inserts ignore a null object; a derived list can add null placeholders with
//   the protected AppendElement. Count stops at them, the selection operations skip them,
//   DeleteAllSelectedItems and DeleteAllUnSelectedItems leave them in place.
// - An object held twice: the deleting operations and the destructor delete each distinct object once, but
//   DeleteOneDataItem deletes the object of the first element and leaves the second element holding a
//   dangling pointer. Hold each object once in a list that deletes.
// See docs/behaviours.md#object-lists.
#pragma once

#include <cstddef>
#include <vector>

#include "ncappkit/export.h"

class KCC_ObjectData;

/// An ordered list of KCC_ObjectData pointers with a cursor; owns its objects when built as an owner.
class NCAPPKIT_EXPORT KCC_ObjectList {
 public:
  /// Empty list with no current element; with `owner` true the destructor deletes the objects.
  explicit KCC_ObjectList(bool owner);
  /// Copies the pointers, the ownership flag and the cursor (marked as foreign; see the rules above).
  KCC_ObjectList(const KCC_ObjectList& other);
  /// Copies the pointers, the ownership flag and the cursor (marked as foreign); the objects held before are
  /// not deleted. Assigning a list to itself changes nothing. Returns *this.
  KCC_ObjectList& operator=(const KCC_ObjectList& other);
  /// Takes over the objects, the ownership flag and the cursor of `other`, which is left empty with no
  /// current element (its ownership flag is kept).
  KCC_ObjectList(KCC_ObjectList&& other) noexcept;
  /// Deletes the objects held before when this list is an owner, then takes over as the move constructor
  /// does. Moving a list onto itself changes nothing. Returns *this.
  KCC_ObjectList& operator=(KCC_ObjectList&& other) noexcept;
  /// With the ownership flag set, deletes every distinct non-null object still held; then frees the list.
  virtual ~KCC_ObjectList();

  /// Number of non-null objects from the first element up to the first null pointer (walked with GetFirst
  /// and GetNext). The cursor ends on that null element, or with no current element when there is none.
  int Count();
  /// True when the list has no elements (null pointers count as elements). The cursor is unchanged.
  bool IsEmpty() const noexcept;
  /// Always true. The cursor is unchanged.
  bool DoesListExists() const noexcept;
  /// True when the list deletes its objects in its destructor (the flag given to the constructor).
  bool IsOwner() const noexcept { return m_owner; }

  /// The first object (null for an empty list or a null first element); the cursor goes to the first
  /// element.
  KCC_ObjectData* GetFirst() noexcept;
  /// The last object (null for an empty list or a null last element); the cursor goes to the last element,
  /// and stays unchanged for an empty list.
  KCC_ObjectData* GetLast() noexcept;
  /// Moves the cursor on and gives the object there; null when there is no current element (cursor kept) or
  /// when the cursor passes the end (no current element afterwards).
  KCC_ObjectData* GetNext() noexcept;
  /// Moves the cursor back and gives the object there. On the first element: null, cursor kept. With no
  /// current element: goes to the last element (null for an empty list).
  KCC_ObjectData* GetPrev() noexcept;
  /// The object of the current element; null when there is no current element.
  KCC_ObjectData* GetCurrent() const noexcept;
  /// Puts the cursor on the first element holding `object`; true when found, else false and no current
  /// element.
  bool SetCurrent(const KCC_ObjectData* object) noexcept;
  /// The same search as SetCurrent, without a result.
  void UpdateCurrent(const KCC_ObjectData* object) noexcept;
  /// True when `object` is in the list; the cursor moves as for SetCurrent (the test moves the cursor).
  bool IsElement(const KCC_ObjectData* object) noexcept;

  /// Puts `object` in front; the cursor goes to the first element holding it. A null object is ignored.
  void InsertHead(KCC_ObjectData* object);
  /// Puts `object` at the end; the cursor goes to the first element holding it. A null object is ignored.
  void InsertTail(KCC_ObjectData* object);
  /// Inserts `object` behind the first element holding `reference`, or at the end when `reference` is not
  /// in the list; the cursor goes to the first element holding `object`. A null object is ignored.
  void InsertAfter(KCC_ObjectData* object, const KCC_ObjectData* reference);
  /// Inserts `object` in front of the first element holding `reference`, or at the end when `reference` is
  /// not in the list; the cursor goes to the first element holding `object`. A null object is ignored.
  void InsertBefore(KCC_ObjectData* object, const KCC_ObjectData* reference);

  /// Takes the first element holding `object` out of the list without deleting the object; true when found.
  /// The cursor goes to the element that followed it; no current element when not found or it was last.
  bool RemoveDataItem(const KCC_ObjectData* object) noexcept;
  /// As RemoveDataItem, and deletes the object (a null pointer is only removed); true when found.
  bool DeleteOneDataItem(KCC_ObjectData* object) noexcept;
  /// Deletes and removes every non-null object whose selection flag is set; true when at least one was
  /// deleted. No current element afterwards.
  bool DeleteAllSelectedItems() noexcept;
  /// Deletes and removes every non-null object whose selection flag is clear (null pointers stay); true
  /// when at least one was deleted. No current element afterwards.
  bool DeleteAllUnSelectedItems() noexcept;

  /// Sets the selection flag of every non-null object. The cursor is unchanged.
  void SetAllSelections() noexcept;
  /// Clears the selection flag of every non-null object. The cursor is unchanged.
  void ClearAllSelections() noexcept;
  /// Number of non-null objects whose selection flag is set. The cursor is unchanged.
  int GetNumberOfSelectedItems() const noexcept;

  /// Exchanges `object` (first element holding it) with the object behind it; false, changing nothing,
  /// when it is absent or last. The cursor stays on its element, which may now hold the other object.
  bool MoveForeward(const KCC_ObjectData* object) noexcept;
  /// Exchanges `object` (first element holding it) with the object in front of it; false, changing
  /// nothing, when it is absent or first. The cursor stays on its element, as for MoveForeward.
  bool MoveBackward(const KCC_ObjectData* object) noexcept;
  /// Reverses the order in place; false, doing nothing, for fewer than two elements. The cursor stays on
  /// the same element, now at the mirrored place.
  bool ReverseList() noexcept;
  /// Appends the pointers of `other` at the end, in order, and empties `other` (no current element there)
  /// without deleting any object. This list's cursor is unchanged; appending a list to itself does nothing.
  /// The objects change lists, the flags stay: appended from an owner to a non-owner, nothing deletes them.
  void AppendList(KCC_ObjectList& other);
  /// Leaves no current element; the elements stay.
  void ReInitList() noexcept;

 protected:
  /// Appends `object` at the end, a null pointer included, without moving the cursor (for derived lists that
  /// keep placeholders).
  void AppendElement(KCC_ObjectData* object);

 private:
  static constexpr std::size_t kNoElement = static_cast<std::size_t>(-1);

  // Index of the first element holding `object`, or kNoElement.
  std::size_t Find(const KCC_ObjectData* object) const noexcept;
  // Index of the current element, or kNoElement (also for a cursor copied from another list).
  std::size_t CurrentIndex() const noexcept;
  void SetCursor(std::size_t index) noexcept;
  // Removes every element whose object `doomed` selects and deletes each distinct object once.
  template <typename Predicate>
  bool DeleteWhere(Predicate doomed) noexcept;
  void DeleteOwnedObjects() noexcept;

  std::vector<KCC_ObjectData*> m_objects;
  bool m_owner;
  std::size_t m_cursor;
  // True while the cursor is one copied from another list: it refers to that list's element.
  bool m_cursorForeign;
};
