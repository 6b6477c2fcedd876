#pragma once

#include <vector>

/// Rows that move together: `count` rows from row `from`, the first of which is row `to` afterwards.
struct RowMove
{
    int from;
    int to;
    int count;
};

/// The moves, one after the other, that bring rows to their places: `places[row]` is the row it shall become, each of
/// 0 ... places.size() - 1 once. As few rows as possible are moved, each once; neighbors that stay neighbors go
/// together.
std::vector<RowMove> rowMoves(const std::vector<int> &places);
