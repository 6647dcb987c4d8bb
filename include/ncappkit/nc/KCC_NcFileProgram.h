// SPDX-License-Identifier: MIT
// KCC_NcFileProgram: one program of an NC file: its number, the comment of its number line (the reference
// text), its lines, its size and the download action the client chose for it.
//
//   KCC_NcFileProgram program;
//   program.SetProgramNumber(1000);
//   program.AddLine("O1000 (PLATE)");
//   program.AddLine("M30");
//   int size = program.CalculateProgramSize();    // 16: line ends are not counted
//   program.SetSelectedForDownLoading(true);      // action becomes "download"
//
// Selection and download action share one field: selecting overwrites "delete" and "keep in memory", and
// deselecting resets any action to "no action".
// See docs/behaviours.md#nc-programs-and-program-lists.
#pragma once

#include "ncappkit/export.h"
#include "ncappkit/foundation/KCString.h"
#include "ncappkit/foundation/KCStringList.h"

class KCC_NcFileProgramVisitor;

/// One program of an NC file: number, reference text, lines, size and download action.
class NCAPPKIT_EXPORT KCC_NcFileProgram {
 public:
  /// Program number -1, no reference text, size 0, no lines, no download action.
  KCC_NcFileProgram();
  /// Copies number, reference text, size, lines and action.
  KCC_NcFileProgram(const KCC_NcFileProgram& other);
  /// Copies number, reference text, size, lines and action.
  KCC_NcFileProgram& operator=(const KCC_NcFileProgram& other);
  virtual ~KCC_NcFileProgram();

  /// The number from the program-number line, or -1 when the program has none.
  int GetProgramNumber() const;
  /// Set the program number.
  void SetProgramNumber(int number);
  /// A copy of the reference text (the comment of the program-number line, without brackets).
  KCString GetProgramRef() const;
  /// Set the reference text.
  void SetProgramRef(const KCString& ref);
  /// The program's lines, in file order.
  KCStringList& GetStringList();
  /// The program's lines, in file order.
  const KCStringList& GetStringList() const;
  /// Write this program alone to `fileName` as KCC_NcFile::SaveToFile writes a file: framed by '%' lines,
  /// with the platform's line end, through a temporary file that replaces the target once complete. False
  /// for an empty name or a target that cannot be written (the old file then stays as it was).
  bool SaveToFile(const KCString& fileName) const;
  /// The result of the last CalculateProgramSize (0 before the first call).
  int GetProgramSize() const;

  /// Append a line.
  void AddLine(const KCString& line);
  /// Append a NUL-terminated line (a null pointer appends an empty line).
  void AddLine(char* line);
  /// Append a NUL-terminated line (a null pointer appends an empty line).
  void AddLine(const char* line);
  /// Remove all lines.
  void ClearStringList();
  /// Store and return the sum of the lengths of all lines (line ends are not counted).
  int CalculateProgramSize();

  /// Set the download action to "no action" (0).
  void SetDownLoadNoAction();
  /// Set the download action to "delete" (1).
  void SetDownLoadActionDoDelete();
  /// Set the download action to "keep in memory" (2).
  void SetDownLoadActionKeepInMemory();
  /// Set the download action to "download" (3).
  void SetDownLoadDoDownLoad();
  /// True when the action is "no action".
  bool HasDownLoadNoAction() const;
  /// True when the action is "delete".
  bool HasDownLoadActionDoDelete() const;
  /// True when the action is "keep in memory".
  bool HasDownLoadActionKeepInMemory() const;
  /// True when the action is "download".
  bool HasDownLoadDoDownLoad() const;
  /// true: action "download"; false: action "no action" (whatever the action was before).
  void SetSelectedForDownLoading(bool selected);
  /// True when the action is "download".
  bool IsSelectedForDownLoading() const;

  /// The visitor's result for this program.
  bool Accept(KCC_NcFileProgramVisitor& visitor);

 private:
  int m_programNumber = -1;
  KCString m_programRef;
  int m_programSize = 0;
  KCStringList m_lines;
  int m_downLoadAction = 0;
};
