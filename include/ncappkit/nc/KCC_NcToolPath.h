// SPDX-License-Identifier: MIT
// KCC_NcToolPath: runs one program of a loaded NC file through a modal interpreter and keeps the motion it
// commands as a compact list of segments (rapid, feed, arcs, canned-cycle holes) with extents, lengths and an
// estimated run time. What it does not understand it lists, by kind and line, instead of guessing.
//
//   KCC_NcFile file;
//   file.LoadFromFile("part.nc", true, false);
//   KCC_NcToolPath path;
//   path.SetRapidRate(15000.0);                         // mm/min, for the run time
//   path.Interpret(file, *file.GetMainProgList().GetProgram(0));
//   for (const KCC_NcToolPath::Segment& s : path.GetSegments()) { ... }   // draw s.start -> s.end
//   KCC_NcToolPath::Extents box;
//   if (path.GetExtents(box)) { ... }
//   for (const KCC_NcToolPath::Note& w : path.GetWarnings()) { ... }      // line and text
//
// Rules worth knowing:
// - Words: G0 G1 G2 G3 (modal, also G00..G03), G4 (dwell: X, U or F seconds, P milliseconds; no motion),
//   G15/G16 (polar coordinates in G17: X radius, Y angle in degrees, pole at the work origin; in G91 both
//   add up), G17 G18 G19 (arcs in XY, ZX, YZ; G2 clockwise as seen from the positive third axis), G20 G21
//   and Siemens G70 G71 G700 G710 (inch or mm input; all is kept in millimetres, feeds in mm/min),
//   G73 G74 G76 G81-G89 canned cycles with G98/G99, R, Q, P and repeats K or L, cancelled by G80 or G0-G3,
//   G90 G91, G90.1/G91.1 (arc centres absolute / incremental), X Y Z, I J K (arc centre, incremental from the
//   start by default), R or Siemens CR= (arc radius; a negative one takes the arc over 180 degrees), F, T,
//   M6, M98 P (L repeats; P above 9999 is the eight-digit form: P30010 = three times O0010), M99, M17, RET,
//   M2, M30, Siemens L<n> calls (P repeats) and calls of a program by name, #n = value and R<n> = value.
// - Silently accepted because they do not change the path: N, S, D, H, G40 G49 G61 G64 G69 G94, G9 and the
//   other M codes. Every other G code, M97, M198, the address letters A B C E O U V W, names (IF, GOTO,
//   WHILE, DO, END, CYCLE81, TRANS, ...) and stray characters are "not interpreted": counted by kind, kept
//   with their line (each kind once per block). G10 G28 G29 G30 G50.1 G51 G51.1 G52 G53 G65 G66 G68 G92
//   also take the block's axis words (positions, centres or mirror axes there), which then do not move.
// - IF, WHILE, GOTO, DO and END (with the Siemens ELSE, ENDIF, LOOP, FOR, REPEAT, ...) skip the rest of
//   their block, so loops run once and jumps are not taken. Any other name that is no program found
//   (TRANS X10, DPRNT[...], CYCLE81(...)) is a statement whose words are its arguments: none of its block
//   runs. A name with '=' (AP=90) is listed and the rest of the block runs.
// - Values: a number, #n, -#n, a bracketed expression ([#101 + 2*3], SIN COS TAN in degrees, SQRT) and after
//   '=' a Siemens expression (Z=-R10). Expressions are evaluated by KCC_MathExpression with the usual
//   precedence. A parameter without a value, an unknown function or a faulty expression is a warning with
//   its line, and the word is ignored.
// - Blocks are read by the interpreter's own word scanner, not by KCC_ParseNc: that block decoder does not
//   decode Z, Q, H, O, U and W, continues a repeated letter (X10 X20 gives 1020), keeps F, K, L and P as
//   integers and knows no parameters or expressions, none of which motion can live with. Here every letter
//   A-Z is an address, blanks between a letter and its value are allowed, lower case reads as upper case,
//   and a letter given twice in a block is a warning and its last value counts.
// - Comments in round brackets and after ';' are skipped, and so are block numbers, '%' lines and
//   program-number lines. A block starting with '/' runs unless SetSkipDeletableBlocks(true) was called.
// - Arcs: start and end radius of an I/J/K arc may differ by 0.01 mm; more is a warning, and the segment is
//   kept with its centre (a controller that accepts it runs a spiral) and marked kFlagInconsistent. An R arc
//   whose chord is longer than 2R (by more than 0.01 mm) is a warning and becomes the half circle over the
//   chord, also marked. An I/J/K arc ending where it starts is a full circle; an arc without centre or
//   radius is a warning and becomes a marked straight feed move.
// - Canned cycles: per hole a rapid to X/Y at the current level, a rapid down to the R level, a kHole
//   segment from the R level to the depth, and with G98 a rapid back up to the initial level (the level when
//   the cycle started). In G91 R counts from the initial level, the depth from the R level, and each repeat
//   steps by the incremental X/Y. K0 (or L0) drills nothing.
// - Calls: the called program is looked for among the file's sub-programs, then its main programs (by
//   number), then, for Siemens calls, as NAME.SPF or L<n>.SPF (also .spf) in the sub-program folder. A call
//   to a program already running, beyond the call-depth limit or of a program not found is a warning and is
//   not followed. M30 or M2 in a called program returns like M99; M99 in the program interpreted ends it.
// - Limits (settable): the segment limit, the block limit (blocks run, call repeats included) and the call
//   depth. Reaching the first two stops the run with a warning, IsComplete() false and the segments made so
//   far, so no file runs out of memory or time. Warnings and not-interpreted entries keep at most
//   kMaxKeptNotes each; the counts go on.
// - The geometry is that of a mill as programmed: no tool radius or length compensation, work offset,
//   rotation or scaling is applied, and X is never a diameter (a lathe program draws at twice its radius).
// - The run starts at the start point (default 0,0,0) in G0 G17 G90 G98 G21 with no tool, feed 0.
// - SetReadAhead(true) lets a second thread read the blocks of a long program (20,000 lines or more) while
//   the interpreter runs the ones before: about half the time of a generated program is reading its text.
//   The thread only reads the program's lines (which must not change during Interpret) and ends with the
//   run; the result is the same as without it. Off by default: the library starts no thread unasked.
// - Segments hold single-precision coordinates (about 0.01 mm resolution at 100 m); extents, lengths and
//   the run time are computed in double precision.
// See docs/behaviours.md#tool-paths.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "ncappkit/export.h"
#include "ncappkit/foundation/KCString.h"
#include "ncappkit/foundation/KCStringList.h"

class KCC_NcFile;
class KCC_NcFileProgram;

/// Modal interpreter that turns one NC program into motion segments, extents, lengths and a run time.
class NCAPPKIT_EXPORT KCC_NcToolPath {
 public:
  /// What a segment does.
  enum SegmentKind : std::uint8_t {
    kRapid = 0,   ///< rapid traverse (G0), straight
    kFeed = 1,    ///< straight move at feed (G1)
    kArcCW = 2,   ///< clockwise arc (G2) about `centre` in `plane`, helical when the third axis changes
    kArcCCW = 3,  ///< counter-clockwise arc (G3)
    kHole = 4,    ///< a canned-cycle hole from the R level (start) to the depth (end)
  };
  /// The plane of an arc (kPlaneXY for the other kinds).
  enum Plane : std::uint8_t {
    kPlaneXY = 0,  ///< G17: the arc turns about Z
    kPlaneZX = 1,  ///< G18: the arc turns about Y
    kPlaneYZ = 2,  ///< G19: the arc turns about X
  };
  /// Bits of Segment::flags.
  enum SegmentFlag : std::uint8_t {
    kFlagInconsistent = 1,  ///< an arc whose data did not agree (see the rules); drawn as described there
    kFlagFullCircle = 2,    ///< an arc whose end is its start: a whole turn
  };

  /// One motion, 56 bytes: three float points (start, end, arc centre), the feed as a float, the line as a
  /// 32-bit number, 32-bit indices of the program and the tool, and kind, plane and flags in one byte each.
  struct Segment {
    float start[3];         ///< X, Y, Z where the motion starts, mm
    float end[3];           ///< X, Y, Z where it ends, mm
    float centre[3];        ///< arcs: the centre (its third-axis value is the start's); 0 otherwise
    float feed;             ///< mm/min; 0 for rapids
    std::int32_t line;      ///< 1-based index into the program's lines (KCC_NcFileProgram::GetStringList)
    std::uint32_t program;  ///< index of the program it came from (GetProgramNumber, GetProgramName)
    std::uint32_t tool;     ///< the active tool number (0 before any T word)
    std::uint8_t kind;      ///< a SegmentKind
    std::uint8_t plane;     ///< a Plane
    std::uint8_t flags;     ///< SegmentFlag bits
    std::uint8_t reserved;  ///< always 0
  };

 private:
  class Run;  // the working state of one Interpret call, defined with it

 public:
  /// The segments of a run, read-only: an array in one block of memory (begin/end, size, operator[]).
  /// Segments are plain data, so the block grows and is trimmed with the C allocator's realloc, which on
  /// most systems resizes a large block in place or by remapping its pages: a long path is not copied when
  /// it outgrows its reserve, and the reserve it did not use is given back at the end of the run.
  class NCAPPKIT_EXPORT SegmentList {
   public:
    /// No segments.
    SegmentList() noexcept = default;
    /// Copies the segments into a block of their own size.
    SegmentList(const SegmentList& other);
    /// Copies the segments; returns *this.
    SegmentList& operator=(const SegmentList& other);
    ~SegmentList();

    /// The first segment (nullptr when there is none).
    const Segment* begin() const noexcept { return m_data; }
    /// Just past the last segment.
    const Segment* end() const noexcept { return m_data + m_size; }
    /// The array of size() segments.
    const Segment* data() const noexcept { return m_data; }
    /// Number of segments.
    std::size_t size() const noexcept { return m_size; }
    /// Number of segments the block holds room for.
    std::size_t capacity() const noexcept { return m_capacity; }
    /// True when there is no segment.
    bool empty() const noexcept { return m_size == 0; }
    /// Segment `index` (below size()).
    const Segment& operator[](std::size_t index) const noexcept { return m_data[index]; }
    /// The first segment (the list must not be empty).
    const Segment& front() const noexcept { return m_data[0]; }
    /// The last segment (the list must not be empty).
    const Segment& back() const noexcept { return m_data[m_size - 1]; }

   private:
    friend class KCC_NcToolPath;
    friend class Run;
    // Room for `count` segments at least; throws std::bad_alloc when there is no memory.
    void Reserve(std::size_t count);
    // Appends one segment, growing the block by half its size when full.
    void Append(const Segment& segment) {
      if (m_size == m_capacity)
        Grow();
      m_data[m_size++] = segment;
    }
    void Grow();
    // Gives back the room beyond size() (all of the block when empty).
    void Trim() noexcept;
    // No segments and no block.
    void Release() noexcept;

    Segment* m_data = nullptr;
    std::size_t m_size = 0;
    std::size_t m_capacity = 0;
  };

  /// A warning or a not-interpreted entry: where, and what.
  struct Note {
    std::uint32_t program = 0;  ///< program index, as in Segment::program
    std::int32_t line = 0;      ///< 1-based line of that program
    KCString text;              ///< the warning text, or the kind of construct not interpreted ("G41", "IF")
  };
  /// How often one kind of construct was not interpreted.
  struct KindCount {
    KCString kind;            ///< "G41", "IF", "A", "'&'", ...
    std::uint64_t count = 0;  ///< number of blocks that held it
  };
  /// The box around every point the segments pass, arc bulges included, mm.
  struct Extents {
    double min[3] = {0.0, 0.0, 0.0};  ///< smallest X, Y, Z
    double max[3] = {0.0, 0.0, 0.0};  ///< largest X, Y, Z
  };

  /// Default segment limit (about 224 MB of segments).
  static constexpr std::size_t kDefaultMaxSegments = 4000000;
  /// Default block limit: blocks run, each call and each repeat of a call counting as one more.
  static constexpr std::uint64_t kDefaultMaxBlocks = 50000000;
  /// Default limit of nested calls (the program interpreted is depth 0).
  static constexpr int kDefaultMaxCallDepth = 16;
  /// Default rapid rate for the run time, mm/min.
  static constexpr double kDefaultRapidRate = 10000.0;
  /// Most warnings and most not-interpreted entries kept (each); further ones are only counted.
  static constexpr std::size_t kMaxKeptNotes = 1000;

  /// Empty result; default options (no folder, default rate and limits, start point 0,0,0).
  KCC_NcToolPath();
  /// Copies options and result.
  KCC_NcToolPath(const KCC_NcToolPath& other);
  /// Copies options and result; returns *this.
  KCC_NcToolPath& operator=(const KCC_NcToolPath& other);
  virtual ~KCC_NcToolPath();

  /// Folder searched for Siemens sub-program files (NAME.SPF, L<n>.SPF); "" searches none.
  void SetSubProgramFolder(const KCString& folder);
  /// The sub-program folder.
  KCString GetSubProgramFolder() const;
  /// Rapid rate for the run time, mm/min; values <= 0 are ignored.
  void SetRapidRate(double mmPerMinute);
  /// The rapid rate, mm/min.
  double GetRapidRate() const;
  /// Most segments a run makes before it stops (at least 1).
  void SetMaxSegments(std::size_t count);
  /// The segment limit.
  std::size_t GetMaxSegments() const;
  /// Most blocks a run executes before it stops (at least 1).
  void SetMaxBlocks(std::uint64_t count);
  /// The block limit.
  std::uint64_t GetMaxBlocks() const;
  /// Deepest call nesting followed (0: no calls are followed).
  void SetMaxCallDepth(int depth);
  /// The call-depth limit.
  int GetMaxCallDepth() const;
  /// true: a program of many lines (20,000 or more) has its blocks read on a second thread, ahead of the
  /// interpreter, which then runs them (see the rules); false (default): no thread is started.
  void SetReadAhead(bool on);
  /// True when long programs are read ahead on a second thread.
  bool GetReadAhead() const;
  /// true: blocks starting with '/' are skipped (the block-delete switch on); false (default): they run.
  void SetSkipDeletableBlocks(bool skip);
  /// True when blocks starting with '/' are skipped.
  bool GetSkipDeletableBlocks() const;
  /// Where the tool stands when the run starts, mm.
  void SetStartPoint(double x, double y, double z);

  /// Interpret `program` (one of `file`'s programs, or any program; `file` is searched for called
  /// programs and not changed). The result of an earlier run is replaced. False when a limit stopped the
  /// run (see GetStopReason); warnings do not make it false.
  bool Interpret(KCC_NcFile& file, const KCC_NcFileProgram& program);
  /// Forget the result; the options stay.
  void Clear();

  /// The segments in the order the machine runs them.
  const SegmentList& GetSegments() const;
  /// Number of segments.
  std::size_t GetSegmentCount() const;
  /// Number of programs the run entered (segment and note program indices are below it).
  std::size_t GetProgramCount() const;
  /// The number of program `index` (-1 when it has none or the index is out of range).
  int GetProgramNumber(std::size_t index) const;
  /// The name of program `index`: "O1000", "L8010", the file name for a program read from the folder, or
  /// "" when the index is out of range.
  KCString GetProgramName(std::size_t index) const;

  /// The box around the path; false (and `extents` untouched) when there is no segment.
  bool GetExtents(Extents& extents) const;
  /// Length of the rapid moves (hole retracts at rapid and G98 returns included), mm.
  double GetRapidLength() const;
  /// Length of the moves at feed (arcs along the arc, helical ones along the helix; holes down, and up for
  /// the cycles that retract at feed), mm.
  double GetFeedLength() const;
  /// Estimated run time in seconds: feed moves at their feed, rapids at the rapid rate, dwells.
  double GetRunTime() const;
  /// Number of blocks executed.
  std::uint64_t GetBlockCount() const;

  /// True when the last run ended normally (no limit stopped it).
  bool IsComplete() const;
  /// Why the last run stopped early; "" when it did not.
  KCString GetStopReason() const;
  /// The warnings kept (at most kMaxKeptNotes), in run order.
  const std::vector<Note>& GetWarnings() const;
  /// Number of warnings, those not kept included.
  std::uint64_t GetWarningCount() const;
  /// The constructs not interpreted, kept (at most kMaxKeptNotes) in run order; Note::text is the kind.
  const std::vector<Note>& GetNotInterpreted() const;
  /// Number of not-interpreted entries, those not kept included.
  std::uint64_t GetNotInterpretedCount() const;
  /// Every kind not interpreted with its count, sorted by kind.
  const std::vector<KindCount>& GetNotInterpretedKinds() const;

  /// A short name of a SegmentKind ("rapid", "feed", "cw", "ccw", "hole"); "?" for other values.
  static const char* GetKindName(int kind);

 private:
  friend class Run;

  KCString m_folder;
  double m_rapidRate = kDefaultRapidRate;
  std::size_t m_maxSegments = kDefaultMaxSegments;
  std::uint64_t m_maxBlocks = kDefaultMaxBlocks;
  int m_maxCallDepth = kDefaultMaxCallDepth;
  bool m_skipDeletable = false;
  bool m_readAhead = false;
  double m_startPoint[3] = {0.0, 0.0, 0.0};

  SegmentList m_segments;
  std::vector<int> m_programNumbers;
  KCStringList m_programNames;
  bool m_hasExtents = false;
  Extents m_extents;
  double m_rapidLength = 0.0;
  double m_feedLength = 0.0;
  double m_runTime = 0.0;
  std::uint64_t m_blocks = 0;
  bool m_complete = true;
  KCString m_stopReason;
  std::vector<Note> m_warnings;
  std::uint64_t m_warningCount = 0;
  std::vector<Note> m_notInterpreted;
  std::uint64_t m_notInterpretedCount = 0;
  std::vector<KindCount> m_kinds;
};
