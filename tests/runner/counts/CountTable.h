// The table of the figures as a text: what bench/counts prints and what the bars are taken from.
#pragma once

#include "tests/runner/counts/Figure.h"

namespace counts {

// A line of the table in Markdown, and what stands above the lines.
std::string TableHead();
std::string TableLine(const Figure& figure);
// The figures of such a table; lines of another form are passed over.
std::vector<Figure> ReadTable(const std::string& text);

// Each part that needs more than five percent more than the table says, in words, with the functions that
// most instructions are in; and each that only one of the two has.
std::vector<std::string> Growth(const std::vector<Figure>& table, const std::vector<Figure>& measured);

} // namespace counts
