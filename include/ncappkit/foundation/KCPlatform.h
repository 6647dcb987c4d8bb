// SPDX-License-Identifier: MIT
// KCPlatform: the library's only contact points with the operating system's desktop services.
//
// - Message boxes: KCC_ShowMessageBox shows a modal box through a process-wide handler. On Windows the
//   default handler calls MessageBoxA. Elsewhere the default handler writes caption and text to stderr and
//   answers with the box's default button (see KCC_DefaultMessageBoxAnswer). Clients and tests install their
//   own handler with KCC_SetMessageBoxHandler, so no real window needs to open.
// - The running program's path: KCC_GetExecutablePath (GetModuleFileNameA on Windows, /proc/self/exe on
//   Linux, the loader's path elsewhere).
// - The line end of text files the library writes: KCC_GetTextLineEnd (CR LF on Windows, LF elsewhere).
// - Large arrays filled once (tool-path segments, the SVG canvas's points and text) ask for transparent huge
//   pages on Linux (madvise), which saves most of their page faults; elsewhere they use the usual pages.
//
//   unsigned MyBox(HWND, const char* text, const char* caption, unsigned style) { return 1; }
//   KCC_MessageBoxHandler old = KCC_SetMessageBoxHandler(&MyBox);
//
// See docs/behaviours.md#message-reporters.
#pragma once

#include "ncappkit/export.h"
#include "ncappkit/foundation/KCString.h"

#if defined(_WIN32)
// The same declaration windows.h makes, so that both headers can be included in any order.
struct HWND__;
typedef struct HWND__* HWND;
#else
/// Window handle; off Windows an opaque pointer that the library only passes through.
typedef void* HWND;
#endif

/// A message-box implementation: shows `text` with `caption` and the Windows `style` bits
/// (button set | icon | default button) and returns the pressed button's code (1 OK, 2 Cancel, 3 Abort,
/// 4 Retry, 5 Ignore, 6 Yes, 7 No).
using KCC_MessageBoxHandler = unsigned int (*)(HWND owner, const char* text, const char* caption,
                                               unsigned int style);

/// Install `handler` for all later message boxes and return the one it replaces; null restores the default.
NCAPPKIT_EXPORT KCC_MessageBoxHandler KCC_SetMessageBoxHandler(KCC_MessageBoxHandler handler);
/// Show a message box through the current handler; returns its answer.
NCAPPKIT_EXPORT unsigned int KCC_ShowMessageBox(HWND owner, const char* text, const char* caption,
                                                unsigned int style);
/// The answer of a box closed with its default button: the first button of the set (OK, OK, Abort, Yes,
/// Yes, Retry for sets 0 to 5), or the second or third when the style's default-button bits (0x100, 0x200)
/// choose one that the set has; an unknown set answers OK.
NCAPPKIT_EXPORT unsigned int KCC_DefaultMessageBoxAnswer(unsigned int style) noexcept;
/// Full path of the running program's executable, or "" when the system cannot tell.
NCAPPKIT_EXPORT KCString KCC_GetExecutablePath();
/// The line end the library writes into new text files (NC programs, INI files): "\r\n" on Windows, "\n"
/// elsewhere. Never null.
NCAPPKIT_EXPORT const char* KCC_GetTextLineEnd() noexcept;
