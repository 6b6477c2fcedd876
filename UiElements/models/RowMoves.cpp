#include <UiElements/models/RowMoves_p.h>

#include <algorithm>
#include <cstddef>

namespace {

/// How many rows there are up to a key, while rows change their keys (a binary indexed tree).
class RowCounter
{
public:
    explicit RowCounter(std::size_t keys)
        : m_sums(keys + 1)
    {
    }
    void add(int key, int rows)
    {
        for (auto i = std::size_t(key) + 1; i < m_sums.size(); i += i & (~i + 1))
            m_sums[i] += rows;
    }
    int upTo(int key) const ///< also that key
    {
        int sum = 0;
        for (auto i = std::size_t(key) + 1; i > 0; i &= i - 1)
            sum += m_sums[i];
        return sum;
    }

private:
    std::vector<int> m_sums;
};

/// Marks the rows of the longest sequence that is in order already: these stay.
std::vector<bool> rowsThatStay(const std::vector<int> &places)
{
    std::vector<int> ends; // ends[n]: of all ordered sequences of n + 1 rows the last row of the one that ends lowest
    std::vector<int> before(places.size(), -1);
    const auto place = [&places](int row) {
        return places[std::size_t(row)];
    };
    for (int row = 0; row < int(places.size()); ++row) {
        auto end = ends.end();
        if (!ends.empty() && place(ends.back()) > place(row))
            end = std::lower_bound(ends.begin(), ends.end(), place(row),
                                   [&place](int other, int wanted) { return place(other) < wanted; });
        if (end != ends.begin())
            before[std::size_t(row)] = *(end - 1);
        if (end == ends.end())
            ends.push_back(row);
        else
            *end = row;
    }
    std::vector<bool> stays(places.size());
    for (int row = ends.empty() ? -1 : ends.back(); row >= 0; row = before[std::size_t(row)])
        stays[std::size_t(row)] = true;
    return stays;
}

} // namespace

std::vector<RowMove> rowMoves(const std::vector<int> &places)
{
    std::vector<RowMove> moves;
    if (std::is_sorted(places.begin(), places.end()))
        return moves;

    const std::vector<bool> stays = rowsThatStay(places);
    const int count = int(places.size());
    std::vector<int> rowAt(places.size());
    // Key 0 is the front, row + 1 a row. A row that was moved has the key of the staying row before it, directly
    // behind which it is, so that rows up to a key are the ones in front of what comes after that key.
    RowCounter counter(places.size() + 1);
    for (int row = 0; row < count; ++row) {
        rowAt[std::size_t(places[std::size_t(row)])] = row;
        counter.add(row + 1, 1);
    }
    int anchor = 0;
    for (int place = 0; place < count;) {
        const int row = rowAt[std::size_t(place)];
        if (stays[std::size_t(row)]) {
            anchor = row + 1;
            ++place;
            continue;
        }
        int length = 1;
        while (place + length < count && rowAt[std::size_t(place + length)] == row + length
               && !stays[std::size_t(row + length)])
            ++length;
        const int from = counter.upTo(row);
        const int behind = counter.upTo(anchor);
        moves.push_back({from, behind > from ? behind - length : behind, length});
        for (int i = 0; i < length; ++i)
            counter.add(row + i + 1, -1);
        counter.add(anchor, length);
        place += length;
    }
    return moves;
}
