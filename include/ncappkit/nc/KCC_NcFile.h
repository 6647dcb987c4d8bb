// SPDX-License-Identifier: MIT
// KCC_NcFile: loads an NC file (or the same text held as a KCStringList), splits it into programs, files
// them as main programs or sub-programs, recognises the controller structure and saves the programs again.
// Copies share their programs, moves transfer them, Clone duplicates them (see "Ownership" below).
//
//   KCC_NcFile file;
//   if (file.LoadFromFile("part.nc", /*checkFirstBlock=*/true, /*keepUnfinished=*/false) == nullptr) {
//     if (file.HasFileNotFoundError()) ...
//   }
//   KCC_NcFileProgramList& mains = file.GetMainProgList();
//   for (KCC_NcFileProgram* p = mains.GetFirstProg(); p != nullptr; p = mains.GetNextProg()) { ... }
//   file.SaveToFile("out.nc");
//
// How a text is split:
// - Lines starting with '%' are dropped. A program-number line (O1234, :1234, "O 1234 (REF)") names the
//   current program and is its first line; the comment in brackets becomes the reference text.
// - M30 ends a main program. M99 (or a line starting with RET) ends a sub-program, which stays current and
//   collects the following lines until the next program-number line. With checkFirstBlock set, a program
//   that holds the first block (M98 with P8010 on one line: Fanuc; a line starting N50 FIRST_BLOCK: Siemens)
//   is a main program even when it ends with M99 or RET.
// - The pending sub-program state (after M99 or RET) ends only at the next program-number line: a pending
//   sub-program that meets M30 goes to the main-program list, and the fresh program started then is still
//   pending, so the next number line (or the end of the text) files it as a sub-program, even when empty.
// - A code directly followed by a digit (M300, M991) is no end; RET counts only at the start of a line.
// - Whatever follows the last end: with keepUnfinished set it becomes a program of the sub-program list
//   (also when it is empty), otherwise it is discarded.
// - At most 999998 lines are read; one more gives the too-many-lines error.
//
// LoadFromFile reads through a line buffer of 128 characters: a line of more than 127 characters (line end
// not counted) puts the reader into a failed state in which every further read gives an empty line, so such
// a file ends with the too-many-lines error. Read such files yourself and use LoadFromStringList. Choices
// made where the text format leaves room:
// - A line ends at LF; a CR directly before the LF belongs to the line end (CRLF files read like LF files).
//   A lone CR is an ordinary character; CRs and LFs at the very start of a line (before any blank) are
//   treated as blanks.
// - The line the program sees ends at its first NUL byte (as in a character buffer).
// - An empty read at the very end of the file (after the last line end) is not a line.
// - SaveToFile writes text lines with the platform's line end (KCC_GetTextLineEnd: LF, CR LF on Windows).
//
// Ownership, in three rules (as for KCC_NcFileProgramList):
// - Copies share. Copying a KCC_NcFile copies the two lists memberwise: the copies refer to the same
//   programs, and both would delete them.
// - Moves transfer. A moved-to file takes the programs, the file id and the error state over; the moved-from
//   file is left as a new one. So a file can be returned from a function on any path, and kept in a
//   std::vector grown with emplace_back or push_back(std::move(file)).
// - Clone duplicates: an independent file with copies of all programs.
// See docs/behaviours.md#nc-files.
#pragma once

#include <string>
#include <vector>

#include "ncappkit/export.h"
#include "ncappkit/foundation/KCString.h"
#include "ncappkit/foundation/KCStringList.h"
#include "ncappkit/nc/KCC_NcFileProgram.h"
#include "ncappkit/nc/KCC_NcFileProgramList.h"

/// An NC file split into main programs and sub-programs, loaded from a file or a string list and saved again.
class NCAPPKIT_EXPORT KCC_NcFile {
 public:
  /// The error codes of a load, as GetErrorCode gives them.
  enum LoadError {
    kNoError = 0,             ///< the last load succeeded
    kNoFileNameError = 1,     ///< LoadFromFile got an empty file name
    kFileNotFoundError = 2,   ///< the file does not exist (or is no regular file)
    kFileOpenError = 3,       ///< the file exists but could not be opened for reading
    kTooManyLinesError = 4,   ///< the line budget ran out (too many lines, or a line too long for the reader)
    kNoNcStructureError = 5,  ///< no complete program was found
  };
  /// Longest line (line end not counted) that LoadFromFile reads; a longer one ends in kTooManyLinesError.
  static constexpr int kMaxLineLength = 127;
  /// Most lines one load reads; a text with more ends in kTooManyLinesError.
  static constexpr int kMaxLines = 999998;

  /// No programs, no file id, no error, Fanuc structure.
  KCC_NcFile();
  /// Memberwise copy: the lists' pointers are copied, not the programs.
  KCC_NcFile(const KCC_NcFile& other);
  /// Memberwise copy: the lists' pointers are copied, not the programs.
  KCC_NcFile& operator=(const KCC_NcFile& other);
  /// Takes over the programs, file id, error code, structure and too-long line of `other`, which is left as
  /// a new file (no programs, no file id, no error, Fanuc structure).
  KCC_NcFile(KCC_NcFile&& other) noexcept;
  /// Deletes the programs held before, then takes over everything of `other`, which is left as a new file.
  /// Moving a file onto itself changes nothing.
  KCC_NcFile& operator=(KCC_NcFile&& other) noexcept;
  virtual ~KCC_NcFile();

  /// Load the file `fileName`. Returns the last program stored in a list, or null with the error code set.
  /// An empty name, a missing file and a file that cannot be opened leave the lists untouched.
  KCC_NcFileProgram* LoadFromFile(const KCString& fileName, bool checkFirstBlock, bool keepUnfinished);
  /// LoadFromFile without the line-length limit: lines of any length are read whole (a line still ends at
  /// its first NUL and at LF, with a CR before the LF dropped), so whatever SaveToFile writes reads back.
  /// The line budget (kMaxLines) and the error codes are those of LoadFromFile.
  KCC_NcFileProgram* LoadFromFileWithoutLineLimit(const KCString& fileName, bool checkFirstBlock,
                                                  bool keepUnfinished);
  /// Load the lines of `text` (one line per entry). Returns the last program stored, or null with the error
  /// code set.
  KCC_NcFileProgram* LoadFromStringList(const KCStringList& text, bool checkFirstBlock, bool keepUnfinished);
  /// 1-based number of the line that ended the last LoadFromFile because it was longer than kMaxLineLength;
  /// 0 when no line was too long, when the too-long line came after kMaxLines (the line budget ended the
  /// load), and after the other loads, which have no such limit.
  int GetTooLongLineNumber() const;

  /// Write the main programs, then the sub-programs, framed by '%' lines, to `fileName`. False for an empty
  /// name or when the file cannot be opened for writing (read-only, a directory, a missing folder); then
  /// nothing is written. The text goes to a file beside the target that replaces it once complete, so a save
  /// that fails half way keeps the old file; a symbolic link stays and the file it names is replaced. Where
  /// no file can be made beside the target, the target is written in place.
  bool SaveToFile(const KCString& fileName);
  /// SaveToFile on the path that joins `directory` and `fileName`.
  bool SaveToFile(const KCString& directory, const KCString& fileName);
  /// Save just `programs`, in that order, as SaveToFile saves a file's programs (same framing, line ends and
  /// safe replace); null entries are skipped. False for an empty name or a target that cannot be written.
  static bool SaveProgramsToFile(const KCString& fileName,
                                 const std::vector<const KCC_NcFileProgram*>& programs);
  /// The text SaveToFile writes for `programs`: each line followed by `lineEnd`, with a "%" line before the
  /// first program unless its first line is "%", and one after the last line unless it is "%". Null entries
  /// are skipped; no programs give the empty text.
  static std::string GetProgramsText(const std::vector<const KCC_NcFileProgram*>& programs,
                                     const KCString& lineEnd);
  /// A short English name of a load error code ("file not found"); "unknown error N" for other codes.
  static KCString GetErrorName(int errorCode);

  /// An independent file: the same file id, error code and structure, with copies of all programs.
  KCC_NcFile Clone() const;

  /// The main programs (ended by M30, or holding the first block).
  KCC_NcFileProgramList& GetMainProgList();
  /// The sub-programs (ended by M99 or RET, and an unfinished last program when kept).
  KCC_NcFileProgramList& GetSubProgList();
  /// Number of entries of the main-program list.
  int GetNumberOfMainPrograms() const;
  /// Number of entries of the sub-program list.
  int GetNumberOfSubPrograms() const;
  /// True when there is no main program.
  bool IsMainProgramsEmpty() const;
  /// True when there is no sub-program.
  bool IsSubProgramsEmpty() const;

  /// Delete the first main program with that number; true when there was one.
  bool RemoveProgramFromMainProgramList(int number);
  /// Delete the first sub-program with that number; true when there was one.
  bool RemoveProgramFromSubProgramList(int number);
  /// Delete all main programs.
  void ClearMainProgramsList();
  /// Delete all sub-programs.
  void ClearSubProgramsList();
  /// Delete all programs of both lists.
  void ClearAllPrograms();
  /// Forget the file id, reset the error code and delete all programs; the structure is kept.
  void ReInit();
  /// A copy of the name of the file last loaded (set also when the file held no program).
  KCString GetLoadedFromFileId() const;
  /// True when a program number occurs twice among the programs of both lists (-1, "no number", included).
  bool CheckMultipleProgramNumbers() const;

  /// Error code 0: the last load succeeded.
  bool HasNoError() const;
  /// Error code 1: LoadFromFile got an empty file name.
  bool HasNoFileNameError() const;
  /// Error code 2: the file does not exist (or is no regular file).
  bool HasFileNotFoundError() const;
  /// Error code 3: the file exists but could not be opened for reading.
  bool HasFileOpenError() const;
  /// Error code 4: the line budget ran out (too many lines, or a line too long for the file reader).
  bool HasTooManyLinesError() const;
  /// Error code 5: no complete program was found.
  bool HasFileWithoutNcStructureError() const;
  /// The error code of the last load (0 to 5, see the predicates).
  int GetErrorCode() const;

  /// True unless the last first-block marker recognised, by this or an earlier load, was Siemens' (a load
  /// without a marker keeps the structure).
  bool IsFanucNcFileStructure() const;
  /// True when the last first-block marker recognised, by this or an earlier load, was Siemens'.
  bool IsSiemensNcFileStructure() const;

 protected:
  /// Parse a program-number line (":1234", "O1234", "O 1234 (REF)"): `number` gets the leading digits, `ref`
  /// the text between the first '(' and the first ')' when the line has both (else it is left as it was).
  bool ParseProgramNumberLine(const KCString& line, int& number, KCString& ref);
  /// True when `line` is a first block: M98 and P8010 outside brackets (structure becomes Fanuc), or a line
  /// starting with "N50FIRST_BLOCK" / "N50 FIRST_BLOCK" (structure becomes Siemens).
  bool Check_FirstBlock_Command(const char* line);
  /// True when `line` ends a program: M30 or M99 outside brackets and not followed by a digit, or RET at the
  /// start of the line. The flags tell which code ended the scan.
  bool Check_M30_M99_RET_Command(const char* line, bool& isM30, bool& isM99, bool& isRET);

 private:
  class Loader;
  friend class Loader;
  KCC_NcFileProgram* LoadFile(const KCString& fileName, bool checkFirstBlock, bool keepUnfinished,
                              bool lineLimit);
  void ResetToNew() noexcept;

  KCC_NcFileProgramList m_mainPrograms;
  KCC_NcFileProgramList m_subPrograms;
  KCString m_loadedFromFileId;
  int m_errorCode = 0;
  int m_structure = 0;
  int m_tooLongLine = 0;
};
