// SPDX-License-Identifier: MIT
// Internal helper of the NC sources: the scans of NC text that the file splitter, the block decoder and the
// line tests share, so that each rule lives in one place.
//
// Round brackets: a '(' starts a comment, the first ')' after it ends it (a '(' inside a comment changes
// nothing, a ')' outside one is an ordinary character). Codes are only looked for outside comments.
//
// The scans skip whole stretches at a time (eight bytes per step, or memchr) instead of testing character
// by character: they run on every line of every file loaded.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

#include "foundation/KCCharClass.h"

#if defined(__SSE2__) && defined(__GNUC__)
#include <emmintrin.h>
#define NCAPPKIT_SCAN_SSE2 1
#endif

namespace ncappkit_detail {

/// Bytes that FindLineFeed may read past `to`: a buffer it scans must have this many readable bytes after
/// the end of its text.
constexpr std::size_t kLineFeedScanPadding = 16;

/// Index of the first '\n' in [from, to); `to` when there is none. Sets `sawM` when an 'M' stands in the
/// bytes scanned before that '\n' (or before `to`) and leaves it alone otherwise, so that a line scanned in
/// several pieces collects the answer: a line without any 'M' holds no M30, M99 or M98, so the program-end
/// and first-block scans can pass it by. Reads up to kLineFeedScanPadding bytes past `to`.
inline std::size_t FindLineFeed(const char* p, std::size_t from, std::size_t to, bool& sawM) noexcept {
#if defined(NCAPPKIT_SCAN_SSE2)
  const __m128i lineFeed = _mm_set1_epi8('\n');
  const __m128i letterM = _mm_set1_epi8('M');
  for (std::size_t i = from; i < to; i += 16) {
    const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(p + i));
    const std::size_t left = to - i;
    const unsigned valid = left >= 16 ? 0xFFFFu : (1u << left) - 1u;
    const unsigned lf = static_cast<unsigned>(_mm_movemask_epi8(_mm_cmpeq_epi8(bytes, lineFeed))) & valid;
    const unsigned m = static_cast<unsigned>(_mm_movemask_epi8(_mm_cmpeq_epi8(bytes, letterM))) & valid;
    if (lf != 0) {
      const unsigned k = static_cast<unsigned>(__builtin_ctz(lf));
      sawM = sawM || (m & ((1u << k) - 1u)) != 0;
      return i + k;
    }
    sawM = sawM || m != 0;
  }
  return to;
#else
  const void* lf = std::memchr(p + from, '\n', to - from);
  const std::size_t end = lf == nullptr ? to : static_cast<std::size_t>(static_cast<const char*>(lf) - p);
  sawM = sawM || std::memchr(p + from, 'M', end - from) != nullptr;
  return end;
#endif
}

/// Index of the first byte in [from, to) equal to `a` or `b`; `to` when there is none.
inline std::size_t FindEitherChar(const char* p, std::size_t from, std::size_t to, char a, char b) noexcept {
  std::size_t i = from;
#if defined(__GNUC__) && defined(__BYTE_ORDER__) && __BYTE_ORDER__ == __ORDER_LITTLE_ENDIAN__
  // Eight bytes per step. The high bit of each byte of the mask is set exactly where the byte equals `a` or
  // `b` (no false hits), so the lowest set bit names the first match.
  constexpr std::uint64_t kOnes = 0x0101010101010101ull;
  constexpr std::uint64_t kLow7 = 0x7F7F7F7F7F7F7F7Full;
  const std::uint64_t aa = kOnes * static_cast<unsigned char>(a);
  const std::uint64_t bb = kOnes * static_cast<unsigned char>(b);
  auto matches = [&](std::size_t at) {
    std::uint64_t word = 0;
    std::memcpy(&word, p + at, 8);
    const std::uint64_t xa = word ^ aa;
    const std::uint64_t xb = word ^ bb;
    const std::uint64_t za = ~(((xa & kLow7) + kLow7) | xa | kLow7);
    const std::uint64_t zb = ~(((xb & kLow7) + kLow7) | xb | kLow7);
    return za | zb;
  };
  for (; i + 8 <= to; i += 8) {
    const std::uint64_t m = matches(i);
    if (m != 0)
      return i + static_cast<std::size_t>(__builtin_ctzll(m)) / 8;
  }
  if (i < to && to >= 8) {
    // The rest: the last eight bytes of the range, without those before i.
    const std::size_t base = to - 8;
    const std::uint64_t m = matches(base) >> ((i - base) * 8);
    return m != 0 ? i + static_cast<std::size_t>(__builtin_ctzll(m)) / 8 : to;
  }
#endif
  for (; i < to; ++i) {
    if (p[i] == a || p[i] == b)
      return i;
  }
  return to;
}

/// Index of the ')' that ends a comment whose text starts at `from` (just after its '('); `n` when the
/// comment runs to the end of the text.
inline std::size_t CommentEnd(const char* p, std::size_t from, std::size_t n) noexcept {
  if (from >= n)
    return n;
  const void* close = std::memchr(p + from, ')', n - from);
  return close == nullptr ? n : static_cast<std::size_t>(static_cast<const char*>(close) - p);
}

/// Calls visit(k) for every position k < limit that holds `c` outside round brackets, in order, until visit
/// returns true; the text is p[0, n) and its scan starts outside a comment. Returns true when visit stopped
/// the scan. `endsInComment`, when given, tells whether position limit - 1 lies inside a comment (its '('
/// counted as inside) at the end of a scan that was not stopped.
template <class Visit>
bool ForEachOutsideComments(const char* p, std::size_t n, std::size_t limit, char c, Visit visit,
                            bool* endsInComment = nullptr) {
  std::size_t i = 0;
  while (i < limit) {
    const std::size_t k = FindEitherChar(p, i, limit, c, '(');
    if (k == limit)
      break;
    if (p[k] == '(') {
      const std::size_t close = CommentEnd(p, k + 1, n);
      if (close >= limit) {
        if (endsInComment != nullptr)
          *endsInComment = true;
        return false;
      }
      i = close + 1;  // the ')' itself is outside, and is not `c`
      continue;
    }
    if (visit(k))
      return true;
    i = k + 1;
  }
  if (endsInComment != nullptr)
    *endsInComment = false;
  return false;
}

/// The program-end codes. Which of them a test accepts is the caller's choice: the file splitter takes all
/// three, KCC_ParseNc's line tests take M30 alone or M30 and M99.
enum EndCode : unsigned {
  kEndNone = 0,
  kEndM30 = 1,  ///< M30 outside brackets, not followed by a digit
  kEndM99 = 2,  ///< M99 outside brackets, not followed by a digit
  kEndRET = 4,  ///< RET as the first three characters of the text
};

/// Result of ScanEndCode.
struct EndCodeScan {
  EndCode code = kEndNone;  ///< the accepted code that ended the scan
  bool compared = false;    ///< some position outside brackets was compared with the codes
  bool retAtLast = false;   ///< no code: the last position compared (n - 3) held RET, which counts only first
};

/// Looks for the first program-end code of `accepted` (a set of EndCode bits) in p[0, n). Positions 0 to
/// n - 3 outside round brackets are compared; an M code directly followed by a digit (M300, M991) is no end.
inline EndCodeScan ScanEndCode(const char* p, std::size_t n, unsigned accepted) noexcept {
  EndCodeScan result;
  if (n < 3)
    return result;
  const std::size_t last = n - 3;
  if ((accepted & kEndRET) != 0 && std::memcmp(p, "RET", 3) == 0) {
    result.code = kEndRET;
    result.compared = true;
    return result;
  }
  bool endsInComment = false;
  const bool stopped = ForEachOutsideComments(
      p, n, last + 1, 'M',
      [&](std::size_t k) {
        EndCode code = kEndNone;
        if (p[k + 1] == '3' && p[k + 2] == '0')
          code = kEndM30;
        else if (p[k + 1] == '9' && p[k + 2] == '9')
          code = kEndM99;
        if ((accepted & code) == 0 || (k != last && IsDigit(p[k + 3])))
          return false;
        result.code = code;
        return true;
      },
      &endsInComment);
  result.compared = true;
  if (stopped)
    return result;
  // Position 0 is compared unless it opens a comment; then the first position compared is its ')'.
  if (p[0] == '(')
    result.compared = std::memchr(p, ')', last + 1) != nullptr;
  result.retAtLast = !endsInComment && std::memcmp(p + last, "RET", 3) == 0;
  return result;
}

/// The flags form of a scan, as the classes' line tests report it: `isM30` / `isM99` (and `isRET`, when
/// given) tell which code ended the scan; when none did they describe the last position compared (all
/// false, but isRET set when RET stood there after the line start), and they keep the caller's values when
/// no position was compared. Returns whether a code ended the scan.
inline bool ReportEndCode(const EndCodeScan& scan, bool& isM30, bool& isM99, bool* isRET = nullptr) noexcept {
  if (scan.compared) {
    isM30 = scan.code == kEndM30;
    isM99 = scan.code == kEndM99;
    if (isRET != nullptr)
      *isRET = scan.code == kEndRET || scan.retAtLast;
  }
  return scan.code != kEndNone;
}

}  // namespace ncappkit_detail
