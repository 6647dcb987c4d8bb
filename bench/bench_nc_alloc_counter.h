// SPDX-License-Identifier: MIT
// Heap accounting for the NC benchmarks: replaces the global operator new/delete of the benchmark binary
// (and so of the shared library it loads, which resolves them here) with versions that count live bytes,
// their peak and the number of allocations. Include it in exactly one translation unit per executable.
//
//   HeapCounter::ResetPeak();
//   RunSomething();
//   std::size_t peak = HeapCounter::PeakBytes() - HeapCounter::BaselineAtReset();
#pragma once

#include <atomic>
#include <cstddef>
#include <cstdlib>
#include <new>

namespace HeapCounter {

inline std::atomic<std::size_t> g_live{0};
inline std::atomic<std::size_t> g_peak{0};
inline std::atomic<std::size_t> g_baseline{0};
inline std::atomic<std::size_t> g_allocations{0};

/// Start a new peak measurement from the bytes live now.
inline void ResetPeak() {
  g_baseline = g_live.load();
  g_peak = g_live.load();
}
/// Highest number of live bytes since ResetPeak, minus those live at ResetPeak.
inline std::size_t PeakAboveBaseline() {
  return g_peak.load() - g_baseline.load();
}
/// Number of allocations so far.
inline std::size_t Allocations() {
  return g_allocations.load();
}

// Every block carries its size in a header of max_align_t size, so that delete knows what it frees.
constexpr std::size_t kHeader = alignof(std::max_align_t);

inline void* Allocate(std::size_t size) {
  void* raw = std::malloc(size + kHeader);
  if (raw == nullptr)
    throw std::bad_alloc();
  *static_cast<std::size_t*>(raw) = size;
  const std::size_t live = g_live.fetch_add(size) + size;
  std::size_t peak = g_peak.load();
  while (live > peak && !g_peak.compare_exchange_weak(peak, live)) {
  }
  g_allocations.fetch_add(1);
  return static_cast<char*>(raw) + kHeader;
}

inline void Release(void* p) {
  if (p == nullptr)
    return;
  void* raw = static_cast<char*>(p) - kHeader;
  g_live.fetch_sub(*static_cast<std::size_t*>(raw));
  std::free(raw);
}

}  // namespace HeapCounter

void* operator new(std::size_t size) {
  return HeapCounter::Allocate(size);
}
void* operator new[](std::size_t size) {
  return HeapCounter::Allocate(size);
}
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
  try {
    return HeapCounter::Allocate(size);
  } catch (...) {
    return nullptr;
  }
}
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept {
  try {
    return HeapCounter::Allocate(size);
  } catch (...) {
    return nullptr;
  }
}
void operator delete(void* p) noexcept {
  HeapCounter::Release(p);
}
void operator delete[](void* p) noexcept {
  HeapCounter::Release(p);
}
void operator delete(void* p, std::size_t) noexcept {
  HeapCounter::Release(p);
}
void operator delete[](void* p, std::size_t) noexcept {
  HeapCounter::Release(p);
}
void operator delete(void* p, const std::nothrow_t&) noexcept {
  HeapCounter::Release(p);
}
void operator delete[](void* p, const std::nothrow_t&) noexcept {
  HeapCounter::Release(p);
}
