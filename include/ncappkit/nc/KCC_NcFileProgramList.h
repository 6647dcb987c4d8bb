// SPDX-License-Identifier: MIT
// KCC_NcFileProgramList: an owning list of NC programs, with lookup by number, a cursor, removal and download
// selection. Copies share their programs, moves transfer them, Clone duplicates them (see "Ownership" below).
//
//   KCC_NcFileProgramList list;
//   KCC_NcFileProgramCreator creator(list);
//   creator.Create()->SetProgramNumber(10);
//   for (KCC_NcFileProgram* p : list) { ... }     // or GetFirstProg / GetNextProg with the cursor
//   list.RemoveProgramFromList(10);               // deletes the program
//
// Ownership, in three rules:
// - Copies share. Copying a list copies only the pointers (and the cursor): both lists then refer to the same
//   programs and both would delete them. Keep one copy alive only, or call Detach on all copies but one.
// - Moves transfer. A moved-to list takes the programs over; the moved-from list is empty and usable. So a
//   list can be returned from a function or kept in a std::vector safely.
// - Clone duplicates. Clone gives an independent list with copies of the programs.
// The list deletes its programs in ClearWithContents, RemoveProgramFromList, a move assignment onto it and
// its destructor. Range-for (begin/end) walks the entries without touching the cursor, so loops can nest.
// See docs/behaviours.md#nc-programs-and-program-lists.
#pragma once

#include <cstddef>
#include <vector>

#include "ncappkit/export.h"

class KCC_NcFileProgram;
class KCC_NcFileProgramVisitor;

/// An owning list of NC programs; a copy shares the programs (see the ownership note).
class NCAPPKIT_EXPORT KCC_NcFileProgramList {
 public:
  /// Empty list; the cursor is at the end until GetFirstProg is called.
  KCC_NcFileProgramList();
  /// Copies the pointers and the cursor (no copies of the programs; see the ownership note above).
  KCC_NcFileProgramList(const KCC_NcFileProgramList& other);
  /// Copies the pointers and the cursor; the programs held before are not deleted.
  KCC_NcFileProgramList& operator=(const KCC_NcFileProgramList& other);
  /// Takes over the programs and the cursor of `other`, which is left empty with its cursor at the end.
  KCC_NcFileProgramList(KCC_NcFileProgramList&& other) noexcept;
  /// Deletes the programs held before, then takes over those and the cursor of `other`, which is left empty
  /// with its cursor at the end. Moving a list onto itself changes nothing.
  KCC_NcFileProgramList& operator=(KCC_NcFileProgramList&& other) noexcept;
  /// Deletes every program of the list.
  virtual ~KCC_NcFileProgramList();

  /// Append `program` at the end and take ownership of it (a null pointer is kept as an empty entry).
  void AddProgram(KCC_NcFileProgram* program);
  /// Number of entries.
  int GetNumberOfPrograms() const;
  /// True when the list has no entry.
  bool IsEmpty() const;
  /// The program of entry `index`, or null when the index is outside the list.
  KCC_NcFileProgram* GetProgram(int index) const;

  /// The first program with that number, or null.
  KCC_NcFileProgram* FindProgramFromList(int number) const;
  /// Put the cursor on the first entry and return its program, or null when the list is empty.
  KCC_NcFileProgram* GetFirstProg();
  /// Advance the cursor and return the program there, or null at the end (and on every later call).
  KCC_NcFileProgram* GetNextProg();
  /// Delete the first program with that number and remove its entry; true when one was found. The cursor
  /// stays on the entry it was on (after removing the current entry, GetNextProg gives the one that
  /// followed).
  bool RemoveProgramFromList(int number);
  /// Delete every program and empty the list.
  void ClearWithContents();
  /// Empty the list without deleting the programs (for a list that shares them with a copy).
  void Detach();
  /// An independent list: a copy of every program (null entries stay null) and the same cursor position.
  KCC_NcFileProgramList Clone() const;

  /// Iterator over the entries: each is a program pointer, null for an entry added as null.
  using const_iterator = std::vector<KCC_NcFileProgram*>::const_iterator;
  /// First entry, for range-for; the cursor is not touched.
  const_iterator begin() const noexcept { return m_programs.begin(); }
  /// Past the last entry.
  const_iterator end() const noexcept { return m_programs.end(); }

  /// SetSelectedForDownLoading(selected) on every program.
  void SelectDownLoadAllPrograms(bool selected);
  /// SetSelectedForDownLoading(selected) on the first program with that number; false when there is none.
  bool SelectDownloadSingleProgram(int number, bool selected);

  /// The visitor on every program in order (null entries skipped), whatever it returns; true.
  bool Accept(KCC_NcFileProgramVisitor& visitor);

 private:
  std::vector<KCC_NcFileProgram*> m_programs;
  // Index of the cursor's entry; m_programs.size() (or more) means "at the end", -1 "before the first".
  std::ptrdiff_t m_cursor;
};
