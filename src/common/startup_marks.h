#pragma once
// Marks of the start-up, for measuring where its time goes: when the
// program entered, finished each step of Main, made each form's window,
// showed, first painted and took its first key. Built in only with the
// QUILL_STARTUP_MARKS option, which the product leaves out; without it
// every call here is empty and costs nothing.
#include <string_view>

namespace qs::marks {

#ifdef QUILL_STARTUP_MARKS
// Notes the moment with a name; any thread may call it. Names longer than
// a mark holds are cut; marks beyond the recorder's room are dropped.
void Mark(std::string_view what);
// The same, for a name made of a word and a form's or control's name.
void Mark(std::string_view what, std::wstring_view name);
// Writes the marks noted so far, in milliseconds after the first, to the
// file the environment variable QUILL_MARKS_FILE names, which appears
// whole; only the first call writes, and without the variable nothing is
// written.
void Write();
#else
inline void Mark(std::string_view) {}
inline void Mark(std::string_view, std::wstring_view) {}
inline void Write() {}
#endif

}  // namespace qs::marks
