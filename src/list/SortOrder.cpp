#include "list/SortOrder.h"

#include <algorithm>

#include "list/SortText.h"

namespace
{

// Whether the first row must stand before the second one: the stated comparison finds them in the wrong order the other
// way round.
class TextBefore
{
public:
    TextBefore(const std::vector<CString>& texts, int mode) : m_texts(texts), m_mode(mode) {}

    bool operator()(size_t first, size_t second) const
    {
        return CompareSortTexts(m_mode, m_texts[second], m_texts[first]) > 0;
    }

private:
    const std::vector<CString>& m_texts;
    int m_mode;
};

// The same for numbers, which are read once only.
class NumberBefore
{
public:
    NumberBefore(const std::vector<double>& numbers, bool ascending) : m_numbers(numbers), m_ascending(ascending) {}

    bool operator()(size_t first, size_t second) const
    {
        return m_ascending ? m_numbers[first] < m_numbers[second] : m_numbers[second] < m_numbers[first];
    }

private:
    const std::vector<double>& m_numbers;
    bool m_ascending;
};

std::vector<double> NumbersOf(const std::vector<CString>& texts)
{
    std::vector<double> numbers(texts.size());
    for (size_t row = 0; row < texts.size(); ++row)
        numbers[row] = NumberOfText(texts[row]);
    return numbers;
}

} // namespace

CSortOrder::CSortOrder(const std::vector<CString>& texts, int mode) : m_places(texts.size())
{
    std::vector<size_t> rows(texts.size());
    for (size_t row = 0; row < rows.size(); ++row)
        rows[row] = row;
    if (mode == SORT_NUMBER_ASCENDING || mode == SORT_NUMBER_DESCENDING)
    {
        const std::vector<double> numbers = NumbersOf(texts);
        std::stable_sort(rows.begin(), rows.end(), NumberBefore(numbers, mode == SORT_NUMBER_ASCENDING));
    }
    else
    {
        std::stable_sort(rows.begin(), rows.end(), TextBefore(texts, mode));
    }
    for (size_t place = 0; place < rows.size(); ++place)
        m_places[rows[place]] = place;
}

int CSortOrder::Compare(LPARAM firstRow, LPARAM secondRow) const
{
    const size_t first = GetPlace(firstRow);
    const size_t second = GetPlace(secondRow);
    return first < second ? -1 : second < first ? 1 : 0;
}

size_t CSortOrder::GetPlace(LPARAM row) const
{
    const size_t index = static_cast<size_t>(row);
    return index < m_places.size() ? m_places[index] : m_places.size();
}
