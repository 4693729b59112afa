#ifndef FRAGSMITH_BENCH_WINDOW_FIRST_PAINT_H_
#define FRAGSMITH_BENCH_WINDOW_FIRST_PAINT_H_

#include <string_view>

namespace fragsmith::bench {

/// Shows a window and ends the process as soon as it is painted: "fragsmith"
/// the editor's, "shown_page_alone" one that lacks the pages which are out of
/// sight at first, "bare_window" an empty one with menu and status bar. Comes
/// back, with an exit status, only when it cannot.
int PaintOnce(std::string_view kind, int& count, char** words);

}  // namespace fragsmith::bench

#endif  // FRAGSMITH_BENCH_WINDOW_FIRST_PAINT_H_
